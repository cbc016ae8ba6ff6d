// Assembly of the parameters of a signature, and the dialogs behind it.
#include "sign/SignOpt.h"

#include "module/Guarded.h"
#include "module/ModulePaths.h"
#include "module/OwnedRecord.h"
#include "plm/durvell.h"
#include "sign/DateStyle.h"
#include "ui/OptionDlg.h"
#include "ui/SignDlg.h"

using varnoke::Guarded;
using varnoke::OwnedRecord;

namespace {

constexpr int kShareInfoSize = 1024; // of each buffer of the shared login, with its terminator

bool HasText(const wchar_t* text) {
    return text != nullptr && *text != L'\0';
}

/// Prepares an out-pointer, which stays null on failure. Returns whether there is one.
bool ClearOut(SSignInfo** out) {
    if (out == nullptr) {
        return false;
    }
    *out = nullptr;
    return true;
}

void FillFromDialog(SSignInfo& info, const CSignDlg& dialog) {
    info.m_strUserName = dialog.UserName();
    info.m_strRole = dialog.Role();
    info.m_strSealName = dialog.SealName();
    info.m_strDlgDateText = dialog.SignDateText();
    info.m_strDlgDateFormat = dialog.DateFormat();
    info.m_strDlgDateLocation = dialog.DateLocation();
    info.m_strDlgDateFontSize = dialog.FontSize();
    info.m_strDlgDateTextColor = dialog.TextColor();
    info.m_nScope = dialog.Scope();
    info.m_strDateText = info.m_strDlgDateText;
}

void FillLocations(SSignInfo& info, const CINIConfig& config) {
    info.m_nLocationStyle = config.GetLocationStyle();
    info.m_dLocationXCheck = config.GetLocationXCheck();
    info.m_dLocationYCheck = config.GetLocationYCheck();
    info.m_nDateLocationStyle = config.GetDateLocationStyle();
    info.m_dDateLocationXCheck = config.GetDateLocationXCheck();
    info.m_dDateLocationYCheck = config.GetDateLocationYCheck();
}

void FillSealAndDateForm(SSignInfo& info, const CINIConfig& config) {
    info.m_nSealIndex = config.GetIndex();
    info.m_strPin = config.GetPin();
    info.m_dDateOffsetX = config.GetDateOffsetX();
    info.m_dDateOffsetY = config.GetDateOffsetY();
    info.m_dDateFontSize = config.GetDateFontSize();
    info.m_nDateTextColor = config.GetSignDateTextColor();
    info.m_strDateFontName = config.GetDateFontName();
}

} // namespace

long CSignOpt::GetSignUserName(wchar_t* buffer) {
    return Guarded(0L, [&]() -> long {
        if (buffer == nullptr) {
            return 0;
        }
        FetchSharedLogin();
        ::lstrcpynW(buffer, m_strPLMUser, kShareInfoSize);
        return 1;
    });
}

void CSignOpt::FetchSharedLogin() {
    wchar_t user[kShareInfoSize] = {};
    wchar_t password[kShareInfoSize] = {};
    wchar_t server[kShareInfoSize] = {};
    dvl_GetShareInfo(user, password, server);
    for (wchar_t* buffer : {user, password, server}) {
        buffer[kShareInfoSize - 1] = L'\0';
    }
    m_strPLMUser = user;
    m_strPassword = password;
    m_strServerAddress = server;
}

long CSignOpt::GetSignInfo(wchar_t* document, long value, wchar_t* name, SSignInfo** out) {
    return Guarded(0L, [&]() -> long {
        if (!ClearOut(out) || !HasText(document) || !HasText(name)) {
            return 0;
        }
        FetchSharedLogin();
        const CString key = m_strPLMUser + L"_" + name;
        const CString drawing = varnoke::JoinPath(varnoke::TemporaryFolder(), key + L".dwg");

        CSignDlg dialog(m_pParentWnd);
        dialog.SetScopeSelectable(value);
        dialog.SetUserName(m_strPLMUser);
        dialog.SetRole(name);
        dialog.SetSealDrawingPath(drawing);
        dialog.SetSettings(&m_config);
        if (dialog.DoModal() != IDOK) {
            return 0;
        }
        OwnedRecord<SSignInfo> info(new SSignInfo);
        FillFromDialog(*info, dialog);
        FillLocations(*info, m_config);
        info->m_strTempDrawing = drawing;
        FillSealAndDateForm(*info, m_config);
        *out = info.release();
        return 1;
    });
}

long CSignOpt::GetSignInfoForBackSign(wchar_t* document, SSignInfo** out) {
    return Guarded(0L, [&]() -> long {
        if (!ClearOut(out) || !HasText(document)) {
            return 0;
        }
        OwnedRecord<SSignInfo> info(new SSignInfo);
        FillSealAndDateForm(*info, m_config);
        info->m_strDateText = varnoke::RenderDate(m_config.GetDateStyle(), varnoke::Today());
        *out = info.release();
        return 1;
    });
}

long CSignOpt::GetCancelSignDate(wchar_t* out) {
    return Guarded(0L, [&]() -> long {
        if (out == nullptr) {
            return 0;
        }
        CString style = m_config.GetDateStyle();
        if (varnoke::CheckDateStyle(style) != varnoke::DateStyleFault::None) {
            style = varnoke::kDefaultDateStyle;
        }
        ::lstrcpyW(out, varnoke::RenderDate(style, varnoke::Today()));
        return 1;
    });
}

long CSignOpt::SetOption() {
    return Guarded(0L, [&]() -> long {
        COptionDlg dialog(m_pParentWnd);
        dialog.SetSettings(&m_config);
        return dialog.DoModal() == IDOK ? 1 : 0;
    });
}
