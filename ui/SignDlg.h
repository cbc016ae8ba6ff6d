#pragma once

#include <afxwin.h>
#include <afxdtctl.h>
#include "ui/ColorComboBox.h"
#include "ui/Dwgviewerctrl1.h"
#include "ui/SignInput.h"
#include "ui/resource.h"

class CINIConfig;

/// The dialog in which the user confirms the parameters of one signature.
/// Use: construct, call the setters in their order, DoModal(), and after IDOK read the results.
class CSignDlg : public CDialog {
public:
    enum { IDD = IDD_SIGN };

    explicit CSignDlg(CWnd* parent = nullptr);

    /// Inputs. Each returns 1, or 0 on failure.
    int SetScopeSelectable(int selectable);      // nonzero: the user may change the scope
    int SetUserName(const CString& userName);    // empty: the Windows logon name
    int SetRole(const CString& role);            // empty: the designer's role
    int SetSealDrawingPath(const CString& path); // empty: refused
    int SetSettings(CINIConfig* settings);       // borrowed, must outlive the dialog; null: refused

    /// Results of a dialog that ended with IDOK.
    CString UserName() const { return m_userNameOut; }
    CString Role() const { return m_roleOut; }
    CString SealName() const { return m_sealNameOut; }
    CString SignDateText() const { return m_signDateText; }
    CString DateFormat() const { return m_dateFormatOut; }
    CString DateLocation() const { return m_dateLocationOut; }
    CString FontSize() const { return m_fontSizeOut; }
    CString TextColor() const { return m_textColorOut; } // decimal
    int Scope() const { return m_scope; }                // 1 current document, 2 opened, 3 all

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    afx_msg LRESULT OnActivated(WPARAM, LPARAM);
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
    void ShowScope(int scope);
    void OnScopeClicked(int scope, const CButton& box);
    varnoke::SignInput ReadInput() const;
    void Collect(const varnoke::SignInput& input);
    bool WriteBack(); // whether all choices are stored

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
    int m_scopeSelectable = 0;
    CString m_userNameIn;
    CString m_roleIn;
    CString m_sealNameIn;
    CString m_sealDrawingPath;
    CINIConfig* m_settings = nullptr; // weak
    CString m_userNameOut;
    CString m_roleOut;
    CString m_sealNameOut;
    CString m_signDateText;
    CString m_dateFormatOut;
    CString m_dateLocationOut;
    CString m_fontSizeOut;
    CString m_textColorOut;
    int m_scope = 1;
    int m_textColor = 0; // the number behind m_textColorOut
};
