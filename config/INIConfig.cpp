// Reader and writer of the settings file: a table of all settings and thin accessors over it.
#include "varnoke/INIConfig.h"

#include <cfloat>
#include <cstdlib>
#include <cwctype>
#include <locale.h>
#include <string>

#include "config/SettingDefaults.h"
#include "config/UserLayer.h"
#include "module/Guarded.h"
#include "module/ModulePaths.h"

namespace {

// The settings: section, key, default, which values are usable.

struct TextSetting {
    const wchar_t* section;
    const wchar_t* key;
    const wchar_t* fallback;
    bool choice = false; // the user's, in a dialog
};

struct IntegerSetting {
    const wchar_t* section;
    const wchar_t* key;
    long fallback;
    bool (*usable)(long value);
    bool choice = false;

    long Normalized(long value) const { return usable(value) ? value : fallback; }
};

struct NumberSetting {
    const wchar_t* section;
    const wchar_t* key;
};

bool Any(long) {
    return true;
}
bool Positive(long value) {
    return value >= 1;
}
bool NotNegative(long value) {
    return value >= 0;
}
bool ScopeNumber(long value) {
    return value >= 1 && value <= 3;
}

constexpr wchar_t kSignServer[] = L"SignServer";
constexpr wchar_t kSignLog[] = L"SignLog";
constexpr wchar_t kSign[] = L"Sign";
constexpr wchar_t kSignDate[] = L"SignDate";
constexpr wchar_t kSignScope[] = L"SignScope";
constexpr wchar_t kSignLocation[] = L"SignLocation";
constexpr wchar_t kSignDateLocation[] = L"SignDateLocation";
constexpr wchar_t kDynDisp[] = L"DynDisp";

constexpr TextSetting kServerIP = {kSignServer, L"ServerIP", L"127.0.0.1"};
constexpr TextSetting kServerPort = {kSignServer, L"ServerPort", L"8089"};
constexpr TextSetting kDesignDoMain = {kSignLog, L"DesignDoMain", varnoke::kDefaultDesignDoMain};
constexpr TextSetting kLocalObjectConfigId = {kSignLog, L"LocalObjectConfigId",
                                              varnoke::kDefaultLocalObjectConfigId};
constexpr TextSetting kServerObjectConfigId = {kSignLog, L"ServerObjectConfigId",
                                               varnoke::kDefaultServerObjectConfigId};
constexpr IntegerSetting kIndex = {kSign, L"Index", 0, Any};
constexpr TextSetting kPin = {kSign, L"Pin", L"480317"};
constexpr IntegerSetting kDelPre = {kSign, L"DelPre", 0, Any};
constexpr TextSetting kDateStyle = {kSignDate, L"DateStyle", varnoke::kDefaultDateStyle, true};
constexpr TextSetting kDateLocation = {kSignDate, L"DateLocation", L"左上", true};
constexpr IntegerSetting kDateFontSize = {kSignDate, L"DateFontSize", 8, Positive, true};
constexpr IntegerSetting kDateTextColor = {kSignDate, L"DateTextColor", 0xFFFFFF, NotNegative, true};
// The dialogs start from white, a signature without a set colour is placed in red.
constexpr IntegerSetting kSignDateTextColor = {kDateTextColor.section, kDateTextColor.key, 0x0000FF,
                                               NotNegative, true};
constexpr NumberSetting kDateOffsetX = {kSignDate, L"DateOffsetX"};
constexpr NumberSetting kDateOffsetY = {kSignDate, L"DateOffsetY"};
constexpr TextSetting kDateFontName = {kSignDate, L"DateFontName", L"宋体"};
constexpr IntegerSetting kScope = {kSignScope, L"Scope", 1, ScopeNumber, true};
constexpr IntegerSetting kLocationStyle = {kSignLocation, L"LocationStyle", 0, Any};
constexpr NumberSetting kLocationXCheck = {kSignLocation, L"LocationXCheck"};
constexpr NumberSetting kLocationYCheck = {kSignLocation, L"LocationYCheck"};
constexpr IntegerSetting kDateLocationStyle = {kSignDateLocation, L"LocationStyle", 0, Any};
constexpr NumberSetting kDateLocationXCheck = {kSignDateLocation, L"LocationXCheck"};
constexpr NumberSetting kDateLocationYCheck = {kSignDateLocation, L"LocationYCheck"};
constexpr TextSetting kProgID = {kDynDisp, L"ProgID", L"Brevanix.Brevanix0"};

/// The colour for a signature when even reading the settings fails.
constexpr long kUnreadableColor = 200;

// Access to the file.

constexpr DWORD kBufferSize = 1023; // with the terminator

template <class Setting>
CString FileOf(const CString& path, const Setting& setting) {
    return setting.choice ? varnoke::ChoicePath(path, setting.section, setting.key) : path;
}

CString Read(const CString& path, const TextSetting& setting) {
    return varnoke::Guarded(CString(setting.fallback), [&] {
        if (path.IsEmpty()) return CString(setting.fallback);
        wchar_t buffer[kBufferSize] = {};
        ::GetPrivateProfileStringW(setting.section, setting.key, setting.fallback, buffer, kBufferSize,
                                   FileOf(path, setting));
        CString text(buffer);
        text.Trim();
        return text.IsEmpty() ? CString(setting.fallback) : text;
    });
}

/// A text whose key comes from outside and is its own default.
CString ReadNamed(const CString& path, const wchar_t* section, const CString& key) {
    return key.IsEmpty() ? CString() : Read(path, TextSetting{section, key, key});
}

long Read(const CString& path, const IntegerSetting& setting, long failure) {
    return varnoke::Guarded(failure, [&] {
        if (path.IsEmpty()) return setting.fallback;
        const UINT value =
            ::GetPrivateProfileIntW(setting.section, setting.key, setting.fallback, FileOf(path, setting));
        return setting.Normalized(static_cast<long>(value));
    });
}

long Read(const CString& path, const IntegerSetting& setting) {
    return Read(path, setting, setting.fallback);
}

/// The decimal number that a text begins with; 0 without one or for one that is too large. The host's locale
/// and what the run-time library takes for a number besides ("nan", "0x10") do not matter.
double NumberOf(const wchar_t* text) {
    static const _locale_t plain = ::_create_locale(LC_ALL, "C");
    while (iswspace(*text))
        ++text;
    const wchar_t* end = text;
    const auto skip = [&end](const wchar_t* set) {
        const size_t length = wcsspn(end, set);
        end += length;
        return length;
    };
    constexpr wchar_t kDigits[] = L"0123456789";
    if (*end == L'+' || *end == L'-') ++end;
    size_t digits = skip(kDigits);
    if (*end == L'.') {
        ++end;
        digits += skip(kDigits);
    }
    if (digits == 0) return 0.0;
    const wchar_t* const mantissaEnd = end;
    if (*end == L'e' || *end == L'E') {
        ++end;
        if (*end == L'+' || *end == L'-') ++end;
        if (skip(kDigits) == 0) end = mantissaEnd;
    }
    const double value = ::_wtof_l(std::wstring(text, end).c_str(), plain);
    return value >= -DBL_MAX && value <= DBL_MAX ? value : 0.0;
}

double Read(const CString& path, const NumberSetting& setting) {
    return varnoke::Guarded(0.0, [&] {
        if (path.IsEmpty()) return 0.0;
        wchar_t buffer[kBufferSize] = {};
        ::GetPrivateProfileStringW(setting.section, setting.key, L"0.00", buffer, kBufferSize, path);
        return NumberOf(buffer);
    });
}

template <class Setting>
long WriteText(const CString& path, const Setting& setting, const CString& value) {
    if (path.IsEmpty() || varnoke::StoreChoice(path, setting.section, setting.key, value))
        return path.IsEmpty() ? 0 : 1;
    varnoke::KeepCause(); // the dialogs close all the same, with the user's answer
    return varnoke::FailWithLastError(varnoke::Cause::SettingNotStored, path);
}

long Write(const CString& path, const TextSetting& setting, const CString& value) {
    return varnoke::Guarded(0L, [&] { return WriteText(path, setting, value); });
}

long Write(const CString& path, const IntegerSetting& setting, long value) {
    return varnoke::Guarded(0L, [&] {
        CString text;
        text.Format(L"%d", static_cast<int>(setting.Normalized(value)));
        return WriteText(path, setting, text);
    });
}

} // namespace

