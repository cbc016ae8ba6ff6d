// The exported functions: each checks its arguments, asks the fault plan, does its work and journals the
// call.
#include "neighbours/durvell.h"

#include <string>
#include <vector>

#include "standins/common/Journal.h"
#include "standins/durvell/FaultPlan.h"
#include "standins/durvell/ObjectQuery.h"
#include "standins/durvell/Vault.h"

using namespace durvell;

namespace {

std::wstring TextOf(const wchar_t* text) {
    return text ? text : L"";
}

// Runs one call against the current vault. No exception leaves the DLL.
template <class Work>
int RunCall(const wchar_t* function, const std::vector<const wchar_t*>& given, Work work) noexcept {
    try {
        std::vector<std::wstring> arguments;
        for (const wchar_t* argument : given)
            arguments.push_back(TextOf(argument));
        const Vault vault;
        if (!vault.Exists()) return kResultNoVault;
        Result result = kResultInternal;
        try {
            result = work(vault, FaultPlan(vault.Folder()));
        } catch (...) {
            // Journaled like every other failure.
        }
        standins::AppendJournal(vault.JournalFile(), function, arguments, result);
        return result;
    } catch (...) {
        return kResultInternal;
    }
}

bool HasText(const wchar_t* text) {
    return text && *text;
}

int RunTransfer(const wchar_t* function, const wchar_t* operation, const wchar_t* localPath,
                const wchar_t* remoteName,
                Result (Vault::*transfer)(const std::wstring&, const std::wstring&) const) {
    return RunCall(function, {localPath, remoteName}, [&](const Vault& vault, const FaultPlan& faults) {
        if (faults.TransferFails(operation, TextOf(remoteName))) return kResultFault;
        if (!HasText(localPath)) return kResultBadArgument;
        return (vault.*transfer)(localPath, TextOf(remoteName));
    });
}

} // namespace

extern "C" int dvl_DownloadFile(const wchar_t* localPath, const wchar_t* remoteName, int, int) {
    return RunTransfer(L"dvl_DownloadFile", L"Download", localPath, remoteName, &Vault::Download);
}

extern "C" int dvl_UploadFile(const wchar_t* localPath, const wchar_t* remoteName, int, int) {
    return RunTransfer(L"dvl_UploadFile", L"Upload", localPath, remoteName, &Vault::Upload);
}

extern "C" int dvl_QueryObjs(const wchar_t* objectType, const wchar_t* reserved1, const wchar_t* reserved2,
                             const wchar_t* reserved3, const wchar_t* reserved4, const wchar_t* filterXml,
                             const wchar_t* reserved5, const wchar_t* resultFile) {
    return RunCall(L"dvl_QueryObjs",
                   {objectType, reserved1, reserved2, reserved3, reserved4, filterXml, reserved5, resultFile},
                   [&](const Vault& vault, const FaultPlan& faults) {
                       if (faults.Fails(L"Query")) return kResultFault;
                       if (!HasText(resultFile)) return kResultBadArgument;
                       std::wstring objectFile;
                       const Result found = vault.FindObjectFile(TextOf(objectType), &objectFile);
                       return found == kResultOk
                                  ? QueryObjects(objectFile, objectType, TextOf(filterXml), resultFile)
                                  : found;
                   });
}

extern "C" int dvl_SaveToServer(const wchar_t* recordFile, const wchar_t* workFile) {
    return RunCall(L"dvl_SaveToServer", {recordFile, workFile},
                   [&](const Vault& vault, const FaultPlan& faults) {
                       if (faults.Fails(L"Save")) return kResultFault;
                       if (!HasText(recordFile) || !HasText(workFile)) return kResultBadArgument;
                       return vault.SaveRecord(recordFile, workFile);
                   });
}

extern "C" int dvl_GetShareInfo(wchar_t* userName, wchar_t* password, wchar_t* serverAddress) {
    return RunCall(L"dvl_GetShareInfo", {}, [&](const Vault& vault, const FaultPlan& faults) {
        if (faults.Fails(L"Share")) return kResultFault;
        if (!userName || !password || !serverAddress) return kResultBadArgument;
        return vault.ShareInfo(userName, password, serverAddress);
    });
}
