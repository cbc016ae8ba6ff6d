#pragma once

#include "ui/TransferDlg.h"

/// The progress dialog that uploads documents to the PLM server.
class CULDDlg : public CTransferDlg {
public:
    explicit CULDDlg(CWnd* parent = nullptr) : CTransferDlg(varnoke::kUpload, parent) {}
};
