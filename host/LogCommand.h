// log: the sign record that waits to be sent.
#pragma once

#include "config/qormodel.h"
#include "host/Command.h"

namespace host {

class CLogCommand : public CCommand {
public:
    static std::vector<SOptionRule> Rules();
    int Run(const COptions& options) override;

private:
    int PrintRecord(const CString& file);
    void AddRow(QORMODEL::IQORDataEntry& entry);

    std::vector<std::vector<CString>> m_rows;
};

} // namespace host
