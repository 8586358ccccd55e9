// Part 4.2: SettingsAudioChorus, SettingsAudioEcho, SettingsAudioFlanger and
// SettingsAudioVibrato: setters at their bounds, the one-voice and one-echo option strings
// (with the echo's gain quirk), the flanger's text keys, stream output, the tolerant and exact
// comparisons, Clone and the catalogue. Expected values are worked out by hand from the Part.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>
#include <stdexcept>
#include <typeinfo>
#include <vector>

#include "Proc/Settings/SettingsAudioChorus.h"
#include "Proc/Settings/SettingsAudioEcho.h"
#include "Proc/Settings/SettingsAudioFlanger.h"
#include "Proc/Settings/SettingsAudioVibrato.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormADescription;
using Voice = SettingsAudioChorus::Voice;
using Echo = SettingsAudioEcho::Echo;
using ShapeType = SettingsAudioFlanger::ShapeType;
using InterpolationType = SettingsAudioFlanger::InterpolationType;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr float kNaNF = std::numeric_limits<float>::quiet_NaN();

// The next value above (up) or below (down), `steps` ulps away.
double Up(double v, int steps = 1)
{
    for (int i = 0; i < steps; ++i) {
        v = std::nextafter(v, std::numeric_limits<double>::infinity());
    }
    return v;
}
double Down(double v, int steps = 1)
{
    for (int i = 0; i < steps; ++i) {
        v = std::nextafter(v, -std::numeric_limits<double>::infinity());
    }
    return v;
}
float UpF(float v, int steps = 1)
{
    for (int i = 0; i < steps; ++i) {
        v = std::nextafter(v, std::numeric_limits<float>::infinity());
    }
    return v;
}
float DownF(float v, int steps = 1)
{
    for (int i = 0; i < steps; ++i) {
        v = std::nextafter(v, -std::numeric_limits<float>::infinity());
    }
    return v;
}

const Voice kGoodVoice{10, 0.5, 1.0, 2.0};

std::string Dump(const std::string& classId, const Settings& record)
{
    const auto* entry = Zorvan::SettingsCatalog::Find(classId);
    EXPECT_NE(entry, nullptr);
    return entry ? entry->FieldsToJson(record).dump() : std::string();
}

template <class F>
std::string Effect(F&& f)
{
    return FormADescription<EffectException>(std::forward<F>(f));
}

template <class F>
std::string SettingsError(F&& f)
{
    return FormADescription<SettingsException>(std::forward<F>(f));
}

} // namespace

// ======================================================================================
// SettingsAudioChorus
// ======================================================================================

TEST(Chorus, DefaultRecordIsNeutralAndNeverEmpty)
{
    const SettingsAudioChorus chorus;
    EXPECT_EQ(chorus.GetClassId(), "SettingsAudioChorus");
    EXPECT_EQ(SettingsAudioChorus::CLASS_ID, "SettingsAudioChorus");
    EXPECT_TRUE(chorus.GetVoices().empty());
    EXPECT_EQ(chorus.GetGainIn(), 1.0);
    EXPECT_EQ(chorus.GetGainOut(), 1.0);
    EXPECT_EQ(chorus.GetIntensity(), 0.0F);
    EXPECT_FALSE(chorus.IsEmpty());
}

TEST(Chorus, VoiceDelayBounds)
{
    EXPECT_TRUE((Voice{1, 0.5, 1.0, 1.0}.IsOK()));
    EXPECT_TRUE((Voice{89999, 0.5, 1.0, 1.0}.IsOK()));
    EXPECT_FALSE((Voice{90000, 0.5, 1.0, 1.0}.IsOK()));
    EXPECT_FALSE((Voice{0, 0.5, 1.0, 1.0}.IsOK()));
    EXPECT_FALSE((Voice{-1, 0.5, 1.0, 1.0}.IsOK()));
    EXPECT_FALSE((Voice{std::numeric_limits<std::int32_t>::min(), 0.5, 1.0, 1.0}.IsOK()));

    SettingsAudioChorus chorus;
    chorus.SetVoices({Voice{89999, 0.5, 1.0, 1.0}});
    EXPECT_EQ(chorus.GetVoices().at(0).delay, 89999);
    EXPECT_EQ(SettingsError([&] { chorus.SetVoices({Voice{90000, 0.5, 1.0, 1.0}}); }), "Invalid Voice");
    EXPECT_EQ(SettingsError([&] { chorus.SetVoices({Voice{0, 0.5, 1.0, 1.0}}); }), "Invalid Voice");
    EXPECT_EQ(SettingsError([&] { chorus.SetVoices({Voice{-5, 0.5, 1.0, 1.0}}); }), "Invalid Voice");
    EXPECT_EQ(chorus.GetVoices().at(0).delay, 89999);
}

TEST(Chorus, VoiceDecayBounds)
{
    EXPECT_FALSE((Voice{10, 0.0, 1.0, 1.0}.IsOK()));
    EXPECT_TRUE((Voice{10, 1.0, 1.0, 1.0}.IsOK()));
    EXPECT_FALSE((Voice{10, Up(1.0), 1.0, 1.0}.IsOK()));
    EXPECT_TRUE((Voice{10, std::numeric_limits<double>::denorm_min(), 1.0, 1.0}.IsOK()));
    EXPECT_FALSE((Voice{10, -0.5, 1.0, 1.0}.IsOK()));
    EXPECT_FALSE((Voice{10, kNaN, 1.0, 1.0}.IsOK()));
}

TEST(Chorus, VoiceSpeedAndDepthBounds)
{
    EXPECT_TRUE((Voice{10, 0.5, 9.9, 1.0}.IsOK()));
    EXPECT_FALSE((Voice{10, 0.5, Up(9.9), 1.0}.IsOK()));
    EXPECT_FALSE((Voice{10, 0.5, 0.0, 1.0}.IsOK()));
    EXPECT_TRUE((Voice{10, 0.5, std::numeric_limits<double>::denorm_min(), 1.0}.IsOK()));
    EXPECT_FALSE((Voice{10, 0.5, kNaN, 1.0}.IsOK()));
    EXPECT_TRUE((Voice{10, 0.5, 1.0, 9.9}.IsOK()));
    EXPECT_FALSE((Voice{10, 0.5, 1.0, Up(9.9)}.IsOK()));
    EXPECT_FALSE((Voice{10, 0.5, 1.0, 0.0}.IsOK()));
    EXPECT_TRUE((Voice{10, 0.5, 1.0, std::numeric_limits<double>::denorm_min()}.IsOK()));
    EXPECT_FALSE((Voice{10, 0.5, 1.0, kNaN}.IsOK()));
}

