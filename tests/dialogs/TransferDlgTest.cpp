// The transfer dialogs, shown by CPLMInteract::DownloadDoc and UploadDoc.
#include "tests/dialogs/DialogFixture.h"
#include "tests/support/ObjectCounts.h"
#include <commctrl.h>
#include <fstream>

namespace {

using namespace tests;

struct Variant {
    const wchar_t *title, *verb;
    UINT firstMessage;
    int fileLabel, fileBar, totalLabel, totalBar, log;
};
const Variant kDownload = {L"下载文档", L"下载", 2024, 4003, 4004, 4006, 4007, 4009};
const Variant kUpload = {L"上传文档", L"上传", 2031, 4010, 4012, 4014, 4015, 4017};
enum Step { Started, Begins, Done, Ended, Skipped, Failed, Interrupted };

class TransferDlg : public DialogFixture, public testing::WithParamInterface<const Variant*> {
protected:
    TransferDlg() {
        m_list.m_strFolder = Local().c_str();
        std::filesystem::create_directories(Local());
        std::filesystem::create_directories(Vault() / L"files");
    }
    ~TransferDlg() override {
        while (!m_list.m_lstItem.IsEmpty())
            delete m_list.m_lstItem.RemoveHead();
    }
    std::filesystem::path Local() const { return m_folder / L"drawings"; }
    std::wstring Path(const wchar_t* name) const { return (Local() / name).wstring(); }
    const SSignFileDULItem* Add(const wchar_t* remote, const wchar_t* local) {
        auto* item = new SSignFileDULItem;
        item->m_strRemoteName = remote;
        item->m_strLocalName = local;
        m_list.m_lstItem.AddTail(item);
        return item;
    }
    // A document that is there on both sides.
    const SSignFileDULItem* AddFile(const wchar_t* name) {
        WriteBytes(Local() / name, "x");
        WriteBytes(Vault() / L"files" / name, "x");
        return Add(name, name);
    }
    // Runs the dialog with the script and keeps what it showed at its end.
    long Transfer(
        const Variant& variant, DialogDriver::Script script = [](HWND) {}) {
        m_driver.Next(std::move(script));
        m_driver.AtEnd([&](HWND dialog) {
            fileLabel = TextOf(dialog, variant.fileLabel);
            totalLabel = TextOf(dialog, variant.totalLabel);
            m_filePosition = SendDlgItemMessageW(dialog, variant.fileBar, PBM_GETPOS, 0, 0);
            m_totalPosition = SendDlgItemMessageW(dialog, variant.totalBar, PBM_GETPOS, 0, 0);
            m_log = TextOf(dialog, variant.log);
        });
        return &variant == &kDownload ? m_plm.DownloadDoc(&m_list) : m_plm.UploadDoc(&m_list);
    }
    // Has the dialog get a step that the worker does not report, after the run has started.
    void PostAfterStart(const Variant& variant, Step step, const wchar_t* path = nullptr) {
        m_driver.After(variant.firstMessage + Started, 1, [&variant, step, path](HWND dialog) {
            PostMessageW(dialog, variant.firstMessage + step, reinterpret_cast<WPARAM>(SysAllocString(path)),
                         0);
        });
    }
    // The log's texts; each line must begin with a time.
    std::vector<std::wstring> Log() const {
        std::vector<std::wstring> lines;
        for (size_t start = 0; start < m_log.size();) {
            const size_t end = m_log.find(L"\r\n", start);
            const std::wstring line = m_log.substr(start, end - start);
            EXPECT_TRUE(line.size() > 12 && line[2] == L':' && line[5] == L':' &&
                        line.substr(8, 4) == L" -> ")
                << ToUtf8(line);
            lines.push_back(line.substr(std::min<size_t>(12, line.size())));
            start = end == std::wstring::npos ? m_log.size() : end + 2;
        }
        return lines;
    }
    std::vector<std::pair<UINT, std::wstring>> Steps(const Variant& variant) const {
        std::vector<std::pair<UINT, std::wstring>> steps;
        for (const SeenMessage& message : m_driver.Messages())
            steps.emplace_back(message.message - variant.firstMessage, message.text);
        return steps;
    }
    size_t ServerCalls() const {
        std::ifstream journal(Vault() / L"journal.log");
        return std::count(std::istreambuf_iterator<char>(journal), {}, '\n');
    }

