// Equalizer bands, the radio that rebuilds its embedded equalizer, distortion and channel choice.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <functional>
#include <iterator>
#include <limits>
#include <stdexcept>
#include <string>
#include <tuple>

#include "Proc/Settings/SettingsAudioDistortion.h"
#include "Proc/Settings/SettingsAudioEqualizer.h"
#include "Proc/Settings/SettingsAudioRadio.h"
#include "Proc/Settings/SettingsEffectAudioStereo2DualMono.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormADescription;
using Bands = SettingsAudioEqualizer::Multiband;
using Channel = SettingsEffectAudioStereo2DualMono::ChannelToCopy;

namespace {

constexpr const char* kIntensity = "Intensity should be in range from 0.f to 1.f";

// The value `steps` units in the last place above v.
template <class T>
T Up(T v, int steps = 1)
{
    for (int i = 0; i < steps; ++i) {
        v = std::nextafter(v, std::numeric_limits<T>::infinity());
    }
    return v;
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

TEST(AudioEqualizer, CheckedSettersAtTheirBoundsKeepTheFieldOnFailure)
{
    SettingsAudioEqualizer eq;
    SettingsAudioRadio radio;
    SettingsAudioDistortion dist;
    const double none = std::nan("");
    const double aboveF = Up(1.0F);
    const double belowF = -std::numeric_limits<float>::denorm_min();
    const double belowD = -std::numeric_limits<double>::denorm_min();
// A setter and its getter on a record, both through doubles; T is the setter's argument type.
#define SETTER(record, Set, Get, T) [&](double v) { record.Set(T(v)); }, [&] { return double(record.Get()); }
    const struct {
        std::function<void(double)> set;
        std::function<double()> get;
        double low, high, below, above; // below and above are refused; not-a-number: no such value
        Thrown thrown;
        const char* text;
    } cases[] = {
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
    for (const auto& c : cases) {
        c.set(c.low);
        EXPECT_EQ(c.get(), c.low) << c.text;
        c.set(c.high);
        EXPECT_EQ(c.get(), c.high) << c.text;
        for (const double refused : {c.below, c.above}) {
            if (!std::isnan(refused)) {
                ExpectOutcome([&] { c.set(refused); }, c.thrown, c.text);
                EXPECT_EQ(c.get(), c.high) << c.text << " " << refused;
            }
        }
    }
}

TEST(AudioEqualizer, BandListsAreCheckedWholeAndOptionStringsReplaceThem)
{
    const Bands old{{50, 1.0}};
    SettingsAudioEqualizer set = Equalizer(old, 1.0F);
    ExpectOutcome([&] { set.SetMultiband({{100, 1.0}, {-1, 1.0}}); }, kSettings, "Invalid Echo");
    EXPECT_EQ(set.GetMultiband(), old);                             // checked whole before anything is stored
    const Bands four{{0, -1e300}, {20, 3.0}, {10, 4.0}, {30, 5.0}}; // any length and order; gains unchecked
    set.SetMultiband(four);
    EXPECT_EQ(set.GetMultiband(), four);
    const struct {
        const char* options;
        Bands bands;
        float intensity;
    } cases[] = {
        {"intensity=0.5", {}, 0.5F},
        {"freq0=100", {}, 0.75F}, // an incomplete pair adds no band and raises nothing
        {"freq2=300:gain2=-6", {{300, -6.0}}, 0.75F},
        {"gain1=2:freq1=200:freq0=1000:gain0=0.5", {{1000, 0.5}, {200, 2.0}}, 0.75F},
        {"FREQ0=7:Gain0=1,5:freq0=8:gain0=9", {{7, 1.0}}, 0.75F}, // any case, first occurrence, stod prefix
    };
    for (const auto& c : cases) {
        SettingsAudioEqualizer eq = Equalizer({{50, 1.0}}, 0.75F);
        eq.Deserialize(c.options);
        EXPECT_EQ(eq.GetMultiband(), c.bands) << c.options;
        EXPECT_EQ(eq.GetIntensity(), c.intensity) << c.options;
    }
    SettingsAudioEqualizer eq = Equalizer({{50, 1.0}}, 0.75F);
    ExpectOutcome([&] { eq.Deserialize("intensity=0.25:freq0=1:gain0=1:freq1=-2:gain1=1"); }, kSettings,
                  "Invalid Echo");
    EXPECT_EQ(eq.GetIntensity(), 0.25F); // applied before the bands were refused
    EXPECT_EQ(eq.GetMultiband(), (Bands{{50, 1.0}}));
    EXPECT_THROW(eq.Deserialize("freq0=-:gain0=1"), std::invalid_argument);
}

TEST(AudioEqualizer, RadioRebuildsItsEqualizerFromEveryOptionString)
{
    const struct {
        const char* options;
        Thrown thrown;
        const char* text;
        Bands bands;
        std::tuple<float, std::uint32_t, double, float> rest; // equalizer intensity, crackle, noise, intensity
    } cases[] = {
        {"noise_level=0.5", kNothing, "", {}, {1.0F, 7, 0.5, 0.125F}},
        {"intensity=0.25:freq1=200:gain1=3", kNothing, "", {{200, 3.0}}, {0.25F, 7, 0.25, 0.25F}},
        {"crackle_precision=4294967297:freq0=60:gain0=-2", kNothing, "", {{60, -2.0}}, {1.0F, 1, 0.25, 0.125F}},
        {"crackle_precision=4294967296", kSettings, "Invalid crackle precision", {{50, 1.0}}, {0.75F, 7, 0.25, 0.125F}},
        {"intensity=0.5:freq0=-1:gain0=1", kSettings, "Invalid Echo", {{50, 1.0}}, {0.75F, 7, 0.25, 0.5F}},
        {"intensity=2", kEffect, kIntensity, {{50, 1.0}}, {0.75F, 7, 0.25, 0.125F}},
    };
    for (const auto& c : cases) {
        SettingsAudioRadio radio = Radio({{50, 1.0}}, 0.75F, 7, 0.25, 0.125F);
        ExpectOutcome([&] { radio.Deserialize(c.options); }, c.thrown, c.text);
        EXPECT_EQ(radio.GetEqualizer().GetMultiband(), c.bands) << c.options;
        EXPECT_EQ(std::tuple(radio.GetEqualizer().GetIntensity(), radio.GetCracklePrecision(), radio.GetNoiseLevel(),
                             radio.GetIntensity()),
                  c.rest)
            << c.options;
    }
    SettingsAudioRadio radio;
    radio.Deserialize("freq0=100:gain0=2.5:intensity=0.25:crackle_precision=3");
    EXPECT_EQ(Zorvan::SettingsCatalog::Find("SettingsAudioRadio")->FieldsToJson(radio).dump(),
              R"({"equalizer":{"intensity":0.25,"multiband":[{"frequency":100,"gain":2.5}]},)"
              R"("cracklePrecision":3,"noiseLevel":0.0,"intensity":0.25})");
}

TEST(AudioEqualizer, RadioComparesBandsTolerantlyAndEqualizerIntensityExactly)
{
    const SettingsAudioRadio base = Radio({{100, 1.0}}, 0.5F, 3, 0.25, 0.5F);
    const struct {
        SettingsAudioRadio other;
        bool equal;
    } cases[] = {
        {Radio({{100, Up(1.0)}}, 0.5F, 3, 0.25, 0.5F), true},
        {Radio({{100, Up(1.0, 3)}}, 0.5F, 3, 0.25, 0.5F), false},
        {Radio({{101, 1.0}}, 0.5F, 3, 0.25, 0.5F), false},
        {Radio({{100, 1.0}, {100, 1.0}}, 0.5F, 3, 0.25, 0.5F), false},
        {Radio({{100, 1.0}}, Up(0.5F), 3, 0.25, 0.5F), false},
        {Radio({{100, 1.0}}, 0.5F, 4, 0.25, 0.5F), false},
        {Radio({{100, 1.0}}, 0.5F, 3, Up(0.25), 0.5F), true},
        {Radio({{100, 1.0}}, 0.5F, 3, 0.25, Up(0.5F)), true},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        EXPECT_EQ(base == cases[i].other, cases[i].equal) << i;
    }
    ExpectOutcome([&] { (void)base.IsEqualTo(base); }, kSettings,
                  "Not implemented comparison for settings CLASS_ID = SettingsAudioRadio");
}

TEST(AudioEqualizer, DistortionAndChannelKeysGoThroughTheirSetters)
{
    const struct {
        const char* options;
        Thrown thrown;
        const char* text;
        std::tuple<float, float, float, std::uint32_t> fields; // intensity, boost, tone, type
    } cases[] = {
        {"tone=0.5:type=4:boost=1", kNothing, "", {0.0F, 1.0F, 0.5F, 4}},
        {"intensity=0.5:type=-1", kEffect, "Invalid type!", {0.5F, 0.0F, 0.0F, 0}},
        {"boost=2:intensity=0.5", kEffect, "Invalid boost!", {0.5F, 0.0F, 0.0F, 0}},
    };
    for (const auto& c : cases) {
        SettingsAudioDistortion dist;
        ExpectOutcome([&] { dist.Deserialize(c.options); }, c.thrown, c.text);
        EXPECT_EQ(std::tuple(dist.GetIntensity(), dist.GetBoost(), dist.GetTone(), dist.GetType()), c.fields)
            << c.options;
    }
    SettingsEffectAudioStereo2DualMono stereo;
    stereo.Deserialize("channel=2");
    EXPECT_EQ(static_cast<int>(stereo.GetChannel()), 2);
    ExpectOutcome([&] { stereo.Deserialize("channel=3"); }, kEffect, "Unsupported channel setting: 3");
    ExpectOutcome([&] { stereo.SetChannel(Channel(-1)); }, kEffect, "Unsupported channel setting: -1");
}