TEST(Chorus, SetVoicesChecksAllBeforeStoring)
{
    SettingsAudioChorus chorus;
    chorus.SetVoices({kGoodVoice});
    // The second voice is bad: nothing is stored, the old list stays.
    EXPECT_EQ(SettingsError([&] {
                  chorus.SetVoices({Voice{20, 0.25, 2.0, 3.0}, Voice{30, 0.0, 1.0, 1.0}});
              }),
              "Invalid Voice");
    ASSERT_EQ(chorus.GetVoices().size(), 1U);
    EXPECT_EQ(chorus.GetVoices()[0], kGoodVoice);
    // Several good voices are stored in order; an empty list passes and clears.
    chorus.SetVoices({Voice{20, 0.25, 2.0, 3.0}, Voice{89999, 1.0, 9.9, 9.9}});
    ASSERT_EQ(chorus.GetVoices().size(), 2U);
    EXPECT_EQ(chorus.GetVoices()[1].delay, 89999);
    chorus.SetVoices({});
    EXPECT_TRUE(chorus.GetVoices().empty());
}

TEST(Chorus, SetGainInOutNeedsBothStrictlyPositive)
{
    SettingsAudioChorus chorus;
    chorus.SetGainInOut(2.0, 3.0);
    EXPECT_EQ(SettingsError([&] { chorus.SetGainInOut(0, 1); }), "Invalid gain parameters");
    EXPECT_EQ(SettingsError([&] { chorus.SetGainInOut(1, 0); }), "Invalid gain parameters");
    EXPECT_EQ(SettingsError([&] { chorus.SetGainInOut(-1, 1); }), "Invalid gain parameters");
    EXPECT_EQ(SettingsError([&] { chorus.SetGainInOut(kNaN, 1); }), "Invalid gain parameters");
    EXPECT_EQ(SettingsError([&] { chorus.SetGainInOut(1, kNaN); }), "Invalid gain parameters");
    EXPECT_EQ(chorus.GetGainIn(), 2.0);
    EXPECT_EQ(chorus.GetGainOut(), 3.0);
    const double tiny = std::numeric_limits<double>::denorm_min();
    chorus.SetGainInOut(tiny, 1e300);
    EXPECT_EQ(chorus.GetGainIn(), tiny);
    EXPECT_EQ(chorus.GetGainOut(), 1e300);
}

TEST(Chorus, SetIntensityBounds)
{
    SettingsAudioChorus chorus;
    chorus.SetIntensity(0.0F);
    EXPECT_EQ(chorus.GetIntensity(), 0.0F);
    chorus.SetIntensity(1.0F);
    EXPECT_EQ(chorus.GetIntensity(), 1.0F);
    EXPECT_EQ(Effect([&] { chorus.SetIntensity(UpF(1.0F)); }), "Intensity should be in range from 0.f to 1.f");
    EXPECT_EQ(Effect([&] { chorus.SetIntensity(DownF(0.0F)); }), "Intensity should be in range from 0.f to 1.f");
    EXPECT_EQ(chorus.GetIntensity(), 1.0F);
    chorus.SetIntensity(kNaNF); // compares outside no bound
    EXPECT_TRUE(std::isnan(chorus.GetIntensity()));
}

TEST(Chorus, DeserializeEmptyStringChangesNothing)
{
    SettingsAudioChorus chorus;
    chorus.SetVoices({kGoodVoice});
    chorus.Deserialize("");
    EXPECT_EQ(chorus.GetVoices().size(), 1U);
}

TEST(Chorus, DeserializeBuildsOneVoiceAndReplacesTheList)
{
    SettingsAudioChorus chorus;
    chorus.SetVoices({kGoodVoice, Voice{20, 0.25, 2.0, 3.0}});
    chorus.Deserialize("intensity=0.75:delay=40:decay=0.4:speed=0.5:depth=2.5:gain_in=0.8:gain_out=1.5");
    ASSERT_EQ(chorus.GetVoices().size(), 1U);
    EXPECT_EQ(chorus.GetVoices()[0].delay, 40);
    EXPECT_EQ(chorus.GetVoices()[0].decay, 0.4);
    EXPECT_EQ(chorus.GetVoices()[0].speed, 0.5);
    EXPECT_EQ(chorus.GetVoices()[0].depth, 2.5);
    EXPECT_EQ(chorus.GetGainIn(), 0.8);
    EXPECT_EQ(chorus.GetGainOut(), 1.5);
    EXPECT_EQ(chorus.GetIntensity(), 0.75F);
}

TEST(Chorus, DeserializeAbsentGainsBecomeOne)
{
    SettingsAudioChorus chorus;
    chorus.SetGainInOut(2.0, 3.0);
    chorus.Deserialize("delay=1:decay=1:speed=9.9:depth=9.9");
    EXPECT_EQ(chorus.GetGainIn(), 1.0);
    EXPECT_EQ(chorus.GetGainOut(), 1.0);
    EXPECT_EQ(chorus.GetVoices().at(0), (Voice{1, 1.0, 9.9, 9.9}));
}

TEST(Chorus, DeserializeOnlyIntensityAppliesItThenFailsInvalidVoice)
{
    SettingsAudioChorus chorus;
    chorus.SetVoices({kGoodVoice});
    chorus.SetGainInOut(2.0, 3.0);
    EXPECT_EQ(SettingsError([&] { chorus.Deserialize("intensity=0.5"); }), "Invalid Voice");
    EXPECT_EQ(chorus.GetIntensity(), 0.5F);
    ASSERT_EQ(chorus.GetVoices().size(), 1U);
    EXPECT_EQ(chorus.GetVoices()[0], kGoodVoice);
    EXPECT_EQ(chorus.GetGainIn(), 2.0);
    EXPECT_EQ(chorus.GetGainOut(), 3.0);
}

