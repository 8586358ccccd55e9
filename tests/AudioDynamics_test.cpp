// Compressor and gate keep two conventions side by side, which saved projects rely on.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <sstream>
#include <typeinfo>

#include "Proc/Settings/SettingsAudioCompressor.h"
#include "Proc/Settings/SettingsAudioGate.h"
#include "Proc/Settings/SettingsAudioNoiseGate.h"
#include "RecordSupport.h"

using namespace Zorvan::Proc;
using Compressor = SettingsAudioCompressor;
using Gate = SettingsAudioGate;
using NoiseGate = SettingsAudioNoiseGate;
using Json = nlohmann::ordered_json;
using ZorvanTest::Bounds;
using ZorvanTest::CheckBounds;
using ZorvanTest::CheckParses;
using ZorvanTest::Fields;
using ZorvanTest::Outcome;
using ZorvanTest::Parse;
using ZorvanTest::Written;

namespace {

const std::string kBadArgument = typeid(std::invalid_argument).name();
const char* const kIntensity = "Intensity should be in range from 0.f to 1.f";

} // namespace

TEST(Dynamics, SetterBounds)
{
    static_assert(Compressor::LEVELIN_MIN_VALUE == 0.015625F && Compressor::LEVELIN_MAX_VALUE == 64.0F);
    using C = Compressor;
    CheckBounds<C>({
        {"levelIn", &C::SetLevelIn, &C::GetLevelIn, 0, 64, "Invalid levelIn!"},
        {"ratio", &C::SetRatio, &C::GetRatio, 1, 20, "Invalid ratio!"},
        {"attack", &C::SetAttack, &C::GetAttack, 0.01, 2000, "Invalid attack!"},
        {"release", &C::SetRelease, &C::GetRelease, 0.01, 9000, "Invalid release!"},
        {"makeup", &C::SetMakeup, &C::GetMakeup, 1, 64, "Invalid makeup!"},
        {"knee", &C::SetKnee, &C::GetKnee, 1, 8, "Invalid knee!"},
        {"intensity", &C::SetIntensity, &C::GetIntensity, 0, 1, "Invalid intensity!"},
    });
    // The attack's message names an upper bound of 1, the check's is 9000; the wording stays as released.
    CheckBounds<Gate>({
        {"level_in", &Gate::SetLevelIn, &Gate::GetLevelIn, 0, 64, "Level_in should be in range from 0.015625f to 64.f"},
        {"range", &Gate::SetRange, &Gate::GetRangeIntensity, 0, 1, "Range should be in range from 0.f to 1.f"},
        {"intensity", &Gate::SetIntensity, &Gate::GetRangeIntensity, 0, 1, kIntensity},
        {"threshold", &Gate::SetThreshold, &Gate::GetThreshold, 0, 1, "Threshold should be in range from 0.f to 1.f"},
        {"ratio", &Gate::SetRatio, &Gate::GetRatio, 1, 9000, "Ratio should be in range from 1.f to 9000.f"},
        {"attack", &Gate::SetAttackMs, &Gate::GetAttackMs, 0.01, 9000, "Attack should be in range from 0.01f to 1.f"},
        {"release", &Gate::SetReleaseMs, &Gate::GetReleaseMs, 0.01, 9000,
         "Release should be in range from 0.01f to 9000.f"},
        {"makeup", &Gate::SetMakeup, &Gate::GetMakeup, 1, 64, "Makeup should be in range from 1.f to 64.f"},
        {"knee", &Gate::SetKnee, &Gate::GetKnee, 1, 8, "Knee should be in range from 1.f to 8.f"},
    });
    CheckBounds<NoiseGate>({{"intensity", &NoiseGate::SetIntensity, &NoiseGate::GetIntensity, 0, 1, kIntensity}});
    Compressor compressor;
    // An input level accepted below the floor is lifted to it, in both classes.
    Gate gate;
    const float floor = Compressor::LEVELIN_MIN_VALUE;
    for (const float value : {0.0F, -0.0F, 0.01F, std::nextafter(floor, 0.0F), std::nextafter(floor, 1.0F)}) {
        compressor.SetLevelIn(value);
        gate.SetLevelIn(value);
        EXPECT_TRUE(compressor.GetLevelIn() == std::max(value, floor) && gate.GetLevelIn() == std::max(value, floor));
    }
    // The compressor's threshold floor is the decimal 0.000976563, which lifts 2^-10 too.
    for (const double value : {0.0, 0.0009765625, 0.000976563, std::nextafter(0.000976563, 1.0)}) {
        compressor.SetThreshold(value);
        EXPECT_EQ(compressor.GetThreshold(), std::max(value, 0.000976563)) << value;
    }
    compressor.SetThreshold(std::nan(""));
    EXPECT_TRUE(std::isnan(compressor.GetThreshold()));
}

