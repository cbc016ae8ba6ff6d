// The program's commands.
#pragma once

#include <memory>
#include <vector>

#include "host/Command.h"
#include "host/Texts.h"

namespace host {

struct SCommandEntry {
    const wchar_t* m_pszName;
    EText m_purpose;
    std::vector<SOptionRule> (*m_pfnRules)();
    std::unique_ptr<CCommand> (*m_pfnMake)();
};

/// Runs the command that the arguments (without the program's name) ask for; prints the usage for bad ones.
int RunCommand(const std::vector<CString>& arguments);

} // namespace host
