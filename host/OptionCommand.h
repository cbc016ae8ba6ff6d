// option: shows the library's option dialog.
#pragma once

#include "host/Command.h"

namespace host {

class OptionCommand : public Command {
public:
    static std::vector<OptionRule> Rules();
    int Run(const Options& options) override;
};

} // namespace host
