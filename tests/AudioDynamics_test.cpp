// Part 4.1: dynamics. SettingsAudioCompressor, SettingsAudioGate and SettingsAudioNoiseGate:
// setters and their bounds, Deserialize (keys, order, conversions, failures), the stream
// operators, equality and the catalogue fields. The compressor and the gate follow two
// different conventions on purpose; each test pins its own class's convention.
#include <gtest/gtest.h>

#include <cmath>
#include <concepts>
#include <cstdint>
#include <functional>
#include <limits>
#include <sstream>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <vector>

#include "Proc/Settings/SettingsAudioCompressor.h"
#include "Proc/Settings/SettingsAudioGate.h"
#include "Proc/Settings/SettingsAudioNoiseGate.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormADescription;

namespace {

using Compressor = SettingsAudioCompressor;
using Gate = SettingsAudioGate;
using NoiseGate = SettingsAudioNoiseGate;

constexpr float kInf = std::numeric_limits<float>::infinity();

float Below(float value)
{
    return std::nextafter(value, -kInf);
}

float Above(float value)
{
    return std::nextafter(value, kInf);
}

// One checked float setter: the inclusive bounds, the stored value at the lower bound, the
// message; a fresh record per row.
template <class C>
struct FloatSetterCase {
    const char* name;
    std::function<void(C&, float)> set;
    std::function<float(const C&)> get;
    float low;
    float high;
    float storedAtLow;
    const char* message;
};

template <class C>
void CheckFloatSetter(const FloatSetterCase<C>& row)
{
    SCOPED_TRACE(row.name);
    C record;
    row.set(record, row.low);
    EXPECT_EQ(row.get(record), row.storedAtLow);
    row.set(record, row.high);
    EXPECT_EQ(row.get(record), row.high);
    // Just outside: the exact class and message, and the field keeps the last accepted value.
    EXPECT_EQ(FormADescription<EffectException>([&] { row.set(record, Below(row.low)); }), row.message);
    EXPECT_EQ(row.get(record), row.high);
    EXPECT_EQ(FormADescription<EffectException>([&] { row.set(record, Above(row.high)); }), row.message);
    EXPECT_EQ(row.get(record), row.high);
    EXPECT_EQ(FormADescription<EffectException>([&] { row.set(record, -kInf); }), row.message);
    EXPECT_EQ(FormADescription<EffectException>([&] { row.set(record, kInf); }), row.message);
    // A not-a-number compares outside nothing: it passes and is stored.
    row.set(record, std::nanf(""));
    EXPECT_TRUE(std::isnan(row.get(record)));
}

} // namespace

// ---------------------------------------------------------------- identity and constants

TEST(Dynamics, ClassIdentifiers)
{
    EXPECT_EQ(Compressor::CLASS_ID, "SettingsAudioCompressor");
    EXPECT_EQ(Gate::CLASS_ID, "SettingsAudioGate");
    EXPECT_EQ(NoiseGate::CLASS_ID, "SettingsAudioNoiseGate");
    EXPECT_EQ(&Compressor().GetClassId(), &Compressor::CLASS_ID);
    EXPECT_EQ(&Gate().GetClassId(), &Gate::CLASS_ID);
    EXPECT_EQ(&NoiseGate().GetClassId(), &NoiseGate::CLASS_ID);
}

TEST(Dynamics, CompressorLevelInConstants)
{
    static_assert(std::is_same_v<decltype(Compressor::LEVELIN_MIN_VALUE), const float>);
    static_assert(std::is_same_v<decltype(Compressor::LEVELIN_MAX_VALUE), const float>);
    EXPECT_EQ(Compressor::LEVELIN_MIN_VALUE, 0.015625F);
    EXPECT_EQ(Compressor::LEVELIN_MAX_VALUE, 64.0F);
}

TEST(Dynamics, EnumerationsAreThirtyTwoBitsWithTheSpecValues)
{
    static_assert(sizeof(Compressor::DetectionType) == 4 && sizeof(Compressor::LinkType) == 4);
    static_assert(sizeof(Gate::DetectionType) == 4 && sizeof(Gate::LinkType) == 4);
    static_assert(!std::is_same_v<Compressor::DetectionType, Gate::DetectionType>);
    EXPECT_EQ(static_cast<std::int32_t>(Compressor::DetectionType::Rms), 0);
    EXPECT_EQ(static_cast<std::int32_t>(Compressor::DetectionType::Peak), 1);
    EXPECT_EQ(static_cast<std::int32_t>(Compressor::LinkType::Average), 0);
    EXPECT_EQ(static_cast<std::int32_t>(Compressor::LinkType::Maximum), 1);
    EXPECT_EQ(static_cast<std::int32_t>(Gate::DetectionType::Rms), 0);
    EXPECT_EQ(static_cast<std::int32_t>(Gate::DetectionType::Peak), 1);
    EXPECT_EQ(static_cast<std::int32_t>(Gate::LinkType::Average), 0);
    EXPECT_EQ(static_cast<std::int32_t>(Gate::LinkType::Maximum), 1);
}

TEST(Dynamics, DefaultsAreNeutralAndValid)
{
    const Compressor compressor;
    EXPECT_EQ(compressor.GetLevelIn(), 1.0F);
    EXPECT_EQ(compressor.GetThreshold(), 1.0);
    EXPECT_EQ(compressor.GetRatio(), 1.0F);
    EXPECT_EQ(compressor.GetMakeup(), 1.0F);
    EXPECT_EQ(compressor.GetIntensity(), 0.0F);
    EXPECT_EQ(compressor.GetDetection(), Compressor::DetectionType::Rms);
    EXPECT_EQ(compressor.GetLink(), Compressor::LinkType::Average);
    const Gate gate;
    EXPECT_EQ(gate.GetLevelIn(), 1.0F);
    EXPECT_EQ(gate.GetRangeIntensity(), 0.0F);
    EXPECT_EQ(gate.GetRatio(), 1.0F);
    EXPECT_EQ(gate.GetDetection(), Gate::DetectionType::Rms);
    EXPECT_EQ(gate.GetLink(), Gate::LinkType::Average);
    const NoiseGate noiseGate;
    EXPECT_EQ(noiseGate.GetIntensity(), 0.0F);
}

