// The five dialogs as their templates lay them out: as layouts.txt has them.
#include "tests/dialogs/DialogFixture.h"
#include "tests/model/ModelFixture.h"
#include "tests/plm/PlmFixture.h"

namespace {

using namespace tests;

std::wstring ClassAndText(HWND window) {
    wchar_t name[64], text[64];
    GetClassNameW(window, name, 64);
    GetWindowTextW(window, text, 64);
    if (!wcscmp(name, L"SysDateTimePick32")) *text = 0; // today
    return std::wstring(name) + L" '" + text + L"'";
}

// A line of "font, width height" for the dialog and for each control, in the order of keyboard and screen
// readers, of "id class 'text' left,top,width,height style"; lengths in dialog units, the style's low word in
// hexadecimal. A list's height is that of its closed box, which is the system's.
std::wstring Described(HWND dialog) {
    RECT base = {0, 0, 4, 8}, bounds;
    MapDialogRect(dialog, &base);
    LOGFONTW font = {};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(dialog, WM_GETFONT, 0, 0)), sizeof font, &font);
    GetClientRect(dialog, &bounds);
    const auto units = [&](LONG x, LONG y) {
        return std::to_wstring(MulDiv(x, 4, base.right)) + L"," + std::to_wstring(MulDiv(y, 8, base.bottom));
    };
    std::wstring text = ClassAndText(dialog) + L" " + font.lfFaceName + L" " +
                        std::to_wstring(MulDiv(-font.lfHeight, 72, 96)) + L" " +
                        units(bounds.right, bounds.bottom) + L"\n";
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        GetWindowRect(child, &bounds);
        MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&bounds), 2);
        const LONG style = GetWindowLongW(child, GWL_STYLE);
        wchar_t bits[32];
        swprintf(bits, 32, L" %X%ls%ls\n", style & 0xffff, style & WS_VSCROLL ? L" scrolls" : L"",
                 style & WS_VISIBLE ? L"" : L" hidden");
        text += std::to_wstring(GetDlgCtrlID(child)) + L" " + ClassAndText(child) + L" " +
                units(bounds.left, bounds.top) + L"," +
                units(bounds.right - bounds.left, bounds.bottom - bounds.top) + bits;
    }
    return text;
}

class Layout : public DialogFixture {
protected:
    // The next dialog is to be as the block of layouts.txt that begins with its title.
    void ExpectNext(const char* title) {
        std::string all = "\n" + ReadBytes(LAYOUTS) + "\n";
        all.erase(0, all.find(std::string("\n#32770 '") + title) + 1);
        m_driver.Next([expected = all.substr(0, all.find("\n\n") + 1)](HWND dialog) {
            EXPECT_EQ(expected, ToUtf8(Described(dialog)));
            PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        });
    }
};

TEST_F(Layout, Sign) {
    ExpectNext("签名");
    SSignInfo* info = nullptr;
    m_signOpt.GetSignInfo(Text(L"a.dwg"), 0, Text(L"审核"), &info);
}

TEST_F(Layout, Option) {
    ExpectNext("选项");
    m_signOpt.SetOption();
}

TEST_F(Layout, ServerDocuments) {
    const LocalServices services("<modelconfig/>");
    m_plm.Initialize(m_host);
    ExpectNext("服务端文档列表");
    Results results;
    m_plm.StartSign(Text(Documents(L"a.dwg")), Text(m_folder.Text()), &results.login, &results.steps,
                    &results.files);
}

TEST_F(Layout, Transfers) {
    SSignFileDUL list;
    ExpectNext("下载文档");
    m_plm.DownloadDoc(&list);
    ExpectNext("上传文档");
    m_plm.UploadDoc(&list);
}

} // namespace
