// Part 2.6: time and stream filters. So far SettingsFilterSpeedUp and
// SettingsFilterSpeedUpVideo, which Part 1.1 needs for its cross-class comparison.
#include <gtest/gtest.h>

#include <boost/rational.hpp>

#include <cmath>
#include <limits>

#include "Proc/Settings/SettingsFilterSpeedUp.h"
#include "Proc/Settings/SettingsFilterSpeedUpVideo.h"
#include "TestSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormADescription;
using Rational = SettingsFilterSpeedUpVideo::Rational;

TEST(SpeedUp, NegativeSpeedThrowsInvalidSpeedAndLeavesTheField)
{
    SettingsFilterSpeedUp speedUp;
    speedUp.SetSpeedUp(2.0);
    EXPECT_EQ(FormADescription<SettingsException>([&] { speedUp.SetSpeedUp(-0.5); }), "Invalid speed");
    EXPECT_EQ(speedUp.GetSpeedFactor(), 2.0);
    EXPECT_EQ(FormADescription<SettingsException>([&] { speedUp.Deserialize("speed=-1"); }), "Invalid speed");
    EXPECT_EQ(speedUp.GetSpeedFactor(), 2.0);
}

TEST(SpeedUp, ZeroAndNotANumberPass)
{
    SettingsFilterSpeedUp speedUp;
    speedUp.Deserialize("speed=0");
    EXPECT_EQ(speedUp.GetSpeedFactor(), 0.0);
    speedUp.SetSpeedUp(std::nan(""));
    EXPECT_TRUE(std::isnan(speedUp.GetSpeedFactor()));
    speedUp.SetSpeedUp(-0.0);
    EXPECT_EQ(speedUp.GetSpeedFactor(), 0.0);
}

TEST(SpeedUp, DeserializeReadsSpeedWithStod)
{
    SettingsFilterSpeedUp speedUp;
    speedUp.Deserialize("Speed=2,5:speed=3");
    EXPECT_EQ(speedUp.GetSpeedFactor(), 2.0);
    speedUp.Deserialize("");
    EXPECT_EQ(speedUp.GetSpeedFactor(), 2.0);
    speedUp.Deserialize("speed=abc");
    EXPECT_EQ(speedUp.GetSpeedFactor(), 2.0);
    EXPECT_THROW(speedUp.Deserialize("speed=\"1\""), std::invalid_argument);
}

TEST(SpeedUp, EmptyWhenTheSpeedIsNearlyOne)
{
    SettingsFilterSpeedUp speedUp;
    EXPECT_EQ(speedUp.GetSpeedFactor(), 1.0);
    EXPECT_TRUE(speedUp.IsEmpty());
    speedUp.SetSpeedUp(1.0 + std::numeric_limits<double>::epsilon());
    EXPECT_TRUE(speedUp.IsEmpty());
    speedUp.SetSpeedUp(1.0 + 4 * std::numeric_limits<double>::epsilon());
    EXPECT_FALSE(speedUp.IsEmpty());
}

TEST(SpeedUp, ComparesSpeedsByNearlyEqual)
{
    SettingsFilterSpeedUp a;
    SettingsFilterSpeedUp b;
    a.SetSpeedUp(3.0);
    b.SetSpeedUp(3.0 + 2 * std::numeric_limits<double>::epsilon());
    EXPECT_TRUE(a.IsEqualTo(b));
    EXPECT_TRUE(a == b);
    b.SetSpeedUp(3.00001);
    EXPECT_FALSE(a.IsEqualTo(b));
}

TEST(SpeedUpVideo, FpsIsReadAsANormalisedRational)
{
    SettingsFilterSpeedUpVideo video;
    video.Deserialize("fps=30000/1001");
    ASSERT_TRUE(video.GetConstantFPS().has_value());
    EXPECT_EQ(video.GetConstantFPS()->numerator(), 30000);
    EXPECT_EQ(video.GetConstantFPS()->denominator(), 1001);
    video.Deserialize("fps=60/2");
    EXPECT_EQ(video.GetConstantFPS()->numerator(), 30);
    EXPECT_EQ(video.GetConstantFPS()->denominator(), 1);
    video.Deserialize("fps=50/-4");
    EXPECT_EQ(video.GetConstantFPS()->numerator(), -25);
    EXPECT_EQ(video.GetConstantFPS()->denominator(), 2);
}