// ---------------------------------------------------------------- compressor setters

TEST(CompressorSetters, EveryCheckedSetterAtAndOutsideItsBounds)
{
    const std::vector<FloatSetterCase<Compressor>> rows = {
        {"levelIn", &Compressor::SetLevelIn, &Compressor::GetLevelIn, 0.0F, 64.0F, 0.015625F, "Invalid levelIn!"},
        {"ratio", &Compressor::SetRatio, &Compressor::GetRatio, 1.0F, 20.0F, 1.0F, "Invalid ratio!"},
        {"attack", &Compressor::SetAttack, &Compressor::GetAttack, 0.01F, 2000.0F, 0.01F, "Invalid attack!"},
        {"release", &Compressor::SetRelease, &Compressor::GetRelease, 0.01F, 9000.0F, 0.01F, "Invalid release!"},
        {"makeup", &Compressor::SetMakeup, &Compressor::GetMakeup, 1.0F, 64.0F, 1.0F, "Invalid makeup!"},
        {"knee", &Compressor::SetKnee, &Compressor::GetKnee, 1.0F, 8.0F, 1.0F, "Invalid knee!"},
        {"intensity", &Compressor::SetIntensity, &Compressor::GetIntensity, 0.0F, 1.0F, 0.0F, "Invalid intensity!"},
    };
    for (const auto& row : rows) {
        CheckFloatSetter(row);
    }
}

TEST(CompressorSetters, LevelInZeroIsRaisedAndBelowZeroFails)
{
    Compressor compressor;
    compressor.SetLevelIn(0.0F);
    EXPECT_EQ(compressor.GetLevelIn(), 0.015625F);
    compressor.SetLevelIn(2.0F);
    EXPECT_EQ(FormADescription<EffectException>([&] { compressor.SetLevelIn(-0.001F); }), "Invalid levelIn!");
    EXPECT_EQ(compressor.GetLevelIn(), 2.0F);
    compressor.SetLevelIn(0.01F); // accepted, below the minimum: raised silently
    EXPECT_EQ(compressor.GetLevelIn(), 0.015625F);
    compressor.SetLevelIn(Below(0.015625F));
    EXPECT_EQ(compressor.GetLevelIn(), 0.015625F);
    compressor.SetLevelIn(Above(0.015625F)); // above the minimum: kept as it is
    EXPECT_EQ(compressor.GetLevelIn(), Above(0.015625F));
    compressor.SetLevelIn(-0.0F); // compares equal to 0: accepted and raised
    EXPECT_EQ(compressor.GetLevelIn(), 0.015625F);
}

TEST(CompressorSetters, ThresholdZeroIsRaisedToTheSpecText)
{
    Compressor compressor;
    compressor.SetThreshold(0.0);
    EXPECT_EQ(compressor.GetThreshold(), 0.000976563);
    EXPECT_NE(compressor.GetThreshold(), 1.0 / 1024.0); // the text of the Part, not 2^-10
    compressor.SetThreshold(0.0009765625);              // 2^-10 lies below 0.000976563: raised
    EXPECT_EQ(compressor.GetThreshold(), 0.000976563);
    compressor.SetThreshold(0.001);
    EXPECT_EQ(compressor.GetThreshold(), 0.001);
    compressor.SetThreshold(1.0);
    EXPECT_EQ(compressor.GetThreshold(), 1.0);
    const double justAbove = std::nextafter(1.0, 2.0);
    EXPECT_EQ(FormADescription<EffectException>([&] { compressor.SetThreshold(justAbove); }), "Invalid threshold!");
    const double justBelow = -std::numeric_limits<double>::denorm_min();
    EXPECT_EQ(FormADescription<EffectException>([&] { compressor.SetThreshold(justBelow); }), "Invalid threshold!");
    EXPECT_EQ(compressor.GetThreshold(), 1.0);
    compressor.SetThreshold(std::nan(""));
    EXPECT_TRUE(std::isnan(compressor.GetThreshold()));
}

TEST(CompressorSetters, RatioTwentyOneFails)
{
    Compressor compressor;
    EXPECT_EQ(FormADescription<EffectException>([&] { compressor.SetRatio(21.0F); }), "Invalid ratio!");
    EXPECT_EQ(compressor.GetRatio(), 1.0F);
}

// ---------------------------------------------------------------- gate setters

