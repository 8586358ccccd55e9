#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <tuple>
#include <typeinfo>
#include <utility>

#include "Proc/Settings/SettingsAudioGenerator.h"
#include "Proc/Settings/SettingsEffectBlurGaussian.h"
#include "Proc/Settings/SettingsEffectBokehBlur.h"
#include "Proc/Settings/SettingsFilterAudioVolume.h"
#include "Proc/Settings/SettingsFilterSpeedUp.h"
#include "Proc/Settings/SettingsFilterSpeedUpVideo.h"
#include "TestSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormADescription;
using ZorvanTest::ThrownType;

namespace {

SettingsEffectBlurGaussian Blur(double scale, bool fast)
{
    SettingsEffectBlurGaussian blur;
    blur.SetScale(scale);
    blur.SetFast(fast);
    return blur;
}

} // namespace

// Classes without their own IsEqualTo, Deserialize or IsEmpty: the engine must not get a
// silent answer from them, even for an empty option string or a record compared with itself.
TEST(SettingsBase, DefaultsThrowNameThisRecordAndChangeNothing)
{
    SettingsAudioGenerator generator;
    SettingsFilterAudioVolume volume;
    SettingsEffectBlurGaussian blur = Blur(1.25, true);
    EXPECT_EQ(FormADescription<SettingsException>([&] { generator.Deserialize(""); }),
              "Not implemented fill from string for settings CLASS_ID = SettingsAudioGenerator");
    EXPECT_EQ(FormADescription<SettingsException>([&] { volume.Deserialize("gain=2"); }),
              "Not implemented fill from string for settings CLASS_ID = $$AUDIO_VOLUME$$");
    EXPECT_EQ(FormADescription<SettingsException>([&] { (void)generator.IsEqualTo(generator); }),
              "Not implemented comparison for settings CLASS_ID = SettingsAudioGenerator");
    // The other record is not looked at, not even its class.
    EXPECT_EQ(FormADescription<SettingsException>([&] { (void)blur.IsEqualTo(generator); }),
              "Not implemented comparison for settings CLASS_ID = $$EffectBlurGaussian$$");
    EXPECT_TRUE(blur.GetScale() == 1.25 && blur.GetFast());
    EXPECT_FALSE(blur.IsEmpty() || generator.IsEmpty() || volume.IsEmpty());
}

TEST(ClassIdentity, GetClassIdAndCloneKeepTheDynamicClass)
{
    SettingsFilterSpeedUpVideo video;
    video.SetSpeedUp(2.0);
    video.SetConstantFPS({30000, 1001});
    video.UseSeek(true);
    const SettingsFilterSpeedUp& asBase = video;
    EXPECT_EQ(&asBase.GetClassId(), &SettingsFilterSpeedUpVideo::CLASS_ID);
    EXPECT_NE(SettingsFilterSpeedUpVideo::CLASS_ID, SettingsFilterSpeedUp::CLASS_ID);
    const std::unique_ptr<Settings> clone = asBase.Clone();
    EXPECT_EQ(typeid(*clone), typeid(SettingsFilterSpeedUpVideo));
    EXPECT_TRUE(clone->IsEqualTo(video));

    const std::unique_ptr<Settings> blur = Blur(2.5, true).Clone();
    EXPECT_EQ(blur->GetClassId(), "$$EffectBlurGaussian$$");
    const auto& copy = dynamic_cast<const SettingsEffectBlurGaussian&>(*blur);
    EXPECT_TRUE(copy.GetScale() == 2.5 && copy.GetFast());

    SettingsEffectBokehBlur bokeh; // a clone shares what its record holds by shared pointer
    const auto image = std::make_shared<const ImageHandler>(2, 1, std::vector<std::uint8_t>{1, 2, 3, 4, 5, 6, 7, 8});
    bokeh.SetImage(image);
    const std::unique_ptr<Settings> bokehClone = bokeh.Clone();
    EXPECT_EQ(dynamic_cast<const SettingsEffectBokehBlur&>(*bokehClone).GetImage().get(), image.get());
    EXPECT_EQ(image.use_count(), 3);
}

