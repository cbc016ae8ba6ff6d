// The model configuration: which configurations are found, and what happens when something is wrong.
#include <afxwin.h>
#include <memory>
#include <gtest/gtest.h>
#include "varnoke/ModelConfig.h"
#include "tests/model/ModelFixture.h"

using namespace QORMODEL;
using namespace tests;

namespace {

// "<null>" for no configuration, "<absent>" for no such attribute.
template <class Config>
std::wstring Caption(const Config& config) {
    if (!config) return L"<null>";
    _bstr_t value;
    const HRESULT result = config->GetAttribute(_bstr_t(L"caption"), value.GetAddress());
    return result == S_OK ? std::wstring(value, value.length()) : L"<absent>";
}

class ModelConfigTest : public ModelFixture {
protected:
    // Local, server and map configuration by their captions.
    std::wstring Captions() {
        return Caption(m_config->GetLocalObjectConfig()) + L"|" + Caption(m_config->GetServerObjectConfig()) +
               L"|" + Caption(m_config->GetMapObjectConfig());
    }
    long InitializeAndLoad() { return m_config->Initialize(nullptr) == 1 ? m_config->Load() : -1; }
    void TearDown() override {
        m_config.reset();
        ModelFixture::TearDown();
    }

    std::unique_ptr<CModelConfig> m_config = std::make_unique<CModelConfig>();
};

constexpr wchar_t kSampleCaptions[] = L"签名记录|服务器签名对象|签名到服务器";
constexpr wchar_t kNothing[] = L"<null>|<null>|<null>";

} // namespace

TEST_F(ModelConfigTest, Getters_GiveWhatTheFileSays) {
    const LocalServices services;
    ASSERT_EQ(InitializeAndLoad(), 1);
    // The first map's server is empty, the next is another object's, "sign" comes before "SIGN".
    EXPECT_EQ(Captions(), kSampleCaptions);
}

TEST_F(ModelConfigTest, Getters_FollowTheSettings) {
    const struct {
        const wchar_t *key, *value, *captions;
    } cases[] = {
        {L"DesignDoMain", L"electric", L"签名记录|服务器签名对象|电气签名到服务器"},
        {L"DesignDoMain", L"Electric", L"签名记录|服务器签名对象|<null>"},
        {L"LocalObjectConfigId", L"IQORM_OBJ_REVIEW", L"会审记录|服务器签名对象|会审到服务器"},
        {L"LocalObjectConfigId", L"iqorm_obj_sign", L"<null>|服务器签名对象|<null>"},
        {L"ServerObjectConfigId", L"Archive", L"签名记录|<null>|归档"},
        {L"ServerObjectConfigId", L"OTHER", L"签名记录|<null>|<null>"},
        {L"DesignDoMain", L" ", kSampleCaptions},
    };
    const LocalServices services;
    ASSERT_EQ(InitializeAndLoad(), 1);
    for (const auto& row : cases) {
        SCOPED_TRACE(testing::Message() << row.key << "=" << row.value);
        m_settings.Remove();
        m_settings.Set(L"SignLog", row.key, row.value);
        EXPECT_EQ(Captions(), row.captions);
    }
}

TEST_F(ModelConfigTest, Load_OddFiles) {
    const std::string sample = ReadBytes(Built(L"samples\\ModelConfig.Xml"));
    const struct {
        std::string content;
        long loaded;
        const wchar_t* captions;
    } cases[] = {
        {"", 0, kNothing},
        {sample.substr(0, sample.size() / 2), 0, kNothing},
        {"<root/>", 0, kNothing},
        {"<!DOCTYPE modelconfig [<!ENTITY e 'x'>]><modelconfig/>", 0, kNothing},
        {"<modelconfig/>", 1, kNothing},
        {"<modelconfig><objconfig id='SIGN' caption='s'/><domain name='standard'/></modelconfig>", 1,
         L"<null>|s|<null>"},
        {"<modelconfig><objconfig id='IQORM_OBJ_SIGN'/></modelconfig>", 1, L"<absent>|<null>|<null>"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.content.substr(0, 60));
        const LocalServices services(row.content);
        EXPECT_EQ(InitializeAndLoad(), row.loaded);
        EXPECT_EQ(Captions(), row.captions);
    }
}

TEST_F(ModelConfigTest, Load_ReplacesTheModel) {
    EXPECT_EQ(m_config->Load(), 0) << "before Initialize there is no path";
    EXPECT_EQ(Captions(), kNothing);
    const LocalServices services;
    ASSERT_EQ(InitializeAndLoad(), 1);
    const IQORObjMapConfigPtr kept = m_config->GetMapObjectConfig();
    EXPECT_EQ(m_config->Uninitialize(), 1);
    EXPECT_EQ(Captions(), kSampleCaptions) << "the model outlives the settings";

    WriteBytes(services.configFile, "<modelconfig><objconfig id='SIGN' caption='new'/></modelconfig>");
    ASSERT_EQ(m_config->Load(), 1);
    EXPECT_EQ(Captions(), L"<null>|new|<null>");
    std::filesystem::remove(services.configFile);
    EXPECT_EQ(m_config->Load(), 0);
    EXPECT_EQ(Captions(), kNothing);
    EXPECT_EQ(Caption(kept), L"签名到服务器") << "a configuration handed out stays usable";
}

TEST_F(ModelConfigTest, Initialize_WithoutLocalServicesLooksBesideTheProgram) {
    ASSERT_EQ(GetModuleHandleW(L"QORLocal.dll"), nullptr);
    ASSERT_EQ(InitializeAndLoad(), 1);
    EXPECT_EQ(Captions(), kSampleCaptions);
}

// Every model operation fails once; none of it may leak or come out as an exception.
TEST_F(ModelConfigTest, Getters_GiveNullWhenTheModelFails) {
    const LocalServices services;
    ASSERT_EQ(InitializeAndLoad(), 1);
    const long before = LiveModelObjects();
    const auto fails = [&](int n, auto getter) {
        SetModelFault(n);
        const bool null = !((*m_config).*getter)();
        EXPECT_EQ(LiveModelObjects(), before) << n;
        return null;
    };
    EXPECT_TRUE(fails(1, &CModelConfig::GetLocalObjectConfig));
    EXPECT_FALSE(fails(2, &CModelConfig::GetLocalObjectConfig));
    EXPECT_TRUE(fails(1, &CModelConfig::GetServerObjectConfig));
    // Domain, maps, count; then item and server identifier of the three maps up to the one that matches.
    for (int n = 1; n <= 9; ++n)
        EXPECT_TRUE(fails(n, &CModelConfig::GetMapObjectConfig)) << n;
    EXPECT_FALSE(fails(10, &CModelConfig::GetMapObjectConfig));
}
