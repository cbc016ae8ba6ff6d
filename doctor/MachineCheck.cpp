// Model configuration, controls and folders: what else the machine must have.
#include <windows.h>

#include <algorithm>

#include "base/Owned.h"
#include "base/Paths.h"
#include "base/WholeFile.h"
#include "doctor/Checks.h"
#include "doctor/Places.h"
#include "doctor/Probe.h"
#include "doctor/Registration.h"
#include "neighbours/DwgViewerIds.h"
#include "neighbours/QORGridIds.h"

namespace doctor {

namespace {

std::wstring IdText(const GUID& id) {
    wchar_t text[40] = {};
    ::StringFromGUID2(id, text, 40);
    return text;
}

void CheckControl(const wchar_t* name, const CLSID& id, const Options& options, Report& report) {
    const Registered found = FindClass(IdText(id));
    if (found.file.empty()) {
        report.Add(L"control.not-registered", name, IdText(id));
    } else if (!base::FileExists(found.file)) {
        report.Add(L"control.file-missing", name, found.file);
    } else {
        CheckStandIn(name, found.file, options, report);
        report.Add(L"control.ok", name, Described(found.file));
    }
}

void CheckRecord(const std::wstring& folder, Report& report) {
    for (const wchar_t* name : {L"SignData\\DocSignRecord.xml", L"SignData\\StartSign.Xml"}) {
        const std::wstring path = base::JoinPath(folder, name);
        const base::FileHandle file = base::OwnFile(::CreateFileW(
            path.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE,
            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING, 0, nullptr));
        const DWORD error = file ? ERROR_SUCCESS : ::GetLastError();
        if (error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION)
            report.Add(L"work.locked", path, ErrorText(error));
    }
}

} // namespace

void CheckModel(const std::vector<std::wstring>& usable, const Options& options, Report& report) {
    const std::wstring services = Locate(L"QORLocal.dll", options);
    const std::wstring file = services.empty() ? base::JoinPath(options.host, L"ModelConfig.Xml")
                                               : base::FolderPrefix(services) + L"ModelConfig.Xml";
    const auto can = [&usable](const wchar_t* name) {
        return std::find(usable.begin(), usable.end(), name) != usable.end();
    };
    if (!base::FileExists(file)) {
        report.Add(L"model.missing", file);
        return;
    }
    // Without the local services the library would look beside the program that tries it, which is not the
    // host.
    if (!can(L"Varnoke.dll") || !can(L"QORParser.dll") || services.empty()) {
        report.Add(L"model.not-checked", file);
        return;
    }
    const ProbeResult probe =
        RunProbe({L"model", base::JoinPath(options.library, L"Varnoke.dll"), services}, options);
    if (!probe.ended) {
        ReportBrokenProbe(probe, L"QORParser.dll", file, report);
        return;
    }
    if (probe.lines.empty() || probe.lines[0] != L"1") {
        report.Add(L"model.broken", file);
        return;
    }
    report.Add(L"model.ok", file);
    constexpr const wchar_t* kParts[] = {L"LocalObjectConfigId", L"ServerObjectConfigId", L"DesignDoMain"};
    for (size_t i = 0; i < std::size(kParts) && i + 1 < probe.lines.size(); ++i)
        report.Add(probe.lines[i + 1] == L"1" ? L"model.part" : L"model.part-missing", kParts[i], file);
}

void CheckControls(const Options& options, Report& report) {
    constexpr GUID kXmlDocument = {
        0x88d96a05, 0xf192, 0x11d4, {0xa6, 0x5f, 0x00, 0x40, 0x96, 0x32, 0x51, 0xe5}};
    if (FindClass(IdText(kXmlDocument)).file.empty()) report.Add(L"system.xml-missing", L"MSXML 6.0");
    CheckControl(L"QORGrid", varnoke::kQORGridClass, options, report);
    CheckControl(L"DwgViewer", varnoke::kDwgViewerClass, options, report);
}

void CheckWorkFolder(const Options& options, Report& report) {
    constexpr size_t kRoom = 1 << 20; // bytes; a sign record with its copy is smaller
    const std::wstring& folder = options.work;
    if (!base::FolderExists(folder)) {
        report.Add(L"work.missing", folder);
        return;
    }
    base::ReplacedFile file(base::JoinPath(folder, L"varnoke-doctor.tmp"));
    if (file.TemporaryPath().empty()) {
        report.Add(L"work.denied", folder, ErrorText(::GetLastError()));
    } else if (!file.Write(std::string(kRoom, 'x'))) {
        report.Add(L"work.disk-full", folder, ErrorText(::GetLastError()));
    } else {
        report.Add(L"work.ok", folder);
    }
    CheckRecord(folder, report);
}

} // namespace doctor
