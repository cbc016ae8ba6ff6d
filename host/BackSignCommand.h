// back-sign: signs every document of a message without showing anything.
#pragma once

#include "host/Command.h"
#include "host/RunInput.h"

namespace host {

class CBackSignCommand : public CCommand {
public:
    static std::vector<SOptionRule> Rules();
    int Run(const COptions& options) override;

private:
    int SignAll(const SRunInput& input, const CString& returnPath);
};

} // namespace host
