// The table of texts.
#include <afxwin.h>

#include <algorithm>
#include <iterator>

#include "host/Texts.h"

namespace host {

namespace {

struct TextEntry {
    TextId id;
    const wchar_t* code; // null for what is only a part of a line, or usage
    const wchar_t* english;
    const wchar_t* chinese;
};

constexpr TextEntry kTexts[] = {
    {TextId::Usage, nullptr, L"usage: varnoke-host.exe COMMAND [OPTION...]",
     L"用法：varnoke-host.exe 命令 [选项...]"},
    {TextId::UsageEnd, nullptr,
     L"Exit codes: 0 all done, 1 the system failed, 2 bad usage or refused message, 3 some documents signed, "
     L"4 none, 5 sign log not written or sent, 6 another run is at work.",
     L"退出码：0 全部完成，1 系统故障，2 用法错误或消息被拒绝，3 部分文档已签名，4 没有文档签名，5 "
     L"签名日志未写入或未发送，6 另一次运行正在进行。"},
    {TextId::UsageHint, nullptr, L"try varnoke-host.exe --help, or a command with --help",
     L"请使用 varnoke-host.exe --help，或在命令后加 --help"},
    {TextId::PurposeBackSign, nullptr, L"signs every document of the message without showing anything",
     L"静默签名消息中的全部文档"},
    {TextId::PurposeAppend, nullptr, L"merges a further message into the one kept in the work folder",
     L"将新的消息合并到工作目录保存的消息中"},
    {TextId::PurposeLog, nullptr, L"prints the sign record that has not been sent yet",
     L"列出尚未发送的本地签名记录"},
    {TextId::PurposeStatus, nullptr, L"prints the sign tags of the documents in a folder",
     L"列出目录中文档的签名标记"},
    {TextId::PurposeSign, nullptr, L"signs one document of the message with the library's dialogs",
     L"通过对话框签名消息中的一个文档"},
    {TextId::PurposeOption, nullptr, L"shows the option dialog", L"显示选项对话框"},
    {TextId::UnknownCommand, nullptr, L"unknown command: %1", L"未知命令：%1"},
    {TextId::UnknownOption, nullptr, L"unknown option: %1", L"未知选项：%1"},
    {TextId::MissingOption, nullptr, L"option %1 is required", L"缺少选项 %1"},
    {TextId::MissingValue, nullptr, L"option %1 needs a value: %2", L"选项 %1 缺少值：%2"},
    {TextId::RepeatedOption, nullptr, L"option %1 was given twice", L"选项 %1 重复"},
    {TextId::NotANumber, nullptr, L"option %1 needs a number: %2", L"选项 %1 需要数字：%2"},
    {TextId::UnexpectedArgument, nullptr, L"unexpected argument: %1", L"多余的参数：%1"},
    {TextId::MissingArgument, nullptr, L"argument %1 is required", L"缺少参数 %1"},

    {TextId::NoVault, L"no-vault", L"the vault is not a folder: %1", L"服务端目录不存在：%1"},
    {TextId::NoWorkFolder, L"no-work-folder", L"the work folder cannot be made: %1", L"无法创建工作目录：%1"},
    {TextId::WorkFolderReadOnly, L"work-folder-read-only", L"the work folder cannot be written: %1",
     L"无法写入工作目录：%1"},
    {TextId::WorkFolderBusy, L"work-folder-busy", L"another run is at work in this folder: %1",
     L"该目录正在被另一次运行使用：%1"},
    {TextId::PathTooLong, L"path-too-long", L"the path is too long: %1", L"路径过长：%1"},
    {TextId::SettingsEncoding, L"settings-encoding",
     L"the system reads the settings in another encoding than they have; save them as UTF-16 with a byte "
     L"order mark: %1",
     L"系统不能按设置文件的编码读取，请另存为带字节顺序标记的 UTF-16：%1"},
    {TextId::NoReturnFolder, L"no-return-folder", L"the return file has no folder: %1",
     L"返回文件的目录不存在：%1"},
    {TextId::NoPictureFolder, L"no-picture-folder", L"the folder of the pictures cannot be made: %1",
     L"无法创建图片目录：%1"},
    {TextId::NoTemporaryFolder, L"no-temporary-folder", L"no temporary folder can be made",
     L"无法创建临时目录"},
    {TextId::NoFolder, L"no-folder", L"there is no such folder: %1", L"目录不存在：%1"},
    {TextId::FileUnreadable, L"file-unreadable", L"the file cannot be read: %1", L"无法读取文件：%1"},
    {TextId::FileTooLarge, L"file-too-large", L"the file is too large: %1", L"文件过大：%1"},
    {TextId::BadEncoding, L"bad-encoding", L"the file is not in the encoding that it declares: %1",
     L"文件内容与声明的编码不符：%1"},
    {TextId::UnknownEncoding, L"unknown-encoding", L"the message declares an unknown encoding: %1",
     L"消息声明了未知的编码：%1"},

    {TextId::NoLogFile, L"no-log-file", L"the log file cannot be written: %1", L"无法写入日志文件：%1"},

    {TextId::Unexpected, L"unexpected", L"an unexpected error ended the run", L"运行因意外错误而中止"},
    {TextId::FrameworkFailed, L"framework-failed", L"the main window cannot be made", L"无法创建主窗口"},
    {TextId::MessageRefused, L"message-refused", L"the message was refused", L"消息被拒绝"},
    {TextId::NothingChosen, L"nothing-chosen", L"the message was refused, or no document was chosen",
     L"消息被拒绝，或没有选择文档"},
    {TextId::NothingKept, L"nothing-kept", L"the work folder keeps no message: %1",
     L"工作目录没有保存的消息：%1"},
    {TextId::NothingMerged, L"nothing-merged",
     L"nothing was merged: another signer, other steps or no new document",
     L"没有合并：签名人或签名步骤不同，或没有新文档"},
    {TextId::MergedUnchosen, L"merged-unchosen", L"merged, but no document was chosen",
     L"已合并，但没有选择文档"},
    {TextId::Merged, L"merged", L"merged: %1", L"已合并：%1"},
    {TextId::NoModel, L"no-model",
     L"no model configuration: the sign log cannot be written (--no-log does without it)",
     L"没有模型配置，无法写签名日志（--no-log 表示不写）"},

    {TextId::MissingMethod, L"missing-method",
     L"the signing server has no method %1; see DynDisp in Varnoke.ini",
     L"签名服务器没有方法 %1；请检查 Varnoke.ini 的 DynDisp"},
    {TextId::Document, nullptr, L"(document %1)", L"（第 %1 个文档）"},
    {TextId::Signed, L"signed", L"downloaded, signed, uploaded", L"已下载、已签名、已上传"},
    {TextId::AlreadySigned, L"already-signed", L"already signed", L"此前已签名"},
    {TextId::Ready, L"ready", L"ready", L"可以签名"},
    {TextId::NoSignServer, L"no-sign-server", L"not signed: the signing server is not available",
     L"未签名：签名服务器不可用"},
    {TextId::NotLoggedIn, L"not-logged-in", L"not signed: the login to the signing server failed",
     L"未签名：登录签名服务器失败"},
    {TextId::SignServerGone, L"sign-server-gone", L"not signed: the signing server has gone",
     L"未签名：签名服务器已退出"},
    {TextId::SignServerSilent, L"sign-server-silent", L"not signed: the signing server does not answer",
     L"未签名：签名服务器没有响应"},
    {TextId::TimedOut, L"timed-out", L"not signed: a call took longer than the time limit",
     L"未签名：调用超过时限"},
    {TextId::NotTried, L"not-tried", L"not tried: the run was stopped", L"未处理：运行已停止"},
    {TextId::NotNoted, L"not-noted", L"not signed: the run cannot be noted in the work folder",
     L"未签名：无法在工作目录中记录运行"},
    {TextId::FailedDownload, L"failed-download", L"not signed: the download failed", L"未签名：下载失败"},
    {TextId::FailedSignInfo, L"failed-sign-info", L"not signed: no sign parameters", L"未签名：没有签名参数"},
    {TextId::FailedSign, L"failed-sign", L"not signed: the signing server did not sign",
     L"未签名：签名服务器签名失败"},
    {TextId::FailedUpload, L"failed-upload", L"not signed: the upload failed", L"未签名：上传失败"},
    {TextId::RefusedEmpty, L"refused-empty", L"refused: no file name", L"拒绝：没有文件名"},
    {TextId::RefusedPath, L"refused-path", L"refused: the name leaves the work folder",
     L"拒绝：文件名超出工作目录"},
    {TextId::RefusedDevice, L"refused-device", L"refused: the name is that of a device",
     L"拒绝：文件名是设备名"},
    {TextId::RefusedEnding, L"refused-ending", L"refused: the name ends in a full stop or a blank",
     L"拒绝：文件名以句点或空格结尾"},
    {TextId::RefusedCharacter, L"refused-character", L"refused: the name has a forbidden character",
     L"拒绝：文件名含有非法字符"},
    {TextId::RefusedSignData, L"refused-sign-data", L"refused: the name is that of the library's own folder",
     L"拒绝：文件名与签名数据目录冲突"},
    {TextId::RefusedTwice, L"refused-twice", L"refused: several documents have this name",
     L"拒绝：多个文档同名"},

    {TextId::LogNotWritten, L"log-not-written", L"%1: the sign log could not be written",
     L"%1：签名日志写入失败"},
    {TextId::LogNotSent, L"log-not-sent", L"the sign log was not sent; it is kept for the next run",
     L"签名日志未发送，已保留到下次发送"},
    {TextId::LogKept, L"log-kept", L"the sign log is kept in the work folder", L"签名日志保留在工作目录"},
    {TextId::LogSent, L"log-sent", L"the sign log was sent", L"签名日志已发送"},
    {TextId::Summary, L"summary", L"signed: %1 of %2", L"已签名：%1 / %2"},
    {TextId::ReturnFile, L"return-file", L"return file: %1", L"返回文件：%1"},
    {TextId::ReturnFileFailed, L"return-file-failed", L"the return file could not be written: %1",
     L"返回文件写入失败：%1"},

    {TextId::Progress, nullptr, L"%1 of %2", L"%1 / %2"},
    {TextId::ProgressLeft, nullptr, L"%1 of %2, about %3 left", L"%1 / %2，约剩 %3"},

    {TextId::RemedyAnywhere, nullptr, L"run varnoke-doctor", L"请运行 varnoke-doctor 检查"},
    {TextId::RemedySettings, nullptr, L"run varnoke-doctor, which checks settings and model configuration",
     L"请运行 varnoke-doctor 检查设置和模型配置"},
    {TextId::RemedySignServer, nullptr, L"run varnoke-doctor, which checks the signing server",
     L"请运行 varnoke-doctor 检查签名服务器"},
    {TextId::RemedyMessage, nullptr, L"have the PLM server send the message anew",
     L"请让 PLM 服务器重新发送消息"},
    {TextId::RemedyTransfer, nullptr, L"check the connection to the PLM server, and the document there",
     L"请检查与 PLM 服务器的连接及服务器上的文档"},
    {TextId::RemedyFiles, nullptr, L"check rights and space in the folder", L"请检查目录的权限和空间"},
    {TextId::RemedyLog, nullptr, L"close what uses the sign record; the next run goes on with it",
     L"请关闭占用签名记录的程序，下次运行会继续"},
    {TextId::RemedyFolder, nullptr, L"make the folder, or name another one", L"请新建该目录或改用其他目录"},
    {TextId::RemedyShorter, nullptr, L"use a folder with a shorter path", L"请改用路径较短的目录"},
    {TextId::RemedyBusy, nullptr, L"wait for its end, or use another work folder",
     L"请等待其结束，或使用其他工作目录"},
    {TextId::RemedyName, nullptr, L"have the document renamed on the PLM server",
     L"请在 PLM 服务器上更改文档名称"},
    {TextId::RemedySlow, nullptr, L"check that server; --timeout allows for longer calls",
     L"请检查该服务器；--timeout 可延长时限"},
    {TextId::RemedyAgain, nullptr, L"run it again, it goes on where it stopped",
     L"请再次运行，将从停止处继续"},

    {TextId::DryMessage, L"dry-message", L"message: signer %1, documents: %2", L"消息：签名人 %1，文档数 %2"},
    {TextId::DryVault, L"dry-vault", L"vault: %1", L"服务端目录：%1"},
    {TextId::DrySettings, L"dry-settings", L"settings: %1", L"设置：%1"},
    {TextId::DryDefaults, L"dry-defaults", L"settings: defaults, as there is no %1",
     L"设置：没有 %1，使用默认值"},
    {TextId::DryDate, L"dry-date", L"date on the drawing: %1, font %2", L"图纸上的日期：%1，字体 %2"},
    {TextId::DrySignServer, L"dry-sign-server", L"signing server: available", L"签名服务器：可用"},
    {TextId::DryNoSignServer, L"dry-no-sign-server", L"signing server: not available", L"签名服务器：不可用"},
    {TextId::StandIns, L"stand-ins", L"with stand-ins, nothing real: %1",
     L"使用了替身程序，并非真实产品：%1"},
    {TextId::DrySummary, L"dry-summary", L"could be signed: %1 of %2", L"可以签名：%1 / %2"},

    {TextId::Cancelled, L"cancelled", L"cancelled", L"已取消"},
    {TextId::OptionNotStored, L"option-not-stored", L"the option was not stored", L"选项未保存"},
    {TextId::OptionStored, L"option-stored", L"the option was stored", L"选项已保存"},
    {TextId::PictureFailed, L"picture-failed", L"the picture could not be saved: %1", L"图片保存失败：%1"},
    {TextId::NoRecord, L"no-record", L"there is no unsent sign record", L"没有未发送的签名记录"},
    {TextId::RecordUnreadable, L"record-unreadable", L"the sign record cannot be read: %1",
     L"无法读取签名记录：%1"},
    {TextId::NoDocuments, L"no-documents", L"no document was fetched to this folder",
     L"该目录没有取回的文档"},
    {TextId::ColumnDocument, nullptr, L"Document", L"文档"},
    {TextId::ColumnRole, nullptr, L"Role", L"角色"},
    {TextId::ColumnKind, nullptr, L"Kind", L"类型"},
    {TextId::ColumnSign, nullptr, L"Sign tag", L"签名标记"},
    {TextId::ColumnLog, nullptr, L"Log tag", L"日志标记"},
    {TextId::ColumnChange, nullptr, L"File", L"文件"},
    {TextId::KindSigned, nullptr, L"signed", L"签名"},
    {TextId::KindDeleted, nullptr, L"deleted", L"删除"},
    {TextId::Changed, nullptr, L"changed", L"已修改"},
    {TextId::Unchanged, nullptr, L"unchanged", L"未修改"},
    {TextId::Missing, nullptr, L"missing", L"不存在"},

    {TextId::StepStart, nullptr, L"Reading the start-sign message ...", L"正在读取启动签名消息……"},
    {TextId::StepDownload, nullptr, L"Downloading %1 ...", L"正在下载 %1……"},
    {TextId::StepSign, nullptr, L"Signing %1 ...", L"正在签名 %1……"},
    {TextId::StepUpload, nullptr, L"Uploading %1 ...", L"正在上传 %1……"},
    {TextId::WindowTitle, nullptr, L"Varnoke reference host", L"Varnoke 参考宿主"},
};

static_assert(sizeof kTexts / sizeof kTexts[0] == static_cast<size_t>(TextId::Count),
              "one entry for each text");

const TextEntry& EntryOf(TextId id) {
    return *std::find_if(std::begin(kTexts), std::end(kTexts),
                         [id](const TextEntry& entry) { return entry.id == id; });
}

bool IsChineseUser() {
    wchar_t language[16];
    const DWORD length = ::GetEnvironmentVariableW(L"VARNOKE_LANGUAGE", language, _countof(language));
    // "zh", or "zh-CN" and the like.
    if (length > 0) return length < _countof(language) && _wcsnicmp(language, L"zh", 2) == 0;
    return PRIMARYLANGID(::GetUserDefaultUILanguage()) == LANG_CHINESE;
}

} // namespace

const wchar_t* Text(TextId id) {
    static const bool chinese = IsChineseUser();
    return chinese ? EntryOf(id).chinese : EntryOf(id).english;
}

const wchar_t* CodeOf(TextId id) {
    return EntryOf(id).code;
}

CString Text(TextId id, std::initializer_list<CString> arguments) {
    CString text;
    for (const wchar_t* next = Text(id); *next; ++next) {
        const int number = *next == L'%' ? next[1] - L'0' : 0;
        if (number >= 1 && number <= static_cast<int>(arguments.size())) {
            text += arguments.begin()[number - 1];
            ++next;
        } else {
            text += *next;
        }
    }
    return text;
}

CString NumberText(size_t number) {
    CString text;
    text.Format(L"%u", static_cast<unsigned>(number));
    return text;
}

} // namespace host
