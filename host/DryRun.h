// back-sign --dry-run: checks everything that a silent run needs and leaves everything as it is.
#pragma once

#include "host/Document.h"
#include "host/RunInput.h"
#include "host/Session.h"

namespace host {

class DryRun {
public:
    explicit DryRun(const RunInput& input) : m_input(input) {}

    /// Works in a private temporary folder, since the library keeps a copy of every message that it reads.
    /// Neither the server nor the login of the signing server is called, so no journal tells of it. Returns
    /// the exit code that a run would have if nothing failed on the way.
    int Run();

private:
    int Check(Session& session, const CString& folder);
    void ReportSettings(CSignOpt& signOpt);
    size_t ReportDocuments(const std::vector<Document>& documents);
    bool IsInVault(const Document& document) const;

    const RunInput& m_input;
};

} // namespace host
