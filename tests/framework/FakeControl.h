// A control that a test dialog names; one of its members gives a text, another fails.
#pragma once

#include <string>

#include "standins/common/ClassFactory.h"
#include "standins/common/OleControl.h"

enum FakeMember { FakeName = 1, FakeFail = 2 };

const CLSID kFakeControl = {0x7B0C5A06, 0x3C0E, 0x4B7C, {0x9E, 0x36, 0x0F, 0x5B, 0x6A, 0x0D, 0x9E, 0x02}};

class FakeControl : public standins::OleControl {
public:
    STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO* info,
                        UINT*) override {
        if (member == FakeName) return base::GiveText(*result, L"名");
        if (member != FakeFail) return DISP_E_MEMBERNOTFOUND;
        info->wCode = 1001;
        info->bstrDescription = SysAllocString(L"描述");
        info->bstrSource = SysAllocString(L"fake");
        return DISP_E_EXCEPTION;
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

// Controls of this class can be created from construction to destruction.
class FakeControlClass {
public:
    FakeControlClass() {
        _com_ptr_t<_com_IIID<IUnknown, &IID_IUnknown>> factory;
        standins::MakeFactory<FakeControl>(IID_PPV_ARGS(&factory));
        CoRegisterClassObject(kFakeControl, factory, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &m_dwCookie);
    }
    ~FakeControlClass() { CoRevokeClassObject(m_dwCookie); }

    static long LiveObjects() { return base::g_liveCount - 1; } // without the factory

private:
    DWORD m_dwCookie = 0;
};
