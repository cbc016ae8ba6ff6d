// Every text that the host prints or shows, in English and in Chinese, in one table.
#pragma once

#include <afxwin.h>

#include <initializer_list>

namespace host {

enum class TextId {
    // Usage
    Usage,
    UsageEnd,
    UsageHint,
    PurposeBackSign,
    PurposeAppend,
    PurposeLog,
    PurposeStatus,
    PurposeSign,
    PurposeOption,
    UnknownCommand,
    UnknownOption,
    MissingOption,
    MissingValue,
    RepeatedOption,
    NotANumber,
    UnexpectedArgument,
    MissingArgument,
    // Files and folders
    NoVault,
    NoWorkFolder,
    WorkFolderReadOnly,
    WorkFolderBusy,
    PathTooLong,
    SettingsEncoding,
    NoReturnFolder,
    NoPictureFolder,
    NoTemporaryFolder,
    NoFolder,
    FileUnreadable,
    FileTooLarge,
    BadEncoding,
    UnknownEncoding,
    NoLogFile,
    // Start of a run
    FrameworkFailed,
    Unexpected,
    MessageRefused,
    NothingChosen,
    NothingKept,
    NothingMerged,
    MergedUnchosen,
    Merged,
    NoModel,
    MissingMethod,
    // Lines of documents
    Document,
    Signed,
    AlreadySigned,
    Ready,
    NoSignServer,
    NotLoggedIn,
    SignServerGone,
    SignServerSilent,
    TimedOut,
    NotTried,
    NotNoted,
    FailedDownload,
    FailedSignInfo,
    FailedSign,
    FailedUpload,
    RefusedEmpty,
    RefusedPath,
    RefusedDevice,
    RefusedEnding,
    RefusedCharacter,
    RefusedSignData,
    RefusedTwice,
    // End of a run
    LogNotWritten,
    LogNotSent,
    LogKept,
    LogSent,
    Summary,
    ReturnFile,
    ReturnFileFailed,
    Progress,
    ProgressLeft,
    // What to do
    RemedyAnywhere,
    RemedySettings,
    RemedySignServer,
    RemedyMessage,
    RemedyTransfer,
    RemedyFiles,
    RemedyLog,
    RemedyFolder,
    RemedyShorter,
    RemedyBusy,
    RemedyName,
    RemedySlow,
    RemedyAgain,
    // Dry run
    DryMessage,
    DryVault,
    DrySettings,
    DryDefaults,
    DryDate,
    DrySignServer,
    DryNoSignServer,
    DrySummary,
    StandIns,
    // Other commands
    Cancelled,
    OptionNotStored,
    OptionStored,
    PictureFailed,
    NoRecord,
    RecordUnreadable,
    NoDocuments,
    ColumnDocument,
    ColumnRole,
    ColumnKind,
    ColumnSign,
    ColumnLog,
    ColumnChange,
    KindSigned,
    KindDeleted,
    Changed,
    Unchanged,
    Missing,
    // Main window
    StepStart,
    StepDownload,
    StepSign,
    StepUpload,
    WindowTitle,
    Count
};

/// The text in the user's language: Chinese for a Chinese user interface, English otherwise. VARNOKE_LANGUAGE
/// ("zh" or "en") in the environment overrides it.
const wchar_t* Text(TextId id);

/// The same with "%1", "%2" ... replaced by the arguments. A replaced text is not looked at again.
CString Text(TextId id, std::initializer_list<CString> arguments);

/// The name by which other programs know the text: it stays when the words change. Null for parts of lines.
const wchar_t* CodeOf(TextId id);

/// A count as an argument.
CString NumberText(size_t number);

} // namespace host
