#pragma once

#include "ui/TransferDlg.h"

/// The progress dialog that downloads documents from the PLM server.
class CDLDDlg : public CTransferDlg {
public:
    explicit CDLDDlg(CWnd* parent = nullptr) : CTransferDlg(varnoke::kDownload, parent) {}
};
