#include "ui/ColorComboBox.h"

#include <afxdlgs.h>
#include "base/Owned.h"
#include "module/ResourceText.h"
#include "ui/ScaledPixels.h"
#include "ui/resource.h"
#include "varnoke/INIConfig.h"

using varnoke::ResourceText;
using varnoke::ScaledPixels;

namespace {

// In pixels of a screen with 96 dots per inch.
const int kItemHeight = 16;
const int kTextLeft = 5;
const int kTextRight = 100;
const int kSwatchLeft = 102;
const int kSwatchMarginX = 5;
const int kSwatchMarginY = 2;

const COLORREF kStandardColors[] = {RGB(0, 0, 0), RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255),
                                    RGB(255, 255, 255)};

CString ColorText(COLORREF color, const wchar_t* format = L"RGB(%.3d, %.3d, %.3d)") {
    CString text;
    text.Format(format, static_cast<int>(GetRValue(color)), static_cast<int>(GetGValue(color)),
                static_cast<int>(GetBValue(color)));
    return text;
}

// With a wide font the text would be cut in the middle of a number.
CString FittingColorText(HDC dc, COLORREF color, int width) {
    SIZE size = {};
    CString text = ColorText(color);
    if (::GetTextExtentPoint32W(dc, text, text.GetLength(), &size) && size.cx <= width) return text;
    text = ColorText(color, L"%d,%d,%d");
    if (::GetTextExtentPoint32W(dc, text, text.GetLength(), &size) && size.cx <= width) return text;
    return ColorText(color, L"#%.2X%.2X%.2X");
}

COLORREF StoredTextColor(const CINIConfig* settings) {
    if (!settings) return RGB(0, 0, 0);
    const long color = settings->GetDateTextColor();
    return color < 0 ? RGB(255, 255, 255) : static_cast<COLORREF>(color);
}

} // namespace

BEGIN_MESSAGE_MAP(CColorComboBox, CComboBox)
    ON_CONTROL_REFLECT(CBN_SELENDOK, &CColorComboBox::OnSelendok)
END_MESSAGE_MAP()

int CColorComboBox::AddColor(COLORREF color) {
    return InsertAt(GetCount(), color);
}

int CColorComboBox::InsertColor(COLORREF color) {
    return InsertAt(0, color);
}

int CColorComboBox::InsertAt(int index, COLORREF color) {
    if (IsFull()) return 0;
    const int item = InsertString(index, ColorText(color));
    return item >= 0 && SetItemData(item, color) != CB_ERR;
}

int CColorComboBox::SelectColor(int index) {
    if (index < 0 || index >= GetCount()) return 0;
    const int result = SetCurSel(index);
    if (result == CB_ERR) return 0;
    m_selected = index;
    return result;
}

int CColorComboBox::SetPickerOwner(CWnd* owner) {
    m_pickerOwner = owner;
    return 1;
}

int CColorComboBox::FinishList() {
    const int count = GetCount();
    if (count == 0) {
        AddColor(RGB(255, 0, 0));
        AddColor(RGB(0, 255, 0));
        AddColor(RGB(0, 0, 255));
    }
    if (count > m_capacity) return 0;
    SelectColor(0);
    return AddColor(RGB(0, 0, 0));
}

int CColorComboBox::FindColor(COLORREF color) const {
    return FindStringExact(-1, ColorText(color));
}

void CColorComboBox::FillFromSettings(const CINIConfig* settings, CWnd* pickerOwner) {
    const COLORREF stored = StoredTextColor(settings);
    ResetContent();
    for (const COLORREF color : kStandardColors)
        AddColor(color);
    SelectColor(0);
    const int index = FindColor(stored);
    if (index == CB_ERR) InsertColor(stored);
    SelectColor(index == CB_ERR ? 0 : index);
    SetPickerOwner(pickerOwner);
    // Finishing selects the first entry again, so only a colour outside the standard ones stays selected.
    FinishList();
}

bool CColorComboBox::GetSelectedColor(int* color) const {
    const int index = GetCurSel();
    if (index < 0 || index >= GetCount()) return false;
    *color = static_cast<int>(GetItemData(index));
    return *color >= 0;
}

void CColorComboBox::PreSubclassWindow() {
    CComboBox::PreSubclassWindow();
    // A combo box of a template has asked for its item height before it is subclassed.
    SetItemHeight(0, ScaledPixels(kItemHeight));
}

void CColorComboBox::MeasureItem(LPMEASUREITEMSTRUCT measured) {
    measured->itemHeight = ScaledPixels(kItemHeight);
}

void CColorComboBox::DrawItem(LPDRAWITEMSTRUCT drawn) {
    const DRAWITEMSTRUCT& item = *drawn;
    const int count = GetCount();
    if (item.itemID == static_cast<UINT>(-1) || count <= 0 || ::GetFocus() == nullptr) return;

    const bool isLast = static_cast<int>(item.itemID) == count - 1;
    const COLORREF color = static_cast<COLORREF>(GetItemData(item.itemID));
    const bool isSelected = (item.itemState & ODS_SELECTED) != 0;

    const int saved = ::SaveDC(item.hDC);
    ::FillRect(item.hDC, &item.rcItem, ::GetSysColorBrush(isSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    if (isSelected && ::GetFocus() == m_hWnd) ::DrawFocusRect(item.hDC, &item.rcItem);
    ::SetTextColor(item.hDC, ::GetSysColor(isSelected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    ::SetBkColor(item.hDC, ::GetSysColor(isSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    RECT textRect = item.rcItem;
    textRect.left = ScaledPixels(item.hDC, kTextLeft);
    CString text = ResourceText(IDS_MORE_COLORS);
    if (!isLast) {
        DrawSwatch(item, color);
        textRect.right = ScaledPixels(item.hDC, kTextRight);
        text = FittingColorText(item.hDC, color, textRect.right - textRect.left);
    }
    ::DrawTextW(item.hDC, text, text.GetLength(), &textRect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    ::RestoreDC(item.hDC, saved);
}

void CColorComboBox::DrawSwatch(const DRAWITEMSTRUCT& item, COLORREF color) {
    RECT swatch = item.rcItem;
    ::InflateRect(&swatch, -ScaledPixels(item.hDC, kSwatchMarginX), -ScaledPixels(item.hDC, kSwatchMarginY));
    swatch.left = ScaledPixels(item.hDC, kSwatchLeft);
    const base::GdiObject<HBRUSH> brush(::CreateSolidBrush(color));
    ::SelectObject(item.hDC, ::GetStockObject(BLACK_PEN));
    const HGDIOBJ previous = ::SelectObject(item.hDC, brush.get());
    ::Rectangle(item.hDC, swatch.left, swatch.top, swatch.right, swatch.bottom);
    ::SelectObject(item.hDC, previous);
}

void CColorComboBox::OnSelendok() {
    const int index = GetCurSel();
    if (index == CB_ERR || index != GetCount() - 1 || IsFull()) return;
    PickColor(index);
}

// The picked colour takes the place of the entry for more colours, and a new such entry follows it.
void CColorComboBox::PickColor(int index) {
    CColorDialog picker(RGB(0, 0, 0), 0, m_pickerOwner);
    if (picker.DoModal() == IDOK) {
        SetItemData(index, picker.GetColor());
        AddColor(picker.GetColor());
        m_selected = index;
        return;
    }
    if (m_selected < 0 || m_selected >= GetCount() - 1) m_selected = 0;
    SelectColor(m_selected);
}

bool CColorComboBox::IsFull() const {
    return GetCount() > m_capacity;
}