TEST(Chorus, DeserializeBadIntensityFailsFirst)
{
    SettingsAudioChorus chorus;
    chorus.SetVoices({kGoodVoice});
    EXPECT_EQ(Effect([&] { chorus.Deserialize("intensity=2:delay=40:decay=0.4:speed=0.5:depth=2.5"); }),
              "Intensity should be in range from 0.f to 1.f");
    EXPECT_EQ(chorus.GetVoices().at(0), kGoodVoice);
}

TEST(Chorus, DeserializeBadGainLeavesTheNewVoiceApplied)
{
    SettingsAudioChorus chorus;
    chorus.SetGainInOut(2.0, 3.0);
    EXPECT_EQ(SettingsError([&] { chorus.Deserialize("delay=40:decay=0.4:speed=0.5:depth=2.5:gain_in=0"); }),
              "Invalid gain parameters");
    EXPECT_EQ(chorus.GetVoices().at(0), (Voice{40, 0.4, 0.5, 2.5}));
    EXPECT_EQ(chorus.GetGainIn(), 2.0);
    EXPECT_EQ(chorus.GetGainOut(), 3.0);
}

TEST(Chorus, DeserializeConversionFailuresPassThroughBeforeAnyVoiceIsSet)
{
    SettingsAudioChorus chorus;
    chorus.SetVoices({kGoodVoice});
    // A quoted number is kept with its quotes by GetOptionsMap: std::stoi fails.
    EXPECT_THROW(chorus.Deserialize("intensity=0.25:delay=\"40\":decay=0.4:speed=0.5:depth=2.5"),
                 std::invalid_argument);
    EXPECT_EQ(chorus.GetIntensity(), 0.25F);
    EXPECT_EQ(chorus.GetVoices().at(0), kGoodVoice);
    EXPECT_THROW(chorus.Deserialize("delay=-:decay=0.4:speed=0.5:depth=2.5"), std::invalid_argument);
    EXPECT_THROW(chorus.Deserialize("delay=99999999999:decay=0.4:speed=0.5:depth=2.5"), std::out_of_range);
    EXPECT_EQ(chorus.GetVoices().at(0), kGoodVoice);
}

TEST(Chorus, DeserializeNumericPatternAndPrefixConversions)
{
    SettingsAudioChorus chorus;
    // An unquoted word is no option: intensity stays; "1,5" reads 1; "1e3" reads 1;
    // keys in any case; the first occurrence wins; unknown keys are ignored.
    chorus.SetIntensity(0.5F);
    chorus.Deserialize("intensity=abc:DELAY=12.7:delay=99:decay=1,5:Speed=1e3:depth=0.5.5:foo=3");
    EXPECT_EQ(chorus.GetIntensity(), 0.5F);
    EXPECT_EQ(chorus.GetVoices().at(0), (Voice{12, 1.0, 1.0, 0.5}));
    // A negative delay read from the string fails the voice check.
    EXPECT_EQ(SettingsError([&] { chorus.Deserialize("delay=-10:decay=0.5:speed=1:depth=1"); }), "Invalid Voice");
}

TEST(Chorus, OperatorEqualsIsTolerantAtTheEdgeOfNearlyEqual)
{
    SettingsAudioChorus a;
    a.SetVoices({Voice{10, 0.5, 1.0, 2.0}});
    a.SetGainInOut(1.0, 1.0);
    a.SetIntensity(0.5F);
    SettingsAudioChorus b = a;
    EXPECT_TRUE(a == b);

    // One ulp apart: equal; three ulps apart: not (|a + b| * eps is about two ulps here).
    b.SetGainInOut(Up(1.0), 1.0);
    EXPECT_TRUE(a == b);
    b.SetGainInOut(Up(1.0, 3), 1.0);
    EXPECT_FALSE(a == b);
    b.SetGainInOut(1.0, Up(1.0));
    EXPECT_TRUE(a == b);
    b.SetGainInOut(1.0, Down(1.0, 5)); // ulps below 1 are half as wide
    EXPECT_FALSE(a == b);
    b.SetGainInOut(1.0, 1.0);

    b.SetIntensity(UpF(0.5F));
    EXPECT_TRUE(a == b);
    b.SetIntensity(UpF(0.5F, 3));
    EXPECT_FALSE(a == b);
    b.SetIntensity(0.5F);

    b.SetVoices({Voice{10, Up(0.5), Up(1.0), Down(2.0)}});
    EXPECT_TRUE(a == b);
    b.SetVoices({Voice{10, Up(0.5, 3), 1.0, 2.0}});
    EXPECT_FALSE(a == b);
    b.SetVoices({Voice{10, 0.5, Up(1.0, 3), 2.0}});
    EXPECT_FALSE(a == b);
    b.SetVoices({Voice{10, 0.5, 1.0, Up(2.0, 3)}});
    EXPECT_FALSE(a == b);
    b.SetVoices({Voice{11, 0.5, 1.0, 2.0}});
    EXPECT_FALSE(a == b);
    b.SetVoices({Voice{10, 0.5, 1.0, 2.0}, Voice{10, 0.5, 1.0, 2.0}});
    EXPECT_FALSE(a == b);
    b.SetVoices({});
    EXPECT_FALSE(a == b);
}

TEST(Chorus, IsEqualToIsTheBaseDefaultAndThrows)
{
    const SettingsAudioChorus a;
    const SettingsAudioChorus b;
    EXPECT_TRUE(a == b);
    EXPECT_EQ(SettingsError([&] { (void)a.IsEqualTo(b); }),
              "Not implemented comparison for settings CLASS_ID = SettingsAudioChorus");
    // The other record is not looked at.
    const SettingsAudioVibrato foreign;
    EXPECT_EQ(SettingsError([&] { (void)a.IsEqualTo(foreign); }),
              "Not implemented comparison for settings CLASS_ID = SettingsAudioChorus");
}

TEST(Chorus, CloneCopiesEveryField)
{
    SettingsAudioChorus chorus;
    chorus.SetVoices({kGoodVoice, Voice{20, 0.25, 2.0, 3.0}});
    chorus.SetGainInOut(0.5, 2.0);
    chorus.SetIntensity(0.25F);
    const auto copy = chorus.Clone();
    ASSERT_EQ(typeid(*copy), typeid(SettingsAudioChorus));
    EXPECT_EQ(copy->GetClassId(), "SettingsAudioChorus");
    EXPECT_TRUE(dynamic_cast<const SettingsAudioChorus&>(*copy) == chorus);
    chorus.SetVoices({});
    EXPECT_EQ(dynamic_cast<const SettingsAudioChorus&>(*copy).GetVoices().size(), 2U);
}

