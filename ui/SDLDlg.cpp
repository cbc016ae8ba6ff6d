// Every row starts chosen and the list confirms itself, so it stays on screen only when it is empty.
#include "ui/SDLDlg.h"

#include <algorithm>
#include <vector>
#include "config/EntryAttribute.h"
#include "varnoke/ModelConfig.h"
#include "module/Guarded.h"
#include "module/InfoMessage.h"
#include "module/DocumentCopy.h"
#include "neighbours/QORGridIds.h"
#include "module/ResourceText.h"
#include "ui/ScaledPixels.h"

using namespace varnoke;

namespace {

const long kNumberColumn = 0;
const long kChosenColumn = 1;
const long kFirstAttributeColumn = 2;
const int kMinColumnWidth = 80; // pixels at 96 dots per inch

} // namespace

BEGIN_MESSAGE_MAP(CSDLDlg, CDialog)
    ON_BN_CLICKED(IDC_CONFIRM, &CSDLDlg::OnOK)
    ON_BN_CLICKED(IDC_DISMISS, &CSDLDlg::OnCancel)
END_MESSAGE_MAP()

CSDLDlg::CSDLDlg(CWnd* pParent) : CDialog(IDD, pParent) {}

int CSDLDlg::SetSignFileType(SSignType* pSignFileType) {
    if (!pSignFileType) return 0;
    m_signFileType = pSignFileType;
    return 1;
}

int CSDLDlg::SetModelConfig(CModelConfig* pModelConfig) {
    if (!pModelConfig) return 0;
    m_modelConfig = pModelConfig;
    return 1;
}

int CSDLDlg::GetSelectedSignFileType(SSignType** ppSignFileType) const {
    if (!ppSignFileType) return 0;
    *ppSignFileType = nullptr;
    if (!m_chosen) return 0;
    *ppSignFileType = CopyFirstWithProperties(*m_chosen).release();
    return *ppSignFileType ? 1 : 0;
}

void CSDLDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_DOCUMENT_GRID, m_grid);
}

BOOL CSDLDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Guarded([this] { FillGrid(); });
    OnOK();
    return FALSE;
}

void CSDLDlg::FillGrid() {
    const QORMODEL::IQORObjConfigPtr config =
        m_modelConfig ? m_modelConfig->GetServerObjectConfig() : nullptr;
    long attributes = 0;
    if (!config || FAILED(config->GetCount(&attributes)) || attributes <= 0) return;

    m_grid.SetUp();
    m_grid.SetColumnCount(attributes + kFirstAttributeColumn);
    AddColumn(kNumberColumn, ResourceText(IDS_COLUMN_NUMBER), CString());
    AddColumn(kChosenColumn, ResourceText(IDS_COLUMN_CHOSEN), L"SelectStatus");
    m_grid.SetColumnKind(kNumberColumn, kGridColumnText);
    m_grid.SetColumnKind(kChosenColumn, kGridColumnCheck);
    m_grid.SetColumnEditor(kChosenColumn, L"QORCheckBoxEdit.dll");
    for (long i = 0; i < attributes; ++i) {
        const CString name = EntryAttribute(config.GetInterfacePtr(), i, L"name");
        const CString caption = EntryAttribute(config.GetInterfacePtr(), i, L"caption");
        AddColumn(kFirstAttributeColumn + i, caption.IsEmpty() ? name : caption, name);
    }

    CRect client;
    m_grid.GetClientRect(&client);
    const long columns = attributes + kFirstAttributeColumn;
    const long width = std::max<long>(client.Width() / columns, ScaledPixels(kMinColumnWidth));
    for (long column = 0; column < columns; ++column)
        m_grid.SetColumnWidth(column, width);

    if (!m_signFileType) return;
    long position = 0;
    for (POSITION pos = m_signFileType->m_lstObj.GetHeadPosition(); pos; ++position) {
        const SSignObj* object = m_signFileType->m_lstObj.GetNext(pos);
        if (object) AddRow(*object, position);
    }
}

void CSDLDlg::AddColumn(long nColumn, const CString& strText, const CString& strKey) {
    m_grid.SetColumnText(nColumn, strText);
    m_columnKeys.AddTail(strKey);
}

void CSDLDlg::AddRow(const SSignObj& obj, long nPosition) {
    m_grid.AppendRow();
    const long number = m_grid.GetRowCount();
    const long row = number - 1;
    m_grid.SetRowValue(row, nPosition);
    CString text;
    text.Format(L"%ld", number);
    m_grid.SetCellText(row, kNumberColumn, text);
    m_grid.SetCellText(row, kChosenColumn, L"1");
    long column = 0;
    for (POSITION pos = m_columnKeys.GetHeadPosition(); pos; ++column) {
        const CString& key = m_columnKeys.GetNext(pos);
        if (column < kFirstAttributeColumn) continue;
        const CString value = PropertyValue(obj, key);
        if (!value.IsEmpty()) m_grid.SetCellText(row, column, value);
    }
}

void CSDLDlg::OnOK() {
    m_chosen.reset();
    Guarded([this] {
        if (const UINT fault = FindFault()) {
            ShowInfo(ResourceText(fault), this);
            return;
        }
        KeepChosen();
        EndDialog(IDOK);
    });
}

bool CSDLDlg::IsChosen(long nRow) {
    return m_grid.GetCellText(nRow, kChosenColumn).CompareNoCase(L"1") == 0;
}

UINT CSDLDlg::FindFault() {
    // A grid that is not installed has no rows.
    const long rows = Guarded(0L, [this] { return m_grid.GetRowCount(); });
    if (rows <= 0) return IDS_NO_DOCUMENTS;
    for (long row = 0; row < rows; ++row) {
        if (IsChosen(row)) return 0;
    }
    return IDS_NO_CHOSEN_DOCUMENTS;
}

void CSDLDlg::KeepChosen() {
    std::vector<const SSignObj*> objects;
    for (POSITION pos = m_signFileType->m_lstObj.GetHeadPosition(); pos;)
        objects.push_back(m_signFileType->m_lstObj.GetNext(pos));

    OwnedRecord<SSignType> chosen(new SSignType);
    const long rows = m_grid.GetRowCount();
    for (long row = 0; row < rows; ++row) {
        if (!IsChosen(row)) continue;
        const SSignObj* object = objects.at(m_grid.GetRowValue(row));
        if (HasProperties(object)) AppendObject(*chosen, CopyObject(*object));
    }
    m_chosen = std::move(chosen);
}
