// What may stand in the settings file.
#pragma once

#include <string>

namespace doctor {

enum class SettingKind { Text, Integer, NotNegative, Positive, Scope, Number, Port, Secret };

struct Setting {
    const wchar_t* section;
    const wchar_t* key;
    const wchar_t* fallback;
    SettingKind kind;
    bool choice = false; ///< the user's, in a dialog: it may stand in the user's own file
};

extern const Setting kSettings[];
extern const int kSettingCount;

/// The value as the library reads it: trimmed, the default in place of an empty one. `set` tells whether the
/// file has the key.
std::wstring ReadSetting(const std::wstring& file, const Setting& setting, bool* set = nullptr);
std::wstring ReadSetting(const std::wstring& file, const wchar_t* section, const wchar_t* key);

/// Whether the library can use the value as it stands.
bool IsUsable(const Setting& setting, const std::wstring& value);

} // namespace doctor
