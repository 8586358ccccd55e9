// Part 3.1: SettingsAnalyzerSpeechToText (fields, setters, Deserialize with its units, order
// and failures, the base's IsEqualTo and IsEmpty, Clone) and the exact Trace texts of its Result.
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "Proc/Settings/SettingsAnalyzerSpeechToText.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormADescription;
using ZorvanTest::FormBDescription;
using SpeechToText = SettingsAnalyzerSpeechToText;
using Strategy = SpeechToText::SamplingStrategy;
using Result = SpeechToText::Result;

namespace {

constexpr avTime kUndefined = std::numeric_limits<avTime>::min(); // -9223372036854775808
constexpr avTime kMax = std::numeric_limits<avTime>::max();       // 9223372036854775807
const std::string kBufferMessage = "Buffer duration must be greater or equal 1 minute.";
const std::string kStrategyMessage = "Invalid a SamplingStrategy option. Must be equal 0 or 1.";

Result::SubtitleElement Element(avTime t0, avTime t1, std::string text)
{
    return Result::SubtitleElement{t0, t1, std::move(text)};
}

Result::SubtitleSegment Segment(avTime t0, avTime t1, std::string text, std::vector<Result::SubtitleElement> words)
{
    Result::SubtitleSegment segment;
    segment.t0 = t0;
    segment.t1 = t1;
    segment.text = std::move(text);
    segment.words = std::move(words);
    return segment;
}

Result::Subtitle Subtitle(avTime t0, avTime t1, std::string text, bool newSpeaker,
                          std::vector<Result::SubtitleSegment> segments)
{
    Result::Subtitle subtitle;
    subtitle.t0 = t0;
    subtitle.t1 = t1;
    subtitle.text = std::move(text);
    subtitle.newSpeaker = newSpeaker;
    subtitle.segments = std::move(segments);
    return subtitle;
}

// A record with every field away from its default.
SpeechToText Filled()
{
    SpeechToText record;
    record.SetFileModelPath("/models/ggml base.bin");
    record.SetLanguage("de");
    record.SetThreadCount(6);
    record.SetBufferDuration(180000000);
    record.SetSamplingStrategy(Strategy::BeamSearch);
    record.SetSingleSegmentOutputForcing(true);
    record.SetMaxSegmentLength(42);
    record.SetSplitOnWord(true);
    record.SetTranslatingToEnglish(true);
    record.SetBeginSilenceThreshold(250000);
    record.SetEndSilenceThreshold(750000);
    return record;
}

void ExpectFilled(const SpeechToText& record)
{
    EXPECT_EQ(record.GetFileModelPath(), "/models/ggml base.bin");
    EXPECT_EQ(record.GetLanguage(), "de");
    EXPECT_EQ(record.GetThreadCount(), 6UL);
    EXPECT_EQ(record.GetBufferDuration(), 180000000);
    EXPECT_EQ(record.GetSamplingStrategy(), Strategy::BeamSearch);
    EXPECT_TRUE(record.GetSingleSegmentOutputForcing());
    EXPECT_EQ(record.GetMaxSegmentLength(), 42);
    EXPECT_TRUE(record.GetSplitOnWord());
    EXPECT_TRUE(record.GetTranslatingToEnglish());
    EXPECT_EQ(record.GetBeginSilenceThreshold(), 250000);
    EXPECT_EQ(record.GetEndSilenceThreshold(), 750000);
}

} // namespace

// ---- Types and defaults ----

TEST(SpeechToText, TypesOfTheFieldsAndTheEnumeration)
{
    static_assert(std::is_same_v<std::underlying_type_t<Strategy>, std::int32_t>);
    static_assert(static_cast<int>(Strategy::Greedy) == 0 && static_cast<int>(Strategy::BeamSearch) == 1);
    static_assert(std::is_same_v<decltype(std::declval<SpeechToText>().GetThreadCount()), unsigned long>);
    static_assert(sizeof(unsigned long) == 8);
    static_assert(std::is_same_v<decltype(std::declval<SpeechToText>().GetBufferDuration()), avTime>);
    static_assert(std::is_same_v<decltype(std::declval<SpeechToText>().GetMaxSegmentLength()), unsigned short>);
    static_assert(std::is_same_v<decltype(std::declval<SpeechToText>().GetFileModelPath()), const std::string&>);
    static_assert(std::is_same_v<decltype(std::declval<SpeechToText>().GetLanguage()), const std::string&>);
    static_assert(std::is_base_of_v<Result::SubtitleElement, Result::SubtitleSegment>);
    static_assert(std::is_base_of_v<Result::SubtitleElement, Result::Subtitle>);
    static_assert(std::is_aggregate_v<Result> && std::is_aggregate_v<Result::SubtitleElement>);
    static_assert(std::is_aggregate_v<Result::SubtitleSegment> && std::is_aggregate_v<Result::Subtitle>);
    static_assert(std::is_default_constructible_v<SpeechToText>);
    SUCCEED();
}

