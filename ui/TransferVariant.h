#pragma once

#include <afxwin.h>

namespace varnoke {

/// What the worker reports to the dialog, in the order of the private messages.
enum TransferStep : UINT {
    kRunStarted,
    kFileBegins, ///< with the file's local path, as are all steps of a file
    kFileDone,
    kRunEnded,
    kFileSkipped,
    kFileFailed,
    kRunInterrupted,
    kTransferStepCount
};

/// All that distinguishes a download from an upload.
struct TransferVariant {
    UINT dialogId;
    UINT firstMessage; ///< message of kRunStarted; the others follow it
    // Controls
    int fileLabel;
    int fileBar;
    int totalLabel;
    int totalBar;
    int log;
    // Texts
    UINT textCurrent;
    UINT textDone;
    UINT textCount;
    UINT textNothing;
    UINT textStarted;
    UINT textEnded;
    UINT textInterrupted;
    UINT textSkipped; ///< what follows the path in a warning
    UINT textFailed;
    /// Whether a document without a local file is skipped.
    bool needsLocalFile;
    /// Transfers one file (local path, remote name, 0, 0); 0 is success.
    int (*transfer)(const wchar_t*, const wchar_t*, int, int);
};

extern const TransferVariant kDownload;
extern const TransferVariant kUpload;

} // namespace varnoke
