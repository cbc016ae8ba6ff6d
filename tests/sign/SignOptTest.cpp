// Tests of the signing operations through the library's interface, against a server in this process.
#include <afxwin.h>
#include "config/DateStyle.h"
#include "varnoke/SignOpt.h"
#include "tests/sign/FakeServer.h"
#include "tests/support/MemoryUse.h"
#include "tests/support/SettingsFile.h"
#include "tests/support/TempFolder.h"
#include "tests/support/Text.h"

namespace {

using tests::Text;

class SignOpt : public testing::Test {
protected:
    SignOpt() {
        DISPID id = 0;
        for (const wchar_t* method :
             {L"Login", L"Sign", L"SignatureDelete", L"DeleteAllSign", L"SignatureValidate",
              L"SignatureInvalidDelete", L"Test", L"CancelSign", L"Renamed"})
            m_server.m_methods[method] = ++id;
        m_server.m_methods[L"Default"] = 0;
        m_server.m_methods[L"Negative"] = -4;
        m_settings.Set(L"DynDisp", L"ProgID", m_server.m_progID.c_str());
        EXPECT_EQ(m_opt.Initialize(nullptr), 1);
        m_info.m_strFirstText = L"图号-1";
        m_info.m_strUserName = L"王工";
        m_info.m_strRole = L"校对";
        m_info.m_strDateText = L"2015年";
        for (int i = 0; i < 8; ++i) // A to H
            (&m_info.m_dA)[i] = 2 << i;
    }

    // What the server sees of a call that is expected to succeed.
    template <class Call>
    std::wstring Seen(Call call) {
        EXPECT_EQ(call(), 1);
        return m_server.LastSeen();
    }

