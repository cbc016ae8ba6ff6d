// What a failed operation leaves behind: its cause for the host, and lines in the trace.
#include <afxwin.h>
#include <algorithm>
#include <sstream>
#include <thread>
#include "tests/sign/FakeServer.h"
#include "tests/support/SettingsFile.h"
#include "tests/support/TempFolder.h"
#include "tests/support/Text.h"
#include "varnoke/SignOpt.h"
#include "varnoke/Cause.h"

namespace {

using tests::Text;

class Cause : public testing::Test {
protected:
    Cause() {
        m_server.m_methods = {
            {L"Login", 1}, {L"Test", 2}, {L"DeleteAllSign", 3}, {L"SignatureInvalidDelete", 0}};
        m_settings.Set(L"DynDisp", L"ProgID", m_server.m_progID.c_str());
    }
    static long Code() {
        long code = -1;
        const long given = Cmn_GetLastCause(&code, nullptr, 0);
        EXPECT_EQ(given, code != 0);
        return code;
    }
    static std::wstring LastText() {
        wchar_t text[600] = L"#";
        Cmn_GetLastCause(nullptr, text, 600);
        return text;
    }
    long DeleteAll() { return m_opt.DeleteAllSignForBackSign(m_drawing, Text(L"甲")); }

    long DeleteAllAnswered(const _variant_t& value) {
        m_server.m_answer = [value = _variant_t(value)](VARIANT& result, EXCEPINFO&) mutable {
            return VariantCopy(&result, &value);
        };
        return DeleteAll();
    }
    static HRESULT Expired(VARIANT&, EXCEPINFO& exception) {
        exception.bstrSource = SysAllocString(L"许可");
        exception.bstrDescription = SysAllocString(L"已过期");
        exception.scode = 0x80040201;
        return DISP_E_EXCEPTION;
    }