    SSignFileDUL m_list;
    std::wstring fileLabel, totalLabel, m_log;
    LRESULT m_filePosition = -1, m_totalPosition = -1;
};

TEST_P(TransferDlg, AFailureInTheMiddle_IsToldAtTheEnd) {
    const Variant& variant = *GetParam();
    const std::wstring verb = variant.verb;
    const auto* first = AddFile(L"a.dwg");
    const auto* second = AddFile(L"b&b.dwg");
    const auto* third = AddFile(L"三.dwg");
    SetFault(&variant == &kDownload ? L"DownloadFailNames" : L"UploadFailNames", L"b&b.dwg");
    Text folder(Local().wstring()), failed(L"b&b.dwg");
    EXPECT_EQ(2, m_plm.SetDocSignTag(folder, failed, 5) + m_plm.SetDocSignLogTag(folder, failed, 6));
    EXPECT_EQ(4, Transfer(variant));
    long tags[] = {7, 7, 7};
    m_plm.GetDocSignTag(folder, failed, &tags[0]);
    m_plm.GetDocSignLogTag(folder, failed, &tags[1]);
    EXPECT_EQ(0, m_plm.GetDocSignTimeTag(folder, failed, &tags[2])) << "recorded anew";
    const std::vector<long> left =
        &variant == &kDownload ? std::vector<long>{0, 0, 0} : std::vector<long>{5, 6, 0};
    EXPECT_EQ(left, std::vector<long>(tags, tags + 3)) << "only a download resets tags, failed or not";
    EXPECT_EQ((std::vector<long>{1, 2, 1}),
              (std::vector<long>{first->m_nState, second->m_nState, third->m_nState}));
    const std::wstring a = Path(L"a.dwg"), b = Path(L"b&b.dwg"), c = Path(L"三.dwg");
    EXPECT_EQ((std::vector<std::pair<UINT, std::wstring>>{{Started, L""},
                                                          {Begins, a},
                                                          {Done, a},
                                                          {Begins, b},
                                                          {Failed, b},
                                                          {Begins, c},
                                                          {Done, c},
                                                          {Ended, L""}}),
              Steps(variant));
    const std::wstring begins = L"正在" + verb + L"：", done = verb + L"完成：";
    EXPECT_EQ((std::vector<std::wstring>{L"开始" + verb + L"文档...", begins + a, done + a, begins + b,
                                         begins + c, done + c, L"文档" + verb + L"结束。"}),
              Log());
    ExpectBoxes(variant.title, {L"文档：" + b + L" " + verb + L"失败。\r\n"});
    EXPECT_EQ(done + c, fileLabel);
    EXPECT_EQ(verb + L"进度：\t2 / 3", totalLabel);
    EXPECT_EQ(100, m_filePosition);
    EXPECT_EQ(0, m_totalPosition) << "the overall bar stays at its start";
}

TEST_P(TransferDlg, NothingToDo_EndsByItself) {
    const Variant& variant = *GetParam();
    EXPECT_EQ(0, Transfer(variant));
    ExpectBoxes(variant.title, {std::wstring(L"没有文档需要") + variant.verb + L"。"});

    m_list.m_lstItem.AddTail(static_cast<SSignFileDULItem*>(nullptr));
    const auto* unnamed = Add(L"", L"a.dwg");
    Add(L"a.dwg", L"");
    EXPECT_EQ(1, Transfer(variant));
    EXPECT_EQ((std::vector<std::pair<UINT, std::wstring>>{{Started, L""}, {Ended, L""}}), Steps(variant));
    EXPECT_EQ(2u, Log().size());
    EXPECT_EQ(0, unnamed->m_nState);
    EXPECT_EQ(1u, m_driver.Boxes().size());
    EXPECT_EQ(0u, ServerCalls());
}

TEST_P(TransferDlg, ClosedEarly_FinishesTheFileInHandOnly) {
    const Variant& variant = *GetParam();
    const auto* first = AddFile(L"a.dwg");
    const auto* second = AddFile(L"b.dwg");
    SetFault(L"DelayMs", L"300");
    m_driver.After(variant.firstMessage + Begins, 1,
                   [](HWND dialog) { PostMessageW(dialog, WM_CLOSE, 0, 0); });
    EXPECT_EQ(0, Transfer(variant));
    EXPECT_EQ(1, first->m_nState) << "the call must not return while the worker writes to the list";
    EXPECT_EQ(0, second->m_nState);
    EXPECT_EQ(1u, ServerCalls());
    EXPECT_TRUE(m_driver.Boxes().empty());
}

TEST_P(TransferDlg, ClosedBeforeTheRun_TransfersNothing) {
    AddFile(L"a.dwg");
    EXPECT_EQ(0, Transfer(*GetParam(), [](HWND dialog) { PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); }));
    EXPECT_EQ(0u, ServerCalls());
}