TEST(SpeedUpVideo, PlainNumberOrEmptyFpsLeavesTheRecordUnchanged)
{
    SettingsFilterSpeedUpVideo video;
    video.Deserialize("fps=30");
    EXPECT_FALSE(video.GetConstantFPS().has_value());
    video.Deserialize("fps=\"\"");
    EXPECT_FALSE(video.GetConstantFPS().has_value());
    video.SetConstantFPS(Rational(24, 1));
    video.Deserialize("fps=25");
    EXPECT_EQ(*video.GetConstantFPS(), Rational(24, 1));
}

TEST(SpeedUpVideo, FpsFailures)
{
    SettingsFilterSpeedUpVideo video;
    EXPECT_THROW(video.Deserialize("fps=/2"), std::invalid_argument);
    EXPECT_THROW(video.Deserialize("fps=2/"), std::invalid_argument);
    try {
        video.Deserialize("fps=25/0");
        ADD_FAILURE() << "no exception";
    } catch (const boost::bad_rational& e) {
        EXPECT_STREQ(e.what(), "bad rational: zero denominator");
    }
    EXPECT_FALSE(video.GetConstantFPS().has_value());
}

TEST(SpeedUpVideo, SpeedGoesThroughTheBaseFirst)
{
    SettingsFilterSpeedUpVideo video;
    EXPECT_EQ(FormADescription<SettingsException>([&] { video.Deserialize("speed=-2:useSeek=1"); }), "Invalid speed");
    EXPECT_FALSE(video.IsUseSeek());
    video.Deserialize("speed=4:fps=\"30/1\":useSeek=true");
    EXPECT_EQ(video.GetSpeedFactor(), 4.0);
    EXPECT_EQ(*video.GetConstantFPS(), Rational(30, 1));
    EXPECT_TRUE(video.IsUseSeek());
}

TEST(SpeedUpVideo, UseSeekIsReadThroughGetOptionBool)
{
    SettingsFilterSpeedUpVideo video;
    video.Deserialize("useSeek=1");
    EXPECT_TRUE(video.IsUseSeek());
    video.Deserialize("useSeek=false");
    EXPECT_FALSE(video.IsUseSeek());
    EXPECT_EQ(ZorvanTest::FormBDescription<std::invalid_argument>([&] { video.Deserialize("useSeek=2"); }, false),
              "The '2' value of the 'useSeek' option is not a boolean");
}

TEST(SpeedUpVideo, EmptyOnlyWithSpeedOneNoRateAndNoSeek)
{
    SettingsFilterSpeedUpVideo video;
    EXPECT_TRUE(video.IsEmpty());
    video.Deserialize("useSeek=1");
    EXPECT_FALSE(video.IsEmpty());
    SettingsFilterSpeedUpVideo withRate;
    withRate.SetConstantFPS(Rational(25, 1));
    EXPECT_FALSE(withRate.IsEmpty());
    SettingsFilterSpeedUpVideo faster;
    faster.SetSpeedUp(2.0);
    EXPECT_FALSE(faster.IsEmpty());
}

TEST(SpeedUpVideo, ComparesSpeedExactlyAndTheRateAndSeek)
{
    SettingsFilterSpeedUpVideo a;
    SettingsFilterSpeedUpVideo b;
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
    b.SetSpeedUp(1.0 + std::numeric_limits<double>::epsilon()); // nearly equal, but compared exactly
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
    EXPECT_FALSE(a.IsEqualTo(b));
    b.SetSpeedUp(1.0);
    b.SetConstantFPS(Rational(30, 1));
    EXPECT_FALSE(a == b);
    a.SetConstantFPS(Rational(60, 2));
    EXPECT_TRUE(a == b);
    a.UseSeek(true);
    EXPECT_FALSE(a == b);
}
