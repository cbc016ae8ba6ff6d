#include "doctor/SettingTable.h"

#include <windows.h>

#include <cwchar>

#include "base/Text.h"

namespace doctor {

constexpr Setting kSettings[] = {
    {L"SignServer", L"ServerIP", L"127.0.0.1", SettingKind::Text},
    {L"SignServer", L"ServerPort", L"8089", SettingKind::Port},
    {L"Settings", L"UserLayer", L"0", SettingKind::NotNegative},
    {L"SignLog", L"DesignDoMain", L"standard", SettingKind::Text},
    {L"SignLog", L"LocalObjectConfigId", L"IQORM_OBJ_SIGN", SettingKind::Text},
    {L"SignLog", L"ServerObjectConfigId", L"SIGN", SettingKind::Text},
    {L"Sign", L"Index", L"0", SettingKind::Integer},
    {L"Sign", L"Pin", L"480317", SettingKind::Secret},
    {L"Sign", L"DelPre", L"0", SettingKind::Integer},
    {L"SignDate", L"DateStyle", L"YYYY-MM-DD", SettingKind::Text, true},
    {L"SignDate", L"DateLocation", L"左上", SettingKind::Text, true},
    {L"SignDate", L"DateFontSize", L"8", SettingKind::Positive, true},
    {L"SignDate", L"DateTextColor", L"16777215", SettingKind::NotNegative, true},
    {L"SignDate", L"DateOffsetX", L"0.00", SettingKind::Number},
    {L"SignDate", L"DateOffsetY", L"0.00", SettingKind::Number},
    {L"SignDate", L"DateFontName", L"宋体", SettingKind::Text},
    {L"SignScope", L"Scope", L"1", SettingKind::Scope, true},
    {L"SignLocation", L"LocationStyle", L"0", SettingKind::Integer},
    {L"SignLocation", L"LocationXCheck", L"0.00", SettingKind::Number},
    {L"SignLocation", L"LocationYCheck", L"0.00", SettingKind::Number},
    {L"SignDateLocation", L"LocationStyle", L"0", SettingKind::Integer},
    {L"SignDateLocation", L"LocationXCheck", L"0.00", SettingKind::Number},
    {L"SignDateLocation", L"LocationYCheck", L"0.00", SettingKind::Number},
    {L"Trace", L"Level", L"0", SettingKind::NotNegative},
    {L"Trace", L"File", L"%TEMP%\\Varnoke.log", SettingKind::Text},
    {L"Trace", L"SizeLimit", L"1024", SettingKind::Positive},
    {L"DynDisp", L"ProgID", L"Brevanix.Brevanix0", SettingKind::Text},
    {L"DynDisp", L"Login", L"Login", SettingKind::Text},
    {L"DynDisp", L"Sign", L"Sign", SettingKind::Text},
    {L"DynDisp", L"SignatureDelete", L"SignatureDelete", SettingKind::Text},
    {L"DynDisp", L"DeleteAllSign", L"DeleteAllSign", SettingKind::Text},
    {L"DynDisp", L"SignatureInvalidDelete", L"SignatureInvalidDelete", SettingKind::Text},
    {L"DynDisp", L"SignatureValidate", L"SignatureValidate", SettingKind::Text},
    {L"DynDisp", L"CancelSign", L"CancelSign", SettingKind::Text},
};
const int kSettingCount = static_cast<int>(std::size(kSettings));

namespace {

constexpr wchar_t kUnset[] = L"\x01";

bool IsInteger(const std::wstring& value, long lowest, long highest) {
    wchar_t* end = nullptr;
    const long number = wcstol(value.c_str(), &end, 10);
    return end != value.c_str() && !*end && number >= lowest && number <= highest;
}

bool IsNumber(const std::wstring& value) {
    wchar_t* end = nullptr;
    wcstod(value.c_str(), &end);
    return end != value.c_str() && !*end;
}

std::wstring Trimmed(const std::wstring& text) {
    const size_t first = text.find_first_not_of(L" \t");
    return first == std::wstring::npos ? L"" : text.substr(first, text.find_last_not_of(L" \t") - first + 1);
}

} // namespace

std::wstring ReadSetting(const std::wstring& file, const Setting& setting, bool* set) {
    wchar_t buffer[1023] = {};
    ::GetPrivateProfileStringW(setting.section, setting.key, kUnset, buffer, 1023, file.c_str());
    const std::wstring value = buffer == std::wstring(kUnset) ? L"" : Trimmed(buffer);
    if (set) *set = !value.empty();
    return value.empty() ? setting.fallback : value;
}

std::wstring ReadSetting(const std::wstring& file, const wchar_t* section, const wchar_t* key) {
    for (const Setting& setting : kSettings) {
        if (base::SameText(setting.section, section) && base::SameText(setting.key, key))
            return ReadSetting(file, setting);
    }
    return std::wstring();
}

bool IsUsable(const Setting& setting, const std::wstring& value) {
    switch (setting.kind) {
    case SettingKind::Integer:
        return IsInteger(value, LONG_MIN, LONG_MAX);
    case SettingKind::NotNegative:
        return IsInteger(value, 0, LONG_MAX);
    case SettingKind::Positive:
        return IsInteger(value, 1, LONG_MAX);
    case SettingKind::Scope:
        return IsInteger(value, 1, 3);
    case SettingKind::Port:
        return IsInteger(value, 1, 65535);
    case SettingKind::Number:
        return IsNumber(value);
    default:
        return true;
    }
}

} // namespace doctor
