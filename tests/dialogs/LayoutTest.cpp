// The five dialogs as their templates lay them out.
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
    std::wstring text = L"\n" + ClassAndText(dialog) + L" " + font.lfFaceName + L" " +
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
    void ExpectNext(const wchar_t* description) {
        m_driver.Next([description](HWND dialog) {
            EXPECT_EQ(ToUtf8(description), ToUtf8(Described(dialog)));
            PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        });
    }
};

TEST_F(Layout, Sign) {
    ExpectNext(LR"(
#32770 '签名' MS Shell Dlg 8 472,260
4022 Static '用户名：' 9,14,33,8 0
4023 Edit 'wang' 43,11,187,14 880
4024 Static '角    色：' 9,32,33,8 0
4025 Edit '审核' 42,29,187,14 800
4026 Static '印章名：' 9,52,33,8 0 hidden
4027 Edit 'wang_审核' 43,50,187,14 800 hidden
4028 Static '签章预览' 9,71,220,8 1
4045 AtlAxWin '' 8,83,221,153 0
4018 Button '' 4,3,230,237 7
4030 Static '签名时间：' 244,14,41,8 0
4031 SysDateTimePick32 '' 286,11,177,15 20
4032 Static '时间格式：' 244,32,41,8 0
4033 ComboBox 'YYYY-MM-DD' 286,29,177,13 42
4038 Static '文字颜色：' 244,48,41,8 0
4039 ComboBox 'RGB(000, 000, 000)' 286,45,177,13 213
4034 Static '时间位置：' 246,74,41,8 0 hidden
4035 ComboBox '左上' 288,71,177,13 3 hidden
4036 Static '字体大小：' 244,80,41,8 0 hidden
4037 ComboBox '8' 286,77,177,13 42 hidden
4019 Button '' 240,3,228,93 7
4041 Static '签名范围' 244,112,219,8 1
4042 Button '当前文档' 336,129,128,10 3
4043 Button '已打开文档' 336,150,128,10 3
4044 Button '所有文档' 336,172,128,10 3
4040 Button '' 240,102,228,138 7
4001 Button '确定(&O)' 360,243,50,14 1
4002 Button '取消(&C)' 418,243,50,14 0
)");
    SSignInfo* info = nullptr;
    m_signOpt.GetSignInfo(Text(L"a.dwg"), 0, Text(L"审核"), &info);
}

TEST_F(Layout, Option) {
    ExpectNext(LR"(
#32770 '选项' MS Shell Dlg 8 248,49
4049 Static '文字颜色：' 12,14,41,8 0
4039 ComboBox 'RGB(000, 000, 000)' 54,11,177,13 213
4001 Button '确定(&O)' 127,32,50,14 1
4002 Button '取消(&C)' 181,32,50,14 0
)");
    m_signOpt.SetOption();
}

TEST_F(Layout, ServerDocuments) {
    const LocalServices services("<modelconfig/>");
    m_plm.Initialize(m_host);
    ExpectNext(LR"(
#32770 '服务端文档列表' MS Shell Dlg 8 520,305
4000 AtlAxWin '' 7,7,503,276 0
4001 Button '确定(&O)' 402,287,50,14 1
4002 Button '取消(&C)' 460,287,50,14 0
)");
    Results results;
    m_plm.StartSign(Text(Documents(L"a.dwg")), Text(m_folder.Text()), &results.login, &results.steps,
                    &results.files);
}

TEST_F(Layout, Transfers) {
    SSignFileDUL list;
    ExpectNext(LR"(
#32770 '下载文档' MS Shell Dlg 8 316,246
4003 Static '正在下载：' 11,11,293,8 8080
4004 msctls_progress32 '' 11,29,293,14 0
4002 Button '' 7,3,302,51 7
4006 Static '下载进度：' 11,70,293,8 0
4007 msctls_progress32 '' 11,88,293,14 0
4005 Button '' 7,62,302,51 7
4009 Edit '' 11,130,293,99 844 scrolls
4008 Button '已下载文档' 7,121,302,112 7
)");
    m_plm.DownloadDoc(&list);
    ExpectNext(LR"(
#32770 '上传文档' MS Shell Dlg 8 316,246
4010 Static '正在上传：' 11,11,293,8 8080
4012 msctls_progress32 '' 11,29,293,14 0
4011 Button '' 7,3,302,51 7
4014 Static '上传进度：' 11,70,293,8 0
4015 msctls_progress32 '' 11,88,293,14 0
4013 Button '' 7,62,302,51 7
4017 Edit '' 11,130,293,99 844 scrolls
4016 Button '已上传文档' 7,121,302,112 7
)");
    m_plm.UploadDoc(&list);
}

} // namespace
