// Chorus, echo, flanger and vibrato: taps, one-tap options, tolerant and exact comparisons.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <array>
#include <cmath>
#include <limits>
#include <sstream>
#include <typeinfo>

#include "Proc/Settings/SettingsAudioChorus.h"
#include "Proc/Settings/SettingsAudioEcho.h"
#include "Proc/Settings/SettingsAudioFlanger.h"
#include "Proc/Settings/SettingsAudioVibrato.h"
#include "RecordSupport.h"

using namespace Zorvan::Proc;
using Chorus = SettingsAudioChorus;
using Echo = SettingsAudioEcho;
using Flanger = SettingsAudioFlanger;
using Vibrato = SettingsAudioVibrato;
using Json = nlohmann::ordered_json;
using ZorvanTest::Bounds;
using ZorvanTest::CheckBounds;
using ZorvanTest::CheckParses;
using ZorvanTest::Fields;
using ZorvanTest::Outcome;
using ZorvanTest::Parse;
using ZorvanTest::Written;

namespace {

const double kTiny = std::numeric_limits<double>::denorm_min();
const double kNaN = std::numeric_limits<double>::quiet_NaN();
const Chorus::Voice kVoice{10, 0.5, 1.0, 2.0};
const std::string kInvalidVoice = "SettingsException: Invalid Voice";
const std::string kEchoDelay = "SettingsException: Invalid Echo parameter: delay";
const std::string kEchoDecay = "SettingsException: Invalid Echo parameter: decay";
const char* const kIntensity = "Intensity should be in range from 0.f to 1.f";

template <class T>
T Up(T value, int steps = 1)
{
    return steps == 0 ? value : Up(std::nextafter(value, value + 1), steps - 1);
}

} // namespace

TEST(DelayModulation, SetterBoundsAndTapChecks)
{
    CheckBounds<Chorus>({{"intensity", &Chorus::SetIntensity, &Chorus::GetIntensity, 0, 1, kIntensity}});
    CheckBounds<Echo>({{"intensity", &Echo::SetIntensity, &Echo::GetIntensity, 0, 1, kIntensity}});
    // The phase's message speaks of release; the wording stays as released.
    CheckBounds<Flanger>({
        {"delay", &Flanger::SetDelay, &Flanger::GetDelay, 0, 30, "Delay should be in range from 0.0f to 30.f"},
        {"depth", &Flanger::SetDepth, &Flanger::GetDepth, 0, 10, "Depth should be in range from 0.f to 10.f"},
        {"regen", &Flanger::SetRegen, &Flanger::GetRegen, -95, 95, "Regen should be in range from -95.f to 95.f"},
        {"intensity", &Flanger::SetIntensity, &Flanger::GetIntensity, 0, 1, kIntensity},
        {"speed", &Flanger::SetSpeed, &Flanger::GetSpeed, 0.1, 10, "Speed should be in range from 0.1f to 10.f"},
        {"phase", &Flanger::SetPhase, &Flanger::GetPhase, 0, 100, "Release should be in range from 0.f to 100.f"},
    });
    CheckBounds<Vibrato>({
        {"frequency", &Vibrato::SetFrequency, &Vibrato::GetFrequency, 0.1, 20000,
         "Frequency should be in range from 0.1f to 20000.f"},
        {"intensity", &Vibrato::SetIntensity, &Vibrato::GetIntensity, 0, 1, kIntensity},
    });
    // The chorus wants both gains above 0, so a not-a-number fails; the echo stores any pair.
    for (const auto& [in, out] : {std::pair{0.0, 1.0}, {1.0, 0.0}, {-1.0, 1.0}, {kNaN, 1.0}, {1.0, kNaN}}) {
        Chorus chorus;
        chorus.SetGainInOut(2.0, kTiny);
        EXPECT_EQ(Outcome([&] { chorus.SetGainInOut(in, out); }), "SettingsException: Invalid gain parameters");
        EXPECT_TRUE(chorus.GetGainIn() == 2.0 && chorus.GetGainOut() == kTiny);
        Echo echo;
        echo.SetGainInOut(in, out);
        EXPECT_EQ(Json({echo.GetGainIn(), echo.GetGainOut()}).dump(), Json({in, out}).dump());
    }
    // Every voice is checked before any is stored.
    const std::pair<Chorus::Voice, bool> voices[] = {
        {{1, 1, 9.9, 9.9}, true},       {{89999, kTiny, kTiny, kTiny}, true},
        {{0, 0.5, 1, 1}, false},        {{90000, 0.5, 1, 1}, false},
        {{10, 0, 1, 1}, false},         {{10, Up(1.0), 1, 1}, false},
        {{10, kNaN, 1, 1}, false},      {{10, 0.5, 0, 1}, false},
        {{10, 0.5, Up(9.9), 1}, false}, {{10, 0.5, 1, 0}, false},
        {{10, 0.5, 1, Up(9.9)}, false},
    };
    for (const auto& [voice, ok] : voices) {
        Chorus chorus;
        EXPECT_EQ(voice.IsOK(), ok) << voice.delay << " " << voice.decay << " " << voice.speed << " " << voice.depth;
        EXPECT_EQ(Outcome([&] { chorus.SetVoices({kVoice, voice}); }), ok ? "" : kInvalidVoice);
        EXPECT_EQ(chorus.GetVoices().size(), ok ? 2U : 0U);
    }
    // Echo by echo, the delay before the decay; the first fault met decides and the list stays.
    const std::pair<std::string, std::vector<Echo::Echo>> lists[] = {
        {"", {{1, 1.0}, {89999, kTiny}}},
        {"", {}},
        {kEchoDelay, {{0, 0.5}}},
        {kEchoDelay, {{90000, 0.5}}},
        {kEchoDecay, {{10, 0.0}}},
        {kEchoDecay, {{10, Up(1.0)}}},
        {kEchoDecay, {{10, kNaN}}},
        {kEchoDelay, {{0, 0.0}}},
        {kEchoDecay, {{10, 0.0}, {0, 0.5}}},
        {kEchoDelay, {{10, 0.5}, {0, 0.5}}},
    };
    for (const auto& [outcome, list] : lists) {
        Echo echo;
        echo.SetEchos({{5, 0.5}});
        EXPECT_EQ(Outcome([&] { echo.SetEchos(list); }), outcome) << list.size();
        EXPECT_EQ(echo.GetEchos().size(), outcome.empty() ? list.size() : 1U);
    }
}

