// Equalizer bands, the radio that rebuilds its embedded equalizer, distortion and channel choice.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <tuple>

#include "Proc/Settings/SettingsAudioDistortion.h"
#include "Proc/Settings/SettingsAudioEqualizer.h"
#include "Proc/Settings/SettingsAudioRadio.h"
#include "Proc/Settings/SettingsEffectAudioStereo2DualMono.h"
#include "TestSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormADescription;
using Bands = SettingsAudioEqualizer::Multiband;

namespace {

constexpr const char* kIntensity = "Intensity should be in range from 0.f to 1.f";

// The next value above v.
template <class T>
T Up(T v)
{
    return std::nextafter(v, std::numeric_limits<T>::infinity());
}

enum Thrown { kNothing, kSettings, kEffect };

// Runs f and checks the exception class and text it must raise.
void ExpectOutcome(const std::function<void()>& f, Thrown thrown, const std::string& text)
{
    if (thrown == kSettings) {
        EXPECT_EQ(FormADescription<SettingsException>(f), text);
    } else if (thrown == kEffect) {
        EXPECT_EQ(FormADescription<EffectException>(f), text);
    } else {
        EXPECT_NO_THROW(f());
    }
}

SettingsAudioEqualizer Equalizer(const Bands& bands, float intensity)
{
    SettingsAudioEqualizer equalizer;
    equalizer.SetMultiband(bands);
    equalizer.SetIntensity(intensity);
    return equalizer;
}

SettingsAudioRadio Radio(const Bands& bands, float eqIntensity, unsigned int crackle, double noise, float intensity)
{
    SettingsAudioRadio radio;
    radio.SetEqualizer(Equalizer(bands, eqIntensity));
    radio.SetCracklePrecision(crackle);
    radio.SetNoiseLevel(noise);
    radio.SetIntensity(intensity);
    return radio;
}

} // namespace

TEST(AudioEqualizer, CheckedSettersAtTheirBoundsKeepTheFieldOnFailureAndBandListsAreReplacedWhole)
{
    SettingsAudioEqualizer eq;
    SettingsAudioRadio radio;
    SettingsAudioDistortion dist;
    const double none = std::nan("");
    const double aboveF = Up(1.0F);
    const double belowF = -std::numeric_limits<float>::denorm_min();
    const double belowD = -std::numeric_limits<double>::denorm_min();
    using Setter = std::function<void(double)>;
// A setter and its getter on a record, both through doubles; T is the setter's argument type.
#define SETTER(record, Set, Get, T) [&](double v) { record.Set(T(v)); }, [&] { return double(record.Get()); }
    // Setter, getter, lowest and highest accepted, below and above refused (not-a-number: none), what is thrown.
    const std::tuple<Setter, std::function<double()>, double, double, double, double, Thrown, const char*> cases[] = {
        {SETTER(eq, SetIntensity, GetIntensity, float), 0, 1, belowF, aboveF, kEffect, kIntensity},
        {SETTER(radio, SetNoiseLevel, GetNoiseLevel, double), 0, 1, belowD, Up(1.0), kSettings, "Invalid noise level"},
        {SETTER(radio, SetCracklePrecision, GetCracklePrecision, unsigned), 1, 4294967295.0, 0, none, kSettings,
         "Invalid crackle precision"},
        {SETTER(radio, SetIntensity, GetIntensity, float), 0, 1, belowF, aboveF, kEffect, kIntensity},
        {SETTER(dist, SetType, GetType, unsigned), 0, 4, none, 5, kEffect, "Invalid type!"},
        {SETTER(dist, SetIntensity, GetIntensity, float), 0, 1, belowF, aboveF, kEffect, "Invalid intensity!"},
        {SETTER(dist, SetBoost, GetBoost, float), 0, 1, belowF, aboveF, kEffect, "Invalid boost!"},
        {SETTER(dist, SetTone, GetTone, float), 0, 1, belowF, aboveF, kEffect, "Invalid tone!"},
    };
#undef SETTER
    for (const auto& [set, get, low, high, below, above, thrown, text] : cases) {
        for (const double accepted : {low, high}) {
            set(accepted);
            EXPECT_EQ(get(), accepted) << text;
        }
        for (const double refused : {below, above}) {
            if (!std::isnan(refused)) {
                ExpectOutcome([&] { set(refused); }, thrown, text);
                EXPECT_EQ(get(), high) << text << " " << refused;
            }
        }
    }

    // A band list is checked whole; an option string replaces it.
    eq = Equalizer({{50, 1.0}}, 1.0F);
    ExpectOutcome([&] { eq.SetMultiband({{100, 1.0}, {-1, 1.0}}); }, kSettings, "Invalid Echo");
    EXPECT_EQ(eq.GetMultiband(), (Bands{{50, 1.0}}));               // checked whole before anything is stored
    const Bands four{{0, -1e300}, {20, 3.0}, {10, 4.0}, {30, 5.0}}; // any length and order; gains unchecked
    eq.SetMultiband(four);
    EXPECT_EQ(eq.GetMultiband(), four);
    const std::tuple<const char*, Thrown, Bands, float> options[] = {
        {"intensity=0.5", kNothing, {}, 0.5F},
        {"freq0=100", kNothing, {}, 0.75F}, // an incomplete pair adds no band and raises nothing
        {"freq2=300:gain2=-6", kNothing, {{300, -6.0}}, 0.75F},
        {"gain1=2:freq1=200:freq0=1000:gain0=0.5", kNothing, {{1000, 0.5}, {200, 2.0}}, 0.75F},
        // The intensity is applied before the bands are refused.
        {"intensity=0.25:freq0=1:gain0=1:freq1=-2:gain1=1", kSettings, {{50, 1.0}}, 0.25F},
    };
    for (const auto& [text, thrown, bands, intensity] : options) {
        eq = Equalizer({{50, 1.0}}, 0.75F);
        ExpectOutcome([&] { eq.Deserialize(text); }, thrown, "Invalid Echo");
        EXPECT_EQ(eq.GetMultiband(), bands) << text;
        EXPECT_EQ(eq.GetIntensity(), intensity) << text;
    }
}