TEST(GateSetters, EveryCheckedSetterAtAndOutsideItsBounds)
{
    const std::vector<FloatSetterCase<Gate>> rows = {
        {"levelIn", &Gate::SetLevelIn, &Gate::GetLevelIn, 0.0F, 64.0F, 0.015625F,
         "Level_in should be in range from 0.015625f to 64.f"},
        {"intensity", &Gate::SetIntensity, &Gate::GetRangeIntensity, 0.0F, 1.0F, 0.0F,
         "Intensity should be in range from 0.f to 1.f"},
        {"threshold", &Gate::SetThreshold, &Gate::GetThreshold, 0.0F, 1.0F, 0.0F,
         "Threshold should be in range from 0.f to 1.f"},
        {"ratio", &Gate::SetRatio, &Gate::GetRatio, 1.0F, 9000.0F, 1.0F, "Ratio should be in range from 1.f to 9000.f"},
        {"attackMs", &Gate::SetAttackMs, &Gate::GetAttackMs, 0.01F, 9000.0F, 0.01F,
         "Attack should be in range from 0.01f to 1.f"},
        {"releaseMs", &Gate::SetReleaseMs, &Gate::GetReleaseMs, 0.01F, 9000.0F, 0.01F,
         "Release should be in range from 0.01f to 9000.f"},
        {"makeup", &Gate::SetMakeup, &Gate::GetMakeup, 1.0F, 64.0F, 1.0F, "Makeup should be in range from 1.f to 64.f"},
        {"knee", &Gate::SetKnee, &Gate::GetKnee, 1.0F, 8.0F, 1.0F, "Knee should be in range from 1.f to 8.f"},
    };
    for (const auto& row : rows) {
        CheckFloatSetter(row);
    }
}

TEST(GateSetters, RangeStoresOneMinusTheValueAndChecksItsBounds)
{
    Gate gate;
    gate.SetRange(0.0F);
    EXPECT_EQ(gate.GetRangeIntensity(), 1.0F);
    gate.SetRange(1.0F);
    EXPECT_EQ(gate.GetRangeIntensity(), 0.0F);
    gate.SetRange(0.3F);
    EXPECT_EQ(gate.GetRangeIntensity(), 1.0F - 0.3F);
    EXPECT_EQ(FormADescription<EffectException>([&] { gate.SetRange(Below(0.0F)); }),
              "Range should be in range from 0.f to 1.f");
    EXPECT_EQ(FormADescription<EffectException>([&] { gate.SetRange(Above(1.0F)); }),
              "Range should be in range from 0.f to 1.f");
    EXPECT_EQ(gate.GetRangeIntensity(), 1.0F - 0.3F);
    gate.SetRange(std::nanf(""));
    EXPECT_TRUE(std::isnan(gate.GetRangeIntensity()));
}

TEST(GateSetters, RangeThenIntensityShareOneField)
{
    Gate gate;
    gate.SetRange(0.25F);
    EXPECT_EQ(gate.GetRangeIntensity(), 0.75F);
    gate.SetIntensity(0.25F);
    EXPECT_EQ(gate.GetRangeIntensity(), 0.25F);
}

TEST(GateSetters, ThresholdZeroIsStoredAsZero)
{
    Gate gate;
    gate.SetThreshold(0.5F);
    gate.SetThreshold(0.0F);
    EXPECT_EQ(gate.GetThreshold(), 0.0F);
    static_assert(std::is_same_v<decltype(gate.GetThreshold()), float>);
    static_assert(std::is_same_v<decltype(Compressor().GetThreshold()), double>);
}

TEST(GateSetters, AttackAcceptsFiveDespiteItsMessage)
{
    Gate gate;
    gate.SetAttackMs(5.0F);
    EXPECT_EQ(gate.GetAttackMs(), 5.0F);
    EXPECT_EQ(FormADescription<EffectException>([&] { gate.SetAttackMs(9000.5F); }),
              "Attack should be in range from 0.01f to 1.f");
    EXPECT_EQ(gate.GetAttackMs(), 5.0F);
}

TEST(GateSetters, RatioTwentyOneIsAccepted)
{
    Gate gate;
    gate.SetRatio(21.0F);
    EXPECT_EQ(gate.GetRatio(), 21.0F);
}

TEST(GateSetters, LevelInBelowTheNamedBoundIsLifted)
{
    Gate gate;
    gate.SetLevelIn(0.0F);
    EXPECT_EQ(gate.GetLevelIn(), 0.015625F);
    gate.SetLevelIn(0.01F);
    EXPECT_EQ(gate.GetLevelIn(), 0.015625F);
    gate.SetLevelIn(Above(0.015625F));
    EXPECT_EQ(gate.GetLevelIn(), Above(0.015625F));
}

// ---------------------------------------------------------------- noise gate setters

TEST(NoiseGateSetters, IntensityAtAndOutsideItsBounds)
{
    const FloatSetterCase<NoiseGate> row = {"intensity",
                                            &NoiseGate::SetIntensity,
                                            &NoiseGate::GetIntensity,
                                            0.0F,
                                            1.0F,
                                            0.0F,
                                            "Intensity should be in range from 0.f to 1.f"};
    CheckFloatSetter(row);
}

// ---------------------------------------------------------------- compressor Deserialize

TEST(CompressorDeserialize, EmptyStringChangesNothing)
{
    Compressor compressor;
    compressor.SetRatio(4.0F);
    compressor.Deserialize("");
    EXPECT_EQ(compressor.GetRatio(), 4.0F);
}

TEST(CompressorDeserialize, EveryKeyThroughItsSetter)
{
    Compressor compressor;
    compressor.Deserialize("levelIn=2:threshold=0.3:ratio=4:attack=10:release=100.5:makeup=2:knee=3:intensity=0.5:"
                           "detection=1:link=1");
    EXPECT_EQ(compressor.GetLevelIn(), 2.0F);
    // Converted to float first, then widened: not the double nearest 0.3.
    EXPECT_EQ(compressor.GetThreshold(), static_cast<double>(0.3F));
    EXPECT_NE(compressor.GetThreshold(), 0.3);
    EXPECT_EQ(compressor.GetRatio(), 4.0F);
    EXPECT_EQ(compressor.GetAttack(), 10.0F);
    EXPECT_EQ(compressor.GetRelease(), 100.5F);
    EXPECT_EQ(compressor.GetMakeup(), 2.0F);
    EXPECT_EQ(compressor.GetKnee(), 3.0F);
    EXPECT_EQ(compressor.GetIntensity(), 0.5F);
    EXPECT_EQ(compressor.GetDetection(), Compressor::DetectionType::Peak);
    EXPECT_EQ(compressor.GetLink(), Compressor::LinkType::Maximum);
    compressor.Deserialize("detection=0:link=0");
    EXPECT_EQ(compressor.GetDetection(), Compressor::DetectionType::Rms);
    EXPECT_EQ(compressor.GetLink(), Compressor::LinkType::Average);
}

