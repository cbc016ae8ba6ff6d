// The standard controls, each a thin object over the control's messages.
#pragma once

#include "win/Wnd.h"

class CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
public:
    CStatic() = default;
    virtual ~CStatic();
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID = 0xffff);
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

class CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)
public:
    CButton() = default;
    virtual ~CButton();
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetCheck(int nCheck) { SendMessage(BM_SETCHECK, nCheck); }

protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

class CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)
public:
    CEdit() = default;
    virtual ~CEdit();

    BOOL SetReadOnly(BOOL bReadOnly = TRUE) {
        return static_cast<BOOL>(SendMessage(EM_SETREADONLY, bReadOnly));
    }
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE) {
        SendMessage(EM_SETSEL, nStartChar, nEndChar);
        if (!bNoScroll) SendMessage(EM_SCROLLCARET);
    }
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE) {
        SendMessage(EM_REPLACESEL, bCanUndo, reinterpret_cast<LPARAM>(lpszNewText));
    }
    void LimitText(int nChars = 0) { SendMessage(EM_LIMITTEXT, nChars); }
};

class CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)
public:
    CComboBox() = default;
    virtual ~CComboBox();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const { return static_cast<int>(SendMessage(CB_GETCOUNT)); }
    int GetCurSel() const { return static_cast<int>(SendMessage(CB_GETCURSEL)); }
    int SetCurSel(int nSelect) { return static_cast<int>(SendMessage(CB_SETCURSEL, nSelect)); }
    int AddString(LPCTSTR lpszString) {
        return static_cast<int>(SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszString)));
    }
    int InsertString(int nIndex, LPCTSTR lpszString) {
        return static_cast<int>(SendMessage(CB_INSERTSTRING, nIndex, reinterpret_cast<LPARAM>(lpszString)));
    }
    void ResetContent() { SendMessage(CB_RESETCONTENT); }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
        return static_cast<int>(
            SendMessage(CB_FINDSTRINGEXACT, nIndexStart, reinterpret_cast<LPARAM>(lpszFind)));
    }
    // CB_ERR for a bad index.
    DWORD_PTR GetItemData(int nIndex) const {
        return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, nIndex));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) {
        return static_cast<int>(SendMessage(CB_SETITEMDATA, nIndex, static_cast<LPARAM>(dwItemData)));
    }
    int SetItemHeight(int nIndex, UINT cyItemHeight) {
        return static_cast<int>(SendMessage(CB_SETITEMHEIGHT, nIndex, cyItemHeight));
    }

    // For owner-drawn combo boxes; reached through the parent window.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
