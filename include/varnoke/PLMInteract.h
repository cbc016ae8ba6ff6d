// CPLMInteract: the exchange with the PLM side (start-sign message, document transfer, sign tags,
// sign log and back-sign result).
#pragma once

#include <afxwin.h>
#include <afxcoll.h>
#include "varnoke/Export.h"
#include "varnoke/SignRecords.h"
#include "varnoke/ModelConfig.h"

struct IXMLDOMDocument;
struct IXMLDOMNamedNodeMap;

/// Every operation runs on the host's user-interface thread, with COM initialised, and catches all
/// exceptions. Unless stated otherwise an operation returns 1 for success and 0 for failure.
///
/// Folders are accepted with and without a trailing backslash. Records handed out through an
/// out-pointer belong to the caller, who returns them to the matching Cmn_Release... function; on
/// failure the out-pointers are null. Records handed in are borrowed.
class VARNOKE_API CPLMInteract {
public:
    CPLMInteract();
    virtual ~CPLMInteract();
    CPLMInteract(const CPLMInteract&) = delete;
    CPLMInteract& operator=(const CPLMInteract&) = delete;

    /// Keeps the owner of all dialogs (may be null), then initialises and loads the model configuration.
    long Initialize(CWnd* pParentWnd);
    /// Releases the configuration's settings; the window is kept. Returns the configuration's result.
    long Uninitialize();
    /// Lends the model configuration, which stays owned by this object.
    long GetModelConfig(CModelConfig** ppModelConfig);

    /// Start-sign request. pszXml is the message itself, kept as SignData\StartSign.Xml under the work
    /// folder. StartSign lets the user choose and hands out one document, StartSignForBackSign hands
    /// out all of them, AppendStartSign first merges the message into the kept one.
    long StartSign(wchar_t* pszXml, wchar_t* pszWorkFolder, SLoginInfo** ppLoginInfo,
                   SSignType** ppSignStepType, SSignType** ppSignFileType);
    long StartSignForBackSign(wchar_t* pszXml, wchar_t* pszWorkFolder, SLoginInfo** ppLoginInfo,
                              SSignType** ppSignStepType, SSignType** ppSignFileType);
    long AppendStartSign(wchar_t* pszXml, wchar_t* pszWorkFolder, SLoginInfo** ppLoginInfo,
                         SSignType** ppSignStepType, SSignType** ppSignFileType);

    /// Reading of a message: of its text, which is kept first, or of one part of a loaded document. The
    /// documents are borrowed; a part that is missing or incomplete is a failure.
    long ParserStartSignXmlString(wchar_t* pszXml, wchar_t* pszWorkFolder, SLoginInfo** ppLoginInfo,
                                  SSignType** ppSignStepType, SSignType** ppSignFileType);
    long GetLoginInfo(IXMLDOMDocument* pDoc, SLoginInfo** ppLoginInfo);
    long GetSignStepType(IXMLDOMDocument* pDoc, SSignType** ppSignStepType);
    long GetSignFileType(IXMLDOMDocument* pDoc, SSignType** ppSignFileType);

    /// Merging of a further message (source) into the kept one (target): same signer, same steps,
    /// new documents only. The handed out documents are those that were not kept before.
    long AppendParserStartSignXmlString(wchar_t* pszXml, wchar_t* pszWorkFolder, SLoginInfo** ppLoginInfo,
                                        SSignType** ppSignStepType, SSignType** ppSignFileType);
    long AppendGetLoginInfo(IXMLDOMDocument* pSourceDoc, IXMLDOMDocument* pTargetDoc,
                            SLoginInfo** ppLoginInfo);
    /// 1 when both have the same user name, which must not be empty; passwords may differ.
    long ValidateLoginInfo(SLoginInfo* pSource, SLoginInfo* pTarget);
    long AppendGetSignStepType(IXMLDOMDocument* pSourceDoc, IXMLDOMDocument* pTargetDoc,
                               SSignType** ppSignStepType);
    /// 1 when both have the same steps with the same properties in the same order, and at least one.
    long ValidateSignStepType(SSignType* pSource, SSignType* pTarget);
    long AppendGetSignFileType(IXMLDOMDocument* pSourceDoc, IXMLDOMDocument* pTargetDoc,
                               SSignType** ppSignFileType);
    /// Unlinks and releases the source's documents whose file name the target has already.
    long RemoveExistSignFileTypeFromSource(SSignType* pSource, SSignType* pTarget);
    /// Adds the source's documents to the target's document group; fails when there is no such group.
    long AppendSignFileTypeToTarget(IXMLDOMDocument* pTargetDoc, SSignType* pSource);
    /// Adds an attribute; the name must not be empty, the value may be.
    long AddTargetAttribute(wchar_t* pszName, wchar_t* pszValue, IXMLDOMNamedNodeMap* pAttributes,
                            IXMLDOMDocument* pTargetDoc);

