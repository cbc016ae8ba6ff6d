// CPLMInteract: the frame of the class and the start-sign request.
#include <afxwin.h>

#include "varnoke/PLMInteract.h"
#include "module/Guarded.h"
#include "plm/StartSign.h"
#include "plm/StartSignMerge.h"
#include "plm/StartSignMessage.h"

using varnoke::Guarded;

namespace {

/// Clears the out-pointer, then hands out the record that `read` gives.
template <class Record, class Read>
long HandOut(Record** out, Read read) {
    if (!out) return 0;
    *out = nullptr;
    *out = read().release();
    return *out ? 1 : 0;
}

} // namespace

CPLMInteract::CPLMInteract() : m_parentWnd(nullptr) {}

CPLMInteract::~CPLMInteract() {
    m_parentWnd = nullptr;
}

long CPLMInteract::Initialize(CWnd* pParentWnd) {
    return Guarded(0L, [&] {
        m_parentWnd = pParentWnd;
        return m_modelConfig.Initialize(pParentWnd) ? m_modelConfig.Load() : 0L;
    });
}

long CPLMInteract::Uninitialize() {
    return Guarded(0L, [&] { return m_modelConfig.Uninitialize(); });
}

long CPLMInteract::GetModelConfig(CModelConfig** ppModelConfig) {
    return Guarded(0L, [&] {
        if (ppModelConfig) *ppModelConfig = &m_modelConfig;
        return ppModelConfig != nullptr;
    });
}

long CPLMInteract::StartSign(wchar_t* pszXml, wchar_t* pszWorkFolder, SLoginInfo** ppLoginInfo,
                             SSignType** ppSignStepType, SSignType** ppSignFileType) {
    return Guarded(0L, [&] {
        return varnoke::StartWithChosenDocument(
            {pszXml, pszWorkFolder, ppLoginInfo, ppSignStepType, ppSignFileType},
            varnoke::ParseStartSignMessage, m_modelConfig, m_parentWnd);
    });
}

long CPLMInteract::StartSignForBackSign(wchar_t* pszXml, wchar_t* pszWorkFolder, SLoginInfo** ppLoginInfo,
                                        SSignType** ppSignStepType, SSignType** ppSignFileType) {
    return ParserStartSignXmlString(pszXml, pszWorkFolder, ppLoginInfo, ppSignStepType, ppSignFileType);
}

long CPLMInteract::AppendStartSign(wchar_t* pszXml, wchar_t* pszWorkFolder, SLoginInfo** ppLoginInfo,
                                   SSignType** ppSignStepType, SSignType** ppSignFileType) {
    return Guarded(0L, [&] {
        return varnoke::StartWithChosenDocument(
            {pszXml, pszWorkFolder, ppLoginInfo, ppSignStepType, ppSignFileType},
            varnoke::MergeStartSignMessage, m_modelConfig, m_parentWnd);
    });
}

long CPLMInteract::ParserStartSignXmlString(wchar_t* pszXml, wchar_t* pszWorkFolder, SLoginInfo** ppLoginInfo,
                                            SSignType** ppSignStepType, SSignType** ppSignFileType) {
    return Guarded(0L, [&] {
        return varnoke::StartWithAllDocuments(
            {pszXml, pszWorkFolder, ppLoginInfo, ppSignStepType, ppSignFileType},
            varnoke::ParseStartSignMessage);
    });
}

long CPLMInteract::GetLoginInfo(IXMLDOMDocument* pDoc, SLoginInfo** ppLoginInfo) {
    return Guarded(0L, [&] { return HandOut(ppLoginInfo, [&] { return varnoke::ReadLoginInfo(pDoc); }); });
}

long CPLMInteract::GetSignStepType(IXMLDOMDocument* pDoc, SSignType** ppSignStepType) {
    return Guarded(0L, [&] { return HandOut(ppSignStepType, [&] { return varnoke::ReadSignSteps(pDoc); }); });
}

long CPLMInteract::GetSignFileType(IXMLDOMDocument* pDoc, SSignType** ppSignFileType) {
    return Guarded(0L, [&] { return HandOut(ppSignFileType, [&] { return varnoke::ReadSignFiles(pDoc); }); });
}

long CPLMInteract::AppendParserStartSignXmlString(wchar_t* pszXml, wchar_t* pszWorkFolder,
                                                  SLoginInfo** ppLoginInfo, SSignType** ppSignStepType,
                                                  SSignType** ppSignFileType) {
    return Guarded(0L, [&] {
        return varnoke::StartWithAllDocuments(
            {pszXml, pszWorkFolder, ppLoginInfo, ppSignStepType, ppSignFileType},
            varnoke::MergeStartSignMessage);
    });
}

long CPLMInteract::AppendGetLoginInfo(IXMLDOMDocument* pSourceDoc, IXMLDOMDocument* pTargetDoc,
                                      SLoginInfo** ppLoginInfo) {
    return Guarded(0L, [&] {
        return HandOut(ppLoginInfo, [&] { return varnoke::MergeLoginInfo(pSourceDoc, pTargetDoc); });
    });
}

long CPLMInteract::ValidateLoginInfo(SLoginInfo* pSource, SLoginInfo* pTarget) {
    return Guarded(0L, [&] { return varnoke::IsSameSigner(pSource, pTarget); });
}

long CPLMInteract::AppendGetSignStepType(IXMLDOMDocument* pSourceDoc, IXMLDOMDocument* pTargetDoc,
                                         SSignType** ppSignStepType) {
    return Guarded(0L, [&] {
        return HandOut(ppSignStepType, [&] { return varnoke::MergeSignSteps(pSourceDoc, pTargetDoc); });
    });
}

long CPLMInteract::ValidateSignStepType(SSignType* pSource, SSignType* pTarget) {
    return Guarded(0L, [&] { return varnoke::AreSameSteps(pSource, pTarget); });
}

long CPLMInteract::AppendGetSignFileType(IXMLDOMDocument* pSourceDoc, IXMLDOMDocument* pTargetDoc,
                                         SSignType** ppSignFileType) {
    return Guarded(0L, [&] {
        return HandOut(ppSignFileType, [&] { return varnoke::MergeSignFiles(pSourceDoc, pTargetDoc); });
    });
}

long CPLMInteract::RemoveExistSignFileTypeFromSource(SSignType* pSource, SSignType* pTarget) {
    return Guarded(0L, [&] {
        if (pSource && pTarget) varnoke::RemoveKeptDocuments(*pSource, *pTarget);
        return pSource && pTarget;
    });
}

long CPLMInteract::AppendSignFileTypeToTarget(IXMLDOMDocument* pTargetDoc, SSignType* pSource) {
    return Guarded(0L,
                   [&] { return pTargetDoc && pSource && varnoke::AppendDocuments(pTargetDoc, *pSource); });
}

long CPLMInteract::AddTargetAttribute(wchar_t* pszName, wchar_t* pszValue, IXMLDOMNamedNodeMap* pAttributes,
                                      IXMLDOMDocument* pTargetDoc) {
    return Guarded(0L, [&] { return varnoke::AddAttribute(pszName, pszValue, pAttributes, pTargetDoc); });
}
