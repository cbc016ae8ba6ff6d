// CULDDlg: the progress dialog that uploads documents to the PLM server.
#pragma once

#include "ui/TransferDlg.h"

class CULDDlg : public CTransferDlg {
public:
    explicit CULDDlg(CWnd* pParent = nullptr);
};