    tests::SettingsFile m_settings;
    tests::FakeServer m_server;
    CSignOpt m_opt;
    SSignInfo m_info;
    // The host's drawing is never touched: any use of this one would crash.
    IDispatch* const m_drawing = reinterpret_cast<IDispatch*>(0x1000);
    Text m_text = L"甲", m_empty = L"";
};

TEST_F(SignOpt, Initialize_ReplacesTheServerOnlyBySomethingCreated) {
    EXPECT_EQ(m_opt.Logout() + m_opt.Uninitialize(), 2);
    EXPECT_EQ(m_server.LastSeen(), L"") << "neither reaches the server";
    m_settings.Set(L"DynDisp", L"ProgID", L"No.Such.Server");
    EXPECT_EQ(m_opt.Initialize(nullptr), 0);
    EXPECT_EQ(m_opt.Test(m_text), 1) << "the old server stays";
    m_settings.Set(L"DynDisp", L"ProgID", m_server.m_progID.c_str());
    EXPECT_EQ(m_opt.Initialize(nullptr), 1);
    EXPECT_EQ(m_server.m_objects, 1) << "the old server goes";
    m_server.m_automation = false;
    EXPECT_EQ(m_opt.Initialize(nullptr), 0);
    EXPECT_EQ(m_server.m_objects, 0);
    EXPECT_EQ(m_opt.Login(m_text, m_text, m_text) + m_opt.Sign(m_drawing, &m_info), 0);
}

TEST_F(SignOpt, Login_SendsTheMappedUserAndTheConfiguredAddress) {
    const auto login = [this] { return m_opt.Login(m_text, m_empty, Text(L"plm")); };
    EXPECT_EQ(Seen(login), L"1(甲||127.0.0.1|8089)");
    m_settings.Set(L"SignServer", L"甲", L" jia.sign ");
    m_settings.Set(L"SignServer", L"ServerIP", L"10.0.0.1");
    m_settings.Set(L"SignServer", L"ServerPort", L"81");
    m_settings.Set(L"DynDisp", L"Login", L"Renamed");
    EXPECT_EQ(Seen([this] { return m_opt.Login(m_text, Text(L"secret"), Text(L"plm")); }),
              L"9(jia.sign|secret|10.0.0.1|81)");
    // The five texts lie at the object's end.
    const CString* texts = reinterpret_cast<const CString*>(reinterpret_cast<const char*>(&m_opt + 1)) - 5;
    EXPECT_EQ(texts[0] + texts[1] + texts[2] + texts[3] + texts[4], L"甲jia.signsecret10.0.0.181");
    EXPECT_EQ(m_opt.Logout(), 1);
    EXPECT_EQ(texts[0] + texts[1] + texts[2] + texts[3] + texts[4], L"") << "the password above all";
}

TEST_F(SignOpt, Operations_CallTheirMethodByItsConfiguredName) {
    const struct {
        const wchar_t *key, *identifier, *arguments;
        std::function<long()> call;
    } kOperations[] = {
        {L"Sign", L"2", L"(图号-1||2015年|王工|校对|2|-12|32|-192|8|16|128|256)",
         [&] { return m_opt.Sign(m_drawing, &m_info); }},
        {L"SignatureDelete", L"3", L"(图号-1|王工|校对)",
         [&] { return m_opt.DeleteSignForBackSign(m_drawing, &m_info); }},
        {L"DeleteAllSign", L"4", L"(甲)", [&] { return m_opt.DeleteAllSignForBackSign(m_drawing, m_text); }},
        {L"SignatureValidate", L"5", L"(甲)",
         [&] { return m_opt.SignatureValidateForBackSign(m_drawing, m_text); }},
        {L"SignatureInvalidDelete", L"6", L"(甲)",
         [&] { return m_opt.ClearInvalidSignForBackSign(m_drawing, m_text); }},
    };
    for (const auto& operation : kOperations) {
        EXPECT_EQ(Seen(operation.call), std::wstring(operation.identifier) + operation.arguments);
        m_settings.Set(L"DynDisp", operation.key, L"Renamed");
        EXPECT_EQ(Seen(operation.call), std::wstring(L"9") + operation.arguments);
        for (const wchar_t* unusable : {L"Unknown", L"Default", L"Negative"}) {
            m_settings.Set(L"DynDisp", operation.key, unusable);
            EXPECT_EQ(operation.call(), 0);
            EXPECT_EQ(m_server.LastSeen(), std::wstring(L"? ") + unusable) << "nothing may be called";
        }
    }
    for (const wchar_t* fixed : {L"SignatureDelete", L"CancelSign", L"Test"}) // no matter for these two
        m_settings.Set(L"DynDisp", fixed, L"Renamed");
    EXPECT_EQ(Seen([&] { return m_opt.CancelSign(m_drawing, m_text, Text(L"b"), Text(L"c")); }),
              L"3(甲|b|c)");
    EXPECT_EQ(Seen([&] { return m_opt.Test(m_text); }), L"7(甲)");
}

TEST_F(SignOpt, Arguments_MissingOnesAreRefusedWithoutACall) {
    long invalid = 7;
    SSignInfo* info = &m_info;
    const auto refused = [this](auto... arguments) {
        return [this, arguments...](auto operation) { return (m_opt.*operation)(arguments...); };
    };
    wchar_t *const text = m_text, *const empty = m_empty, *const null = nullptr;
    IDispatch* const none = nullptr;
    SSignInfo* const noInfo = nullptr;
    for (wchar_t* bad : {empty, null}) {
        for (auto operation : {&CSignOpt::DeleteAllSignForBackSign, &CSignOpt::SignatureValidateForBackSign,
                               &CSignOpt::ClearInvalidSignForBackSign, &CSignOpt::ClearInvalidSign}) {
            EXPECT_EQ(refused(m_drawing, bad)(operation), 0);
            EXPECT_EQ(refused(none, text)(operation), 0);
        }
        EXPECT_EQ(refused(bad, text, text)(&CSignOpt::Login), 0);
        EXPECT_EQ(refused(text, text, bad)(&CSignOpt::Login), 0);
        EXPECT_EQ(refused(m_drawing, bad, text, text)(&CSignOpt::CancelSign), 0);
        EXPECT_EQ(refused(m_drawing, text, bad, text)(&CSignOpt::CancelSign), 0);
        EXPECT_EQ(refused(m_drawing, text, text, bad)(&CSignOpt::CancelSign), 0);
        EXPECT_EQ(refused(m_drawing, bad, text)(&CSignOpt::ExistSignature), 0);
        info = &m_info;
        EXPECT_EQ(m_opt.GetSignInfoForBackSign(bad, &info), 0);
        EXPECT_EQ(std::exchange(info, &m_info), nullptr);
        EXPECT_EQ(m_opt.GetSignInfo(bad, 1, text, &info), 0);
        EXPECT_EQ(std::exchange(info, &m_info), nullptr);
        EXPECT_EQ(m_opt.GetSignInfo(text, 1, bad, &info), 0);
        EXPECT_EQ(info, nullptr);
    }
    for (auto operation : {&CSignOpt::Sign, &CSignOpt::SignForBackSign, &CSignOpt::DeleteSignForBackSign}) {
        EXPECT_EQ(refused(none, &m_info)(operation), 0);
        EXPECT_EQ(refused(m_drawing, noInfo)(operation), 0);
    }
    EXPECT_EQ(m_opt.Login(text, null, text), 0);
    EXPECT_EQ(m_opt.CancelSign(none, text, text, text), 0);
    EXPECT_EQ(m_opt.ExistSignature(none, text, text), 0);
    EXPECT_EQ(m_opt.HasInvalidSign(none, &invalid), 0);
    EXPECT_EQ(m_opt.HasInvalidSign(m_drawing, nullptr), 0);
    EXPECT_EQ(m_opt.GetSignUserName(null), 0);
    EXPECT_EQ(m_opt.GetCancelSignDate(null), 0);
    EXPECT_EQ(m_opt.GetSignInfoForBackSign(text, nullptr), 0);
    EXPECT_EQ(invalid, 7);
    EXPECT_EQ(m_opt.ClearInvalidSign(m_drawing, text), 1);
    EXPECT_EQ(m_opt.ExistSignature(m_drawing, text, null), 1);
    EXPECT_EQ(m_opt.HasInvalidSign(m_drawing, &invalid), 1);
    EXPECT_EQ(invalid, 0);
    EXPECT_EQ(m_server.LastSeen(), L"") << "none of these reaches the server";
}

TEST_F(SignOpt, Status_IsTheIntegerThatTheMethodReturned) {
    _variant_t returned;
    m_server.m_answer = [&](VARIANT& result, EXCEPINFO&) { return VariantCopy(&result, &returned); };
    const auto status = [&](_variant_t value) { return returned = value, m_opt.Test(m_text); };
    const std::pair<_variant_t, long> cases[] = {{-42L, -42}, {short(5), 5}, {4294967295UL, -1}, {L"17", 17},
                                                 {L"ok", 0},  {1e20, 0},     {_variant_t(), 0}};
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(status(value), expected);
}

TEST_F(SignOpt, Calls_FreeArgumentsResultsAndExceptionTexts) {
    std::wstring big(500000, L'x');
    const auto calls = [&] {
        m_opt.Test(big.data());
        m_opt.DeleteAllSignForBackSign(m_drawing, big.data());
        m_server.m_seen.clear();
    };
    EXPECT_LT(tests::MemoryGrowth(60, calls), 20 << 20) << "of 120 MB handed over";
    m_server.m_answer = [&](VARIANT& result, EXCEPINFO& exception) {
        result = _variant_t(big.c_str()).Detach();
        exception.bstrDescription = SysAllocString(big.c_str());
        return DISP_E_EXCEPTION;
    };
    EXPECT_LT(tests::MemoryGrowth(60, calls), 20 << 20) << "of 360 MB handed over and back";
}

TEST_F(SignOpt, GetSignUserName_CopiesTheSharedLogin) {
    tests::TempFolder vault;
    SetEnvironmentVariableW(L"DURVELL_VAULT", vault.Text().c_str());
    const std::wstring name(1100, L'名');
    WritePrivateProfileStringW(L"Session", L"UserName", name.c_str(), (vault / "session.ini").c_str());
    WritePrivateProfileStringW(L"Session", L"Password", L"p", (vault / "session.ini").c_str());
    WritePrivateProfileStringW(L"Session", L"Server", L"s", (vault / "session.ini").c_str());
    std::wstring buffer(1100, L'#');
    EXPECT_EQ(m_opt.GetSignUserName(buffer.data()), 1);
    const CString* texts = reinterpret_cast<const CString*>(reinterpret_cast<const char*>(&m_opt + 1)) - 5;
    EXPECT_EQ(texts[2] + L"/" + texts[3], L"p/s");
    EXPECT_EQ(buffer.c_str(), name.substr(0, 1023));
    EXPECT_EQ(buffer[1024], L'#') << "1023 characters and the terminator at most";
    SetEnvironmentVariableW(L"DURVELL_VAULT", nullptr);
}

TEST_F(SignOpt, GetCancelSignDate_RendersACompleteStyleOrTheDefault) {
    const auto today = [] {
        SYSTEMTIME now;
        GetLocalTime(&now);
        return varnoke::RenderDate(L"YYYY-MM-DD|YYYY-MM-DD|YYYY年%MM%s.D", {now.wYear, now.wMonth, now.wDay});
    };
    const CString before = today(); // midnight may come in between
    CString rendered;
    for (const wchar_t* style : {static_cast<const wchar_t*>(nullptr), L"DD/MM", L"YYYY年%MM%s.D"}) {
        wchar_t text[100] = {};
        m_settings.Set(L"SignDate", L"DateStyle", style);
        EXPECT_EQ(m_opt.GetCancelSignDate(text), 1);
        rendered += (rendered.IsEmpty() ? L"" : L"|") + CString(text);
    }
    EXPECT_TRUE(rendered == before || rendered == today()) << tests::ToUtf8(rendered.GetString());
}

TEST_F(SignOpt, GetSignInfoForBackSign_FillsFromSettingsAlone) {
    const SSignInfo fresh;
    EXPECT_EQ(fresh.m_dDateFontSize, 1.0);
    EXPECT_EQ(fresh.m_nDateTextColor, 200);
    m_settings.Set(L"Sign", L"Index", L"3");
    m_settings.Set(L"Sign", L"Pin", L"55");
    m_settings.Set(L"SignDate", L"DateFontSize", L"15");
    m_settings.Set(L"SignDate", L"DateStyle", L"无");
    m_settings.Set(L"SignDate", L"DateOffsetX", L"1.5");
    m_settings.Set(L"SignDate", L"DateOffsetY", L"2.5");
    m_settings.Set(L"SignLocation", L"LocationStyle", L"3");
    m_settings.Set(L"SignScope", L"Scope", L"3");
    SSignInfo* info = nullptr;
    ASSERT_EQ(m_opt.GetSignInfoForBackSign(m_text, &info), 1);
    EXPECT_EQ(info->m_strDateText, L"无") << "this run does not insist on a complete style";
    EXPECT_EQ(info->m_strPin + info->m_strDateFontName, L"55宋体");
    EXPECT_EQ(info->m_nSealIndex, 3);
    EXPECT_EQ(info->m_dDateOffsetX, 1.5);
    EXPECT_EQ(info->m_dDateOffsetY, 2.5);
    EXPECT_EQ(info->m_dDateFontSize, 15);
    EXPECT_EQ(info->m_nDateTextColor, 255);
    EXPECT_EQ(info->m_nScope + info->m_nLocationStyle, 0) << "these stay as constructed";
    EXPECT_EQ(Cmn_ReleaseSignInfo(info), 1);
}

} // namespace
