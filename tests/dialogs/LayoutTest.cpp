// The five dialogs as their templates lay them out.
#include "tests/dialogs/DialogFixture.h"
#include <commctrl.h>
#include "tests/model/ModelFixture.h"
#include "tests/plm/PlmFixture.h"

namespace {

using namespace tests;

// A control's place is in dialog units; its style, what distinguishes it from others of its class.
struct Control {
    int id;
    const wchar_t* kind;
    DWORD style;
    RECT place; // left, top, width, height
    const wchar_t* text;
};
const DWORD kHidden = WS_VISIBLE; // turned round: few are hidden
const DWORD kCompared = kHidden | WS_VSCROLL | 0xffff;
const DWORD kLabel = SS_LEFT, kPathLabel = SS_NOPREFIX | SS_PATHELLIPSIS;
const DWORD kDropList = CBS_DROPDOWNLIST, kTyped = CBS_DROPDOWN | CBS_AUTOHSCROLL;
const DWORD kColors = kDropList | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;
const DWORD kLog = WS_VSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL;
const wchar_t kButton[] = L"Button", kStatic[] = L"Static", kEdit[] = L"Edit", kCombo[] = L"ComboBox";
const wchar_t kBar[] = PROGRESS_CLASSW, kOle[] = L"AtlAxWin", kPicker[] = DATETIMEPICK_CLASSW;

RECT OnScreen(HWND dialog, const RECT& units) {
    RECT place = units;
    MapDialogRect(dialog, &place);
    place.right += place.left;
    place.bottom += place.top;
    MapWindowPoints(dialog, nullptr, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

void ExpectLayout(HWND dialog, const wchar_t* title, SIZE units, const std::vector<Control>& controls) {
    wchar_t text[64];
    GetWindowTextW(dialog, text, 64);
    EXPECT_STREQ(title, text);
    RECT client;
    GetClientRect(dialog, &client);
    RECT whole = {0, 0, units.cx, units.cy};
    MapDialogRect(dialog, &whole);
    EXPECT_TRUE(EqualRect(&whole, &client)) << client.right << " " << client.bottom;
    EXPECT_EQ(DWORD(WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_SETFONT),
              GetWindowLongW(dialog, GWL_STYLE) &
                  DWORD(WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | DS_MODALFRAME | DS_SETFONT));
    LOGFONTW font = {};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(dialog, WM_GETFONT, 0, 0)), sizeof font, &font);
    EXPECT_STREQ(L"MS Shell Dlg", font.lfFaceName);
    EXPECT_EQ(-MulDiv(8, 96, 72), font.lfHeight);
    size_t count = 0;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        ++count;
    EXPECT_EQ(controls.size(), count);
    for (const Control& control : controls) {
        const HWND window = GetDlgItem(dialog, control.id);
        GetClassNameW(window, text, 64);
        EXPECT_EQ(0, _wcsicmp(control.kind, text)) << control.id;
        EXPECT_EQ(control.style, (GetWindowLongW(window, GWL_STYLE) ^ kHidden) & kCompared) << control.id;
        const RECT expected = OnScreen(dialog, control.place);
        RECT place;
        GetWindowRect(window, &place);
        if (control.kind == kCombo) {
            const LONG closed = place.bottom - place.top; // which Wine leaves out
            SendMessageW(window, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&place));
            EXPECT_NEAR(expected.bottom, place.bottom + closed, 4) << control.id;
            place.bottom = expected.bottom;
        }
        EXPECT_TRUE(EqualRect(&expected, &place))
            << control.id << ": " << place.left - expected.left << " " << place.top - expected.top << " "
            << place.right - expected.right << " " << place.bottom - expected.bottom;
        if (!control.text) continue;
        EXPECT_EQ(ToUtf8(control.text), ToUtf8(TextOf(dialog, control.id))) << control.id;
    }
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
}

Control Confirm(LONG x, LONG y) {
    return {4001, kButton, BS_DEFPUSHBUTTON, {x, y, 50, 14}, L"确定(&O)"};
}
Control Dismiss(LONG x, LONG y) {
    return {4002, kButton, BS_PUSHBUTTON, {x, y, 50, 14}, L"取消(&C)"};
}

class Layout : public DialogFixture {};

