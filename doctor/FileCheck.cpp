// The library, its neighbours and what they need.
#include <windows.h>

#include <set>

#include "base/Paths.h"
#include "base/Text.h"
#include "base/VersionResource.h"
#include "doctor/Checks.h"
#include "doctor/PeImage.h"
#include "doctor/Places.h"
#include "doctor/Probe.h"

namespace doctor {

namespace {

std::wstring LowerCase(std::wstring text) {
    if (!text.empty()) ::CharLowerBuffW(&text[0], static_cast<DWORD>(text.size()));
    return text;
}

/// A name that Windows maps to a library of its own, without a file of that name.
bool IsApiSet(const std::wstring& name) {
    return name.rfind(L"api-ms-", 0) == 0 || name.rfind(L"ext-ms-", 0) == 0;
}

class FileCheck {
public:
    FileCheck(const Options& options, Report& report) : m_options(options), m_report(report) {}

    /// Whether the DLL can be used as far as its file tells.
    bool CheckFile(const std::wstring& name, const PeImage& library) {
        const std::wstring path = Locate(name, m_options);
        if (path.empty()) return Fail(L"file.missing", name);
        PeImage image;
        if (!image.Read(path)) return Fail(L"file.damaged", name, image.Problem());
        if (!image.IsX64()) return Fail(L"file.wrong-bits", name, path);
        CheckStandIn(name, path, m_options, m_report);
        return CheckImports(name, image) && CheckFunctions(name, image, library);
    }

    /// The DLLs that can be loaded. One process tries them all; after a crash another one tries the rest.
    std::vector<std::wstring> CheckLoad(std::vector<std::wstring> names) {
        std::vector<std::wstring> usable;
        while (!names.empty()) {
            std::vector<std::wstring> arguments = {L"load"};
            for (const std::wstring& name : names)
                arguments.push_back(Locate(name, m_options));
            const ProbeResult probe = RunProbe(arguments, m_options);
            size_t tried = 0;
            for (; tried < names.size() && tried < probe.lines.size(); ++tried) {
                const bool loaded = probe.lines[tried] == L"loaded";
                const std::wstring& path = arguments[tried + 1];
                m_report.Add(loaded ? L"file.ok" : L"file.load-failed", names[tried],
                             loaded ? Described(path) : probe.lines[tried]);
                if (loaded) usable.push_back(names[tried]);
            }
            if (tried < names.size()) {
                ReportBrokenProbe(probe, names[tried], arguments[tried + 1], m_report);
                ++tried;
            }
            names.erase(names.begin(), names.begin() + static_cast<std::ptrdiff_t>(tried));
        }
        return usable;
    }

private:
    bool Fail(const wchar_t* code, const std::wstring& subject, const std::wstring& detail = std::wstring()) {
        m_report.Add(code, subject, detail);
        return false;
    }

    /// Whether a neighbour has every function that the library calls.
    bool CheckFunctions(const std::wstring& name, const PeImage& neighbour, const PeImage& library) {
        for (const ImportedLibrary& imported : library.Imports()) {
            if (!base::SameText(Wide(imported.name), name)) continue;
            for (const std::string& function : imported.functions) {
                if (!neighbour.Exports(function)) return Fail(L"file.function-missing", name, Wide(function));
            }
        }
        return true;
    }

    /// What the DLL, and whatever is no system file behind it, need at load.
    bool CheckImports(const std::wstring& name, const PeImage& image) {
        if (!m_seen.insert(LowerCase(name)).second) return true;
        bool good = true;
        for (const ImportedLibrary& imported : image.Imports()) {
            const std::wstring needed = LowerCase(Wide(imported.name));
            if (imported.delayed || IsApiSet(needed)) continue;
            const std::wstring path = Locate(needed, m_options);
            if (path.empty()) {
                good = Fail(L"file.import-missing", name, Wide(imported.name));
                continue;
            }
            PeImage behind;
            if (!IsSystemFile(path) && behind.Read(path)) good &= CheckImports(needed, behind);
        }
        return good;
    }

    const Options& m_options;
    Report& m_report;
    std::set<std::wstring> m_seen; // whose imports were looked at
};

} // namespace

void CheckStandIn(const std::wstring& name, const std::wstring& file, const Options& options,
                  Report& report) {
    if (!options.standIns && base::IsStandIn(file)) report.Add(L"file.standin", name, file);
}

std::vector<std::wstring> CheckFiles(const Options& options, Report& report) {
    FileCheck check(options, report);
    std::vector<std::wstring> sound;
    PeImage library;
    library.Read(base::JoinPath(options.library, L"Varnoke.dll"));
    for (const wchar_t* name : {L"Varnoke.dll", L"Durvell.dll", L"QORParser.dll", L"QORLocal.dll"}) {
        if (check.CheckFile(name, library)) sound.push_back(name);
    }
    return check.CheckLoad(sound);
}

} // namespace doctor
