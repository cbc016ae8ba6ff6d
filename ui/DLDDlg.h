// CDLDDlg: the progress dialog that downloads documents from the PLM server.
#pragma once

#include "ui/TransferDlg.h"

class CDLDDlg : public CTransferDlg {
public:
    explicit CDLDDlg(CWnd* pParent = nullptr);
};
