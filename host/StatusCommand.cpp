// status: the sign tags of a folder's documents.
#include <afxwin.h>

#include <algorithm>
#include <numeric>

#include "host/Console.h"
#include "host/Document.h"
#include "host/Paths.h"
#include "host/StatusCommand.h"
#include "host/Texts.h"

namespace host {

namespace {

constexpr wchar_t kFolder[] = L"DIR";

/// A tag file's section is named as the file is.
constexpr const wchar_t* kTags[] = {L"DocSignTimeTag", L"DocSignTag", L"DocSignLogTag"};

/// The keys of a tag file: names of documents.
std::vector<CString> KeysOf(const CString& folder, const CString& tag) {
    const CString file = SignDataFile(folder, tag + L".ini");
    std::vector<wchar_t> keys(4096);
    // A list that didn't fit comes back two characters short of the buffer.
    while (::GetPrivateProfileStringW(tag, nullptr, L"", keys.data(), static_cast<DWORD>(keys.size()),
                                      file) == keys.size() - 2) {
        keys.resize(keys.size() * 2);
    }
    std::vector<CString> names;
    for (const wchar_t* key = keys.data(); *key; key += wcslen(key) + 1) {
        names.push_back(key);
    }
    return names;
}

/// Every document that has a tag of any kind, once, in the order of the files.
std::vector<CString> TaggedDocuments(const CString& folder) {
    std::vector<CString> documents;
    for (const wchar_t* tag : kTags) {
        const std::vector<CString> keys = KeysOf(folder, tag);
        documents.insert(documents.end(), keys.begin(), keys.end());
    }
    std::vector<size_t> order(documents.size());
    std::iota(order.begin(), order.end(), size_t(0));
    const auto compare = [&](size_t a, size_t b) { return CompareFileNames(documents[a], documents[b]); };
    std::stable_sort(order.begin(), order.end(), [&](size_t a, size_t b) { return compare(a, b) < 0; });
    order.erase(
        std::unique(order.begin(), order.end(), [&](size_t a, size_t b) { return compare(a, b) == 0; }),
        order.end());
    std::sort(order.begin(), order.end());
    std::vector<CString> once;
    for (size_t index : order) {
        once.push_back(documents[index]);
    }
    return once;
}

} // namespace

std::vector<OptionRule> StatusCommand::Rules() {
    return {{kFolder, nullptr, true}};
}

int StatusCommand::Run(const Options& options) {
    const CString folder = FullPath(options.Value(kFolder));
    if (!FolderExists(folder)) {
        PrintError(Text(TextId::NoFolder, {options.Value(kFolder)}));
        return exitRefused;
    }
    m_rows = {{Text(TextId::ColumnDocument), Text(TextId::ColumnSign), Text(TextId::ColumnLog),
               Text(TextId::ColumnChange)}};
    for (const CString& name : TaggedDocuments(folder)) {
        AddRow(folder, name);
    }
    if (m_rows.size() == 1) {
        PrintLine(Text(TextId::NoDocuments));
        return exitNone;
    }
    PrintTable(m_rows);
    return exitDone;
}

void StatusCommand::AddRow(const CString& folder, const CString& name) {
    long signTag = 0;
    long logTag = 0;
    long changed = 0;
    m_plm.GetDocSignTag(InText(folder), InText(name), &signTag);
    m_plm.GetDocSignLogTag(InText(folder), InText(name), &logTag);
    m_plm.GetDocSignTimeTag(InText(folder), InText(name), &changed);
    TextId state = changed ? TextId::Changed : TextId::Unchanged;
    if (!FileExists(JoinPath(folder, name))) state = TextId::Missing;

    CString sign;
    CString log;
    sign.Format(L"%ld", signTag);
    log.Format(L"%ld", logTag);
    m_rows.push_back({name, sign, log, Text(state)});
}

} // namespace host
