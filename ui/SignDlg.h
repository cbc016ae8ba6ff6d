// CSignDlg: the dialog in which the user confirms the parameters of one signature.
#pragma once

#include <afxwin.h>
#include <afxdtctl.h>
#include "ui/ColorComboBox.h"
#include "ui/Dwgviewerctrl1.h"
#include "ui/SignInput.h"
#include "ui/resource.h"

class CINIConfig;

/// Use: construct, call the setters in their order, DoModal(), and after IDOK read the results.
class CSignDlg : public CDialog {
public:
    enum { IDD = IDD_SIGN };

    explicit CSignDlg(CWnd* pParent = nullptr);

    /// Inputs. Each returns 1, or 0 on failure.
    int SetScopeSelectable(int nSelectable);        // nonzero: the user may change the scope
    int SetUserName(const CString& strUserName);    // empty: the Windows logon name
    int SetRole(const CString& strRole);            // empty: the designer's role
    int SetSealDrawingPath(const CString& strPath); // empty: refused
    int SetSettings(CINIConfig* pSettings);         // borrowed, must outlive the dialog; null: refused

    /// Results of a dialog that ended with IDOK.
    CString UserName() const { return m_strUserNameOut; }
    CString Role() const { return m_strRoleOut; }
    CString SealName() const { return m_strSealNameOut; }
    CString SignDateText() const { return m_strSignDateText; }
    CString DateFormat() const { return m_strDateFormatOut; }
    CString DateLocation() const { return m_strDateLocationOut; }
    CString FontSize() const { return m_strFontSizeOut; }
    CString TextColor() const { return m_strTextColorOut; } // decimal
    int Scope() const { return m_nScope; }                  // 1 current document, 2 opened, 3 all

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    afx_msg void OnClickedScopeCurrent();
    afx_msg void OnClickedScopeOpened();
    afx_msg void OnClickedScopeAll();
    DECLARE_MESSAGE_MAP()

private:
    void FillControls();
    void ShowPreview();
    void FillDateFormats();
    void FillDateLocations();
    void FillFontSizes();
    void InitScopeBoxes();
    void ShowScope(int nScope);
    void OnScopeClicked(int nScope, const CButton& box);
    varnoke::SSignInput ReadInput() const;
    void Collect(const varnoke::SSignInput& input);
    void WriteBack();

    CEdit m_editUserName;
    CEdit m_editRole;
    CEdit m_editSealName;
    CDwgviewerctrl1 m_preview;
    CDateTimeCtrl m_pickerSignTime;
    CComboBox m_comboDateFormat;
    CComboBox m_comboDateLocation;
    CComboBox m_comboFontSize;
    CColorComboBox m_comboTextColor;
    CButton m_boxCurrent;
    CButton m_boxOpened;
    CButton m_boxAll;
    int m_nScopeSelectable = 0;
    CString m_strUserNameIn;
    CString m_strRoleIn;
    CString m_strSealNameIn;
    CString m_strSealDrawingPath;
    CINIConfig* m_pSettings = nullptr; // weak
    CString m_strUserNameOut;
    CString m_strRoleOut;
    CString m_strSealNameOut;
    CString m_strSignDateText;
    CString m_strDateFormatOut;
    CString m_strDateLocationOut;
    CString m_strFontSizeOut;
    CString m_strTextColorOut;
    int m_nScope = 1;
    int m_nTextColor = 0; // the number behind m_strTextColorOut
};