TEST_P(TransferDlg, Activity_WrapsAndEnterIsIgnored) {
    const Variant& variant = *GetParam();
    AddFile(L"a.dwg");
    SetFault(L"DelayMs", L"300");
    m_driver.After(variant.firstMessage + Begins, 1, [&](HWND dialog) {
        const auto position = [&] { return SendDlgItemMessageW(dialog, variant.fileBar, PBM_GETPOS, 0, 0); };
        EXPECT_EQ(0, position());
        SendDlgItemMessageW(dialog, variant.fileBar, PBM_SETPOS, 99, 0);
        for (const int expected : {100, 1, 2}) {
            SendMessageW(dialog, WM_TIMER, 2, 0);
            EXPECT_EQ(expected, position());
        }
        SendMessageW(dialog, WM_COMMAND, IDOK, 0);
    });
    EXPECT_EQ(1, Transfer(variant));
    EXPECT_EQ(1u, ServerCalls());
}

TEST_P(TransferDlg, Interruption_IsLoggedAndTheFirstResultStays) {
    const Variant& variant = *GetParam();
    AddFile(L"a.dwg");
    SetFault(L"DelayMs", L"300");              // the file is still on its way
    const bool skips = &variant == &kDownload; // though its worker never does
    if (skips) PostAfterStart(variant, Skipped, L"b.dwg");
    PostAfterStart(variant, Interrupted);
    EXPECT_EQ(skips ? 3 : 2, Transfer(variant));
    if (skips) ExpectBoxes(variant.title, {L"文档：b.dwg 已经存在。\r\n"});
    const std::vector<std::wstring> log = Log();
    ASSERT_EQ(5u, log.size());
    EXPECT_EQ(std::wstring(L"文档") + variant.verb + L"中断。", log[2]);
    EXPECT_EQ(std::wstring(L"文档") + variant.verb + L"结束。", log[4]);
}

TEST_P(TransferDlg, LongList_LogsEveryLine) {
    const Variant& variant = *GetParam();
    const int count = 200; // more text than an edit box holds by default
    for (int i = 0; i < count; ++i)
        AddFile((std::to_wstring(i) + L" of a list that is long.dwg").c_str());
    EXPECT_EQ(1, Transfer(variant));
    EXPECT_EQ(2u * count + 2, Log().size());
    EXPECT_EQ(variant.verb + std::wstring(L"进度：\t200 / 200"), totalLabel);
}

INSTANTIATE_TEST_SUITE_P(Both, TransferDlg, testing::Values(&kDownload, &kUpload),
                         [](const auto& info) { return info.param == &kDownload ? "Download" : "Upload"; });

using Upload = TransferDlg;

TEST_F(Upload, MissingLocalFiles_AreSkipped) {
    const auto* item = Add(L"a", L"a.dwg");
    Add(L"b", L"b.dwg");
    EXPECT_EQ(3, Transfer(kUpload));
    EXPECT_EQ((std::vector<std::wstring>{L"开始上传文档...", L"文档上传结束。"}), Log());
    ExpectBoxes(L"上传文档",
                {L"文档：" + Path(L"a.dwg") + L" 不存在。\r\n文档：" + Path(L"b.dwg") + L" 不存在。\r\n"});
    EXPECT_EQ(0, item->m_nState);
    EXPECT_EQ(0u, ServerCalls());
}

TEST_F(Upload, AFailureOutweighsASkip) {
    Add(L"a", L"a.dwg");
    AddFile(L"b.dwg");
    SetFault(L"UploadFail", L"*");
    EXPECT_EQ(4, Transfer(kUpload));
}

TEST_F(Upload, Runs_LeaveNothingBehind) {
    for (int i = 0; i < 20; ++i)
        AddFile((std::to_wstring(i) + L".dwg").c_str());
    const auto run = [this](int steps) {
        m_driver.After(kUpload.firstMessage + Begins, steps,
                       [](HWND dialog) { PostMessageW(dialog, WM_CLOSE, 0, 0); });
        Transfer(kUpload);
    };
    run(1);
    const ObjectCounts before = CountObjects();
    for (int round = 1; round < 7; ++round)
        run(round);
    const ObjectCounts after = CountObjects();
    EXPECT_EQ(before.windows, after.windows);
    EXPECT_EQ(before.kernel, after.kernel) << "threads and events of runs that were closed early";
}

} // namespace