CINIConfig::~CINIConfig() {
    Uninitialize();
}

long CINIConfig::Initialize(CWnd* parent) {
    m_parentWnd = parent;
    m_path = varnoke::SettingsFilePath();
    return m_path.IsEmpty() ? 0 : 1;
}

long CINIConfig::Uninitialize() {
    m_path.Empty();
    m_parentWnd = nullptr;
    return 1;
}

CString CINIConfig::GetServerIP() const {
    return Read(m_path, kServerIP);
}
CString CINIConfig::GetServerPort() const {
    return Read(m_path, kServerPort);
}
CString CINIConfig::GetSignServer(const CString& plmUser) const {
    return ReadNamed(m_path, kSignServer, plmUser);
}
CString CINIConfig::GetProgID() const {
    return Read(m_path, kProgID);
}
CString CINIConfig::GetDynDisp(const CString& method) const {
    return ReadNamed(m_path, kDynDisp, method);
}

CString CINIConfig::GetDesignDoMain() const {
    return Read(m_path, kDesignDoMain);
}
CString CINIConfig::GetLocalObjectConfigId() const {
    return Read(m_path, kLocalObjectConfigId);
}
CString CINIConfig::GetServerObjectConfigId() const {
    return Read(m_path, kServerObjectConfigId);
}

