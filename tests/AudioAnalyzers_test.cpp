// Part 3.3: audio analyzers: SettingsAnalyzerAudioDetectShift, SettingsAnalyzerSilenceDetector,
// their results and the IAnalyzerResult interface.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <stdexcept>
#include <type_traits>
#include <utility>
#include <vector>

#include "Proc/Settings/IAnalyzerResult.h"
#include "Proc/Settings/SettingsAnalyzerAudioDetectShift.h"
#include "Proc/Settings/SettingsAnalyzerSilenceDetector.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormADescription;
using ZorvanTest::FormBDescription;

using ShiftResult = SettingsAnalyzerAudioDetectShift::Result;
using SilenceResult = SettingsAnalyzerSilenceDetector::Result;
using Intervals = std::vector<std::pair<long long, long long>>;

static_assert(std::has_virtual_destructor_v<IAnalyzerResult>);
static_assert(std::is_base_of_v<IAnalyzerResult, ShiftResult>);
static_assert(std::is_base_of_v<IAnalyzerResult, SilenceResult>);
static_assert(std::is_base_of_v<Settings, SettingsAnalyzerAudioDetectShift>);
static_assert(std::is_base_of_v<Settings, SettingsAnalyzerSilenceDetector>);
static_assert(sizeof(SettingsAnalyzerAudioDetectShift().GetSampleRate()) == 4);
static_assert(sizeof(SettingsAnalyzerAudioDetectShift().GetWindow()) == 8);
static_assert(sizeof(SettingsAnalyzerAudioDetectShift().GetPatternStep()) == 8);
static_assert(std::is_same_v<decltype(SettingsAnalyzerSilenceDetector().GetMinSilenceDuration()), avTime>);

// ---------------------------------------------------------------- IAnalyzerResult

namespace {

struct CountingResult : IAnalyzerResult {
    explicit CountingResult(int& destroyed)
        : destroyed(destroyed)
    {
    }
    ~CountingResult() override { ++destroyed; }
    int& destroyed;
};

} // namespace

TEST(AnalyzerResult, AResultIsDestroyedThroughTheInterface)
{
    int destroyed = 0;
    {
        std::unique_ptr<IAnalyzerResult> held = std::make_unique<CountingResult>(destroyed);
    }
    EXPECT_EQ(destroyed, 1);
}

TEST(AnalyzerResult, BothResultsAreHeldAndRecoveredThroughTheInterface)
{
    std::vector<std::unique_ptr<IAnalyzerResult>> results;
    results.push_back(std::make_unique<ShiftResult>(-7, 0.5));
    auto silence = std::make_unique<SilenceResult>();
    silence->AddSilenceInterval(2000, 3000);
    results.push_back(std::move(silence));

    const auto* shift = dynamic_cast<const ShiftResult*>(results[0].get());
    ASSERT_NE(shift, nullptr);
    EXPECT_EQ(shift->GetShift(), -7);
    EXPECT_EQ(dynamic_cast<const SilenceResult*>(results[0].get()), nullptr);
    const auto* intervals = dynamic_cast<const SilenceResult*>(results[1].get());
    ASSERT_NE(intervals, nullptr);
    EXPECT_EQ(intervals->GetResult(), (Intervals{{2, 3}}));
}

// ---------------------------------------------------------------- SettingsAnalyzerAudioDetectShift

TEST(AudioDetectShift, ClassIdAndDefaultsAreValid)
{
    SettingsAnalyzerAudioDetectShift shift;
    EXPECT_EQ(SettingsAnalyzerAudioDetectShift::CLASS_ID, "SettingsAnalyzerAudioDetectShift");
    EXPECT_EQ(&shift.GetClassId(), &SettingsAnalyzerAudioDetectShift::CLASS_ID);
    EXPECT_EQ(shift.GetSampleRate(), 48000);
    EXPECT_EQ(shift.GetWindow(), 10UL);
    EXPECT_EQ(shift.GetPatternStep(), 1UL);
    EXPECT_EQ(SettingsAnalyzerAudioDetectShift::MIN_WINDOW_SEC, 10UL);
    EXPECT_EQ(SettingsAnalyzerAudioDetectShift::MIN_PATTERN_STEP_SEC, 1UL);
}

