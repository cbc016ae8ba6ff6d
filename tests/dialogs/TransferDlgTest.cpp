// The transfer dialogs, shown by CPLMInteract::DownloadDoc and UploadDoc.
#include "tests/dialogs/DialogFixture.h"
#include <commctrl.h>
#include <fstream>
#include "tests/support/Message.h"

namespace {

using namespace tests;

struct Variant {
    const wchar_t *title, *verb, *skipped;
    UINT firstMessage;
    int fileLabel, fileBar, totalLabel, totalBar, log;
};
const Variant kDownload = {L"下载文档", L"下载", L" 已经存在。", 2024, 4003, 4004, 4006, 4007, 4009};
const Variant kUpload = {L"上传文档", L"上传", L" 不存在。", 2031, 4010, 4012, 4014, 4015, 4017};
enum Step { Started, Begins, Done, Ended, Skipped, Failed, Interrupted };
enum Timer { StartTimer = 1, ActivityTimer, CloseTimer };

class TransferDlg : public DialogFixture {
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
    std::wstring Path(const std::wstring& name) const { return (Local() / name).wstring(); }
    SSignFileDULItem* Add(const wchar_t* remote, const wchar_t* local) {
        auto* item = new SSignFileDULItem;
        item->m_strRemoteName = remote;
        item->m_strLocalName = local;
        m_list.m_lstItem.AddTail(item);
        return item;
    }
    // A document that is there on both sides.
    SSignFileDULItem* AddFile(const std::wstring& name) {
        WriteBytes(Local() / name, "x");
        WriteBytes(Vault() / L"files" / name, "x");
        return Add(name.c_str(), name.c_str());
    }
    void AddFiles(int count) {
        for (int i = 0; i < count; ++i)
            AddFile(std::to_wstring(i) + std::wstring(80, L'x') + L".dwg");
    }
    long Run(const Variant& variant) {
        m_callsBefore = ServerCalls();
        m_begun = GetTickCount64();
        return &variant == &kDownload ? m_plm.DownloadDoc(&m_list) : m_plm.UploadDoc(&m_list);
    }
    // Runs the dialog at its own pace, with the script, and keeps what it showed at its end.
    long Transfer(const Variant& variant, DialogDriver::Script script) {
        m_driver.Next(std::move(script));
        m_driver.AtEnd([&](HWND dialog) {
            m_fileLabel = TextOf(dialog, variant.fileLabel);
            m_totalLabel = TextOf(dialog, variant.totalLabel);
            m_filePosition = SendDlgItemMessageW(dialog, variant.fileBar, PBM_GETPOS, 0, 0);
            m_totalPosition = SendDlgItemMessageW(dialog, variant.totalBar, PBM_GETPOS, 0, 0);
            m_log = TextOf(dialog, variant.log);
            if (m_beforeEnd) m_beforeEnd();
        });
        return Run(variant);
    }
    // The same without the delays before the start and the end.
    long Hurry(const Variant& variant, Step last = Ended, bool block = false) {
        const bool empty = m_list.m_lstItem.IsEmpty();
        if (!empty) AfterStep(variant, last, [this](HWND dialog) { EndSoon(dialog); });
        return Transfer(variant, [=](HWND dialog) {
            SendMessageW(dialog, WM_TIMER, StartTimer, 0);
            if (block) Block();
            if (empty) EndSoon(dialog);
        });
    }
    // A run is over when it waits for its end; a box disables the dialog meanwhile.
    void EndSoon(HWND dialog) {
        if (IsWindow(dialog) && IsWindowEnabled(dialog) && KillTimer(dialog, CloseTimer))
            SendMessageW(dialog, WM_TIMER, CloseTimer, 0);
        else if (IsWindow(dialog))
            m_driver.Post(dialog, [this](HWND window) { EndSoon(window); });
    }
    void AfterStep(const Variant& variant, Step step, DialogDriver::Script script) {
        m_driver.After(variant.firstMessage + step, 1, std::move(script));
    }
    // Has the dialog get a step that the worker does not report.
    static void PostStep(HWND dialog, const Variant& variant, Step step, const wchar_t* path = nullptr) {
        PostMessageW(dialog, variant.firstMessage + step, reinterpret_cast<WPARAM>(SysAllocString(path)), 0);
    }
    // The log's texts; each line must begin with a time of the last minutes.
    std::vector<std::wstring> Log() const {
        std::vector<std::wstring> lines;
        SYSTEMTIME now;
        GetLocalTime(&now);
        for (const std::wstring& line : Split(m_log, L'\n')) {
            int hour = 0, minute = 0, second = 0, length = 0;
            EXPECT_EQ(3, swscanf(line.c_str(), L"%2d:%2d:%2d -> %n", &hour, &minute, &second, &length));
            EXPECT_EQ(12, length) << ToUtf8(line);
            EXPECT_LE((now.wHour * 60 + now.wMinute - hour * 60 - minute + 144000) % 1440, 2) << ToUtf8(line);
            lines.push_back(line.substr(12, line.size() - 13)); // without the carriage return
        }
        return lines;
    }
    // "number text " of each.
    std::wstring Steps(const Variant& variant) const {
        std::wstring steps;
        for (const SeenMessage& message : m_driver.Messages())
            steps += std::to_wstring(message.message - variant.firstMessage) + L" " + message.text + L" ";
        return steps;
    }
    size_t ServerCalls() const {
        std::ifstream journal(Vault() / L"journal.log");
        return std::count(std::istreambuf_iterator<char>(journal), {}, '\n');
    }
    // Keeps the dialog busy until 128 messages lie there, two a document, and its worker has to wait for it.
    void Block() const {
        while (ServerCalls() - m_callsBefore < 64)
            Sleep(10);
        Sleep(200);
        EXPECT_EQ(64u, ServerCalls() - m_callsBefore) << "the worker waits";
    }

