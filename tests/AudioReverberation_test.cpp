// Part 4.3: reverberation. SettingsAudioReverb (a strength, map form) and
// SettingsAudioReverberationImpulseResponse (checked setters, GetOption / OptionRegexSearch key
// by key, the change-function and colour spellings, stream operators, exact comparison).
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>
#include <stdexcept>
#include <string>
#include <typeinfo>

#include "Proc/Settings/SettingsAudioReverb.h"
#include "Proc/Settings/SettingsAudioReverberationImpulseResponse.h"
#include "Proc/Settings/SettingsFilterSpeedUp.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormADescription;
using ZorvanTest::FormBDescription;
using Ir = SettingsAudioReverberationImpulseResponse;
using ChangeFunction = Ir::ChangeFunction;
using NoiseColor = Ir::NoiseColor;

namespace {

const std::string kTimeMessage = "Reverberation time should be in range from 0.0001 to 30.0.";
const std::string kDryMessage = "Dry gain should be in range from 0.0 to 10.0.";
const std::string kWetMessage = "Wet gain should be in range from 0.0 to 10.0.";
const std::string kDelayMessage = "Dry-wet balance should be in range from 0 to 200.";
const std::string kFrequencyMessage = "Sliding LPF frequency should be greater than 0.";
const std::string kChangeFunctionMessage = "Unknown value of change function";
const std::string kNoiseColorMessage = "Unknown value of noise color";

template <typename E>
std::string Print(E value)
{
    std::ostringstream stream;
    stream << value;
    return stream.str();
}

double Below(double value)
{
    return std::nextafter(value, -std::numeric_limits<double>::infinity());
}

double Above(double value)
{
    return std::nextafter(value, std::numeric_limits<double>::infinity());
}

// A record whose every field differs from the defaults, all within range.
Ir Filled()
{
    Ir record;
    record.SetReverberationTime(2.5);
    record.SetDryGain(0.5);
    record.SetWetGain(3.0);
    record.SetDelay(17);
    record.SetNoiseColor(NoiseColor::Brown);
    record.SetSlpfFrequency(4000);
    record.SetFadeFunction(ChangeFunction::Cub);
    record.SetSlpfFunction(ChangeFunction::Qua);
    return record;
}

void ExpectSameAsFilled(const Ir& record)
{
    EXPECT_EQ(record.GetReverberationTime(), 2.5);
    EXPECT_EQ(record.GetDryGain(), 0.5);
    EXPECT_EQ(record.GetWetGain(), 3.0);
    EXPECT_EQ(record.GetDelay(), 17);
    EXPECT_EQ(record.GetNoiseColor(), NoiseColor::Brown);
    EXPECT_EQ(record.GetSlpfFrequency(), 4000);
    EXPECT_EQ(record.GetFadeFunction(), ChangeFunction::Cub);
    EXPECT_EQ(record.GetSlpfFunction(), ChangeFunction::Qua);
}

} // namespace

// ---- SettingsAudioReverb --------------------------------------------------------------------

TEST(Reverb, ClassIdDefaultAndClone)
{
    EXPECT_EQ(SettingsAudioReverb::CLASS_ID, "SettingsAudioReverb");
    SettingsAudioReverb reverb;
    EXPECT_EQ(&reverb.GetClassId(), &SettingsAudioReverb::CLASS_ID);
    EXPECT_EQ(reverb.GetIntensity(), 0.0F);
    reverb.SetIntensity(0.75F);
    const auto copy = reverb.Clone();
    ASSERT_NE(copy, nullptr);
    EXPECT_NE(copy.get(), &reverb);
    EXPECT_EQ(copy->GetClassId(), "SettingsAudioReverb");
    const auto& typed = dynamic_cast<const SettingsAudioReverb&>(*copy);
    EXPECT_EQ(typeid(typed), typeid(SettingsAudioReverb));
    EXPECT_EQ(typed.GetIntensity(), 0.75F);
}

TEST(Reverb, SetIntensityAcceptsZeroToOneInclusive)
{
    SettingsAudioReverb reverb;
    reverb.SetIntensity(1.0F);
    EXPECT_EQ(reverb.GetIntensity(), 1.0F);
    reverb.SetIntensity(0.0F);
    EXPECT_EQ(reverb.GetIntensity(), 0.0F);
    reverb.SetIntensity(0.5F);
    const float belowZero = std::nextafter(0.0F, -1.0F);
    const float aboveOne = std::nextafter(1.0F, 2.0F);
    EXPECT_EQ(FormADescription<EffectException>([&] { reverb.SetIntensity(belowZero); }), "Invalid intensity!");
    EXPECT_EQ(reverb.GetIntensity(), 0.5F);
    EXPECT_EQ(FormADescription<EffectException>([&] { reverb.SetIntensity(aboveOne); }), "Invalid intensity!");
    EXPECT_EQ(reverb.GetIntensity(), 0.5F);
    EXPECT_EQ(FormADescription<EffectException>([&] { reverb.SetIntensity(-1.0F); }), "Invalid intensity!");
    EXPECT_EQ(reverb.GetIntensity(), 0.5F);
}

