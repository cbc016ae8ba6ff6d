// log: the unsent sign record as a table.
#include <afxwin.h>

#include "neighbours/qorparser.h"
#include "host/Console.h"
#include "host/LogCommand.h"
#include "host/Paths.h"
#include "host/Texts.h"

namespace host {

namespace {

CString PropertyOf(QORMODEL::IQORDataEntry& entry, const wchar_t* name) {
    BSTR value = nullptr;
    if (entry.GetProperty(_bstr_t(name), &value) != S_OK || !value) return CString();
    return CString(static_cast<const wchar_t*>(_bstr_t(value, false)));
}

CString StateOf(QORMODEL::IQORDataEntry& entry) {
    BSTR state = nullptr;
    if (entry.GetState(&state) != S_OK || !state) return CString();
    return CString(static_cast<const wchar_t*>(_bstr_t(state, false)));
}

/// A letter of the record in words; an unknown one as it stands.
CString WordFor(const CString& letter, const wchar_t* known, TextId word) {
    return letter == known ? CString(Text(word)) : letter;
}

} // namespace

std::vector<OptionRule> LogCommand::Rules() {
    return {{L"--work", L"DIR", true}};
}

int LogCommand::Run(const Options& options) {
    const CString folder = FullPath(options.Value(L"--work"));
    if (!FolderExists(folder)) {
        PrintError(Text(TextId::NoFolder, {options.Value(L"--work")}));
        return exitRefused;
    }
    const CString file = SignRecordFile(folder);
    if (!FileExists(file)) {
        PrintLine(Text(TextId::NoRecord));
        return exitNone;
    }
    try {
        return PrintRecord(file);
    } catch (const _com_error&) {
        PrintError(Text(TextId::RecordUnreadable, {file}));
        return exitFailed;
    }
}

int LogCommand::PrintRecord(const CString& file) {
    QORMODEL::IQORDataModelPtr model;
    const HRESULT made = model.CreateInstance(QORMODEL::CLSID_QORDataModel);
    if (FAILED(made)) _com_raise_error(made);
    CQORXmlDataParser parser;
    if (parser.parseDataFile(file, model, nullptr) != 1) _com_raise_error(E_FAIL);

    m_rows = {{Text(TextId::ColumnDocument), Text(TextId::ColumnRole), Text(TextId::ColumnKind),
               Text(TextId::ColumnState)}};
    long count = 0;
    model->GetCount(&count);
    for (long i = 0; i < count; ++i) {
        QORMODEL::IQORDataEntryPtr entry;
        if (model->GetEntry(i, &entry) == S_OK && entry) AddRow(*entry);
    }
    if (m_rows.size() == 1) {
        PrintLine(Text(TextId::NoRecord));
        return exitNone;
    }
    PrintTable(m_rows);
    return exitDone;
}

void LogCommand::AddRow(QORMODEL::IQORDataEntry& entry) {
    CString kind = PropertyOf(entry, L"QORMTYPE");
    kind = WordFor(WordFor(kind, L"N", TextId::KindSigned), L"D", TextId::KindDeleted);
    CString document = PropertyOf(entry, L"QORMFILEID") + L" " + PropertyOf(entry, L"DOC_NAME");
    m_rows.push_back({document.Trim(), PropertyOf(entry, L"QORMROLE"), kind,
                      WordFor(StateOf(entry), L"N", TextId::StateNew)});
}

} // namespace host
