// append: merges a further message into the one that the work folder keeps.
#pragma once

#include "host/Command.h"
#include "host/RunInput.h"

namespace host {

class AppendCommand : public Command {
public:
    static std::vector<OptionRule> Rules();
    int Run(const Options& options) override;
};

} // namespace host
