// The download's row of the variant table makes the dialog what it is.
#include "ui/DLDDlg.h"

CDLDDlg::CDLDDlg(CWnd* pParent) : CTransferDlg(varnoke::kDownload, pParent) {}
