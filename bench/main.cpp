// Measures how the library's cost compares with the bare XML parser's and how it grows with the number of
// documents. Prints one line per measure with its limit; the exit code is 1 when a limit is exceeded.
#include <afxwin.h>
#include <objbase.h>

#include "bench/Measures.h"
#include "bench/Stopwatch.h"

#include <cstdio>
#include <cstdlib>

using namespace bench;

namespace {

constexpr int kFew = 1000;
constexpr int kMany = 10000;
constexpr double kGrowthLimit = 12; // for ten times the documents

/// Best times for one number of documents.
struct Times {
    BestTime parser, reading, release, mergeParser, merge, tags, returnFile;

    void AddRound(const Workspace& workspace, CPLMInteract& interact, int documents) {
        const ReadingTime read = MeasureReading(workspace, interact, documents);
        parser.Add(read.parser);
        reading.Add(read.reading);
        release.Add(read.release);
        const MergeTime merged = MeasureMerge(workspace, interact, documents);
        mergeParser.Add(merged.parser);
        merge.Add(merged.merge);
        tags.Add(MeasureTags(workspace, interact, documents));
        returnFile.Add(MeasureReturnFile(workspace, interact, documents));
    }
};

bool Report(const char* what, double ratio, double limit) {
    const bool kept = ratio <= limit;
    std::printf("%-52s %6.2f  limit %5.2f  %s\n", what, ratio, limit, kept ? "ok" : "EXCEEDED");
    return kept;
}

bool ReportGrowth(const char* what, const BestTime& few, const BestTime& many) {
    std::printf("%-52s %6.1f ms, %.1f ms\n", what, few.Value(), many.Value());
    return Report("  growth for ten times the documents", many.Value() / few.Value(), kGrowthLimit);
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    if (FAILED(::CoInitialize(nullptr)) ||
        !AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), 0)) {
        return 2;
    }
    const int rounds = argc > 1 ? _wtoi(argv[1]) : 5;
    Times few, many;
    {
        const Workspace workspace;
        workspace.CreateFiles(L"drawing", kMany);
        CPLMInteract interact;
        for (int round = 0; round < rounds; ++round) {
            few.AddRound(workspace, interact, kFew);
            many.AddRound(workspace, interact, kMany);
        }
    }
    bool kept = Report("reading a message : bare parser", many.reading.Value() / many.parser.Value(), 1.5);
    kept &= Report("merging into a message : bare parser", many.merge.Value() / many.mergeParser.Value(), 3);
    kept &= ReportGrowth("bare parser", few.parser, many.parser);
    kept &= ReportGrowth("reading a message", few.reading, many.reading);
    kept &= ReportGrowth("merging into a message", few.merge, many.merge);
    kept &= ReportGrowth("tags of a document list", few.tags, many.tags);
    kept &= ReportGrowth("return file", few.returnFile, many.returnFile);
    kept &= ReportGrowth("release of records", few.release, many.release);
    ::CoUninitialize();
    return kept ? 0 : 1;
}
