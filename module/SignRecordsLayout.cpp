// Holds the memory layout of the exported records as 64-bit hosts read it.
#include "varnoke/SignRecords.h"

#include <cstddef>

// The lists have virtual functions; all compilers in use give their offsets all the same.
#ifdef __GNUC__
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
#endif

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

#ifdef __GNUC__
#pragma GCC diagnostic pop
#endif
