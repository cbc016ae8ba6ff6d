// The program's commands.
#include <afxwin.h>

#include "host/Commands.h"
#include "host/Console.h"
#include "host/Report.h"
#include "host/Texts.h"

namespace host {

namespace {

struct CommandEntry {
    const wchar_t* name;
    TextId purpose;
    std::vector<OptionRule> (*rules)();
    int (*run)(const Options& options);
};

constexpr CommandEntry kCommands[] = {
    {L"back-sign", TextId::PurposeBackSign, &BackSignRules, &RunBackSign},
    {L"append", TextId::PurposeAppend, &AppendRules, &RunAppend},
    {L"log", TextId::PurposeLog, &LogRules, &RunLog},
    {L"status", TextId::PurposeStatus, &StatusRules, &RunStatus},
    {L"sign", TextId::PurposeSign, &SignRules, &RunSign},
    {L"option", TextId::PurposeOption, &OptionRules, &RunOption},
};

bool AsksForHelp(const CString& argument) {
    for (const wchar_t* word : {L"--help", L"-h", L"/?", L"help"}) {
        if (argument == word) return true;
    }
    return false;
}

std::vector<OptionRule> RulesOf(const CommandEntry& command) {
    std::vector<OptionRule> rules = command.rules();
    for (const OptionRule& rule : ReportRules())
        rules.push_back(rule);
    return rules;
}

void PrintHelp(const CommandEntry& command) {
    PrintLine(CString(L"  ") + command.name + UsageOf(RulesOf(command)));
    PrintLine(CString(L"      ") + Text(command.purpose));
}

int PrintHelp() {
    PrintLine(Text(TextId::Usage));
    for (const CommandEntry& command : kCommands) {
        PrintHelp(command);
    }
    PrintLine(Text(TextId::UsageEnd));
    return kExitDone;
}

int RefuseUsage(const CString& error) {
    PrintError(error);
    PrintError(Text(TextId::UsageHint));
    return kExitRefused;
}

int Run(const CommandEntry& command, const std::vector<CString>& arguments) {
    for (const CString& argument : arguments) {
        if (!AsksForHelp(argument)) continue;
        PrintHelp(command);
        return kExitDone;
    }
    Options options;
    CString error;
    if (!options.Parse(arguments, RulesOf(command), error)) return RefuseUsage(error);
    return EndReport(BeginReport(options, command.name) ? command.run(options) : kExitRefused);
}

} // namespace

int RunCommand(const std::vector<CString>& arguments) {
    if (arguments.empty()) return RefuseUsage(Text(TextId::Usage));
    const CString& name = arguments.front();
    if (AsksForHelp(name)) return PrintHelp();
    if (name == L"--version") {
        PrintLine(CString(L"varnoke-host ") + VARNOKE_VERSION);
        return kExitDone;
    }
    for (const CommandEntry& command : kCommands) {
        if (name == command.name)
            return Run(command, std::vector<CString>(arguments.begin() + 1, arguments.end()));
    }
    return RefuseUsage(Text(TextId::UnknownCommand, {name}));
}

} // namespace host
