// Runs the reference host as a child process and collects what it says.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace tests {

struct HostResult {
    DWORD exitCode;
    std::string out; // UTF-8, as the host wrote it
    std::string err;

    bool Said(const std::string& line) const; // a line of standard output, up to cause and remedy behind it
    std::string Text() const { return "exit " + std::to_string(exitCode) + "\n" + out + err; }
};

// The folder of the binaries under test: VARNOKE_BIN, else this program's own.
std::wstring BinFolder();

// Runs a program to its end; `whileRunning` is called about every 50 ms with its process identifier.
HostResult RunProgram(const std::wstring& program, const std::vector<std::wstring>& arguments,
                      const std::function<void(DWORD)>& whileRunning = nullptr);
// Runs varnoke-host.exe of the binaries under test.
HostResult RunHost(const std::vector<std::wstring>& arguments,
                   const std::function<void(DWORD)>& whileRunning = nullptr);

// Ends a process at once, with the exit code 9.
void Kill(DWORD process);

// How many windows of a process can be seen on the screen.
int VisibleWindows(DWORD process);

} // namespace tests
