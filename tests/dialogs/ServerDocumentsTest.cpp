// The server document list, shown by CPLMInteract::StartSign.
#include "tests/dialogs/DialogFixture.h"
#include "tests/dialogs/BrokenClass.h"
#include "tests/model/ModelFixture.h"
#include "tests/plm/PlmFixture.h"
#include "ui/QORGrid.h"
#include "neighbours/QORGridIds.h"

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
    void Configure(const wchar_t* model) {
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

TEST_F(ServerDocuments, Documents_AreConfirmedUnseenAndTheFirstIsHandedOut) {
    Configure(kColumns);
    Results results;
    ASSERT_EQ(1, StartSign(std::move(results)));
    EXPECT_EQ(0, m_driver.ShownDialogs());
    EXPECT_TRUE(m_driver.Boxes().empty());
    EXPECT_EQ(Described(results.files), L":一.dwg,VER=2,X=y");
}

TEST_F(ServerDocuments, WithoutColumns_TheEmptyListCanOnlyBeCancelled) {
    for (const wchar_t* model :
         {L"<modelconfig/>", L"<modelconfig><objconfig id=\"SIGN\"/></modelconfig>", L"no model"}) {
        Configure(model);
        m_driver.Next([this](HWND dialog) {
            EXPECT_EQ(1u, m_driver.Boxes().size() % 2) << "told once already while it opened";
            EXPECT_EQ(0, ShownGrid(dialog).GetRowCount());
            Click(dialog, Confirm);
            Click(dialog, Dismiss);
        });
        Results results;
        EXPECT_EQ(0, StartSign(std::move(results)));
        EXPECT_TRUE(results.AllNull());
        EXPECT_TRUE(std::filesystem::remove(m_folder / L"SignData" / L"StartSign.Xml"))
            << "kept all the same";
    }
    ExpectBoxes(L"服务端文档列表", std::vector<std::wstring>(6, L"没有文档数据。"));
}

TEST_F(ServerDocuments, WithoutItsGrid_TheListIsEmpty) {
    const BrokenClass grid(varnoke::kQORGridClass);
    Configure(kColumns);
    m_driver.Next([](HWND dialog) {
        Click(dialog, Confirm);
        Click(dialog, Dismiss);
    });
    EXPECT_EQ(0, StartSign());
    ExpectBoxes(L"服务端文档列表", {L"没有文档数据。", L"没有文档数据。"});
}

TEST_F(ServerDocuments, RowsWithoutACheckedOne_AreRefused) {
    Configure(L"<modelconfig/>");
    m_driver.Next([](HWND dialog) {
        ShownGrid grid(dialog);
        grid.SetColumnCount(2);
        grid.AppendRow();
        Click(dialog, Confirm);
        grid.SetCellText(0, 1, L"0");
        Click(dialog, Confirm);
        grid.SetCellText(0, 1, L"1");
        grid.SetRowValue(0, 1);
        Click(dialog, Confirm);
    });
    Results results;
    ASSERT_EQ(1, StartSign(std::move(results)));
    ExpectBoxes(L"服务端文档列表", {L"没有文档数据。", L"没有选中的文档数据。", L"没有选中的文档数据。"});
    EXPECT_EQ(Described(results.files), L":二.dwg") << "the row's value names its document";
}

TEST_F(ServerDocuments, Runs_LeaveNothingBehind) {
    Configure(kColumns);
    ExpectNothingLeft([this] { EXPECT_EQ(1, StartSign()); });
}

} // namespace
