#pragma once

#include <afxwin.h>
#include "ui/TransferVariant.h"

namespace varnoke {

/// Result of a transfer dialog, as far as its run came. A failure always wins; of the others the first one
/// stays.
enum TransferResult : int {
    kTransferNone = 0,
    kTransferEnded = 1,
    kTransferInterrupted = 2,
    kTransferSkipped = 3,
    kTransferFailed = 4
};

/// The result after a step, given the result before it.
int ResultAfter(int result, TransferStep step);

/// The line that is logged for a text at a local time, with its line end.
CString LogLine(const CString& text, const SYSTEMTIME& time);

/// "<label><tab>done / count"
CString CountText(const CString& label, int done, int count);

/// The next position of the activity bar, which runs to 100 and starts again at 1.
int NextActivityPosition(int position);
constexpr int kActivityEnd = 100;

} // namespace varnoke
