// Activation of a control by a container that refuses, or that destroys its window first.
#include <windows.h>
#include <ole2.h>
#include <comdef.h>
#include <string>
#include <gtest/gtest.h>

#include "standins/common/ComObject.h"
#include "ui/DwgViewerIds.h"

namespace {

class Container final : public standins::ComObject<IOleClientSite, IOleInPlaceSite> {
public:
    STDMETHODIMP SaveObject() override { return E_NOTIMPL; }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    STDMETHODIMP GetContainer(IOleContainer**) override { return E_NOTIMPL; }
    STDMETHODIMP ShowObject() override { return S_OK; }
    STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
    STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }
    STDMETHODIMP GetWindow(HWND* window) override {
        *window = m_window;
        return S_OK;
    }
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP CanInPlaceActivate() override { return m_allows ? S_OK : S_FALSE; }
    STDMETHODIMP OnInPlaceActivate() override { return Told(L"active "); }
    STDMETHODIMP OnUIActivate() override { return Told(L"focus "); }
    STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT position,
                                  LPRECT clip, LPOLEINPLACEFRAMEINFO) override {
        *frame = nullptr;
        *document = nullptr;
        *position = *clip = {0, 0, 100, 100};
        return S_OK;
    }
    STDMETHODIMP Scroll(SIZE) override { return E_NOTIMPL; }
    STDMETHODIMP OnUIDeactivate(BOOL) override { return Told(L"unfocus "); }
    STDMETHODIMP OnInPlaceDeactivate() override { return Told(L"inactive "); }
    STDMETHODIMP DiscardUndoState() override { return E_NOTIMPL; }
    STDMETHODIMP DeactivateAndUndo() override { return E_NOTIMPL; }
    STDMETHODIMP OnPosRectChange(LPCRECT) override { return S_OK; }

    void MakeWindow() {
        m_window = CreateWindowExW(0, L"STATIC", nullptr, WS_POPUP | WS_VISIBLE, 0, 0, 100, 100, nullptr,
                                   nullptr, nullptr, nullptr);
    }

    bool m_allows = true;
    HWND m_window = nullptr;
    std::wstring m_told;

private:
    HRESULT Told(const wchar_t* what) {
        m_told += what;
        return S_OK;
    }
};

class Activation : public testing::Test {
protected:
    Activation() {
        EXPECT_EQ(S_OK, m_control.CreateInstance(varnoke::kDwgViewerClass));
        EXPECT_EQ(S_OK,
                  m_control->QueryInterface(IID_IOleInPlaceObject, reinterpret_cast<void**>(&m_inPlace)));
        m_site->MakeWindow();
        m_control->SetClientSite(m_site);
    }
    ~Activation() override {
        m_inPlace->InPlaceDeactivate();
        m_control->SetClientSite(nullptr);
        DestroyWindow(m_site->m_window);
        EXPECT_EQ(0u, m_site->Release()) << "the control still holds its container";
    }
    HRESULT Do(LONG verb) { return m_control->DoVerb(verb, nullptr, m_site, 0, m_site->m_window, nullptr); }

    Container* const m_site = new Container();
    _com_ptr_t<_com_IIID<IOleObject, &IID_IOleObject>> m_control;
    _com_ptr_t<_com_IIID<IOleInPlaceObject, &IID_IOleInPlaceObject>> m_inPlace;
};

TEST_F(Activation, Refused_LeavesNothingToDeactivate) {
    m_site->m_allows = false;
    EXPECT_EQ(E_FAIL, Do(OLEIVERB_SHOW));
    EXPECT_EQ(S_OK, m_inPlace->InPlaceDeactivate());
    EXPECT_EQ(L"", m_site->m_told);
}

TEST_F(Activation, WindowGoneWithItsParent_ActivationsStayInPairs) {
    EXPECT_EQ(S_OK, Do(OLEIVERB_UIACTIVATE));
    DestroyWindow(m_site->m_window);
    m_site->m_allows = false;
    EXPECT_EQ(E_FAIL, Do(OLEIVERB_UIACTIVATE));
    EXPECT_EQ(S_OK, Do(OLEIVERB_HIDE));
    EXPECT_EQ(L"active focus unfocus inactive ", m_site->m_told);

    m_site->MakeWindow();
    m_site->m_allows = true;
    EXPECT_EQ(S_OK, Do(OLEIVERB_UIACTIVATE));
    EXPECT_EQ(L"active focus unfocus inactive active focus ", m_site->m_told);
}

} // namespace
