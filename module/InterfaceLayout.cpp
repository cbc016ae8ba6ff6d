// Holds the memory layout of what crosses the interface, as 64-bit hosts read it; docs/binary-interface.md
// gives the evidence. Every build compiles this, with the framework that it uses.
#include "varnoke/Varnoke.h"

#include <cstddef>

// The lists have virtual functions; all compilers in use give their offsets all the same.
#ifdef __GNUC__
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
#endif

static_assert(sizeof(CString) == 0x08, "size of CString");
static_assert(sizeof(CObject) == 0x08, "size of CObject");
static_assert(sizeof(CList<void*, void*>) == 0x38, "size of CList");
static_assert(sizeof(CStringList) == 0x38, "size of CStringList");
static_assert(offsetof(CWnd, m_hWnd) == 0x40, "CWnd");

static_assert(sizeof(SLoginInfo) == 0x18, "size of SLoginInfo");
static_assert(offsetof(SLoginInfo, m_strUserName) == 0x00, "SLoginInfo");
static_assert(offsetof(SLoginInfo, m_strPassword) == 0x08, "SLoginInfo");
static_assert(offsetof(SLoginInfo, m_strPLMServer) == 0x10, "SLoginInfo");

static_assert(sizeof(SSignPro) == 0x10, "size of SSignPro");
static_assert(offsetof(SSignPro, m_strName) == 0x00, "SSignPro");
static_assert(offsetof(SSignPro, m_strValue) == 0x08, "SSignPro");

static_assert(sizeof(SSignObj) == 0x38, "size of SSignObj");

static_assert(sizeof(SSignType) == 0x40, "size of SSignType");
static_assert(offsetof(SSignType, m_lstObj) == 0x00, "SSignType");
static_assert(offsetof(SSignType, m_strId) == 0x38, "SSignType");

static_assert(sizeof(SSignFileDULItem) == 0x18, "size of SSignFileDULItem");
static_assert(offsetof(SSignFileDULItem, m_strRemoteName) == 0x00, "SSignFileDULItem");
static_assert(offsetof(SSignFileDULItem, m_strLocalName) == 0x08, "SSignFileDULItem");
static_assert(offsetof(SSignFileDULItem, m_nState) == 0x10, "SSignFileDULItem");

static_assert(sizeof(SSignFileDUL) == 0x40, "size of SSignFileDUL");
static_assert(offsetof(SSignFileDUL, m_strFolder) == 0x00, "SSignFileDUL");
static_assert(offsetof(SSignFileDUL, m_lstItem) == 0x08, "SSignFileDUL");

