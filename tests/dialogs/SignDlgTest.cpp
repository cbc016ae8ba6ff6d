// The sign dialog, shown by CSignOpt::GetSignInfo.
#include "tests/dialogs/DialogFixture.h"
#include <commctrl.h>
#include "neighbours/DwgViewerIds.h"

namespace {

using namespace tests;

enum { Confirm = 4001, Dismiss = 4002, User = 4023, Role = 4025, Seal = 4027, Time = 4031 };
enum { Format = 4033, Location = 4035, Size = 4037, Color = 4039 };
enum { Current = 4042, Opened = 4043, All = 4044, Preview = 4045 };

class SignDlg : public DialogFixture {
protected:
    ~SignDlg() override {
        if (m_info) Cmn_ReleaseSignInfo(m_info);
    }
    long Sign(long selectable, DialogDriver::Script script) {
        m_driver.Next(std::move(script));
        return m_signOpt.GetSignInfo(Text(L"a.dwg"), selectable, Text(L"审核"), &m_info);
    }
    // Opens the dialog for a script and dismisses it.
    void Look(long selectable, const DialogDriver::Script& script) {
        EXPECT_EQ(0, Sign(selectable, [&](HWND dialog) {
                      script(dialog);
                      Click(dialog, Dismiss);
                  }));
        EXPECT_EQ(nullptr, m_info);
    }
    static std::wstring Joined(const std::vector<std::wstring>& texts) {
        std::wstring joined;
        for (const std::wstring& text : texts)
            joined += text + L" ";
        return joined;
    }
    // Checked and enabled state of the three scope boxes, narrowest first: "C" checked, "c" checked and
    // disabled, "E" enabled, "e" disabled.
    static std::string Scope(HWND dialog) {
        std::string state;
        for (const int box : {Current, Opened, All}) {
            const char letter = Checked(dialog, box) ? 'C' : 'E';
            state += Enabled(dialog, box) ? letter : static_cast<char>(letter + 32);
        }
        return state;
    }

    SSignInfo* m_info = nullptr;
};

TEST_F(SignDlg, Open_WithoutSettingsShowsTheDefaults) {
    Look(0, [](HWND dialog) {
        EXPECT_EQ(L"YYYY-MM-DD YYYY年-MM月-DD日 YYYY/MM/DD YYYY年/MM月/DD日 YYYY.MM.DD YYYY年.MM月.DD日 ",
                  Joined(Items(dialog, Format)));
        EXPECT_EQ(L"左上 左中 左下 中上 中中 中下 右上 右中 右下 ", Joined(Items(dialog, Location)));
        EXPECT_EQ(L"8 9 10 11 12 14 16 18 20 22 24 26 28 36 48 72 ", Joined(Items(dialog, Size)));
        EXPECT_EQ(L"RGB(000, 000, 000) RGB(255, 000, 000) RGB(000, 255, 000) RGB(000, 000, 255) "
                  L"RGB(255, 255, 255) RGB(000, 000, 000) ",
                  Joined(Items(dialog, Color)));
        for (const int list : {Format, Location, Size, Color}) // though the default colour is white
            EXPECT_EQ(0, Selection(dialog, list)) << list;
        EXPECT_EQ("ccc", Scope(dialog));
        SYSTEMTIME now, shown;
        GetLocalTime(&now);
        SendDlgItemMessageW(dialog, Time, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&shown));
        EXPECT_EQ(now.wDay, shown.wDay);
        ExpectRedrawOnActivation(dialog, Color);
    });
    EXPECT_FALSE(std::filesystem::exists(m_settings.Path())) << "cancelling writes nothing";
}

TEST_F(SignDlg, Open_UnknownUserIsTheLogonName) {
    std::filesystem::remove(Vault() / L"session.ini");
    wchar_t logon[256];
    DWORD size = 256;
    GetUserNameW(logon, &size);
    Look(0, [&](HWND dialog) {
        EXPECT_EQ(logon, TextOf(dialog, User));
        EXPECT_EQ(logon + std::wstring(L"_审核"), TextOf(dialog, Seal));
    });
}

TEST_F(SignDlg, Open_ShowsStoredChoices) {
    struct {
        const wchar_t *key, *value;
        int combo;
        int selected;
        size_t items;
    } const cases[] = {
        {L"DateStyle", L"YYYY/MM/DD", Format, 2, 6}, {L"DateStyle", L"DD.MM.YYYY", Format, 0, 7},
        {L"DateLocation", L"右下", Location, 8, 9},  {L"DateFontSize", L"72", Size, 15, 16},
        {L"DateFontSize", L"15", Size, 0, 17},       {L"DateFontSize", L"0", Size, 0, 16},
    };
    for (const auto& test : cases) {
        m_settings.Remove();
        m_settings.Set(L"SignDate", test.key, test.value);
        Look(1, [&](HWND dialog) {
            EXPECT_EQ(test.selected, Selection(dialog, test.combo)) << ToUtf8(test.value);
            EXPECT_EQ(test.items, Items(dialog, test.combo).size()) << ToUtf8(test.value);
        });
    }
}

