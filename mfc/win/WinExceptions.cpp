// Exceptions of the window side, as static objects that are never freed.
#include "win/WinExceptions.h"

IMPLEMENT_DYNAMIC(CResourceException, CException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CException)

void AFXAPI AfxThrowResourceException() {
    static CResourceException exception(FALSE);
    throw &exception;
}

void AFXAPI AfxThrowNotSupportedException() {
    static CNotSupportedException exception(FALSE);
    throw &exception;
}
