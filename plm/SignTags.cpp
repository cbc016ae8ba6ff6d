// Sign tags: markers that are kept for each document in INI files beside the documents.
#include <afxwin.h>

#include "plm/SignTags.h"
#include "module/Failure.h"
#include "module/ModulePaths.h"
#include "plm/SignDataFolder.h"
#include "plm/TagFile.h"
#include "varnoke/Elements.h"

namespace varnoke {

const wchar_t kSignTag[] = L"DocSignTag";
const wchar_t kSignLogTag[] = L"DocSignLogTag";

namespace {

const wchar_t kTimeTag[] = L"DocSignTimeTag";

bool IsNamed(const wchar_t* folder, const wchar_t* fileName) {
    return IsGiven(folder, L"folder") && IsGiven(fileName, L"fileName");
}

CString TagFileName(const wchar_t* kind) {
    return CString(kind) + L".ini";
}

bool Store(const wchar_t* kind, const CString& signData, const std::vector<TagEntry>& entries) {
    if (entries.empty()) return true;
    const CString path = signData + TagFileName(kind);
    MakeWritable(path);
    return WriteTags(path, kind, entries) || FailWithLastError(Cause::TagNotWritten, path);
}

CString Stored(const wchar_t* kind, const wchar_t* folder, const wchar_t* fileName) {
    const CString path = SignDataFolder(folder) + TagFileName(kind);
    MakeWritable(path);
    return ReadTag(path, kind, fileName);
}

/// Local by the system's time zone; the C run-time library would ask the environment first. A time before
/// 1970 counts as the first second of that year.
SYSTEMTIME LocalTime(FILETIME time) {
    constexpr FILETIME kFirst = {0xD53E8000, 0x019DB1DE};
    if (::CompareFileTime(&time, &kFirst) < 0) time = kFirst;
    SYSTEMTIME utc = {}, local = {};
    ::FileTimeToSystemTime(&time, &utc);
    ::SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local);
    return local;
}

/// Empty when there is no such document.
CString ModificationTime(const CString& folder, const CString& fileName) {
    CString text;
    WIN32_FILE_ATTRIBUTE_DATA facts = {};
    if (::GetFileAttributesExW(JoinPath(folder, fileName), GetFileExInfoStandard, &facts)) {
        const SYSTEMTIME time = LocalTime(facts.ftLastWriteTime);
        text.Format(L"%.4d-%.2d-%.2d_%.2d:%.2d:%.2d", time.wYear, time.wMonth, time.wDay, time.wHour,
                    time.wMinute, time.wSecond);
    } else {
        FailWithLastError(Cause::DocumentMissing, fileName);
    }
    return text;
}

/// The local names of the list's items, without empty ones.
std::vector<CString> DocumentNames(const SSignFileDUL& list) {
    std::vector<CString> names;
    for (const SSignFileDULItem* item : Elements(list.m_lstItem)) {
        if (!item->m_strLocalName.IsEmpty()) names.push_back(item->m_strLocalName);
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
    return Store(kind, MakeSignDataFolder(folder), {{fileName, text}});
}

bool GetTag(const wchar_t* kind, const wchar_t* folder, const wchar_t* fileName, long* value) {
    if (!IsNamed(folder, fileName)) return false;
    if (!value) return Fail(Cause::ArgumentMissing, L"value");
    *value = 0;
    *value = wcstol(Stored(kind, folder, fileName), nullptr, 10);
    return true;
}

bool SetTimeTag(const wchar_t* folder, const wchar_t* fileName) {
    if (!IsNamed(folder, fileName)) return false;
    const CString signData = MakeSignDataFolder(folder);
    const CString time = ModificationTime(folder, fileName);
    return !time.IsEmpty() && Store(kTimeTag, signData, {{fileName, time}});
}

bool HasChanged(const wchar_t* folder, const wchar_t* fileName, long* changed) {
    if (!IsNamed(folder, fileName)) return false;
    if (!changed) return Fail(Cause::ArgumentMissing, L"changed");
    *changed = 0;
    const CString recorded = Stored(kTimeTag, folder, fileName);
    const CString time = ModificationTime(folder, fileName);
    if (time.IsEmpty() || time.CompareNoCase(recorded) == 0) return false;
    *changed = 1;
    return true;
}

bool CopyModificationTime(const wchar_t* folder, const wchar_t* fileName, wchar_t* buffer) {
    if (!IsNamed(folder, fileName)) return false;
    if (!buffer) return Fail(Cause::ArgumentMissing, L"time");
    const CString time = ModificationTime(folder, fileName);
    if (time.IsEmpty()) return false;
    ::lstrcpyW(buffer, time);
    return true;
}

bool ResetTags(const SSignFileDUL* list, bool withLog) {
    if (!HasDocuments(list)) return Fail(Cause::ListUnusable);
    std::vector<TagEntry> entries;
    for (const CString& name : DocumentNames(*list))
        entries.push_back({name, L"0"});
    if (entries.empty()) return true;
    const CString signData = MakeSignDataFolder(list->m_strFolder);
    Store(kSignTag, signData, entries);
    if (withLog) Store(kSignLogTag, signData, entries);
    return true;
}

bool RecordTimes(const SSignFileDUL* list) {
    if (!HasDocuments(list)) return Fail(Cause::ListUnusable);
    const std::vector<CString> names = DocumentNames(*list);
    if (names.empty()) return true;
    const CString signData = MakeSignDataFolder(list->m_strFolder);
    std::vector<TagEntry> entries;
    for (const CString& name : names) {
        const CString time = ModificationTime(list->m_strFolder, name);
        if (!time.IsEmpty()) entries.push_back({name, time});
    }
    Store(kTimeTag, signData, entries);
    return true;
}

} // namespace varnoke