TEST_F(SignDlg, Open_UnknownLocationResetsTheDateFormat) {
    m_settings.Set(L"SignDate", L"DateStyle", L"YYYY/MM/DD");
    m_settings.Set(L"SignDate", L"DateLocation", L"中");
    Look(0, [](HWND dialog) {
        EXPECT_EQ(0, Selection(dialog, Location));
        EXPECT_EQ(0, Selection(dialog, Format));
    });
}

TEST_F(SignDlg, Scope_ClicksKeepNarrowerScopesIncluded) {
    for (const auto& [stored, state] :
         {std::pair{L"1", "CEE"}, {L"2", "cCE"}, {L"3", "ccC"}, {L"4", "CEE"}}) {
        m_settings.Set(L"SignScope", L"Scope", stored);
        Look(1, [state = state](HWND dialog) { EXPECT_EQ(state, Scope(dialog)); });
    }
    Look(1, [](HWND dialog) {
        SetFocus(GetDlgItem(dialog, All));
        MSG down = {GetFocus(), WM_KEYDOWN, VK_DOWN, 0, 0, {}};
        IsDialogMessageW(dialog, &down);
        EXPECT_EQ(Current, GetDlgCtrlID(GetFocus())) << "one group for the arrow keys";
        const std::pair<int, const char*> clicks[] = {{Current, "CEE"}, {Opened, "cCE"}, {All, "ccC"},
                                                      {All, "cCE"},     {Opened, "CEE"}, {All, "ccC"}};
        for (const auto& [box, state] : clicks) {
            Click(dialog, box);
            EXPECT_EQ(state, Scope(dialog)) << box;
        }
    });
}

TEST_F(SignDlg, Confirm_TellsTheFirstFaultAndStaysOpen) {
    // Each fault is found before the ones that were made earlier. Without a text the selection is taken away.
    const struct {
        int control;
        const wchar_t *text, *message;
    } faults[] = {
        {Color, nullptr, L"文字颜色非法。"},
        {Size, L"-3", L"字体大小不能小于等于零。"},
        {Size, L"x9", L"字体大小不能小于等于零。"},
        {Size, L"", L"字体大小不能为空。"},
        {Location, nullptr, L"时间位置不能为空。"},
        {Format, L"YYYY-MM", L"时间格式没有日期。"},
        {Format, L"YYYY", L"时间格式没有月份。"},
        {Format, L"YY-MM-DD", L"时间格式没有年份。"},
        {Format, L"", L"时间格式不能为空。"},
        {Seal, L"", L"印章名不能为空。"},
        {Role, L"", L"角色不能为空。"},
        {User, L"", L"用户名不能为空。"},
    };
    std::vector<std::wstring> messages = {L"没有指定签名范围。"};
    Look(1, [&](HWND dialog) {
        CheckDlgButton(dialog, Current, BST_UNCHECKED);
        Click(dialog, Confirm);
        for (const auto& fault : faults) {
            if (fault.text)
                SetDlgItemTextW(dialog, fault.control, fault.text);
            else
                SendDlgItemMessageW(dialog, fault.control, CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
            Click(dialog, Confirm);
            messages.push_back(fault.message);
        }
    });
    ExpectBoxes(L"签名", messages);
    EXPECT_FALSE(std::filesystem::exists(m_settings.Path()));
}

TEST_F(SignDlg, Confirm_AddsTheSettingsThatAreNotShown) {
    const wchar_t* const locations[][3] = {
        {L"SignLocation", L"LocationStyle", L"2"},      {L"SignLocation", L"LocationXCheck", L"3.5"},
        {L"SignLocation", L"LocationYCheck", L"4.5"},   {L"SignDateLocation", L"LocationStyle", L"5"},
        {L"SignDateLocation", L"LocationXCheck", L"6"}, {L"SignDateLocation", L"LocationYCheck", L"7"}};
    for (const auto& [section, key, value] : locations)
        m_settings.Set(section, key, value);
    ASSERT_EQ(1, Sign(1, [](HWND) { PostMessageW(GetFocus(), WM_KEYDOWN, VK_RETURN, 0); }));
    const SSignInfo& i = *m_info;
    EXPECT_TRUE(i.m_nLocationStyle == 2 && i.m_dLocationXCheck == 3.5 && i.m_dLocationYCheck == 4.5);
    EXPECT_TRUE(i.m_nDateLocationStyle == 5 && i.m_dDateLocationXCheck == 6 && i.m_dDateLocationYCheck == 7);
    EXPECT_TRUE(i.m_dDateFontSize == 8 && i.m_nDateTextColor == 0) << "as confirmed and stored";
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    EXPECT_EQ(i.m_strTempDrawing, folder + CString(L"wang_审核.dwg"));
}

TEST_F(SignDlg, Confirm_HandsOutAndStoresTheChoices) {
    const long result = Sign(1, [](HWND dialog) {
        const SYSTEMTIME july = {2015, 7, 0, 5, 23, 59, 0, 0};
        SendDlgItemMessageW(dialog, Time, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&july));
        SetDlgItemTextW(dialog, Format, L"YYYY-M-D 100%d");
        SetDlgItemTextW(dialog, Size, L"13pt");
        Choose(dialog, Location, 4);
        Choose(dialog, Color, 3);
        Click(dialog, Opened);
        SendMessageW(dialog, WM_COMMAND, IDOK, 0); // as Enter does in an edit box
    });
    ASSERT_EQ(1, result);
    const SSignInfo& i = *m_info;
    EXPECT_EQ(i.m_strUserName + L"|" + i.m_strRole + L"|" + i.m_strSealName, L"wang|审核|wang_审核");
    EXPECT_EQ(i.m_strDlgDateText + L"|" + i.m_strDateText, L"2015-7-5 100%d|2015-7-5 100%d");
    EXPECT_EQ(i.m_strDlgDateFormat + L"|" + i.m_strDlgDateLocation, L"YYYY-M-D 100%d|中中");
    EXPECT_EQ(i.m_strDlgDateFontSize + L"|" + i.m_strDlgDateTextColor, L"13pt|16711680");
    EXPECT_EQ(i.m_nScope, 2);
    const wchar_t* const stored[][2] = {{L"DateStyle", L"YYYY-M-D 100%d"},
                                        {L"DateLocation", L"中中"},
                                        {L"DateFontSize", L"13"},
                                        {L"DateTextColor", L"16711680"}};
    for (const auto& [key, value] : stored)
        EXPECT_EQ(m_settings.Get(L"SignDate", key), value);
    EXPECT_EQ(m_settings.Get(L"SignScope", L"Scope"), L"2");
}

