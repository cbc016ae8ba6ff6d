// The local record file of the sign log, DocSignRecord.xml, through the parser library.
#pragma once

#include <afxwin.h>
#include <string>

#include "neighbours/qormodel.h"

namespace varnoke {

/// The paths of a documents' folder's record file and of the work file beside it.
CString SignRecordPath(const CString& signDataFolder);
CString SignWorkPath(const CString& signDataFolder);

/// An empty data model; null when there is none to be had.
QORMODEL::IQORDataModelPtr NewDataModel();

/// Appends a file's entries to the model; false for a file that is missing or isn't a record. Raises
/// _com_error when the model fails, which may then hold a part of them.
bool ParseRecord(const CString& path, QORMODEL::IQORDataModel* model);

/// What the parser library writes for the model, by way of a temporary file in the folder; empty on failure.
/// Raises _com_error when the model fails.
std::string WrittenRecord(QORMODEL::IQORDataModel* model, const CString& signDataFolder);

/// The data model of a record file. Failing calls of the model raise _com_error.
class SignRecordFile {
public:
    /// Of SignData, with its trailing backslash.
    explicit SignRecordFile(const CString& signDataFolder)
        : m_folder(signDataFolder), m_path(SignRecordPath(signDataFolder)) {}
    SignRecordFile& operator=(SignRecordFile&&) = delete;

    /// False when there is no model to be had. A missing or unreadable file leaves the model empty.
    bool Read();
    /// Puts the model in the place of the file as a whole: after a failure (false) the old file is there
    /// unchanged. An unreadable old file is kept beside the new one.
    bool Save();

    QORMODEL::IQORDataModel* Model() const { return m_model; }

private:
    QORMODEL::IQORDataModelPtr m_model;
    CString m_folder;
    CString m_path;
    bool m_unreadable = false;
};

} // namespace varnoke