static_assert(sizeof(SSignInfo) == 0x160, "size of SSignInfo");
static_assert(offsetof(SSignInfo, m_strFirstText) == 0x00, "SSignInfo");
static_assert(offsetof(SSignInfo, m_strSecondText) == 0x08, "SSignInfo");
static_assert(offsetof(SSignInfo, m_strUserName) == 0x10, "SSignInfo");
static_assert(offsetof(SSignInfo, m_strRole) == 0x18, "SSignInfo");
static_assert(offsetof(SSignInfo, m_strSealName) == 0x20, "SSignInfo");
static_assert(offsetof(SSignInfo, m_dA) == 0x28, "SSignInfo");
static_assert(offsetof(SSignInfo, m_dB) == 0x30, "SSignInfo");
static_assert(offsetof(SSignInfo, m_dC) == 0x38, "SSignInfo");
static_assert(offsetof(SSignInfo, m_dD) == 0x40, "SSignInfo");
static_assert(offsetof(SSignInfo, m_dE) == 0x48, "SSignInfo");
static_assert(offsetof(SSignInfo, m_dF) == 0x50, "SSignInfo");
static_assert(offsetof(SSignInfo, m_dG) == 0x58, "SSignInfo");
static_assert(offsetof(SSignInfo, m_dH) == 0x60, "SSignInfo");
static_assert(offsetof(SSignInfo, m_nSealIndex) == 0x68, "SSignInfo");
static_assert(offsetof(SSignInfo, m_strPin) == 0x70, "SSignInfo");
static_assert(offsetof(SSignInfo, m_strDateText) == 0x78, "SSignInfo");
static_assert(offsetof(SSignInfo, m_dDateOffsetX) == 0x80, "SSignInfo");
static_assert(offsetof(SSignInfo, m_dDateOffsetY) == 0x88, "SSignInfo");
static_assert(offsetof(SSignInfo, m_dDateFontSize) == 0x90, "SSignInfo");
static_assert(offsetof(SSignInfo, m_nDateTextColor) == 0x98, "SSignInfo");
static_assert(offsetof(SSignInfo, m_strDateFontName) == 0xA0, "SSignInfo");
static_assert(offsetof(SSignInfo, m_nReserved1) == 0xA8, "SSignInfo");
static_assert(offsetof(SSignInfo, m_strDlgDateText) == 0xB0, "SSignInfo");
static_assert(offsetof(SSignInfo, m_strDlgDateFormat) == 0xB8, "SSignInfo");
static_assert(offsetof(SSignInfo, m_strDlgDateLocation) == 0xC0, "SSignInfo");
static_assert(offsetof(SSignInfo, m_strDlgDateFontSize) == 0xC8, "SSignInfo");
static_assert(offsetof(SSignInfo, m_strDlgDateTextColor) == 0xD0, "SSignInfo");
static_assert(offsetof(SSignInfo, m_nScope) == 0xD8, "SSignInfo");
static_assert(offsetof(SSignInfo, m_adReserved2) == 0xE0, "SSignInfo");
static_assert(offsetof(SSignInfo, m_nLocationStyle) == 0x100, "SSignInfo");
static_assert(offsetof(SSignInfo, m_dLocationXCheck) == 0x108, "SSignInfo");
static_assert(offsetof(SSignInfo, m_dLocationYCheck) == 0x110, "SSignInfo");
static_assert(offsetof(SSignInfo, m_adReserved3) == 0x118, "SSignInfo");
static_assert(offsetof(SSignInfo, m_nDateLocationStyle) == 0x138, "SSignInfo");
static_assert(offsetof(SSignInfo, m_dDateLocationXCheck) == 0x140, "SSignInfo");
static_assert(offsetof(SSignInfo, m_dDateLocationYCheck) == 0x148, "SSignInfo");
static_assert(offsetof(SSignInfo, m_strTempDrawing) == 0x150, "SSignInfo");
static_assert(offsetof(SSignInfo, m_strReserved4) == 0x158, "SSignInfo");

// The host allocates the exported classes; their fields are the library's own.
struct varnoke::InterfaceLayout {
    static_assert(sizeof(CINIConfig) == 0x18, "size of CINIConfig");
    static_assert(offsetof(CINIConfig, m_path) == 0x08, "CINIConfig");
    static_assert(offsetof(CINIConfig, m_parentWnd) == 0x10, "CINIConfig");

    static_assert(sizeof(CModelConfig) == 0x38, "size of CModelConfig");
    static_assert(offsetof(CModelConfig, m_configPath) == 0x08, "CModelConfig");
    static_assert(offsetof(CModelConfig, m_model) == 0x10, "CModelConfig");
    static_assert(offsetof(CModelConfig, m_iniConfig) == 0x18, "CModelConfig");
    static_assert(offsetof(CModelConfig, m_parentWnd) == 0x30, "CModelConfig");

    static_assert(sizeof(CPLMInteract) == 0x48, "size of CPLMInteract");
    static_assert(offsetof(CPLMInteract, m_modelConfig) == 0x08, "CPLMInteract");
    static_assert(offsetof(CPLMInteract, m_parentWnd) == 0x40, "CPLMInteract");

    static_assert(sizeof(CCOMAPInvokeHelper) == 3 * sizeof(void*), "size of CCOMAPInvokeHelper");
    static_assert(offsetof(CCOMAPInvokeHelper, m_server) == 0x08, "CCOMAPInvokeHelper");
    static_assert(offsetof(CCOMAPInvokeHelper, m_method) == 0x10, "CCOMAPInvokeHelper");

    static_assert(sizeof(CSignOpt) == 0x60, "size of CSignOpt");
    static_assert(offsetof(CSignOpt, m_config) == 0x18, "CSignOpt");
    static_assert(offsetof(CSignOpt, m_parentWnd) == 0x30, "CSignOpt");
    static_assert(offsetof(CSignOpt, m_plmUser) == 0x38, "CSignOpt");
    static_assert(offsetof(CSignOpt, m_signUser) == 0x40, "CSignOpt");
    static_assert(offsetof(CSignOpt, m_password) == 0x48, "CSignOpt");
    static_assert(offsetof(CSignOpt, m_serverAddress) == 0x50, "CSignOpt");
    static_assert(offsetof(CSignOpt, m_serverPort) == 0x58, "CSignOpt");
};

#ifdef __GNUC__
#pragma GCC diagnostic pop
#endif