// Our reading, as in Part 4.1: the check fails only when the value compares outside its bounds.
TEST(Reverb, SetIntensityLetsNotANumberPass)
{
    SettingsAudioReverb reverb;
    reverb.SetIntensity(std::numeric_limits<float>::quiet_NaN());
    EXPECT_TRUE(std::isnan(reverb.GetIntensity()));
}

TEST(Reverb, DeserializeReadsIntensityWithStofThroughTheSetter)
{
    SettingsAudioReverb reverb;
    reverb.Deserialize("intensity=0.25");
    EXPECT_EQ(reverb.GetIntensity(), 0.25F);
    reverb.Deserialize("INTENSITY=0.5:intensity=0.75");
    EXPECT_EQ(reverb.GetIntensity(), 0.5F);
    reverb.Deserialize("");
    EXPECT_EQ(reverb.GetIntensity(), 0.5F);
    reverb.Deserialize("other=1");
    EXPECT_EQ(reverb.GetIntensity(), 0.5F);
    // std::stof reads the longest prefix: "0,75" gives 0, "1e3" is cut to "1" by the pattern.
    reverb.Deserialize("intensity=0,75");
    EXPECT_EQ(reverb.GetIntensity(), 0.0F);
    reverb.Deserialize("intensity=1e3");
    EXPECT_EQ(reverb.GetIntensity(), 1.0F);
    reverb.Deserialize("intensity=0.125.5");
    EXPECT_EQ(reverb.GetIntensity(), 0.125F);
}

TEST(Reverb, DeserializeNumericPatternWordsAndQuotes)
{
    SettingsAudioReverb reverb;
    reverb.SetIntensity(0.5F);
    // An unquoted word holds no option under the numeric value pattern.
    reverb.Deserialize("intensity=abc");
    EXPECT_EQ(reverb.GetIntensity(), 0.5F);
    reverb.Deserialize("intensity=+0.25");
    EXPECT_EQ(reverb.GetIntensity(), 0.5F);
    // A quoted value keeps its quotes, so std::stof fails, also on a quoted number.
    EXPECT_THROW(reverb.Deserialize("intensity=\"0.25\""), std::invalid_argument);
    EXPECT_THROW(reverb.Deserialize("intensity=\"abc\""), std::invalid_argument);
    EXPECT_THROW(reverb.Deserialize("intensity=-"), std::invalid_argument);
    EXPECT_EQ(reverb.GetIntensity(), 0.5F);
}

TEST(Reverb, DeserializeOutOfRangeThrowsTheSetterMessage)
{
    SettingsAudioReverb reverb;
    reverb.SetIntensity(0.5F);
    EXPECT_EQ(FormADescription<EffectException>([&] { reverb.Deserialize("intensity=1.5"); }), "Invalid intensity!");
    EXPECT_EQ(FormADescription<EffectException>([&] { reverb.Deserialize("intensity=-0.1"); }), "Invalid intensity!");
    EXPECT_EQ(reverb.GetIntensity(), 0.5F);
    // Under the numeric pattern "1e40" would be cut to "1"; forty-one digits overflow std::stof.
    EXPECT_THROW(reverb.Deserialize("intensity=1" + std::string(40, '0')), std::out_of_range);
    EXPECT_EQ(reverb.GetIntensity(), 0.5F);
    reverb.Deserialize("intensity=1");
    EXPECT_EQ(reverb.GetIntensity(), 1.0F);
}

TEST(Reverb, KeepsTheBaseIsEqualToAndIsEmpty)
{
    SettingsAudioReverb reverb;
    const SettingsAudioReverb other;
    EXPECT_EQ(FormADescription<SettingsException>([&] { (void)reverb.IsEqualTo(other); }),
              "Not implemented comparison for settings CLASS_ID = SettingsAudioReverb");
    EXPECT_EQ(FormADescription<SettingsException>([&] { (void)reverb.IsEqualTo(Ir{}); }),
              "Not implemented comparison for settings CLASS_ID = SettingsAudioReverb");
    EXPECT_FALSE(reverb.IsEmpty());
    reverb.SetIntensity(0.0F);
    EXPECT_FALSE(reverb.IsEmpty());
}