TEST(SpeechToText, DefaultsAreNeutralAndTheBufferValid)
{
    const SpeechToText record;
    EXPECT_EQ(record.GetClassId(), "SettingsAnalyzerSpeechToText");
    EXPECT_EQ(SpeechToText::CLASS_ID, "SettingsAnalyzerSpeechToText");
    EXPECT_EQ(record.GetFileModelPath(), "");
    EXPECT_EQ(record.GetLanguage(), "");
    EXPECT_EQ(record.GetThreadCount(), 0UL);
    EXPECT_EQ(record.GetBufferDuration(), 60000000);
    EXPECT_EQ(record.GetSamplingStrategy(), Strategy::Greedy);
    EXPECT_FALSE(record.GetSingleSegmentOutputForcing());
    EXPECT_EQ(record.GetMaxSegmentLength(), 0);
    EXPECT_FALSE(record.GetSplitOnWord());
    EXPECT_FALSE(record.GetTranslatingToEnglish());
    EXPECT_EQ(record.GetBeginSilenceThreshold(), kUndefined);
    EXPECT_EQ(record.GetEndSilenceThreshold(), kUndefined);
}

// ---- Setters ----

TEST(SpeechToText, SettersStoreAndGettersReturn)
{
    ExpectFilled(Filled());
    SpeechToText record;
    std::string path = "model.bin";
    record.SetFileModelPath(std::move(path));
    EXPECT_EQ(record.GetFileModelPath(), "model.bin");
    record.SetThreadCount(std::numeric_limits<unsigned long>::max());
    EXPECT_EQ(record.GetThreadCount(), 18446744073709551615UL);
    record.SetMaxSegmentLength(65535);
    EXPECT_EQ(record.GetMaxSegmentLength(), 65535);
}

TEST(SpeechToText, SetBufferDurationBelowOneMinuteFailsAndLeavesTheField)
{
    SpeechToText record;
    record.SetBufferDuration(120000000);
    EXPECT_EQ(FormADescription<SettingsException>([&] { record.SetBufferDuration(59999999); }), kBufferMessage);
    EXPECT_EQ(record.GetBufferDuration(), 120000000);
    EXPECT_EQ(FormADescription<SettingsException>([&] { record.SetBufferDuration(0); }), kBufferMessage);
    EXPECT_EQ(FormADescription<SettingsException>([&] { record.SetBufferDuration(-60000000); }), kBufferMessage);
    EXPECT_EQ(FormADescription<SettingsException>([&] { record.SetBufferDuration(kUndefined); }), kBufferMessage);
    EXPECT_EQ(record.GetBufferDuration(), 120000000);
    record.SetBufferDuration(60000000);
    EXPECT_EQ(record.GetBufferDuration(), 60000000);
    record.SetBufferDuration(kMax);
    EXPECT_EQ(record.GetBufferDuration(), kMax);
}

TEST(SpeechToText, SetSamplingStrategyStoresAnyValue)
{
    SpeechToText record;
    record.SetSamplingStrategy(Strategy::BeamSearch);
    EXPECT_EQ(record.GetSamplingStrategy(), Strategy::BeamSearch);
    record.SetSamplingStrategy(static_cast<Strategy>(2));
    EXPECT_EQ(static_cast<int>(record.GetSamplingStrategy()), 2);
    record.SetSamplingStrategy(static_cast<Strategy>(-1));
    EXPECT_EQ(static_cast<int>(record.GetSamplingStrategy()), -1);
}

