// Child processes whose output goes to files.
#include "tests/host/HostProcess.h"

#include <stdexcept>

#include "tests/support/TempFolder.h"

namespace tests {

namespace {

HANDLE NewOutput(const std::filesystem::path& file) {
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    return CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS, 0, nullptr);
}

// A host that a hung test leaves behind ends with the test program.
HANDLE Leash() {
    static const HANDLE job = [] {
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION limit = {};
        limit.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
        const HANDLE made = CreateJobObjectW(nullptr, nullptr);
        SetInformationJobObject(made, JobObjectExtendedLimitInformation, &limit, sizeof limit);
        return made;
    }();
    return job;
}

// Wine says so of a child whose heap lies where its own pages must (see with-wine.sh).
bool EndedBeforeItRan() {
    return GetLastError() == ERROR_INTERNAL_ERROR;
}

BOOL CALLBACK CountWindow(HWND window, LPARAM counted) {
    auto& count = *reinterpret_cast<std::pair<DWORD, int>*>(counted);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner == count.first && IsWindowVisible(window)) ++count.second;
    return TRUE;
}

} // namespace

std::wstring BinFolder() {
    wchar_t path[MAX_PATH] = L"";
    if (GetEnvironmentVariableW(L"VARNOKE_BIN", path, MAX_PATH)) return path;
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return std::filesystem::path(path).parent_path().wstring();
}

bool HostResult::Said(const std::string& line) const {
    const std::string text = "\n" + out, start = "\n" + line;
    const auto has = [&](const char* end) { return text.find(start + end) != std::string::npos; };
    return has("\r\n") || has(": ") || has(" -> ");
}

HostResult RunHost(const std::vector<std::wstring>& arguments,
                   const std::function<void(DWORD)>& whileRunning) {
    return RunProgram(BinFolder() + L"\\varnoke-host.exe", arguments, whileRunning);
}

HostResult RunProgram(const std::wstring& program, const std::vector<std::wstring>& arguments,
                      const std::function<void(DWORD)>& whileRunning) {
    std::wstring line = L"\"" + program + L"\"";
    for (const std::wstring& argument : arguments)
        line += L" \"" + argument + L"\"";
    const TempFolder outputs;
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = NewOutput(outputs / L"out");
    startup.hStdError = NewOutput(outputs / L"err");
    PROCESS_INFORMATION process;
    const auto start = [&] {
        return CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, CREATE_SUSPENDED, nullptr,
                              nullptr, &startup, &process);
    };
    if (!start() && !(EndedBeforeItRan() && start()))
        throw std::runtime_error(ToUtf8(program) + " does not start: error " +
                                 std::to_string(GetLastError()));
    AssignProcessToJobObject(Leash(), process.hProcess);
    ResumeThread(process.hThread);
    while (WaitForSingleObject(process.hProcess, 50) == WAIT_TIMEOUT)
        if (whileRunning) whileRunning(process.dwProcessId);
    HostResult result;
    GetExitCodeProcess(process.hProcess, &result.exitCode);
    for (const HANDLE handle : {process.hThread, process.hProcess, startup.hStdOutput, startup.hStdError})
        CloseHandle(handle);
    result.out = ReadBytes(outputs / L"out");
    result.err = ReadBytes(outputs / L"err");
    return result;
}

void Kill(DWORD process) {
    const HANDLE handle = OpenProcess(PROCESS_TERMINATE, FALSE, process);
    TerminateProcess(handle, 9);
    CloseHandle(handle);
}

int VisibleWindows(DWORD process) {
    std::pair<DWORD, int> count(process, 0);
    EnumWindows(CountWindow, reinterpret_cast<LPARAM>(&count));
    return count.second;
}

} // namespace tests
