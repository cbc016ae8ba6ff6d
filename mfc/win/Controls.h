// The standard controls, each a thin object over the control's messages.
#pragma once

#include "win/Wnd.h"

class CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
};

class CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)
public:
    int GetCheck() const;
    void SetCheck(int nCheck);
};

class CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)
public:
    BOOL SetReadOnly(BOOL bReadOnly = TRUE);
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE);
    void LimitText(int nChars = 0);
};

class CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)
public:
    int GetCount() const;
    int GetCurSel() const;
    int SetCurSel(int nSelect);
    int AddString(LPCTSTR lpszString);
    int InsertString(int nIndex, LPCTSTR lpszString);
    void ResetContent();
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const;
    DWORD_PTR GetItemData(int nIndex) const; // CB_ERR for a bad index
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    int SetItemHeight(int nIndex, UINT cyItemHeight);

    // For owner-drawn combo boxes; reached through the parent window.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);

protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
