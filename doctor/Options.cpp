#include "doctor/Options.h"

#include <windows.h>

#include <cwchar>

#include "base/Paths.h"
#include "base/Text.h"
#include "doctor/Reasons.h"

namespace doctor {

namespace {

constexpr wchar_t kHelp[] =
    L"varnoke-doctor: tells whether signing can work on this machine, and what is missing.\r\n\r\n"
    L"  --library DIR    folder of Varnoke.dll (default: this program's own)\r\n"
    L"  --host DIR       folder of the CAD program (default: the library's)\r\n"
    L"  --work DIR       also look at this documents' folder\r\n"
    L"  --login          also log in to the signing server, as the user of the PLM session\r\n"
    L"  --timeout N      seconds for the network and for each trial (default 3)\r\n"
    L"  --allow-standins take stand-ins for the real thing (demonstrations)\r\n"
    L"  --json           a JSON object a line\r\n"
    L"  --codes          list the reason codes and end\r\n"
    L"  --version, --help\r\n\r\n"
    L"Exit code: 0 all is well, 1 faults were found, 2 bad usage.";

constexpr wchar_t kChineseHelp[] = L"varnoke-doctor：检查本机能否签名以及缺少什么。\r\n\r\n"
                                   L"  --library DIR    Varnoke.dll 所在文件夹（默认：本程序所在文件夹）\r\n"
                                   L"  --host DIR       CAD 程序所在文件夹（默认：同上）\r\n"
                                   L"  --work DIR       同时检查此文档文件夹\r\n"
                                   L"  --login          同时以 PLM 会话的用户登录签名服务器\r\n"
                                   L"  --timeout N      网络及每次试用的时限，秒（默认 3）\r\n"
                                   L"  --allow-standins 允许替身程序（演示用）\r\n"
                                   L"  --json           每行输出一个 JSON 对象\r\n"
                                   L"  --codes          列出原因代码后结束\r\n"
                                   L"  --version, --help\r\n\r\n"
                                   L"退出码：0 正常，1 发现故障，2 用法错误。";

bool Is(const wchar_t* argument, const wchar_t* name) {
    return wcscmp(argument, name) == 0;
}

bool ReadSwitch(const wchar_t* argument, Options& options) {
    if (Is(argument, L"--login")) return options.login = true;
    if (Is(argument, L"--allow-standins")) return options.standIns = true;
    if (Is(argument, L"--json")) return options.form.json = true;
    return false;
}

/// The place for a value that this option takes; null for other options.
std::wstring* PlaceOf(const std::wstring& name, Options& options, std::wstring& timeout) {
    if (name == L"--library") return &options.library;
    if (name == L"--host") return &options.host;
    if (name == L"--work") return &options.work;
    return name == L"--timeout" ? &timeout : nullptr;
}

bool AnswerQuestion(const wchar_t* argument, bool chinese) {
    if (Is(argument, L"--help") || Is(argument, L"-h") || Is(argument, L"/?")) {
        PrintLine(chinese ? kChineseHelp : kHelp);
    } else if (Is(argument, L"--version")) {
        PrintLine(L"varnoke-doctor " DOCTOR_VERSION);
    } else if (Is(argument, L"--codes")) {
        PrintReasons(chinese);
    } else {
        return false;
    }
    return true;
}

bool Refuse(const std::wstring& argument, bool chinese, int& exitCode) {
    PrintLine((chinese ? L"无法识别的参数：" : L"unusable argument: ") + argument +
                  L" (varnoke-doctor --help)",
              true);
    exitCode = kExitUsage;
    return false;
}

} // namespace

bool ReadOptions(int argc, wchar_t** argv, Options& options, int& exitCode) {
    options.form.chinese = UseChinese();
    std::wstring timeout = std::to_wstring(options.timeoutSeconds);
    for (int at = 1; at < argc; ++at) {
        if (AnswerQuestion(argv[at], options.form.chinese)) {
            exitCode = kExitGood;
            return false;
        }
        if (ReadSwitch(argv[at], options)) continue;
        const std::wstring argument = argv[at];
        const size_t equals = argument.find(L'=');
        std::wstring* place = PlaceOf(argument.substr(0, equals), options, timeout);
        const bool apart = equals == std::wstring::npos;
        if (!place || (apart && at + 1 == argc)) return Refuse(argument, options.form.chinese, exitCode);
        *place = apart ? argv[++at] : argument.substr(equals + 1);
    }
    options.timeoutSeconds = static_cast<int>(wcstol(timeout.c_str(), nullptr, 10));
    if (options.timeoutSeconds < 1) return Refuse(L"--timeout " + timeout, options.form.chinese, exitCode);
    if (options.library.empty()) options.library = base::FolderPrefix(base::ModulePath(nullptr));
    options.library = base::WithoutBackslash(base::FullPath(options.library));
    options.host =
        options.host.empty() ? options.library : base::WithoutBackslash(base::FullPath(options.host));
    if (!options.work.empty()) options.work = base::FullPath(options.work);
    return true;
}

} // namespace doctor
