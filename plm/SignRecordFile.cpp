#include "plm/SignRecordFile.h"

#include "base/WholeFile.h"
#include "neighbours/qorparser.h"
#include "plm/SignDataFolder.h"

using _com_util::CheckError;
using QORMODEL::IQORDataModel;
using QORMODEL::IQORDataModelPtr;

namespace varnoke {

namespace {

bool IsThere(const CString& path) {
    return ::GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES;
}

bool SaveRecord(IQORDataModel* model, base::TextRef path) {
    CQORXmlDataParser parser;
    const int result = parser.saveToFile(model, path);
    CheckError(result);
    return result != 0;
}

// The parser library is not known to notice a full disk: a file counts as complete when it can be read back.
bool HoldsEntriesOf(base::TextRef path, IQORDataModel* model) {
    const IQORDataModelPtr written = NewDataModel();
    if (!written || !ParseRecord(CString(path), written)) return false;
    long wanted = 0, found = 0;
    CheckError(model->GetCount(&wanted));
    CheckError(written->GetCount(&found));
    return found == wanted;
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

IQORDataModelPtr NewDataModel() {
    IQORDataModelPtr model;
    // With servers of every kind allowed, this puts the object into the running state, too.
    return SUCCEEDED(model.CreateInstance(QORMODEL::CLSID_QORDataModel, nullptr, CLSCTX_ALL)) ? model
                                                                                              : nullptr;
}

bool ParseRecord(const CString& path, IQORDataModel* model) {
    CQORXmlDataParser parser;
    const int result = parser.parseDataFile(path, model, nullptr);
    CheckError(result);
    return result != 0;
}

std::string WrittenRecord(IQORDataModel* model, const CString& signDataFolder) {
    std::string bytes;
    const base::ReplacedFile temporary(SignRecordPath(signDataFolder));
    const std::wstring& path = temporary.TemporaryPath();
    if (!path.empty() && SaveRecord(model, path)) base::ReadWholeFile(path, bytes);
    return bytes;
}

bool SignRecordFile::Read() {
    m_model = NewDataModel();
    if (!m_model) return false;
    MakeWritable(m_path);
    m_unreadable = !ParseRecord(m_path, m_model) && IsThere(m_path);
    return true;
}

bool SignRecordFile::Save() {
    base::ReplacedFile file(m_path);
    const std::wstring& path = file.TemporaryPath();
    if (path.empty() || !SaveRecord(m_model, path) || !HoldsEntriesOf(path, m_model)) return false;
    const CString copy = m_unreadable ? KeepCopy(m_folder) : CString();
    if (m_unreadable && copy.IsEmpty()) return false;
    const bool replaced = file.Replace();
    if (!replaced && m_unreadable) ::DeleteFileW(copy);
    return replaced;
}

} // namespace varnoke
