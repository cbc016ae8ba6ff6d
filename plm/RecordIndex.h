// What is known of a sign record without reading it.
#pragma once

#include <afxwin.h>
#include <string>
#include <unordered_map>

#include "neighbours/qormodel.h"
#include "plm/SignLogEntry.h"

namespace varnoke {

/// What a further signature or deletion means for a record.
enum class LogOutcome { Logged, Appended, Rewritten };

/// The entries of a record by type, document and role.
class RecordIndex {
public:
    /// Notes all entries of the model. Failing calls of the model raise _com_error.
    void Read(QORMODEL::IQORDataModel* model);
    void Add(const SignLogSource& source);

    LogOutcome OutcomeOf(const SignLogSource& source) const;
    long Count() const { return m_count; }
    /// The type of the last entry, empty when there is none.
    const std::wstring& LastType() const { return m_lastType; }

private:
    struct Kinds {
        int signatures = 0;
        int deletions = 0;
    };

    void Add(const CString& type, const CString& document, const CString& role, const CString& kind);

    std::unordered_map<std::wstring, Kinds> m_kinds;
    std::wstring m_lastType;
    long m_count = 0;
};

/// Whether an entry may be put behind the others in the file as it is.
enum class RecordForm {
    Found,   ///< no: nothing is known of how the file was written
    Written, ///< perhaps: the parser library wrote it
    Proven   ///< yes: a file that was made so is what the parser library would have written
};

/// The record that was used last, as it is on the disk.
struct KnownRecord {
    /// Notes what the file is like now; forgets it when that can't be told.
    void Note(const CString& recordPath);
    /// Whether the open file is still the one that was noted.
    bool IsCurrent(HANDLE file) const;

    std::wstring path;   ///< empty: nothing is known
    ULONGLONG size = 0;  ///< bytes
    FILETIME time = {};  ///< of the last write
    std::string tail;    ///< the last bytes: with them the identifier of the last entry
    std::string standBy; ///< what the parser library writes for one empty entry of the last type
    RecordIndex index;
    RecordForm form = RecordForm::Found;
};

/// Takes what is kept of the last record from its place, so that a call which fails half-way leaves nothing.
KnownRecord TakeKnownRecord();
void KeepKnownRecord(KnownRecord&& record);

} // namespace varnoke