// The base record looks only at its own field; the reverse call and a foreign class never
// answer false but raise bad_cast.
TEST(ClassIdentity, CrossClassComparisonIsOneSided)
{
    SettingsFilterSpeedUp speedUp;
    speedUp.SetSpeedUp(1.5);
    SettingsFilterSpeedUpVideo video;
    video.SetSpeedUp(1.5 + 1.5 * std::numeric_limits<double>::epsilon()); // nearly equal, not equal
    video.SetConstantFPS({25, 1});
    video.UseSeek(true);
    EXPECT_TRUE(speedUp.IsEqualTo(video));
    video.SetSpeedUp(1.5001);
    EXPECT_FALSE(speedUp.IsEqualTo(video));
    EXPECT_THROW((void)video.IsEqualTo(speedUp), std::bad_cast);
    EXPECT_THROW((void)speedUp.IsEqualTo(SettingsEffectBlurGaussian()), std::bad_cast);
}

// The reference record: a scale wins over fast (fast is read only when scale is absent),
// and map-form conversions read the longest prefix and let their exceptions out unwrapped.
TEST(BlurGaussian, DeserializeChainsScaleBeforeFast)
{
    // The option string, then the scale and the flag it leaves, starting from 3 and true.
    const std::tuple<std::string, double, bool> rows[] = {
        // clang-format off
        {"",          3, true},  {"scale=2.5:fast=0", 2.5, true},   {"fast=0:scale=1",  1, true},
        {"fast=0",    3, false}, {"fast=-3",          3, true},     {"fast=00",         3, false},
        {"fast=1.9",  3, true},  {"fast=0.9",         3, false},    {"fast=yes",        3, true},
        {"scale=abc", 3, true},  {"scale=abc:fast=0", 3, false},    {"fast=0:scale=",   3, false},
        {"x-scale=4", 4, true},  {"SCALE=-12.5e",     -12.5, true}, {"rescale=4",       3, true},
        {"scale = 4", 3, true},  {"scale=4:scale=5",  4, true},     {"scale=1,5",       1, true},
        {"scale=+5",  3, true},  {"scale=1.2.3",      1.2, true},   {"scale=1e999",     1, true},
        // clang-format on
    };
    for (const auto& [options, scale, fast] : rows) {
        SettingsEffectBlurGaussian blur = Blur(3.0, true);
        blur.Deserialize(options);
        EXPECT_EQ(blur.GetScale(), scale) << options;
        EXPECT_EQ(blur.GetFast(), fast) << options;
    }
    const std::string invalid = typeid(std::invalid_argument).name();
    const std::string range = typeid(std::out_of_range).name();
    const std::pair<std::string, std::string> failures[] = {
        // clang-format off
        {R"(scale="2")", invalid}, {"scale=-", invalid}, {"scale=,5", invalid}, {R"(fast="1")", invalid},
        {"fast=99999999999", range}, {"scale=1" + std::string(400, '0'), range},
        {"scale=0." + std::string(400, '0') + "1", range},
        // clang-format on
    };
    for (const auto& [options, type] : failures) {
        SettingsEffectBlurGaussian blur = Blur(3.0, true);
        EXPECT_EQ(ThrownType([&] { blur.Deserialize(options); }), type) << options;
        EXPECT_EQ(blur.GetScale(), 3.0) << options;
    }
}

// At most |a + b| times epsilon, or strictly below the smallest normal value. 1 - eps and
// 1 + eps differ by exactly 2 times epsilon, the bound itself.
TEST(NearlyEqual, RelativeToTheSumAndBelowTheSmallestNormal)
{
    constexpr double eps = 2.220446049250313e-16;
    constexpr float epsF = 1.1920929e-7F;
    EXPECT_TRUE(NearlyEqual(0.0, 0.0) && NearlyEqual(1.0 - eps, 1.0 + eps) && NearlyEqual(1e-310, 0.0));
    EXPECT_FALSE(NearlyEqual(1.0, 1.0 + 4 * eps) || NearlyEqual(2.2250738585072014e-308, 0.0));
    EXPECT_FALSE(NearlyEqual(std::nan(""), std::nan("")));
    EXPECT_TRUE(NearlyEqual(1.0F - epsF, 1.0F + epsF) && NearlyEqual(1e-39F, 0.0F));
    EXPECT_FALSE(NearlyEqual(1.0F, 1.0F + 4 * epsF) || NearlyEqual(1.1754944e-38F, 0.0F));
    EXPECT_FALSE(NearlyEqual(std::nanf(""), 0.0F));
    EXPECT_TRUE(NearZero(-0.0) && NearZero(4.9e-324) && NearZero(1e-40F));
    EXPECT_FALSE(NearZero(1e-300) || NearZero(1e-30F));
}