TEST(Chorus, CatalogueReadsEveryField)
{
    const auto* entry = Zorvan::SettingsCatalog::Find("SettingsAudioChorus");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->Own(), "D");
    SettingsAudioChorus chorus;
    chorus.Deserialize("intensity=0.5:delay=40:decay=0.25:speed=0.5:depth=2.5:gain_in=0.75:gain_out=1.5");
    EXPECT_EQ(Dump("SettingsAudioChorus", chorus),
              R"({"voices":[{"decay":0.25,"delay":40,"depth":2.5,"speed":0.5}],"gainIn":0.75,"gainOut":1.5,)"
              R"("intensity":0.5})");
}

// ======================================================================================
// SettingsAudioEcho
// ======================================================================================

TEST(Echo, DefaultRecordIsNeutralAndNeverEmpty)
{
    const SettingsAudioEcho echo;
    EXPECT_EQ(echo.GetClassId(), "SettingsAudioEcho");
    EXPECT_TRUE(echo.GetEchos().empty());
    EXPECT_EQ(echo.GetGainIn(), 1.0);
    EXPECT_EQ(echo.GetGainOut(), 1.0);
    EXPECT_EQ(echo.GetIntensity(), 0.0F);
    EXPECT_FALSE(echo.IsEmpty());
}

TEST(Echo, SetEchosDelayBounds)
{
    SettingsAudioEcho echo;
    echo.SetEchos({Echo{1, 0.5}, Echo{89999, 0.5}});
    EXPECT_EQ(echo.GetEchos().size(), 2U);
    EXPECT_EQ(SettingsError([&] { echo.SetEchos({Echo{0, 0.5}}); }), "Invalid Echo parameter: delay");
    EXPECT_EQ(SettingsError([&] { echo.SetEchos({Echo{90000, 0.5}}); }), "Invalid Echo parameter: delay");
    EXPECT_EQ(SettingsError([&] { echo.SetEchos({Echo{-1, 0.5}}); }), "Invalid Echo parameter: delay");
    EXPECT_EQ(echo.GetEchos().size(), 2U);
}

TEST(Echo, SetEchosDecayBounds)
{
    SettingsAudioEcho echo;
    echo.SetEchos({Echo{10, 1.0}});
    echo.SetEchos({Echo{10, std::numeric_limits<double>::denorm_min()}});
    EXPECT_EQ(SettingsError([&] { echo.SetEchos({Echo{10, 0.0}}); }), "Invalid Echo parameter: decay");
    EXPECT_EQ(SettingsError([&] { echo.SetEchos({Echo{10, Up(1.0)}}); }), "Invalid Echo parameter: decay");
    EXPECT_EQ(SettingsError([&] { echo.SetEchos({Echo{10, kNaN}}); }), "Invalid Echo parameter: decay");
    EXPECT_EQ(echo.GetEchos().at(0).decay, std::numeric_limits<double>::denorm_min());
}

TEST(Echo, SetEchosFirstFaultMetDecides)
{
    SettingsAudioEcho echo;
    echo.SetEchos({Echo{5, 0.5}});
    // First element bad decay, second bad delay: the decay message.
    EXPECT_EQ(SettingsError([&] { echo.SetEchos({Echo{10, 0.0}, Echo{0, 0.5}}); }), "Invalid Echo parameter: decay");
    // Within one element the delay is checked first.
    EXPECT_EQ(SettingsError([&] { echo.SetEchos({Echo{0, 0.0}}); }), "Invalid Echo parameter: delay");
    // A bad second element leaves the old list.
    EXPECT_EQ(SettingsError([&] { echo.SetEchos({Echo{10, 0.5}, Echo{10, 2.0}}); }), "Invalid Echo parameter: decay");
    ASSERT_EQ(echo.GetEchos().size(), 1U);
    EXPECT_EQ(echo.GetEchos()[0], (Echo{5, 0.5}));
    echo.SetEchos({});
    EXPECT_TRUE(echo.GetEchos().empty());
}

TEST(Echo, SetGainInOutStoresAnything)
{
    SettingsAudioEcho echo;
    echo.SetGainInOut(0, -1);
    EXPECT_EQ(echo.GetGainIn(), 0.0);
    EXPECT_EQ(echo.GetGainOut(), -1.0);
    echo.SetGainInOut(kNaN, 1e300);
    EXPECT_TRUE(std::isnan(echo.GetGainIn()));
    EXPECT_EQ(echo.GetGainOut(), 1e300);
}

TEST(Echo, SetIntensityBounds)
{
    SettingsAudioEcho echo;
    echo.SetIntensity(1.0F);
    echo.SetIntensity(0.0F);
    EXPECT_EQ(echo.GetIntensity(), 0.0F);
    EXPECT_EQ(Effect([&] { echo.SetIntensity(UpF(1.0F)); }), "Intensity should be in range from 0.f to 1.f");
    EXPECT_EQ(Effect([&] { echo.SetIntensity(DownF(0.0F)); }), "Intensity should be in range from 0.f to 1.f");
    EXPECT_EQ(echo.GetIntensity(), 0.0F);
    echo.SetIntensity(kNaNF);
    EXPECT_TRUE(std::isnan(echo.GetIntensity()));
}

// The issue's acceptance check: "gain_out" acts on the in-gain and wins over "gain_in"; the
// out-gain always ends at 1.
TEST(Echo, GainOutKeyReplacesGainInAndOutGainIsOne)
{
    SettingsAudioEcho echo;
    echo.SetGainInOut(3.0, 4.0);
    echo.Deserialize("gain_in=0.5:gain_out=0.25:delay=10:decay=0.5");
    EXPECT_EQ(echo.GetGainIn(), 0.25);
    EXPECT_EQ(echo.GetGainOut(), 1.0);
    ASSERT_EQ(echo.GetEchos().size(), 1U);
    EXPECT_EQ(echo.GetEchos()[0].delay, 10);
    EXPECT_EQ(echo.GetEchos()[0].decay, 0.5);
    EXPECT_EQ(echo.GetIntensity(), 0.0F);

    const auto* entry = Zorvan::SettingsCatalog::Find("SettingsAudioEcho");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->Own(), "ED");
    EXPECT_EQ(entry->FieldsToJson(echo).dump(),
              R"({"echos":[{"decay":0.5,"delay":10}],"gainIn":0.25,"gainOut":1.0,"intensity":0.0})");
}