TEST(AudioDetectShift, SetWindowNineFailsAndTenStores)
{
    SettingsAnalyzerAudioDetectShift shift;
    shift.SetWindow(25);
    EXPECT_EQ(FormADescription<SettingsException>([&] { shift.SetWindow(9); }), "Invalid window (less than 10 sec)");
    EXPECT_EQ(shift.GetWindow(), 25UL);
    EXPECT_EQ(FormADescription<SettingsException>([&] { shift.SetWindow(0); }), "Invalid window (less than 10 sec)");
    shift.SetWindow(10);
    EXPECT_EQ(shift.GetWindow(), 10UL);
    shift.SetWindow(std::numeric_limits<unsigned long>::max());
    EXPECT_EQ(shift.GetWindow(), std::numeric_limits<unsigned long>::max());
}

TEST(AudioDetectShift, SetPatternStepZeroFailsAndOneStores)
{
    SettingsAnalyzerAudioDetectShift shift;
    shift.SetPatternStep(4);
    EXPECT_EQ(FormADescription<SettingsException>([&] { shift.SetPatternStep(0); }),
              "Invalid pattern step (less than 1 sec)");
    EXPECT_EQ(shift.GetPatternStep(), 4UL);
    shift.SetPatternStep(1);
    EXPECT_EQ(shift.GetPatternStep(), 1UL);
}

TEST(AudioDetectShift, SetSampleRateZeroAndNegativeFailAndOneStores)
{
    SettingsAnalyzerAudioDetectShift shift;
    shift.SetSampleRate(44100);
    EXPECT_EQ(FormADescription<SettingsException>([&] { shift.SetSampleRate(0); }), "Invalid sample rate");
    EXPECT_EQ(FormADescription<SettingsException>([&] { shift.SetSampleRate(-1); }), "Invalid sample rate");
    EXPECT_EQ(FormADescription<SettingsException>([&] { shift.SetSampleRate(std::numeric_limits<int>::min()); }),
              "Invalid sample rate");
    EXPECT_EQ(shift.GetSampleRate(), 44100);
    shift.SetSampleRate(1);
    EXPECT_EQ(shift.GetSampleRate(), 1);
}

TEST(AudioDetectShift, DeserializeReadsTheThreeKeysWhateverTheirOrderInTheString)
{
    SettingsAnalyzerAudioDetectShift shift;
    shift.Deserialize("patternStep=3:WINDOW=20:samplerate=44100");
    EXPECT_EQ(shift.GetSampleRate(), 44100);
    EXPECT_EQ(shift.GetWindow(), 20UL);
    EXPECT_EQ(shift.GetPatternStep(), 3UL);
}

TEST(AudioDetectShift, DeserializeEmptyStringAndAbsentKeysLeaveTheFields)
{
    SettingsAnalyzerAudioDetectShift shift;
    shift.Deserialize("sampleRate=8000:window=30:patternStep=2");
    shift.Deserialize("");
    shift.Deserialize("other=5");
    shift.Deserialize("window=40");
    EXPECT_EQ(shift.GetSampleRate(), 8000);
    EXPECT_EQ(shift.GetWindow(), 40UL);
    EXPECT_EQ(shift.GetPatternStep(), 2UL);
}

TEST(AudioDetectShift, DeserializeUsesTheStandardConversionsOfTheMapForm)
{
    SettingsAnalyzerAudioDetectShift shift;
    // std::stoi and std::stoull read the longest valid prefix.
    shift.Deserialize("sampleRate=22050,5:window=12.9:patternStep=7-1");
    EXPECT_EQ(shift.GetSampleRate(), 22050);
    EXPECT_EQ(shift.GetWindow(), 12UL);
    EXPECT_EQ(shift.GetPatternStep(), 7UL);
    // An unquoted word is no option under the numeric value pattern.
    shift.Deserialize("sampleRate=abc:window=x15");
    EXPECT_EQ(shift.GetSampleRate(), 22050);
    EXPECT_EQ(shift.GetWindow(), 12UL);
    // A quoted number and a lone hyphen fail the conversion; a value beyond 32 bits is out of range.
    EXPECT_THROW(shift.Deserialize("sampleRate=\"16000\""), std::invalid_argument);
    EXPECT_THROW(shift.Deserialize("window=-"), std::invalid_argument);
    EXPECT_THROW(shift.Deserialize("sampleRate=2147483648"), std::out_of_range);
    EXPECT_THROW(shift.Deserialize("window=18446744073709551616"), std::out_of_range);
    EXPECT_EQ(shift.GetSampleRate(), 22050);
    EXPECT_EQ(shift.GetWindow(), 12UL);
}

