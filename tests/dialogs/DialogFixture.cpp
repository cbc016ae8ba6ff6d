#include "tests/dialogs/DialogFixture.h"

namespace tests {

DialogFixture::DialogFixture() {
    WriteBytes(Vault() / L"session.ini", "[Session]\r\nUserName=wang\r\nPassword=p\r\nServer=s\r\n");
    SetEnvironmentVariableW(L"DURVELL_VAULT", Vault().c_str());
    SetEnvironmentVariableW(L"DURVELL_FAULT", (m_folder / L"faults.ini").c_str());
    // Neither a signing server nor a model configuration is needed to show dialogs.
    m_signOpt.Initialize(m_host);
    m_plm.Initialize(m_host);
}

DialogFixture::~DialogFixture() {
    EXPECT_TRUE(m_driver.AllRan()) << "a dialog, a box or a message that was waited for did not come";
    for (const HWND owner : m_driver.Owners())
        EXPECT_EQ(owner, m_host.Window()->m_hWnd) << "whichever window is active";
    EXPECT_TRUE(IsWindowEnabled(*m_host.Window()));
    SetEnvironmentVariableW(L"DURVELL_FAULT", nullptr);
    SetEnvironmentVariableW(L"DURVELL_VAULT", nullptr);
}

void DialogFixture::SetFault(const wchar_t* key, const wchar_t* value) const {
    WritePrivateProfileStringW(L"Fault", key, value, (m_folder / L"faults.ini").c_str());
}

void DialogFixture::ExpectBoxes(const wchar_t* owner, const std::vector<std::wstring>& texts) const {
    ASSERT_EQ(m_driver.Boxes().size(), texts.size());
    for (size_t i = 0; i < texts.size(); ++i) {
        const SeenBox& box = m_driver.Boxes()[i];
        EXPECT_EQ(ToUtf8(box.caption + L": " + box.text), ToUtf8(L"提示: " + texts[i]));
        EXPECT_EQ(ToUtf8(box.ownerCaption), ToUtf8(owner)) << ToUtf8(texts[i]);
        EXPECT_TRUE(box.information) << ToUtf8(texts[i]);
    }
}

} // namespace tests
