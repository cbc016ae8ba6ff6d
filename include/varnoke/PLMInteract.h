// CPLMInteract: the exchange with the PLM side (start-sign message, document transfer, sign tags, sign log
// and back-sign result).
#pragma once

#include <afxwin.h>
#include <afxcoll.h>

#include "varnoke/Export.h"
#include "varnoke/ModelConfig.h"
#include "varnoke/SignRecords.h"

struct IXMLDOMDocument;
struct IXMLDOMNamedNodeMap;

#ifdef _MSC_VER
#pragma warning(push)
#pragma warning(disable : 4251 4275) // fields are the library's own business
#endif

/// Every operation runs on the host's user-interface thread, with COM initialised, and catches all
/// exceptions. Unless stated otherwise an operation returns 1 for success and 0 for failure, and texts must
/// be neither null nor empty.
///
/// Folders are accepted with and without a trailing backslash. Records handed out through an out-pointer
/// belong to the caller, who returns them to the matching Cmn_Release... function; on failure the
/// out-pointers are null. Records and XML documents handed in are borrowed.
class VARNOKE_API CPLMInteract {
public:
    CPLMInteract();
    virtual ~CPLMInteract();
    CPLMInteract(const CPLMInteract&) = delete;
    CPLMInteract& operator=(const CPLMInteract&) = delete;

    /// Keeps the owner of all dialogs (borrowed, may be null), then initialises and loads the model
    /// configuration; the operations but the sign log work without it.
    long Initialize(CWnd* parent);
    /// Releases the configuration's settings; the window is kept. Returns the configuration's result.
    long Uninitialize();
    /// Lends the model configuration, which stays owned by this object.
    long GetModelConfig(CModelConfig** modelConfig);

    /// Start-sign request. `message` is the XML text itself, kept as SignData\StartSign.Xml under the work
    /// folder. StartSign lets the user choose and hands out one document, StartSignForBackSign hands out all
    /// of them, AppendStartSign first merges the message into the kept one.
    long StartSign(wchar_t* message, wchar_t* workFolder, SLoginInfo** login, SSignType** steps,
                   SSignType** documents);
    long StartSignForBackSign(wchar_t* message, wchar_t* workFolder, SLoginInfo** login, SSignType** steps,
                              SSignType** documents);
    long AppendStartSign(wchar_t* message, wchar_t* workFolder, SLoginInfo** login, SSignType** steps,
                         SSignType** documents);

    /// Reading of a message: of its text, which is kept first, or of one part of a loaded document. A part
    /// that is missing or incomplete is a failure.
    long ParserStartSignXmlString(wchar_t* message, wchar_t* workFolder, SLoginInfo** login,
                                  SSignType** steps, SSignType** documents);
    long GetLoginInfo(IXMLDOMDocument* xml, SLoginInfo** login);
    long GetSignStepType(IXMLDOMDocument* xml, SSignType** steps);
    long GetSignFileType(IXMLDOMDocument* xml, SSignType** documents);

    /// Merging of a further message (source) into the kept one (target): same signer, same steps, new
    /// documents only. The handed out documents are those that were not kept before.
    long AppendParserStartSignXmlString(wchar_t* message, wchar_t* workFolder, SLoginInfo** login,
                                        SSignType** steps, SSignType** documents);
    long AppendGetLoginInfo(IXMLDOMDocument* source, IXMLDOMDocument* target, SLoginInfo** login);
    /// 1 when both have the same user name, which must not be empty; passwords may differ.
    long ValidateLoginInfo(SLoginInfo* source, SLoginInfo* target);
    long AppendGetSignStepType(IXMLDOMDocument* source, IXMLDOMDocument* target, SSignType** steps);
    /// 1 when both have the same steps with the same properties in the same order, and at least one.
    long ValidateSignStepType(SSignType* source, SSignType* target);
    long AppendGetSignFileType(IXMLDOMDocument* source, IXMLDOMDocument* target, SSignType** documents);
    /// Unlinks and releases the source's documents whose file name ("FNAME") the target has already.
    long RemoveExistSignFileTypeFromSource(SSignType* source, SSignType* target);
    /// Adds the source's documents to the target's document group; fails when there is no such group.
    long AppendSignFileTypeToTarget(IXMLDOMDocument* target, SSignType* source);
    /// Adds an attribute to those of an element of `target`; the value may be empty.
    long AddTargetAttribute(wchar_t* name, wchar_t* value, IXMLDOMNamedNodeMap* attributes,
                            IXMLDOMDocument* target);

