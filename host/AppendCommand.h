// append: merges a further message into the one that the work folder keeps.
#pragma once

#include "host/Command.h"
#include "host/RunInput.h"

namespace host {

class CAppendCommand : public CCommand {
public:
    static std::vector<SOptionRule> Rules();
    int Run(const COptions& options) override;
};

} // namespace host
