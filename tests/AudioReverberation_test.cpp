// Reverb and impulse-response reverberation: bounds, options read key by key, spellings, streams.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <array>
#include <cmath>
#include <limits>
#include <sstream>
#include <typeinfo>

#include "Proc/Settings/SettingsAudioReverb.h"
#include "Proc/Settings/SettingsAudioReverberationImpulseResponse.h"
#include "RecordSupport.h"

using namespace Zorvan::Proc;
using Ir = SettingsAudioReverberationImpulseResponse;
using Json = nlohmann::ordered_json;
using ZorvanTest::CheckParses;
using ZorvanTest::Fields;
using ZorvanTest::Parse;

namespace {

const std::string kTime = "EffectException: Reverberation time should be in range from 0.0001 to 30.0.";
const std::string kDry = "EffectException: Dry gain should be in range from 0.0 to 10.0.";
const std::string kWet = "EffectException: Wet gain should be in range from 0.0 to 10.0.";
const std::string kDelay = "EffectException: Dry-wet balance should be in range from 0 to 200.";
const std::string kFrequency = "EffectException: Sliding LPF frequency should be greater than 0.";
const std::string kChangeFunction = "EffectException: Unknown value of change function";
const std::string kNoiseColor = "EffectException: Unknown value of noise color";

// "" when the call returns, else the exact class thrown with its description or text.
std::string Outcome(const std::function<void()>& call)
{
    try {
        call();
        return "";
    } catch (const EffectException&) {
        return "EffectException: " + ZorvanTest::FormADescription<EffectException>([] { throw; });
    } catch (const std::invalid_argument& e) {
        return typeid(e) == typeid(std::invalid_argument) ? std::string("invalid_argument: ") + e.what() : "wrapped";
    } catch (const std::exception& e) {
        return typeid(e).name();
    }
}

template <class E>
std::string Written(std::initializer_list<int> values)
{
    std::ostringstream stream;
    for (const int value : values) {
        EXPECT_EQ(&(stream << static_cast<E>(value)), &stream);
    }
    EXPECT_TRUE(stream.good());
    return stream.str();
}

// Every field differs from a default record's, the change functions lie outside their table.
Ir Start()
{
    Ir record;
    record.Deserialize("reverb_time=2.5:dry_gain=0.5:wet_gain=3:delay=17:slpf_freq=4000:noise_color=b");
    record.SetFadeFunction(static_cast<Ir::ChangeFunction>(9));
    record.SetSlpfFunction(static_cast<Ir::ChangeFunction>(8));
    return record;
}

} // namespace

