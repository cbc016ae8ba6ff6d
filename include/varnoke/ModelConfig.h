// CModelConfig: the object model configuration of the PLM side, loaded from ModelConfig.Xml.
#pragma once

#include <afxwin.h>
#include "varnoke/Export.h"
#include "varnoke/INIConfig.h"
#include "neighbours/qormodel.h"

/// For the host's user-interface thread, with COM initialised; catches all exceptions. Which
/// configurations are meant is read from the settings at every call.
class VARNOKE_API CModelConfig {
public:
    CModelConfig();
    virtual ~CModelConfig();
    CModelConfig(const CModelConfig&) = delete;
    CModelConfig& operator=(const CModelConfig&) = delete;

    /// Initialises the settings and finds ModelConfig.Xml: beside the loaded module QORLocal.dll, else
    /// beside the host program. The window is borrowed, may be null. Returns 1, or 0 on failure.
    long Initialize(CWnd* pParentWnd);
    /// Loads the file, replacing the model loaded before. Returns 1, or 0 with no model loaded.
    long Load();
    /// Releases the settings; the model stays loaded. Returns the settings' result.
    long Uninitialize();

    /// Each is null when no model is loaded, when there is no such configuration, and on failure.
    QORMODEL::IQORObjConfigPtr GetLocalObjectConfig();
    QORMODEL::IQORObjConfigPtr GetServerObjectConfig();
    /// The first map from the local to the server object configuration in the design domain; the
    /// server identifier is compared without regard to case.
    QORMODEL::IQORObjMapConfigPtr GetMapObjectConfig();

private:
    CString m_configPath; // full path, empty until initialised
    QORMODEL::IQORConfigModelPtr m_model;
    CINIConfig m_iniConfig;
    CWnd* m_parentWnd; // weak
};
