// The audio analyzers' settings (shift detection, silence detection) and their results.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <tuple>

#include "Proc/Settings/SettingsAnalyzerAudioDetectShift.h"
#include "Proc/Settings/SettingsAnalyzerSilenceDetector.h"
#include "TestSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormADescription;
using Shift = SettingsAnalyzerAudioDetectShift;
using Silence = SettingsAnalyzerSilenceDetector;

static_assert(std::is_base_of_v<IAnalyzerResult, Shift::Result> && std::is_base_of_v<IAnalyzerResult, Silence::Result>);

TEST(AudioAnalyzers, SettersBoundTheirValuesAlsoWhenDeserialized)
{
    Shift shift;
    const auto fields = [&] { return std::tuple(shift.GetSampleRate(), shift.GetWindow(), shift.GetPatternStep()); };
    const std::string window = "Invalid window (less than 10 sec)";
    for (const int bad : {0, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(FormADescription<SettingsException>([&] { shift.SetSampleRate(bad); }), "Invalid sample rate");
    }
    EXPECT_EQ(FormADescription<SettingsException>([&] { shift.SetWindow(9); }), window);
    EXPECT_EQ(FormADescription<SettingsException>([&] { shift.SetPatternStep(0); }),
              "Invalid pattern step (less than 1 sec)");
    shift.SetSampleRate(1);
    shift.SetWindow(10);
    shift.SetPatternStep(1);
    // The keys go through the setters in their own order, whatever the order of the string.
    EXPECT_EQ(FormADescription<SettingsException>([&] { shift.Deserialize("window=9:sampleRate=8"); }), window);
    EXPECT_EQ(fields(), std::tuple(8, 10UL, 1UL));
    // A negative window wraps round to a large one, which the setter accepts.
    shift.Deserialize("window=-5:patternStep=7");
    EXPECT_EQ(fields(), std::tuple(8, 18446744073709551611UL, 7UL));

    // The silence detector takes milliseconds and bounds them.
    Silence silence;
    const auto silenceFields = [&] { return std::pair(silence.GetThreshold(), silence.GetMinSilenceDuration()); };
    const std::string duration = "Invalid minimum silence duration. Should be more than 100ms";
    for (const float bad : {-0.01F, std::nextafter(1.0F, 2.0F), std::nanf("")}) {
        EXPECT_EQ(FormADescription<SettingsException>([&] { silence.SetThreshold(bad); }),
                  "Invalid threshold! Should be in range from 0.0 to 1.0")
            << bad;
    }
    EXPECT_EQ(FormADescription<SettingsException>([&] { silence.SetMinSilenceDuration(99); }), duration);
    silence.SetThreshold(1.0F);
    silence.SetMinSilenceDuration(100);
    EXPECT_EQ(silenceFields(), std::pair(1.0F, avTime{100'000}));
    silence.SetMinSilenceDuration(std::numeric_limits<avTime>::max()); // times 1000 wraps round
    EXPECT_EQ(silence.GetMinSilenceDuration(), -1000);
    // The threshold is read first.
    EXPECT_EQ(FormADescription<SettingsException>([&] { silence.Deserialize("minSilenceDuration=50:threshold=0"); }),
              duration);
    EXPECT_EQ(silence.GetThreshold(), 0.0F);
    silence.Deserialize("minSilenceDuration=2147483647:threshold=0.25");
    EXPECT_EQ(silenceFields(), std::pair(0.25F, avTime{2'147'483'647'000}));

    // Microseconds in, milliseconds out, truncated toward zero, as they come.
    using Pairs = std::vector<std::pair<long long, long long>>;
    Silence::Result result;
    for (const auto& [begin, end] : Pairs{{1500, 2999}, {-1500, 0}, {-2000, -1001}, {5000, 1000}}) {
        result.AddSilenceInterval(begin, end);
    }
    EXPECT_EQ(result.GetResult(), (Pairs{{1, 2}, {-1, 0}, {-2, -1}, {5, 1}}));
}
