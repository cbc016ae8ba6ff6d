// status: what the tags say about the documents that runs have fetched to a folder.
#include <afxwin.h>

#include "host/Commands.h"
#include "host/Report.h"
#include "host/Paths.h"
#include "host/RunState.h"
#include "host/Texts.h"
#include "varnoke/PLMInteract.h"

namespace host {

namespace {

constexpr wchar_t kFolder[] = L"DIR";

std::vector<CString> RowOf(CPLMInteract& plm, const CString& folder, const CString& name) {
    long signTag = 0;
    long logTag = 0;
    long changed = 0;
    plm.GetDocSignTag(InText(folder), InText(name), &signTag);
    plm.GetDocSignLogTag(InText(folder), InText(name), &logTag);
    plm.GetDocSignTimeTag(InText(folder), InText(name), &changed);
    TextId state = changed ? TextId::Changed : TextId::Unchanged;
    if (!FileExists(JoinPath(folder, name))) state = TextId::Missing;

    CString sign;
    CString log;
    sign.Format(L"%ld", signTag);
    log.Format(L"%ld", logTag);
    return {name, sign, log, Text(state)};
}

} // namespace

std::vector<OptionRule> StatusRules() {
    return {{kFolder, nullptr, true}};
}

int RunStatus(const Options& options) {
    const CString folder = FullPath(options.Value(kFolder));
    if (!FolderExists(folder)) {
        TellError(TextId::NoFolder, {options.Value(kFolder)});
        return kExitRefused;
    }
    RunState state(folder);
    state.Read();
    if (state.All().empty()) {
        TellResult(TextId::NoDocuments);
        return kExitNone;
    }
    CPLMInteract plm;
    std::vector<std::vector<CString>> rows;
    for (const DocumentState& document : state.All()) {
        rows.push_back(RowOf(plm, folder, document.name));
    }
    TellTable(L"tags",
              {{L"document", TextId::ColumnDocument},
               {L"sign", TextId::ColumnSign},
               {L"log", TextId::ColumnLog},
               {L"file", TextId::ColumnChange}},
              rows);
    return kExitDone;
}

} // namespace host
