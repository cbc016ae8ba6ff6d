#pragma once

#include <afxwin.h>
#include <afxcoll.h>
#include "varnoke/OwnedRecord.h"
#include "ui/QORGrid.h"
#include "ui/resource.h"

class CModelConfig;

/// The list of documents known to the PLM server, from which documents are chosen.
/// With at least one document the dialog ends with IDOK before it is shown, all documents chosen.
class CSDLDlg : public CDialog {
public:
    enum { IDD = IDD_SERVER_DOCUMENTS };

    explicit CSDLDlg(CWnd* parent = nullptr);

    /// The documents to show and the configuration that gives the columns; both borrowed, both must
    /// outlive the dialog. Each returns 1, or 0 for null.
    int SetSignFileType(SSignType* signFileType);
    int SetModelConfig(CModelConfig* modelConfig);

    /// Hands out a copy of the first chosen document that has properties, in a list of its own with an
    /// empty identifier; the caller frees it with Cmn_ReleaseSignType. Returns 1, or 0 (and null).
    int GetSelectedSignFileType(SSignType** signFileType) const;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    DECLARE_MESSAGE_MAP()

private:
    void FillGrid();
    void AddColumn(long column, const CString& text, const CString& key);
    void AddRow(const SSignObj& object, long position);
    bool IsChosen(long row);
    UINT FindFault();
    void KeepChosen();

    CQORGrid m_grid;
    SSignType* m_signFileType = nullptr;   // weak
    CModelConfig* m_modelConfig = nullptr; // weak
    varnoke::OwnedRecord<SSignType> m_chosen;
    CStringList m_columnKeys; // one per grid column
};
