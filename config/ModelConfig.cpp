// CModelConfig: loads the model configuration and picks the three configurations that signing needs.
#include "varnoke/ModelConfig.h"

#include "config/SettingDefaults.h"
#include "neighbours/qorparser.h"
#include "module/BstrText.h"
#include "module/Guarded.h"
#include "module/ModulePaths.h"
#include "module/Trace.h"
#include "base/Paths.h"

using namespace QORMODEL;
using _com_util::CheckError;
using varnoke::Cause;
using varnoke::Fail;
using varnoke::Guarded;
using varnoke::ToBstr;

namespace {

CString OrDefault(const CString& text, const wchar_t* fallback) {
    return text.IsEmpty() ? CString(fallback) : text;
}

CString LocalId(const CINIConfig& settings) {
    return OrDefault(settings.GetLocalObjectConfigId(), varnoke::kDefaultLocalObjectConfigId);
}

CString ServerId(const CINIConfig& settings) {
    return OrDefault(settings.GetServerObjectConfigId(), varnoke::kDefaultServerObjectConfigId);
}

IQORObjConfigPtr FindObjConfig(IQORConfigModel* model, const CString& id) {
    if (!model) return Fail(Cause::ModelConfigNotLoaded);
    IQORObjConfigPtr config;
    CheckError(model->GetObjConfig(ToBstr(id), &config));
    if (!config) Fail(Cause::ObjectConfigMissing, id);
    return config;
}

IQORObjMapConfigPtr MapAt(IQORObjMapConfigs* maps, long index) {
    IUnknown* item = nullptr;
    const HRESULT taken = maps->GetItem(index, &item);
    const _com_ptr_t<_com_IIID<IUnknown, &IID_IUnknown>> owner(item, false);
    CheckError(taken);
    return IQORObjMapConfigPtr(item);
}

// The first map of the list that leads to the server object configuration; null when none does.
IQORObjMapConfigPtr FindMap(IQORObjMapConfigs* maps, long count, const CString& serverId) {
    for (long index = 0; index < count; ++index) {
        const IQORObjMapConfigPtr map = MapAt(maps, index);
        if (!map) continue;
        _bstr_t id;
        CheckError(map->GetServerObjConfigId(id.GetAddress()));
        if (id.length() > 0 && serverId.CompareNoCase(id) == 0) return map;
    }
    return Fail(Cause::ObjectMapMissing, serverId);
}

} // namespace

CModelConfig::CModelConfig() : m_parentWnd(nullptr) {}

CModelConfig::~CModelConfig() {
    Guarded([&] {
        m_configPath.Empty();
        m_model = nullptr;
        m_parentWnd = nullptr;
    });
}

long CModelConfig::Initialize(CWnd* parent) {
    const auto initialize = [&]() -> long {
        varnoke::ConfigureTrace();
        m_parentWnd = parent;
        const long result = m_iniConfig.Initialize(parent);
        if (result == 0) return 0;
        m_configPath = varnoke::ModelConfigPath();
        return m_configPath.IsEmpty() ? 0 : result;
    };
    return Guarded(0L, initialize, "CModelConfig::Initialize");
}

long CModelConfig::Load() {
    return Guarded(0L, [&]() -> long {
        if (m_configPath.IsEmpty()) return Fail(Cause::ModelConfigNotLoaded);
        CQORXmlConfigParser parser;
        m_model = nullptr;
        parser.parseDataFile(m_configPath, m_model);
        if (m_model) return 1;
        return Fail(base::FileExists(m_configPath) ? Cause::ModelConfigUnreadable : Cause::ModelConfigMissing,
                    m_configPath);
    });
}

long CModelConfig::Uninitialize() {
    return Guarded(
        0L, [&] { return m_iniConfig.Uninitialize(); }, "CModelConfig::Uninitialize");
}

IQORObjConfigPtr CModelConfig::GetLocalObjectConfig() {
    return Guarded(IQORObjConfigPtr(), [&] { return FindObjConfig(m_model, LocalId(m_iniConfig)); });
}

IQORObjConfigPtr CModelConfig::GetServerObjectConfig() {
    return Guarded(IQORObjConfigPtr(), [&] { return FindObjConfig(m_model, ServerId(m_iniConfig)); });
}

IQORObjMapConfigPtr CModelConfig::GetMapObjectConfig() {
    return Guarded(IQORObjMapConfigPtr(), [&]() -> IQORObjMapConfigPtr {
        if (!m_model) return Fail(Cause::ModelConfigNotLoaded);
        IQORDomainConfigPtr domain;
        const CString domainName = OrDefault(m_iniConfig.GetDesignDoMain(), varnoke::kDefaultDesignDoMain);
        CheckError(m_model->GetDomainConfig(ToBstr(domainName), &domain));
        if (!domain) return Fail(Cause::DomainMissing, domainName);
        IQORObjMapConfigsPtr maps;
        CheckError(domain->GetObjMapConfigs(ToBstr(LocalId(m_iniConfig)), &maps));
        long count = 0;
        if (maps) CheckError(maps->GetCount(&count));
        return FindMap(maps, count, ServerId(m_iniConfig));
    });
}
