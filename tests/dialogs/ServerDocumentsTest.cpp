// The server document list, shown by CPLMInteract::StartSign.
#include "tests/dialogs/DialogFixture.h"
#include "tests/model/ModelFixture.h"
#include "tests/plm/PlmFixture.h"
#include "tests/support/Watchdog.h"
#include "ui/QORGrid.h"
#include "neighbours/QORGridIds.h"
#include <commctrl.h>
#include <optional>

namespace {

using namespace tests;

enum { Grid = 4000, Confirm = 4001, Dismiss = 4002 };

const wchar_t kColumns[] =
    LR"(<modelconfig><objconfig id="SIGN"><other/><attr name="FNAME" caption="文件名"/>)"
    LR"(<attr name="VER" caption=""/></objconfig></modelconfig>)";
const std::wstring kMessage = Message(L"LoginInfo:UserName=wang,Password=p,PLMServer=s|step:ROLE=审核|"
                                      L"DOC:FNAME=一.dwg,VER=2,X=y;二.dwg;三.dwg");

class ServerDocuments : public DialogFixture {
protected:
    void Configure(const std::wstring& model) {
        WriteBytes(m_services.configFile, ToUtf8(model));
        m_plm.Initialize(m_host);
    }
    long StartSign(Results&& results = {}) {
        return m_plm.StartSign(Text(kMessage), Text(m_folder.Text()), &results.login, &results.steps,
                               &results.files);
    }

    const LocalServices m_services;
};

// The grid of the shown dialog, driven as the dialog drives it.
class ShownGrid : public CQORGrid {
public:
    explicit ShownGrid(HWND dialog) { Attach(::GetDlgItem(dialog, Grid)); }
    ~ShownGrid() override { Detach(); }
};

HWND ListOf(HWND dialog) {
    return FindWindowExW(GetWindow(GetDlgItem(dialog, Grid), GW_CHILD), nullptr, WC_LISTVIEWW, nullptr);
}

TEST_F(ServerDocuments, Documents_AreConfirmedUnseenAndTheFirstIsHandedOut) {
    Configure(kColumns);
    Results results;
    m_driver.AtEnd([](HWND dialog) {
        ShownGrid grid(dialog);
        ASSERT_EQ(3, grid.GetRowCount());
        CString cells;
        for (long row = 0; row < 3; ++row) {
            EXPECT_EQ(row, grid.GetRowValue(row));
            for (long column = 0; column < 4; ++column)
                cells += grid.GetCellText(row, column) + L" ";
        }
        EXPECT_EQ(cells, L"1 1 一.dwg 2 2 1 二.dwg  3 1 三.dwg  ");
        // The control's own view: headers, widths, look, and no text where a check box is drawn.
        const HWND list = ListOf(dialog);
        const wchar_t* const headers[] = {L"序号", L"选择状态", L"文件名", L"VER"};
        RECT client;
        GetClientRect(grid, &client);
        wchar_t text[32];
        for (int column = 0; column < 4; ++column) {
            LVCOLUMNW shown = {};
            shown.mask = LVCF_TEXT | LVCF_WIDTH;
            shown.pszText = text;
            shown.cchTextMax = 32;
            SendMessageW(list, LVM_GETCOLUMNW, column, reinterpret_cast<LPARAM>(&shown));
            EXPECT_STREQ(headers[column], text);
            EXPECT_EQ(client.right / 4, shown.cx);
        }
        ListView_GetItemText(list, 0, 1, text, 32);
        EXPECT_STREQ(L"", text);
        EXPECT_EQ(LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES,
                  ListView_GetExtendedListViewStyle(list) & (LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES));
        EXPECT_TRUE(GetWindowLongW(list, GWL_STYLE) & GetWindowLongW(grid, GWL_STYLE) & WS_VISIBLE)
            << "painted again";
        EXPECT_FALSE(GetWindowLongW(list, GWL_STYLE) & LVS_NOCOLUMNHEADER);
    });
    ASSERT_EQ(1, StartSign(std::move(results)));
    EXPECT_EQ(0, m_driver.ShownDialogs());
    EXPECT_TRUE(m_driver.Boxes().empty());
    EXPECT_EQ(Described(results.files), L":一.dwg,VER=2,X=y");
}

TEST_F(ServerDocuments, ManyColumns_AreAsWideAsIsUseful) {
    std::wstring model = L"<modelconfig><objconfig id='SIGN'>";
    for (int i = 0; i < 20; ++i)
        model += L"<attr name='FNAME'/>";
    Configure(model + L"</objconfig></modelconfig>");
    m_driver.AtEnd([](HWND dialog) { EXPECT_EQ(80, ListView_GetColumnWidth(ListOf(dialog), 21)); });
    EXPECT_EQ(1, StartSign());
}

TEST_F(ServerDocuments, WithoutColumnsOrGrid_TheEmptyListCanOnlyBeCancelled) {
    const wchar_t* const noColumns = L"<modelconfig><objconfig id=\"SIGN\"/></modelconfig>";
    std::optional<BrokenClass> grid;
    for (const wchar_t* model : {L"<modelconfig/>", noColumns, L"no model", kColumns}) {
        if (model == kColumns) grid.emplace(varnoke::kQORGridClass);
        Configure(model);
        m_driver.Next([this, &grid](HWND dialog) {
            EXPECT_EQ(1u, m_driver.Boxes().size() % 2) << "told once already while it opened";
            if (!grid) { // which counts
                EXPECT_EQ(0, ShownGrid(dialog).GetRowCount());
            }
            Click(dialog, Confirm);
            Click(dialog, Dismiss);
        });
        Results results;
        EXPECT_EQ(0, StartSign(std::move(results)));
        EXPECT_TRUE(results.AllNull());
        EXPECT_TRUE(std::filesystem::remove(m_folder / L"SignData" / L"StartSign.Xml"))
            << "kept all the same";
    }
    ExpectBoxes(L"服务端文档列表", std::vector<std::wstring>(8, L"没有文档数据。"));
}

TEST_F(ServerDocuments, RowsWithoutACheckedOne_AreRefused) {
    Configure(L"<modelconfig/>");
    m_driver.Next([](HWND dialog) {
        ShownGrid grid(dialog);
        grid.SetColumnCount(2);
        for (int row = 0; row < 2; ++row)
            grid.AppendRow();
        Click(dialog, Confirm);
        grid.SetCellText(0, 1, L"0");
        Click(dialog, Confirm);
        grid.SetCellText(1, 1, L"1");
        grid.SetRowValue(1, 1);
        Click(dialog, Confirm);
    });
    Results results;
    ASSERT_EQ(1, StartSign(std::move(results)));
    ExpectBoxes(L"服务端文档列表", {L"没有文档数据。", L"没有选中的文档数据。", L"没有选中的文档数据。"});
    EXPECT_EQ(Described(results.files), L":二.dwg") << "the row's value names its document";
}

TEST_F(ServerDocuments, Runs_LeaveNothingBehind) {
    Configure(kColumns);
    const char* const runs = std::getenv("VARNOKE_SOAK_RUNS"); // the long checks'
    if (runs) Watchdog::Allow(std::chrono::hours(2));
    ExpectNothingLeft(runs ? std::atoi(runs) : 50, 1024, [this] { EXPECT_EQ(1, StartSign()); });
}

} // namespace
