// Dialogs with ActiveX controls: what a template makes, errors of calls.
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

    DWORD m_dwCookie = 0;
};

} // namespace

TEST_F(OleControl, Failures_AreExceptions) {
    CScriptedDialog dialog(IDD_CONTROLS);
    CWnd control, unlisted; // the initialisation resource leaves the second one out
    dialog.m_script = [&](CScriptedDialog& d) {
        d.EndDialog(1); // whatever is thrown
        CDataExchange dx(&d, FALSE);
        DDX_Control(&dx, IDC_FAKE_CONTROL, control);
        long nNumber = 0;
        EXPECT_EQ(DISP_E_MEMBERNOTFOUND, ThrownStatus([&] {
                      control.InvokeHelper(99, DISPATCH_METHOD, VT_EMPTY, nullptr, nullptr);
                  }));
        EXPECT_EQ(DISP_E_TYPEMISMATCH,
                  ThrownStatus([&] { control.GetProperty(kFakeName, VT_I4, &nNumber); }));
        EXPECT_THROW(DDX_Control(&dx, IDC_UNLISTED_CONTROL, unlisted), CNotSupportedException*);
    };
    EXPECT_EQ(1, dialog.DoModal());
    EXPECT_EQ(nullptr, control.m_hWnd);
}