TEST(Echo, DeserializeGainKeysAlone)
{
    SettingsAudioEcho echo;
    echo.SetGainInOut(3.0, 4.0);
    // Order in the string does not matter: gain_out still wins.
    echo.Deserialize("gain_out=0.25:gain_in=0.5:delay=10:decay=0.5");
    EXPECT_EQ(echo.GetGainIn(), 0.25);
    echo.Deserialize("gain_in=0.5:delay=10:decay=0.5");
    EXPECT_EQ(echo.GetGainIn(), 0.5);
    EXPECT_EQ(echo.GetGainOut(), 1.0);
    // Neither key: the working gain 1 reaches gainIn.
    echo.SetGainInOut(3.0, 4.0);
    echo.Deserialize("delay=10:decay=0.5");
    EXPECT_EQ(echo.GetGainIn(), 1.0);
    EXPECT_EQ(echo.GetGainOut(), 1.0);
    // Unchecked: zero and negative gains pass through the option string.
    echo.Deserialize("gain_out=-2:delay=10:decay=0.5");
    EXPECT_EQ(echo.GetGainIn(), -2.0);
}

TEST(Echo, DeserializeReplacesTheListWithOneEcho)
{
    SettingsAudioEcho echo;
    echo.SetEchos({Echo{1, 0.1}, Echo{2, 0.2}});
    echo.Deserialize("intensity=1:DELAY=89999:Decay=1");
    ASSERT_EQ(echo.GetEchos().size(), 1U);
    EXPECT_EQ(echo.GetEchos()[0], (Echo{89999, 1.0}));
    EXPECT_EQ(echo.GetIntensity(), 1.0F);
    echo.Deserialize("");
    EXPECT_EQ(echo.GetEchos().size(), 1U);
}

TEST(Echo, DeserializeWithoutDelayOrDecayFailsAfterIntensity)
{
    SettingsAudioEcho echo;
    echo.SetEchos({Echo{5, 0.5}});
    echo.SetGainInOut(3.0, 4.0);
    EXPECT_EQ(SettingsError([&] { echo.Deserialize("intensity=0.5:gain_in=0.75"); }), "Invalid Echo parameter: delay");
    EXPECT_EQ(echo.GetIntensity(), 0.5F);
    // The gains are assigned after SetEchos, so they stay.
    EXPECT_EQ(echo.GetGainIn(), 3.0);
    EXPECT_EQ(echo.GetGainOut(), 4.0);
    EXPECT_EQ(echo.GetEchos().at(0), (Echo{5, 0.5}));
    EXPECT_EQ(SettingsError([&] { echo.Deserialize("delay=10"); }), "Invalid Echo parameter: decay");
    // An unquoted word is no option: decay stays 0 and fails.
    EXPECT_EQ(SettingsError([&] { echo.Deserialize("delay=10:decay=half"); }), "Invalid Echo parameter: decay");
    EXPECT_EQ(echo.GetEchos().at(0), (Echo{5, 0.5}));
}

TEST(Echo, DeserializeConversionAndIntensityFailures)
{
    SettingsAudioEcho echo;
    EXPECT_EQ(Effect([&] { echo.Deserialize("intensity=1.5:delay=10:decay=0.5"); }),
              "Intensity should be in range from 0.f to 1.f");
    EXPECT_TRUE(echo.GetEchos().empty());
    // A quoted number keeps its quotes: std::stod fails, after intensity was applied.
    EXPECT_THROW(echo.Deserialize("intensity=0.25:gain_in=\"0.5\":delay=10:decay=0.5"), std::invalid_argument);
    EXPECT_EQ(echo.GetIntensity(), 0.25F);
    EXPECT_TRUE(echo.GetEchos().empty());
    EXPECT_THROW(echo.Deserialize("delay=3000000000:decay=0.5"), std::out_of_range);
    // Prefix reads: "12.9" gives 12, "0,5" gives 0 for decay (fails).
    echo.Deserialize("delay=12.9:decay=0.5");
    EXPECT_EQ(echo.GetEchos().at(0).delay, 12);
    EXPECT_EQ(SettingsError([&] { echo.Deserialize("delay=10:decay=0,5"); }), "Invalid Echo parameter: decay");
}

TEST(Echo, OperatorEqualsIsTolerantAtTheEdgeOfNearlyEqual)
{
    SettingsAudioEcho a;
    a.SetEchos({Echo{10, 0.5}});
    a.SetGainInOut(1.0, 2.0);
    a.SetIntensity(0.5F);
    SettingsAudioEcho b = a;
    EXPECT_TRUE(a == b);
    b.SetGainInOut(Up(1.0), Down(2.0));
    EXPECT_TRUE(a == b);
    b.SetGainInOut(Up(1.0, 3), 2.0);
    EXPECT_FALSE(a == b);
    b.SetGainInOut(1.0, Up(2.0, 3));
    EXPECT_FALSE(a == b);
    b.SetGainInOut(1.0, 2.0);
    b.SetIntensity(DownF(0.5F));
    EXPECT_TRUE(a == b);
    b.SetIntensity(DownF(0.5F, 6)); // ulps below 0.5 are half as wide
    EXPECT_FALSE(a == b);
    b.SetIntensity(0.5F);
    b.SetEchos({Echo{10, Up(0.5)}});
    EXPECT_TRUE(a == b);
    b.SetEchos({Echo{10, Up(0.5, 3)}});
    EXPECT_FALSE(a == b);
    b.SetEchos({Echo{11, 0.5}});
    EXPECT_FALSE(a == b);
    b.SetEchos({Echo{10, 0.5}, Echo{10, 0.5}});
    EXPECT_FALSE(a == b);
    // A not-a-number gain fails `nearly equal`, even against itself.
    SettingsAudioEcho n;
    n.SetGainInOut(kNaN, 1.0);
    EXPECT_FALSE(n == n);
}

