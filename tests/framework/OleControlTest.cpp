// Dialogs with ActiveX controls: calls by identifier, errors, and places whose control is missing.
#include "tests/framework/ScriptedDialog.h"

#include <afxdisp.h>
#include <gtest/gtest.h>

#include "tests/framework/FakeControl.h"

namespace {

// What the call throws: the status of a COleException, else S_OK.
template <class TCall>
SCODE ThrownStatus(TCall call) {
    try {
        call();
    } catch (COleException* e) {
        const SCODE sc = e->m_sc;
        e->Delete();
        return sc;
    }
    return S_OK;
}

class OleControl : public testing::Test {
protected:
    void SetUp() override { AfxEnableControlContainer(); }

    // Runs the script in the dialog with the control of that id attached.
    void Run(int nID, std::function<void(CWnd&)> script) {
        CScriptedDialog dialog(IDD_CONTROLS);
        CWnd control;
        dialog.m_script = [&](CScriptedDialog& d) {
            d.EndDialog(1); // whatever the script throws
            CDataExchange dx(&d, FALSE);
            DDX_Control(&dx, nID, control);
            script(control);
        };
        EXPECT_EQ(1, dialog.DoModal());
        EXPECT_EQ(nullptr, control.m_hWnd);
    }
};

} // namespace

TEST_F(OleControl, Unregistered_LeavesAnEmptyPlace) {
    Run(IDC_UNKNOWN_CONTROL, [](CWnd& control) {
        EXPECT_EQ(nullptr, control.GetControlUnknown());
        EXPECT_EQ(OLE_E_BLANK, ThrownStatus([&] { control.SetProperty(FakeNumber, VT_I4, 1L); }));
        CWnd* pDialog = control.GetParent();
        CRect place;
        control.GetClientRect(place);
        EXPECT_GT(place.Width(), 50);
        const HWND hBefore = ::GetDlgItem(*pDialog, IDC_BEFORE);
        EXPECT_EQ(control.m_hWnd, ::GetNextDlgTabItem(*pDialog, hBefore, FALSE))
            << "the tab order is the template's";
        EXPECT_EQ(nullptr, pDialog->GetControlUnknown()) << "a plain window";
    });
}

TEST_F(OleControl, Members_AreCalledByIdentifier) {
    const FakeControlClass registered;
    Run(IDC_FAKE_CONTROL, [](CWnd& control) {
        ASSERT_NE(nullptr, control.GetControlUnknown());
        static const BYTE parms[] = VTS_BSTR VTS_I4 VTS_R8 VTS_BOOL;
        CString text;
        control.InvokeHelper(FakeJoin, DISPATCH_METHOD, VT_BSTR, &text, parms, L"文", 8L, 2.5, TRUE);
        EXPECT_STREQ(L"文:8:20:-1", text);
        control.SetProperty(FakeNumber, VT_I4, 42L);
        long nNumber = 0;
        control.GetProperty(FakeNumber, VT_I4, &nNumber);
        EXPECT_EQ(42, nNumber);
        control.GetProperty(FakeNumber, VT_BSTR, &text); // converted
        EXPECT_STREQ(L"42", text);
    });
    EXPECT_EQ(0, FakeControlClass::LiveObjects());
}

TEST_F(OleControl, Failures_AreExceptions) {
    const FakeControlClass registered;
    Run(IDC_FAKE_CONTROL, [](CWnd& control) {
        const auto call = [&](DISPID member) {
            control.InvokeHelper(member, DISPATCH_METHOD, VT_EMPTY, nullptr, nullptr);
        };
        EXPECT_EQ(DISP_E_MEMBERNOTFOUND, ThrownStatus([&] { call(99); }));
        EXPECT_EQ(DISP_E_TYPEMISMATCH, ThrownStatus([&] {
                      long nNumber = 0;
                      control.InvokeHelper(FakeName, DISPATCH_PROPERTYGET, VT_I4, &nNumber, nullptr);
                  }));
        try {
            call(FakeFail);
            ADD_FAILURE() << "no exception";
        } catch (COleDispatchException* e) {
            EXPECT_EQ(1001, e->m_wCode);
            EXPECT_STREQ(L"描述", e->m_strDescription);
            EXPECT_STREQ(L"fake", e->m_strSource);
            e->Delete();
        }
    });
    EXPECT_EQ(0, FakeControlClass::LiveObjects());
}
