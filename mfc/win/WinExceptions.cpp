// Exceptions of the window side, as static objects that are never freed.
#include "win/WinExceptions.h"

IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)

void AFXAPI AfxThrowResourceException() {
    static CResourceException exception(FALSE);
    throw &exception;
}

void AFXAPI AfxThrowNotSupportedException() {
    static CNotSupportedException exception(FALSE);
    throw &exception;
}
