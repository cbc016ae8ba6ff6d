// option: shows the library's option dialog.
#pragma once

#include "host/Command.h"

namespace host {

class COptionCommand : public CCommand {
public:
    static std::vector<SOptionRule> Rules();
    int Run(const COptions& options) override;
};

} // namespace host
