// Input of the commands that take a start-sign message.
#include <afxwin.h>

#include "host/Report.h"
#include "host/MessageFile.h"
#include "host/Paths.h"
#include "host/RunInput.h"
#include "host/Texts.h"

namespace host {

std::vector<OptionRule> MessageRules(const std::vector<OptionRule>& further) {
    std::vector<OptionRule> rules = {
        {L"--message", L"FILE", true}, {L"--vault", L"DIR", false}, {L"--work", L"DIR", true}};
    rules.insert(rules.end(), further.begin(), further.end());
    return rules;
}

bool LoadRunInput(const Options& options, RunInput& input) {
    if (options.Has(L"--vault")) input.vault = FullPath(options.Value(L"--vault"));
    input.work = FullPath(options.Value(L"--work"));
    if (options.Has(L"--vault") && !FolderExists(input.vault)) {
        TellError(TextId::NoVault, {options.Value(L"--vault")});
        return false;
    }
    if (!ReadMessageFile(FullPath(options.Value(L"--message")), input.message)) return false;
    if (!input.vault.IsEmpty()) ::SetEnvironmentVariableW(L"DURVELL_VAULT", input.vault);
    return true;
}

bool PrepareWorkFolder(const RunInput& input) {
    if (EnsureFolder(input.work)) return true;
    TellError(TextId::NoWorkFolder, {input.work});
    return false;
}

bool StartMessage(CPLMInteract& plm, StartOperation operation, const CString& message, const CString& folder,
                  MessageRecords& records) {
    SLoginInfo* login = nullptr;
    SSignType* steps = nullptr;
    SSignType* files = nullptr;
    const long started = (plm.*operation)(InText(message), InText(folder), &login, &steps, &files);
    records.login.reset(login);
    records.steps.reset(steps);
    records.files.reset(files);
    return started != 0;
}

} // namespace host
