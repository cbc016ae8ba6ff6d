// The program's commands.
#pragma once

#include <memory>
#include <vector>

#include "host/Command.h"
#include "host/Texts.h"

namespace host {

struct CommandEntry {
    const wchar_t* name;
    TextId purpose;
    std::vector<OptionRule> (*rules)();
    std::unique_ptr<Command> (*make)();
};

/// Runs the command that the arguments (without the program's name) ask for; prints the usage for bad ones.
int RunCommand(const std::vector<CString>& arguments);

} // namespace host
