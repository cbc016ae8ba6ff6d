// A windowed control over the stand-ins' base, with its automation calls answered by hand.
#include "tests/framework/FakeControl.h"

#include "standins/common/ClassFactory.h"
#include "standins/common/OleControl.h"

#include <cmath>
#include <string>

namespace {

const CLSID kFakeControl = {0x7B0C5A06, 0x3C0E, 0x4B7C, {0x9E, 0x36, 0x0F, 0x5B, 0x6A, 0x0D, 0x9E, 0x02}};

class FakeControl : public standins::OleControl {
public:
    STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
                        EXCEPINFO* info, UINT*) override {
        const VARIANT* args = params->rgvarg; // last first
        switch (member) {
        case FakeJoin: // text, number, factor, yes -> "text:number:product:yes"
            if (params->cArgs != 4) return DISP_E_BADPARAMCOUNT;
            return standins::GiveText(*result,
                                      args[3].bstrVal + (L":" + std::to_wstring(args[2].lVal)) + L":" +
                                          std::to_wstring(std::lround(args[1].dblVal * args[2].lVal)) + L":" +
                                          std::to_wstring(args[0].boolVal));
        case FakeNumber:
            if (flags & DISPATCH_PROPERTYGET) return standins::GiveLong(*result, m_number);
            if (params->cNamedArgs != 1 || params->rgdispidNamedArgs[0] != DISPID_PROPERTYPUT)
                return DISP_E_PARAMNOTOPTIONAL;
            m_number = args[0].lVal;
            return S_OK;
        case FakeFail:
            info->wCode = 1001;
            info->bstrDescription = SysAllocString(L"描述");
            info->bstrSource = SysAllocString(L"fake");
            return DISP_E_EXCEPTION;
        case FakeName:
            return standins::GiveText(*result, L"名");
        default:
            return DISP_E_MEMBERNOTFOUND;
        }
    }

protected:
    const CLSID& ClassId() const override { return kFakeControl; }
    const standins::DispatchTable& Members() const override {
        static const standins::DispatchTable none;
        return none;
    }
    LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    void DrawContent(HDC, const RECT&) override {}

private:
    long m_number = 0;
};

} // namespace

FakeControlClass::FakeControlClass() {
    _com_ptr_t<_com_IIID<IUnknown, &IID_IUnknown>> factory;
    standins::MakeFactory<FakeControl>(IID_PPV_ARGS(&factory));
    CoRegisterClassObject(kFakeControl, factory, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &m_dwCookie);
}

FakeControlClass::~FakeControlClass() {
    CoRevokeClassObject(m_dwCookie);
}

long FakeControlClass::LiveObjects() {
    return standins::g_liveCount - 1; // the factory
}
