// Speed filters: the speed factor of a stream, and its video form with a constant frame rate and seeking.
#include <gtest/gtest.h>

#include <boost/rational.hpp>

#include <cmath>
#include <limits>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

#include "Proc/Settings/SettingsFilterSpeedUp.h"
#include "Proc/Settings/SettingsFilterSpeedUpVideo.h"
#include "TestSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormADescription;
using ZorvanTest::FormBDescription;
using Rational = SettingsFilterSpeedUpVideo::Rational;

namespace {

constexpr double kEps = std::numeric_limits<double>::epsilon();

SettingsFilterSpeedUp SpeedUp(double speed)
{
    SettingsFilterSpeedUp record;
    record.SetSpeedUp(speed);
    return record;
}

SettingsFilterSpeedUpVideo Video(const char* options)
{
    SettingsFilterSpeedUpVideo record;
    record.Deserialize(options);
    return record;
}

} // namespace

TEST(SpeedUp, OnlyNegativeSpeedsAreRefusedAlsoFromOptions)
{
    for (const double refused : {-std::numeric_limits<double>::denorm_min(), -1.0}) {
        SettingsFilterSpeedUp record = SpeedUp(2.0);
        EXPECT_EQ(FormADescription<SettingsException>([&] { record.SetSpeedUp(refused); }), "Invalid speed");
        EXPECT_EQ(record.GetSpeedFactor(), 2.0);
    }
    for (const double taken : {-0.0, 0.0, std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(SpeedUp(taken).GetSpeedFactor(), taken);
    }
    EXPECT_TRUE(std::isnan(SpeedUp(std::nan("")).GetSpeedFactor()));
    // From a record at 2: the first occurrence counts, std::stod stops at ',', a word is no number.
    const std::vector<std::pair<const char*, double>> cases{
        {"", 2.0}, {"speed=0", 0.0}, {"Speed=2,5:speed=3", 2.0}, {"speed=abc", 2.0}, {"fast=1", 2.0}};
    for (const auto& [options, speed] : cases) {
        SettingsFilterSpeedUp record = SpeedUp(2.0);
        record.Deserialize(options);
        EXPECT_EQ(record.GetSpeedFactor(), speed) << options;
    }
    SettingsFilterSpeedUp record = SpeedUp(2.0);
    EXPECT_EQ(FormADescription<SettingsException>([&] { record.Deserialize("speed=-1"); }), "Invalid speed");
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("speed=\"1\""); }, false), "stod");
    EXPECT_EQ(record.GetSpeedFactor(), 2.0);
}

// Within |a + b| eps: 1 + 2 eps is 1, 1 + 3 eps is not; 3 ulp from 3.0 are equal, 4 are not. With a
// video record the plain one compares the factor alone; the video record refuses the plain one.
TEST(SpeedUp, EmptinessAndEqualityAreNearlyEqual)
{
    EXPECT_TRUE(SpeedUp(1.0 + 2 * kEps).IsEmpty());
    EXPECT_FALSE(SpeedUp(1.0 + 3 * kEps).IsEmpty());
    EXPECT_TRUE(SpeedUp(3.0).IsEqualTo(SpeedUp(3.0 + 6 * kEps)));
    EXPECT_FALSE(SpeedUp(3.0).IsEqualTo(SpeedUp(3.0 + 8 * kEps)));
    const SettingsFilterSpeedUpVideo video = Video("speed=3:fps=30/1:useSeek=1");
    EXPECT_TRUE(SpeedUp(3.0 + 2 * kEps).IsEqualTo(video));
    EXPECT_FALSE(SpeedUp(2.0).IsEqualTo(video));
    EXPECT_THROW((void)video.IsEqualTo(SpeedUp(3.0)), std::bad_cast);
}

TEST(SpeedUpVideo, FpsIsANormalisedRationalOfTheTextAroundTheFirstSlash)
{
    using Fps = std::optional<Rational>;
    const std::vector<std::pair<const char*, Fps>> cases{{"fps=30000/1001", Rational(30000, 1001)},
                                                         {"fps=60/2", Rational(30, 1)},
                                                         {"fps=50/-4", Rational(-25, 2)},
                                                         {"fps=6/4/9", Rational(3, 2)},
                                                         {"fps=\"24/1\"", Rational(24, 1)},
                                                         {"fps=30", Fps()},
                                                         {"fps=\"\"", Fps()}};
    for (const auto& [options, fps] : cases) {
        EXPECT_EQ(Video(options).GetConstantFPS(), fps) << options;
    }
}

// Speed first (through the checking setter), then fps, then useSeek: a failure leaves later keys unapplied.
TEST(SpeedUpVideo, FailuresStopTheKeysInTheirOrder)
{
    SettingsFilterSpeedUpVideo record;
    EXPECT_EQ(FormADescription<SettingsException>([&] { record.Deserialize("speed=-2:fps=30/1:useSeek=1"); }),
              "Invalid speed");
    EXPECT_EQ(FormBDescription<boost::bad_rational>([&] { record.Deserialize("fps=25/0:useSeek=1"); }),
              "bad rational: zero denominator");
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("fps=/2:useSeek=1"); }, false), "stoll");
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("fps=2/:useSeek=1"); }, false), "stoll");
    EXPECT_TRUE(record == SettingsFilterSpeedUpVideo());
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("fps=30/1:useSeek=2"); }, false),
              "The '2' value of the 'useSeek' option is not a boolean");
    EXPECT_EQ(record.GetConstantFPS(), Rational(30, 1));
    EXPECT_FALSE(record.IsUseSeek());
}

// Emptiness takes the speed by nearly equal, the comparison takes it exactly.
TEST(SpeedUpVideo, EmptinessAndEquality)
{
    SettingsFilterSpeedUpVideo nearlyOne;
    nearlyOne.SetSpeedUp(1.0 + kEps);
    EXPECT_TRUE(nearlyOne.IsEmpty());
    EXPECT_TRUE(nearlyOne != SettingsFilterSpeedUpVideo());
    EXPECT_FALSE(nearlyOne.IsEqualTo(SettingsFilterSpeedUpVideo()));
    for (const char* options : {"useSeek=1", "fps=25/1", "speed=2"}) {
        EXPECT_FALSE(Video(options).IsEmpty()) << options;
        EXPECT_FALSE(Video(options) == Video("useSeek=0")) << options;
    }
    EXPECT_TRUE(Video("fps=60/2") == Video("fps=30/1"));
    EXPECT_FALSE(Video("fps=60/2") != Video("fps=30/1"));
    const SettingsFilterSpeedUpVideo full = Video("speed=4:fps=24000/1001:useSeek=true");
    EXPECT_TRUE(full.IsEqualTo(*full.Clone()));
}