TEST(AudioDetectShift, DeserializeNegativeWindowWrapsToALargeValueThatTheSetterAccepts)
{
    SettingsAnalyzerAudioDetectShift shift;
    shift.Deserialize("window=-5");
    EXPECT_EQ(shift.GetWindow(), 18446744073709551611UL);
    shift.Deserialize("patternStep=-1");
    EXPECT_EQ(shift.GetPatternStep(), 18446744073709551615UL);
}

TEST(AudioDetectShift, DeserializeValuesGoThroughTheSetters)
{
    SettingsAnalyzerAudioDetectShift shift;
    EXPECT_EQ(FormADescription<SettingsException>([&] { shift.Deserialize("sampleRate=0"); }), "Invalid sample rate");
    EXPECT_EQ(FormADescription<SettingsException>([&] { shift.Deserialize("sampleRate=-8000"); }),
              "Invalid sample rate");
    EXPECT_EQ(FormADescription<SettingsException>([&] { shift.Deserialize("window=9"); }),
              "Invalid window (less than 10 sec)");
    EXPECT_EQ(FormADescription<SettingsException>([&] { shift.Deserialize("patternStep=0"); }),
              "Invalid pattern step (less than 1 sec)");
    EXPECT_EQ(shift.GetSampleRate(), 48000);
    EXPECT_EQ(shift.GetWindow(), 10UL);
    EXPECT_EQ(shift.GetPatternStep(), 1UL);
}

TEST(AudioDetectShift, DeserializeFailingKeyLeavesEarlierKeysAppliedAndLaterOnesUnread)
{
    // Order: sampleRate, window, patternStep, whatever the order in the string.
    SettingsAnalyzerAudioDetectShift shift;
    EXPECT_EQ(
        FormADescription<SettingsException>([&] { shift.Deserialize("patternStep=7:window=5:sampleRate=22050"); }),
        "Invalid window (less than 10 sec)");
    EXPECT_EQ(shift.GetSampleRate(), 22050);
    EXPECT_EQ(shift.GetWindow(), 10UL);
    EXPECT_EQ(shift.GetPatternStep(), 1UL);

    EXPECT_EQ(
        FormADescription<SettingsException>([&] { shift.Deserialize("patternStep=0:window=60:sampleRate=16000"); }),
        "Invalid pattern step (less than 1 sec)");
    EXPECT_EQ(shift.GetSampleRate(), 16000);
    EXPECT_EQ(shift.GetWindow(), 60UL);
    EXPECT_EQ(shift.GetPatternStep(), 1UL);

    EXPECT_EQ(FormADescription<SettingsException>([&] { shift.Deserialize("window=90:sampleRate=0"); }),
              "Invalid sample rate");
    EXPECT_EQ(shift.GetWindow(), 60UL);
}

TEST(AudioDetectShift, IsEqualToThrowsTheBaseFailureAndIsEmptyIsFalse)
{
    SettingsAnalyzerAudioDetectShift shift;
    const SettingsAnalyzerAudioDetectShift other;
    EXPECT_EQ(FormADescription<SettingsException>([&] { (void)shift.IsEqualTo(other); }),
              "Not implemented comparison for settings CLASS_ID = SettingsAnalyzerAudioDetectShift");
    EXPECT_EQ(FormADescription<SettingsException>([&] { (void)shift.IsEqualTo(shift); }),
              "Not implemented comparison for settings CLASS_ID = SettingsAnalyzerAudioDetectShift");
    EXPECT_FALSE(shift.IsEmpty());
}

TEST(AudioDetectShift, CloneCopiesEveryField)
{
    SettingsAnalyzerAudioDetectShift shift;
    shift.Deserialize("sampleRate=96000:window=120:patternStep=5");
    const std::unique_ptr<Settings> clone = shift.Clone();
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(clone->GetClassId(), "SettingsAnalyzerAudioDetectShift");
    const auto* copy = dynamic_cast<const SettingsAnalyzerAudioDetectShift*>(clone.get());
    ASSERT_NE(copy, nullptr);
    EXPECT_NE(copy, &shift);
    EXPECT_EQ(copy->GetSampleRate(), 96000);
    EXPECT_EQ(copy->GetWindow(), 120UL);
    EXPECT_EQ(copy->GetPatternStep(), 5UL);
}

