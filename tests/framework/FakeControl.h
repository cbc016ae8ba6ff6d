// A control that a test dialog names; its one member gives a text.
#pragma once

#include "standins/common/ClassFactory.h"
#include "standins/common/OleControl.h"

const DISPID kFakeName = 1;
const CLSID kFakeControl = {0x7B0C5A06, 0x3C0E, 0x4B7C, {0x9E, 0x36, 0x0F, 0x5B, 0x6A, 0x0D, 0x9E, 0x02}};

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
