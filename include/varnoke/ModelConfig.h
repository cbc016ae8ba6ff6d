// CModelConfig: the object model configuration of the PLM side, loaded from ModelConfig.Xml.
#pragma once

#include <afxwin.h>

#include "neighbours/qormodel.h"
#include "varnoke/Export.h"
#include "varnoke/INIConfig.h"

#ifdef _MSC_VER
#pragma warning(push)
#pragma warning(disable : 4251 4275) // fields are the library's own business
#endif

/// For the host's user-interface thread, with COM initialised. Which configurations are meant is read from
/// the settings (section "SignLog") at every call.
class VARNOKE_API CModelConfig {
public:
    CModelConfig();
    virtual ~CModelConfig();
    CModelConfig(const CModelConfig&) = delete;
    CModelConfig& operator=(const CModelConfig&) = delete;

    /// Initialises the settings and finds ModelConfig.Xml: beside the loaded module QORLocal.dll, else beside
    /// the host program. `parent` is borrowed and may be null. Returns 1, or 0 without settings or path.
    long Initialize(CWnd* parent);
    /// Loads the file, replacing the model loaded before. Returns 1, or 0 with no model loaded.
    long Load();
    /// Releases the settings, after which the getters use the defaults; the model stays loaded. Returns 1.
    long Uninitialize();

    /// The configuration of a log entry on this side and on the server. Each result is a new reference, null
    /// when no model is loaded, when there is no such configuration, and on failure.
    QORMODEL::IQORObjConfigPtr GetLocalObjectConfig();
    QORMODEL::IQORObjConfigPtr GetServerObjectConfig();
    /// The first map from the local to the server object configuration in the design domain; the server's
    /// identifier is compared without regard to case. Null as above.
    QORMODEL::IQORObjMapConfigPtr GetMapObjectConfig();

private:
    friend struct varnoke::InterfaceLayout;

    CString m_configPath; // full path, empty until initialised
    QORMODEL::IQORConfigModelPtr m_model;
    CINIConfig m_iniConfig;
    CWnd* m_parentWnd; // weak
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
