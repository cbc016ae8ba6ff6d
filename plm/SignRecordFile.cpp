// The local record file of the sign log, DocSignRecord.xml.
#include "plm/SignRecordFile.h"

#include "neighbours/qorparser.h"
#include "plm/SignDataFolder.h"
#include "plm/TemporaryFile.h"

using _com_util::CheckError;

namespace varnoke {

namespace {

bool IsThere(const CString& path) {
    return ::GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES;
}

// Copies a file that can't be read as a record to a name of its own, so that writing a new record loses
// nothing. Returns the copy's path, empty on failure.
CString KeepCopy(const CString& signDataFolder) {
    constexpr int kMostCopies = 1000;
    for (int number = 1; number <= kMostCopies; ++number) {
        CString copy;
        copy.Format(L"%sDocSignRecord.unreadable%d.xml", static_cast<const wchar_t*>(signDataFolder), number);
        if (::CopyFileW(SignRecordPath(signDataFolder), copy, TRUE)) return copy;
        if (::GetLastError() != ERROR_FILE_EXISTS) break;
    }
    return CString();
}

} // namespace

CString SignRecordPath(const CString& signDataFolder) {
    return signDataFolder + L"DocSignRecord.xml";
}

CString SignWorkPath(const CString& signDataFolder) {
    return signDataFolder + L"DocTemt.xml";
}

bool SignRecordFile::Create() {
    // With servers of every kind allowed, this puts the object into the running state, too.
    return SUCCEEDED(m_model.CreateInstance(QORMODEL::CLSID_QORDataModel, nullptr, CLSCTX_ALL)) && m_model;
}

void SignRecordFile::Read(const CString& folder) {
    m_folder = MakeSignDataFolder(folder);
    const CString path = SignRecordPath(m_folder);
    MakeWritable(path);
    CQORXmlDataParser parser;
    const int result = parser.parseDataFile(path, m_model, nullptr);
    CheckError(result);
    m_unreadable = result == 0 && IsThere(path);
}

bool SignRecordFile::Save() {
    TemporaryFile temporary(m_folder);
    if (temporary.Path().IsEmpty()) return false;
    CQORXmlDataParser parser;
    const int result = parser.saveToFile(m_model, temporary.Path());
    CheckError(result);
    if (result == 0) return false;
    const CString copy = m_unreadable ? KeepCopy(m_folder) : CString();
    if (m_unreadable && copy.IsEmpty()) return false;
    const bool replaced = temporary.MoveTo(SignRecordPath(m_folder));
    if (!replaced && m_unreadable) ::DeleteFileW(copy);
    return replaced;
}

} // namespace varnoke
