// Usage, message files of all encodings, and the commands beside the silent run.
#include "tests/host/HostFixture.h"

namespace fs = std::filesystem;

namespace tests {

namespace {

std::string Utf16(std::wstring text, bool bigEndian) {
    if (bigEndian)
        for (wchar_t& c : text)
            c = _byteswap_ushort(c);
    return std::string(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t));
}

std::string Gbk(const std::wstring& text) {
    std::string bytes(text.size() * 2, 0);
    bytes.resize(WideCharToMultiByte(936, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                                     static_cast<int>(bytes.size()), nullptr, nullptr));
    return bytes;
}

// The resolution that programs started from now on find.
class ScreenResolution {
public:
    explicit ScreenResolution(DWORD dpi) {
        RegSetKeyValueW(HKEY_CURRENT_USER, m_key, L"LogPixels", REG_DWORD, &dpi, sizeof dpi);
    }
    ~ScreenResolution() { RegDeleteKeyValueW(HKEY_CURRENT_USER, m_key, L"LogPixels"); }

private:
    const wchar_t* const m_key = L"Control Panel\\Desktop";
};

struct PictureSize {
    double width, height;
};

PictureSize SizeOfPng(const fs::path& file) {
    const std::string bytes = ReadBytes(file);
    const auto number = [&](size_t offset) {
        return _byteswap_ulong(*reinterpret_cast<const unsigned long*>(&bytes.at(offset)));
    };
    return {double(number(16)), double(number(20))};
}

using CommandLineTest = HostTest;

TEST_F(CommandLineTest, BadUsage_IsRefusedWithTheReason) {
    const std::vector<std::pair<std::vector<std::wstring>, std::string>> cases = {
        {{}, "usage: varnoke-host.exe"},
        {{L"resign"}, "unknown command: resign"},
        {{L"back-sign", L"--message=m.xml"}, "option --work is required"},
        {{L"back-sign", L"--max-failures", L"few"}, "option --max-failures needs a number: few"},
        {{L"back-sign", L"--again=1"}, "unexpected argument: --again=1"},
        {{L"log", L"--work", L"a", L"--work", L"b"}, "option --work was given twice"},
        {{L"log", L"--work"}, "option --work needs a value: DIR"},
        {{L"log", L"--fold", L"a"}, "unknown option: --fold"},
        {{L"status"}, "argument DIR is required"},
        {{L"status", L"a", L"b"}, "unexpected argument: b"},
        {{L"status", L"no such folder"}, "there is no such folder"},
    };
    for (const auto& usage : cases) {
        const HostResult result = RunHost(usage.first);
        EXPECT_EQ(2u, result.exitCode) << usage.second;
        EXPECT_NE(std::string::npos, result.err.find(usage.second)) << result.Text();
        EXPECT_EQ("", result.out);
    }
    for (const auto& asked : {std::vector<std::wstring>{L"/?"}, {L"log", L"-h"}}) {
        const HostResult help = RunHost(asked);
        EXPECT_EQ(0u, help.exitCode);
        EXPECT_NE(std::string::npos, help.out.find("log --work DIR")) << help.Text();
    }
    SetEnvironmentVariableW(L"VARNOKE_LANGUAGE", L"zh-CN");
    EXPECT_NE(std::string::npos, RunHost({}).err.find("用法：varnoke-host.exe"));
}

TEST_F(CommandLineTest, MessageFile_IsReadInEveryEncoding) {
    const std::vector<TestDocument> documents = {{L"图纸.dwg"}};
    const auto declared = [&](const wchar_t* encoding) {
        return MessageText(documents,
                           std::wstring(L"<?xml version='1.0' encoding='") + encoding + L"'?>\r\n");
    };
    Store(L"图纸.dwg");
    const std::vector<std::string> files = {
        ToUtf8(declared(L"UTF-8")),
        "\xEF\xBB\xBF" + ToUtf8(declared(L"utf-8")),
        Utf16(L"\xFEFF" + declared(L"UTF-16"), false),
        Utf16(L"\xFEFF" + declared(L"UTF-16"), true),
        Utf16(declared(L"UTF-16"), false),
        Gbk(declared(L"GBK")),
        Gbk(declared(L"gb2312")),
        Gbk(declared(L"GB18030")),
    };
    for (size_t i = 0; i < files.size(); ++i) {
        WriteBytes(m_message, files[i]);
        const HostResult result = BackSign({L"--dry-run"});
        EXPECT_EQ(0u, result.exitCode) << "file " << i << ": " << result.Text();
        EXPECT_TRUE(result.Said("图纸.dwg: ready")) << "file " << i << ": " << result.Text();
    }
    // Characters of four bytes, one of them beyond the basic plane.
    std::string rare = Gbk(declared(L"GB18030"));
    rare.replace(rare.find("\xCD\xBC"), 2, "\x81\x39\xEE\x39\x95\x32\x82\x36");
    WriteBytes(m_message, rare);
    EXPECT_TRUE(BackSign({L"--dry-run"}).Said("\xE3\x90\x80\xF0\xA0\x80\x80纸.dwg: ready"));
}

TEST_F(CommandLineTest, RefusedMessagesAndMissingFolders_SignNothing) {
    Prepare({{L"a.dwg"}});
    const std::string good = ReadBytes(m_message);
    std::string withoutSteps = good;
    withoutSteps.replace(withoutSteps.find("'step'"), 6, "'Step'");
    for (const std::string& file :
         {std::string(), std::string("no xml"), withoutSteps, good + std::string(1, '\0') + good,
          std::string("\xFF\xFE<"), std::string("<a>\xFF\xC3</a>"),
          "<?xml version='1.0' encoding='x-klingon'?>" + good}) {
        WriteBytes(m_message, file);
        EXPECT_EQ(2u, BackSign().exitCode) << file;
        EXPECT_EQ(2u, BackSign({L"--dry-run"}).exitCode) << file;
    }
    fs::remove(m_message);
    EXPECT_EQ(2u, BackSign().exitCode);
    WriteBytes(m_message, good);
    const fs::path longName = m_folder / std::wstring(240, L'x');
    fs::create_directory(m_folder / L"ret_Ret.Xml");
    EXPECT_EQ(2u, BackSign().exitCode) << "the return file cannot be written";
    fs::remove(m_folder / L"ret_Ret.Xml");
    WriteBytes(m_returned, "");
    const HANDLE held =
        CreateFileW(m_returned.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(2u, BackSign().exitCode) << "another program holds the return file";
    CloseHandle(held);
    fs::remove(m_returned);
    for (fs::path* option : {&m_work, &m_return}) {
        const fs::path kept = std::exchange(*option, longName);
        EXPECT_EQ(2u, BackSign().exitCode) << kept;
        *option = kept;
    }
    for (fs::path* option : {&m_vault, &m_work, &m_return}) {
        const fs::path kept = std::exchange(*option, m_folder / L"no/where");
        EXPECT_EQ(2u, BackSign().exitCode) << kept;
        *option = kept;
    }
    EXPECT_FALSE(fs::exists(m_vault / L"journal.log"));
    EXPECT_EQ("", ReturnValues());
}

TEST_F(CommandLineTest, Append_AddsNewDocumentsToTheKeptMessage) {
    Prepare({{L"a.dwg"}});
    EXPECT_EQ(2u, Run(L"append").exitCode) << "no message is kept yet";
    ASSERT_EQ(0u, BackSign().exitCode);
    EXPECT_EQ(4u, Run(L"append", {L"--auto"}).exitCode) << "the document is kept already";

    WriteBytes(m_message, ToUtf8(MessageText({{L"A.DWG"}, {L"new.dwg"}})));
    const HostResult merged = Run(L"append", {L"--auto"});
    EXPECT_EQ(0u, merged.exitCode) << merged.Text();
    EXPECT_TRUE(merged.Said("merged: new.dwg")) << merged.Text();
    const std::string kept = ReadBytes(m_work / L"SignData" / L"StartSign.Xml");
    EXPECT_NE(std::string::npos, kept.find("a.dwg"));
    EXPECT_NE(std::string::npos, kept.find("new.dwg"));
}

TEST_F(CommandLineTest, Status_TellsTagsAndChanges) {
    EXPECT_EQ(4u, RunHost({L"status", m_work}).exitCode);
    Prepare({{L"a.dwg"}, {L"图.dwg"}, {L"c.dwg"}});
    Fault(L"UploadFailNames", L"c.dwg");
    ASSERT_EQ(3u, BackSign().exitCode);
    WritePrivateProfileStringW(L"DocSignTimeTag", L"图.dwg", L"2015-07-14_09:05:00",
                               (m_work / L"SignData" / L"DocSignTimeTag.ini").c_str());
    fs::remove(m_work / L"c.dwg");
    const HostResult status = RunHost({L"status", m_work});
    EXPECT_EQ(0u, status.exitCode);
    EXPECT_TRUE(status.Said("Document  Sign tag  Log tag  File")) << status.Text();
    EXPECT_TRUE(status.Said("a.dwg     1         1        unchanged")) << status.Text();
    EXPECT_TRUE(status.Said("图.dwg    1         1        changed")) << status.Text();
    EXPECT_TRUE(status.Said("c.dwg     0         0        missing")) << status.Text();
}

TEST_F(CommandLineTest, Sign_WalksThroughItsDialogsUnattended) {
    Prepare({{L"a.dwg"}});
    const fs::path pictures = m_folder / L"pictures";
    bool shown = false;
    const HostResult result = Run(L"sign", {L"--pictures", pictures, L"--auto", L"--keep-log"},
                                  [&](DWORD process) { shown = shown || VisibleWindows(process) > 0; });
    EXPECT_TRUE(shown);
    EXPECT_EQ(0u, result.exitCode) << result.Text();
    EXPECT_TRUE(result.Said("a.dwg: downloaded, signed, uploaded")) << result.Text();
    EXPECT_EQ(1, SignCalls("Sign", "\twang\t校对\t"));
    EXPECT_EQ(1, Tag(L"DocSignTag", L"a.dwg"));
    // Download, sign dialog, upload.
    for (const wchar_t* name : {L"01-下载文档.png", L"02-签名.png", L"03-上传文档.png"}) {
        ASSERT_TRUE(fs::exists(pictures / name)) << result.Text();
        EXPECT_EQ("\x89PNG\r\n\x1A\n", ReadBytes(pictures / name).substr(0, 8));
    }
    EXPECT_TRUE(RunHost({L"log", L"--work", m_work}).Said("D1        校对  signed"))
        << "the log was to be kept";
}

TEST_F(CommandLineTest, Dialogs_GrowWithTheScreensResolution) {
    PictureSize usual = {};
    for (const DWORD dpi : {96, 144, 192}) {
        const ScreenResolution resolution(dpi);
        const fs::path pictures = m_folder / std::to_wstring(dpi);
        ASSERT_EQ(0u, RunHost({L"option", L"--pictures", pictures, L"--auto"}).exitCode);
        const PictureSize size = SizeOfPng(pictures / L"01-选项.png");
        if (dpi == 96) usual = size;
        // Fonts come in whole pixels.
        EXPECT_NEAR(dpi / 96.0, size.width / usual.width, 0.1) << dpi;
        EXPECT_NEAR(dpi / 96.0, size.height / usual.height, 0.2) << dpi;
    }
}

} // namespace

} // namespace tests
