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

std::vector<OptionRule> InteractiveSession::Rules() {
    return {{kPictures, L"DIR", false}, {kAuto, nullptr, false}};
}

bool InteractiveSession::Open() {
    const CString pictures = m_options.Has(kPictures) ? FullPath(m_options.Value(kPictures)) : CString();
    if (!pictures.IsEmpty() && !EnsureFolder(pictures)) {
        PrintError(Text(TextId::NoPictureFolder, {pictures}));
        return false;
    }
    // The library's dialogs follow the host: unaware, they would be enlarged as blurred pictures.
    ::SetProcessDPIAware();
    if (!m_session.Open(true)) {
        PrintError(Text(TextId::FrameworkFailed));
        return false;
    }
    if (!m_session.HasModel()) PrintError(Text(TextId::NoModel));
    if (!pictures.IsEmpty() || m_options.Has(kAuto)) {
        m_watcher = std::make_unique<DialogWatcher>(pictures, m_options.Has(kAuto));
    }
    return true;
}

void InteractiveSession::Tell(const CString& text) {
    PrintError(text);
    ::MessageBoxW(m_session.Window().GetSafeHwnd(), text, Text(TextId::WindowTitle), MB_OK | MB_ICONWARNING);
}

} // namespace host
