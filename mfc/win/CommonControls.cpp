// The common controls.
#include <afxcmn.h>
#include <afxdtctl.h>

IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)
IMPLEMENT_DYNAMIC(CDateTimeCtrl, CWnd)

CProgressCtrl::~CProgressCtrl() {
    DestroyWindow();
}

CDateTimeCtrl::~CDateTimeCtrl() {
    DestroyWindow();
}