TEST(CompressorDeserialize, SetterBoundsApplyToOptions)
{
    Compressor compressor;
    compressor.Deserialize("levelIn=0:threshold=0");
    EXPECT_EQ(compressor.GetLevelIn(), 0.015625F);
    EXPECT_EQ(compressor.GetThreshold(), 0.000976563);
    EXPECT_EQ(FormADescription<EffectException>([&] { compressor.Deserialize("levelIn=-0.5"); }), "Invalid levelIn!");
    EXPECT_EQ(FormADescription<EffectException>([&] { compressor.Deserialize("threshold=1.5"); }),
              "Invalid threshold!");
    EXPECT_EQ(FormADescription<EffectException>([&] { compressor.Deserialize("ratio=21"); }), "Invalid ratio!");
    EXPECT_EQ(FormADescription<EffectException>([&] { compressor.Deserialize("attack=2000.5"); }), "Invalid attack!");
    EXPECT_EQ(FormADescription<EffectException>([&] { compressor.Deserialize("release=9001"); }), "Invalid release!");
    EXPECT_EQ(FormADescription<EffectException>([&] { compressor.Deserialize("makeup=0,5"); }), "Invalid makeup!");
    EXPECT_EQ(FormADescription<EffectException>([&] { compressor.Deserialize("knee=9"); }), "Invalid knee!");
    EXPECT_EQ(FormADescription<EffectException>([&] { compressor.Deserialize("intensity=1.01"); }),
              "Invalid intensity!");
}

TEST(CompressorDeserialize, KeysAreAppliedInTheTableOrderAndAFailureKeepsEarlierKeys)
{
    // ratio (3) fails: levelIn (1) and threshold (2) stay applied, attack (4) is not applied,
    // whatever the order in the string.
    Compressor compressor;
    EXPECT_EQ(FormADescription<EffectException>(
                  [&] { compressor.Deserialize("attack=10:ratio=21:threshold=0.5:levelIn=2"); }),
              "Invalid ratio!");
    EXPECT_EQ(compressor.GetLevelIn(), 2.0F);
    EXPECT_EQ(compressor.GetThreshold(), 0.5);
    EXPECT_EQ(compressor.GetAttack(), 20.0F);

    // intensity (8) comes before detection (9) and link (10), unlike the key list.
    Compressor second;
    EXPECT_EQ(FormADescription<EffectException>([&] { second.Deserialize("link=1:intensity=2"); }),
              "Invalid intensity!");
    EXPECT_EQ(second.GetLink(), Compressor::LinkType::Average);

    Compressor third;
    EXPECT_EQ(FormADescription<EffectException>([&] { third.Deserialize("link=1:detection=2:intensity=0.5:knee=2"); }),
              "Unknown value of detection type");
    EXPECT_EQ(third.GetKnee(), 2.0F);
    EXPECT_EQ(third.GetIntensity(), 0.5F);
    EXPECT_EQ(third.GetDetection(), Compressor::DetectionType::Rms);
    EXPECT_EQ(third.GetLink(), Compressor::LinkType::Average);

    Compressor fourth;
    EXPECT_EQ(FormADescription<EffectException>([&] { fourth.Deserialize("link=5:detection=1"); }),
              "Unknown value of link type");
    EXPECT_EQ(fourth.GetDetection(), Compressor::DetectionType::Peak);
    EXPECT_EQ(fourth.GetLink(), Compressor::LinkType::Average);
}

TEST(CompressorDeserialize, DetectionTwoFailsUnquotedWordIsNoOptionQuotedWordFailsConversion)
{
    Compressor compressor;
    compressor.SetDetection(Compressor::DetectionType::Peak);
    EXPECT_EQ(FormADescription<EffectException>([&] { compressor.Deserialize("detection=2"); }),
              "Unknown value of detection type");
    EXPECT_EQ(FormADescription<EffectException>([&] { compressor.Deserialize("detection=-1"); }),
              "Unknown value of detection type");
    EXPECT_EQ(compressor.GetDetection(), Compressor::DetectionType::Peak);
    compressor.Deserialize("detection=rms");
    EXPECT_EQ(compressor.GetDetection(), Compressor::DetectionType::Peak);
    EXPECT_THROW(compressor.Deserialize("detection=\"rms\""), std::invalid_argument);
    EXPECT_THROW(compressor.Deserialize("detection=\"0\""), std::invalid_argument);
    EXPECT_EQ(compressor.GetDetection(), Compressor::DetectionType::Peak);
    // std::stoi reads the longest prefix: 0,9 and 0.9 are 0.
    compressor.Deserialize("detection=0,9");
    EXPECT_EQ(compressor.GetDetection(), Compressor::DetectionType::Rms);
    compressor.Deserialize("detection=1.9");
    EXPECT_EQ(compressor.GetDetection(), Compressor::DetectionType::Peak);
    EXPECT_THROW(compressor.Deserialize("detection=99999999999"), std::out_of_range);
}

TEST(CompressorDeserialize, LinkWordsAndNumbers)
{
    Compressor compressor;
    compressor.Deserialize("link=maximum");
    EXPECT_EQ(compressor.GetLink(), Compressor::LinkType::Average);
    EXPECT_THROW(compressor.Deserialize("link=\"maximum\""), std::invalid_argument);
    EXPECT_EQ(FormADescription<EffectException>([&] { compressor.Deserialize("link=2"); }),
              "Unknown value of link type");
    compressor.Deserialize("link=1");
    EXPECT_EQ(compressor.GetLink(), Compressor::LinkType::Maximum);
}

