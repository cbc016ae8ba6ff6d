// Measures how the library's cost compares with the bare XML parser's and how it grows with the number of
// documents. Prints one line per measure with its limit; the exit code is 1 when a limit is exceeded.
#include <afxwin.h>
#include <objbase.h>

#include "bench/BareParser.h"
#include "bench/Measures.h"
#include "base/ComApartment.h"
#include "base/Owned.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace bench;

namespace {

constexpr int kFew = 1000;
constexpr int kGrowth = 10; // the big case has so many times the documents of the small one
constexpr double kGrowthLimit = 12;

/// The lowest costs of several rounds of the same total number of documents, once in small portions and once
/// in one big one. Both take about as long, so that a busy machine disturbs them alike.
struct Comparison {
    Costs small, big;

    Comparison(const Workspace& workspace, CPLMInteract& interact, int rounds) {
        small.fill(1e9);
        big.fill(1e9);
        for (int round = 0; round < rounds; ++round) {
            Costs sum = {};
            for (int portion = 0; portion < kGrowth; ++portion) {
                const Costs costs = MeasureAll(workspace, interact, kFew);
                for (int cost = 0; cost < CostCount; ++cost)
                    sum[cost] += costs[cost];
            }
            const Costs costs = MeasureAll(workspace, interact, kFew * kGrowth);
            for (int cost = 0; cost < CostCount; ++cost) {
                small[cost] = (std::min)(small[cost], sum[cost]);
                big[cost] = (std::min)(big[cost], costs[cost]);
            }
        }
    }
};

bool Report(const char* what, double ratio, double limit) {
    const bool kept = ratio <= limit;
    std::printf("%-52s %6.2f  limit %5.2f  %s\n", what, ratio, limit, kept ? "ok" : "EXCEEDED");
    return kept;
}

bool ReportGrowth(const char* what, const Comparison& times, Cost cost) {
    std::printf("%-52s %6.1f ms, %.1f ms\n", what, times.small[cost] / kGrowth, times.big[cost]);
    return Report("  growth for ten times the documents", times.big[cost] / times.small[cost] * kGrowth,
                  kGrowthLimit);
}

bool ReportAll(const Comparison& times) {
    bool kept = Report("reading a message : bare parser", times.big[Reading] / times.big[BareReading], 1.5);
    kept &= Report("merging into a message : bare parser", times.big[Merging] / times.big[BareMerging], 3);
    kept &= Report("one log entry : bare parser", times.big[Logging] / times.big[BareLogging], 3);
    kept &= ReportGrowth("bare parser", times, BareReading);
    kept &= ReportGrowth("reading a message", times, Reading);
    kept &= ReportGrowth("merging into a message", times, Merging);
    kept &= ReportGrowth("tags of a document list", times, Tagging);
    kept &= ReportGrowth("return file", times, Returning);
    kept &= ReportGrowth("one log entry", times, Logging);
    kept &= ReportGrowth("release of records", times, Release);
    return kept;
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    const base::ComApartment apartment;
    if (FAILED(apartment.Result()) ||
        !AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), 0)) {
        return 2;
    }
    const int rounds = argc > 1 ? _wtoi(argv[1]) : 5;
    const Workspace workspace;
    // Its folder is where the model configuration lies.
    const base::LibraryHandle services(::LoadLibraryW(L"QORLocal.dll"));
    CPLMInteract interact;
    Require(interact.Initialize(nullptr) == 1, "loading the model configuration");
    return ReportAll(Comparison(workspace, interact, rounds)) ? 0 : 1;
}
