// Assembly of the parameters of a signature, and the dialogs behind it.
#include "varnoke/SignOpt.h"

#include "module/Guarded.h"
#include "module/ModulePaths.h"
#include "varnoke/OwnedRecord.h"
#include "neighbours/durvell.h"
#include "config/DateStyle.h"
#include "ui/OptionDlg.h"
#include "ui/SignDlg.h"

using varnoke::Cause;
using varnoke::Fail;
using varnoke::Guarded;
using varnoke::IsGiven;
using varnoke::OwnedRecord;

namespace {

constexpr int kShareInfoSize = 1024; // of each buffer of the shared login, with its terminator

/// Prepares an out-pointer, which stays null on failure. Returns whether there is one.
bool ClearOut(SSignInfo** info) {
    if (!info) return Fail(Cause::ArgumentMissing, L"info");
    *info = nullptr;
    return true;
}

/// Whether a dialog ended with OK.
bool IsConfirmed(INT_PTR result) {
    return result == IDOK || Fail(result == IDCANCEL ? Cause::Cancelled : Cause::DialogFailed);
}

/// Asks for the shared login; texts that are not delivered come out empty.
void FetchSharedLogin(CString& user, CString& password, CString& server) {
    wchar_t buffers[3][kShareInfoSize] = {};
    dvl_GetShareInfo(buffers[0], buffers[1], buffers[2]);
    for (wchar_t* buffer : buffers) {
        buffer[kShareInfoSize - 1] = L'\0';
    }
    user = buffers[0];
    password = buffers[1];
    server = buffers[2];
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

long CSignOpt::GetSignUserName(wchar_t* userName) {
    return Guarded(0L, [&]() -> long {
        if (!userName) return Fail(Cause::ArgumentMissing, L"userName");
        FetchSharedLogin(m_plmUser, m_password, m_serverAddress);
        ::lstrcpynW(userName, m_plmUser, kShareInfoSize);
        return 1;
    });
}

long CSignOpt::GetSignInfo(wchar_t* documentPath, long scopeSelectable, wchar_t* role, SSignInfo** info) {
    return Guarded(0L, [&]() -> long {
        if (!ClearOut(info) || !IsGiven(documentPath, L"documentPath") || !IsGiven(role, L"role")) return 0;
        FetchSharedLogin(m_plmUser, m_password, m_serverAddress);
        const CString key = m_plmUser + L"_" + role;
        const CString drawing = varnoke::JoinPath(varnoke::TemporaryFolder(), key + L".dwg");

        CSignDlg dialog(m_parentWnd);
        dialog.SetScopeSelectable(scopeSelectable);
        dialog.SetUserName(m_plmUser);
        dialog.SetRole(role);
        dialog.SetSealDrawingPath(drawing);
        dialog.SetSettings(&m_config);
        if (!IsConfirmed(dialog.DoModal())) return 0;
        OwnedRecord<SSignInfo> made(new SSignInfo);
        FillFromDialog(*made, dialog);
        FillLocations(*made, m_config);
        made->m_strTempDrawing = drawing;
        FillSealAndDateForm(*made, m_config);
        *info = made.release();
        return 1;
    });
}

long CSignOpt::GetSignInfoForBackSign(wchar_t* documentPath, SSignInfo** info) {
    return Guarded(0L, [&]() -> long {
        if (!ClearOut(info) || !IsGiven(documentPath, L"documentPath")) return 0;
        OwnedRecord<SSignInfo> made(new SSignInfo);
        FillSealAndDateForm(*made, m_config);
        made->m_strDateText = varnoke::RenderDate(m_config.GetDateStyle(), varnoke::Today());
        *info = made.release();
        return 1;
    });
}

long CSignOpt::GetCancelSignDate(wchar_t* date) {
    return Guarded(0L, [&]() -> long {
        if (!date) return Fail(Cause::ArgumentMissing, L"date");
        CString style = m_config.GetDateStyle();
        if (varnoke::CheckDateStyle(style) != varnoke::DateStyleFault::None) {
            style = varnoke::kDefaultDateStyle;
        }
        ::lstrcpyW(date, varnoke::RenderDate(style, varnoke::Today()));
        return 1;
    });
}

long CSignOpt::SetOption() {
    return Guarded(0L, [&]() -> long {
        COptionDlg dialog(m_parentWnd);
        dialog.SetSettings(&m_config);
        return IsConfirmed(dialog.DoModal());
    });
}