// ---- SettingsAudioReverberationImpulseResponse: identity, defaults ---------------------------

TEST(ReverbIr, ClassIdIsTheShortForm)
{
    EXPECT_EQ(Ir::CLASS_ID, "SettingsAudioReverbIr");
    const Ir record;
    EXPECT_EQ(&record.GetClassId(), &Ir::CLASS_ID);
}

TEST(ReverbIr, DefaultsAreValidAndNeverEmpty)
{
    const Ir record;
    EXPECT_EQ(record.GetReverberationTime(), 1.0);
    EXPECT_EQ(record.GetDryGain(), 1.0);
    EXPECT_EQ(record.GetWetGain(), 0.0);
    EXPECT_EQ(record.GetDelay(), 0);
    EXPECT_EQ(record.GetNoiseColor(), NoiseColor::White);
    EXPECT_EQ(record.GetSlpfFrequency(), 20000);
    EXPECT_EQ(record.GetFadeFunction(), ChangeFunction::Tri);
    EXPECT_EQ(record.GetSlpfFunction(), ChangeFunction::Tri);
    EXPECT_FALSE(record.IsEmpty());
    EXPECT_FALSE(Filled().IsEmpty());
}

TEST(ReverbIr, EnumerationValues)
{
    EXPECT_EQ(static_cast<int>(ChangeFunction::Tri), 0);
    EXPECT_EQ(static_cast<int>(ChangeFunction::Exp), 1);
    EXPECT_EQ(static_cast<int>(ChangeFunction::Qua), 2);
    EXPECT_EQ(static_cast<int>(ChangeFunction::Cub), 3);
    EXPECT_EQ(static_cast<int>(ChangeFunction::Sin), 4);
    EXPECT_EQ(static_cast<int>(NoiseColor::White), 0);
    EXPECT_EQ(static_cast<int>(NoiseColor::Pink), 1);
    EXPECT_EQ(static_cast<int>(NoiseColor::Brown), 2);
    static_assert(sizeof(ChangeFunction) == 4 && sizeof(NoiseColor) == 4);
}

TEST(ReverbIr, CloneCopiesEveryField)
{
    const Ir record = Filled();
    const auto copy = record.Clone();
    ASSERT_NE(copy, nullptr);
    EXPECT_NE(copy.get(), &record);
    EXPECT_EQ(copy->GetClassId(), "SettingsAudioReverbIr");
    const auto& typed = dynamic_cast<const Ir&>(*copy);
    EXPECT_EQ(typeid(typed), typeid(Ir));
    ExpectSameAsFilled(typed);
    EXPECT_TRUE(copy->IsEqualTo(record));
}

// ---- Setters --------------------------------------------------------------------------------

TEST(ReverbIr, SetReverberationTimeBoundsInclusive)
{
    Ir record;
    record.SetReverberationTime(0.0001);
    EXPECT_EQ(record.GetReverberationTime(), 0.0001);
    record.SetReverberationTime(30);
    EXPECT_EQ(record.GetReverberationTime(), 30.0);
    for (const double bad : {0.0, Below(0.0001), Above(30.0), -1.0}) {
        EXPECT_EQ(FormADescription<EffectException>([&] { record.SetReverberationTime(bad); }), kTimeMessage) << bad;
        EXPECT_EQ(record.GetReverberationTime(), 30.0);
    }
}

TEST(ReverbIr, SetDryGainBoundsInclusive)
{
    Ir record;
    record.SetDryGain(0.0);
    EXPECT_EQ(record.GetDryGain(), 0.0);
    record.SetDryGain(10.0);
    EXPECT_EQ(record.GetDryGain(), 10.0);
    for (const double bad : {Below(0.0), Above(10.0), -1.0}) {
        EXPECT_EQ(FormADescription<EffectException>([&] { record.SetDryGain(bad); }), kDryMessage) << bad;
        EXPECT_EQ(record.GetDryGain(), 10.0);
    }
}

TEST(ReverbIr, SetWetGainBoundsInclusive)
{
    Ir record;
    record.SetWetGain(10.0);
    EXPECT_EQ(record.GetWetGain(), 10.0);
    record.SetWetGain(0.0);
    EXPECT_EQ(record.GetWetGain(), 0.0);
    for (const double bad : {Below(0.0), Above(10.0), 11.0}) {
        EXPECT_EQ(FormADescription<EffectException>([&] { record.SetWetGain(bad); }), kWetMessage) << bad;
        EXPECT_EQ(record.GetWetGain(), 0.0);
    }
}

