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
    return ("\n" + out).find("\n" + line + "\r\n") != std::string::npos;
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
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                        &process))
        throw std::runtime_error(ToUtf8(program) + " does not start: error " +
                                 std::to_string(GetLastError()));
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

int VisibleWindows(DWORD process) {
    std::pair<DWORD, int> count(process, 0);
    EnumWindows(CountWindow, reinterpret_cast<LPARAM>(&count));
    return count.second;
}

} // namespace tests
