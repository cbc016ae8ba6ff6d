// Encoding, keys and values of the settings file.
#include <windows.h>

#include <algorithm>

#include "base/Paths.h"
#include "base/Text.h"
#include "base/TextEncoding.h"
#include "base/WholeFile.h"
#include "doctor/Checks.h"
#include "doctor/SettingTable.h"

namespace doctor {

namespace {

/// The name of an encoding that the profile functions misread; empty when they read the bytes rightly.
std::wstring MisreadEncoding(const std::string& bytes) {
    const base::TextEncoding encoding = base::EncodingOf(bytes);
    if (base::IsProfileEncoding(encoding)) return std::wstring();
    if (encoding == base::TextEncoding::Utf8Mark) return L"UTF-8 with a byte order mark";
    return encoding == base::TextEncoding::Utf8 ? L"UTF-8" : L"neither UTF-16 nor the system's code page";
}

/// The texts of a list in which each ends with a null character.
template <class Fill>
std::vector<std::wstring> TextList(Fill fill) {
    std::vector<wchar_t> buffer(0x8000);
    fill(buffer.data(), static_cast<DWORD>(buffer.size()));
    std::vector<std::wstring> texts;
    for (const wchar_t* text = buffer.data(); *text; text += texts.back().size() + 1)
        texts.emplace_back(text);
    return texts;
}

/// How many characters must be inserted, removed or exchanged to make one name of the other.
size_t Distance(const std::wstring& a, const std::wstring& b) {
    std::vector<size_t> row(b.size() + 1);
    for (size_t j = 0; j <= b.size(); ++j)
        row[j] = j;
    for (size_t i = 1; i <= a.size(); ++i) {
        size_t corner = row[0];
        row[0] = i;
        for (size_t j = 1; j <= b.size(); ++j) {
            const size_t same = corner + !base::SameText(a.substr(i - 1, 1), b.substr(j - 1, 1));
            corner = row[j];
            row[j] = std::min({same, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row[b.size()];
}

class SettingsCheck {
public:
    /// `userFile` is empty when there is no layer of the user's own.
    SettingsCheck(const std::wstring& file, const std::wstring& userFile, Report& report)
        : m_file(file), m_userFile(userFile), m_report(report) {}

    void CheckNames() {
        const auto sections = TextList([this](wchar_t* buffer, DWORD size) {
            ::GetPrivateProfileSectionNamesW(buffer, size, m_file.c_str());
        });
        for (const std::wstring& section : sections) {
            if (KnowsSection(section)) {
                CheckKeys(section);
            } else {
                m_report.Add(L"settings.unknown-section", section, m_file);
            }
        }
    }

    void CheckValues() {
        for (int i = 0; i < kSettingCount; ++i) {
            const Setting& setting = kSettings[i];
            const std::wstring name = L"[" + std::wstring(setting.section) + L"] " + setting.key;
            bool set = false;
            const wchar_t* origin = L"  (the user's Varnoke.ini)";
            std::wstring value;
            if (setting.choice && !m_userFile.empty()) value = ReadSetting(m_userFile, setting, &set);
            if (!set) {
                value = ReadSetting(m_file, setting, &set);
                origin = set ? L"  (Varnoke.ini)" : L"  (default)";
            }
            if (!IsUsable(setting, value)) {
                m_report.Add(L"settings.bad-value", name, value);
                continue;
            }
            const bool secret = setting.kind == SettingKind::Secret;
            m_report.Add(L"settings.value", name, (secret ? L"***" : value) + origin);
        }
    }

private:
    static bool KnowsSection(const std::wstring& section) {
        return std::any_of(kSettings, kSettings + kSettingCount,
                           [&](const Setting& setting) { return base::SameText(setting.section, section); });
    }

    void CheckKeys(const std::wstring& section) {
        const auto lines = TextList([&](wchar_t* buffer, DWORD size) {
            ::GetPrivateProfileSectionW(section.c_str(), buffer, size, m_file.c_str());
        });
        for (const std::wstring& line : lines) {
            const size_t equals = line.find(L'=');
            if (line[0] != L';' && equals != std::wstring::npos) CheckKey(section, line.substr(0, equals));
        }
    }

    void CheckKey(const std::wstring& section, const std::wstring& key) {
        const wchar_t* similar = nullptr;
        for (int i = 0; i < kSettingCount; ++i) {
            if (!base::SameText(kSettings[i].section, section)) continue;
            const size_t distance = Distance(kSettings[i].key, key);
            if (distance == 0) return;
            if (distance <= 2) similar = kSettings[i].key;
        }
        // Any user of the PLM server may have a line there.
        if (!similar && base::SameText(section, L"SignServer")) return;
        m_report.Add(L"settings.unknown-key", L"[" + section + L"] " + key,
                     similar ? std::wstring(similar) + L"?" : m_file);
    }

    std::wstring m_file;
    std::wstring m_userFile;
    Report& m_report;
};

/// The error of opening the file for writing; 0 when it can be written.
DWORD WriteError(const std::wstring& file) {
    const base::FileHandle opened = base::OwnFile(::CreateFileW(
        file.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr));
    return opened ? 0 : ::GetLastError();
}

/// The file of the user's own layer, there or not; empty when the settings file doesn't ask for one.
std::wstring UserFile(const std::wstring& file) {
    const bool asked = ::GetPrivateProfileIntW(L"Settings", L"UserLayer", 0, file.c_str()) == 1;
    return asked ? base::WithVariables(L"%APPDATA%\\Varnoke\\Varnoke.ini") : std::wstring();
}

} // namespace

void CheckSettings(const std::wstring& file, Report& report) {
    std::string bytes;
    const std::wstring userFile = UserFile(file);
    const base::ReadResult read = base::ReadWholeFile(file, bytes, 16 << 20);
    if (read == base::ReadResult::Missing) {
        report.Add(L"settings.missing", file);
    } else if (read != base::ReadResult::Done) {
        report.Add(L"settings.unreadable", file, ErrorText(::GetLastError()));
        return;
    } else {
        report.Add(L"settings.file", file);
        const std::wstring encoding = MisreadEncoding(bytes);
        if (!encoding.empty()) report.Add(L"settings.encoding", file, encoding);
        // With a layer of the user's own, nobody but the administrator writes here.
        if (const DWORD error = userFile.empty() ? WriteError(file) : 0)
            report.Add(L"settings.read-only", file, ErrorText(error));
    }
    if (base::FileExists(userFile)) report.Add(L"settings.file", userFile);
    SettingsCheck check(file, userFile, report);
    check.CheckNames();
    check.CheckValues();
}

} // namespace doctor
