// The option dialog and its colour combo box, shown by CSignOpt::SetOption.
#include "tests/dialogs/DialogFixture.h"
#include "base/Owned.h"
#include "varnoke/Cause.h"

namespace {

using namespace tests;

enum { Color = 4039, Confirm = 4001, Dismiss = 4002 };

class OptionDlg : public DialogFixture {
protected:
    long SetOption(DialogDriver::Script script) {
        m_driver.Next(std::move(script));
        return m_signOpt.SetOption();
    }
    void Store(const wchar_t* color) { m_settings.Set(L"SignDate", L"DateTextColor", color); }
    std::wstring Stored() const { return m_settings.Get(L"SignDate", L"DateTextColor"); }
    // Chooses the entry for more colours and then red, green and blue in the system's picker; cancels the
    // picker when red is negative.
    void PickMore(HWND dialog, int red, int green = 0, int blue = 0) {
        m_driver.Next([=](HWND picker) {
            EXPECT_EQ(dialog, GetWindow(picker, GW_OWNER));
            EXPECT_EQ(L"000", TextOf(picker, 706) + TextOf(picker, 707) + TextOf(picker, 708))
                << "black first";
            const std::pair<int, int> parts[] = {{706, red}, {707, green}, {708, blue}};
            for (const auto& [id, value] : parts)
                if (red >= 0) SetDlgItemTextW(picker, id, std::to_wstring(value).c_str());
            PostMessageW(picker, WM_COMMAND, red < 0 ? IDCANCEL : IDOK, 0);
        });
        Choose(dialog, Color, static_cast<int>(Items(dialog, Color).size()) - 1);
    }
};

TEST_F(OptionDlg, Open_OnlyACustomColourStaysSelected) {
    const struct {
        const wchar_t *stored, *selected;
        size_t items;
    } cases[] = {{L"2113664", L"RGB(128, 064, 032)", 7},
                 {L"-1", L"RGB(000, 000, 000)", 6},
                 {L"255", L"RGB(000, 000, 000)", 6}, // red is there, black gets selected
                 {L"16777215", L"RGB(000, 000, 000)", 6}};
    for (const auto& test : cases) {
        Store(test.stored);
        EXPECT_EQ(0, SetOption([&](HWND dialog) {
                      EXPECT_EQ(0, Selection(dialog, Color));
                      EXPECT_EQ(test.selected, Items(dialog, Color)[0]);
                      EXPECT_EQ(test.items, Items(dialog, Color).size());
                      EXPECT_EQ(16, SendDlgItemMessageW(dialog, Color, CB_GETITEMHEIGHT, 0, 0));
                      Click(dialog, Dismiss);
                  }));
        EXPECT_EQ(test.stored, Stored()) << "cancelling writes nothing";
    }
}

TEST_F(OptionDlg, Confirm_WithoutSelectionIsRefused) {
    EXPECT_EQ(0, SetOption([](HWND dialog) {
                  Choose(dialog, Color, -1);
                  Click(dialog, Confirm);
                  SendDlgItemMessageW(dialog, Color, CB_RESETCONTENT, 0, 0);
                  Click(dialog, Confirm);
                  PostMessageW(dialog, WM_CLOSE, 0, 0);
              }));
    ExpectBoxes(L"选项", {L"文字颜色非法。", L"文字颜色非法。"});
    EXPECT_EQ(L"<missing>", Stored());
}

TEST_F(OptionDlg, MoreColours_EachPickBecomesASwatch) {
    EXPECT_EQ(1, SetOption([this](HWND dialog) {
                  PickMore(dialog, 128, 64, 32);
                  EXPECT_EQ(5, Selection(dialog, Color));
                  PickMore(dialog, 1, 2, 3);
                  EXPECT_EQ(6, Selection(dialog, Color));
                  EXPECT_EQ(8u, Items(dialog, Color).size());
                  EXPECT_EQ(RGB(128, 64, 32), static_cast<COLORREF>(ItemData(dialog, Color, 5)));
                  EXPECT_EQ(RGB(1, 2, 3), static_cast<COLORREF>(ItemData(dialog, Color, 6)));
                  Choose(dialog, Color, 5);
                  Click(dialog, Confirm);
              }));
    EXPECT_EQ(L"2113664", Stored());
}

TEST_F(OptionDlg, MoreColours_CancelledGoesBack) {
    SetOption([this](HWND dialog) {
        Choose(dialog, Color, 3); // a plain choice is not remembered
        PickMore(dialog, -1);
        EXPECT_EQ(0, Selection(dialog, Color));
        PickMore(dialog, 9, 9, 9);
        Choose(dialog, Color, 1);
        PickMore(dialog, -1);
        EXPECT_EQ(5, Selection(dialog, Color));
        EXPECT_EQ(7u, Items(dialog, Color).size());
        Click(dialog, Dismiss);
    });
}

TEST_F(OptionDlg, MoreColours_EndAtTheCapacity) {
    SetOption([this](HWND dialog) {
        for (size_t count = Items(dialog, Color).size(); count < 1000; ++count)
            SendDlgItemMessageW(dialog, Color, CB_INSERTSTRING, 0, reinterpret_cast<LPARAM>(L"x"));
        PickMore(dialog, 1, 2, 3);
        EXPECT_EQ(1001u, Items(dialog, Color).size());
        Choose(dialog, Color, 1000); // no picker comes
        EXPECT_EQ(1000, Selection(dialog, Color));
        Click(dialog, Dismiss);
    });
}

TEST_F(OptionDlg, Confirm_EndsEvenWhenNothingCanBeStored) {
    std::filesystem::create_directory(m_settings.Path());
    EXPECT_EQ(1, SetOption([](HWND dialog) { Click(dialog, Confirm); }));
    ExpectBoxes(L"选项", {L"设置未能保存。"});
    long cause = 0;
    Cmn_GetLastCause(&cause, nullptr, 0);
    EXPECT_EQ(static_cast<long>(varnoke::Cause::SettingNotStored), cause);
    std::filesystem::remove(m_settings.Path());
}

// A picture of 177 x 16 pixels, black but for an item of the colour box that is drawn there.
class DrawnItem {
public:
    DrawnItem(HWND dialog, UINT item, UINT state = 0, int fontHeight = -11)
        : m_bitmap(CreateDIBSection(m_dc, &kForm, DIB_RGB_COLORS, nullptr, nullptr, 0)),
          m_font(CreateFontW(fontHeight, 0, 0, 0, 0, 0, 0, 0, DEFAULT_CHARSET, 0, 0, NONANTIALIASED_QUALITY,
                             0, L"MS Shell Dlg")) {
        SelectObject(m_dc, m_bitmap.get());
        SelectObject(m_dc, m_font.get());
        SetTextColor(m_dc, RGB(1, 2, 3));
        SetBkColor(m_dc, RGB(4, 5, 6));
        const HGDIOBJ pen = GetCurrentObject(m_dc, OBJ_PEN), brush = GetCurrentObject(m_dc, OBJ_BRUSH);
        DRAWITEMSTRUCT draw = {ODT_COMBOBOX,   Color,           item,
                               ODA_DRAWENTIRE, state,           GetDlgItem(dialog, Color),
                               m_dc,           {0, 0, 177, 16}, 0};
        SendMessageW(dialog, WM_DRAWITEM, Color, reinterpret_cast<LPARAM>(&draw));
        EXPECT_EQ(RGB(1, 2, 3), GetTextColor(m_dc));
        EXPECT_EQ(RGB(4, 5, 6), GetBkColor(m_dc));
        EXPECT_EQ(pen, GetCurrentObject(m_dc, OBJ_PEN));
        EXPECT_EQ(brush, GetCurrentObject(m_dc, OBJ_BRUSH));
    }
    ~DrawnItem() { DeleteDC(m_dc); }
    COLORREF At(int x, int y) const { return GetPixel(m_dc, x, y); }
    int Count(COLORREF color, const RECT& area) const {
        int count = 0;
        for (int x = area.left; x < area.right; ++x)
            for (int y = area.top; y < area.bottom; ++y)
                count += At(x, y) == color;
        return count;
    }

private:
    static constexpr BITMAPINFO kForm = {{sizeof(BITMAPINFOHEADER), 177, -16, 1, 32, BI_RGB, 0, 0, 0, 0, 0},
                                         {}};
    const HDC m_dc = CreateCompatibleDC(nullptr);
    const base::GdiObject<HBITMAP> m_bitmap;
    const base::GdiObject<HFONT> m_font;
};

TEST_F(OptionDlg, Items_AreDrawnAsSwatchAndText) {
    const COLORREF window = GetSysColor(COLOR_WINDOW), highlight = GetSysColor(COLOR_HIGHLIGHT);
    const COLORREF text = GetSysColor(COLOR_WINDOWTEXT), highlightText = GetSysColor(COLOR_HIGHLIGHTTEXT);
    const RECT all = {0, 0, 177, 16}, swatch = {103, 3, 171, 13}, left = {0, 0, 5, 16},
               inText = {5, 2, 98, 14};
    const RECT topEdge = {0, 0, 177, 1}, textEnd = {98, 0, 102, 16}, right = {172, 0, 177, 16};
    SetOption([&](HWND dialog) {
        SetFocus(GetDlgItem(dialog, Color));
        const DrawnItem red(dialog, 1), selected(dialog, 1, ODS_SELECTED), more(dialog, 5);
        EXPECT_EQ(68 * 10, red.Count(RGB(255, 0, 0), swatch));
        for (const auto& [x, y] : {std::pair{102, 2}, {171, 2}, {102, 13}, {171, 13}})
            EXPECT_EQ(RGB(0, 0, 0), red.At(x, y)) << x << " " << y;
        for (const RECT& area : {left, topEdge, textEnd, right})
            EXPECT_EQ((area.right - area.left) * (area.bottom - area.top), red.Count(window, area));
        EXPECT_LT(50, red.Count(text, inText));
        EXPECT_EQ(68 * 10, selected.Count(RGB(255, 0, 0), swatch));
        EXPECT_LT(50, selected.Count(highlightText, inText));
        EXPECT_GT(170, selected.Count(highlight, topEdge)) << "a focus rectangle";
        EXPECT_EQ(highlight, selected.At(2, 2));
        EXPECT_LT(30, more.Count(text, inText));
        EXPECT_EQ(4 * 16, more.Count(window, textEnd));
        EXPECT_EQ(window, more.At(140, 8)) << "no swatch";
        EXPECT_EQ(4 * 16, DrawnItem(dialog, 4, 0, -20).Count(window, textEnd)) << "a wide text is cut";
        SetFocus(GetDlgItem(dialog, Confirm));
        EXPECT_EQ(177, DrawnItem(dialog, 1, ODS_SELECTED).Count(highlight, topEdge));
        EXPECT_EQ(177 * 16, DrawnItem(dialog, static_cast<UINT>(-1)).Count(0, all));
        ExpectRedrawOnActivation(dialog, Color);
        SetFocus(nullptr);
        EXPECT_EQ(177 * 16, DrawnItem(dialog, 1).Count(0, all));
        Click(dialog, Dismiss);
    });
}

} // namespace