    /// Document transfer with a progress dialog. The list must not be touched by others meanwhile; its items'
    /// states are written. Returns the dialog's result: 1 all transferred, 2 interrupted, 3 some skipped,
    /// 4 some failed; 0 for nothing to do, and when the user closed the dialog early: then the items' states
    /// tell what was done. Afterwards the documents' times are recorded, and a download resets their tags.
    long DownloadDoc(SSignFileDUL* list);
    long UploadDoc(SSignFileDUL* list);
    /// The same without a dialog. The download ends with the first failure, result 0.
    long DownloadDocForBackSign(SSignFileDUL* list);
    /// Goes on after a failure; returns the result of the last file attempted, 1 when there was none.
    long UploadDocForBackSign(SSignFileDUL* list);

    /// Signature drawings: to a given full path, or to <user>_<seal>.dwg in the temporary folder.
    long DownloadSignFile(wchar_t* localPath, wchar_t* remoteName);
    long DownloadSignFileEx(wchar_t* userName, wchar_t* sealName);
    /// The server-side name of the user's signature drawing, empty on failure; the seal is not used and may
    /// be null.
    CString GetRemoteFileName(wchar_t* userName, wchar_t* sealName);
    /// The value of the first property of that name in an object XML file, empty on failure.
    CString GetProValue(CString xmlFile, CString propertyName);

    /// Sign tags: a number per document that tells whether it was signed, or whether its signature was
    /// logged, in INI files under SignData of the documents' folder. Any number: the library writes 0 only
    /// (not signed, not logged), a host by custom 1; a document that was never tagged has 0. `fileName` is
    /// relative to `folder`.
    long SetDocSignTag(wchar_t* folder, wchar_t* fileName, long value);
    long GetDocSignTag(wchar_t* folder, wchar_t* fileName, long* value);
    long SetDocSignLogTag(wchar_t* folder, wchar_t* fileName, long value);
    long GetDocSignLogTag(wchar_t* folder, wchar_t* fileName, long* value);
    /// Time tags: the document's modification time when the tag was set.
    long SetDocSignTimeTag(wchar_t* folder, wchar_t* fileName);
    /// Returns 1, with `*changed` 1, only when the document has changed since its time tag was set or has
    /// none; 0, with `*changed` 0, when it has not, and on failure.
    long GetDocSignTimeTag(wchar_t* folder, wchar_t* fileName, long* changed);
    /// Copies the local modification time, "YYYY-MM-DD_hh:mm:ss", to `time`, which must hold 1024 characters.
    long GetDocLastModifyTimeString(wchar_t* folder, wchar_t* fileName, wchar_t* time);
    /// Sets the sign tags of a list, with a nonzero `withLogTags` the sign-log tags too, to 0. Returns 1 for
    /// a usable list, whatever became of the single tags.
    long UpdateDocsSignTag(SSignFileDUL* list, long withLogTags);
    /// Sets the time tags of a list to its documents' modification times; result as above.
    long UpdateDocsSignTimeTag(SSignFileDUL* list);

    /// Sign log: notes a signature (`kind` "N") or a deletion ("D") in SignData\DocSignRecord.xml. `object`
    /// has the document's properties, "ID" and "SIGN_ROLE" among them. Needs the model configuration.
    long WriteDelOrSignLogToLocal(SSignObj* object, CString folder, CString kind);
    /// Sends the local log and removes it, sent or not. Returns 0 for success, 1 for failure.
    long WriteSignLogToServer(CString folder);

    /// Writes <returnFile without extension>_Ret.Xml: the kept message's documents, each marked with
    /// "SignRet" = "1" when its key property's value is among the signed names (borrowed), else "0".
    long NotifyPLMSignForBackSignRet(CStringList& signedNames, wchar_t* keyProperty, wchar_t* workFolder,
                                     wchar_t* returnFile);

    /// Sends the local log as WriteSignLogToServer does, but keeps it when the server refuses it. A log that
    /// is not there counts as sent. Returns 0 for success, 1 for failure.
    long SendSignLog(CString folder);
    /// Hands out the entries of the local log: an object each, with the entry's properties ("QORMFILEID", the
    /// document's identifier; "QORMROLE"; "QORMTYPE", "N" or "D"; and those that the model configuration
    /// adds). Without a log the list is empty. Returns 1, or 0 for a log that can't be read.
    long GetUnsentSignLog(CString folder, SSignType** entries);

private:
    friend struct varnoke::InterfaceLayout;

    CModelConfig m_modelConfig;
    CWnd* m_parentWnd; // weak
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
