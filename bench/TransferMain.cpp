// Measures the transfer of many small documents through the progress dialogs against the silent transfer,
// and how quickly the dialog's thread answers meanwhile. The exit code is 1 when a limit is exceeded.
#include <afxwin.h>
#include <objbase.h>

#include "bench/DrawingList.h"
#include "bench/Responsiveness.h"
#include "bench/Stopwatch.h"
#include "varnoke/PLMInteract.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace bench;

namespace {

constexpr int kDocuments = 1000;
constexpr double kTimerWaits = 1500; // ms: the dialog starts after 500 and closes after 1,000
constexpr DWORD kRunUnderWay = 700;  // ms after which the dialog's start and its pause are over
constexpr double kCostLimit = 1.3;
constexpr double kAnswerLimit = 100; // ms

struct Transfer {
    const char* name;
    long (CPLMInteract::*silent)(SSignFileDUL*);
    long (CPLMInteract::*dialog)(SSignFileDUL*);
};

class TransferBench {
public:
    TransferBench(CPLMInteract& interact, SSignFileDUL* list) : m_interact(interact), m_list(list) {}

    /// Best of several rounds; the first warms the caches.
    bool Run(const Transfer& transfer, int rounds) {
        double silent = 1e9, dialog = 1e9, slowest = 1e9;
        for (int round = 0; round < rounds; ++round) {
            long done = 0;
            silent = (std::min)(silent, Milliseconds([&] { done = (m_interact.*transfer.silent)(m_list); }));
            Responsiveness probe(kRunUnderWay);
            dialog = (std::min)(dialog, Milliseconds([&] { done &= (m_interact.*transfer.dialog)(m_list); }));
            slowest = (std::min)(slowest, probe.Stop());
            if (done != 1 || probe.Answers() == 0) {
                std::printf("%s: the transfer failed\n", transfer.name);
                return false;
            }
        }
        const double ratio = (dialog - kTimerWaits) / silent;
        std::printf("%-9s silent %7.1f ms, dialog without its waits %7.1f ms\n", transfer.name, silent,
                    dialog - kTimerWaits);
        std::printf("  dialog : silent %26.2f  limit %6.2f  %s\n", ratio, kCostLimit,
                    ratio <= kCostLimit ? "ok" : "EXCEEDED");
        std::printf("  slowest answer, ms %23.1f  limit %6.1f  %s\n", slowest, kAnswerLimit,
                    slowest <= kAnswerLimit ? "ok" : "EXCEEDED");
        return ratio <= kCostLimit && slowest <= kAnswerLimit;
    }

private:
    CPLMInteract& m_interact;
    SSignFileDUL* m_list; // borrowed
};

} // namespace

int wmain(int argc, wchar_t** argv) {
    const int rounds = argc > 1 ? _wtoi(argv[1]) : 3;
    if (rounds < 1 || FAILED(::CoInitialize(nullptr)) ||
        !AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), 0))
        return 2;
    const Workspace workspace;
    ::CreateDirectoryW(workspace.Path(L"vault").c_str(), nullptr);
    ::MoveFileW(workspace.CreateDrawings(kDocuments).c_str(), workspace.Path(L"vault\\files").c_str());
    ::CreateDirectoryW(workspace.Path(L"work").c_str(), nullptr);
    ::SetEnvironmentVariableW(L"DURVELL_VAULT", workspace.Path(L"vault").c_str());

    CPLMInteract interact;
    const auto list = DrawingList(workspace.Path(L"work"), kDocuments);
    TransferBench bench(interact, list.get());
    const Transfer transfers[] = {
        {"download", &CPLMInteract::DownloadDocForBackSign, &CPLMInteract::DownloadDoc},
        {"upload", &CPLMInteract::UploadDocForBackSign, &CPLMInteract::UploadDoc},
    };
    bool kept = true;
    for (const Transfer& transfer : transfers)
        kept &= bench.Run(transfer, rounds);
    return kept ? 0 : 1;
}
