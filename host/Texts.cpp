// The table of texts.
#include <afxwin.h>

#include "host/Texts.h"

namespace host {

namespace {

struct STextEntry {
    EText m_id;
    const wchar_t* m_pszEnglish;
    const wchar_t* m_pszChinese;
};

constexpr STextEntry kTexts[] = {
    {EText::Usage, L"usage: varnoke-host.exe COMMAND [OPTION...]", L"用法：varnoke-host.exe 命令 [选项...]"},
    {EText::UsageEnd,
     L"Exit codes: 0 all done, 1 the system failed, 2 bad usage or refused message, 3 some documents signed, "
     L"4 none.",
     L"退出码：0 全部完成，1 系统故障，2 用法错误或消息被拒绝，3 部分文档已签名，4 没有文档签名。"},
    {EText::PurposeBackSign, L"signs every document of the message without showing anything",
     L"静默签名消息中的全部文档"},
    {EText::PurposeAppend, L"merges a further message into the one kept in the work folder",
     L"将新的消息合并到工作目录保存的消息中"},
    {EText::PurposeLog, L"prints the sign record that has not been sent yet", L"列出尚未发送的本地签名记录"},
    {EText::PurposeStatus, L"prints the sign tags of the documents in a folder", L"列出目录中文档的签名标记"},
    {EText::PurposeSign, L"signs one document of the message with the library's dialogs",
     L"通过对话框签名消息中的一个文档"},
    {EText::PurposeOption, L"shows the option dialog", L"显示选项对话框"},
    {EText::UnknownCommand, L"unknown command: %1", L"未知命令：%1"},
    {EText::UnknownOption, L"unknown option: %1", L"未知选项：%1"},
    {EText::MissingOption, L"option %1 is required", L"缺少选项 %1"},
    {EText::MissingValue, L"option %1 needs a value: %2", L"选项 %1 缺少值：%2"},
    {EText::RepeatedOption, L"option %1 was given twice", L"选项 %1 重复"},
    {EText::UnexpectedArgument, L"unexpected argument: %1", L"多余的参数：%1"},
    {EText::MissingArgument, L"argument %1 is required", L"缺少参数 %1"},

    {EText::NoVault, L"the vault is not a folder: %1", L"服务端目录不存在：%1"},
    {EText::NoWorkFolder, L"the work folder cannot be made: %1", L"无法创建工作目录：%1"},
    {EText::NoReturnFolder, L"the return file has no folder: %1", L"返回文件的目录不存在：%1"},
    {EText::NoPictureFolder, L"the folder of the pictures cannot be made: %1", L"无法创建图片目录：%1"},
    {EText::NoTemporaryFolder, L"no temporary folder can be made", L"无法创建临时目录"},
    {EText::NoFolder, L"there is no such folder: %1", L"目录不存在：%1"},
    {EText::FileUnreadable, L"the file cannot be read: %1", L"无法读取文件：%1"},
    {EText::FileTooLarge, L"the file is too large: %1", L"文件过大：%1"},
    {EText::BadEncoding, L"the file is not in the encoding that it declares: %1",
     L"文件内容与声明的编码不符：%1"},
    {EText::UnknownEncoding, L"the message declares an unknown encoding: %1", L"消息声明了未知的编码：%1"},

    {EText::Unexpected, L"an unexpected error ended the run", L"运行因意外错误而中止"},
    {EText::FrameworkFailed, L"the main window cannot be made", L"无法创建主窗口"},
    {EText::MessageRefused, L"the message was refused", L"消息被拒绝"},
    {EText::NothingChosen, L"the message was refused, or no document was chosen",
     L"消息被拒绝，或没有选择文档"},
    {EText::NothingKept, L"the work folder keeps no message: %1", L"工作目录没有保存的消息：%1"},
    {EText::NothingMerged, L"nothing was merged: another signer, other steps or no new document",
     L"没有合并：签名人或签名步骤不同，或没有新文档"},
    {EText::MergedUnchosen, L"merged, but no document was chosen", L"已合并，但没有选择文档"},
    {EText::Merged, L"merged: %1", L"已合并：%1"},
    {EText::NoModel, L"no model configuration: the sign log cannot be written",
     L"没有模型配置，无法写签名日志"},

    {EText::Document, L"(document %1)", L"（第 %1 个文档）"},
    {EText::Signed, L"downloaded, signed, uploaded", L"已下载、已签名、已上传"},
    {EText::Ready, L"ready", L"可以签名"},
    {EText::NoSignServer, L"not signed: the signing server is not available", L"未签名：签名服务器不可用"},
    {EText::NotLoggedIn, L"not signed: the login to the signing server failed",
     L"未签名：登录签名服务器失败"},
    {EText::FailedDownload, L"not signed: the download failed", L"未签名：下载失败"},
    {EText::FailedSignInfo, L"not signed: no sign parameters", L"未签名：没有签名参数"},
    {EText::FailedSign, L"not signed: the signing server did not sign", L"未签名：签名服务器签名失败"},
    {EText::FailedUpload, L"not signed: the upload failed", L"未签名：上传失败"},
    {EText::NotInVault, L"not ready: not in the vault", L"不能签名：服务端没有该文档"},
    {EText::RefusedEmpty, L"refused: no file name", L"拒绝：没有文件名"},
    {EText::RefusedPath, L"refused: the name leaves the work folder", L"拒绝：文件名超出工作目录"},
    {EText::RefusedDevice, L"refused: the name is that of a device", L"拒绝：文件名是设备名"},
    {EText::RefusedEnding, L"refused: the name ends in a full stop or a blank",
     L"拒绝：文件名以句点或空格结尾"},
    {EText::RefusedCharacter, L"refused: the name has a forbidden character", L"拒绝：文件名含有非法字符"},
    {EText::RefusedSignData, L"refused: the name is that of the library's own folder",
     L"拒绝：文件名与签名数据目录冲突"},
    {EText::RefusedTwice, L"refused: several documents have this name", L"拒绝：多个文档同名"},

    {EText::LogNotWritten, L"%1: the sign log could not be written", L"%1：签名日志写入失败"},
    {EText::LogNotSent, L"the sign log was not sent; it is kept for the next run",
     L"签名日志未发送，已保留到下次发送"},
    {EText::LogKept, L"the sign log is kept in the work folder", L"签名日志保留在工作目录"},
    {EText::LogSent, L"the sign log was sent", L"签名日志已发送"},
    {EText::Summary, L"signed: %1 of %2", L"已签名：%1 / %2"},
    {EText::ReturnFile, L"return file: %1", L"返回文件：%1"},
    {EText::ReturnFileFailed, L"the return file could not be written: %1", L"返回文件写入失败：%1"},

    {EText::DryMessage, L"message: signer %1, documents: %2", L"消息：签名人 %1，文档数 %2"},
    {EText::DryVault, L"vault: %1", L"服务端目录：%1"},
    {EText::DrySettings, L"settings: %1", L"设置：%1"},
    {EText::DryDefaults, L"settings: defaults, as there is no %1", L"设置：没有 %1，使用默认值"},
    {EText::DryDate, L"date on the drawing: %1, font %2", L"图纸上的日期：%1，字体 %2"},
    {EText::DrySignServer, L"signing server: available", L"签名服务器：可用"},
    {EText::DryNoSignServer, L"signing server: not available", L"签名服务器：不可用"},
    {EText::DrySummary, L"could be signed: %1 of %2", L"可以签名：%1 / %2"},

    {EText::Cancelled, L"cancelled", L"已取消"},
    {EText::OptionStored, L"the option was stored", L"选项已保存"},
    {EText::PictureFailed, L"the picture could not be saved: %1", L"图片保存失败：%1"},
    {EText::NoRecord, L"there is no unsent sign record", L"没有未发送的签名记录"},
    {EText::RecordUnreadable, L"the sign record cannot be read: %1", L"无法读取签名记录：%1"},
    {EText::NoDocuments, L"no document was fetched to this folder", L"该目录没有取回的文档"},
    {EText::ColumnDocument, L"Document", L"文档"},
    {EText::ColumnRole, L"Role", L"角色"},
    {EText::ColumnKind, L"Kind", L"类型"},
    {EText::ColumnState, L"State", L"状态"},
    {EText::ColumnSign, L"Sign tag", L"签名标记"},
    {EText::ColumnLog, L"Log tag", L"日志标记"},
    {EText::ColumnChange, L"File", L"文件"},
    {EText::KindSigned, L"signed", L"签名"},
    {EText::KindDeleted, L"deleted", L"删除"},
    {EText::StateNew, L"new", L"新增"},
    {EText::Changed, L"changed", L"已修改"},
    {EText::Unchanged, L"unchanged", L"未修改"},
    {EText::Missing, L"missing", L"不存在"},

    {EText::StepStart, L"Reading the start-sign message ...", L"正在读取启动签名消息……"},
    {EText::StepDownload, L"Downloading %1 ...", L"正在下载 %1……"},
    {EText::StepSign, L"Signing %1 ...", L"正在签名 %1……"},
    {EText::StepUpload, L"Uploading %1 ...", L"正在上传 %1……"},
    {EText::WindowTitle, L"Varnoke reference host", L"Varnoke 参考宿主"},
};

static_assert(sizeof kTexts / sizeof kTexts[0] == static_cast<size_t>(EText::Count),
              "one entry for each text");

bool IsChineseUser() {
    wchar_t language[8];
    const DWORD length = ::GetEnvironmentVariableW(L"VARNOKE_LANGUAGE", language, _countof(language));
    if (length > 0 && length < _countof(language)) return _wcsicmp(language, L"zh") == 0;
    return PRIMARYLANGID(::GetUserDefaultUILanguage()) == LANG_CHINESE;
}

} // namespace

const wchar_t* Text(EText id) {
    static const bool chinese = IsChineseUser();
    for (const STextEntry& entry : kTexts) {
        if (entry.m_id == id) return chinese ? entry.m_pszChinese : entry.m_pszEnglish;
    }
    return L"";
}

CString Text(EText id, std::initializer_list<CString> arguments) {
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
