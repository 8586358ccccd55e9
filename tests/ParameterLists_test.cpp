// Part 1.6: the static key lists, BaseSettingsISF and SettingsFrameUploader's static flag.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <typeinfo>
#include <vector>

#include "Proc/Settings/BaseSettingsISF.h"
#include "Proc/Settings/SettingsFrameUploader.h"
#include "TestSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormADescription;

namespace {

// BaseSettingsISF is abstract: a derived class supplies GetClassId and Clone (Part 1.6,
// "Left to the implementer").
class ShaderEffect : public BaseSettingsISF {
public:
    static const std::string CLASS_ID;
    const std::string& GetClassId() const override { return CLASS_ID; }
    std::unique_ptr<Settings> Clone() const override { return std::make_unique<ShaderEffect>(*this); }
};

const std::string ShaderEffect::CLASS_ID = "TestShaderEffect";

// A file in the test's temporary folder with exactly these bytes; returns its path.
std::string WriteFile(const std::string& name, const std::string& content)
{
    const std::filesystem::path path = std::filesystem::path(::testing::TempDir()) / ("zorvan_part_1_6_" + name);
    std::ofstream stream(path, std::ios::out | std::ios::binary | std::ios::trunc);
    stream << content;
    return path.string();
}

std::string Quoted(const std::string& text)
{
    return "\"" + text + "\"";
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

TEST(ParameterLists, ShaderKeysAndTheirListInOrder)
{
    EXPECT_EQ(BaseSettingsISF::s_psShaderPath, "ps_shader_path");
    EXPECT_EQ(BaseSettingsISF::s_vsShaderPath, "vs_shader_path");
    EXPECT_EQ(BaseSettingsISF::s_configPath, "config_path");
    // Built at load after the strings, so it holds their texts.
    EXPECT_EQ(BaseSettingsISF::s_params, (std::vector<std::string>{"ps_shader_path", "vs_shader_path", "config_path"}));
}

TEST(ParameterLists, FrameUploaderFlagIsAWritableStaticInitiallyTrue)
{
    EXPECT_TRUE(SettingsFrameUploader::s_metalHasHigherPriority);
    SettingsFrameUploader::s_metalHasHigherPriority = false;
    EXPECT_FALSE(SettingsFrameUploader::s_metalHasHigherPriority);
    SettingsFrameUploader::s_metalHasHigherPriority = true;
}

TEST(BaseSettingsIsf, SettersStoreTextAndRefuseEmptyTextWithTheirOwnMessages)
{
    ShaderEffect effect = Filled();
    EXPECT_EQ(effect.GetVertexShader(), "vertex 0");
    EXPECT_EQ(effect.GetPixelShader(), "pixel 0");
    EXPECT_EQ(effect.GetConfig(), "config 0");
    EXPECT_EQ(FormADescription<EffectException>([&] { effect.SetVertexShader(""); }),
              "Invalid value for vertex shader data");
    EXPECT_EQ(FormADescription<EffectException>([&] { effect.SetPixelShader(""); }),
              "Invalid value for pixel shader data");
    EXPECT_EQ(FormADescription<EffectException>([&] { effect.SetConfig(""); }), "Invalid value for config data");
    EXPECT_EQ(effect, Filled());
}

TEST(BaseSettingsIsf, QuotedPathReplacesTheVertexShaderByTheFileBytesAndLeavesTheOthers)
{
    const std::string bytes("void main() {}\r\n\0tail\xff", 21);
    const std::string path = WriteFile("vertex.vsh", bytes);
    ShaderEffect effect = Filled();
    effect.Deserialize("vs_shader_path=" + Quoted(path));
    EXPECT_EQ(effect.GetVertexShader(), bytes);
    EXPECT_EQ(effect.GetPixelShader(), "pixel 0");
    EXPECT_EQ(effect.GetConfig(), "config 0");
}

TEST(BaseSettingsIsf, UnquotedPathHoldsNoOption)
{
    WriteFile("a", "text");
    ShaderEffect effect = Filled();
    effect.Deserialize("vs_shader_path=a");
    effect.Deserialize("ps_shader_path=" + ::testing::TempDir() + "zorvan_part_1_6_a");
    EXPECT_EQ(effect, Filled());
}

TEST(BaseSettingsIsf, EmptyOrMissingFileFailsWithInvalidValue)
{
    const std::string empty = WriteFile("empty.fsh", "");
    ShaderEffect effect = Filled();
    EXPECT_EQ(FormADescription<EffectException>([&] { effect.Deserialize("ps_shader_path=" + Quoted(empty)); }),
              "Invalid value");
    EXPECT_EQ(FormADescription<EffectException>(
                  [&] { effect.Deserialize("config_path=" + Quoted(empty + ".does-not-exist")); }),
              "Invalid value");
    // A folder opens but yields no bytes.
    EXPECT_EQ(
        FormADescription<EffectException>([&] { effect.Deserialize("config_path=" + Quoted(::testing::TempDir())); }),
        "Invalid value");
    EXPECT_EQ(effect, Filled());
}

TEST(BaseSettingsIsf, KeysAreReadVertexPixelConfigAndEarlierFilesStay)
{
    const std::string vertex = WriteFile("order.vsh", "vertex 1");
    const std::string pixel = WriteFile("order.fsh", "pixel 1");
    const std::string config = WriteFile("order.json", "{\"config\": 1}");
    const std::string missing = vertex + ".missing";

    // Only the pixel shader's file fails: the vertex shader is replaced when it arrives.
    ShaderEffect effect = Filled();
    EXPECT_EQ(FormADescription<EffectException>([&] {
                  effect.Deserialize("ps_shader_path=" + Quoted(missing) + ":vs_shader_path=" + Quoted(vertex) +
                                     ":config_path=" + Quoted(config));
              }),
              "Invalid value");
    EXPECT_EQ(effect.GetVertexShader(), "vertex 1");
    EXPECT_EQ(effect.GetPixelShader(), "pixel 0");
    EXPECT_EQ(effect.GetConfig(), "config 0"); // read after the pixel shader: never reached

    // The vertex shader's file fails first: nothing else is read.
    ShaderEffect second = Filled();
    EXPECT_EQ(FormADescription<EffectException>([&] {
                  second.Deserialize("config_path=" + Quoted(config) + ":ps_shader_path=" + Quoted(pixel) +
                                     ":vs_shader_path=" + Quoted(missing));
              }),
              "Invalid value");
    EXPECT_EQ(second, Filled());

    // All three at once; an empty option string changes nothing.
    ShaderEffect third = Filled();
    third.Deserialize("CONFIG_PATH=" + Quoted(config) + ":ps_shader_path=" + Quoted(pixel) +
                      ":vs_shader_path=" + Quoted(vertex));
    EXPECT_EQ(third.GetVertexShader(), "vertex 1");
    EXPECT_EQ(third.GetPixelShader(), "pixel 1");
    EXPECT_EQ(third.GetConfig(), "{\"config\": 1}");
    third.Deserialize("");
    EXPECT_EQ(third.GetConfig(), "{\"config\": 1}");
}

TEST(BaseSettingsIsf, EqualTextsCompareEqualWhicheverWayTheyWereFilled)
{
    const std::string vertex = WriteFile("equal.vsh", "vertex 0");
    ShaderEffect fromFile = Filled();
    fromFile.SetVertexShader("something else");
    fromFile.Deserialize("vs_shader_path=" + Quoted(vertex));
    const ShaderEffect bySetters = Filled();
    EXPECT_TRUE(fromFile == bySetters);
    EXPECT_FALSE(fromFile != bySetters);
    ShaderEffect other = Filled();
    other.SetConfig("config 1");
    EXPECT_FALSE(other == bySetters);
    EXPECT_TRUE(other != bySetters);
    other = Filled();
    other.SetPixelShader("pixel 1");
    EXPECT_TRUE(other != bySetters);
    other = Filled();
    other.SetVertexShader("vertex 1");
    EXPECT_TRUE(other != bySetters);
    // IsEqualTo and IsEmpty stay the base's.
    EXPECT_EQ(FormADescription<SettingsException>([&] { (void)fromFile.IsEqualTo(bySetters); }),
              "Not implemented comparison for settings CLASS_ID = TestShaderEffect");
    EXPECT_FALSE(ShaderEffect().IsEmpty());
}

TEST(BaseSettingsIsf, CloneOfADerivedRecordCopiesTheTexts)
{
    const ShaderEffect effect = Filled();
    const auto clone = effect.Clone();
    EXPECT_EQ(typeid(*clone), typeid(ShaderEffect));
    EXPECT_EQ(dynamic_cast<const ShaderEffect&>(*clone), effect);
}