TEST(ReverbIr, SetDelayStores200AndRejects201AndMinusOneWithTheDryWetMessage)
{
    Ir record;
    record.SetDelay(200);
    EXPECT_EQ(record.GetDelay(), 200);
    record.SetDelay(0);
    EXPECT_EQ(record.GetDelay(), 0);
    record.SetDelay(50);
    for (const int bad : {201, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(FormADescription<EffectException>([&] { record.SetDelay(bad); }), kDelayMessage) << bad;
        EXPECT_EQ(record.GetDelay(), 50);
    }
}

TEST(ReverbIr, SetSlpfFrequencyRejectsZeroAndBelow)
{
    Ir record;
    record.SetSlpfFrequency(1);
    EXPECT_EQ(record.GetSlpfFrequency(), 1);
    record.SetSlpfFrequency(std::numeric_limits<int>::max());
    EXPECT_EQ(record.GetSlpfFrequency(), std::numeric_limits<int>::max());
    record.SetSlpfFrequency(8000);
    for (const int bad : {0, -1, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(FormADescription<EffectException>([&] { record.SetSlpfFrequency(bad); }), kFrequencyMessage) << bad;
        EXPECT_EQ(record.GetSlpfFrequency(), 8000);
    }
}

// Our reading, as in Part 4.1: the double checks fail only when the value compares outside.
TEST(ReverbIr, DoubleSettersLetNotANumberPass)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    Ir record;
    record.SetReverberationTime(nan);
    record.SetDryGain(nan);
    record.SetWetGain(nan);
    EXPECT_TRUE(std::isnan(record.GetReverberationTime()));
    EXPECT_TRUE(std::isnan(record.GetDryGain()));
    EXPECT_TRUE(std::isnan(record.GetWetGain()));
    // strtod reads "nan", so the option string can carry it too.
    Ir parsed;
    parsed.Deserialize("reverb_time=nan:dry_gain=NAN:wet_gain=nan");
    EXPECT_TRUE(std::isnan(parsed.GetReverberationTime()));
    EXPECT_TRUE(std::isnan(parsed.GetDryGain()));
    EXPECT_TRUE(std::isnan(parsed.GetWetGain()));
}

TEST(ReverbIr, PlainSettersStoreAnyValue)
{
    Ir record;
    record.SetNoiseColor(static_cast<NoiseColor>(9));
    EXPECT_EQ(static_cast<int>(record.GetNoiseColor()), 9);
    record.SetFadeFunction(ChangeFunction::Sin);
    EXPECT_EQ(record.GetFadeFunction(), ChangeFunction::Sin);
    record.SetSlpfFunction(ChangeFunction::Exp);
    EXPECT_EQ(record.GetSlpfFunction(), ChangeFunction::Exp);
    EXPECT_EQ(record.GetFadeFunction(), ChangeFunction::Sin);
}

// ---- Deserialize ----------------------------------------------------------------------------

TEST(ReverbIr, DeserializeEmptyOrWithoutKeysChangesNothing)
{
    Ir record = Filled();
    record.Deserialize("");
    ExpectSameAsFilled(record);
    record.Deserialize("intensity=1:speed=2:reverb=3:pre_delay=7:reverb_times=3");
    ExpectSameAsFilled(record);
    // An empty quoted value counts as absent.
    record.Deserialize("reverb_time=\"\":delay=\"\":fade_func=\"\":noise_color=\"\"");
    ExpectSameAsFilled(record);
}

TEST(ReverbIr, DeserializeReadsEveryKeyIntoItsField)
{
    Ir record = Filled();
    record.Deserialize(
        "reverb_time=12.5:dry_gain=0.25:wet_gain=7:delay=150:slpf_freq=300:fade_func=exp:noise_color=pink");
    EXPECT_EQ(record.GetReverberationTime(), 12.5);
    EXPECT_EQ(record.GetDryGain(), 0.25);
    EXPECT_EQ(record.GetWetGain(), 7.0);
    EXPECT_EQ(record.GetDelay(), 150);
    EXPECT_EQ(record.GetSlpfFrequency(), 300);
    EXPECT_EQ(record.GetFadeFunction(), ChangeFunction::Exp);
    EXPECT_EQ(record.GetNoiseColor(), NoiseColor::Pink);
    EXPECT_EQ(record.GetSlpfFunction(), ChangeFunction::Qua);
}

TEST(ReverbIr, DeserializeKeysAreCaseInsensitiveFirstOccurrenceWinsWordBoundary)
{
    Ir record;
    record.Deserialize("DELAY=5:delay=6:Reverb_Time=3:x-slpf_freq=440");
    EXPECT_EQ(record.GetDelay(), 5);
    EXPECT_EQ(record.GetReverberationTime(), 3.0);
    EXPECT_EQ(record.GetSlpfFrequency(), 440);
}

TEST(ReverbIr, DeserializeGoesThroughTheSetters)
{
    Ir record = Filled();
    EXPECT_EQ(FormADescription<EffectException>([&] { record.Deserialize("reverb_time=0"); }), kTimeMessage);
    EXPECT_EQ(FormADescription<EffectException>([&] { record.Deserialize("dry_gain=10.5"); }), kDryMessage);
    EXPECT_EQ(FormADescription<EffectException>([&] { record.Deserialize("wet_gain=-1"); }), kWetMessage);
    EXPECT_EQ(FormADescription<EffectException>([&] { record.Deserialize("delay=201"); }), kDelayMessage);
    EXPECT_EQ(FormADescription<EffectException>([&] { record.Deserialize("delay=-1"); }), kDelayMessage);
    EXPECT_EQ(FormADescription<EffectException>([&] { record.Deserialize("slpf_freq=0"); }), kFrequencyMessage);
    ExpectSameAsFilled(record);
    record.Deserialize("reverb_time=0.0001:dry_gain=10:wet_gain=0:delay=200:slpf_freq=1");
    EXPECT_EQ(record.GetReverberationTime(), 0.0001);
    EXPECT_EQ(record.GetDryGain(), 10.0);
    EXPECT_EQ(record.GetWetGain(), 0.0);
    EXPECT_EQ(record.GetDelay(), 200);
    EXPECT_EQ(record.GetSlpfFrequency(), 1);
}

TEST(ReverbIr, DeserializeNumbersUseGetOptionWithTheDefaultValuePattern)
{
    Ir record = Filled();
    // GetOption converts the whole value: exponents and quoted numbers are fine.
    record.Deserialize("reverb_time=1e1:delay=\"20\":dry_gain=\"2.5\":slpf_freq=000440");
    EXPECT_EQ(record.GetReverberationTime(), 10.0);
    EXPECT_EQ(record.GetDelay(), 20);
    EXPECT_EQ(record.GetDryGain(), 2.5);
    EXPECT_EQ(record.GetSlpfFrequency(), 440);
    // Form C: plain std::invalid_argument with the not-a-number text.
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("reverb_time=abc"); }, false),
              "The 'abc' value of the 'reverb_time' option is not a number");
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("wet_gain=1,5"); }, false),
              "The '1,5' value of the 'wet_gain' option is not a number");
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("delay=+1"); }, false),
              "The '+1' value of the 'delay' option is not a number");
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("delay=1.5"); }, false),
              "The '1.5' value of the 'delay' option is not a number");
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("slpf_freq=\"x1\""); }, false),
              "The 'x1' value of the 'slpf_freq' option is not a number");
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("slpf_freq=2147483648"); }, false),
              "The '2147483648' value of the 'slpf_freq' option is not a number");
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("dry_gain=1e999"); }, false),
              "The '1e999' value of the 'dry_gain' option is not a number");
    // The default value pattern runs to the next colon: spaces and equals signs included.
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("reverb_time=2 dry_gain=3"); }, false),
              "The '2 dry_gain=3' value of the 'reverb_time' option is not a number");
    EXPECT_EQ(record.GetReverberationTime(), 10.0);
    EXPECT_EQ(record.GetDryGain(), 2.5);
}

