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
    m_hasModel = m_plm.Initialize(&m_window) != 0;
    return true;
}

bool Session::ConnectSignServer() {
    m_signOptOpen = true;
    return m_signOpt.Initialize(&m_window) != 0;
}

bool Session::Login(const SLoginInfo& login) {
    return m_signOpt.Login(InText(login.m_strUserName), InText(login.m_strPassword),
                           InText(login.m_strPLMServer)) != 0;
}

} // namespace host
