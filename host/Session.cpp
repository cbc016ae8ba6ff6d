// One use of the library.
#include <afxwin.h>

#include "host/Records.h"
#include "host/Session.h"

namespace host {

Session::~Session() {
    if (m_signOptOpen) {
        m_signOpt.Logout();
        m_signOpt.Uninitialize();
    }
    if (m_plmOpen) m_plm.Uninitialize();
}

bool Session::Open(bool visible) {
    if (!m_window.Create(visible)) return false;
    m_plmOpen = true;
    m_model = m_plm.Initialize(&m_window) ? TextId::Ready : Outcome::Because(TextId::NoModel);
    return true;
}

bool Session::ConnectSignServer() {
    if (m_connected) return true;
    m_signOptOpen = true;
    m_connected = m_signOpt.Initialize(&m_window) != 0;
    return m_connected;
}

bool Session::Login(const SLoginInfo& login) {
    return m_signOpt.Login(InText(login.m_strUserName), InText(login.m_strPassword),
                           InText(login.m_strPLMServer)) != 0;
}

bool Session::HasSignMethods(CString& missing) {
    constexpr int kNameSize = 1024; // as the library asks for it
    const long found = m_signOpt.CheckMethods(missing.GetBuffer(kNameSize));
    missing.ReleaseBuffer();
    return found != 0;
}

bool Session::SignServerAnswers() {
    CString missing;
    return HasSignMethods(missing);
}

} // namespace host