TEST(Dynamics, Options)
{
    Compressor start;
    start.Deserialize("ratio=4:intensity=0.5:detection=1:link=1");
    const std::vector<Parse> rows{
        // The threshold is read as a float, then widened; the gate's spellings are unknown keys.
        {"levelIn=2:threshold=0.3:ratio=8:attack=10:release=0.5:makeup=2:knee=3:intensity=0:detection=0:link=0", "",
         R"({"levelIn":2,"threshold":0.30000001192092896,"ratio":8,"attack":10,"release":0.5,"makeup":2,"knee":3,)"
         R"("link":0,"detection":0,"intensity":0})"},
        {"level_in=2:range=0.5:levelIn=0:threshold=0", "", R"({"levelIn":0.015625,"threshold":0.000976563})"},
        {"threshold=1.0000001", "EffectException: Invalid threshold!", "{}"},
        {"threshold=-0.0000001", "EffectException: Invalid threshold!", "{}"},
        // A fixed order, intensity before detection and link; keys ahead of a failing one stay.
        {"attack=10:ratio=21:threshold=0.5:levelIn=2", "EffectException: Invalid ratio!",
         R"({"levelIn":2,"threshold":0.5})"},
        {"link=0:intensity=2", "EffectException: Invalid intensity!", "{}"},
        {"link=0:detection=2:knee=2", "EffectException: Unknown value of detection type", R"({"knee":2})"},
        {"link=5:detection=0", "EffectException: Unknown value of link type", R"({"detection":0})"},
        // Detector and link are the numbers 0 and 1; an unquoted word is no option.
        {"detection=rms:link=average", "", "{}"},
    };
    CheckParses(start, rows);
    Gate gate;
    gate.Deserialize("ratio=4:intensity=0.5");
    gate.SetDetection(Gate::DetectionType::Peak);
    gate.SetLink(Gate::LinkType::Maximum);
    const std::vector<Parse> gates{
        {"level_in=2:threshold=0:ratio=21:attack=5:release=0.5:makeup=2:knee=3:range=0.25:levelIn=3", "",
         R"({"levelIn":2,"rangeIntensity":0.75,"threshold":0,"ratio":21,"attackMs":5,"releaseMs":0.5,)"
         R"("makeup":2,"knee":3})"},
        // A fixed order, range before intensity; keys ahead of a failing one stay.
        {"intensity=0.25:range=0.25", "", R"({"rangeIntensity":0.25})"},
        {"intensity=0.75:range=1.5", "EffectException: Range should be in range from 0.f to 1.f", "{}"},
        {"detection=1:knee=9:threshold=0.5:level_in=2", "EffectException: Knee should be in range from 1.f to 8.f",
         R"({"levelIn":2,"threshold":0.5})"},
        {"link=1:detection=1:makeup=2", "EffectException: Unknown value of detection type", R"({"makeup":2})"},
        {"link=1:detection=rms:knee=2", "EffectException: Unknown value of link type", R"({"knee":2})"},
        // Detector and link are compared with the map's text, quotes kept: no string selects them.
        {"detection=rms:link=average", "", "{}"},
        {"detection=\"rms\"", "EffectException: Unknown value of detection type", "{}"},
        {"detection=0", "EffectException: Unknown value of detection type", "{}"},
    };
    CheckParses(gate, gates);
    NoiseGate noiseGate;
    noiseGate.Deserialize("soft_knee=7:intensity=0.5");
    // Four doubles by std::stod, stored unchecked; the intensity last, through its setter.
    const std::vector<Parse> noiseGates{
        {"threshold=-5:attack=100000:decay=-0.5:soft_knee=0.1:intensity=0.25:softKnee=3", "",
         R"({"threshold":-5,"attack":100000,"decay":-0.5,"softKnee":0.1,"intensity":0.25})"},
        {"intensity=1.5:threshold=3:attack=4:decay=5:soft_knee=6", std::string("EffectException: ") + kIntensity,
         R"({"threshold":3,"attack":4,"decay":5,"softKnee":6})"},
        {"decay=\"1\":threshold=7:attack=8:soft_knee=9", kBadArgument, R"({"threshold":7,"attack":8})"},
    };
    CheckParses(noiseGate, noiseGates);
}

