// varnoke-doctor: runs when everything else is missing, and tells what is.
#include "base/Paths.h"
#include "doctor/Checks.h"
#include "doctor/Probe.h"

int wmain(int argc, wchar_t** argv) {
    if (argc > 1 && std::wstring(argv[1]) == L"--probe")
        return doctor::AnswerProbe(std::vector<std::wstring>(argv + 2, argv + argc));
    doctor::Options options;
    int exitCode = doctor::kExitGood;
    if (!doctor::ReadOptions(argc, argv, options, exitCode)) return exitCode;

    doctor::Report report(options.form);
    const std::wstring settings = base::JoinPath(options.library, L"Varnoke.ini");
    const std::vector<std::wstring> usable = doctor::CheckFiles(options, report);
    doctor::CheckSettings(settings, report);
    doctor::CheckSignServer(settings, options, report);
    doctor::CheckModel(usable, options, report);
    doctor::CheckControls(options, report);
    if (!options.work.empty()) doctor::CheckWorkFolder(options, report);
    report.PrintSummary();
    return report.Faults() ? doctor::kExitFaults : doctor::kExitGood;
}
