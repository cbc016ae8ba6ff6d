// A copy of the sign record, so that a change of the record can be undone.
#pragma once

#include <afxwin.h>

namespace host {

class RecordCopy {
public:
    /// `folder` holds the documents; `name` is the copy's file name beside the record.
    RecordCopy(const CString& folder, const wchar_t* name);

    bool Exists() const;
    /// Copies the record as it is; of a missing record there is no copy. False on failure.
    bool Take() const;
    /// Puts the record back as it was when the copy was taken. On failure (false) the copy stays.
    bool Restore() const;
    void Discard() const;

private:
    CString m_record;
    CString m_copy;
};

} // namespace host
