// CSDLDlg: the list of documents known to the PLM server, from which documents are chosen.
#pragma once

#include <afxwin.h>
#include <afxcoll.h>
#include "varnoke/OwnedRecord.h"
#include "ui/QORGrid.h"
#include "ui/resource.h"

class CModelConfig;

/// With at least one document the dialog ends with IDOK before it is shown, all documents chosen.
class CSDLDlg : public CDialog {
public:
    enum { IDD = IDD_SERVER_DOCUMENTS };

    explicit CSDLDlg(CWnd* pParent = nullptr);

    /// The documents to show and the configuration that gives the columns; both borrowed, both must
    /// outlive the dialog. Each returns 1, or 0 for null.
    int SetSignFileType(SSignType* pSignFileType);
    int SetModelConfig(CModelConfig* pModelConfig);

    /// Hands out a copy of the first chosen document that has properties, in a list of its own with an
    /// empty identifier; the caller frees it with Cmn_ReleaseSignType. Returns 1, or 0 (and null).
    int GetSelectedSignFileType(SSignType** ppSignFileType) const;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    DECLARE_MESSAGE_MAP()

private:
    void FillGrid();
    void AddColumn(long nColumn, const CString& strText, const CString& strKey);
    void AddRow(const SSignObj& obj, long nPosition);
    bool IsChosen(long nRow);
    UINT FindFault();
    void KeepChosen();

    CQORGrid m_grid;
    SSignType* m_signFileType = nullptr;   // weak
    CModelConfig* m_modelConfig = nullptr; // weak
    varnoke::OwnedRecord<SSignType> m_chosen;
    CStringList m_columnKeys; // one per grid column
};