TEST(Echo, IsEqualToUsesOperatorEqualsAndRejectsForeignClasses)
{
    SettingsAudioEcho a;
    a.SetEchos({Echo{10, 0.5}});
    SettingsAudioEcho b = a;
    EXPECT_TRUE(a.IsEqualTo(b));
    b.SetGainInOut(Up(1.0), 1.0);
    EXPECT_TRUE(a.IsEqualTo(b));
    b.SetGainInOut(Up(1.0, 3), 1.0);
    EXPECT_FALSE(a.IsEqualTo(b));
    const SettingsAudioChorus chorus;
    EXPECT_THROW((void)a.IsEqualTo(chorus), std::bad_cast);
}

TEST(Echo, CloneCopiesEveryField)
{
    SettingsAudioEcho echo;
    echo.SetEchos({Echo{10, 0.5}, Echo{20, 0.25}});
    echo.SetGainInOut(0, -1);
    echo.SetIntensity(0.75F);
    const auto copy = echo.Clone();
    ASSERT_EQ(typeid(*copy), typeid(SettingsAudioEcho));
    EXPECT_TRUE(echo.IsEqualTo(*copy));
    const auto& c = dynamic_cast<const SettingsAudioEcho&>(*copy);
    EXPECT_EQ(c.GetEchos().size(), 2U);
    EXPECT_EQ(c.GetGainIn(), 0.0);
    EXPECT_EQ(c.GetGainOut(), -1.0);
    EXPECT_EQ(c.GetIntensity(), 0.75F);
}

// ======================================================================================
// SettingsAudioFlanger
// ======================================================================================

TEST(Flanger, DefaultRecordIsValidAndNeverEmpty)
{
    const SettingsAudioFlanger flanger;
    EXPECT_EQ(flanger.GetClassId(), "SettingsAudioFlanger");
    EXPECT_EQ(flanger.GetDelay(), 0.0F);
    EXPECT_EQ(flanger.GetDepth(), 0.0F);
    EXPECT_EQ(flanger.GetRegen(), 0.0F);
    EXPECT_EQ(flanger.GetIntensity(), 0.0F);
    EXPECT_EQ(flanger.GetSpeed(), 0.1F);
    EXPECT_EQ(flanger.GetPhase(), 0.0F);
    EXPECT_EQ(flanger.GetShape(), ShapeType::Triangular);
    EXPECT_EQ(flanger.GetInterpolation(), InterpolationType::Linear);
    EXPECT_FALSE(flanger.IsEmpty());
}

namespace {

using FlangerSetter = void (SettingsAudioFlanger::*)(float);
using FlangerGetter = float (SettingsAudioFlanger::*)() const;

// Both bounds pass, one ulp outside each fails with the message and leaves the field, NaN
// passes and is stored.
void CheckFlangerRange(FlangerSetter set, FlangerGetter get, float low, float high, const std::string& message)
{
    SettingsAudioFlanger flanger;
    (flanger.*set)(low);
    EXPECT_EQ((flanger.*get)(), low);
    (flanger.*set)(high);
    EXPECT_EQ((flanger.*get)(), high);
    EXPECT_EQ(Effect([&] { (flanger.*set)(UpF(high)); }), message);
    EXPECT_EQ(Effect([&] { (flanger.*set)(DownF(low)); }), message);
    EXPECT_EQ((flanger.*get)(), high);
    (flanger.*set)(kNaNF);
    EXPECT_TRUE(std::isnan((flanger.*get)()));
}

} // namespace

TEST(Flanger, SetterBounds)
{
    CheckFlangerRange(&SettingsAudioFlanger::SetDelay, &SettingsAudioFlanger::GetDelay, 0.0F, 30.0F,
                      "Delay should be in range from 0.0f to 30.f");
    CheckFlangerRange(&SettingsAudioFlanger::SetDepth, &SettingsAudioFlanger::GetDepth, 0.0F, 10.0F,
                      "Depth should be in range from 0.f to 10.f");
    CheckFlangerRange(&SettingsAudioFlanger::SetRegen, &SettingsAudioFlanger::GetRegen, -95.0F, 95.0F,
                      "Regen should be in range from -95.f to 95.f");
    CheckFlangerRange(&SettingsAudioFlanger::SetIntensity, &SettingsAudioFlanger::GetIntensity, 0.0F, 1.0F,
                      "Intensity should be in range from 0.f to 1.f");
    CheckFlangerRange(&SettingsAudioFlanger::SetSpeed, &SettingsAudioFlanger::GetSpeed, 0.1F, 10.0F,
                      "Speed should be in range from 0.1f to 10.f");
    CheckFlangerRange(&SettingsAudioFlanger::SetPhase, &SettingsAudioFlanger::GetPhase, 0.0F, 100.0F,
                      "Release should be in range from 0.f to 100.f");
}

TEST(Flanger, SetPhase101FailsWithTheReleaseMessage)
{
    SettingsAudioFlanger flanger;
    flanger.SetPhase(50.0F);
    EXPECT_EQ(Effect([&] { flanger.SetPhase(101.0F); }), "Release should be in range from 0.f to 100.f");
    EXPECT_EQ(flanger.GetPhase(), 50.0F);
}

TEST(Flanger, SetRegenMinus95Passes)
{
    SettingsAudioFlanger flanger;
    flanger.SetRegen(-95.0F);
    EXPECT_EQ(flanger.GetRegen(), -95.0F);
}

TEST(Flanger, DeserializeAppliesEveryNumericKeyThroughTheSetters)
{
    SettingsAudioFlanger flanger;
    flanger.Deserialize("delay=30:depth=10:regen=-95:intensity=1:speed=10:phase=100");
    EXPECT_EQ(flanger.GetDelay(), 30.0F);
    EXPECT_EQ(flanger.GetDepth(), 10.0F);
    EXPECT_EQ(flanger.GetRegen(), -95.0F);
    EXPECT_EQ(flanger.GetIntensity(), 1.0F);
    EXPECT_EQ(flanger.GetSpeed(), 10.0F);
    EXPECT_EQ(flanger.GetPhase(), 100.0F);
    // Absent keys leave their fields; the static key list serves a second call.
    flanger.Deserialize("PHASE=2.5");
    EXPECT_EQ(flanger.GetPhase(), 2.5F);
    EXPECT_EQ(flanger.GetDelay(), 30.0F);
    flanger.Deserialize("");
    EXPECT_EQ(flanger.GetPhase(), 2.5F);
}

