// log: the sign record that waits to be sent.
#pragma once

#include "neighbours/qormodel.h"
#include "host/Command.h"

namespace host {

class LogCommand : public Command {
public:
    static std::vector<OptionRule> Rules();
    int Run(const Options& options) override;

private:
    int PrintRecord(const CString& file);
    void AddRow(QORMODEL::IQORDataEntry& entry);

    std::vector<std::vector<CString>> m_rows;
};

} // namespace host