TEST(AudioDetectShift, ResultHoldsTheShiftAndTheScoreOfItsConstruction)
{
    const ShiftResult result(-9000000000LL, 0.125);
    EXPECT_EQ(result.GetShift(), -9000000000LL);
    EXPECT_EQ(result.GetScore(), 0.125);
    const ShiftResult copy = result;
    EXPECT_EQ(copy.GetShift(), -9000000000LL);
    EXPECT_EQ(copy.GetScore(), 0.125);
    static_assert(!std::is_default_constructible_v<ShiftResult>);
}

TEST(AudioDetectShift, CatalogueReadsTheThreeFields)
{
    const auto* entry = Zorvan::SettingsCatalog::Find("SettingsAnalyzerAudioDetectShift");
    ASSERT_NE(entry, nullptr);
    SettingsAnalyzerAudioDetectShift shift;
    shift.Deserialize("sampleRate=44100:window=15:patternStep=3");
    EXPECT_EQ(entry->FieldsToJson(shift).dump(), R"({"sampleRate":44100,"window":15,"patternStep":3})");
}

// ---------------------------------------------------------------- SettingsAnalyzerSilenceDetector

TEST(SilenceDetector, ClassIdAndDefaultsAreValid)
{
    SettingsAnalyzerSilenceDetector detector;
    EXPECT_EQ(SettingsAnalyzerSilenceDetector::CLASS_ID, "SettingsAnalyzerSilenceDetector");
    EXPECT_EQ(&detector.GetClassId(), &SettingsAnalyzerSilenceDetector::CLASS_ID);
    EXPECT_EQ(detector.GetThreshold(), 0.0F);
    EXPECT_EQ(detector.GetMinSilenceDuration(), 100000);
}

TEST(SilenceDetector, SetMinSilenceDurationTakesMillisecondsAndStoresMicroseconds)
{
    SettingsAnalyzerSilenceDetector detector;
    detector.SetMinSilenceDuration(100);
    EXPECT_EQ(detector.GetMinSilenceDuration(), 100000);
    detector.SetMinSilenceDuration(2500);
    EXPECT_EQ(detector.GetMinSilenceDuration(), 2500000);
}

TEST(SilenceDetector, SetMinSilenceDurationBelowOneHundredFailsAndLeavesTheField)
{
    SettingsAnalyzerSilenceDetector detector;
    detector.SetMinSilenceDuration(250);
    EXPECT_EQ(FormADescription<SettingsException>([&] { detector.SetMinSilenceDuration(99); }),
              "Invalid minimum silence duration. Should be more than 100ms");
    EXPECT_EQ(FormADescription<SettingsException>([&] { detector.SetMinSilenceDuration(-100); }),
              "Invalid minimum silence duration. Should be more than 100ms");
    EXPECT_EQ(detector.GetMinSilenceDuration(), 250000);
}

TEST(SilenceDetector, SetMinSilenceDurationBeyondTheRangeWrapsWithoutSignedOverflow)
{
    // (2^63 - 1) * 1000 modulo 2^64 is -1000 in signed 64 bits.
    SettingsAnalyzerSilenceDetector detector;
    detector.SetMinSilenceDuration(std::numeric_limits<avTime>::max());
    EXPECT_EQ(detector.GetMinSilenceDuration(), -1000);
}

TEST(SilenceDetector, SetThresholdAcceptsZeroToOneInclusive)
{
    SettingsAnalyzerSilenceDetector detector;
    detector.SetThreshold(1.0F);
    EXPECT_EQ(detector.GetThreshold(), 1.0F);
    detector.SetThreshold(0.0F);
    EXPECT_EQ(detector.GetThreshold(), 0.0F);
    detector.SetThreshold(0.3F);
    EXPECT_EQ(detector.GetThreshold(), 0.3F);
}

