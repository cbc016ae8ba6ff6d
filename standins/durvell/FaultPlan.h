// Faults on demand, read from an INI file at each call.
#pragma once

#include <string>

namespace durvell {

// The section [Fault] of the INI file that DURVELL_FAULT names, else of <vault>\Durvell.ini when there is
// one, else of Durvell.ini beside the DLL:
//   DownloadFail=3         the 3rd call fails; several as 2|5, each call as *
//                          also UploadFail, QueryFail, SaveFail, ShareFail
//   DownloadFailNames=a|b  transfers of these remote names fail, in any case; also UploadFailNames
//   DelayMs=200            each transfer waits this long first, at most a minute
//   Run=text               the process counts from 1 again when this text changes
// A faulty call is counted, journaled and changes nothing.
class FaultPlan {
public:
    explicit FaultPlan(const std::wstring& vaultFolder);

    // Counts the call and says whether it has to fail.
    bool Fails(const wchar_t* operation) const;
    // The same for a transfer, after the delay.
    bool TransferFails(const wchar_t* operation, const std::wstring& remoteName) const;

private:
    std::wstring Value(const std::wstring& key) const;

    std::wstring m_file;
};

// Full path of the INI file beside the DLL.
std::wstring ModuleIni();

} // namespace durvell
