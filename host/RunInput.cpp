// Input of the commands that take a start-sign message.
#include <afxwin.h>

#include "host/Console.h"
#include "host/MessageFile.h"
#include "host/Paths.h"
#include "host/RunInput.h"
#include "host/Texts.h"

namespace host {

std::vector<SOptionRule> MessageRules(const std::vector<SOptionRule>& further) {
    std::vector<SOptionRule> rules = {
        {L"--message", L"FILE", true}, {L"--vault", L"DIR", true}, {L"--work", L"DIR", true}};
    rules.insert(rules.end(), further.begin(), further.end());
    return rules;
}

bool LoadRunInput(const COptions& options, SRunInput& input) {
    input.m_strVault = FullPath(options.Value(L"--vault"));
    input.m_strWork = FullPath(options.Value(L"--work"));
    if (!FolderExists(input.m_strVault)) {
        PrintError(Text(EText::NoVault, {options.Value(L"--vault")}));
        return false;
    }
    CString error;
    if (!ReadMessageFile(FullPath(options.Value(L"--message")), input.m_strMessage, error)) {
        PrintError(error);
        return false;
    }
    ::SetEnvironmentVariableW(L"DURVELL_VAULT", input.m_strVault);
    return true;
}

bool PrepareWorkFolder(const SRunInput& input) {
    if (EnsureFolder(input.m_strWork)) return true;
    PrintError(Text(EText::NoWorkFolder, {input.m_strWork}));
    return false;
}

bool StartMessage(CPLMInteract& plm, StartOperation operation, const CString& message, const CString& folder,
                  SMessageRecords& records) {
    SLoginInfo* login = nullptr;
    SSignType* steps = nullptr;
    SSignType* files = nullptr;
    const long started = (plm.*operation)(InText(message), InText(folder), &login, &steps, &files);
    records.m_pLogin.reset(login);
    records.m_pSteps.reset(steps);
    records.m_pFiles.reset(files);
    return started != 0;
}

} // namespace host