TEST(ReverbIr, KeysBeforeAFailingKeyStayApplied)
{
    {
        // Order 1 fails: nothing after it is applied, whatever the order in the string.
        Ir record = Filled();
        EXPECT_EQ(FormADescription<EffectException>(
                      [&] { record.Deserialize("dry_gain=2:delay=9:noise_color=w:reverb_time=40"); }),
                  kTimeMessage);
        ExpectSameAsFilled(record);
    }
    {
        // Orders 1 and 2 applied, 3 fails, 4 and later not applied.
        Ir record = Filled();
        EXPECT_EQ(FormADescription<EffectException>(
                      [&] { record.Deserialize("noise_color=p:delay=9:wet_gain=11:dry_gain=2:reverb_time=3"); }),
                  kWetMessage);
        EXPECT_EQ(record.GetReverberationTime(), 3.0);
        EXPECT_EQ(record.GetDryGain(), 2.0);
        EXPECT_EQ(record.GetWetGain(), 3.0);
        EXPECT_EQ(record.GetDelay(), 17);
        EXPECT_EQ(record.GetNoiseColor(), NoiseColor::Brown);
    }
    {
        // A not-a-number text at order 5 leaves orders 1 to 4 applied.
        Ir record = Filled();
        EXPECT_EQ(FormBDescription<std::invalid_argument>(
                      [&] { record.Deserialize("fade_func=tri:slpf_freq=x:delay=9:reverb_time=4"); }, false),
                  "The 'x' value of the 'slpf_freq' option is not a number");
        EXPECT_EQ(record.GetReverberationTime(), 4.0);
        EXPECT_EQ(record.GetDelay(), 9);
        EXPECT_EQ(record.GetSlpfFrequency(), 4000);
        EXPECT_EQ(record.GetFadeFunction(), ChangeFunction::Cub);
    }
    {
        // The noise colour is read last: everything else is applied before it fails.
        Ir record = Filled();
        EXPECT_EQ(FormADescription<EffectException>(
                      [&] { record.Deserialize("noise_color=x:fade_func=exp:delay=9:slpf_freq=100"); }),
                  kNoiseColorMessage);
        EXPECT_EQ(record.GetDelay(), 9);
        EXPECT_EQ(record.GetSlpfFrequency(), 100);
        EXPECT_EQ(record.GetFadeFunction(), ChangeFunction::Exp);
        EXPECT_EQ(record.GetNoiseColor(), NoiseColor::Brown);
    }
    {
        // "fade_func" is applied before a failing "slpf_func"; the noise colour after it is not.
        Ir record = Filled();
        EXPECT_EQ(
            FormADescription<EffectException>([&] { record.Deserialize("slpf_func=bad:noise_color=p:fade_func=exp"); }),
            kChangeFunctionMessage);
        EXPECT_EQ(record.GetFadeFunction(), ChangeFunction::Exp);
        EXPECT_EQ(record.GetSlpfFunction(), ChangeFunction::Qua);
        EXPECT_EQ(record.GetNoiseColor(), NoiseColor::Brown);
    }
}