TEST(CompressorDeserialize, NumericValuePatternAndStandardConversion)
{
    Compressor compressor;
    compressor.Deserialize("levelIn=abc");
    EXPECT_EQ(compressor.GetLevelIn(), 1.0F);
    compressor.Deserialize("levelIn=+5");
    EXPECT_EQ(compressor.GetLevelIn(), 1.0F);
    compressor.Deserialize("levelIn=2abc");
    EXPECT_EQ(compressor.GetLevelIn(), 2.0F);
    compressor.Deserialize("levelIn=1e3"); // the pattern stops at the e: 1
    EXPECT_EQ(compressor.GetLevelIn(), 1.0F);
    compressor.Deserialize("levelIn=3,5"); // std::stof stops at the comma
    EXPECT_EQ(compressor.GetLevelIn(), 3.0F);
    compressor.Deserialize("levelIn=1.2.3");
    EXPECT_EQ(compressor.GetLevelIn(), 1.2F);
    compressor.Deserialize("LEVELIN=4:levelIn=5"); // case-insensitive key, first occurrence wins
    EXPECT_EQ(compressor.GetLevelIn(), 4.0F);
    EXPECT_THROW(compressor.Deserialize("levelIn=\"2\""), std::invalid_argument);
    EXPECT_THROW(compressor.Deserialize("levelIn=-"), std::invalid_argument);
    EXPECT_THROW(compressor.Deserialize("levelIn=" + std::string(50, '9')), std::out_of_range);
    EXPECT_EQ(compressor.GetLevelIn(), 4.0F);
}

TEST(CompressorDeserialize, KnowsOnlyItsOwnSpelling)
{
    Compressor compressor;
    compressor.Deserialize("level_in=2:range=0.5:unknown=3");
    EXPECT_EQ(compressor.GetLevelIn(), 1.0F);
    EXPECT_EQ(compressor.GetIntensity(), 0.0F);
    compressor.Deserialize("levelIn=2");
    EXPECT_EQ(compressor.GetLevelIn(), 2.0F);
}

// ---------------------------------------------------------------- gate Deserialize

TEST(GateDeserialize, EmptyStringChangesNothing)
{
    Gate gate;
    gate.SetRatio(4.0F);
    gate.Deserialize("");
    EXPECT_EQ(gate.GetRatio(), 4.0F);
}

TEST(GateDeserialize, EveryNumericKeyThroughItsSetter)
{
    Gate gate;
    gate.Deserialize("level_in=2:threshold=0.3:ratio=21:attack=5:release=100.5:makeup=2:knee=3:range=0.25");
    EXPECT_EQ(gate.GetLevelIn(), 2.0F);
    EXPECT_EQ(gate.GetThreshold(), 0.3F);
    EXPECT_EQ(gate.GetRatio(), 21.0F);
    EXPECT_EQ(gate.GetAttackMs(), 5.0F);
    EXPECT_EQ(gate.GetReleaseMs(), 100.5F);
    EXPECT_EQ(gate.GetMakeup(), 2.0F);
    EXPECT_EQ(gate.GetKnee(), 3.0F);
    EXPECT_EQ(gate.GetRangeIntensity(), 0.75F);
    gate.Deserialize("level_in=0");
    EXPECT_EQ(gate.GetLevelIn(), 0.015625F);
    // The key list is static: a second and third call read the same keys.
    gate.Deserialize("knee=4");
    EXPECT_EQ(gate.GetKnee(), 4.0F);
}

TEST(GateDeserialize, IntensityIsAppliedAfterRangeWhateverTheStringOrder)
{
    Gate gate;
    gate.Deserialize("intensity=0.25:range=0.25");
    EXPECT_EQ(gate.GetRangeIntensity(), 0.25F);
    gate.Deserialize("range=0.25");
    EXPECT_EQ(gate.GetRangeIntensity(), 0.75F);
    gate.Deserialize("intensity=0.5");
    EXPECT_EQ(gate.GetRangeIntensity(), 0.5F);
}

TEST(GateDeserialize, DetectionNumberAndQuotedWordFailUnquotedWordIsNoOption)
{
    Gate gate;
    gate.SetDetection(Gate::DetectionType::Peak);
    EXPECT_EQ(FormADescription<EffectException>([&] { gate.Deserialize("detection=1"); }),
              "Unknown value of detection type");
    EXPECT_EQ(FormADescription<EffectException>([&] { gate.Deserialize("detection=0"); }),
              "Unknown value of detection type");
    EXPECT_EQ(FormADescription<EffectException>([&] { gate.Deserialize("detection=\"rms\""); }),
              "Unknown value of detection type");
    EXPECT_EQ(FormADescription<EffectException>([&] { gate.Deserialize("detection=\"peak\""); }),
              "Unknown value of detection type");
    EXPECT_EQ(gate.GetDetection(), Gate::DetectionType::Peak);
    gate.Deserialize("detection=rms");
    EXPECT_EQ(gate.GetDetection(), Gate::DetectionType::Peak);
    // An empty quoted value is two quote characters in the map: not a spelling either.
    EXPECT_EQ(FormADescription<EffectException>([&] { gate.Deserialize("detection=\"\""); }),
              "Unknown value of detection type");
}