TEST_F(SignDlg, Confirm_TellsWhenTheChoicesAreNotStored) {
    m_settings.Set(L"SignScope", L"Scope", L"2");
    SetFileAttributesW(m_settings.Path().c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(1, Sign(1, [](HWND dialog) { Click(dialog, Confirm); }));
    SetFileAttributesW(m_settings.Path().c_str(), FILE_ATTRIBUTE_NORMAL);
    ExpectBoxes(L"签名", {L"设置未能保存。"});
}

TEST_F(SignDlg, Confirm_FixedScopeIsAllDocuments) {
    m_settings.Set(L"SignScope", L"Scope", L"1");
    ASSERT_EQ(1, Sign(0, [](HWND dialog) { Click(dialog, Confirm); }));
    EXPECT_EQ(m_info->m_nScope, 3);
    EXPECT_EQ(m_settings.Get(L"SignScope", L"Scope"), L"3");
}

TEST_F(SignDlg, Preview_StaysEmptyWithoutItsViewer) {
    const BrokenClass viewer(varnoke::kDwgViewerClass);
    EXPECT_EQ(1, Sign(1, [](HWND dialog) {
                  EXPECT_EQ(9u, Items(dialog, Location).size()) << "the rest is filled all the same";
                  Click(dialog, Confirm);
              }));
}

TEST_F(SignDlg, Preview_ShowsTheSealDrawing) {
    // A drawing with nothing but a preview: a red picture of 2 x 1 pixels.
    std::string drawing(
        "AC1018\0\0\0\0\0\0\0\x11\0\0\0\x1F\x25\x6D\x07\xD4\x36\x28\x28\x9D\x57\xCA\x3F\x9D\x44\x10\x2B"
        "\x3A\0\0\0\1\2\x2F\0\0\0\x30\0\0\0\x28\0\0\0\2\0\0\0\1\0\0\0\1\0\x18",
        63);
    drawing.resize(47 + 40);
    drawing.append("\0\0\xff\0\0\xff\0\0", 8);
    WriteBytes(std::filesystem::temp_directory_path() / L"wang_审核.dwg", drawing);
    Look(0, [](HWND dialog) {
        const HWND preview = GetDlgItem(dialog, Preview);
        RedrawWindow(preview, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        RECT bounds;
        GetClientRect(preview, &bounds);
        const HDC dc = GetDC(preview);
        EXPECT_EQ(RGB(255, 0, 0), GetPixel(dc, bounds.right / 2, bounds.bottom / 2));
        ReleaseDC(preview, dc);
    });
    std::filesystem::remove(std::filesystem::temp_directory_path() / L"wang_审核.dwg");
}

} // namespace
