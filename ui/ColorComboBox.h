#pragma once

#include <afxwin.h>

class CINIConfig;

/// An owner-drawn list of colour swatches that ends with an entry for more colours.
class CColorComboBox : public CComboBox {
public:
    CColorComboBox() = default;

    /// Each returns 0 on failure. Adding fails once the list holds more than 1000 items.
    int AddColor(COLORREF color);
    int InsertColor(COLORREF color); // at the top
    /// Selects and remembers an item; returns the control's result.
    int SelectColor(int index);
    /// The window that owns the colour picker; borrowed.
    int SetPickerOwner(CWnd* owner);
    /// Completes a filled list: selects the first colour, adds the entry for more colours.
    int FinishList();

    /// The index of a colour in the list, CB_ERR when it is missing.
    int FindColor(COLORREF color) const;
    /// Fills the list with the standard colours and the stored one, and finishes it. A stored colour among
    /// the standard ones opens with the first one selected. Without settings (null) the stored one is black.
    void FillFromSettings(const CINIConfig* settings, CWnd* pickerOwner);
    /// Whether a colour is selected, and which.
    bool GetSelectedColor(int* color) const;

protected:
    void DrawItem(LPDRAWITEMSTRUCT drawn) override;
    void MeasureItem(LPMEASUREITEMSTRUCT measured) override;
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