TEST(Dynamics, StreamTextsAndComparison)
{
    EXPECT_EQ(Written<Compressor::DetectionType>({0, 1, 2}), "rmspeakEffectException: Unknown detection type");
    EXPECT_EQ(Written<Gate::DetectionType>({0, 1, -1}), "rmspeakEffectException: Unknown detection type");
    EXPECT_EQ(Written<Compressor::LinkType>({0, 1, -1}), "averagemaximumEffectException: Unknown link type");
    EXPECT_EQ(Written<Gate::LinkType>({0, 1, 2}), "averagemaximumEffectException: Unknown link type");
    // Gate and noise gate compare every field exactly.
    Gate gate;
    gate.Deserialize("intensity=0.5:threshold=0.5");
    for (const char* step : {"level_in=1.0000001", "intensity=0.50000006", "threshold=0.50000006", "ratio=1.0000001",
                             "attack=20.000002", "release=250.00002", "makeup=1.0000001", "knee=1.0000001"}) {
        Gate changed = gate;
        changed.Deserialize(step);
        EXPECT_FALSE(changed.IsEqualTo(gate) || gate.IsEqualTo(changed) || changed == gate) << step;
    }
    Gate peak = gate;
    peak.SetDetection(Gate::DetectionType::Peak);
    Gate maximum = gate;
    maximum.SetLink(Gate::LinkType::Maximum);
    EXPECT_FALSE(peak.IsEqualTo(gate) || maximum.IsEqualTo(gate));
    NoiseGate noiseGate;
    noiseGate.Deserialize("threshold=0.5:attack=0.5:decay=0.5:soft_knee=0.5:intensity=0.5");
    for (const char* step : {"threshold=0.5000000000000001", "attack=0.5000000000000001", "decay=0.5000000000000001",
                             "soft_knee=0.5000000000000001", "intensity=0.50000006"}) {
        NoiseGate changed = noiseGate;
        changed.Deserialize(step);
        EXPECT_FALSE(changed.IsEqualTo(noiseGate) || noiseGate.IsEqualTo(changed) || changed == noiseGate) << step;
    }
    // A not-a-number differs from itself; a foreign class is a bad cast.
    gate.SetKnee(std::numeric_limits<float>::quiet_NaN());
    EXPECT_FALSE(gate.IsEqualTo(gate));
    EXPECT_EQ(Outcome([] { (void)Gate().IsEqualTo(Compressor()); }), typeid(std::bad_cast).name());
    EXPECT_EQ(Outcome([] { (void)NoiseGate().IsEqualTo(Gate()); }), typeid(std::bad_cast).name());
}