TEST(SpeechToText, NegativeSilenceThresholdsStoreTheUndefinedTime)
{
    SpeechToText record;
    record.SetBeginSilenceThreshold(-1);
    EXPECT_EQ(record.GetBeginSilenceThreshold(), kUndefined);
    EXPECT_EQ(record.GetBeginSilenceThreshold(), std::int64_t{-9223372036854775807LL - 1});
    record.SetEndSilenceThreshold(-123456);
    EXPECT_EQ(record.GetEndSilenceThreshold(), kUndefined);
    record.SetBeginSilenceThreshold(0);
    record.SetEndSilenceThreshold(kMax);
    EXPECT_EQ(record.GetBeginSilenceThreshold(), 0);
    EXPECT_EQ(record.GetEndSilenceThreshold(), kMax);
    record.SetEndSilenceThreshold(kUndefined);
    EXPECT_EQ(record.GetEndSilenceThreshold(), kUndefined);
}

// ---- Deserialize: keys, units, order ----

TEST(SpeechToTextDeserialize, EmptyStringChangesNothing)
{
    SpeechToText record = Filled();
    record.Deserialize("");
    ExpectFilled(record);
}

TEST(SpeechToTextDeserialize, UnknownKeysAndAbsentKeysChangeNothing)
{
    SpeechToText record = Filled();
    record.Deserialize("scale=2:language=fr:thread=9:xthreads=3:nnm_file=:lang=\"\"");
    ExpectFilled(record);
}

TEST(SpeechToTextDeserialize, EveryKeyWithItsUnit)
{
    SpeechToText record;
    record.SetTranslatingToEnglish(true);
    record.Deserialize("nnm_file=/models/ggml base.bin:lang=\"en\":threads=8:bufferDuration=2:samplingStrategy=1:"
                       "singleSegmentOutputForcing=true:maxSegmentLength=65535:splitOnWord=1:"
                       "translatingToEnglish=false:endSilenceThreshold=250:beginSilenceThreshold=1500");
    EXPECT_EQ(record.GetFileModelPath(), "/models/ggml base.bin");
    EXPECT_EQ(record.GetLanguage(), "en");
    EXPECT_EQ(record.GetThreadCount(), 8UL);
    EXPECT_EQ(record.GetBufferDuration(), 120000000);
    EXPECT_EQ(record.GetSamplingStrategy(), Strategy::BeamSearch);
    EXPECT_TRUE(record.GetSingleSegmentOutputForcing());
    EXPECT_EQ(record.GetMaxSegmentLength(), 65535);
    EXPECT_TRUE(record.GetSplitOnWord());
    EXPECT_FALSE(record.GetTranslatingToEnglish());
    EXPECT_EQ(record.GetEndSilenceThreshold(), 250000);
    EXPECT_EQ(record.GetBeginSilenceThreshold(), 1500000);
}

TEST(SpeechToTextDeserialize, DeserializeIsAnUpdateAcrossCalls)
{
    SpeechToText record;
    record.Deserialize("threads=2");
    record.Deserialize("lang=fr");
    EXPECT_EQ(record.GetThreadCount(), 2UL);
    EXPECT_EQ(record.GetLanguage(), "fr");
    EXPECT_EQ(record.GetBufferDuration(), 60000000);
}

TEST(SpeechToTextDeserialize, ModelPathQuotedWithColonsAndSpaces)
{
    SpeechToText record;
    record.Deserialize("nnm_file=\"C:\\My Models\\ggml tiny.bin\":threads=3");
    EXPECT_EQ(record.GetFileModelPath(), "C:\\My Models\\ggml tiny.bin");
    EXPECT_EQ(record.GetThreadCount(), 3UL);
    // Unquoted, the value stops at the first colon.
    record.Deserialize("nnm_file=C:\\My Models\\x.bin");
    EXPECT_EQ(record.GetFileModelPath(), "C");
    // Unquoted, spaces and equals signs belong to the value.
    record.Deserialize("nnm_file=/a b/c=d.bin");
    EXPECT_EQ(record.GetFileModelPath(), "/a b/c=d.bin");
}

TEST(SpeechToTextDeserialize, LanguageQuotedAndUnquoted)
{
    SpeechToText record;
    record.Deserialize("lang=en");
    EXPECT_EQ(record.GetLanguage(), "en");
    record.Deserialize("lang=\"de-AT\"");
    EXPECT_EQ(record.GetLanguage(), "de-AT");
    record.Deserialize("LANG=auto:lang=fr");
    EXPECT_EQ(record.GetLanguage(), "auto");
    // The default value pattern: everything up to the next colon; each key is searched on its
    // own, so "threads" is found inside the value of "lang" too (a word boundary precedes it).
    record.Deserialize("lang=en threads=4");
    EXPECT_EQ(record.GetLanguage(), "en threads=4");
    EXPECT_EQ(record.GetThreadCount(), 4UL);
    // An empty quoted value reads as absent.
    record.Deserialize("lang=\"\"");
    EXPECT_EQ(record.GetLanguage(), "en threads=4");
}