TEST(SilenceDetector, SetThresholdOutsideZeroToOneFailsAndLeavesTheField)
{
    SettingsAnalyzerSilenceDetector detector;
    detector.SetThreshold(0.3F);
    const char* message = "Invalid threshold! Should be in range from 0.0 to 1.0";
    EXPECT_EQ(FormADescription<SettingsException>([&] { detector.SetThreshold(-0.01F); }), message);
    EXPECT_EQ(FormADescription<SettingsException>([&] { detector.SetThreshold(std::nextafter(1.0F, 2.0F)); }), message);
    EXPECT_EQ(FormADescription<SettingsException>([&] { detector.SetThreshold(std::nanf("")); }), message);
    EXPECT_EQ(detector.GetThreshold(), 0.3F);
}

TEST(SilenceDetector, DeserializeReadsThresholdAndMillisecondsWithGetOption)
{
    SettingsAnalyzerSilenceDetector detector;
    detector.Deserialize("minSilenceDuration=250:threshold=0.25");
    EXPECT_EQ(detector.GetThreshold(), 0.25F);
    EXPECT_EQ(detector.GetMinSilenceDuration(), 250000);
    // The default value pattern of GetOption: a quoted value loses its quotes, and strtof reads exponents.
    detector.Deserialize("THRESHOLD=5e-1:minsilenceduration=\"300\"");
    EXPECT_EQ(detector.GetThreshold(), 0.5F);
    EXPECT_EQ(detector.GetMinSilenceDuration(), 300000);
}

TEST(SilenceDetector, DeserializeEmptyStringAndAbsentKeysLeaveTheFields)
{
    SettingsAnalyzerSilenceDetector detector;
    detector.Deserialize("threshold=0.75:minSilenceDuration=400");
    detector.Deserialize("");
    detector.Deserialize("duration=900");
    EXPECT_EQ(detector.GetThreshold(), 0.75F);
    EXPECT_EQ(detector.GetMinSilenceDuration(), 400000);
    detector.Deserialize("threshold=0.5");
    EXPECT_EQ(detector.GetThreshold(), 0.5F);
    EXPECT_EQ(detector.GetMinSilenceDuration(), 400000);
    detector.Deserialize("minSilenceDuration=150");
    EXPECT_EQ(detector.GetThreshold(), 0.5F);
    EXPECT_EQ(detector.GetMinSilenceDuration(), 150000);
    // An empty quoted value counts as absent.
    detector.Deserialize("threshold=\"\":minSilenceDuration=\"\"");
    EXPECT_EQ(detector.GetThreshold(), 0.5F);
    EXPECT_EQ(detector.GetMinSilenceDuration(), 150000);
}

TEST(SilenceDetector, DeserializeConversionFailuresAreThoseOfGetOption)
{
    SettingsAnalyzerSilenceDetector detector;
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { detector.Deserialize("threshold=abc"); }, false),
              "The 'abc' value of the 'threshold' option is not a number");
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { detector.Deserialize("minSilenceDuration=1.5"); }, false),
              "The '1.5' value of the 'minSilenceDuration' option is not a number");
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { detector.Deserialize("minSilenceDuration=+200"); }, false),
              "The '+200' value of the 'minSilenceDuration' option is not a number");
    EXPECT_EQ(
        FormBDescription<std::invalid_argument>([&] { detector.Deserialize("minSilenceDuration=2147483648"); }, false),
        "The '2147483648' value of the 'minSilenceDuration' option is not a number");
    EXPECT_EQ(detector.GetThreshold(), 0.0F);
    EXPECT_EQ(detector.GetMinSilenceDuration(), 100000);
}

TEST(SilenceDetector, DeserializeValuesGoThroughTheSetters)
{
    SettingsAnalyzerSilenceDetector detector;
    EXPECT_EQ(FormADescription<SettingsException>([&] { detector.Deserialize("threshold=1.5"); }),
              "Invalid threshold! Should be in range from 0.0 to 1.0");
    EXPECT_EQ(FormADescription<SettingsException>([&] { detector.Deserialize("minSilenceDuration=99"); }),
              "Invalid minimum silence duration. Should be more than 100ms");
    EXPECT_EQ(detector.GetThreshold(), 0.0F);
    EXPECT_EQ(detector.GetMinSilenceDuration(), 100000);
    // The largest 32-bit count of milliseconds fits in microseconds.
    detector.Deserialize("minSilenceDuration=2147483647");
    EXPECT_EQ(detector.GetMinSilenceDuration(), 2147483647000LL);
}

