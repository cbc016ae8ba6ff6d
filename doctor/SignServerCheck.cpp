// The signing server: registration, file, methods, address, login.
#include <windows.h>

#include "base/Paths.h"
#include "doctor/Checks.h"
#include "doctor/PeImage.h"
#include "doctor/Places.h"
#include "doctor/Probe.h"
#include "doctor/Registration.h"
#include "doctor/SettingTable.h"
#include "neighbours/signserver.h"

namespace doctor {

namespace {

/// Whether the class is registered with a file that can be loaded here.
bool CheckRegistration(const std::wstring& progId, const Options& options, Report& report) {
    const std::wstring classId = ClassOfProgId(progId);
    if (classId.empty()) {
        report.Add(L"progid.not-registered", progId);
        return false;
    }
    const Registered found = FindClass(classId);
    if (found.file.empty()) {
        report.Add(found.only32 ? L"progid.32-bit-only" : L"progid.no-server", progId, classId);
        return false;
    }
    PeImage image;
    if (!base::FileExists(found.file)) {
        report.Add(L"progid.file-missing", progId, found.file);
    } else if (!image.Read(found.file)) {
        report.Add(L"file.damaged", found.file, image.Problem());
    } else if (!image.IsX64()) {
        report.Add(L"file.wrong-bits", progId, found.file);
    } else {
        CheckStandIn(progId, found.file, options, report);
        report.Add(L"progid.ok", progId, Described(found.file));
        return true;
    }
    return false;
}

void CheckMethods(const std::wstring& progId, const std::wstring& settings, const Options& options,
                  Report& report) {
    std::vector<std::wstring> arguments = {L"server", progId};
    for (const wchar_t* method : signserver::kMethods)
        arguments.push_back(ReadSetting(settings, L"DynDisp", method));
    const ProbeResult probe = RunProbe(arguments, options);
    if (!probe.ended || probe.lines.empty()) {
        ReportBrokenProbe(probe, progId, FindClass(ClassOfProgId(progId)).file, report);
        return;
    }
    if (probe.lines[0] != L"created") {
        report.Add(L"progid.create-failed", progId, probe.lines[0]);
        return;
    }
    for (size_t i = 0; i < std::size(signserver::kMethods) && i + 1 < probe.lines.size(); ++i)
        report.Add(probe.lines[i + 1] == L"1" ? L"method.ok" : L"method.missing", signserver::kMethods[i],
                   arguments[i + 2]);
}

void CheckLogin(const std::wstring& progId, const std::wstring& settings, const Options& options,
                Report& report) {
    const ProbeResult probe = RunProbe({L"login", progId, ReadSetting(settings, L"DynDisp", L"Login"),
                                        settings, Locate(L"Durvell.dll", options)},
                                       options);
    if (!probe.ended || probe.lines.empty()) {
        ReportBrokenProbe(probe, progId, L"Login", report);
    } else if (probe.lines[0].empty()) {
        report.Add(L"login.no-session", L"Durvell.dll", probe.lines.size() > 1 ? probe.lines[1] : L"");
    } else {
        report.Add(probe.lines.back() == L"1" ? L"login.ok" : L"login.refused", probe.lines[0]);
    }
}

} // namespace

void CheckSignServer(const std::wstring& settings, const Options& options, Report& report) {
    const std::wstring progId = ReadSetting(settings, L"DynDisp", L"ProgID");
    const bool usable = CheckRegistration(progId, options, report);
    if (usable) CheckMethods(progId, settings, options, report);
    CheckAddress(ReadSetting(settings, L"SignServer", L"ServerIP"),
                 ReadSetting(settings, L"SignServer", L"ServerPort"), options, report);
    if (usable && options.login) CheckLogin(progId, settings, options, report);
}

} // namespace doctor
