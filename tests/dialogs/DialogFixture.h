// A host with its main window, settings file and server folder, for tests that show dialogs.
#pragma once
#include <afxwin.h>
#include <gtest/gtest.h>
#include "varnoke/PLMInteract.h"
#include "varnoke/SignOpt.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/HostWindow.h"
#include "tests/support/ObjectCounts.h"
#include "tests/support/SettingsFile.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TestClass.h"
#include "tests/support/Text.h"

namespace tests {

// A control that is not installed.
struct BrokenClass final : TestClass {
    using TestClass::TestClass;
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID, void** object) override {
        *object = nullptr;
        return REGDB_E_CLASSNOTREG;
    }
};

class DialogFixture : public testing::Test {
protected:
    DialogFixture();
    ~DialogFixture() override;

    std::filesystem::path Vault() const { return m_folder / L"vault"; }
    void SetFault(const wchar_t* key, const wchar_t* value) const;
    // Expects exactly these messages to have been shown, each in the library's own box, owned by the
    // dialog of that caption.
    void ExpectBoxes(const wchar_t* owner, const std::vector<std::wstring>& texts) const;

    // The colours are not drawn while another program is active.
    static void ExpectRedrawOnActivation(HWND dialog, int control) {
        ValidateRect(GetDlgItem(dialog, control), nullptr);
        SendMessageW(dialog, WM_ACTIVATE, WA_ACTIVE, 0);
        EXPECT_TRUE(GetUpdateRect(GetDlgItem(dialog, control), nullptr, FALSE));
    }

    TempFolder m_folder;
    SettingsFile m_settings;
    HostWindow m_host, m_active;
    DialogDriver m_driver;
    CSignOpt m_signOpt;
    CPLMInteract m_plm;
};

} // namespace tests