TEST(SilenceDetector, DeserializeReadsThresholdFirstAndAFailureLeavesItApplied)
{
    SettingsAnalyzerSilenceDetector detector;
    EXPECT_EQ(FormADescription<SettingsException>([&] { detector.Deserialize("minSilenceDuration=50:threshold=0.5"); }),
              "Invalid minimum silence duration. Should be more than 100ms");
    EXPECT_EQ(detector.GetThreshold(), 0.5F);
    EXPECT_EQ(detector.GetMinSilenceDuration(), 100000);

    EXPECT_EQ(FormADescription<SettingsException>([&] { detector.Deserialize("minSilenceDuration=500:threshold=2"); }),
              "Invalid threshold! Should be in range from 0.0 to 1.0");
    EXPECT_EQ(detector.GetThreshold(), 0.5F);
    EXPECT_EQ(detector.GetMinSilenceDuration(), 100000);
}

TEST(SilenceDetector, IsEqualToThrowsTheBaseFailureAndIsEmptyIsFalse)
{
    SettingsAnalyzerSilenceDetector detector;
    EXPECT_EQ(FormADescription<SettingsException>([&] { (void)detector.IsEqualTo(detector); }),
              "Not implemented comparison for settings CLASS_ID = SettingsAnalyzerSilenceDetector");
    EXPECT_FALSE(detector.IsEmpty());
}

TEST(SilenceDetector, CloneCopiesEveryField)
{
    SettingsAnalyzerSilenceDetector detector;
    detector.Deserialize("threshold=0.125:minSilenceDuration=700");
    const std::unique_ptr<Settings> clone = detector.Clone();
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(clone->GetClassId(), "SettingsAnalyzerSilenceDetector");
    const auto* copy = dynamic_cast<const SettingsAnalyzerSilenceDetector*>(clone.get());
    ASSERT_NE(copy, nullptr);
    EXPECT_NE(copy, &detector);
    EXPECT_EQ(copy->GetThreshold(), 0.125F);
    EXPECT_EQ(copy->GetMinSilenceDuration(), 700000);
}

TEST(SilenceDetector, ResultTakesMicrosecondsAndGivesMillisecondsTruncatedTowardZero)
{
    SilenceResult result;
    EXPECT_TRUE(result.GetResult().empty());
    result.AddSilenceInterval(1500, 2999);
    result.AddSilenceInterval(-1500, 0);
    result.AddSilenceInterval(-999, 999);
    result.AddSilenceInterval(-2000, -1001);
    EXPECT_EQ(result.GetResult(), (Intervals{{1, 2}, {-1, 0}, {0, 0}, {-2, -1}}));
}

TEST(SilenceDetector, ResultKeepsIntervalsAsTheyComeInInsertionOrder)
{
    SilenceResult result;
    result.AddSilenceInterval(9000000, 10000000);
    result.AddSilenceInterval(5000, 1000);       // begin later than end
    result.AddSilenceInterval(9500000, 9600000); // overlapping the first
    result.AddSilenceInterval(5000, 1000);       // a duplicate
    EXPECT_EQ(result.GetResult(), (Intervals{{9000, 10000}, {5, 1}, {9500, 9600}, {5, 1}}));
}

TEST(SilenceDetector, ResultHandlesTheExtremesOf64Bits)
{
    SilenceResult result;
    result.AddSilenceInterval(std::numeric_limits<long long>::min(), std::numeric_limits<long long>::max());
    EXPECT_EQ(result.GetResult(), (Intervals{{-9223372036854775LL, 9223372036854775LL}}));
}

TEST(SilenceDetector, CatalogueReadsTheTwoFieldsInMicroseconds)
{
    const auto* entry = Zorvan::SettingsCatalog::Find("SettingsAnalyzerSilenceDetector");
    ASSERT_NE(entry, nullptr);
    SettingsAnalyzerSilenceDetector detector;
    detector.Deserialize("threshold=0.5:minSilenceDuration=200");
    EXPECT_EQ(entry->FieldsToJson(detector).dump(), R"({"threshold":0.5,"minSilenceDuration":200000})");
}
