#include "plm/RecordIndex.h"

#include <algorithm>
#include <utility>

#include "base/ExclusiveLock.h"
#include "base/WholeFile.h"
#include "module/BstrText.h"

using _com_util::CheckError;

namespace varnoke {

namespace {

constexpr ULONGLONG kTailSize = 1024; // bytes

SRWLOCK g_lock = SRWLOCK_INIT;
KnownRecord g_known;

std::wstring KeyOf(const CString& type, const CString& document, const CString& role) {
    std::wstring key(type);
    key.append(1, L'\0').append(document).append(1, L'\0').append(role);
    return key;
}

/// What tells whether a file has changed.
bool Look(HANDLE file, KnownRecord& record) {
    LARGE_INTEGER size = {}, place = {};
    if (!::GetFileSizeEx(file, &size) || !::GetFileTime(file, nullptr, nullptr, &record.time)) return false;
    record.size = static_cast<ULONGLONG>(size.QuadPart);
    record.tail.resize(static_cast<size_t>((std::min)(record.size, kTailSize)));
    place.QuadPart = static_cast<LONGLONG>(record.size - record.tail.size());
    const DWORD wanted = static_cast<DWORD>(record.tail.size());
    DWORD read = 0;
    return ::SetFilePointerEx(file, place, nullptr, FILE_BEGIN) &&
           ::ReadFile(file, &record.tail[0], wanted, &read, nullptr) && read == wanted;
}

} // namespace

void RecordIndex::Read(QORMODEL::IQORDataModel* model) {
    *this = RecordIndex();
    long count = 0;
    CheckError(model->GetCount(&count));
    for (long index = 0; index < count; ++index) {
        QORMODEL::IQORDataEntryPtr entry;
        CheckError(model->GetEntry(index, &entry));
        _bstr_t type;
        CheckError(entry->GetType(type.GetAddress()));
        Add(ToText(type), EntryProperty(entry, L"QORMFILEID"), EntryProperty(entry, L"QORMROLE"),
            EntryProperty(entry, L"QORMTYPE"));
    }
}

void RecordIndex::Add(const SignLogSource& source) {
    Add(source.entryType, source.documentId, source.role, source.kind);
}

void RecordIndex::Add(const CString& type, const CString& document, const CString& role,
                      const CString& kind) {
    Kinds& kinds = m_kinds[KeyOf(type, document, role)];
    ++(kind == L"D" ? kinds.deletions : kinds.signatures);
    m_lastType = type;
    ++m_count;
}

LogOutcome RecordIndex::OutcomeOf(const SignLogSource& source) const {
    // Whether an entry without a document is found by an empty name is the model's business.
    if (source.documentId.IsEmpty()) return LogOutcome::Rewritten;
    const auto found = m_kinds.find(KeyOf(source.entryType, source.documentId, source.role));
    if (found == m_kinds.end()) return LogOutcome::Appended;
    if (found->second.signatures > 0 || found->second.deletions > 1) return LogOutcome::Rewritten;
    return source.kind == L"D" ? LogOutcome::Logged : LogOutcome::Appended;
}

void KnownRecord::Note(const CString& recordPath) {
    const base::FileHandle file = base::OpenForReading(recordPath);
    path = file && Look(file.get(), *this) ? recordPath : L"";
}

bool KnownRecord::IsCurrent(HANDLE file) const {
    KnownRecord now;
    return Look(file, now) && now.size == size && ::CompareFileTime(&now.time, &time) == 0 &&
           now.tail == tail;
}

KnownRecord TakeKnownRecord() {
    const base::ExclusiveLock lock(g_lock);
    return std::exchange(g_known, KnownRecord());
}

void KeepKnownRecord(KnownRecord&& record) {
    const base::ExclusiveLock lock(g_lock);
    g_known = std::move(record);
}

} // namespace varnoke
