#include "ui/SDLDlg.h"

#include <algorithm>
#include <vector>
#include "config/EntryAttribute.h"
#include "varnoke/ModelConfig.h"
#include "module/Guarded.h"
#include "ui/InfoMessage.h"
#include "module/DocumentCopy.h"
#include "neighbours/QORGridIds.h"
#include "module/ResourceText.h"
#include "ui/ScaledPixels.h"

using namespace varnoke;

namespace {

// The list's own columns stand before those of the documents' attributes; their captions are the lines of
// IDS_OWN_COLUMNS.
enum Column : long { kNumberColumn, kChosenColumn, kFirstAttributeColumn };
const int kMinColumnWidth = 80; // pixels at 96 dots per inch

// A control and the windows inside it are not painted from construction to destruction: a grid would do it
// anew for each cell.
class PaintingOff {
public:
    explicit PaintingOff(HWND control) {
        Add(control, reinterpret_cast<LPARAM>(this));
        ::EnumChildWindows(control, &PaintingOff::Add, reinterpret_cast<LPARAM>(this));
        Set(FALSE);
    }
    ~PaintingOff() { Set(TRUE); }
    PaintingOff& operator=(PaintingOff&&) = delete;

private:
    // Painting again would show a hidden window.
    static BOOL CALLBACK Add(HWND window, LPARAM self) {
        if (::GetWindowLongPtr(window, GWL_STYLE) & WS_VISIBLE)
            reinterpret_cast<PaintingOff*>(self)->m_windows.push_back(window);
        return TRUE;
    }
    void Set(BOOL on) {
        for (HWND window : m_windows) {
            ::SendMessage(window, WM_SETREDRAW, on, 0);
            if (on) ::InvalidateRect(window, nullptr, TRUE);
        }
    }

    std::vector<HWND> m_windows;
};

} // namespace

BEGIN_MESSAGE_MAP(CSDLDlg, CDialog)
    ON_BN_CLICKED(IDC_CONFIRM, &CSDLDlg::OnOK)
    ON_BN_CLICKED(IDC_DISMISS, &CSDLDlg::OnCancel)
END_MESSAGE_MAP()

CSDLDlg::CSDLDlg(CWnd* parent) : CDialog(IDD, parent) {}

int CSDLDlg::SetSignFileType(SSignType* signFileType) {
    if (!signFileType) return 0;
    m_signFileType = signFileType;
    return 1;
}

int CSDLDlg::SetModelConfig(CModelConfig* modelConfig) {
    if (!modelConfig) return 0;
    m_modelConfig = modelConfig;
    return 1;
}

int CSDLDlg::GetSelectedSignFileType(SSignType** signFileType) const {
    if (!signFileType) return 0;
    *signFileType = nullptr;
    if (!m_chosen) return 0;
    *signFileType = CopyFirstWithProperties(*m_chosen).release();
    return *signFileType ? 1 : 0;
}

void CSDLDlg::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_DOCUMENT_GRID, m_grid);
}

// Every row starts chosen and the list confirms itself, so it stays on screen only when it is empty.
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

    const PaintingOff paintingOff(m_grid);
    m_grid.SetUp();
    m_grid.SetColumnCount(attributes + kFirstAttributeColumn);
    CString captions = ResourceText(IDS_OWN_COLUMNS) + L"\n";
    for (long column = 0; column < kFirstAttributeColumn; ++column) {
        const int end = captions.Find(L'\n');
        AddColumn(column, captions.Left(end), column == kChosenColumn ? L"SelectStatus" : L"");
        captions = captions.Mid(end + 1);
    }
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

void CSDLDlg::AddColumn(long column, const CString& text, const CString& key) {
    m_grid.SetColumnText(column, text);
    m_columnKeys.AddTail(key);
}

void CSDLDlg::AddRow(const SSignObj& object, long position) {
    m_grid.AppendRow();
    const long number = m_grid.GetRowCount();
    const long row = number - 1;
    m_grid.SetRowValue(row, position);
    CString text;
    text.Format(L"%ld", number);
    m_grid.SetCellText(row, kNumberColumn, text);
    m_grid.SetCellText(row, kChosenColumn, L"1");
    long column = 0;
    for (POSITION pos = m_columnKeys.GetHeadPosition(); pos; ++column) {
        const CString& key = m_columnKeys.GetNext(pos);
        if (column < kFirstAttributeColumn) continue;
        const CString* value = FirstValue(object, key);
        if (value && !value->IsEmpty()) m_grid.SetCellText(row, column, *value);
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

bool CSDLDlg::IsChosen(long row) {
    return m_grid.GetCellText(row, kChosenColumn).CompareNoCase(L"1") == 0;
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