TEST(DelayModulation, OptionsAndStreamTexts)
{
    Chorus chorus;
    chorus.SetVoices({kVoice, kVoice});
    chorus.SetGainInOut(2.0, 4.0);
    chorus.SetIntensity(0.5F);
    // One voice replaces the list; absent taps read 0, which fails the voice check, absent gains 1.
    const std::vector<Parse> choruses{
        {"intensity=0.75:delay=40:decay=0.25:speed=0.5:depth=2.5:gain_in=0.75:gain_out=1.5", "",
         R"({"voices":[{"decay":0.25,"delay":40,"depth":2.5,"speed":0.5}],"gainIn":0.75,"gainOut":1.5,)"
         R"("intensity":0.75})"},
        {"intensity=abc:DELAY=12.7:delay=99:decay=1,5:Speed=1e3:depth=9.9", "",
         R"({"voices":[{"decay":1,"delay":12,"depth":9.9,"speed":1}],"gainIn":1,"gainOut":1})"},
        {"intensity=0.25", kInvalidVoice, R"({"intensity":0.25})"},
        {"delay=40:decay=0.25:speed=0.5:depth=2.5:gain_in=0", "SettingsException: Invalid gain parameters",
         R"({"voices":[{"decay":0.25,"delay":40,"depth":2.5,"speed":0.5}]})"},
    };
    CheckParses(chorus, choruses);
    Echo echo;
    echo.SetEchos({{5, 0.5}, {6, 0.25}});
    echo.SetGainInOut(3.0, 4.0);
    echo.SetIntensity(0.5F);
    // One working gain, which "gain_out" overwrites, becomes the in-gain; the out-gain becomes 1.
    const std::vector<Parse> echos{
        {"gain_in=0.5:gain_out=0.25:delay=10:decay=0.5", "",
         R"({"echos":[{"decay":0.5,"delay":10}],"gainIn":0.25,"gainOut":1})"},
        {"gain_out=0.25:gain_in=0.5:delay=10:decay=0.5", "",
         R"({"echos":[{"decay":0.5,"delay":10}],"gainIn":0.25,"gainOut":1})"},
        {"gain_in=0.5:delay=10:decay=0.5", "", R"({"echos":[{"decay":0.5,"delay":10}],"gainIn":0.5,"gainOut":1})"},
        {"gain_out=-2:intensity=1:DELAY=89999.9:Decay=1", "",
         R"({"echos":[{"decay":1,"delay":89999}],"gainIn":-2,"gainOut":1,"intensity":1})"},
        {"delay=10:decay=0.5", "", R"({"echos":[{"decay":0.5,"delay":10}],"gainIn":1,"gainOut":1})"},
        {"intensity=0.25:gain_in=0.75:decay=0.5", kEchoDelay, R"({"intensity":0.25})"},
    };
    CheckParses(echo, echos);
    Flanger flanger;
    flanger.SetDelay(1.0F);
    flanger.SetShape(Flanger::ShapeType::Sinusoidal);
    // A fixed key order; keys ahead of a failing one stay. Shape and interpolation are compared
    // with the map's text, quotes kept, so no option string selects them.
    const std::vector<Parse> flangers{
        {"delay=30:depth=10:regen=-95:intensity=1:speed=10:phase=100", "",
         R"({"delay":30,"depth":10,"regen":-95,"intensity":1,"speed":10,"phase":100})"},
        {"phase=5:regen=10:delay=5:depth=11", "EffectException: Depth should be in range from 0.f to 10.f",
         R"({"delay":5})"},
        {"regen=high:shape=triangular:interpolation=linear", "", "{}"},
        {"delay=5:phase=7:shape=\"triangular\":interpolation=\"quadratic\"",
         "EffectException: Unknown value of shape type", R"({"delay":5,"phase":7})"},
        {"interpolation=1:shape=0", "EffectException: Unknown value of shape type", "{}"},
        {"interpolation=\"linear\"", "EffectException: Unknown value of interpolation type", "{}"},
    };
    CheckParses(flanger, flangers);
    Vibrato vibrato;
    vibrato.SetFrequency(440.0F);
    const std::vector<Parse> vibratos{
        {"intensity=0.5:frequency=100", "", R"({"frequency":100,"intensity":0.5})"},
        {"intensity=2:frequency=100", std::string("EffectException: ") + kIntensity, R"({"frequency":100})"},
    };
    CheckParses(vibrato, vibratos);
    EXPECT_EQ(Written<Flanger::ShapeType>({0, 1, 2}), "triangularsinusoidalEffectException: Unknown shape type");
    EXPECT_EQ(Written<Flanger::InterpolationType>({0, 1, -1}),
              "linearquadraticEffectException: Unknown interpolation type");
}