    tests::SettingsFile m_settings;
    tests::FakeServer m_server;
    CSignOpt m_opt;
    IDispatch* const m_drawing = reinterpret_cast<IDispatch*>(0x1000);
};

TEST_F(Cause, EachFailureNamesItsOwn) {
    using varnoke::Cause;
    const std::wstring orphan = m_server.m_progID + L".Orphan";
    RegSetKeyValueW(HKEY_CLASSES_ROOT, (orphan + L"\\CLSID").c_str(), nullptr, REG_SZ,
                    L"{5B1F5C3A-0A51-4B0C-8C39-111111111111}", 78);
    const auto initialize = [&](const std::wstring& progId) {
        m_settings.Set(L"DynDisp", L"ProgID", progId.c_str());
        return m_opt.Initialize(nullptr);
    };
    const struct {
        Cause cause;
        const wchar_t* told;
        std::function<long()> call;
    } kCases[] = {
        {Cause::SigningServerNotConnected, L"", [&] { return DeleteAll(); }},
        {Cause::SigningServerNotRegistered, L"No.Such.Server（0x800401F3",
         [&] { return initialize(L"No.Such.Server"); }},
        {Cause::SigningServerNotCreated, L"Orphan（0x80040154", [&] { return initialize(orphan); }},
        {Cause::SigningServerNotAutomation, L"0x80004002",
         [&] {
             m_server.m_automation = false;
             return initialize(m_server.m_progID);
         }},
        {Cause::None, L"",
         [&] {
             m_server.m_automation = true;
             return initialize(m_server.m_progID) - 1;
         }},
        {Cause::ArgumentMissing, L"document", [&] { return m_opt.ClearInvalidSign(nullptr, Text(L"x")); }},
        {Cause::ArgumentMissing, L"text", [&] { return m_opt.ClearInvalidSign(m_drawing, nullptr); }},
        {Cause::ArgumentMissing, L"password", [&] { return m_opt.Login(Text(L"u"), nullptr, Text(L"s")); }},
        {Cause::MethodMissing, L"SignatureValidate",
         [&] { return m_opt.SignatureValidateForBackSign(m_drawing, Text(L"x")); }},
        {Cause::MethodMissing, L"SignatureInvalidDelete",
         [&] { return m_opt.ClearInvalidSignForBackSign(m_drawing, Text(L"x")); }},
        {Cause::MethodRefused, L"DeleteAllSign", [&] { return DeleteAllAnswered(0L); }},
        {Cause::MethodResultUnusable, L"DeleteAllSign", [&] { return DeleteAllAnswered(L"ok"); }},
        {Cause::None, L"", [&] { return DeleteAllAnswered(7L) - 7; }},
        {Cause::MethodFailed, L"许可: 已过期（0x80040201",
         [&] {
             m_server.m_answer = Expired;
             return DeleteAll();
         }},
        {Cause::Unexpected, L"",
         [&] {
             m_server.m_answer = [](VARIANT&, EXCEPINFO&) -> HRESULT { throw 1; };
             return DeleteAll();
         }},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(static_cast<long>(c.cause));
        EXPECT_EQ(c.call(), 0);
        EXPECT_EQ(Code(), static_cast<long>(c.cause));
        EXPECT_NE(LastText().find(c.told), std::wstring::npos) << tests::ToUtf8(LastText());
    }
    RegDeleteTreeW(HKEY_CLASSES_ROOT, orphan.c_str());
}

TEST_F(Cause, StaysUntilTheThreadsNextOperation) {
    EXPECT_EQ(m_opt.GetCancelSignDate(nullptr), 0);
    Cmn_ReleaseLoginInfo(nullptr);
    std::thread([] { EXPECT_EQ(Code(), 0) << "another thread's own"; }).join();
    EXPECT_EQ(Code(), static_cast<long>(varnoke::Cause::ArgumentMissing));
    wchar_t cut[4] = L"abc";
    EXPECT_EQ(Cmn_GetLastCause(nullptr, cut, 3), 1);
    EXPECT_EQ(cut, LastText().substr(0, 2));
    EXPECT_EQ(m_opt.Logout(), 1);
    EXPECT_EQ(Code(), 0);
    EXPECT_EQ(LastText(), L"");
}

class Trace : public Cause {
protected:
    ~Trace() override {
        SetEnvironmentVariableW(L"VARNOKE_TRACE", nullptr);
        SetEnvironmentVariableW(L"VARNOKE_TRACE_FILE", nullptr);
        m_settings.Remove();
        m_opt.Initialize(nullptr); // off again
    }
    // The lines of the trace, without date, time, process and thread, that some operations leave.
    std::vector<std::wstring> Lines() {
        if (!std::filesystem::exists(m_file)) return {};
        std::vector<std::wstring> lines;
        std::wistringstream text(tests::FromUtf8(tests::ReadBytes(m_file)));
        for (std::wstring line; std::getline(text, line);) {
            unsigned long process = 0, thread = 0;
            int length = 0;
            swscanf(line.c_str(), L"%*d-%*d-%*d %*d:%*d:%*d.%*d %lu:%lu %n", &process, &thread, &length);
            EXPECT_TRUE(process != 0 && thread != 0 && length > 20 && line.back() == L'\r')
                << tests::ToUtf8(line);
            EXPECT_TRUE(process != GetCurrentProcessId() || thread == GetCurrentThreadId());
            lines.push_back(line.substr(length, line.size() - length - 1));
        }
        return lines;
    }
    void Run() {
        EXPECT_EQ(m_opt.Initialize(nullptr), 1);
        EXPECT_EQ(m_opt.Login(Text(L"wang"), Text(L"geheim"), Text(L"s")), 1);
        EXPECT_EQ(m_opt.Sign(m_drawing, nullptr), 0);
    }

