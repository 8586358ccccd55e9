// SettingsAnalyzerSpeechToText and the exact text of its Result traces.
#include <gtest/gtest.h>

#include <limits>

#include "Proc/Settings/SettingsAnalyzerSpeechToText.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;
using SpeechToText = SettingsAnalyzerSpeechToText;
using Result = SpeechToText::Result;
using Json = nlohmann::ordered_json;

namespace {

constexpr avTime NO = std::numeric_limits<avTime>::min(); // the undefined time
const std::string BUFFER = "Buffer duration must be greater or equal 1 minute.";
const std::string STRATEGY = "Invalid a SamplingStrategy option. Must be equal 0 or 1.";

Json Fields(const SpeechToText& record)
{
    return Zorvan::SettingsCatalog::Find(SpeechToText::CLASS_ID)->FieldsToJson(record);
}

} // namespace

TEST(SpeechToText, BufferOfAtLeastOneMinuteNegativeThresholdsUndefinedAndKeysInOrder)
{
    SpeechToText set;
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { set.SetBufferDuration(59'999'999); }), BUFFER);
    EXPECT_EQ(set.GetBufferDuration(), 60'000'000);
    set.SetBeginSilenceThreshold(-1);
    set.SetEndSilenceThreshold(0);
    EXPECT_EQ(std::pair(set.GetBeginSilenceThreshold(), set.GetEndSilenceThreshold()), std::pair(NO, avTime{0}));
    set.SetEndSilenceThreshold(-123);
    EXPECT_EQ(set.GetEndSilenceThreshold(), NO);

    // Deserialize reads its keys in its own order and in their units.
    // Before (applied to a fresh record first), options, the failure ("" none), the changes.
    const std::tuple<std::string, std::string, std::string, Json> cases[] = {
        // clang-format off
        {"", "nnm_file=/m/ggml base.bin:lang=\"en\":threads=8:bufferDuration=2:samplingStrategy=01:"
             "singleSegmentOutputForcing=true:maxSegmentLength=00065535:splitOnWord=1:translatingToEnglish=true:"
             "endSilenceThreshold=250:beginSilenceThreshold=1500", "",
            {{"fileModelPath", "/m/ggml base.bin"}, {"language", "en"}, {"threadCount", 8},
             {"bufferDuration", 120'000'000}, {"samplingStrategy", 1}, {"singleSegmentOutputForcing", true},
             {"maxSegmentLength", 65535}, {"splitOnWord", true}, {"translatingToEnglish", true},
             {"beginSilenceThreshold", 1'500'000}, {"endSilenceThreshold", 250'000}}},
        {"threads=1:splitOnWord=1:samplingStrategy=1:bufferDuration=3:endSilenceThreshold=5",
            "scale=2:thread=9:nnm_file=:lang=\"\":samplingStrategy=0:splitOnWord=false:bufferDuration=1:"
            "endSilenceThreshold=-5:THREADS=18446744073709551615", "",
            {{"threadCount", 18446744073709551615ULL}, {"bufferDuration", 60'000'000}, {"samplingStrategy", 0},
             {"splitOnWord", false}, {"endSilenceThreshold", NO}}},
        {"beginSilenceThreshold=1", "bufferDuration=2147483647:endSilenceThreshold=2147483647:"
                                    "beginSilenceThreshold=-2147483648", "",
            {{"bufferDuration", 128'849'018'820'000'000}, {"beginSilenceThreshold", NO},
             {"endSilenceThreshold", 2'147'483'647'000}}},
        // Language and threads come before the buffer, the rest after it; the end threshold before the begin.
        {"", "samplingStrategy=1:endSilenceThreshold=9:bufferDuration=0:threads=3:lang=it", BUFFER,
            {{"language", "it"}, {"threadCount", 3}}},
        {"", "splitOnWord=1:samplingStrategy=2:bufferDuration=3", STRATEGY, {{"bufferDuration", 180'000'000}}},
        {"", "samplingStrategy=-1", STRATEGY, {}},
        {"", "bufferDuration=2147483648", "The '2147483648' value of the 'bufferDuration' option is not a number", {}},
        {"", "maxSegmentLength=65536", "The '65536' value of the 'maxSegmentLength' option is not a number", {}},
        {"", "beginSilenceThreshold=x:endSilenceThreshold=7",
            "The 'x' value of the 'beginSilenceThreshold' option is not a number", {{"endSilenceThreshold", 7000}}},
        // clang-format on
    };
    for (const auto& [before, options, failure, changes] : cases) {
        SCOPED_TRACE(options);
        SpeechToText record;
        record.Deserialize(before);
        Json expected = Fields(record);
        if (!changes.is_null()) {
            expected.update(changes);
        }
        const auto call = [&] { record.Deserialize(options); };
        if (failure.empty()) {
            call();
        } else if (failure == BUFFER || failure == STRATEGY) {
            EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>(call), failure);
        } else {
            EXPECT_EQ(ZorvanTest::FormBDescription<std::invalid_argument>(call, false), failure);
        }
        EXPECT_EQ(Fields(record), expected);
        EXPECT_EQ(Fields(dynamic_cast<const SpeechToText&>(*record.Clone())), expected);
    }
}

TEST(SpeechToText, TracesPrintMillisecondsTruncatedTowardZeroInAFixedLayout)
{
    EXPECT_EQ((Result::SubtitleElement{1'500'000, 2'000'999, "abc"}).Trace(), "T: 'abc', t0: 1500 ms., t1: 2000 ms.");
    EXPECT_EQ((Result::SubtitleElement{-1500, -999, ""}).Trace(), "T: '', t0: -1 ms., t1: 0 ms.");
    EXPECT_EQ(Result{}.Trace(), "AnalyzedLanguage:  ''\n");
    // clang-format off
    const Result result{"en", "English", {{{-1500, 3'000'000, "Hello world"}, true,
        {{{0, 1'500'000, "Hello"}, {{0, 700'000, "Hel"}, {700'000, 1'500'000, "lo"}}},
         {{1'500'000, 3'000'000, "world"}, {{1'500'000, 3'000'000, "world"}}}, {{3'000'000, 3'000'500, ""}, {}}}},
        {{NO, std::numeric_limits<avTime>::max(), "fin"}, false, {}}}, "partial"};
    // clang-format on
    // The error line, unlike the first, has a blank before its line feed.
    EXPECT_EQ(result.Trace(), "AnalyzedLanguage: en 'English'\n"
                              "Error: 'partial' \n"
                              "(New speaker), T: 'Hello world', t0: -1 ms., t1: 3000 ms.\n"
                              "\tT: 'Hello', t0: 0 ms., t1: 1500 ms.\n"
                              "\t\tT: 'Hel', t0: 0 ms., t1: 700 ms.\n"
                              "\t\tT: 'lo', t0: 700 ms., t1: 1500 ms.\n"
                              "\tT: 'world', t0: 1500 ms., t1: 3000 ms.\n"
                              "\t\tT: 'world', t0: 1500 ms., t1: 3000 ms.\n"
                              "\tT: '', t0: 3000 ms., t1: 3000 ms.\n"
                              "T: 'fin', t0: -9223372036854775 ms., t1: 9223372036854775 ms.\n");
}
