#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <tuple>
#include <utility>

#include "Proc/Settings/BaseSettingsISF.h"
#include "Proc/Settings/SettingsFrameUploader.h"
#include "TestSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormADescription;

namespace {

// The engine's shader effects supply the identity over the abstract base.
class ShaderEffect : public BaseSettingsISF {
public:
    static const std::string CLASS_ID;
    const std::string& GetClassId() const override { return CLASS_ID; }
    std::unique_ptr<Settings> Clone() const override { return std::make_unique<ShaderEffect>(*this); }
};

const std::string ShaderEffect::CLASS_ID = "TestShaderEffect";

// Writes the bytes to a file in the test's temporary folder; returns the path in quotes,
// as a text value must be in the option string.
std::string QuotedFile(const std::string& name, const std::string& content)
{
    const std::filesystem::path path = std::filesystem::path(::testing::TempDir()) / ("zorvan_isf_" + name);
    std::ofstream(path, std::ios::binary | std::ios::trunc) << content;
    return "\"" + path.string() + "\"";
}

ShaderEffect Filled()
{
    ShaderEffect effect;
    effect.SetVertexShader("vertex 0");
    effect.SetPixelShader("pixel 0");
    effect.SetConfig("config 0");
    return effect;
}

} // namespace

TEST(ParameterLists, ShaderKeysInOrderAndUploaderFlag)
{
    EXPECT_EQ(BaseSettingsISF::s_params, (std::vector<std::string>{"ps_shader_path", "vs_shader_path", "config_path"}));
    EXPECT_TRUE(SettingsFrameUploader::s_metalHasHigherPriority);
}

// Each setter refuses empty text with its own message and keeps the old text; any
// changed text makes operator== false. IsEqualTo and IsEmpty stay the base's.
TEST(BaseSettingsISF, SettersAndComparison)
{
    using Setter = void (BaseSettingsISF::*)(const std::string&);
    const std::pair<Setter, std::string> setters[] = {
        {&BaseSettingsISF::SetVertexShader, "Invalid value for vertex shader data"},
        {&BaseSettingsISF::SetPixelShader, "Invalid value for pixel shader data"},
        {&BaseSettingsISF::SetConfig, "Invalid value for config data"}};
    for (const auto& [set, message] : setters) {
        ShaderEffect effect = Filled();
        EXPECT_EQ(FormADescription<EffectException>([&] { (effect.*set)(""); }), message);
        EXPECT_TRUE(effect == Filled() && !(effect != Filled())) << message;
        (effect.*set)("changed");
        EXPECT_TRUE(effect != Filled() && !(effect == Filled())) << message;
    }
    EXPECT_EQ(FormADescription<SettingsException>([] { (void)Filled().IsEqualTo(Filled()); }),
              "Not implemented comparison for settings CLASS_ID = TestShaderEffect");
    EXPECT_FALSE(Filled().IsEmpty());
}

// Files are read vertex, pixel, config whatever the order in the string; a file that
// yields no text stops the call with "Invalid value", and files read before it stay.
TEST(BaseSettingsISF, DeserializeReadsTheFiles)
{
    const std::string bytes("void main() {}\r\n\0tail\xff", 21);
    const std::string vertex = QuotedFile("v.vsh", bytes);
    const std::string pixel = QuotedFile("p.fsh", "pixel 1");
    const std::string config = QuotedFile("c.json", "{}");
    const std::string empty = QuotedFile("empty.fsh", "");
    const std::string missing = "\"" + ::testing::TempDir() + "zorvan_isf_does-not-exist\"";
    const std::string folder = "\"" + ::testing::TempDir() + "\"";
    const std::string unchanged = "vertex 0|pixel 0|config 0";
    // The option string, the vertex, pixel and config texts afterwards, whether it fails.
    const std::tuple<std::string, std::string, bool> rows[] = {
        {"", unchanged, false},
        {"vs_shader_path=" + vertex, bytes + "|pixel 0|config 0", false},
        {"ps_shader_path=" + pixel.substr(1, pixel.size() - 2), unchanged, false},
        {"CONFIG_PATH=" + config + ":ps_shader_path=" + pixel + ":vs_shader_path=" + vertex, bytes + "|pixel 1|{}",
         false},
        {"ps_shader_path=" + empty, unchanged, true},
        {"config_path=" + missing, unchanged, true},
        {"config_path=" + folder, unchanged, true},
        {"ps_shader_path=" + missing + ":vs_shader_path=" + vertex + ":config_path=" + config,
         bytes + "|pixel 0|config 0", true},
        {"config_path=" + config + ":ps_shader_path=" + pixel + ":vs_shader_path=" + empty, unchanged, true}};
    for (const auto& [options, texts, fails] : rows) {
        ShaderEffect effect = Filled();
        if (fails) {
            EXPECT_EQ(FormADescription<EffectException>([&] { effect.Deserialize(options); }), "Invalid value")
                << options;
        } else {
            effect.Deserialize(options);
        }
        EXPECT_EQ(effect.GetVertexShader() + "|" + effect.GetPixelShader() + "|" + effect.GetConfig(), texts)
            << options;
    }
}
