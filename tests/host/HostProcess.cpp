// Child processes with pipes.
#include "tests/host/HostProcess.h"

#include <filesystem>
#include <stdexcept>
#include <thread>

namespace tests {

namespace {

struct Pipe {
    HANDLE read = nullptr;
    HANDLE write = nullptr;

    Pipe() {
        SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
        if (!CreatePipe(&read, &write, &inherited, 0)) throw std::runtime_error("CreatePipe");
        SetHandleInformation(read, HANDLE_FLAG_INHERIT, 0);
    }
    ~Pipe() {
        CloseWrite();
        CloseHandle(read);
    }
    void CloseWrite() {
        if (write) CloseHandle(write);
        write = nullptr;
    }
    std::string ReadAll() const {
        std::string text;
        char part[4096];
        for (DWORD count = 0; ReadFile(read, part, sizeof part, &count, nullptr) && count > 0;)
            text.append(part, count);
        return text;
    }
};

std::wstring CommandLine(const std::vector<std::wstring>& arguments) {
    std::wstring line = L"\"" + BinFolder() + L"\\varnoke-host.exe\"";
    for (const std::wstring& argument : arguments)
        line += L" \"" + argument + L"\"";
    return line;
}

BOOL CALLBACK CountWindow(HWND window, LPARAM counted) {
    auto& count = *reinterpret_cast<std::pair<DWORD, int>*>(counted);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner == count.first && IsWindowVisible(window)) ++count.second;
    return TRUE;
}

} // namespace

bool HostResult::Said(const std::string& line) const {
    return ("\n" + out).find("\n" + line + "\r\n") != std::string::npos;
}

std::wstring BinFolder() {
    wchar_t path[MAX_PATH] = L"";
    if (GetEnvironmentVariableW(L"VARNOKE_BIN", path, MAX_PATH)) return path;
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return std::filesystem::path(path).parent_path().wstring();
}

HostResult RunHost(const std::vector<std::wstring>& arguments,
                   const std::function<void(DWORD)>& whileRunning) {
    Pipe out, err;
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = out.write;
    startup.hStdError = err.write;
    PROCESS_INFORMATION process;
    std::wstring line = CommandLine(arguments);
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                        &process))
        throw std::runtime_error("varnoke-host.exe does not start: error " + std::to_string(GetLastError()));
    out.CloseWrite();
    err.CloseWrite();

    HostResult result;
    std::thread readOut([&] { result.out = out.ReadAll(); });
    std::thread readErr([&] { result.err = err.ReadAll(); });
    while (WaitForSingleObject(process.hProcess, 50) == WAIT_TIMEOUT)
        if (whileRunning) whileRunning(process.dwProcessId);
    readOut.join();
    readErr.join();
    GetExitCodeProcess(process.hProcess, &result.exitCode);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return result;
}

int VisibleWindows(DWORD process) {
    std::pair<DWORD, int> count(process, 0);
    EnumWindows(CountWindow, reinterpret_cast<LPARAM>(&count));
    return count.second;
}

} // namespace tests