TEST(GateDeserialize, LinkNumberAndQuotedWordFailUnquotedWordIsNoOption)
{
    Gate gate;
    gate.SetLink(Gate::LinkType::Maximum);
    EXPECT_EQ(FormADescription<EffectException>([&] { gate.Deserialize("link=0"); }), "Unknown value of link type");
    EXPECT_EQ(FormADescription<EffectException>([&] { gate.Deserialize("link=\"average\""); }),
              "Unknown value of link type");
    EXPECT_EQ(FormADescription<EffectException>([&] { gate.Deserialize("link=\"maximum\""); }),
              "Unknown value of link type");
    gate.Deserialize("link=average");
    EXPECT_EQ(gate.GetLink(), Gate::LinkType::Maximum);
}

TEST(GateDeserialize, KeysAreAppliedInTheTableOrderAndAFailureKeepsEarlierKeys)
{
    // knee (9) fails: level_in (1) and threshold (4) stay, detection (10) is never reached.
    Gate gate;
    EXPECT_EQ(
        FormADescription<EffectException>([&] { gate.Deserialize("detection=1:knee=9:threshold=0.5:level_in=2"); }),
        "Knee should be in range from 1.f to 8.f");
    EXPECT_EQ(gate.GetLevelIn(), 2.0F);
    EXPECT_EQ(gate.GetThreshold(), 0.5F);

    // range (2) fails: intensity (3) is not applied.
    Gate second;
    second.SetIntensity(0.1F);
    EXPECT_EQ(FormADescription<EffectException>([&] { second.Deserialize("intensity=0.5:range=1.5"); }),
              "Range should be in range from 0.f to 1.f");
    EXPECT_EQ(second.GetRangeIntensity(), 0.1F);

    // detection (10) fails before link (11): the message is the detection's.
    Gate third;
    EXPECT_EQ(FormADescription<EffectException>([&] { third.Deserialize("link=1:detection=1:makeup=2"); }),
              "Unknown value of detection type");
    EXPECT_EQ(third.GetMakeup(), 2.0F);

    // An unquoted word is no option, so link is the one that fails.
    Gate fourth;
    EXPECT_EQ(FormADescription<EffectException>([&] { fourth.Deserialize("link=1:detection=rms:knee=2"); }),
              "Unknown value of link type");
    EXPECT_EQ(fourth.GetKnee(), 2.0F);

    // attack out of range fails with the setter's (wrong-bounded) message.
    Gate fifth;
    EXPECT_EQ(FormADescription<EffectException>([&] { fifth.Deserialize("attack=9000.5"); }),
              "Attack should be in range from 0.01f to 1.f");
}

TEST(GateDeserialize, NumericValuePatternAndStandardConversion)
{
    Gate gate;
    gate.Deserialize("ratio=abc");
    EXPECT_EQ(gate.GetRatio(), 1.0F);
    gate.Deserialize("ratio=12abc");
    EXPECT_EQ(gate.GetRatio(), 12.0F);
    gate.Deserialize("RATIO=13:ratio=14");
    EXPECT_EQ(gate.GetRatio(), 13.0F);
    EXPECT_THROW(gate.Deserialize("ratio=\"12\""), std::invalid_argument);
    EXPECT_EQ(gate.GetRatio(), 13.0F);
}

TEST(GateDeserialize, KnowsOnlyItsOwnSpelling)
{
    Gate gate;
    gate.Deserialize("levelIn=2:decay=3");
    EXPECT_EQ(gate.GetLevelIn(), 1.0F);
    gate.Deserialize("level_in=2");
    EXPECT_EQ(gate.GetLevelIn(), 2.0F);
}

// ---------------------------------------------------------------- noise gate Deserialize

TEST(NoiseGateDeserialize, DoublesStoredUncheckedIntensityThroughItsSetter)
{
    NoiseGate noiseGate;
    noiseGate.Deserialize("");
    EXPECT_EQ(noiseGate.GetThreshold(), 0.0);
    noiseGate.Deserialize("threshold=-5:attack=100000:decay=-0.5:soft_knee=0.1:intensity=0.1");
    EXPECT_EQ(noiseGate.GetThreshold(), -5.0);
    EXPECT_EQ(noiseGate.GetAttack(), 100000.0);
    EXPECT_EQ(noiseGate.GetDecay(), -0.5);
    EXPECT_EQ(noiseGate.GetSoftKnee(), 0.1); // std::stod: the double nearest 0.1
    EXPECT_EQ(noiseGate.GetIntensity(), 0.1F);
    noiseGate.Deserialize("softKnee=3:SOFT_KNEE=2");
    EXPECT_EQ(noiseGate.GetSoftKnee(), 2.0);
}

TEST(NoiseGateDeserialize, IntensityFailureKeepsTheEarlierKeys)
{
    NoiseGate noiseGate;
    noiseGate.SetIntensity(0.5F);
    EXPECT_EQ(FormADescription<EffectException>(
                  [&] { noiseGate.Deserialize("intensity=1.5:threshold=3:attack=4:decay=5:soft_knee=6"); }),
              "Intensity should be in range from 0.f to 1.f");
    EXPECT_EQ(noiseGate.GetThreshold(), 3.0);
    EXPECT_EQ(noiseGate.GetAttack(), 4.0);
    EXPECT_EQ(noiseGate.GetDecay(), 5.0);
    EXPECT_EQ(noiseGate.GetSoftKnee(), 6.0);
    EXPECT_EQ(noiseGate.GetIntensity(), 0.5F);
    // A conversion failure of decay (3) keeps threshold (1) and attack (2).
    NoiseGate second;
    EXPECT_THROW(second.Deserialize("decay=\"1\":threshold=7:attack=8:soft_knee=9"), std::invalid_argument);
    EXPECT_EQ(second.GetThreshold(), 7.0);
    EXPECT_EQ(second.GetAttack(), 8.0);
    EXPECT_EQ(second.GetSoftKnee(), 0.0);
}