    tests::TempFolder m_folder;
    const std::filesystem::path m_file = m_folder / L"跟踪.log";
};

TEST_F(Trace, TellsAsMuchAsItsLevel) {
    const std::wstring failure = L"SignForBackSign = 0, cause 4: 缺少参数：info";
    const std::vector<std::wstring> expected[] = {{},
                                                  {failure},
                                                  {L"CSignOpt::Initialize = 1", L"Login = 1", failure},
                                                  {L"CSignOpt::Initialize = 1",
                                                   L"signing server: Login = 1, 0 ms", L"Login = 1",
                                                   L"缺少参数：info", failure}};
    for (int level = 0; level < 4; ++level) {
        SetEnvironmentVariableW(L"VARNOKE_TRACE", std::to_wstring(level).c_str());
        SetEnvironmentVariableW(L"VARNOKE_TRACE_FILE", m_file.c_str());
        std::filesystem::remove(m_file);
        Run();
        std::vector<std::wstring> lines = Lines();
        for (std::wstring& line : lines) {
            const size_t at = line.rfind(L", ");
            if (line.size() > 3 && line.substr(line.size() - 3) == L" ms")
                line = line.substr(0, at) + L", 0 ms";
        }
        EXPECT_EQ(lines, expected[level]) << level;
    }
}

TEST_F(Trace, FollowsTheSettingsAndItsSizeLimit) {
    m_settings.Set(L"Trace", L"Level", L"2");
    m_settings.Set(L"Trace", L"SizeLimit", L"2");
    SetEnvironmentVariableW(L"TRACE_TEST", m_folder.Text().c_str());
    m_settings.Set(L"Trace", L"File", L"%TRACE_TEST%\\跟踪.log");
    for (int i = 0; i < 20; ++i)
        Run();
    const auto old = m_folder / L"跟踪.log.old";
    EXPECT_LE(std::filesystem::file_size(m_file), 2048u);
    EXPECT_LE(std::filesystem::file_size(old), 2048u);
    EXPECT_GT(std::filesystem::file_size(m_file) + std::filesystem::file_size(old), 2048u);
    EXPECT_EQ(Lines().back(), L"SignForBackSign = 0, cause 4: 缺少参数：info");
}

constexpr int kWrites = 100;

// Run in processes of its own by the test below.
TEST(TraceWriter, DISABLED_Writes) {
    CSignOpt opt;
    for (int i = 0; i < kWrites; ++i)
        opt.Logout();
}

// Lets a process that is being debugged run to its end; gives how often it told the debugger something.
int CountTold() {
    int count = 0;
    for (DEBUG_EVENT event = {}; event.dwDebugEventCode != EXIT_PROCESS_DEBUG_EVENT;) {
        if (!WaitForDebugEvent(&event, INFINITE)) return -1;
        count += event.dwDebugEventCode == OUTPUT_DEBUG_STRING_EVENT;
        ContinueDebugEvent(event.dwProcessId, event.dwThreadId, DBG_CONTINUE);
    }
    return count;
}

TEST_F(Trace, SeveralProcessesLoseNoLine_AndADebuggerHearsThem) {
    SetEnvironmentVariableW(L"VARNOKE_TRACE", L"2");
    SetEnvironmentVariableW(L"VARNOKE_TRACE_FILE", m_file.c_str());
    std::wstring program(1000, L'\0');
    GetModuleFileNameW(nullptr, &program[0], 1000);
    std::wstring command = L"\"" + std::wstring(program.c_str()) +
                           L"\" --gtest_filter=TraceWriter.* --gtest_also_run_disabled_tests --gtest_brief=1";
    std::vector<HANDLE> processes;
    for (int i = 0; i < 3; ++i) {
        STARTUPINFOW startup = {};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION process;
        ASSERT_TRUE(CreateProcessW(nullptr, &command[0], nullptr, nullptr, FALSE,
                                   i == 0 ? DEBUG_ONLY_THIS_PROCESS : 0, nullptr, nullptr, &startup,
                                   &process));
        CloseHandle(process.hThread);
        processes.push_back(process.hProcess);
    }
    EXPECT_GE(CountTold(), kWrites);
    WaitForMultipleObjects(3, processes.data(), TRUE, INFINITE);
    for (HANDLE process : processes)
        CloseHandle(process);
    const std::vector<std::wstring> lines = Lines();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), L"Logout = 1"), 3 * kWrites);
}

} // namespace
