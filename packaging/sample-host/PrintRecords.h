// Prints each field of the records: shows how they are read, and what the library made of message and
// settings.
#pragma once

#include <stdio.h>

#include "varnoke/Elements.h"
#include "varnoke/Varnoke.h"

inline void Print(const char* name, const wchar_t* text) {
    char bytes[4096] = {};
    WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes, sizeof bytes - 1, nullptr, nullptr);
    printf("%s=%s\n", name, bytes);
}

inline void Print(const char* name, double number) {
    printf("%s=%g\n", name, number);
}

inline void Print(const SLoginInfo& login) {
    Print("user", login.m_strUserName);
    Print("password", CString(L'*', login.m_strPassword.GetLength()));
    Print("server", login.m_strPLMServer);
}

inline void Print(const char* name, const SSignType& type) {
    Print(name, type.m_strId);
    for (const SSignObj* object : varnoke::Elements(type.m_lstObj)) {
        for (const SSignPro* property : varnoke::Elements(*object)) {
            Print("  property", property->m_strName + L"=" + property->m_strValue);
        }
    }
}

inline void Print(const SSignInfo& info) {
#define FIELD(name) Print(#name, info.name)
    FIELD(m_strFirstText), FIELD(m_strSecondText), FIELD(m_strUserName), FIELD(m_strRole),
        FIELD(m_strSealName);
    FIELD(m_dA), FIELD(m_dB), FIELD(m_dC), FIELD(m_dD), FIELD(m_dE), FIELD(m_dF), FIELD(m_dG), FIELD(m_dH);
    FIELD(m_nSealIndex), FIELD(m_strPin), FIELD(m_strDateText), FIELD(m_dDateOffsetX), FIELD(m_dDateOffsetY);
    FIELD(m_dDateFontSize), FIELD(m_nDateTextColor), FIELD(m_strDateFontName), FIELD(m_nReserved1);
    FIELD(m_strDlgDateText), FIELD(m_strDlgDateFormat), FIELD(m_strDlgDateLocation),
        FIELD(m_strDlgDateFontSize);
    FIELD(m_strDlgDateTextColor), FIELD(m_nScope), FIELD(m_nLocationStyle), FIELD(m_dLocationXCheck);
    FIELD(m_dLocationYCheck), FIELD(m_nDateLocationStyle), FIELD(m_dDateLocationXCheck),
        FIELD(m_dDateLocationYCheck);
    FIELD(m_strTempDrawing), FIELD(m_strReserved4);
#undef FIELD
}
