// log: the signatures that wait to be sent, as a table.
#include <afxwin.h>

#include "host/Commands.h"
#include "host/Report.h"
#include "host/Document.h"
#include "host/Paths.h"
#include "host/Records.h"
#include "host/Texts.h"
#include "varnoke/Elements.h"
#include "varnoke/PLMInteract.h"

namespace host {

namespace {

/// A letter of the record in words; an unknown one as it stands.
CString WordFor(const CString& letter, const wchar_t* known, TextId word) {
    return letter == known ? CString(Text(word)) : letter;
}

std::vector<CString> RowOf(const SSignObj& entry) {
    const auto value = [&entry](const wchar_t* name) { return PropertyNamed(entry, name, CString()); };
    const CString kind =
        WordFor(WordFor(value(L"QORMTYPE"), L"N", TextId::KindSigned), L"D", TextId::KindDeleted);
    CString document = value(L"QORMFILEID") + L" " + value(L"DOC_NAME");
    return {document.Trim(), value(L"QORMROLE"), kind};
}

} // namespace

std::vector<OptionRule> LogRules() {
    return {{L"--work", L"DIR", true}};
}

int RunLog(const Options& options) {
    const CString folder = FullPath(options.Value(L"--work"));
    if (!FolderExists(folder)) {
        TellError(TextId::NoFolder, {options.Value(L"--work")});
        return kExitRefused;
    }
    CPLMInteract plm;
    SSignType* made = nullptr;
    const long read = plm.GetUnsentSignLog(folder, &made);
    const SignTypePtr entries(made);
    if (!read || !entries) {
        TellError(Outcome::Because(TextId::RecordUnreadable), {folder});
        return kExitFailed;
    }
    if (entries->m_lstObj.IsEmpty()) {
        TellResult(TextId::NoRecord);
        return kExitDone;
    }
    std::vector<std::vector<CString>> rows;
    for (const SSignObj* entry : varnoke::Elements(entries->m_lstObj))
        rows.push_back(RowOf(*entry));
    TellTable(
        L"entry",
        {{L"document", TextId::ColumnDocument}, {L"role", TextId::ColumnRole}, {L"kind", TextId::ColumnKind}},
        rows);
    return kExitDone;
}

} // namespace host