TEST(Reverberation, Options)
{
    SettingsAudioReverb reverb;
    reverb.SetIntensity(0.5F);
    // One key, by std::stof, through the setter: 0 to 1, inclusive.
    CheckParses(reverb,
                {
                    {"intensity=1:INTENSITY=0.75", "", R"({"intensity":1})"},
                    {"intensity=0,75:other=1", "", R"({"intensity":0})"},
                    {"intensity=1.0000001", "EffectException: Invalid intensity!", "{}"},
                    {"intensity=-0.0000001", "EffectException: Invalid intensity!", "{}"},
                },
                Outcome);
    // A not-a-number compares outside nothing and passes every check that bounds a value.
    reverb.SetIntensity(std::nanf(""));
    Ir record;
    record.Deserialize("reverb_time=nan:dry_gain=NAN:wet_gain=nan");
    EXPECT_TRUE(std::isnan(reverb.GetIntensity()) && std::isnan(record.GetReverberationTime()) &&
                std::isnan(record.GetDryGain()) && std::isnan(record.GetWetGain()));
    const auto notANumber = [](const std::string& value, const std::string& key) {
        return "invalid_argument: The '" + value + "' value of the '" + key + "' option is not a number";
    };
    std::vector<Parse> rows{
        {"reverb_time=\"\":delay=\"\":fade_func=\"\":noise_color=\"\"", "", "{}"},
        {"reverb_time=12.5:dry_gain=0.25:wet_gain=7:delay=150:slpf_freq=300:fade_func=exp:noise_color=pink", "",
         R"({"reverberationTime":12.5,"dryGain":0.25,"wetGain":7,"delay":150,"noiseColor":1,"slpfFrequency":300,)"
         R"("fadeFunction":1})"},
        {"DELAY=5:delay=6:Reverb_Time=3:x-slpf_freq=440", "",
         R"({"reverberationTime":3,"delay":5,"slpfFrequency":440})"},
        // Inclusive bounds, through the setters; the delay's message speaks of a dry-wet balance.
        {"reverb_time=0.0001:dry_gain=0:wet_gain=10:delay=0:slpf_freq=1", "",
         R"({"reverberationTime":0.0001,"dryGain":0,"wetGain":10,"delay":0,"slpfFrequency":1})"},
        {"reverb_time=30:dry_gain=10:wet_gain=0:delay=200", "",
         R"({"reverberationTime":30,"dryGain":10,"wetGain":0,"delay":200})"},
        {"reverb_time=9.999999999999999e-05", kTime, "{}"},
        {"reverb_time=30.000000000000004", kTime, "{}"},
        {"dry_gain=-0.0000001", kDry, "{}"},
        {"dry_gain=10.000000000000002", kDry, "{}"},
        {"wet_gain=-0.0000001", kWet, "{}"},
        {"wet_gain=10.000000000000002", kWet, "{}"},
        {"delay=-1", kDelay, "{}"},
        {"delay=201", kDelay, "{}"},
        {"slpf_freq=0", kFrequency, "{}"},
        // The whole value must be a number of the key's type; quotes and exponents are fine.
        {"reverb_time=1e1:delay=\"20\":dry_gain=\"2.5\":slpf_freq=000440", "",
         R"({"reverberationTime":10,"dryGain":2.5,"delay":20,"slpfFrequency":440})"},
        {"reverb_time=abc", notANumber("abc", "reverb_time"), "{}"},
        {"wet_gain=1,5", notANumber("1,5", "wet_gain"), "{}"},
        {"delay=1.5", notANumber("1.5", "delay"), "{}"},
        // A fixed order whatever the string's; keys ahead of a failing one stay.
        {"noise_color=p:delay=9:wet_gain=11:dry_gain=2:reverb_time=3", kWet, R"({"reverberationTime":3,"dryGain":2})"},
        {"fade_func=tri:slpf_freq=x:delay=9:reverb_time=4", notANumber("x", "slpf_freq"),
         R"({"reverberationTime":4,"delay":9})"},
        {"noise_color=x:fade_func=exp:delay=9", kNoiseColor, R"({"delay":9,"fadeFunction":1})"},
        {"slpf_func=bad:noise_color=p:fade_func=exp", kChangeFunction, R"({"fadeFunction":1})"},
        // Both function keys fill the fade function, the filter's last: saved projects depend on it.
        {"slpf_func=cub:fade_func=exp", "", R"({"fadeFunction":3})"},
    };
    // Three letters, case-sensitive; "sin" reads as the value written "hsin", which does not read.
    const char* functions[] = {"tri", "exp", "qua", "cub", "sin"};
    for (int value = 0; value < 5; ++value) {
        const std::string changed = R"({"fadeFunction":)" + std::to_string(value) + "}";
        rows.push_back({std::string("fade_func=") + functions[value], "", changed});
        rows.push_back({std::string("slpf_func=\"") + functions[value] + "\"", "", changed});
    }
    for (const char* bad : {"hsin", "SIN", "Exp", "tr", "trii", "\"sin \"", "1"}) {
        rows.push_back({std::string("fade_func=") + bad, kChangeFunction, "{}"});
        rows.push_back({std::string("slpf_func=") + bad, kChangeFunction, "{}"});
    }
    // Six noise colour spellings, case-sensitive.
    const std::pair<const char*, int> colours[] = {{"white", 0}, {"w", 0},     {"pink", 1},
                                                   {"p", 1},     {"brown", 2}, {"b", 2}};
    for (const auto& [text, value] : colours) {
        const std::string changed = R"({"noiseColor":)" + std::to_string(value) + "}";
        rows.push_back({std::string("noise_color=") + text, "", changed});
        rows.push_back({std::string("noise_color=\"") + text + "\"", "", changed});
    }
    for (const char* bad : {"W", "P", "B", "White", "PINK", "0", "red", "wh", "\"brown \""}) {
        rows.push_back({std::string("noise_color=") + bad, kNoiseColor, "{}"});
    }
    CheckParses(Start(), rows, Outcome);
}

TEST(Reverberation, StreamTextsAndComparison)
{
    using ChangeFunction = Ir::ChangeFunction;
    using NoiseColor = Ir::NoiseColor;
    EXPECT_EQ(Written<ChangeFunction>({0, 1, 2, 3, 4}), "triexpquacubhsin");
    EXPECT_EQ(Written<NoiseColor>({0, 1, 2}), "whitepinkbrown");
    EXPECT_EQ(Written<ChangeFunction>({5, 7, -1}) + Written<NoiseColor>({3, 7, -1}), "");
    // The impulse response compares every field exactly.
    const Ir start = Start();
    for (const char* step :
         {"reverb_time=2.5000000000000004", "dry_gain=0.5000000000000001", "wet_gain=3.0000000000000004", "delay=18",
          "slpf_freq=4001", "fade_func=tri", "noise_color=w"}) {
        Ir changed = start;
        changed.Deserialize(step);
        EXPECT_FALSE(changed.IsEqualTo(start) || start.IsEqualTo(changed) || !(changed != start)) << step;
    }
    Ir filter = start;
    filter.SetSlpfFunction(Ir::ChangeFunction::Tri);
    EXPECT_FALSE(filter.IsEqualTo(start));
    Ir zero = start;
    zero.SetWetGain(0.0);
    Ir minusZero = start;
    minusZero.SetWetGain(-0.0);
    EXPECT_TRUE(zero.IsEqualTo(minusZero) && start.IsEqualTo(Ir(start)));
    zero.SetDryGain(std::nan(""));
    EXPECT_FALSE(zero.IsEqualTo(zero));
    EXPECT_EQ(Outcome([&] { (void)start.IsEqualTo(SettingsAudioReverb()); }), typeid(std::bad_cast).name());
}