// ---------------------------------------------------------------- stream operators

template <class E>
std::string Written(E value)
{
    std::ostringstream stream;
    std::ostream& returned = stream << value;
    EXPECT_EQ(&returned, &stream);
    return stream.str();
}

TEST(DynamicsStream, CompressorTexts)
{
    EXPECT_EQ(Written(Compressor::DetectionType::Rms), "rms");
    EXPECT_EQ(Written(Compressor::DetectionType::Peak), "peak");
    EXPECT_EQ(Written(Compressor::LinkType::Average), "average");
    EXPECT_EQ(Written(Compressor::LinkType::Maximum), "maximum");
}

TEST(DynamicsStream, GateTexts)
{
    EXPECT_EQ(Written(Gate::DetectionType::Rms), "rms");
    EXPECT_EQ(Written(Gate::DetectionType::Peak), "peak");
    EXPECT_EQ(Written(Gate::LinkType::Average), "average");
    EXPECT_EQ(Written(Gate::LinkType::Maximum), "maximum");
}

TEST(DynamicsStream, UnknownValuesThrowAndWriteNothing)
{
    std::ostringstream stream;
    EXPECT_EQ(FormADescription<EffectException>([&] { stream << static_cast<Compressor::DetectionType>(2); }),
              "Unknown detection type");
    EXPECT_EQ(FormADescription<EffectException>([&] { stream << static_cast<Compressor::LinkType>(-1); }),
              "Unknown link type");
    EXPECT_EQ(FormADescription<EffectException>([&] { stream << static_cast<Gate::DetectionType>(7); }),
              "Unknown detection type");
    EXPECT_EQ(FormADescription<EffectException>([&] { stream << static_cast<Gate::LinkType>(2); }),
              "Unknown link type");
    EXPECT_EQ(stream.str(), "");
}

// ---------------------------------------------------------------- equality, IsEmpty, Clone

TEST(DynamicsEquality, CompressorKeepsTheBaseComparison)
{
    static_assert(!std::equality_comparable<Compressor>);
    const Compressor compressor;
    EXPECT_EQ(FormADescription<SettingsException>([&] { (void)compressor.IsEqualTo(compressor); }),
              "Not implemented comparison for settings CLASS_ID = SettingsAudioCompressor");
    const Gate gate;
    EXPECT_EQ(FormADescription<SettingsException>([&] { (void)compressor.IsEqualTo(gate); }),
              "Not implemented comparison for settings CLASS_ID = SettingsAudioCompressor");
}

TEST(DynamicsEquality, GateAndNoiseGateThrowBadCastForAForeignClass)
{
    const Gate gate;
    const NoiseGate noiseGate;
    const Compressor compressor;
    EXPECT_THROW((void)gate.IsEqualTo(compressor), std::bad_cast);
    EXPECT_THROW((void)gate.IsEqualTo(noiseGate), std::bad_cast);
    EXPECT_THROW((void)noiseGate.IsEqualTo(gate), std::bad_cast);
    EXPECT_THROW((void)noiseGate.IsEqualTo(compressor), std::bad_cast);
    EXPECT_TRUE(gate.IsEqualTo(Gate()));
    EXPECT_TRUE(noiseGate.IsEqualTo(NoiseGate()));
}

TEST(DynamicsEquality, GateComparesEveryFieldExactly)
{
    const std::vector<std::function<void(Gate&)>> changes = {
        [](Gate& g) { g.SetLevelIn(2.0F); },
        [](Gate& g) { g.SetIntensity(0.5F); },
        [](Gate& g) { g.SetThreshold(0.5F); },
        [](Gate& g) { g.SetRatio(2.0F); },
        [](Gate& g) { g.SetAttackMs(30.0F); },
        [](Gate& g) { g.SetReleaseMs(300.0F); },
        [](Gate& g) { g.SetMakeup(2.0F); },
        [](Gate& g) { g.SetKnee(2.0F); },
        [](Gate& g) { g.SetDetection(Gate::DetectionType::Peak); },
        [](Gate& g) { g.SetLink(Gate::LinkType::Maximum); },
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        SCOPED_TRACE(i);
        Gate changed;
        changes[i](changed);
        EXPECT_FALSE(changed == Gate());
        EXPECT_FALSE(changed.IsEqualTo(Gate()));
        Gate same;
        changes[i](same);
        EXPECT_TRUE(changed == same);
    }
    // Exact: one ulp apart is already different (no `nearly equal` here).
    Gate a;
    Gate b;
    a.SetThreshold(0.5F);
    b.SetThreshold(Above(0.5F));
    EXPECT_FALSE(a == b);
    b.SetThreshold(0.5F);
    EXPECT_TRUE(a == b);
    // A not-a-number field makes the records differ even from themselves.
    a.SetKnee(std::nanf(""));
    EXPECT_FALSE(a == a);
    EXPECT_FALSE(a.IsEqualTo(a));
    // Range and intensity end up in one field: equal when the stored values are equal.
    Gate r;
    r.SetRange(0.75F);
    Gate i;
    i.SetIntensity(0.25F);
    EXPECT_TRUE(r == i);
}

