#include <afxwin.h>

#include <string>

#include "base/Owned.h"
#include "base/TextEncoding.h"
#include "base/WholeFile.h"
#include "host/Commands.h"
#include "host/Report.h"
#include "host/DocumentLine.h"
#include "host/Paths.h"
#include "host/Preflight.h"
#include "host/StandIns.h"
#include "host/Texts.h"

namespace host {

namespace {

/// Characters of the longest path with its terminator that the system takes from programs that don't ask for
/// more; the profile functions and the neighbours never take more.
constexpr int kPathSize = MAX_PATH;
/// Room for the longest name that is used below SignData, temporary names included.
constexpr int kOwnNames = 40;

bool Refuse(const Outcome& reason, const CString& about) {
    TellError(reason, {about});
    return false;
}

bool FitsPath(const CString& path, int further = 0) {
    return path.GetLength() + further < kPathSize || Refuse(TextId::PathTooLong, path);
}

CString SettingsPath() {
    return JoinPath(ModuleFolder(L"Varnoke.dll"), L"Varnoke.ini");
}

/// Whether another program holds the file so that it can't be replaced.
bool IsHeld(const CString& path) {
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return !base::OwnFile(::CreateFileW(path, DELETE, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr)) &&
           ::GetLastError() == ERROR_SHARING_VIOLATION;
}

/// Whether a file can be put in this place, tried with a temporary one.
bool CanPlaceFile(const CString& path) {
    if (FolderExists(path) || IsHeld(path)) return false;
    return !base::ReplacedFile(path).TemporaryPath().empty();
}

} // namespace

bool Preflight::CheckSettings() {
    const CString settings = SettingsPath();
    std::string bytes;
    if (base::ReadWholeFile(settings, bytes) != base::ReadResult::Done) return true;
    return base::IsProfileEncoding(base::EncodingOf(bytes)) || Refuse(TextId::SettingsEncoding, settings);
}

bool Preflight::CheckPlaces(const CString& work, const CString& returnFile) {
    if (!FitsPath(SignDataFile(work, L""), kOwnNames) || !FitsPath(returnFile, kOwnNames)) return false;
    if (!FolderExists(ParentFolder(returnFile) + L"\\")) return Refuse(TextId::NoReturnFolder, returnFile);
    if (!CanPlaceFile(returnFile)) return Refuse(TextId::ReturnFileFailed, returnFile);
    return !FolderExists(work) || CanPlaceFile(JoinPath(work, L"probe.tmp")) ||
           Refuse(TextId::WorkFolderReadOnly, work);
}

bool Preflight::Check(const std::vector<Document>& documents) {
    for (const Document& document : documents) {
        if (!FitsPath(JoinPath(m_work, document.Name()))) return false;
    }
    if (m_log && m_session.Model() != TextId::Ready) return Refuse(m_session.Model(), CString());
    m_server =
        m_session.ConnectSignServer() ? TextId::DrySignServer : Outcome::Because(TextId::DryNoSignServer);
    CString missing;
    return m_server == TextId::DryNoSignServer || m_session.HasSignMethods(missing) ||
           Refuse(TextId::MissingMethod, missing);
}

int Preflight::Report(const RunInput& input, const MessageRecords& records) {
    const std::vector<Document> documents = DocumentsOf(*records.files);
    Tell(TextId::DryMessage, {records.login->m_strUserName, NumberText(documents.size())});
    if (!input.vault.IsEmpty()) Tell(TextId::DryVault, {input.vault});
    Tell(m_server);
    ReportSettings();
    size_t ready = 0;
    const std::vector<TextId> refusals = RefusalsOf(documents);
    for (size_t i = 0; i < documents.size(); ++i) {
        if (m_server == TextId::DrySignServer && refusals[i] == TextId::Ready) ++ready;
        TellDocument(documents[i].Name(), i, documents.size(), refusals[i]);
    }
    TellStandIns();
    TellResult(TextId::DrySummary, {NumberText(ready), NumberText(documents.size())});
    return ExitOfCount(ready, documents.size());
}

void Preflight::ReportSettings() {
    // The sign parameters come from the settings alone, so that assembling them shows what the run would use.
    SSignInfo* made = nullptr;
    const long assembled = m_session.SignOpt().GetSignInfoForBackSign(InText(m_work), &made);
    const SignInfoPtr info(made);
    const CString settings = SettingsPath();
    Tell(FileExists(settings) ? TextId::DrySettings : TextId::DryDefaults, {settings});
    if (assembled && info) Tell(TextId::DryDate, {info->m_strDateText, info->m_strDateFontName});
}

} // namespace host
