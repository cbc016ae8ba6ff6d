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

long CPLMInteract::Initialize(CWnd* parent) {
    const auto initialize = [&] {
        m_parentWnd = parent;
        return m_modelConfig.Initialize(parent) ? m_modelConfig.Load() : 0L;
    };
    return Guarded(0L, initialize, "CPLMInteract::Initialize");
}

long CPLMInteract::Uninitialize() {
    return Guarded(
        0L, [&] { return m_modelConfig.Uninitialize(); }, "CPLMInteract::Uninitialize");
}

long CPLMInteract::GetModelConfig(CModelConfig** modelConfig) {
    return Guarded(0L, [&] {
        if (modelConfig) *modelConfig = &m_modelConfig;
        return modelConfig != nullptr;
    });
}

long CPLMInteract::StartSign(wchar_t* message, wchar_t* workFolder, SLoginInfo** login, SSignType** steps,
                             SSignType** documents) {
    return Guarded(0L, [&] {
        return varnoke::StartWithChosenDocument({message, workFolder, login, steps, documents},
                                                varnoke::ParseStartSignMessage, m_modelConfig, m_parentWnd);
    });
}

long CPLMInteract::StartSignForBackSign(wchar_t* message, wchar_t* workFolder, SLoginInfo** login,
                                        SSignType** steps, SSignType** documents) {
    return ParserStartSignXmlString(message, workFolder, login, steps, documents);
}

long CPLMInteract::AppendStartSign(wchar_t* message, wchar_t* workFolder, SLoginInfo** login,
                                   SSignType** steps, SSignType** documents) {
    return Guarded(0L, [&] {
        return varnoke::StartWithChosenDocument({message, workFolder, login, steps, documents},
                                                varnoke::MergeStartSignMessage, m_modelConfig, m_parentWnd);
    });
}

long CPLMInteract::ParserStartSignXmlString(wchar_t* message, wchar_t* workFolder, SLoginInfo** login,
                                            SSignType** steps, SSignType** documents) {
    return Guarded(0L, [&] {
        return varnoke::StartWithAllDocuments({message, workFolder, login, steps, documents},
                                              varnoke::ParseStartSignMessage);
    });
}

long CPLMInteract::GetLoginInfo(IXMLDOMDocument* xml, SLoginInfo** login) {
    return Guarded(0L, [&] { return HandOut(login, [&] { return varnoke::ReadLoginInfo(xml); }); });
}

long CPLMInteract::GetSignStepType(IXMLDOMDocument* xml, SSignType** steps) {
    return Guarded(0L, [&] { return HandOut(steps, [&] { return varnoke::ReadSignSteps(xml); }); });
}

long CPLMInteract::GetSignFileType(IXMLDOMDocument* xml, SSignType** documents) {
    return Guarded(0L, [&] { return HandOut(documents, [&] { return varnoke::ReadSignFiles(xml); }); });
}

long CPLMInteract::AppendParserStartSignXmlString(wchar_t* message, wchar_t* workFolder, SLoginInfo** login,
                                                  SSignType** steps, SSignType** documents) {
    return Guarded(0L, [&] {
        return varnoke::StartWithAllDocuments({message, workFolder, login, steps, documents},
                                              varnoke::MergeStartSignMessage);
    });
}

long CPLMInteract::AppendGetLoginInfo(IXMLDOMDocument* source, IXMLDOMDocument* target, SLoginInfo** login) {
    return Guarded(0L,
                   [&] { return HandOut(login, [&] { return varnoke::MergeLoginInfo(source, target); }); });
}

long CPLMInteract::ValidateLoginInfo(SLoginInfo* source, SLoginInfo* target) {
    return Guarded(0L, [&] { return varnoke::IsSameSigner(source, target); });
}

long CPLMInteract::AppendGetSignStepType(IXMLDOMDocument* source, IXMLDOMDocument* target,
                                         SSignType** steps) {
    return Guarded(0L,
                   [&] { return HandOut(steps, [&] { return varnoke::MergeSignSteps(source, target); }); });
}

long CPLMInteract::ValidateSignStepType(SSignType* source, SSignType* target) {
    return Guarded(0L, [&] { return varnoke::AreSameSteps(source, target); });
}

long CPLMInteract::AppendGetSignFileType(IXMLDOMDocument* source, IXMLDOMDocument* target,
                                         SSignType** documents) {
    return Guarded(
        0L, [&] { return HandOut(documents, [&] { return varnoke::MergeSignFiles(source, target); }); });
}

long CPLMInteract::RemoveExistSignFileTypeFromSource(SSignType* source, SSignType* target) {
    return Guarded(0L, [&] {
        if (source && target) varnoke::RemoveKeptDocuments(*source, *target);
        return source && target;
    });
}

long CPLMInteract::AppendSignFileTypeToTarget(IXMLDOMDocument* target, SSignType* source) {
    return Guarded(0L, [&] { return target && source && varnoke::AppendDocuments(target, *source); });
}

long CPLMInteract::AddTargetAttribute(wchar_t* name, wchar_t* value, IXMLDOMNamedNodeMap* attributes,
                                      IXMLDOMDocument* target) {
    return Guarded(0L, [&] { return varnoke::AddAttribute(name, value, attributes, target); });
}
