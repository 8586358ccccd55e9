// Voice and character records: the pitch shift and its factor, the robot voice around an embedded
// pitch, noise suppression and the speech denoiser with their quiet setters, and the tone generator.
#include <gtest/gtest.h>

#include <chrono>
#include <climits>
#include <cmath>
#include <string>
#include <typeinfo>
#include <vector>

#include "Proc/Settings/SettingsAudioGenerator.h"
#include "Proc/Settings/SettingsAudioNoiseSuppress.h"
#include "Proc/Settings/SettingsAudioPitch.h"
#include "Proc/Settings/SettingsAudioRobot.h"
#include "Proc/Settings/SettingsAudioSpeechDenoiser.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;
using std::chrono::milliseconds;
using ZorvanTest::FormADescription;

namespace {

const char* const kIntensityMessage = "Intensity should be in range from 0.f to 1.f";

// Both bounds store; one step outside each throws exactly E with the message and keeps the field.
template <class E, class C, class T>
void CheckBounds(const char* name, void (C::*set)(T), T (C::*get)() const, T low, T high, const char* message)
{
    SCOPED_TRACE(name);
    C record;
    (record.*set)(low);
    EXPECT_EQ((record.*get)(), low);
    (record.*set)(high);
    EXPECT_EQ((record.*get)(), high);
    for (const T outside : {std::nextafter(low, T(-1)), std::nextafter(high, T(3))}) {
        EXPECT_EQ(FormADescription<E>([&] { (record.*set)(outside); }), message) << outside;
        EXPECT_EQ((record.*get)(), high);
    }
}

} // namespace

TEST(AudioVoice, IdentifiersAndKeyLists)
{
    EXPECT_EQ(SettingsAudioSpeechDenoiser::CLASS_ID, "SpeechDenoiser");
    EXPECT_EQ(SettingsAudioNoiseSuppress::s_params, std::vector<std::string>{"level"});
    const std::vector<std::string> denoiserKeys{"sample_rate", "duration", "nnm_file", "nnm_type"};
    EXPECT_EQ(SettingsAudioSpeechDenoiser::s_params, denoiserKeys);
}

TEST(AudioVoice, CheckedSettersAtTheirBoundsWithTheirOwnExceptionClasses)
{
    CheckBounds<SettingsException>("pitch", &SettingsAudioPitch::SetPitch, &SettingsAudioPitch::GetPitch, 0.5, 2.0,
                                   "Invalid pitch");
    CheckBounds<EffectException>("pitch intensity", &SettingsAudioPitch::SetIntensity,
                                 &SettingsAudioPitch::GetIntensity, 0.0F, 1.0F, kIntensityMessage);
    CheckBounds<SettingsException>("robot level", &SettingsAudioRobot::SetLevel, &SettingsAudioRobot::GetLevel, 0.0,
                                   1.0, "Invalid level");
    CheckBounds<EffectException>("robot intensity", &SettingsAudioRobot::SetIntensity,
                                 &SettingsAudioRobot::GetIntensity, 0.0F, 1.0F, kIntensityMessage);
}

TEST(AudioVoice, QuietSettersDropOutOfRangeValues)
{
    SettingsAudioNoiseSuppress suppress;
    for (const int value : {-60, 0, -61, 1, INT_MIN, INT_MAX}) {
        suppress.SetLevel(-30);
        EXPECT_NO_THROW(suppress.SetLevel(value));
        EXPECT_EQ(suppress.GetLevel(), value >= -60 && value <= 0 ? value : -30) << value;
    }
    SettingsAudioSpeechDenoiser denoiser;
    for (const int value : {1, 0, -1, INT_MIN}) {
        denoiser.SetSampleRate(16000);
        denoiser.SetDuration(milliseconds(20));
        EXPECT_NO_THROW(denoiser.SetSampleRate(value));
        EXPECT_NO_THROW(denoiser.SetDuration(milliseconds(value)));
        EXPECT_EQ(denoiser.GetSampleRate(), value >= 1 ? value : 16000) << value;
        EXPECT_EQ(denoiser.GetDuration(), milliseconds(value >= 1 ? value : 20)) << value;
    }
    // The option strings drop the same values.
    suppress.Deserialize("level=-61");
    EXPECT_EQ(suppress.GetLevel(), -30);
    suppress.Deserialize("LEVEL=-60");
    EXPECT_EQ(suppress.GetLevel(), -60);
    denoiser.Deserialize("sample_rate=0:duration=0");
    EXPECT_EQ(denoiser.GetSampleRate(), 16000);
    EXPECT_EQ(denoiser.GetDuration(), milliseconds(20));
}

TEST(AudioVoice, PitchAppliesPitchBeforeIntensity)
{
    SettingsAudioPitch pitch;
    EXPECT_EQ(FormADescription<EffectException>([&] { pitch.Deserialize("intensity=2:pitch=1.5"); }),
              kIntensityMessage);
    EXPECT_EQ(pitch.GetPitch(), 1.5);
}

