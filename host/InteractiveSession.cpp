// A session with a visible main window.
#include <afxwin.h>

#include "host/Report.h"
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
        TellError(TextId::NoPictureFolder, {pictures});
        return false;
    }
    if (!m_session.Open(true)) {
        TellError(TextId::FrameworkFailed);
        return false;
    }
    if (m_session.Model() != TextId::Ready) TellError(m_session.Model());
    if (!pictures.IsEmpty() || m_options.Has(kAuto)) {
        m_watcher = std::make_unique<DialogWatcher>(pictures, m_options.Has(kAuto));
    }
    return true;
}

void InteractiveSession::Tell(const Outcome& outcome, std::initializer_list<CString> arguments) {
    TellError(outcome, arguments);
    ::MessageBoxW(m_session.Window().GetSafeHwnd(), Explained(Text(outcome.id, arguments), outcome),
                  Text(TextId::WindowTitle), MB_OK | MB_ICONWARNING);
}

bool InteractiveSession::Holds(const RunLock& lock, const CString& work) {
    if (lock.State() == RunLock::Result::Held) return true;
    Tell(TextId::WorkFolderBusy, {work});
    return false;
}

} // namespace host
