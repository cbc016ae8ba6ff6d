// The option dialog and its colour combo box, shown by CSignOpt::SetOption.
#include "tests/dialogs/DialogFixture.h"

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
            const std::pair<int, int> parts[] = {{706, red}, {707, green}, {708, blue}};
            for (const auto& [id, value] : parts)
                if (red >= 0) SetText(picker, id, std::to_wstring(value).c_str());
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
                 {L"255", L"RGB(000, 000, 000)", 6},
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

TEST_F(OptionDlg, Runs_LeaveNothingBehind) {
    ExpectNothingLeft([this] { SetOption([](HWND dialog) { Click(dialog, Confirm); }); });
}

} // namespace