TEST(DelayModulation, Comparison)
{
    // Chorus and echo: each floating field within |a + b| times its type's epsilon (two steps at a
    // power of two, not three) or both below the smallest normal value; delays and counts exactly.
    const auto chorusAt = [](int decay, int speed, int depth, int gainIn, int gainOut, int intensity) {
        Chorus chorus;
        chorus.SetVoices({{10, Up(0.5, decay), Up(1.0, speed), Up(2.0, depth)}});
        chorus.SetGainInOut(Up(1.0, gainIn), Up(1.0, gainOut));
        chorus.SetIntensity(Up(0.5F, intensity));
        return chorus;
    };
    const Chorus chorus = chorusAt(0, 0, 0, 0, 0, 0);
    EXPECT_TRUE(chorusAt(2, 2, 2, 2, 2, 2) == chorus);
    for (const Chorus& other : {chorusAt(3, 0, 0, 0, 0, 0), chorusAt(0, 3, 0, 0, 0, 0), chorusAt(0, 0, 3, 0, 0, 0),
                                chorusAt(0, 0, 0, 3, 0, 0), chorusAt(0, 0, 0, 0, 3, 0), chorusAt(0, 0, 0, 0, 0, 3)}) {
        EXPECT_FALSE(other == chorus || chorus == other);
    }
    const auto echoAt = [](int decay, double gainIn, double gainOut, int intensity) {
        Echo echo;
        echo.SetEchos({{10, Up(0.5, decay)}});
        echo.SetGainInOut(gainIn, gainOut);
        echo.SetIntensity(Up(0.5F, intensity));
        return echo;
    };
    const Echo echo = echoAt(0, 1.0, 0.0, 0);
    EXPECT_TRUE(echoAt(2, Up(1.0, 2), kTiny, 2) == echo && echo.IsEqualTo(echoAt(2, Up(1.0, 2), kTiny, 2)));
    for (const Echo& other : {echoAt(3, 1.0, 0.0, 0), echoAt(0, Up(1.0, 3), 0.0, 0), echoAt(0, 1.0, 0.5, 0),
                              echoAt(0, 1.0, 0.0, 3), echoAt(0, kNaN, 0.0, 0)}) {
        EXPECT_FALSE(other == echo || echo == other || echo.IsEqualTo(other));
    }
    Echo delay = echo;
    delay.SetEchos({{11, 0.5}});
    Echo two = echo;
    two.SetEchos({{10, 0.5}, {10, 0.5}});
    EXPECT_FALSE(delay == echo || two == echo);
    // Flanger and vibrato: every field exactly, so one float step differs.
    const auto differs = [](const auto& record, const char* step) {
        auto changed = record;
        changed.Deserialize(step);
        return !changed.IsEqualTo(record) && !record.IsEqualTo(changed);
    };
    Flanger flanger;
    flanger.Deserialize("delay=1:depth=1:regen=1:intensity=0.5:speed=1:phase=1");
    for (const char* step : {"delay=1.0000001", "depth=1.0000001", "regen=1.0000001", "intensity=0.50000006",
                             "speed=1.0000001", "phase=1.0000001"}) {
        EXPECT_TRUE(differs(flanger, step)) << step;
    }
    Flanger shape = flanger;
    shape.SetShape(Flanger::ShapeType::Sinusoidal);
    Flanger interpolation = flanger;
    interpolation.SetInterpolation(Flanger::InterpolationType::Quadratic);
    EXPECT_FALSE(shape.IsEqualTo(flanger) || interpolation.IsEqualTo(flanger));
    Vibrato vibrato;
    vibrato.Deserialize("frequency=1:intensity=0.5");
    EXPECT_TRUE(differs(vibrato, "frequency=1.0000001") && differs(vibrato, "intensity=0.50000006"));
    EXPECT_EQ(Outcome([&] { (void)echo.IsEqualTo(flanger); }), typeid(std::bad_cast).name());
    EXPECT_EQ(Outcome([&] { (void)flanger.IsEqualTo(vibrato); }), typeid(std::bad_cast).name());
    EXPECT_EQ(Outcome([&] { (void)vibrato.IsEqualTo(echo); }), typeid(std::bad_cast).name());
}