TEST(SpeechToTextDeserialize, ThreadsAsUnsigned64Bit)
{
    SpeechToText record;
    record.Deserialize("Threads=18446744073709551615");
    EXPECT_EQ(record.GetThreadCount(), 18446744073709551615UL);
    record.Deserialize("threads=\"007\"");
    EXPECT_EQ(record.GetThreadCount(), 7UL);
    record.Deserialize("threads=0");
    EXPECT_EQ(record.GetThreadCount(), 0UL);
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("threads=x"); }, false),
              "The 'x' value of the 'threads' option is not a number");
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("threads=-1"); }, false),
              "The '-1' value of the 'threads' option is not a number");
    EXPECT_EQ(
        FormBDescription<std::invalid_argument>([&] { record.Deserialize("threads=18446744073709551616"); }, false),
        "The '18446744073709551616' value of the 'threads' option is not a number");
    EXPECT_EQ(record.GetThreadCount(), 0UL);
}

TEST(SpeechToTextDeserialize, BufferDurationOfOneMinuteStoresSixtyMillionMicroseconds)
{
    SpeechToText record;
    record.SetBufferDuration(300000000);
    record.Deserialize("bufferDuration=1");
    EXPECT_EQ(record.GetBufferDuration(), 60000000);
    // Multiplied in 64 bits: the largest int does not overflow.
    record.Deserialize("bufferDuration=2147483647");
    EXPECT_EQ(record.GetBufferDuration(), 128849018820000000);
}

TEST(SpeechToTextDeserialize, BufferDurationZeroFailsLeavingEarlierKeysAppliedAndLaterUnread)
{
    SpeechToText record;
    // The order is that of the keys, not of the string: samplingStrategy (5) and
    // endSilenceThreshold (10) come after bufferDuration (4), threads (3) and lang (2) before.
    EXPECT_EQ(FormADescription<SettingsException>([&] {
                  record.Deserialize("samplingStrategy=1:endSilenceThreshold=9:bufferDuration=0:threads=3:lang=it");
              }),
              kBufferMessage);
    EXPECT_EQ(record.GetLanguage(), "it");
    EXPECT_EQ(record.GetThreadCount(), 3UL);
    EXPECT_EQ(record.GetBufferDuration(), 60000000);
    EXPECT_EQ(record.GetSamplingStrategy(), Strategy::Greedy);
    EXPECT_EQ(record.GetEndSilenceThreshold(), kUndefined);
    EXPECT_EQ(FormADescription<SettingsException>([&] { record.Deserialize("bufferDuration=-1"); }), kBufferMessage);
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("bufferDuration=1.5"); }, false),
              "The '1.5' value of the 'bufferDuration' option is not a number");
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("bufferDuration=2147483648"); }, false),
              "The '2147483648' value of the 'bufferDuration' option is not a number");
    EXPECT_EQ(record.GetBufferDuration(), 60000000);
}

TEST(SpeechToTextDeserialize, SamplingStrategyOutsideZeroAndOneFails)
{
    SpeechToText record;
    record.Deserialize("samplingStrategy=1");
    EXPECT_EQ(record.GetSamplingStrategy(), Strategy::BeamSearch);
    record.Deserialize("samplingStrategy=0");
    EXPECT_EQ(record.GetSamplingStrategy(), Strategy::Greedy);
    record.Deserialize("samplingStrategy=01");
    EXPECT_EQ(record.GetSamplingStrategy(), Strategy::BeamSearch);
    EXPECT_EQ(FormADescription<SettingsException>([&] { record.Deserialize("samplingStrategy=2"); }), kStrategyMessage);
    EXPECT_EQ(FormADescription<SettingsException>([&] { record.Deserialize("samplingStrategy=-1"); }),
              kStrategyMessage);
    EXPECT_EQ(record.GetSamplingStrategy(), Strategy::BeamSearch);
    // Keys after it stay unread; keys before it are applied.
    EXPECT_EQ(FormADescription<SettingsException>(
                  [&] { record.Deserialize("splitOnWord=1:samplingStrategy=2:bufferDuration=3"); }),
              kStrategyMessage);
    EXPECT_EQ(record.GetBufferDuration(), 180000000);
    EXPECT_FALSE(record.GetSplitOnWord());
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("samplingStrategy=greedy"); }, false),
              "The 'greedy' value of the 'samplingStrategy' option is not a number");
}