    /// Document transfer. The list must not be touched by others meanwhile; its items' states are
    /// written. The dialog variants return the dialog's result code: 1 all transferred, 2 interrupted,
    /// 3 some skipped, 4 some failed, 0 nothing to do.
    long DownloadDoc(SSignFileDUL* pList);
    long DownloadDocForBackSign(SSignFileDUL* pList);
    long UploadDoc(SSignFileDUL* pList);
    /// Returns the result of the last file attempted, 1 when there was none.
    long UploadDocForBackSign(SSignFileDUL* pList);

    /// Signature drawings: to a given full path, or to <user>_<seal>.dwg in the temporary folder.
    long DownloadSignFile(wchar_t* pszLocalPath, wchar_t* pszRemoteName);
    long DownloadSignFileEx(wchar_t* pszUserName, wchar_t* pszSealName);
    /// The server-side name of the user's signature drawing, empty on failure; the seal is not used.
    CString GetRemoteFileName(wchar_t* pszUserName, wchar_t* pszSealName);
    /// The value of the first property of that name in an object XML file, empty on failure.
    CString GetProValue(CString strXmlFile, CString strProName);

    /// Sign tags: markers per document in INI files under SignData of the documents' folder. A document that
    /// was never tagged has the tag 0.
    long SetDocSignTag(wchar_t* pszFolder, wchar_t* pszFileName, long nValue);
    long GetDocSignTag(wchar_t* pszFolder, wchar_t* pszFileName, long* pValue);
    long SetDocSignLogTag(wchar_t* pszFolder, wchar_t* pszFileName, long nValue);
    long GetDocSignLogTag(wchar_t* pszFolder, wchar_t* pszFileName, long* pValue);
    long SetDocSignTimeTag(wchar_t* pszFolder, wchar_t* pszFileName);
    /// Returns 1, with *pChanged 1, only when the document has changed since its time tag was set.
    long GetDocSignTimeTag(wchar_t* pszFolder, wchar_t* pszFileName, long* pChanged);
    /// Copies the local modification time, "YYYY-MM-DD_hh:mm:ss", to a buffer of 1024 characters.
    long GetDocLastModifyTimeString(wchar_t* pszFolder, wchar_t* pszFileName, wchar_t* pszOut);
    /// Sets the sign tags of a list, with a nonzero nWithLog the sign-log tags too, to 0.
    long UpdateDocsSignTag(SSignFileDUL* pList, long nWithLog);
    /// Sets the time tags of a list to its documents' modification times.
    long UpdateDocsSignTimeTag(SSignFileDUL* pList);

    /// Sign log. strKind is "N" for a signature, "D" for a deletion.
    long WriteDelOrSignLogToLocal(SSignObj* pObj, CString strFolder, CString strKind);
    /// Sends the local log and removes it. Returns 0 for success, 1 for failure.
    long WriteSignLogToServer(CString strFolder);

    /// Writes <pszRetFile without extension>_Ret.Xml: the kept message's documents, each marked with
    /// "SignRet" = "1" when its key property's value is among the signed names.
    long NotifyPLMSignForBackSignRet(CStringList& signedNames, wchar_t* pszKeyProName, wchar_t* pszWorkFolder,
                                     wchar_t* pszRetFile);

private:
    CModelConfig m_modelConfig;
    CWnd* m_parentWnd; // weak
};
