// CModelConfig: loads the model configuration and picks the three configurations that signing needs.
#include "varnoke/ModelConfig.h"

#include "config/SettingDefaults.h"
#include "neighbours/qorparser.h"
#include "module/BstrText.h"
#include "module/Guarded.h"
#include "module/ModulePaths.h"

using namespace QORMODEL;
using _com_util::CheckError;
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
    IQORObjConfigPtr config;
    CheckError(model->GetObjConfig(ToBstr(id), &config));
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
    return nullptr;
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
    return Guarded(0L, [&] {
        m_parentWnd = parent;
        const long result = m_iniConfig.Initialize(parent);
        if (result == 0) return 0L;
        m_configPath = varnoke::ModelConfigPath();
        return m_configPath.IsEmpty() ? 0L : result;
    });
}

long CModelConfig::Load() {
    return Guarded(0L, [&] {
        CQORXmlConfigParser parser;
        if (m_configPath.IsEmpty()) return 0L;
        m_model = nullptr;
        parser.parseDataFile(m_configPath, m_model);
        return m_model ? 1L : 0L;
    });
}

long CModelConfig::Uninitialize() {
    return Guarded(0L, [&] { return m_iniConfig.Uninitialize(); });
}

IQORObjConfigPtr CModelConfig::GetLocalObjectConfig() {
    return Guarded(IQORObjConfigPtr(), [&] {
        return m_model ? FindObjConfig(m_model, LocalId(m_iniConfig)) : IQORObjConfigPtr();
    });
}

IQORObjConfigPtr CModelConfig::GetServerObjectConfig() {
    return Guarded(IQORObjConfigPtr(), [&] {
        return m_model ? FindObjConfig(m_model, ServerId(m_iniConfig)) : IQORObjConfigPtr();
    });
}

IQORObjMapConfigPtr CModelConfig::GetMapObjectConfig() {
    return Guarded(IQORObjMapConfigPtr(), [&]() -> IQORObjMapConfigPtr {
        if (!m_model) return nullptr;
        IQORDomainConfigPtr domain;
        const CString domainName = OrDefault(m_iniConfig.GetDesignDoMain(), varnoke::kDefaultDesignDoMain);
        CheckError(m_model->GetDomainConfig(ToBstr(domainName), &domain));
        if (!domain) return nullptr;
        IQORObjMapConfigsPtr maps;
        CheckError(domain->GetObjMapConfigs(ToBstr(LocalId(m_iniConfig)), &maps));
        long count = 0;
        if (maps) CheckError(maps->GetCount(&count));
        return count > 0 ? FindMap(maps, count, ServerId(m_iniConfig)) : IQORObjMapConfigPtr();
    });
}