TEST(SpeechToTextDeserialize, BooleansAcceptOnlyOneZeroTrueFalse)
{
    SpeechToText record;
    record.Deserialize("singleSegmentOutputForcing=1:splitOnWord=true:translatingToEnglish=1");
    EXPECT_TRUE(record.GetSingleSegmentOutputForcing());
    EXPECT_TRUE(record.GetSplitOnWord());
    EXPECT_TRUE(record.GetTranslatingToEnglish());
    record.Deserialize("singleSegmentOutputForcing=false:splitOnWord=0:translatingToEnglish=false");
    EXPECT_FALSE(record.GetSingleSegmentOutputForcing());
    EXPECT_FALSE(record.GetSplitOnWord());
    EXPECT_FALSE(record.GetTranslatingToEnglish());
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("splitOnWord=yes"); }, false),
              "The 'yes' value of the 'splitOnWord' option is not a boolean");
    EXPECT_EQ(
        FormBDescription<std::invalid_argument>([&] { record.Deserialize("singleSegmentOutputForcing=TRUE"); }, false),
        "The 'TRUE' value of the 'singleSegmentOutputForcing' option is not a boolean");
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("translatingToEnglish=2"); }, false),
              "The '2' value of the 'translatingToEnglish' option is not a boolean");
}

TEST(SpeechToTextDeserialize, MaxSegmentLengthAsUnsigned16Bit)
{
    SpeechToText record;
    record.Deserialize("maxSegmentLength=00065535");
    EXPECT_EQ(record.GetMaxSegmentLength(), 65535);
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("maxSegmentLength=65536"); }, false),
              "The '65536' value of the 'maxSegmentLength' option is not a number");
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("maxSegmentLength=-1"); }, false),
              "The '-1' value of the 'maxSegmentLength' option is not a number");
    EXPECT_EQ(record.GetMaxSegmentLength(), 65535);
}

TEST(SpeechToTextDeserialize, EndSilenceThresholdNegativeStoresUndefinedZeroStoresZero)
{
    SpeechToText record;
    record.SetEndSilenceThreshold(1000);
    record.Deserialize("endSilenceThreshold=-5");
    EXPECT_EQ(record.GetEndSilenceThreshold(), kUndefined);
    record.Deserialize("endSilenceThreshold=0");
    EXPECT_EQ(record.GetEndSilenceThreshold(), 0);
    record.Deserialize("endSilenceThreshold=2147483647:beginSilenceThreshold=-2147483648");
    EXPECT_EQ(record.GetEndSilenceThreshold(), 2147483647000);
    EXPECT_EQ(record.GetBeginSilenceThreshold(), kUndefined);
    record.Deserialize("beginSilenceThreshold=1");
    EXPECT_EQ(record.GetBeginSilenceThreshold(), 1000);
}

TEST(SpeechToTextDeserialize, EndSilenceThresholdIsReadBeforeBeginSilenceThreshold)
{
    SpeechToText record;
    // A bad begin threshold fails after the end threshold has been applied.
    EXPECT_EQ(FormBDescription<std::invalid_argument>(
                  [&] { record.Deserialize("beginSilenceThreshold=x:endSilenceThreshold=7"); }, false),
              "The 'x' value of the 'beginSilenceThreshold' option is not a number");
    EXPECT_EQ(record.GetEndSilenceThreshold(), 7000);
    EXPECT_EQ(record.GetBeginSilenceThreshold(), kUndefined);
    // A bad end threshold fails before the begin threshold is read.
    EXPECT_EQ(FormBDescription<std::invalid_argument>(
                  [&] { record.Deserialize("beginSilenceThreshold=7:endSilenceThreshold=1e3"); }, false),
              "The '1e3' value of the 'endSilenceThreshold' option is not a number");
    EXPECT_EQ(record.GetBeginSilenceThreshold(), kUndefined);
    EXPECT_EQ(record.GetEndSilenceThreshold(), 7000);
}

