#include "ui/TransferRules.h"

namespace varnoke {

int ResultAfter(int result, TransferStep step) {
    if (step == kFileFailed) return kTransferFailed;
    if (result != kTransferNone) return result;
    switch (step) {
    case kRunEnded:
        return kTransferEnded;
    case kRunInterrupted:
        return kTransferInterrupted;
    case kFileSkipped:
        return kTransferSkipped;
    default:
        return result;
    }
}

CString LogLine(const CString& text, const SYSTEMTIME& time) {
    CString line;
    line.Format(L"%.2d:%.2d:%.2d", time.wHour, time.wMinute, time.wSecond);
    return line + L" -> " + text + L"\r\n";
}

CString CountText(const CString& label, int done, int count) {
    CString text;
    text.Format(L"\t%d / %d", done, count);
    return label + text;
}

int NextActivityPosition(int position) {
    return position < kActivityEnd ? position + 1 : 1;
}

} // namespace varnoke