TEST(AudioVoice, RobotOptionStringReachesTheEmbeddedPitch)
{
    SettingsAudioRobot robot;
    robot.Deserialize("pitch=1.25:level=0.75:intensity=0.5");
    // One "intensity" sets both intensities; "pitch" belongs to the embedded record alone.
    const auto* entry = Zorvan::SettingsCatalog::Find("SettingsAudioRobot");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->FieldsToJson(robot).dump(),
              R"({"pitch":{"intensity":0.5,"pitch":1.25},"level":0.75,"intensity":0.5})");

    // The embedded pitch reads the string first: its failures come before the robot's own keys.
    EXPECT_EQ(FormADescription<EffectException>([&] { robot.Deserialize("level=0.25:intensity=1.5"); }),
              kIntensityMessage);
    EXPECT_EQ(robot.GetLevel(), 0.75);
    EXPECT_EQ(FormADescription<SettingsException>([&] { robot.Deserialize("pitch=2:level=1.5"); }), "Invalid level");
    EXPECT_EQ(robot.GetPitch().GetPitch(), 2.0);
    EXPECT_EQ(robot.GetLevel(), 0.75);
}

TEST(AudioVoice, RobotEqualityIsExactOnThePitchAndTolerantOnItsOwnFields)
{
    SettingsAudioRobot left;
    left.Deserialize("pitch=1.5:level=0.5:intensity=0.5");
    SettingsAudioRobot right = left;
    right.SetLevel(std::nextafter(0.5, 1.0));
    EXPECT_TRUE(left == right);
    SettingsAudioPitch nudged = left.GetPitch();
    nudged.SetPitch(std::nextafter(1.5, 2.0));
    right.SetPitch(nudged);
    EXPECT_FALSE(left == right);
}

TEST(AudioVoice, DenoiserModelFromOptionsAndComparison)
{
    SettingsAudioSpeechDenoiser denoiser;
    denoiser.SetModelBinaryData("bytes");
    denoiser.Deserialize("nnm_file=/models/a.onnx"); // unquoted: no option at all
    EXPECT_EQ(denoiser.GetModelInfo().binaryData, "bytes");
    denoiser.Deserialize(R"(nnm_file="/models/a.onnx":nnm_type=7:sample_rate=16000:duration=20)");
    EXPECT_EQ(denoiser.GetModelInfo(),
              (NeuralNetworkModelInfo{"/models/a.onnx", "", NeuralNetworkModelInfo::ExecutorType(7)}));
    EXPECT_EQ(denoiser.GetSampleRate(), 16000);
    EXPECT_EQ(denoiser.GetDuration(), milliseconds(20));

    SettingsAudioSpeechDenoiser other = denoiser;
    EXPECT_TRUE(denoiser.IsEqualTo(other));
    other.SetModelBinaryData("x");
    EXPECT_FALSE(denoiser.IsEqualTo(other));
    EXPECT_THROW((void)denoiser.IsEqualTo(SettingsAudioNoiseSuppress()), std::bad_cast);
}

// Expected factors from Python: float(Fraction(p - 1.0) * Fraction(i) + 1), the exact multiply-add
// rounded once; the last two rows differ in the last bit from a separately rounded product.
TEST(AudioVoice, CalculatePitchRoundsTheMultiplyAddOnce)
{
    const struct {
        double pitch;
        float intensity;
        double factor;
    } cases[] = {{2.0, 0.5F, 1.5},
                 {1.7, 0.0F, 1.0},
                 {1.7, 1.0F, 1.7},
                 {0.5, 1.0F, 0.5},
                 {0.51, 0.9F, 0.5590000116825103},
                 {1.9, 0.33F, 1.2970000118017195}};
    for (const auto& c : cases) {
        SettingsAudioPitch pitch;
        pitch.SetPitch(c.pitch);
        pitch.SetIntensity(c.intensity);
        EXPECT_EQ(pitch.CalculatePitch(), c.factor) << c.pitch << " " << c.intensity;
    }
}

// Expected values from Python: math.sin(n * 3.14 * 0.0009765625).
TEST(AudioVoice, SinusoidUsesThreePointOneFour)
{
    const struct {
        int sample;
        double value;
    } cases[] = {{0, 0.0},
                 {1024, 0.0015926529164868282},
                 {512, 0.9999996829318346},
                 {2048, -0.0031853017931379904},
                 {INT_MAX, 0.5027151274157768},
                 {INT_MIN, -0.5000620063626755}};
    for (const auto& c : cases) {
        EXPECT_EQ(SettingsAudioGenerator::Sinusoid(c.sample), c.value) << c.sample;
    }
}
