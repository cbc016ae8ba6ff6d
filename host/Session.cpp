// One use of the library.
#include <afxwin.h>

#include "host/Records.h"
#include "host/Session.h"

namespace host {

CSession::~CSession() {
    if (m_bSignOpt) {
        m_signOpt.Logout();
        m_signOpt.Uninitialize();
    }
    if (m_bPlm) m_plm.Uninitialize();
}

bool CSession::Open(bool visible) {
    if (!m_window.Create(visible)) return false;
    m_bPlm = true;
    m_bModel = m_plm.Initialize(&m_window) != 0;
    return true;
}

bool CSession::ConnectSignServer() {
    m_bSignOpt = true;
    return m_signOpt.Initialize(&m_window) != 0;
}

bool CSession::Login(const SLoginInfo& login) {
    return m_signOpt.Login(InText(login.m_strUserName), InText(login.m_strPassword),
                           InText(login.m_strPLMServer)) != 0;
}

} // namespace host