long CINIConfig::GetIndex() const {
    return Read(m_path, kIndex);
}
CString CINIConfig::GetPin() const {
    return Read(m_path, kPin);
}
long CINIConfig::GetDelPre() const {
    return Read(m_path, kDelPre);
}

CString CINIConfig::GetDateStyle() const {
    return Read(m_path, kDateStyle);
}
long CINIConfig::SetDateStyle(const CString& value) {
    return Write(m_path, kDateStyle, value.IsEmpty() ? CString(kDateStyle.fallback) : value);
}
CString CINIConfig::GetDateLocation() const {
    return Read(m_path, kDateLocation);
}
long CINIConfig::SetDateLocation(const CString& value) {
    return Write(m_path, kDateLocation, value);
}
long CINIConfig::GetDateFontSize() const {
    return Read(m_path, kDateFontSize);
}
long CINIConfig::SetDateFontSize(long value) {
    return Write(m_path, kDateFontSize, value);
}
long CINIConfig::GetDateTextColor() const {
    return Read(m_path, kDateTextColor);
}
long CINIConfig::GetSignDateTextColor() const {
    return Read(m_path, kSignDateTextColor, kUnreadableColor);
}
long CINIConfig::SetDateTextColor(long value) {
    return Write(m_path, kDateTextColor, value);
}
double CINIConfig::GetDateOffsetX() const {
    return Read(m_path, kDateOffsetX);
}
double CINIConfig::GetDateOffsetY() const {
    return Read(m_path, kDateOffsetY);
}
CString CINIConfig::GetDateFontName() const {
    return Read(m_path, kDateFontName);
}

long CINIConfig::GetScope() const {
    return Read(m_path, kScope);
}
long CINIConfig::SetScope(long value) {
    return Write(m_path, kScope, value);
}

long CINIConfig::GetLocationStyle() const {
    return Read(m_path, kLocationStyle);
}
double CINIConfig::GetLocationXCheck() const {
    return Read(m_path, kLocationXCheck);
}
double CINIConfig::GetLocationYCheck() const {
    return Read(m_path, kLocationYCheck);
}
long CINIConfig::GetDateLocationStyle() const {
    return Read(m_path, kDateLocationStyle);
}
double CINIConfig::GetDateLocationXCheck() const {
    return Read(m_path, kDateLocationXCheck);
}
double CINIConfig::GetDateLocationYCheck() const {
    return Read(m_path, kDateLocationYCheck);
}
