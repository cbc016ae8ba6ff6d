// The program's commands.
#include <afxwin.h>

#include "host/AppendCommand.h"
#include "host/BackSignCommand.h"
#include "host/CommandTable.h"
#include "host/Console.h"
#include "host/LogCommand.h"
#include "host/OptionCommand.h"
#include "host/SignCommand.h"
#include "host/StatusCommand.h"

namespace host {

namespace {

template <class Command>
std::unique_ptr<CCommand> Make() {
    return std::make_unique<Command>();
}

template <class Command>
constexpr SCommandEntry Entry(const wchar_t* name, EText purpose) {
    return {name, purpose, &Command::Rules, &Make<Command>};
}

const SCommandEntry kCommands[] = {
    Entry<CBackSignCommand>(L"back-sign", EText::PurposeBackSign),
    Entry<CAppendCommand>(L"append", EText::PurposeAppend),
    Entry<CLogCommand>(L"log", EText::PurposeLog),
    Entry<CStatusCommand>(L"status", EText::PurposeStatus),
    Entry<CSignCommand>(L"sign", EText::PurposeSign),
    Entry<COptionCommand>(L"option", EText::PurposeOption),
};

void PrintUsage(void (*print)(const CString&)) {
    print(Text(EText::Usage));
    for (const SCommandEntry& command : kCommands) {
        print(CString(L"  ") + command.m_pszName + UsageOf(command.m_pfnRules()));
        print(CString(L"      ") + Text(command.m_purpose));
    }
    print(Text(EText::UsageEnd));
}

int RefuseUsage(const CString& error) {
    if (!error.IsEmpty()) PrintError(error);
    PrintUsage(PrintError);
    return exitRefused;
}

} // namespace

int RunCommand(const std::vector<CString>& arguments) {
    if (arguments.empty()) return RefuseUsage(CString());
    const CString& name = arguments.front();
    if (name == L"--help" || name == L"help") {
        PrintUsage(PrintLine);
        return exitDone;
    }
    for (const SCommandEntry& command : kCommands) {
        if (name != command.m_pszName) continue;
        COptions options;
        CString error;
        const std::vector<CString> rest(arguments.begin() + 1, arguments.end());
        if (!options.Parse(rest, command.m_pfnRules(), error)) return RefuseUsage(error);
        return command.m_pfnMake()->Run(options);
    }
    return RefuseUsage(Text(EText::UnknownCommand, {name}));
}

} // namespace host
