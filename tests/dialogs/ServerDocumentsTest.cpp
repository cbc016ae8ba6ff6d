// The server document list, shown by CPLMInteract::StartSign.
#include "tests/dialogs/DialogFixture.h"
#include "tests/dialogs/BrokenClass.h"
#include "ui/QORGrid.h"
#include "ui/QORGridIds.h"

namespace {

using namespace tests;

enum { Grid = 4000, Confirm = 4001, Dismiss = 4002 };

const wchar_t kColumns[] =
    LR"(<modelconfig><objconfig id="SIGN"><other/><attr name="FNAME" caption="文件名"/>)"
    LR"(<attr name="VER" caption=""/></objconfig></modelconfig>)";
const wchar_t kMessage[] =
    LR"(<root><objs><type id="LoginInfo"><obj><pro name="UserName" value="wang"/><pro name="Password" value="p"/>)"
    LR"(<pro name="PLMServer" value="s"/></obj></type><type id="step"><obj><pro name="ROLE" value="审核"/></obj></type>)"
    LR"(<type id="DOC"><obj><pro name="FNAME" value="一.dwg"/><pro name="VER" value="2"/><pro name="X" value="y"/></obj>)"
    LR"(<obj><pro name="FNAME" value="二.dwg"/></obj><obj><pro name="FNAME" value="三.dwg"/></obj></type></objs></root>)";

class ServerDocuments : public DialogFixture {
protected:
    // The model configuration lies beside the local services module, here a copy of it.
    ServerDocuments() {
        wchar_t program[MAX_PATH];
        GetModuleFileNameW(nullptr, program, MAX_PATH);
        const auto copy = m_folder / L"QORLocal.dll";
        std::filesystem::copy_file(std::filesystem::path(program).parent_path() / L"QORLocal.dll", copy);
        m_local = LoadLibraryW(copy.c_str());
    }
    ~ServerDocuments() override {
        Release();
        FreeLibrary(m_local);
    }
    void Configure(const wchar_t* model) {
        WriteBytes(m_folder / L"ModelConfig.Xml", ToUtf8(model));
        m_plm.Initialize(m_host);
    }
    long StartSign() {
        return m_plm.StartSign(Text(kMessage), Text(m_folder.Text()), &m_login, &m_steps, &m_files);
    }
    void Release() {
        Cmn_ReleaseLoginInfo(m_login);
        Cmn_ReleaseSignType(m_steps);
        Cmn_ReleaseSignType(m_files);
        m_login = nullptr;
        m_steps = m_files = nullptr;
    }

    HMODULE m_local;
    SLoginInfo* m_login = nullptr;
    SSignType *m_steps = nullptr, *m_files = nullptr;
};

// The grid of the shown dialog, driven as the dialog drives it.
class ShownGrid : public CQORGrid {
public:
    explicit ShownGrid(HWND dialog) { Attach(::GetDlgItem(dialog, Grid)); }
    ~ShownGrid() override { Detach(); }
};

TEST_F(ServerDocuments, Documents_AreConfirmedUnseenAndTheFirstIsHandedOut) {
    Configure(kColumns);
    ASSERT_EQ(1, StartSign());
    EXPECT_EQ(0, m_driver.ShownDialogs());
    EXPECT_TRUE(m_driver.Boxes().empty());
    EXPECT_EQ(m_files->m_strId, L"");
    ASSERT_EQ(1, m_files->m_lstObj.GetCount());
    const SSignObj& document = *m_files->m_lstObj.GetHead();
    const std::pair<const wchar_t*, const wchar_t*> properties[] = {
        {L"FNAME", L"一.dwg"}, {L"VER", L"2"}, {L"X", L"y"}};
    ASSERT_EQ(3, document.GetCount());
    POSITION pos = document.GetHeadPosition();
    for (const auto& [name, value] : properties) {
        const SSignPro* property = document.GetNext(pos);
        EXPECT_EQ(property->m_strName, name);
        EXPECT_EQ(property->m_strValue, value);
    }
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
        m_login = reinterpret_cast<SLoginInfo*>(1);
        m_steps = m_files = reinterpret_cast<SSignType*>(1);
        EXPECT_EQ(0, StartSign());
        EXPECT_TRUE(!m_login && !m_steps && !m_files);
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
    ASSERT_EQ(1, StartSign());
    ExpectBoxes(L"服务端文档列表", {L"没有文档数据。", L"没有选中的文档数据。", L"没有选中的文档数据。"});
    EXPECT_EQ(m_files->m_lstObj.GetHead()->GetHead()->m_strValue, L"二.dwg")
        << "the row's value names its document";
}

TEST_F(ServerDocuments, Runs_LeaveNothingBehind) {
    Configure(kColumns);
    ExpectNothingLeft([this] {
        EXPECT_EQ(1, StartSign());
        Release();
    });
}

} // namespace
