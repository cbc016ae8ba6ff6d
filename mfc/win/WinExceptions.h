// Exceptions of the window side.
#pragma once

#include <afx.h>

// A window, GDI object or template could not be had.
class CResourceException : public CSimpleException {
    DECLARE_DYNAMIC(CResourceException)
public:
    using CSimpleException::CSimpleException;
};

class CNotSupportedException : public CSimpleException {
    DECLARE_DYNAMIC(CNotSupportedException)
public:
    using CSimpleException::CSimpleException;
};

[[noreturn]] void AFXAPI AfxThrowResourceException();
[[noreturn]] void AFXAPI AfxThrowNotSupportedException();
