// back-sign: signs every document of a message without showing anything.
#pragma once

#include "host/Command.h"
#include "host/RunInput.h"

namespace host {

class BackSignCommand : public Command {
public:
    static std::vector<OptionRule> Rules();
    int Run(const Options& options) override;

private:
    int SignAll(const RunInput& input, const CString& returnPath);
};

} // namespace host
