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

template <class T>
std::unique_ptr<Command> Make() {
    return std::make_unique<T>();
}

template <class T>
constexpr CommandEntry Entry(const wchar_t* name, TextId purpose) {
    return {name, purpose, &T::Rules, &Make<T>};
}

const CommandEntry kCommands[] = {
    Entry<BackSignCommand>(L"back-sign", TextId::PurposeBackSign),
    Entry<AppendCommand>(L"append", TextId::PurposeAppend),
    Entry<LogCommand>(L"log", TextId::PurposeLog),
    Entry<StatusCommand>(L"status", TextId::PurposeStatus),
    Entry<SignCommand>(L"sign", TextId::PurposeSign),
    Entry<OptionCommand>(L"option", TextId::PurposeOption),
};

void PrintUsage(void (*print)(const CString&)) {
    print(Text(TextId::Usage));
    for (const CommandEntry& command : kCommands) {
        print(CString(L"  ") + command.name + UsageOf(command.rules()));
        print(CString(L"      ") + Text(command.purpose));
    }
    print(Text(TextId::UsageEnd));
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
    for (const CommandEntry& command : kCommands) {
        if (name != command.name) continue;
        Options options;
        CString error;
        const std::vector<CString> rest(arguments.begin() + 1, arguments.end());
        if (!options.Parse(rest, command.rules(), error)) return RefuseUsage(error);
        return command.make()->Run(options);
    }
    return RefuseUsage(Text(TextId::UnknownCommand, {name}));
}

} // namespace host
