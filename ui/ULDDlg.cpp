// The upload's row of the variant table makes the dialog what it is.
#include "ui/ULDDlg.h"

CULDDlg::CULDDlg(CWnd* pParent) : CTransferDlg(varnoke::kUpload, pParent) {}