TEST(Flanger, DeserializeStopsAtTheFirstFailingKey)
{
    SettingsAudioFlanger flanger;
    // Key order, not string order: phase comes last in the string but after speed in the list.
    EXPECT_EQ(Effect([&] { flanger.Deserialize("phase=5:regen=10:delay=5:depth=11:intensity=0.5"); }),
              "Depth should be in range from 0.f to 10.f");
    EXPECT_EQ(flanger.GetDelay(), 5.0F);
    EXPECT_EQ(flanger.GetDepth(), 0.0F);
    EXPECT_EQ(flanger.GetRegen(), 0.0F);
    EXPECT_EQ(flanger.GetIntensity(), 0.0F);
    EXPECT_EQ(flanger.GetPhase(), 0.0F);
    EXPECT_EQ(Effect([&] { flanger.Deserialize("speed=0.05:phase=5"); }), "Speed should be in range from 0.1f to 10.f");
    EXPECT_EQ(flanger.GetPhase(), 0.0F);
    EXPECT_THROW(flanger.Deserialize("delay=1:depth=\"2\""), std::invalid_argument);
    EXPECT_EQ(flanger.GetDelay(), 1.0F);
}

TEST(Flanger, DeserializeNumericPatternPrefixReads)
{
    SettingsAudioFlanger flanger;
    // "1e50" holds the option "1"; "2,5" reads 2; "-" alone fails std::stof.
    flanger.Deserialize("delay=1e50:depth=2,5");
    EXPECT_EQ(flanger.GetDelay(), 1.0F);
    EXPECT_EQ(flanger.GetDepth(), 2.0F);
    EXPECT_THROW(flanger.Deserialize("regen=-"), std::invalid_argument);
    // An unquoted word is no option.
    flanger.Deserialize("regen=high");
    EXPECT_EQ(flanger.GetRegen(), 0.0F);
}

TEST(Flanger, QuotedShapeFailsAndKeysBeforeItStayApplied)
{
    SettingsAudioFlanger flanger;
    EXPECT_EQ(Effect([&] { flanger.Deserialize("delay=5:phase=7:shape=\"triangular\":interpolation=\"quadratic\""); }),
              "Unknown value of shape type");
    EXPECT_EQ(flanger.GetDelay(), 5.0F);
    EXPECT_EQ(flanger.GetPhase(), 7.0F);
    EXPECT_EQ(flanger.GetShape(), ShapeType::Triangular);
    EXPECT_EQ(flanger.GetInterpolation(), InterpolationType::Linear);
}

TEST(Flanger, UnquotedShapeIsNoOptionAndTheFieldStays)
{
    SettingsAudioFlanger flanger;
    flanger.SetShape(ShapeType::Sinusoidal);
    flanger.SetInterpolation(InterpolationType::Quadratic);
    flanger.Deserialize("shape=triangular:interpolation=linear:delay=3");
    EXPECT_EQ(flanger.GetShape(), ShapeType::Sinusoidal);
    EXPECT_EQ(flanger.GetInterpolation(), InterpolationType::Quadratic);
    EXPECT_EQ(flanger.GetDelay(), 3.0F);
}

TEST(Flanger, ShapeAndInterpolationNumbersAndQuotedWordsFail)
{
    SettingsAudioFlanger flanger;
    EXPECT_EQ(Effect([&] { flanger.Deserialize("shape=1"); }), "Unknown value of shape type");
    EXPECT_EQ(Effect([&] { flanger.Deserialize("shape=\"sinusoidal\""); }), "Unknown value of shape type");
    EXPECT_EQ(Effect([&] { flanger.Deserialize("interpolation=0"); }), "Unknown value of interpolation type");
    EXPECT_EQ(Effect([&] { flanger.Deserialize("interpolation=\"linear\""); }), "Unknown value of interpolation type");
    // The shape is looked at before the interpolation.
    EXPECT_EQ(Effect([&] { flanger.Deserialize("interpolation=1:shape=1"); }), "Unknown value of shape type");
    EXPECT_EQ(flanger.GetShape(), ShapeType::Triangular);
    EXPECT_EQ(flanger.GetInterpolation(), InterpolationType::Linear);
}

TEST(Flanger, StreamOutputOfEveryValue)
{
    std::ostringstream out;
    EXPECT_EQ(&(out << ShapeType::Triangular), &out);
    out << '|' << ShapeType::Sinusoidal << '|' << InterpolationType::Linear << '|' << InterpolationType::Quadratic;
    EXPECT_EQ(out.str(), "triangular|sinusoidal|linear|quadratic");
}

TEST(Flanger, StreamOutputOfUnknownValuesThrows)
{
    std::ostringstream out;
    EXPECT_EQ(Effect([&] { out << static_cast<ShapeType>(2); }), "Unknown shape type");
    EXPECT_EQ(Effect([&] { out << static_cast<ShapeType>(-1); }), "Unknown shape type");
    EXPECT_EQ(Effect([&] { out << static_cast<InterpolationType>(2); }), "Unknown interpolation type");
    EXPECT_EQ(out.str(), "");
}

TEST(Flanger, IsEqualToComparesAllEightFieldsExactly)
{
    SettingsAudioFlanger a;
    a.Deserialize("delay=5:depth=2:regen=-10:intensity=0.5:speed=1:phase=20");
    SettingsAudioFlanger b = a;
    EXPECT_TRUE(a.IsEqualTo(b));
    const auto differs = [&](auto change) {
        SettingsAudioFlanger c = a;
        change(c);
        return !a.IsEqualTo(c) && !c.IsEqualTo(a);
    };
    EXPECT_TRUE(differs([](SettingsAudioFlanger& c) { c.SetDelay(UpF(5.0F)); }));
    EXPECT_TRUE(differs([](SettingsAudioFlanger& c) { c.SetDepth(UpF(2.0F)); }));
    EXPECT_TRUE(differs([](SettingsAudioFlanger& c) { c.SetRegen(UpF(-10.0F)); }));
    EXPECT_TRUE(differs([](SettingsAudioFlanger& c) { c.SetIntensity(UpF(0.5F)); }));
    EXPECT_TRUE(differs([](SettingsAudioFlanger& c) { c.SetSpeed(UpF(1.0F)); }));
    EXPECT_TRUE(differs([](SettingsAudioFlanger& c) { c.SetPhase(UpF(20.0F)); }));
    EXPECT_TRUE(differs([](SettingsAudioFlanger& c) { c.SetShape(ShapeType::Sinusoidal); }));
    EXPECT_TRUE(differs([](SettingsAudioFlanger& c) { c.SetInterpolation(InterpolationType::Quadratic); }));
    // Exact: a not-a-number field is unequal to itself.
    SettingsAudioFlanger n;
    n.SetDelay(kNaNF);
    EXPECT_FALSE(n.IsEqualTo(n));
    const SettingsAudioVibrato foreign;
    EXPECT_THROW((void)a.IsEqualTo(foreign), std::bad_cast);
}

