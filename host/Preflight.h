// What is looked at before the first signature.
#pragma once

#include <afxwin.h>

#include <vector>

#include "host/Document.h"
#include "host/RunInput.h"
#include "host/Session.h"

namespace host {

/// The checks of a silent run; a dry run makes the same ones and no others. They leave nothing behind and
/// call neither the server nor the login of the signing server.
class Preflight {
public:
    /// Whether work folder and return file have paths that all neighbours can take, and can be written. False
    /// after an error line.
    static bool CheckPlaces(const CString& work, const CString& returnFile);

    /// Whether the system reads the library's settings as they were written. False after an error line.
    static bool CheckSettings();

    /// `session` is borrowed and open.
    Preflight(Session& session, const CString& work, bool log)
        : m_session(session), m_work(work), m_log(log) {}

    /// Model configuration, methods of the signing server, paths of the documents. False after an error line.
    bool Check(const std::vector<Document>& documents);
    /// Tells what a run would find; gives the exit code that it would have if nothing failed on the way.
    int Report(const RunInput& input, const MessageRecords& records);

private:
    void ReportSettings();

    Session& m_session;
    const CString m_work;
    const bool m_log;
    Outcome m_server = TextId::DryNoSignServer;
};

} // namespace host