// ---- Change functions -----------------------------------------------------------------------

TEST(ReverbIr, FadeFuncSpellings)
{
    const struct {
        const char* text;
        ChangeFunction value;
    } cases[] = {{"tri", ChangeFunction::Tri},
                 {"exp", ChangeFunction::Exp},
                 {"qua", ChangeFunction::Qua},
                 {"cub", ChangeFunction::Cub},
                 {"sin", ChangeFunction::Sin}};
    for (const auto& c : cases) {
        Ir record;
        record.SetFadeFunction(c.value == ChangeFunction::Tri ? ChangeFunction::Sin : ChangeFunction::Tri);
        record.Deserialize(std::string("fade_func=") + c.text);
        EXPECT_EQ(record.GetFadeFunction(), c.value) << c.text;
        Ir quoted;
        quoted.SetFadeFunction(c.value == ChangeFunction::Tri ? ChangeFunction::Sin : ChangeFunction::Tri);
        quoted.Deserialize(std::string("fade_func=\"") + c.text + "\"");
        EXPECT_EQ(quoted.GetFadeFunction(), c.value) << c.text;
        EXPECT_EQ(quoted.GetSlpfFunction(), ChangeFunction::Tri);
    }
}

TEST(ReverbIr, FadeFuncSinYieldsFourPrintedAsHsinAndHsinFails)
{
    Ir record;
    record.Deserialize("fade_func=sin");
    EXPECT_EQ(static_cast<int>(record.GetFadeFunction()), 4);
    const std::string printed = Print(record.GetFadeFunction());
    EXPECT_EQ(printed, "hsin");
    // The written form can't be read back.
    Ir other;
    EXPECT_EQ(FormADescription<EffectException>([&] { other.Deserialize("fade_func=" + printed); }),
              kChangeFunctionMessage);
    EXPECT_EQ(other.GetFadeFunction(), ChangeFunction::Tri);
}

TEST(ReverbIr, ChangeFunctionMustBeExactlyThreeLettersCaseSensitive)
{
    Ir record = Filled();
    for (const char* bad : {"SIN", "Exp", "tr", "trii", "xyz", "1", "\"sin \"", "sin ", " sin", "hsin", "\"TRI\""}) {
        EXPECT_EQ(FormADescription<EffectException>([&] { record.Deserialize(std::string("fade_func=") + bad); }),
                  kChangeFunctionMessage)
            << bad;
        EXPECT_EQ(FormADescription<EffectException>([&] { record.Deserialize(std::string("slpf_func=") + bad); }),
                  kChangeFunctionMessage)
            << bad;
    }
    ExpectSameAsFilled(record);
}

