// Exceptions of the window side.
#pragma once

#include <afx.h>

// A window, GDI object or template could not be had.
class CResourceException : public CException {
    DECLARE_DYNAMIC(CResourceException)
public:
    using CException::CException;
};

class CNotSupportedException : public CException {
    DECLARE_DYNAMIC(CNotSupportedException)
public:
    using CException::CException;
};

[[noreturn]] void AFXAPI AfxThrowResourceException();
[[noreturn]] void AFXAPI AfxThrowNotSupportedException();