TEST(SpeechToTextDeserialize, RepeatedKeysFirstWinsAndKeysIgnoreCase)
{
    SpeechToText record;
    record.Deserialize("threads=2:threads=3:SPLITONWORD=1:NNM_FILE=a.bin:nnm_file=b.bin");
    EXPECT_EQ(record.GetThreadCount(), 2UL);
    EXPECT_TRUE(record.GetSplitOnWord());
    EXPECT_EQ(record.GetFileModelPath(), "a.bin");
}

// ---- Base operations ----

TEST(SpeechToText, IsEqualToIsTheBaseDefaultAndThrows)
{
    const SpeechToText a;
    const SpeechToText b;
    EXPECT_EQ(FormADescription<SettingsException>([&] { (void)a.IsEqualTo(b); }),
              "Not implemented comparison for settings CLASS_ID = SettingsAnalyzerSpeechToText");
    EXPECT_EQ(FormADescription<SettingsException>([&] { (void)a.IsEqualTo(a); }),
              "Not implemented comparison for settings CLASS_ID = SettingsAnalyzerSpeechToText");
}

TEST(SpeechToText, IsEmptyIsFalse)
{
    EXPECT_FALSE(SpeechToText().IsEmpty());
    EXPECT_FALSE(Filled().IsEmpty());
}

TEST(SpeechToText, CloneCopiesEveryField)
{
    const SpeechToText original = Filled();
    const std::unique_ptr<Settings> clone = original.Clone();
    ASSERT_NE(dynamic_cast<const SpeechToText*>(clone.get()), nullptr);
    EXPECT_EQ(clone->GetClassId(), "SettingsAnalyzerSpeechToText");
    ExpectFilled(dynamic_cast<const SpeechToText&>(*clone));
    // Undefined thresholds and a strategy outside the enumerators are copied too.
    SpeechToText other;
    other.SetSamplingStrategy(static_cast<Strategy>(5));
    const auto otherClone = other.Clone();
    const auto& copy = dynamic_cast<const SpeechToText&>(*otherClone);
    EXPECT_EQ(static_cast<int>(copy.GetSamplingStrategy()), 5);
    EXPECT_EQ(copy.GetBeginSilenceThreshold(), kUndefined);
    EXPECT_EQ(copy.GetEndSilenceThreshold(), kUndefined);
    ExpectFilled(original);
}

TEST(SpeechToText, CatalogueListsEveryFieldInOrder)
{
    const Zorvan::SettingsCatalogEntry* entry = Zorvan::SettingsCatalog::Find("SettingsAnalyzerSpeechToText");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->Own(), "D");
    EXPECT_EQ(entry->FieldsToJson(Filled()).dump(),
              "{\"fileModelPath\":\"/models/ggml base.bin\",\"language\":\"de\",\"threadCount\":6,"
              "\"bufferDuration\":180000000,\"samplingStrategy\":1,\"singleSegmentOutputForcing\":true,"
              "\"maxSegmentLength\":42,\"splitOnWord\":true,\"translatingToEnglish\":true,"
              "\"beginSilenceThreshold\":250000,\"endSilenceThreshold\":750000}");
}

// ---- Result::Trace ----

TEST(SpeechToTextTrace, ElementPrintsMillisecondsTruncated)
{
    EXPECT_EQ(Element(1500000, 2000999, "abc").Trace(), "T: 'abc', t0: 1500 ms., t1: 2000 ms.");
    EXPECT_EQ(Element(0, 999, "").Trace(), "T: '', t0: 0 ms., t1: 0 ms.");
}

TEST(SpeechToTextTrace, NegativeTimesTruncateTowardZero)
{
    EXPECT_EQ(Element(-1500, -999, "x").Trace(), "T: 'x', t0: -1 ms., t1: 0 ms.");
    EXPECT_EQ(Element(-1000, -2999999, "y").Trace(), "T: 'y', t0: -1 ms., t1: -2999 ms.");
}

TEST(SpeechToTextTrace, Int64Extremes)
{
    EXPECT_EQ(Element(kUndefined, kMax, "edge").Trace(),
              "T: 'edge', t0: -9223372036854775 ms., t1: 9223372036854775 ms.");
}

