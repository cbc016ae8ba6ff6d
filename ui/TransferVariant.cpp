#include "ui/TransferVariant.h"

#include "neighbours/durvell.h"
#include "ui/resource.h"

namespace varnoke {

namespace {

const UINT kFirstMessage = WM_USER + 1000;

} // namespace

const TransferVariant kDownload = {IDD_DOWNLOAD,
                                   kFirstMessage,
                                   IDC_DOWNLOAD_FILE_LABEL,
                                   IDC_DOWNLOAD_FILE_BAR,
                                   IDC_DOWNLOAD_TOTAL_LABEL,
                                   IDC_DOWNLOAD_TOTAL_BAR,
                                   IDC_DOWNLOAD_LOG,
                                   IDS_DOWNLOAD_CURRENT,
                                   IDS_DOWNLOAD_DONE,
                                   IDS_DOWNLOAD_COUNT,
                                   IDS_DOWNLOAD_NOTHING,
                                   IDS_DOWNLOAD_STARTED,
                                   IDS_DOWNLOAD_ENDED,
                                   IDS_DOWNLOAD_INTERRUPTED,
                                   IDS_DOWNLOAD_SKIPPED,
                                   IDS_DOWNLOAD_FAILED,
                                   false,
                                   &dvl_DownloadFile};

const TransferVariant kUpload = {IDD_UPLOAD,
                                 kFirstMessage + kTransferStepCount,
                                 IDC_UPLOAD_FILE_LABEL,
                                 IDC_UPLOAD_FILE_BAR,
                                 IDC_UPLOAD_TOTAL_LABEL,
                                 IDC_UPLOAD_TOTAL_BAR,
                                 IDC_UPLOAD_LOG,
                                 IDS_UPLOAD_CURRENT,
                                 IDS_UPLOAD_DONE,
                                 IDS_UPLOAD_COUNT,
                                 IDS_UPLOAD_NOTHING,
                                 IDS_UPLOAD_STARTED,
                                 IDS_UPLOAD_ENDED,
                                 IDS_UPLOAD_INTERRUPTED,
                                 IDS_UPLOAD_SKIPPED,
                                 IDS_UPLOAD_FAILED,
                                 true,
                                 &dvl_UploadFile};

} // namespace varnoke