TEST(DynamicsEquality, NoiseGateComparesEveryFieldExactly)
{
    const std::vector<std::function<void(NoiseGate&)>> changes = {
        [](NoiseGate& g) { g.SetThreshold(std::nextafter(0.0, 1.0)); },
        [](NoiseGate& g) { g.SetAttack(1.0); },
        [](NoiseGate& g) { g.SetDecay(1.0); },
        [](NoiseGate& g) { g.SetSoftKnee(1.0); },
        [](NoiseGate& g) { g.SetIntensity(std::nextafter(0.0F, 1.0F)); },
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        SCOPED_TRACE(i);
        NoiseGate changed;
        changes[i](changed);
        EXPECT_FALSE(changed == NoiseGate());
        EXPECT_FALSE(changed.IsEqualTo(NoiseGate()));
    }
    NoiseGate a;
    NoiseGate b;
    a.SetDecay(0.3);
    b.SetDecay(std::nextafter(0.3, 1.0)); // one ulp: `nearly equal` would say equal, exact does not
    EXPECT_FALSE(a == b);
    b.SetDecay(0.3);
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(a.IsEqualTo(b));
}

TEST(DynamicsEmpty, NoneOfTheThreeIsEverEmpty)
{
    EXPECT_FALSE(Compressor().IsEmpty());
    EXPECT_FALSE(Gate().IsEmpty());
    EXPECT_FALSE(NoiseGate().IsEmpty());
    Compressor compressor;
    compressor.SetIntensity(0.0F);
    EXPECT_FALSE(compressor.IsEmpty());
    Gate gate;
    gate.SetIntensity(0.0F);
    EXPECT_FALSE(gate.IsEmpty());
    NoiseGate noiseGate;
    noiseGate.SetIntensity(0.0F);
    EXPECT_FALSE(noiseGate.IsEmpty());
}

TEST(DynamicsClone, CopiesEveryFieldIntoANewRecordOfTheSameClass)
{
    Compressor compressor;
    compressor.Deserialize("levelIn=2:threshold=0.5:ratio=4:attack=10:release=100:makeup=2:knee=3:intensity=0.5:"
                           "detection=1:link=1");
    const auto compressorCopy = compressor.Clone();
    ASSERT_NE(compressorCopy.get(), nullptr);
    EXPECT_NE(compressorCopy.get(), static_cast<Settings*>(&compressor));
    EXPECT_EQ(compressorCopy->GetClassId(), Compressor::CLASS_ID);
    const auto& c = dynamic_cast<const Compressor&>(*compressorCopy);
    EXPECT_EQ(c.GetLevelIn(), 2.0F);
    EXPECT_EQ(c.GetThreshold(), 0.5);
    EXPECT_EQ(c.GetRatio(), 4.0F);
    EXPECT_EQ(c.GetAttack(), 10.0F);
    EXPECT_EQ(c.GetRelease(), 100.0F);
    EXPECT_EQ(c.GetMakeup(), 2.0F);
    EXPECT_EQ(c.GetKnee(), 3.0F);
    EXPECT_EQ(c.GetIntensity(), 0.5F);
    EXPECT_EQ(c.GetDetection(), Compressor::DetectionType::Peak);
    EXPECT_EQ(c.GetLink(), Compressor::LinkType::Maximum);

    Gate gate;
    gate.Deserialize("level_in=2:range=0.25:threshold=0.5:ratio=30:attack=5:release=6:makeup=7:knee=8");
    gate.SetDetection(Gate::DetectionType::Peak);
    gate.SetLink(Gate::LinkType::Maximum);
    const auto gateCopy = gate.Clone();
    EXPECT_EQ(gateCopy->GetClassId(), Gate::CLASS_ID);
    EXPECT_TRUE(gate.IsEqualTo(*gateCopy));
    EXPECT_FALSE(Gate().IsEqualTo(*gateCopy));

    NoiseGate noiseGate;
    noiseGate.Deserialize("threshold=1:attack=2:decay=3:soft_knee=4:intensity=0.5");
    const auto noiseGateCopy = noiseGate.Clone();
    EXPECT_EQ(noiseGateCopy->GetClassId(), NoiseGate::CLASS_ID);
    EXPECT_TRUE(noiseGate.IsEqualTo(*noiseGateCopy));
    EXPECT_FALSE(NoiseGate().IsEqualTo(*noiseGateCopy));
}

// ---------------------------------------------------------------- catalogue

TEST(DynamicsCatalogue, FieldsInDeclaredOrderWithEnumerationsAsNumbers)
{
    const auto* compressorEntry = Zorvan::SettingsCatalog::Find("SettingsAudioCompressor");
    ASSERT_NE(compressorEntry, nullptr);
    Compressor compressor;
    compressor.Deserialize("ratio=4:detection=1");
    EXPECT_EQ(compressorEntry->FieldsToJson(compressor).dump(),
              R"({"levelIn":1.0,"threshold":1.0,"ratio":4.0,"attack":20.0,"release":250.0,"makeup":1.0,)"
              R"("knee":1.0,"link":0,"detection":1,"intensity":0.0})");

    const auto* gateEntry = Zorvan::SettingsCatalog::Find("SettingsAudioGate");
    ASSERT_NE(gateEntry, nullptr);
    Gate gate;
    gate.SetRange(0.25F);
    gate.SetLink(Gate::LinkType::Maximum);
    EXPECT_EQ(gateEntry->FieldsToJson(gate).dump(),
              R"({"levelIn":1.0,"rangeIntensity":0.75,"threshold":0.0,"ratio":1.0,"attackMs":20.0,)"
              R"("releaseMs":250.0,"makeup":1.0,"knee":1.0,"detection":0,"link":1})");

    const auto* noiseGateEntry = Zorvan::SettingsCatalog::Find("SettingsAudioNoiseGate");
    ASSERT_NE(noiseGateEntry, nullptr);
    NoiseGate noiseGate;
    noiseGate.Deserialize("soft_knee=2.5:intensity=0.5");
    EXPECT_EQ(noiseGateEntry->FieldsToJson(noiseGate).dump(),
              R"({"threshold":0.0,"attack":0.0,"decay":0.0,"softKnee":2.5,"intensity":0.5})");
}
