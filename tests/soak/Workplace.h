// The folder that a long run works in, and its input: what varnoke-samples makes.
#pragma once

#include <string>

namespace soak {

/// Full path of a name in the current folder, in which varnoke-samples has been run.
std::wstring Path(const wchar_t* name);
/// The folder of this program, with its trailing backslash; Varnoke.dll and its settings lie there.
std::wstring ProgramFolder();

/// Empty when the file is missing.
std::string ReadAll(const std::wstring& path);
/// Ends the run when the file can't be written.
void WriteAll(const std::wstring& path, const std::string& bytes);
/// The files of a folder (with its trailing backslash) whose names match.
void DeleteAll(const std::wstring& folder, const wchar_t* pattern);
/// Also of bytes that are none.
std::wstring FromUtf8(const std::string& bytes);

/// Bytes that the process has committed.
size_t CommittedBytes();

/// Prints a line and ends the program with exit code 1.
[[noreturn]] void Stop(const char* format, ...);

} // namespace soak
