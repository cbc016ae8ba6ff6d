// Sign tags: markers that are kept for each document in INI files beside the documents.
#include <afxwin.h>

#include "plm/SignTags.h"
#include "module/ModulePaths.h"
#include "module/Text.h"
#include "plm/SignDataFolder.h"
#include "plm/TagFile.h"

namespace varnoke {

const wchar_t kSignTag[] = L"DocSignTag";
const wchar_t kSignLogTag[] = L"DocSignLogTag";

namespace {

const wchar_t kTimeTag[] = L"DocSignTimeTag";

bool IsNamed(const wchar_t* folder, const wchar_t* fileName) {
    return HasText(folder) && HasText(fileName);
}

CString TagFileName(const wchar_t* kind) {
    return CString(kind) + L".ini";
}

bool WriteTag(const wchar_t* kind, const CString& signData, const wchar_t* key, const CString& value) {
    const CString path = signData + TagFileName(kind);
    MakeWritable(path);
    return ::WritePrivateProfileStringW(kind, key, value, path) != FALSE;
}

void WriteTags(const wchar_t* kind, const CString& signData, const std::vector<TagEntry>& entries) {
    if (entries.empty()) return;
    const CString path = signData + TagFileName(kind);
    MakeWritable(path);
    WriteTagEntries(path, kind, entries);
}

/// Empty when there is no such document.
CString ModificationTime(const CString& folder, const CString& fileName) {
    CString text;
    CFileStatus status;
    if (CFile::GetStatus(JoinPath(folder, fileName), status)) {
        const CTime& time = status.m_mtime;
        text.Format(L"%.4d-%.2d-%.2d_%.2d:%.2d:%.2d", time.GetYear(), time.GetMonth(), time.GetDay(),
                    time.GetHour(), time.GetMinute(), time.GetSecond());
    }
    return text;
}

/// The local names of the list's items, without empty ones.
std::vector<CString> DocumentNames(const SSignFileDUL& list) {
    std::vector<CString> names;
    for (POSITION position = list.m_lstItem.GetHeadPosition(); position;) {
        const SSignFileDULItem* item = list.m_lstItem.GetNext(position);
        if (item && !item->m_strLocalName.IsEmpty()) names.push_back(item->m_strLocalName);
    }
    return names;
}

} // namespace

bool HasDocuments(const SSignFileDUL* list) {
    return list && !list->m_lstItem.IsEmpty() && !list->m_strFolder.IsEmpty();
}

bool SetTag(const wchar_t* kind, const wchar_t* folder, const wchar_t* fileName, long value) {
    if (!IsNamed(folder, fileName)) return false;
    CString text;
    text.Format(L"%d", static_cast<int>(value));
    return WriteTag(kind, MakeSignDataFolder(folder), fileName, text);
}

bool GetTag(const wchar_t* kind, const wchar_t* folder, const wchar_t* fileName, long* value) {
    if (!IsNamed(folder, fileName) || !value) return false;
    *value = 0;
    const CString path = SignDataFolder(folder) + TagFileName(kind);
    MakeWritable(path);
    *value = static_cast<long>(::GetPrivateProfileIntW(kind, fileName, 0, path));
    return true;
}

bool SetTimeTag(const wchar_t* folder, const wchar_t* fileName) {
    if (!IsNamed(folder, fileName)) return false;
    const CString signData = MakeSignDataFolder(folder);
    const CString time = ModificationTime(folder, fileName);
    return !time.IsEmpty() && WriteTag(kTimeTag, signData, fileName, time);
}

bool HasChanged(const wchar_t* folder, const wchar_t* fileName, long* changed) {
    if (!IsNamed(folder, fileName) || !changed) return false;
    *changed = 0;
    const CString path = SignDataFolder(folder) + TagFileName(kTimeTag);
    MakeWritable(path);
    wchar_t recorded[1024] = {};
    ::GetPrivateProfileStringW(kTimeTag, fileName, L"", recorded, 1024, path);
    const CString time = ModificationTime(folder, fileName);
    if (time.IsEmpty() || time.CompareNoCase(recorded) == 0) return false;
    *changed = 1;
    return true;
}

bool CopyModificationTime(const wchar_t* folder, const wchar_t* fileName, wchar_t* buffer) {
    if (!IsNamed(folder, fileName) || !buffer) return false;
    const CString time = ModificationTime(folder, fileName);
    if (time.IsEmpty()) return false;
    ::lstrcpyW(buffer, time);
    return true;
}

bool ResetTags(const SSignFileDUL* list, bool withLog) {
    if (!HasDocuments(list)) return false;
    std::vector<TagEntry> entries;
    for (const CString& name : DocumentNames(*list))
        entries.push_back({name, L"0"});
    if (entries.empty()) return true;
    const CString signData = MakeSignDataFolder(list->m_strFolder);
    WriteTags(kSignTag, signData, entries);
    if (withLog) WriteTags(kSignLogTag, signData, entries);
    return true;
}

bool RecordTimes(const SSignFileDUL* list) {
    if (!HasDocuments(list)) return false;
    const std::vector<CString> names = DocumentNames(*list);
    if (names.empty()) return true;
    const CString signData = MakeSignDataFolder(list->m_strFolder);
    std::vector<TagEntry> entries;
    for (const CString& name : names) {
        const CString time = ModificationTime(list->m_strFolder, name);
        if (!time.IsEmpty()) entries.push_back({name, time});
    }
    WriteTags(kTimeTag, signData, entries);
    return true;
}

} // namespace varnoke