TEST(ReverbIr, FadeExpWithSlpfCubLeavesFadeAtThreeAndSlpfUntouched)
{
    Ir record;
    record.SetSlpfFunction(ChangeFunction::Qua);
    record.Deserialize("fade_func=exp:slpf_func=cub");
    EXPECT_EQ(static_cast<int>(record.GetFadeFunction()), 3);
    EXPECT_EQ(record.GetSlpfFunction(), ChangeFunction::Qua);
    // The order in the string does not matter: "slpf_func" is read after "fade_func".
    record.Deserialize("slpf_func=tri:fade_func=sin");
    EXPECT_EQ(record.GetFadeFunction(), ChangeFunction::Tri);
    EXPECT_EQ(record.GetSlpfFunction(), ChangeFunction::Qua);
    // "slpf_func" alone also stores into fadeFunction.
    record.Deserialize("slpf_func=\"exp\"");
    EXPECT_EQ(record.GetFadeFunction(), ChangeFunction::Exp);
    EXPECT_EQ(record.GetSlpfFunction(), ChangeFunction::Qua);
}

// ---- Noise colours --------------------------------------------------------------------------

TEST(ReverbIr, ColourTableHasSixSpellings)
{
    const struct {
        const char* text;
        NoiseColor value;
    } cases[] = {{"white", NoiseColor::White}, {"w", NoiseColor::White},     {"pink", NoiseColor::Pink},
                 {"p", NoiseColor::Pink},      {"brown", NoiseColor::Brown}, {"b", NoiseColor::Brown}};
    for (const auto& c : cases) {
        Ir record;
        record.SetNoiseColor(static_cast<NoiseColor>(7));
        record.Deserialize(std::string("noise_color=") + c.text);
        EXPECT_EQ(record.GetNoiseColor(), c.value) << c.text;
        Ir quoted;
        quoted.SetNoiseColor(static_cast<NoiseColor>(7));
        quoted.Deserialize(std::string("noise_color=\"") + c.text + "\"");
        EXPECT_EQ(quoted.GetNoiseColor(), c.value) << c.text;
    }
}

TEST(ReverbIr, NoiseColorUpperCaseWFailsLowerCaseWYieldsZero)
{
    Ir record;
    record.SetNoiseColor(NoiseColor::Brown);
    EXPECT_EQ(FormADescription<EffectException>([&] { record.Deserialize("noise_color=W"); }), kNoiseColorMessage);
    EXPECT_EQ(record.GetNoiseColor(), NoiseColor::Brown);
    record.Deserialize("noise_color=w");
    EXPECT_EQ(static_cast<int>(record.GetNoiseColor()), 0);
    record.SetNoiseColor(NoiseColor::Pink);
    for (const char* bad : {"White", "PINK", "B", "0", "1", "red", "wh", "\"brown \"", "whitE"}) {
        EXPECT_EQ(FormADescription<EffectException>([&] { record.Deserialize(std::string("noise_color=") + bad); }),
                  kNoiseColorMessage)
            << bad;
        EXPECT_EQ(record.GetNoiseColor(), NoiseColor::Pink);
    }
}

// ---- Stream operators -----------------------------------------------------------------------

TEST(ReverbIr, StreamWritesTheTableTexts)
{
    EXPECT_EQ(Print(ChangeFunction::Tri), "tri");
    EXPECT_EQ(Print(ChangeFunction::Exp), "exp");
    EXPECT_EQ(Print(ChangeFunction::Qua), "qua");
    EXPECT_EQ(Print(ChangeFunction::Cub), "cub");
    EXPECT_EQ(Print(ChangeFunction::Sin), "hsin");
    EXPECT_EQ(Print(NoiseColor::White), "white");
    EXPECT_EQ(Print(NoiseColor::Pink), "pink");
    EXPECT_EQ(Print(NoiseColor::Brown), "brown");
    std::ostringstream stream;
    stream << NoiseColor::Pink << '|' << ChangeFunction::Cub;
    EXPECT_EQ(stream.str(), "pink|cub");
}