    SSignFileDUL m_list;
    size_t m_callsBefore = 0;
    ULONGLONG m_begun = 0; // ms
    std::function<void()> m_beforeEnd;
    std::wstring m_fileLabel, m_totalLabel, m_log;
    LRESULT m_filePosition = -1, m_totalPosition = -1;
};

class EitherTransferDlg : public TransferDlg, public testing::WithParamInterface<const Variant*> {};

TEST_P(EitherTransferDlg, AFailureInTheMiddle_IsToldAtTheEnd) {
    const Variant& variant = *GetParam();
    const std::wstring verb = variant.verb;
    const auto* first = AddFile(L"a.dwg");
    const auto* second = AddFile(L"b&b.dwg");
    const auto* third = AddFile(L"三.dwg");
    SetFault(&variant == &kDownload ? L"DownloadFailNames" : L"UploadFailNames", L"b&b.dwg");
    Text folder(Local().wstring()), failed(L"b&b.dwg");
    EXPECT_EQ(1, m_plm.SetDocSignTag(folder, failed, 5));
    EXPECT_EQ(1, m_plm.SetDocSignLogTag(folder, failed, 6));
    EXPECT_EQ(4, Transfer(variant, [](HWND) {}));
    long sign = 7, log = 7, changed = 7;
    m_plm.GetDocSignTag(folder, failed, &sign);
    m_plm.GetDocSignLogTag(folder, failed, &log);
    EXPECT_EQ(0, m_plm.GetDocSignTimeTag(folder, failed, &changed)) << "recorded anew";
    EXPECT_EQ(&variant == &kDownload ? 0 : 560, sign * 100 + log * 10 + changed)
        << "only a download resets tags, failed or not";
    EXPECT_EQ(121, first->m_nState * 100 + second->m_nState * 10 + third->m_nState);
    const std::wstring a = Path(L"a.dwg"), b = Path(L"b&b.dwg"), c = Path(L"三.dwg");
    EXPECT_EQ(L"0  1 " + a + L" 2 " + a + L" 1 " + b + L" 5 " + b + L" 1 " + c + L" 2 " + c + L" 3  ",
              Steps(variant));
    const std::wstring begins = L"正在" + verb + L"：", done = verb + L"完成：";
    EXPECT_EQ((std::vector<std::wstring>{L"开始" + verb + L"文档...", begins + a, done + a, begins + b,
                                         begins + c, done + c, L"文档" + verb + L"结束。"}),
              Log());
    ExpectBoxes(variant.title, {L"文档：" + b + L" " + verb + L"失败。\r\n"});
    EXPECT_EQ(done + c, m_fileLabel);
    EXPECT_EQ(verb + L"进度：\t2 / 3", m_totalLabel);
    EXPECT_EQ(100, m_filePosition) << "still after the second that the dialog stays";
    EXPECT_EQ(0, m_totalPosition) << "the overall bar stays at its start";
    EXPECT_LE(580u, m_driver.Messages().front().time - m_begun) << "start delay and pause";
    EXPECT_LE(980u, m_driver.EndedAt() - m_driver.Messages().back().time) << "closing delay";
}

TEST_P(EitherTransferDlg, InjectedSteps_CountAndTheFirstResultStays) {
    const Variant& variant = *GetParam();
    AddFile(L"a.dwg");
    SetFault(L"DelayMs", L"1000"); // the file is still on its way
    AfterStep(variant, Begins, [&](HWND dialog) {
        for (const wchar_t* ignored : {L"", static_cast<const wchar_t*>(nullptr)})
            PostStep(dialog, variant, Skipped, ignored);
        PostStep(dialog, variant, Skipped, L"b.dwg");
        PostStep(dialog, variant, Interrupted);
    });
    AfterStep(variant, Ended, [&](HWND dialog) { PostStep(dialog, variant, Done, L"c.dwg"); });
    EXPECT_EQ(3, Transfer(variant, [](HWND dialog) { SendMessageW(dialog, WM_TIMER, StartTimer, 0); }));
    ExpectBoxes(variant.title, {std::wstring(L"文档：b.dwg") + variant.skipped + L"\r\n"});
    const std::vector<std::wstring> log = Log();
    ASSERT_EQ(6u, log.size());
    EXPECT_EQ(std::wstring(L"文档") + variant.verb + L"中断。", log[2]);
    EXPECT_EQ(std::wstring(L"文档") + variant.verb + L"结束。", log[4]);
    EXPECT_EQ(variant.verb + std::wstring(L"进度：\t1 / 1"), m_totalLabel) << "one too many starts anew";
}

TEST_P(EitherTransferDlg, NothingToDo_IsTold) {
    EXPECT_EQ(0, Hurry(*GetParam()));
    ExpectBoxes(GetParam()->title, {std::wstring(L"没有文档需要") + GetParam()->verb + L"。"});
}

INSTANTIATE_TEST_SUITE_P(Both, EitherTransferDlg, testing::Values(&kDownload, &kUpload),
                         [](const auto& info) { return info.param == &kDownload ? "Download" : "Upload"; });

TEST_F(TransferDlg, ClosedEarly_StaysUntilTheFileInHandIsFinished) {
    const auto* first = AddFile(L"a.dwg");
    const auto* second = AddFile(L"b.dwg");
    SetFault(L"DelayMs", L"1500");
    const auto stillRuns = [&](HWND dialog) {
        EXPECT_TRUE(IsWindowVisible(dialog));
        EXPECT_EQ(0, first->m_nState) << "what is posted is served while the worker works";
    };
    AfterStep(kDownload, Begins, [&](HWND dialog) {
        for (int closing = 0; closing < 2; ++closing)
            SendMessageW(dialog, WM_CLOSE, 0, 0);
        m_driver.After(WM_TIMER, 4, stillRuns);
    });
    EXPECT_EQ(0, Transfer(kDownload, [](HWND) {}));
    EXPECT_EQ(1, first->m_nState) << "the call must not return while the worker writes to the list";
    EXPECT_EQ(0, second->m_nState);
    EXPECT_EQ(1u, ServerCalls());
    EXPECT_TRUE(m_driver.Boxes().empty());
    EXPECT_EQ(L"正在停止，请等待当前文档完成...", m_fileLabel);
    ASSERT_EQ(3u, Log().size());
    EXPECT_EQ(m_fileLabel, Log().back());
}

TEST_F(TransferDlg, QuitDuringARun_IsServedAndReachesTheHost) {
    const auto* item = AddFile(L"a.dwg");
    std::filesystem::remove(Path(L"a.dwg"));
    SetFault(L"DelayMs", L"1500");
    bool served = false;
    AfterStep(kDownload, Begins, [](HWND) { PostQuitMessage(0); });
    m_driver.AtEnd([&](HWND dialog) { m_driver.Post(dialog, [&](HWND) { served = item->m_nState == 0; }); });
    m_driver.Next([](HWND) {});
    Run(kDownload);
    EXPECT_EQ(1, item->m_nState);
    long changed = 7;
    m_plm.GetDocSignTimeTag(Text(Local().wstring()), Text(L"a.dwg"), &changed);
    EXPECT_EQ(0, changed) << "the time is recorded after the file in hand";
    EXPECT_TRUE(served);
    MSG quit = {};
    EXPECT_TRUE(PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(TransferDlg, Activity_RunsWhileAFileIsOnItsWay) {
    AddFile(L"a.dwg");
    SetFault(L"DelayMs", L"1000");
    const auto position = [](HWND dialog) {
        return SendDlgItemMessageW(dialog, kDownload.fileBar, PBM_GETPOS, 0, 0);
    };
    m_driver.After(WM_TIMER, 3, [&](HWND dialog) { // the start's and two of the activity's
        EXPECT_EQ(2, position(dialog));
        SendDlgItemMessageW(dialog, kDownload.fileBar, PBM_SETPOS, 99, 0);
        for (const int expected : {100, 1}) {
            SendMessageW(dialog, WM_TIMER, ActivityTimer, 0);
            EXPECT_EQ(expected, position(dialog));
        }
        SendMessageW(dialog, WM_COMMAND, IDOK, 0); // Enter
    });
    AfterStep(kDownload, Ended, [this](HWND dialog) { EndSoon(dialog); });
    EXPECT_EQ(1, Transfer(kDownload, [](HWND) {}));
    EXPECT_EQ(1u, ServerCalls());
}

TEST_F(TransferDlg, AFailingWorker_ReportsTheInterruption) {
    auto* item = AddFile(L"a.dwg");
    // A length that leaves no room for the folder before the name.
    int& length = reinterpret_cast<int*>(const_cast<wchar_t*>(item->m_strLocalName.GetString()))[-4];
    ASSERT_EQ(5, length);
    length = INT_MAX - 2;
    m_beforeEnd = [&] { length = 5; };
    EXPECT_EQ(2, Hurry(kDownload, Interrupted));
    EXPECT_EQ(L"0  6  ", Steps(kDownload));
}

TEST_F(TransferDlg, ABusyDialog_LosesNoReport) {
    AddFiles(130); // more text than an edit box holds by default
    EXPECT_EQ(1, Hurry(kDownload, Ended, true));
    EXPECT_EQ(262u, Log().size());
    EXPECT_EQ(L"下载进度：\t130 / 130", m_totalLabel);
}

TEST_F(TransferDlg, Runs_LeaveNothingWhetherTakenOrNot) {
    AddFiles(100);
    const long long messages = 1024 * 2 * 64; // half of what lies there
    ExpectNothingLeft(4, messages, [this] {
        Transfer(kUpload, [this](HWND dialog) {
            SendMessageW(dialog, WM_TIMER, StartTimer, 0);
            Block();
            DestroyWindow(dialog); // as when its owner goes
        });
    });
    ExpectNothingLeft(4, messages, [this] {
        Hurry(kUpload);
        m_driver.Forget();
    });
}

TEST_F(TransferDlg, ManyMissingFiles_FitTheScreenAndAreAllLogged) {
    for (int i = 0; i < 300; ++i)
        Add(L"a", (std::to_wstring(i) + L".dwg").c_str());
    AddFile(L"b.dwg");
    SetFault(L"UploadFail", L"*");
    EXPECT_EQ(4, Hurry(kUpload)) << "a failure outweighs skips";
    EXPECT_EQ(1u, ServerCalls());
    ASSERT_EQ(1u, m_driver.Boxes().size());
    EXPECT_GE(GetSystemMetrics(SM_CYSCREEN), m_driver.Boxes()[0].height);
    const std::wstring& text = m_driver.Boxes()[0].text;
    const size_t shown = std::count(text.begin(), text.end(), L'\n');
    EXPECT_LT(20u, shown);
    EXPECT_NE(std::wstring::npos,
              text.find(L"\r\n另有 " + std::to_wstring(301 - shown) + L" 个文档，请查看日志。"));
    ASSERT_EQ(304u, Log().size());
    EXPECT_EQ(L"文档：" + Path(L"299.dwg") + L" 不存在。", Log()[301]);
}

} // namespace
