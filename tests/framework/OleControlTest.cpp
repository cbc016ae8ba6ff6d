// Dialogs with ActiveX controls: what a template makes, places whose control is missing, errors of calls.
#include "tests/framework/ScriptedDialog.h"

#include <afxdisp.h>
#include <gtest/gtest.h>

#include "standins/common/ClassFactory.h"
#include "standins/common/OleControl.h"

namespace {

const DISPID kFakeName = 1;
const CLSID kFakeControl = {0x7B0C5A06, 0x3C0E, 0x4B7C, {0x9E, 0x36, 0x0F, 0x5B, 0x6A, 0x0D, 0x9E, 0x02}};

// A control that a test dialog names; its one member gives a text.
class FakeControl : public standins::OleControl {
public:
    STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                        UINT*) override {
        return member == kFakeName ? base::GiveText(*result, L"名") : DISP_E_MEMBERNOTFOUND;
    }

protected:
    const CLSID& ClassId() const override { return kFakeControl; }
    const base::DispatchTable& Members() const override {
        static const base::DispatchTable none;
        return none;
    }
    LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override {
        return DefWindowProcW(window, message, wParam, lParam);
    }
};

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

#ifndef VARNOKE_MFC_DLL
// False when windows that lie above it clip it away completely.
bool CanBeSeen(CWnd& window) {
    CRect box;
    CClientDC dc(&window);
    return ::GetClipBox(dc, box) != NULLREGION && !box.IsRectEmpty();
}
#endif

class OleControl : public testing::Test {
protected:
    OleControl() {
        AfxEnableControlContainer();
        _com_ptr_t<_com_IIID<IUnknown, &IID_IUnknown>> factory;
        standins::MakeFactory<FakeControl>(IID_PPV_ARGS(&factory));
        ::CoRegisterClassObject(kFakeControl, factory, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &m_dwCookie);
    }
    ~OleControl() override {
        EXPECT_EQ(1, base::g_liveCount) << "the factory, but no control any more";
        ::CoRevokeClassObject(m_dwCookie);
    }

    // Runs the script in the dialog with the control of that id attached.
    void Run(UINT nTemplate, int nID, std::function<void(CWnd&, CDataExchange&)> script) {
        CScriptedDialog dialog(nTemplate);
        CWnd control;
        dialog.m_script = [&](CScriptedDialog& d) {
            d.EndDialog(1); // whatever the script throws
            CDataExchange dx(&d, FALSE);
            DDX_Control(&dx, nID, control);
            script(control, dx);
        };
        EXPECT_EQ(1, dialog.DoModal());
        EXPECT_EQ(nullptr, control.m_hWnd);
    }

private:
    DWORD m_dwCookie = 0;
};

} // namespace

#ifndef VARNOKE_MFC_DLL // which doesn't open the dialog then; the subset leaves the rest of it usable
TEST_F(OleControl, Unregistered_LeavesAnEmptyPlace) {
    Run(IDD_UNKNOWN, IDC_UNKNOWN_CONTROL, [](CWnd& control, CDataExchange&) {
        EXPECT_EQ(OLE_E_BLANK, ThrownStatus([&] { control.SetProperty(kFakeName, VT_I4, 1L); }));
        const HWND hDialog = ::GetParent(control);
        CRect place;
        control.GetClientRect(place);
        EXPECT_GT(place.Width(), 50);
        EXPECT_EQ(control.m_hWnd, ::GetNextDlgTabItem(hDialog, ::GetDlgItem(hDialog, IDC_NAME), FALSE))
            << "the tab order is the template's";
    });
}

// With MFC the fake control has no window of its own; the host's pictures show the preview.
TEST_F(OleControl, GroupBox_CoversTheControlsBehindIt) {
    CWnd covered;
    Run(IDD_CONTROLS, IDC_FAKE_CONTROL, [&](CWnd& control, CDataExchange& dx) {
        DDX_Control(&dx, IDC_COVERED_CONTROL, covered);
        EXPECT_TRUE(CanBeSeen(control));
        EXPECT_FALSE(CanBeSeen(covered));
    });
}
#endif

TEST_F(OleControl, Failures_AreExceptions) {
    Run(IDD_CONTROLS, IDC_FAKE_CONTROL, [](CWnd& control, CDataExchange& dx) {
        long nNumber = 0;
        EXPECT_EQ(DISP_E_MEMBERNOTFOUND, ThrownStatus([&] {
                      control.InvokeHelper(99, DISPATCH_METHOD, VT_EMPTY, nullptr, nullptr);
                  }));
        EXPECT_EQ(DISP_E_TYPEMISMATCH,
                  ThrownStatus([&] { control.GetProperty(kFakeName, VT_I4, &nNumber); }));
        CWnd unlisted; // the initialisation resource leaves it out
        EXPECT_THROW(DDX_Control(&dx, IDC_UNLISTED_CONTROL, unlisted), CNotSupportedException*);
    });
}