TEST(AudioEqualizer, RadioRebuildsItsEqualizerFromEveryOptionStringAndComparesItsBandsTolerantly)
{
    // Options, what is thrown, the bands, then equalizer intensity, crackle, noise and intensity.
    using Rest = std::tuple<float, std::uint32_t, double, float>;
    const std::tuple<const char*, Thrown, const char*, Bands, Rest> cases[] = {
        // clang-format off
        {"noise_level=0.5", kNothing, "", {}, {1.0F, 7, 0.5, 0.125F}},
        {"intensity=0.25:freq1=200:gain1=3", kNothing, "", {{200, 3.0}}, {0.25F, 7, 0.25, 0.25F}},
        {"crackle_precision=4294967297:freq0=60:gain0=-2", kNothing, "", {{60, -2.0}}, {1.0F, 1, 0.25, 0.125F}},
        {"crackle_precision=4294967296", kSettings, "Invalid crackle precision", {{50, 1.0}}, {0.75F, 7, 0.25, 0.125F}},
        {"intensity=0.5:freq0=-1:gain0=1", kSettings, "Invalid Echo", {{50, 1.0}}, {0.75F, 7, 0.25, 0.5F}},
        // clang-format on
    };
    for (const auto& [options, thrown, text, bands, rest] : cases) {
        SettingsAudioRadio radio = Radio({{50, 1.0}}, 0.75F, 7, 0.25, 0.125F);
        ExpectOutcome([&] { radio.Deserialize(options); }, thrown, text);
        EXPECT_EQ(radio.GetEqualizer().GetMultiband(), bands) << options;
        EXPECT_EQ(std::tuple(radio.GetEqualizer().GetIntensity(), radio.GetCracklePrecision(), radio.GetNoiseLevel(),
                             radio.GetIntensity()),
                  rest)
            << options;
    }
    // Bands are compared with a tolerance, the equalizer's intensity exactly.
    const SettingsAudioRadio base = Radio({{100, 1.0}}, 0.5F, 3, 0.25, 0.5F);
    const double threeUp = 1 + 3 * std::numeric_limits<double>::epsilon();
    const std::pair<SettingsAudioRadio, bool> comparisons[] = {
        // clang-format off
        {Radio({{100, Up(1.0)}}, 0.5F, 3, 0.25, 0.5F), true}, {Radio({{100, threeUp}}, 0.5F, 3, 0.25, 0.5F), false},
        {Radio({{101, 1.0}}, 0.5F, 3, 0.25, 0.5F), false}, {Radio({{100, 1}, {100, 1}}, 0.5F, 3, 0.25, 0.5F), false},
        {Radio({{100, 1.0}}, Up(0.5F), 3, 0.25, 0.5F), false}, {Radio({{100, 1.0}}, 0.5F, 4, 0.25, 0.5F), false},
        {Radio({{100, 1.0}}, 0.5F, 3, Up(0.25), 0.5F), true},  {Radio({{100, 1.0}}, 0.5F, 3, 0.25, Up(0.5F)), true},
        // clang-format on
    };
    for (std::size_t i = 0; i < std::size(comparisons); ++i) {
        EXPECT_EQ(base == comparisons[i].first, comparisons[i].second) << i;
    }
}

TEST(AudioEqualizer, DistortionAndChannelKeysGoThroughTheirSetters)
{
    // Options, what is thrown, then intensity, boost, tone and type.
    const std::tuple<const char*, Thrown, const char*, std::tuple<float, float, float, std::uint32_t>> cases[] = {
        {"tone=0.5:type=4:boost=1", kNothing, "", {0.0F, 1.0F, 0.5F, 4}},
        // Intensity, boost, tone, then the type, whose whole number goes to the unsigned setter.
        {"type=-1:tone=0.5:boost=1:intensity=0.5", kEffect, "Invalid type!", {0.5F, 1.0F, 0.5F, 0}},
        {"tone=2:boost=0.5:intensity=0.5", kEffect, "Invalid tone!", {0.5F, 0.5F, 0.0F, 0}},
        {"boost=2:intensity=0.5", kEffect, "Invalid boost!", {0.5F, 0.0F, 0.0F, 0}},
    };
    for (const auto& [options, thrown, text, fields] : cases) {
        SettingsAudioDistortion dist;
        ExpectOutcome([&] { dist.Deserialize(options); }, thrown, text);
        EXPECT_EQ(std::tuple(dist.GetIntensity(), dist.GetBoost(), dist.GetTone(), dist.GetType()), fields) << options;
    }
    SettingsEffectAudioStereo2DualMono stereo;
    stereo.Deserialize("channel=2");
    EXPECT_EQ(static_cast<int>(stereo.GetChannel()), 2);
    ExpectOutcome([&] { stereo.Deserialize("channel=3"); }, kEffect, "Unsupported channel setting: 3");
    ExpectOutcome([&] { stereo.SetChannel(SettingsEffectAudioStereo2DualMono::ChannelToCopy(-1)); }, kEffect,
                  "Unsupported channel setting: -1");
}
