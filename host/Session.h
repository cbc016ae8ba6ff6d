// One use of the library: main window, the two exported objects, and their beginning and end.
#pragma once

#include <afxwin.h>

#include "host/MainWindow.h"
#include "host/Outcome.h"
#include "varnoke/PLMInteract.h"
#include "varnoke/SignOpt.h"

namespace host {

class Session {
public:
    Session() = default;
    /// Ends what was begun, in reverse order.
    ~Session();
    Session& operator=(Session&&) = delete;

    /// Makes the main window and begins the exchange with the PLM side. False when there is no window. A
    /// missing model configuration only means that no sign log can be written; see Model().
    bool Open(bool visible);
    /// Connects to the signing server that the settings name; once is enough.
    bool ConnectSignServer();
    bool Login(const SLoginInfo& login);
    /// Whether the connected server has every method that the settings name; else `missing` names the first
    /// it lacks.
    bool HasSignMethods(CString& missing);
    /// False when the connected server has gone.
    bool SignServerAnswers();

    /// Ready, or NoModel with its cause.
    const Outcome& Model() const { return m_model; }
    MainWindow& Window() { return m_window; }
    CPLMInteract& Plm() { return m_plm; }
    CSignOpt& SignOpt() { return m_signOpt; }

private:
    MainWindow m_window; // outlives the objects that show dialogs over it
    CPLMInteract m_plm;
    CSignOpt m_signOpt;
    bool m_plmOpen = false;
    Outcome m_model = TextId::NoModel;
    bool m_signOptOpen = false;
    bool m_connected = false;
};

} // namespace host
