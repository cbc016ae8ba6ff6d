// Download and upload: the steps that they share, and all that distinguishes one from the other.
#pragma once

#include <afxwin.h>

namespace varnoke {

/// What the worker reports to the dialog, in the order of the private messages.
enum ETransferStep : UINT {
    kRunStarted,
    kFileBegins, ///< with the file's local path, as are all steps of a file
    kFileDone,
    kRunEnded,
    kFileSkipped,
    kFileFailed,
    kRunInterrupted,
    kTransferStepCount
};

struct STransferVariant {
    UINT m_nTemplate;
    UINT m_nFirstMessage; ///< message of kRunStarted; the others follow it
    // Controls
    int m_nFileLabel;
    int m_nFileBar;
    int m_nTotalLabel;
    int m_nTotalBar;
    int m_nLog;
    // Texts
    UINT m_nTextCurrent;
    UINT m_nTextDone;
    UINT m_nTextCount;
    UINT m_nTextNothing;
    UINT m_nTextStarted;
    UINT m_nTextEnded;
    UINT m_nTextInterrupted;
    UINT m_nTextSkipped; ///< what follows the path in a warning
    UINT m_nTextFailed;
    /// Whether a document without a local file is skipped.
    bool m_bNeedsLocalFile;
    /// Transfers one file (local path, remote name, 0, 0); 0 is success.
    int (*m_pfnTransfer)(const wchar_t*, const wchar_t*, int, int);
};

extern const STransferVariant kDownload;
extern const STransferVariant kUpload;

} // namespace varnoke
