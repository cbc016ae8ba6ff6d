// CColorComboBox: an owner-drawn combo box of colour swatches, ending with an entry for more colours.
#pragma once

#include <afxwin.h>

class CColorComboBox : public CComboBox {
public:
    CColorComboBox() = default;

    /// Each returns 0 on failure. Adding fails once the list holds more than 1000 items.
    int AddColor(COLORREF color);
    int InsertColor(COLORREF color); // at the top
    /// Selects and remembers an item; returns the control's result.
    int SelectColor(int index);
    /// The window that owns the colour picker; borrowed.
    int SetPickerOwner(CWnd* pOwner);
    /// Completes a filled list: selects the first colour, adds the entry for more colours.
    int FinishList();

    /// The index of a colour in the list, CB_ERR when it is missing.
    int FindColor(COLORREF color) const;
    /// Fills the list with the standard colours and the stored colour, and finishes it. A stored colour
    /// among the standard ones opens with the first one selected.
    void FillWithStored(COLORREF stored, CWnd* pPickerOwner);
    /// Whether a colour is selected, and which.
    bool GetSelectedColor(int* pColor) const;

protected:
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override;
    void PreSubclassWindow() override;
    afx_msg void OnSelendok();
    DECLARE_MESSAGE_MAP()

private:
    bool IsFull() const;
    int InsertAt(int index, COLORREF color);
    void PickColor(int index);
    static void DrawSwatch(const DRAWITEMSTRUCT& item, COLORREF color);

    CWnd* m_pickerOwner = nullptr; // weak
    int m_selected = -1;           // last selected through SelectColor or the picker
    int m_capacity = 1000;         // above this nothing is added
};