TEST(SpeechToTextTrace, SubtitleWithoutSegmentsIsOneLine)
{
    EXPECT_EQ(Subtitle(0, 1000000, "Hi", false, {}).Trace(), "T: 'Hi', t0: 0 ms., t1: 1000 ms.");
    EXPECT_EQ(Subtitle(0, 1000000, "Hi", true, {}).Trace(), "(New speaker), T: 'Hi', t0: 0 ms., t1: 1000 ms.");
}

TEST(SpeechToTextTrace, SubtitleWithSegmentsAndWords)
{
    const Result::Subtitle subtitle = Subtitle(
        0, 3000000, "Hello world", true,
        {Segment(0, 1500000, "Hello", {Element(0, 700000, "Hel"), Element(700000, 1500000, "lo")}),
         Segment(1500000, 3000000, "world", {Element(1500000, 3000000, "world")}), Segment(3000000, 3000500, "", {})});
    EXPECT_EQ(subtitle.Trace(), "(New speaker), T: 'Hello world', t0: 0 ms., t1: 3000 ms.\n"
                                "\tT: 'Hello', t0: 0 ms., t1: 1500 ms.\n"
                                "\t\tT: 'Hel', t0: 0 ms., t1: 700 ms.\n"
                                "\t\tT: 'lo', t0: 700 ms., t1: 1500 ms.\n"
                                "\tT: 'world', t0: 1500 ms., t1: 3000 ms.\n"
                                "\t\tT: 'world', t0: 1500 ms., t1: 3000 ms.\n"
                                "\tT: '', t0: 3000 ms., t1: 3000 ms.");
}

TEST(SpeechToTextTrace, SegmentTraceIsItsElementTrace)
{
    const Result::SubtitleSegment segment = Segment(-1500, 2500, "s", {Element(1, 2, "w")});
    EXPECT_EQ(segment.Trace(), "T: 's', t0: -1 ms., t1: 2 ms.");
}

TEST(SpeechToTextTrace, ResultWithoutSubtitlesAndErrorPrintsOnlyTheFirstLine)
{
    Result result;
    result.analyzedLanguage = "en";
    result.analyzedLanguageName = "English";
    EXPECT_EQ(result.Trace(), "AnalyzedLanguage: en 'English'\n");
    EXPECT_EQ(Result{}.Trace(), "AnalyzedLanguage:  ''\n");
}

TEST(SpeechToTextTrace, ErrorLineHasABlankBeforeItsLineFeed)
{
    Result result;
    result.analyzedLanguage = "de";
    result.analyzedLanguageName = "German";
    result.error = "model not found";
    EXPECT_EQ(result.Trace(), "AnalyzedLanguage: de 'German'\nError: 'model not found' \n");
}

TEST(SpeechToTextTrace, ErrorLineThenSubtitlesEachFollowedByALineFeed)
{
    Result result;
    result.analyzedLanguage = "fr";
    result.analyzedLanguageName = "French";
    result.error = "partial";
    result.subtitles.push_back(
        Subtitle(-1500, 2000999, "Bonjour", true, {Segment(-1500, 2000999, "Bonjour", {Element(0, 1, "Bon")})}));
    result.subtitles.push_back(Subtitle(kUndefined, kMax, "fin", false, {}));
    EXPECT_EQ(result.Trace(), "AnalyzedLanguage: fr 'French'\n"
                              "Error: 'partial' \n"
                              "(New speaker), T: 'Bonjour', t0: -1 ms., t1: 2000 ms.\n"
                              "\tT: 'Bonjour', t0: -1 ms., t1: 2000 ms.\n"
                              "\t\tT: 'Bon', t0: 0 ms., t1: 0 ms.\n"
                              "T: 'fin', t0: -9223372036854775 ms., t1: 9223372036854775 ms.\n");
}

TEST(SpeechToTextTrace, AggregatesBuildWithBraces)
{
    const Result result{"en", "English", {}, ""};
    EXPECT_EQ(result.Trace(), "AnalyzedLanguage: en 'English'\n");
    const Result::SubtitleElement element{1000, 2000, "w"};
    const Result::SubtitleSegment segment{{0, 2000, "s"}, {element}};
    const Result::Subtitle subtitle{{0, 2000, "t"}, false, {segment}};
    EXPECT_EQ(subtitle.Trace(), "T: 't', t0: 0 ms., t1: 2 ms.\n\tT: 's', t0: 0 ms., t1: 2 ms.\n\t\tT: 'w', t0: 1 ms., "
                                "t1: 2 ms.");
}