TEST_F(Layout, Sign) {
    m_driver.Next([](HWND dialog) {
        ExpectLayout(dialog, L"签名", {472, 260},
                     {{4018, kButton, BS_GROUPBOX, {4, 3, 230, 237}, L""},
                      {4019, kButton, BS_GROUPBOX, {240, 3, 228, 93}, L""},
                      {4040, kButton, BS_GROUPBOX, {240, 102, 228, 138}, L""},
                      {4022, kStatic, kLabel, {9, 14, 33, 8}, L"用户名："},
                      {4023, kEdit, ES_READONLY | ES_AUTOHSCROLL, {43, 11, 187, 14}, L"wang"},
                      {4024, kStatic, kLabel, {9, 32, 33, 8}, L"角    色："},
                      {4025, kEdit, ES_READONLY, {42, 29, 187, 14}, L"审核"},
                      {4026, kStatic, kLabel | kHidden, {9, 52, 33, 8}, L"印章名："},
                      {4027, kEdit, ES_READONLY | kHidden, {43, 50, 187, 14}, L"wang_审核"},
                      {4028, kStatic, SS_CENTER, {9, 71, 220, 8}, L"签章预览"},
                      {4045, kOle, 0, {8, 83, 221, 153}, nullptr},
                      {4030, kStatic, kLabel, {244, 14, 41, 8}, L"签名时间："},
                      {4031, kPicker, DTS_RIGHTALIGN, {286, 11, 177, 15}, nullptr},
                      {4032, kStatic, kLabel, {244, 32, 41, 8}, L"时间格式："},
                      {4033, kCombo, kTyped, {286, 29, 177, 205}, L"YYYY-MM-DD"},
                      {4038, kStatic, kLabel, {244, 48, 41, 8}, L"文字颜色："},
                      {4039, kCombo, kColors, {286, 45, 177, 157}, nullptr},
                      {4034, kStatic, kLabel | kHidden, {246, 74, 41, 8}, L"时间位置："},
                      {4035, kCombo, kDropList | kHidden, {288, 71, 177, 187}, L"左上"},
                      {4036, kStatic, kLabel | kHidden, {244, 80, 41, 8}, L"字体大小："},
                      {4037, kCombo, kTyped | kHidden, {286, 77, 177, 173}, L"8"},
                      {4041, kStatic, SS_CENTER, {244, 112, 219, 8}, L"签名范围"},
                      {4042, kButton, BS_AUTOCHECKBOX, {336, 129, 128, 10}, L"当前文档"},
                      {4043, kButton, BS_AUTOCHECKBOX, {336, 150, 128, 10}, L"已打开文档"},
                      {4044, kButton, BS_AUTOCHECKBOX, {336, 172, 128, 10}, L"所有文档"},
                      Confirm(360, 243),
                      Dismiss(418, 243)});
    });
    SSignInfo* info = nullptr;
    m_signOpt.GetSignInfo(Text(L"a.dwg"), 0, Text(L"审核"), &info);
}

TEST_F(Layout, Option) {
    m_driver.Next([](HWND dialog) {
        ExpectLayout(dialog, L"选项", {248, 49},
                     {{4049, kStatic, kLabel, {12, 14, 41, 8}, L"文字颜色："},
                      {4039, kCombo, kColors, {54, 11, 177, 157}, nullptr},
                      Confirm(127, 32),
                      Dismiss(181, 32)});
    });
    m_signOpt.SetOption();
}

TEST_F(Layout, ServerDocuments) {
    m_driver.Next([](HWND dialog) {
        ExpectLayout(dialog, L"服务端文档列表", {520, 305},
                     {{4000, kOle, 0, {7, 7, 503, 276}, nullptr}, Confirm(402, 287), Dismiss(460, 287)});
    });
    const LocalServices services("<modelconfig/>");
    m_plm.Initialize(m_host);
    Results results;
    m_plm.StartSign(Text(Documents(L"a.dwg")), Text(m_folder.Text()), &results.login, &results.steps,
                    &results.files);
}

void ExpectTransferLayout(HWND dialog, const std::wstring& verb, const int (&ids)[8]) {
    ExpectLayout(dialog, (verb + L"文档").c_str(), {316, 246},
                 {{ids[0], kButton, BS_GROUPBOX, {7, 3, 302, 51}, L""},
                  {ids[1], kStatic, kPathLabel, {11, 11, 293, 8}, (L"正在" + verb + L"：").c_str()},
                  {ids[2], kBar, 0, {11, 29, 293, 14}, L""},
                  {ids[3], kButton, BS_GROUPBOX, {7, 62, 302, 51}, L""},
                  {ids[4], kStatic, kLabel, {11, 70, 293, 8}, (verb + L"进度：").c_str()},
                  {ids[5], kBar, 0, {11, 88, 293, 14}, L""},
                  {ids[6], kButton, BS_GROUPBOX, {7, 121, 302, 112}, (L"已" + verb + L"文档").c_str()},
                  {ids[7], kEdit, kLog, {11, 130, 293, 99}, L""}});
}

TEST_F(Layout, Transfers) {
    SSignFileDUL list;
    m_driver.Next([](HWND dialog) {
        ExpectTransferLayout(dialog, L"下载", {4002, 4003, 4004, 4005, 4006, 4007, 4008, 4009});
    });
    m_plm.DownloadDoc(&list);
    m_driver.Next([](HWND dialog) {
        ExpectTransferLayout(dialog, L"上传", {4011, 4010, 4012, 4013, 4014, 4015, 4016, 4017});
    });
    m_plm.UploadDoc(&list);
}

} // namespace
