// status: what the tags say about the documents of a folder.
#pragma once

#include "host/Command.h"
#include "varnoke/PLMInteract.h"

namespace host {

class StatusCommand : public Command {
public:
    static std::vector<OptionRule> Rules();
    int Run(const Options& options) override;

private:
    void AddRow(const CString& folder, const CString& name);

    CPLMInteract m_plm;
    std::vector<std::vector<CString>> m_rows;
};

} // namespace host
