// Tests of the settings reader on real files.
#include <afxwin.h>
#include <locale.h>
#include <shlobj.h>
#include <gtest/gtest.h>
#include "varnoke/INIConfig.h"
#include "module/ModulePaths.h"
#include "tests/support/TempFolder.h"

static CString settingsPath;

CString varnoke::SettingsFilePath() {
    return settingsPath;
}

namespace {

template <auto Getter>
std::wstring Read(const CINIConfig& config) {
    const auto value = (config.*Getter)();
    if constexpr (std::is_arithmetic_v<decltype((config.*Getter)())>)
        return std::to_wstring(value);
    else
        return value.GetString();
}

struct Setting {
    const wchar_t *section, *key, *fallback, *stored; // the stored one as the getter gives it
    std::wstring (*read)(const CINIConfig&);
};

const Setting kSettings[] = {
    {L"SignServer", L"ServerIP", L"127.0.0.1", L"10.1.2.3", Read<&CINIConfig::GetServerIP>},
    {L"SignServer", L"ServerPort", L"8089", L"81", Read<&CINIConfig::GetServerPort>},
    {L"SignLog", L"DesignDoMain", L"standard", L"机械", Read<&CINIConfig::GetDesignDoMain>},
    {L"SignLog", L"LocalObjectConfigId", L"IQORM_OBJ_SIGN", L"LO", Read<&CINIConfig::GetLocalObjectConfigId>},
    {L"SignLog", L"ServerObjectConfigId", L"SIGN", L"SO", Read<&CINIConfig::GetServerObjectConfigId>},
    {L"Sign", L"Index", L"0", L"-7", Read<&CINIConfig::GetIndex>},
    {L"Sign", L"Pin", L"480317", L"55 66", Read<&CINIConfig::GetPin>},
    {L"Sign", L"DelPre", L"0", L"1", Read<&CINIConfig::GetDelPre>},
    {L"SignDate", L"DateStyle", L"YYYY-MM-DD", L"YYYY年M月D日", Read<&CINIConfig::GetDateStyle>},
    {L"SignDate", L"DateLocation", L"左上", L"右下", Read<&CINIConfig::GetDateLocation>},
    {L"SignDate", L"DateFontSize", L"8", L"15", Read<&CINIConfig::GetDateFontSize>},
    {L"SignDate", L"DateTextColor", L"16777215", L"65280", Read<&CINIConfig::GetDateTextColor>},
    {L"SignDate", L"DateTextColor", L"255", L"65280", Read<&CINIConfig::GetSignDateTextColor>},
    {L"SignDate", L"DateOffsetX", L"0.000000", L"1.250000", Read<&CINIConfig::GetDateOffsetX>},
    {L"SignDate", L"DateOffsetY", L"0.000000", L"-2.500000", Read<&CINIConfig::GetDateOffsetY>},
    {L"SignDate", L"DateFontName", L"宋体", L"黑体", Read<&CINIConfig::GetDateFontName>},
    {L"SignScope", L"Scope", L"1", L"3", Read<&CINIConfig::GetScope>},
    {L"SignLocation", L"LocationStyle", L"0", L"4", Read<&CINIConfig::GetLocationStyle>},
    {L"SignLocation", L"LocationXCheck", L"0.000000", L"3.500000", Read<&CINIConfig::GetLocationXCheck>},
    {L"SignLocation", L"LocationYCheck", L"0.000000", L"4.500000", Read<&CINIConfig::GetLocationYCheck>},
    {L"SignDateLocation", L"LocationStyle", L"0", L"5", Read<&CINIConfig::GetDateLocationStyle>},
    {L"SignDateLocation", L"LocationXCheck", L"0.000000", L"5.500000",
     Read<&CINIConfig::GetDateLocationXCheck>},
    {L"SignDateLocation", L"LocationYCheck", L"0.000000", L"6.500000",
     Read<&CINIConfig::GetDateLocationYCheck>},
    {L"DynDisp", L"ProgID", L"Brevanix.Brevanix0", L"Other.Server", Read<&CINIConfig::GetProgID>},
};

class INIConfig : public testing::Test {
protected:
    INIConfig() {
        settingsPath = m_file.c_str();
        EXPECT_EQ(m_config.Initialize(nullptr), 1);
    }
    void Store(const wchar_t* section, const wchar_t* key, const std::wstring& value) const {
        ASSERT_TRUE(WritePrivateProfileStringW(section, key, value.c_str(), m_file.c_str()));
    }
    static void ExpectAll(const CINIConfig& config, const wchar_t* Setting::*expected) {
        for (const Setting& setting : kSettings)
            EXPECT_EQ(setting.read(config), setting.*expected) << tests::ToUtf8(setting.key);
    }