TEST(ReverbIr, StreamOfAnUnknownValueWritesNothingAndReturnsTheStream)
{
    for (const int value : {7, 5, -1}) {
        std::ostringstream stream;
        stream << "a";
        std::ostream& returned = stream << static_cast<ChangeFunction>(value);
        EXPECT_EQ(&returned, &stream);
        EXPECT_TRUE(stream.good());
        EXPECT_EQ(stream.str(), "a") << value;
    }
    for (const int value : {3, 7, -1}) {
        std::ostringstream stream;
        stream << "a";
        std::ostream& returned = stream << static_cast<NoiseColor>(value);
        EXPECT_EQ(&returned, &stream);
        EXPECT_TRUE(stream.good());
        EXPECT_EQ(stream.str(), "a") << value;
    }
    std::ostringstream known;
    EXPECT_EQ(&(known << ChangeFunction::Exp), &known);
    EXPECT_EQ(&(known << NoiseColor::Brown), &known);
    EXPECT_EQ(known.str(), "expbrown");
}

// ---- Comparison -----------------------------------------------------------------------------

TEST(ReverbIr, IsEqualToComparesAllEightFieldsExactly)
{
    const Ir base = Filled();
    EXPECT_TRUE(base.IsEqualTo(Filled()));
    EXPECT_TRUE(base == Filled());
    EXPECT_FALSE(base != Filled());
    EXPECT_TRUE(Ir{}.IsEqualTo(Ir{}));

    auto differs = [&](auto change) {
        Ir other = Filled();
        change(other);
        return !base.IsEqualTo(other) && !other.IsEqualTo(base) && base != other && !(base == other);
    };
    EXPECT_TRUE(differs([](Ir& r) { r.SetReverberationTime(Above(2.5)); }));
    EXPECT_TRUE(differs([](Ir& r) { r.SetDryGain(Below(0.5)); }));
    EXPECT_TRUE(differs([](Ir& r) { r.SetWetGain(Above(3.0)); }));
    EXPECT_TRUE(differs([](Ir& r) { r.SetDelay(18); }));
    EXPECT_TRUE(differs([](Ir& r) { r.SetNoiseColor(NoiseColor::White); }));
    EXPECT_TRUE(differs([](Ir& r) { r.SetSlpfFrequency(4001); }));
    EXPECT_TRUE(differs([](Ir& r) { r.SetFadeFunction(ChangeFunction::Exp); }));
    // slpfFunction is not reachable from an option string but still takes part.
    EXPECT_TRUE(differs([](Ir& r) { r.SetSlpfFunction(ChangeFunction::Sin); }));
}

TEST(ReverbIr, ExactComparisonIsNotNearlyEqual)
{
    // One ulp apart is within `nearly equal` but not equal here.
    Ir a;
    Ir b;
    a.SetReverberationTime(1.0);
    b.SetReverberationTime(Above(1.0));
    EXPECT_FALSE(a.IsEqualTo(b));
    // Zero and minus zero compare equal with ==.
    a.SetDryGain(0.0);
    b.SetDryGain(-0.0);
    b.SetReverberationTime(1.0);
    EXPECT_TRUE(a.IsEqualTo(b));
    // A not-a-number is not equal to itself.
    a.SetWetGain(std::numeric_limits<double>::quiet_NaN());
    EXPECT_FALSE(a.IsEqualTo(a));
}

TEST(ReverbIr, IsEqualToThrowsBadCastForAForeignClass)
{
    const Ir record;
    EXPECT_THROW((void)record.IsEqualTo(SettingsAudioReverb{}), std::bad_cast);
    EXPECT_THROW((void)record.IsEqualTo(SettingsFilterSpeedUp{}), std::bad_cast);
}

// ---- Catalogue ------------------------------------------------------------------------------

TEST(Reverb, CatalogueListsTheIntensity)
{
    const auto* entry = Zorvan::SettingsCatalog::Find("SettingsAudioReverb");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->className, "SettingsAudioReverb");
    EXPECT_EQ(entry->Own(), "D");
    SettingsAudioReverb record;
    record.Deserialize("intensity=0.5");
    EXPECT_EQ(entry->FieldsToJson(record).dump(), R"({"intensity":0.5})");
}

TEST(ReverbIr, CatalogueListsEveryField)
{
    const auto* entry = Zorvan::SettingsCatalog::Find("SettingsAudioReverbIr");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->className, "SettingsAudioReverberationImpulseResponse");
    EXPECT_EQ(entry->Own(), "ED");
    EXPECT_EQ(entry->FieldsToJson(Filled()).dump(),
              R"({"reverberationTime":2.5,"dryGain":0.5,"wetGain":3.0,"delay":17,"noiseColor":2,)"
              R"("slpfFrequency":4000,"fadeFunction":3,"slpfFunction":2})");
}
