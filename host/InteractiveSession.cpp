// A session with a visible main window.
#include <afxwin.h>

#include "host/Console.h"
#include "host/InteractiveSession.h"
#include "host/Paths.h"
#include "host/Texts.h"

namespace host {

namespace {

constexpr wchar_t kPictures[] = L"--pictures";
constexpr wchar_t kAuto[] = L"--auto";

} // namespace

std::vector<SOptionRule> CInteractiveSession::Rules() {
    return {{kPictures, L"DIR", false}, {kAuto, nullptr, false}};
}

bool CInteractiveSession::Open() {
    const CString pictures = m_options.Has(kPictures) ? FullPath(m_options.Value(kPictures)) : CString();
    if (!pictures.IsEmpty() && !EnsureFolder(pictures)) {
        PrintError(Text(EText::NoPictureFolder, {pictures}));
        return false;
    }
    // The library's dialogs follow the host: unaware, they would be enlarged as blurred pictures.
    ::SetProcessDPIAware();
    if (!m_session.Open(true)) {
        PrintError(Text(EText::FrameworkFailed));
        return false;
    }
    if (!m_session.HasModel()) PrintError(Text(EText::NoModel));
    if (!pictures.IsEmpty() || m_options.Has(kAuto)) {
        m_pWatcher = std::make_unique<CDialogWatcher>(pictures, m_options.Has(kAuto));
    }
    return true;
}

} // namespace host