    // The written settings as they stand in the file.
    std::wstring Written() const {
        std::wstring texts;
        for (const wchar_t* key :
             {L"DateStyle", L"DateLocation", L"DateFontSize", L"DateTextColor", L"Scope"}) {
            wchar_t text[100];
            const wchar_t* section = key == std::wstring(L"Scope") ? L"SignScope" : L"SignDate";
            GetPrivateProfileStringW(section, key, L"?", text, 100, m_file.c_str());
            texts += text + std::wstring(L"|");
        }
        return texts;
    }

    tests::TempFolder m_folder;
    const std::filesystem::path m_file = m_folder / L"设置.ini";
    CINIConfig m_config;
};

TEST_F(INIConfig, Default_WithoutPathFileOrValues) {
    ExpectAll(m_config, &Setting::fallback);
    EXPECT_FALSE(std::filesystem::exists(m_file)) << "reading must not create the file";
    tests::WriteBytes(m_file, "");
    ExpectAll(m_config, &Setting::fallback);

    Store(L"SignServer", L"ServerIP", L"stored");
    EXPECT_EQ(m_config.GetServerIP(), L"stored") << "changes are seen at the next read";
    EXPECT_EQ(m_config.Uninitialize(), 1);
    ExpectAll(m_config, &Setting::fallback);
    EXPECT_EQ(m_config.GetSignServer(L"ServerIP"), L"ServerIP");
    EXPECT_EQ(m_config.SetScope(2) + m_config.SetDateStyle(L"x"), 0);
    settingsPath.Empty();
    EXPECT_EQ(m_config.Initialize(nullptr), 0);
}

TEST_F(INIConfig, Choice_GoesToTheUsersFileWhenTheAdministratorAsksForIt) {
    wchar_t appData[MAX_PATH] = {};
    ASSERT_EQ(::SHGetFolderPathW(nullptr, CSIDL_APPDATA, nullptr, 0, appData), S_OK);
    const std::filesystem::path folder = std::filesystem::path(appData) / L"Varnoke";
    std::filesystem::remove_all(folder);
    Store(L"SignScope", L"Scope", L"2");
    Store(L"Settings", L"UserLayer", L"1");
    const std::string admin = tests::ReadBytes(m_file);
    EXPECT_EQ(m_config.GetScope(), 2) << "without a choice the administrator's value counts";

    EXPECT_EQ(m_config.SetScope(3) + m_config.SetDateTextColor(7), 2);
    EXPECT_EQ(m_config.GetScope(), 3);
    EXPECT_EQ(m_config.GetSignDateTextColor(), 7);
    EXPECT_EQ(tests::ReadBytes(m_file), admin);
    const std::filesystem::path user = folder / L"Varnoke.ini";
    ASSERT_TRUE(WritePrivateProfileStringW(L"DynDisp", L"ProgID", L"Evil.Server", user.c_str()));
    EXPECT_EQ(m_config.GetProgID(), L"Brevanix.Brevanix0") << "only choices are the user's";

    ::SetFileAttributesW(user.c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(m_config.SetScope(1), 0);
    ::SetFileAttributesW(user.c_str(), FILE_ATTRIBUTE_NORMAL);
    Store(L"Settings", L"UserLayer", L"0");
    EXPECT_EQ(m_config.GetScope(), 2);
    std::filesystem::remove_all(folder);
}

TEST_F(INIConfig, Stored_IsReadByEachGetterInBothEncodings) {
    for (const std::string mark : {"", "\xFF\xFE"}) {
        tests::WriteBytes(m_file, mark);
        for (const Setting& setting : kSettings)
            Store(setting.section, setting.key, std::wstring(L"  ") + setting.stored + L" \t");
        EXPECT_EQ(tests::ReadBytes(m_file).substr(0, 2) == "\xFF\xFE", !mark.empty());
        ExpectAll(m_config, &Setting::stored);
    }
}

TEST_F(INIConfig, Unusable_GivesTheDefaultAndLongIsCut) {
    const wchar_t* const kBlank[] = {L"", L"   ", L"\" \t \"", L"　"};
    std::vector<std::pair<std::wstring, const wchar_t*>> unusable = {
        {L"Scope", L"0"}, {L"Scope", L"4"}, {L"DateFontSize", L"0"}, {L"DateTextColor", L"-1"}};
    for (const wchar_t* blank : kBlank) {
        unusable.emplace_back(L"ServerIP", blank);
        Store(L"SignServer", L"王工", blank);
        EXPECT_EQ(m_config.GetSignServer(L"王工"), L"王工");
    }
    for (const auto& [key, value] : unusable)
        for (const Setting& setting : kSettings) {
            if (setting.key != key) continue;
            Store(setting.section, setting.key, value);
            EXPECT_EQ(setting.read(m_config), setting.fallback) << tests::ToUtf8(key);
        }
    Store(L"SignLog", L"DesignDoMain", std::wstring(1022, L'a') + L"b");
    EXPECT_EQ(m_config.GetDesignDoMain(), std::wstring(1022, L'a').c_str());
    Store(L"SignServer", L"王工", L" wang.sign ");
    EXPECT_EQ(m_config.GetSignServer(L"王工"), L"wang.sign");
    EXPECT_EQ(m_config.GetDynDisp(L"Sign"), L"Sign");
    EXPECT_EQ(m_config.GetDynDisp(L""), L"");
}

TEST_F(INIConfig, Number_IsDecimalAndFiniteInAnyLocale) {
    const std::pair<const wchar_t*, double> kNumbers[] = {
        {L"-1.5", -1.5}, {L"+.5e1x", 5}, {L"2.", 2},  {L"3e", 3},    {L"4,5", 4}, {L"\" 6\"", 6}, {L"7d1", 7},
        {L"0x10", 0},    {L"nan", 0},    {L"inf", 0}, {L"9e999", 0}, {L"abc", 0}, {L"-", 0},      {L"", 0}};
    ASSERT_NE(setlocale(LC_NUMERIC, "German"), nullptr);
    for (const auto& [text, number] : kNumbers) {
        Store(L"SignDate", L"DateOffsetX", text);
        EXPECT_EQ(m_config.GetDateOffsetX(), number) << tests::ToUtf8(text);
    }
    setlocale(LC_NUMERIC, "C");
}

TEST_F(INIConfig, Setters_StoreUsableValuesOnly) {
    const auto write = [this](const wchar_t* style, long size, long color, long scope) {
        return m_config.SetDateStyle(style) + m_config.SetDateLocation(L"中中") +
               m_config.SetDateFontSize(size) + m_config.SetDateTextColor(color) + m_config.SetScope(scope);
    };
    EXPECT_EQ(write(L"D/M/YYYY", 48, 254, 3), 5);
    EXPECT_EQ(Written(), L"D/M/YYYY|中中|48|254|3|");
    EXPECT_EQ(write(L"", 0, -1, 5), 5);
    EXPECT_EQ(Written(), L"YYYY-MM-DD|中中|8|16777215|1|");
    EXPECT_EQ(m_config.SetDateLocation(L" \"右 上\" ") + m_config.SetDateStyle(L" "), 2);
    EXPECT_EQ(m_config.GetDateLocation() + m_config.GetDateStyle(), L"右 上YYYY-MM-DD");
}

TEST_F(INIConfig, Setters_FailWithTheOldFileKept) {
    Store(L"SignScope", L"Scope", L"2");
    SetFileAttributesW(m_file.c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(m_config.SetScope(3), 0);
    EXPECT_TRUE(GetFileAttributesW(m_file.c_str()) & FILE_ATTRIBUTE_READONLY);
    SetFileAttributesW(m_file.c_str(), FILE_ATTRIBUTE_NORMAL);
    const HANDLE heldByAnother =
        CreateFileW(m_file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(m_config.SetScope(3), 0);
    CloseHandle(heldByAnother);
    EXPECT_EQ(m_config.GetScope(), 2);

    const std::string old = tests::ReadBytes(m_file);
    ASSERT_TRUE(CreateHardLinkW((m_folder / "link").c_str(), m_file.c_str(), nullptr));
    EXPECT_EQ(m_config.SetScope(3), 1);
    EXPECT_EQ(tests::ReadBytes(m_folder / "link"), old) << "the old file is never written to";
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(m_folder.Path()), {}), 2);
}

TEST_F(INIConfig, Setters_KeepTheFilesEncodingUnlessTextWouldBeLost) {
    const std::string ansi = "[SignDate]\r\nDateFontName=\xBA\xDA\xCC\xE5\r\n[Own]\r\n;note\r\nx=\"1\"\r\n";
    const std::string utf8 = "[SignDate]\r\nDateFontName=\xE9\xBB\x91\xE4\xBD\x93\r\n[Own]\r\nx=\"1\"\r\n";
    const struct {
        std::string bytes;
        const wchar_t* location;
        bool utf16;
    } kCases[] = {{ansi, L"右下", false},
                  {ansi, L"Ł", true},
                  {utf8, L"右下", true},
                  {"\xEF\xBB\xBF" + utf8, L"x", true}};
    for (const auto& c : kCases) {
        tests::WriteBytes(m_file, c.bytes);
        EXPECT_EQ(m_config.SetDateLocation(c.location), 1);
        EXPECT_EQ(m_config.GetDateLocation(), c.location);
        EXPECT_EQ(m_config.GetDateFontName(), L"黑体") << c.bytes;
        EXPECT_EQ(tests::ReadBytes(m_file).substr(0, 2) == "\xFF\xFE", c.utf16) << c.bytes;
        EXPECT_EQ(GetPrivateProfileIntW(L"Own", L"x", 0, m_file.c_str()), 1u);
    }
    std::filesystem::remove(m_file);
    EXPECT_EQ(m_config.SetDateLocation(L"右下"), 1);
    EXPECT_EQ(tests::ReadBytes(m_file).substr(0, 2), "\xFF\xFE") << "a new file is UTF-16";
}

} // namespace
