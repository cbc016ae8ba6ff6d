// The local record file of the sign log, DocSignRecord.xml.
#pragma once

#include <afxwin.h>

#include "neighbours/qormodel.h"

namespace varnoke {

/// The paths of a documents' folder's record file and of the work file beside it.
CString SignRecordPath(const CString& signDataFolder);
CString SignWorkPath(const CString& signDataFolder);

/// The data model of a record file. Failing calls of the model raise _com_error.
class SignRecordFile {
public:
    SignRecordFile() = default;
    SignRecordFile(const SignRecordFile&) = delete;
    SignRecordFile& operator=(const SignRecordFile&) = delete;

    /// Creates an empty model; false when there is none to be had.
    bool Create();
    /// Reads the file of the documents' folder, making SignData where it is missing. A missing or unreadable
    /// file leaves the model empty.
    void Read(const CString& folder);
    /// Puts the model in the place of the file as a whole: after a failure (false) the old file is there
    /// unchanged. An unreadable old file is kept beside the new one.
    bool Save();

    QORMODEL::IQORDataModel* Model() const { return m_model; }

private:
    QORMODEL::IQORDataModelPtr m_model;
    CString m_folder; // SignData, with its trailing backslash
    bool m_unreadable = false;
};

} // namespace varnoke