TEST(Flanger, CloneAndCatalogue)
{
    SettingsAudioFlanger flanger;
    flanger.Deserialize("delay=5:depth=2:regen=-10:intensity=0.5:speed=1:phase=20");
    flanger.SetShape(ShapeType::Sinusoidal);
    flanger.SetInterpolation(InterpolationType::Quadratic);
    const auto copy = flanger.Clone();
    ASSERT_EQ(typeid(*copy), typeid(SettingsAudioFlanger));
    EXPECT_TRUE(flanger.IsEqualTo(*copy));

    const auto* entry = Zorvan::SettingsCatalog::Find("SettingsAudioFlanger");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->Own(), "ED");
    EXPECT_EQ(entry->FieldsToJson(*copy).dump(),
              R"({"delay":5.0,"depth":2.0,"regen":-10.0,"intensity":0.5,"speed":1.0,"phase":20.0,"shape":1,)"
              R"("interpolation":1})");
}

// ======================================================================================
// SettingsAudioVibrato
// ======================================================================================

TEST(Vibrato, DefaultRecordIsValidAndNeverEmpty)
{
    const SettingsAudioVibrato vibrato;
    EXPECT_EQ(vibrato.GetClassId(), "SettingsAudioVibrato");
    EXPECT_EQ(vibrato.GetFrequency(), 5.0F);
    EXPECT_EQ(vibrato.GetIntensity(), 0.0F);
    EXPECT_FALSE(vibrato.IsEmpty());
}

TEST(Vibrato, SetFrequencyBounds)
{
    SettingsAudioVibrato vibrato;
    vibrato.SetFrequency(0.1F);
    EXPECT_EQ(vibrato.GetFrequency(), 0.1F);
    vibrato.SetFrequency(20000.0F);
    EXPECT_EQ(vibrato.GetFrequency(), 20000.0F);
    EXPECT_EQ(Effect([&] { vibrato.SetFrequency(UpF(20000.0F)); }),
              "Frequency should be in range from 0.1f to 20000.f");
    EXPECT_EQ(Effect([&] { vibrato.SetFrequency(DownF(0.1F)); }), "Frequency should be in range from 0.1f to 20000.f");
    EXPECT_EQ(vibrato.GetFrequency(), 20000.0F);
    vibrato.SetFrequency(kNaNF);
    EXPECT_TRUE(std::isnan(vibrato.GetFrequency()));
}

TEST(Vibrato, SetIntensityBounds)
{
    SettingsAudioVibrato vibrato;
    vibrato.SetIntensity(1.0F);
    vibrato.SetIntensity(0.0F);
    EXPECT_EQ(Effect([&] { vibrato.SetIntensity(UpF(1.0F)); }), "Intensity should be in range from 0.f to 1.f");
    EXPECT_EQ(Effect([&] { vibrato.SetIntensity(DownF(0.0F)); }), "Intensity should be in range from 0.f to 1.f");
    EXPECT_EQ(vibrato.GetIntensity(), 0.0F);
    vibrato.SetIntensity(kNaNF);
    EXPECT_TRUE(std::isnan(vibrato.GetIntensity()));
}

TEST(Vibrato, DeserializeOrderAndFailures)
{
    SettingsAudioVibrato vibrato;
    vibrato.Deserialize("intensity=0.5:frequency=440");
    EXPECT_EQ(vibrato.GetFrequency(), 440.0F);
    EXPECT_EQ(vibrato.GetIntensity(), 0.5F);
    // frequency is applied first, so a bad intensity leaves the new frequency.
    EXPECT_EQ(Effect([&] { vibrato.Deserialize("intensity=2:frequency=100"); }),
              "Intensity should be in range from 0.f to 1.f");
    EXPECT_EQ(vibrato.GetFrequency(), 100.0F);
    EXPECT_EQ(vibrato.GetIntensity(), 0.5F);
    // A bad frequency stops before the intensity.
    EXPECT_EQ(Effect([&] { vibrato.Deserialize("frequency=0.05:intensity=1"); }),
              "Frequency should be in range from 0.1f to 20000.f");
    EXPECT_EQ(vibrato.GetIntensity(), 0.5F);
    EXPECT_THROW(vibrato.Deserialize("frequency=\"440\""), std::invalid_argument);
    // Unquoted words are no options; empty string changes nothing.
    vibrato.Deserialize("frequency=high:intensity=full");
    vibrato.Deserialize("");
    EXPECT_EQ(vibrato.GetFrequency(), 100.0F);
    EXPECT_EQ(vibrato.GetIntensity(), 0.5F);
}

TEST(Vibrato, IsEqualToComparesBothFieldsExactly)
{
    SettingsAudioVibrato a;
    a.Deserialize("frequency=440:intensity=0.5");
    SettingsAudioVibrato b = a;
    EXPECT_TRUE(a.IsEqualTo(b));
    b.SetFrequency(UpF(440.0F));
    EXPECT_FALSE(a.IsEqualTo(b));
    b = a;
    b.SetIntensity(UpF(0.5F));
    EXPECT_FALSE(a.IsEqualTo(b));
    const SettingsAudioFlanger foreign;
    EXPECT_THROW((void)a.IsEqualTo(foreign), std::bad_cast);
}

TEST(Vibrato, CloneAndCatalogue)
{
    SettingsAudioVibrato vibrato;
    vibrato.Deserialize("frequency=440:intensity=0.25");
    const auto copy = vibrato.Clone();
    ASSERT_EQ(typeid(*copy), typeid(SettingsAudioVibrato));
    EXPECT_TRUE(vibrato.IsEqualTo(*copy));
    const auto* entry = Zorvan::SettingsCatalog::Find("SettingsAudioVibrato");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->Own(), "ED");
    EXPECT_EQ(entry->FieldsToJson(*copy).dump(), R"({"frequency":440.0,"intensity":0.25})");
}
