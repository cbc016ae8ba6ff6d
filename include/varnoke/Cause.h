// Why an operation failed: the reason codes, and the function that gives the last one.
#pragma once

#include "varnoke/Export.h"

namespace varnoke {

/// Reason codes. Their numbers are part of the interface: they stay, and new ones are added.
enum class Cause : long {
    None = 0,

    // Anywhere
    Unexpected = 1, ///< an error that says nothing of itself
    OutOfMemory = 2,
    ComCallFailed = 3,    ///< the text gives the HRESULT
    ArgumentMissing = 4,  ///< an argument is null or empty; the text names it
    NeighbourMissing = 5, ///< a library that this one needs can't be loaded, or lacks a function
    Cancelled = 6,        ///< by the user, in a dialog
    DialogFailed = 7,     ///< a dialog could not be shown

    // Settings and model configuration
    SettingNotStored = 100, ///< the settings file is read-only, held by another program, or the disk is full
    ModelConfigMissing = 110, ///< there is no ModelConfig.Xml where it is looked for
    ModelConfigUnreadable = 111,
    ModelConfigNotLoaded = 112, ///< Initialize has failed, or was not called
    ObjectConfigMissing = 113,  ///< the model has no object configuration with the identifier of the settings
    DomainMissing = 114,        ///< it has no such design domain
    ObjectMapMissing = 115,     ///< no map of the local object configuration leads to the server's one

    // Signing server
    SigningServerNotRegistered = 200, ///< the ProgID of the settings is unknown on this machine
    SigningServerNotCreated = 201,    ///< it is known, but its object can't be made
    SigningServerNotAutomation = 202, ///< its object can't be called by name
    SigningServerNotConnected = 203,  ///< Initialize has failed, or was not called
    MethodMissing = 204,              ///< the server has no method of the configured name
    MethodFailed = 205,               ///< the call failed; the text gives the server's own explanation
    MethodRefused = 206,              ///< the method gave 0
    MethodResultUnusable = 207,       ///< the method gave something that is no 32-bit integer

    // Start-sign message
    MessageNotWellFormed = 300, ///< the text gives line and column
    MessageNotKept = 301,       ///< the message could not be saved under the work folder
    LoginMissing = 302,
    LoginIncomplete = 303, ///< user name, password and server must be there once each
    StepsMissing = 304,
    DocumentsMissing = 305, ///< no document group, or an empty one
    GroupWithoutId = 306,
    ObjectEmpty = 307,        ///< a step or a document without properties
    PropertyIncomplete = 308, ///< a property without name or value
    KeptMessageMissing = 310,
    KeptMessageUnreadable = 311,
    OtherSigner = 312, ///< the kept message is another user's
    OtherSteps = 313,  ///< the kept message has other sign steps
    NothingNew = 314,  ///< the kept message has all documents already
    NoDocumentChosen = 320,

    // Transfer
    ListUnusable = 400, ///< no list, an empty one, or one without a folder
    DownloadFailed = 401,
    UploadFailed = 402,
    TransferSkipped = 403,     ///< some files were skipped
    TransferInterrupted = 404, ///< by an error, or closed by the user
    DrawingNotFound = 405,     ///< the server knows no signature drawing of the user

    // Tags
    DocumentMissing = 500,
    TagNotWritten = 501,

    // Sign log
    SignLogBusy = 600, ///< another program uses the record
    SignLogUnreadable = 601,
    SignLogNotWritten = 602,
    SignLogNotSent = 603,
    DataModelMissing = 604, ///< the object model's data model can't be made: its library is not registered

    // Return file
    ReturnFileNotWritten = 700,
};

} // namespace varnoke

extern "C" {
/// Why the last operation that this thread called did not succeed: its first cause. Every operation clears it
/// when it begins, but for Cmn_Release... and this one. `code` takes the varnoke::Cause, 0 when the operation
/// succeeded or gave its 0 for an answer; `text` at most `capacity` characters with the terminator: one line
/// in Chinese with what is known besides (names, an HRESULT, the server's explanation; no password, PIN or
/// message content). Either may be null. Returns 1 when there is a cause, else 0. For any thread.
VARNOKE_API long Cmn_GetLastCause(long* code, wchar_t* text, long capacity);
}
