// Measures whole silent runs, from the message to the return file, with 500 and with 5,000 documents, each
// with and without a sign log. The same files are also written without the library: Wine looks through all of
// a folder for each name that is new in it, so files alone cost more than ten times as much, and it is the
// growth beyond theirs that is held to a limit. The exit code is 1 when a limit is exceeded.
#include <afxwin.h>
#include <objbase.h>

#include "bench/SilentRun.h"
#include "base/ComApartment.h"
#include "base/Owned.h"

#include <cstdio>
#include <cstdlib>

using namespace bench;

namespace {

constexpr int kFew = 500;
constexpr int kGrowth = 10; // the big run has so many times the documents of the small one
constexpr double kGrowthLimit = 11;
constexpr double kLogLimit = 1.0 / 3;

bool Report(const char* what, double ratio, double limit) {
    const bool kept = ratio <= limit;
    std::printf("  %-40s %6.2f  limit %5.2f  %s\n", what, ratio, limit, kept ? "ok" : "EXCEEDED");
    return kept;
}

void Print(const char* what, const Spent& small, const Spent& big) {
    std::printf("%-24s user %8.0f ms, %8.0f ms   wall %8.0f ms, %8.0f ms\n", what, small.user, big.user,
                small.wall, big.wall);
}

bool ReportAll(const RunCosts& small, const RunCosts& big) {
    Print("bare files", small.bare, big.bare);
    Print("run without a log", small.silent, big.silent);
    Print("run with a log", small.logged, big.logged);
    std::printf("  %-40s %6.2f user, %.2f wall\n", "run : bare files", big.logged.user / big.bare.user,
                big.logged.wall / big.bare.wall);
    std::printf("  %-40s %6.2f user, %.2f wall\n", "growth, files included",
                big.logged.user / small.logged.user, big.logged.wall / small.logged.wall);
    bool kept =
        Report("growth beyond the bare files'",
               (big.logged.wall - big.bare.wall) / (small.logged.wall - small.bare.wall), kGrowthLimit);
    kept &= Report("share of the log", 1 - big.silent.wall / big.logged.wall, kLogLimit);
    return kept;
}

/// Adds half of as many small runs as make a big one, each with its share in their mean.
void AddHalf(RunCosts& mean, int documents) {
    for (int run = 0; run < kGrowth / 2; ++run) {
        const RunCosts costs = MeasureRuns(documents);
        for (Spent RunCosts::*part : {&RunCosts::bare, &RunCosts::silent, &RunCosts::logged}) {
            (mean.*part).user += (costs.*part).user / kGrowth;
            (mean.*part).wall += (costs.*part).wall / kGrowth;
        }
    }
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    const base::ComApartment apartment;
    if (FAILED(apartment.Result()) ||
        !AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), 0))
        return 2;
    const int few = argc > 1 ? _wtoi(argv[1]) : kFew;
    // Its folder is where the model configuration lies.
    const base::LibraryHandle services(::LoadLibraryW(L"QORLocal.dll"));
    MeasureRuns(20); // warms up
    // A machine's speed changes within a minute: the small runs take as long, before and behind the big one.
    RunCosts small = {};
    AddHalf(small, few);
    const RunCosts big = MeasureRuns(few * kGrowth);
    AddHalf(small, few);
    return ReportAll(small, big) ? 0 : 1;
}
