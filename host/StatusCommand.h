// status: what the tags say about the documents of a folder.
#pragma once

#include "host/Command.h"
#include "plm/PLMInteract.h"

namespace host {

class CStatusCommand : public CCommand {
public:
    static std::vector<SOptionRule> Rules();
    int Run(const COptions& options) override;

private:
    void AddRow(const CString& folder, const CString& name);

    CPLMInteract m_plm;
    std::vector<std::vector<CString>> m_rows;
};

} // namespace host
