// Part 1.1: the settings interface, class identity and the reference record.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <typeinfo>

#include "Proc/Settings/SettingsAudioGenerator.h"
#include "Proc/Settings/SettingsEffectBlurGaussian.h"
#include "Proc/Settings/SettingsEffectBokehBlur.h"
#include "Proc/Settings/SettingsFilterAudioVolume.h"
#include "Proc/Settings/SettingsFilterSpeedUp.h"
#include "Proc/Settings/SettingsFilterSpeedUpVideo.h"
#include "TestSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormADescription;

namespace {

SettingsEffectBlurGaussian Blur(double scale, bool fast)
{
    SettingsEffectBlurGaussian blur;
    blur.SetScale(scale);
    blur.SetFast(fast);
    return blur;
}

} // namespace

TEST(SettingsBase, IsEmptyIsFalseForClassesWithoutOverrideEvenAtDefaults)
{
    EXPECT_FALSE(SettingsEffectBlurGaussian().IsEmpty());
    EXPECT_FALSE(SettingsAudioGenerator().IsEmpty());
    EXPECT_FALSE(SettingsFilterAudioVolume().IsEmpty());
}

TEST(SettingsBase, DeserializeEmptyThrowsWithoutOverrideAndIsANoOpWithOne)
{
    SettingsAudioGenerator generator;
    EXPECT_EQ(FormADescription<SettingsException>([&] { generator.Deserialize(""); }),
              "Not implemented fill from string for settings CLASS_ID = SettingsAudioGenerator");
    SettingsFilterAudioVolume volume;
    EXPECT_EQ(FormADescription<SettingsException>([&] { volume.Deserialize("gain=2"); }),
              "Not implemented fill from string for settings CLASS_ID = $$AUDIO_VOLUME$$");

    SettingsEffectBlurGaussian blur = Blur(3.5, true);
    EXPECT_NO_THROW(blur.Deserialize(""));
    EXPECT_EQ(blur.GetScale(), 3.5);
    EXPECT_TRUE(blur.GetFast());
}

TEST(SettingsBase, IsEqualToWithItselfThrowsWithoutOverride)
{
    const SettingsAudioGenerator generator;
    EXPECT_EQ(FormADescription<SettingsException>([&] { (void)generator.IsEqualTo(generator); }),
              "Not implemented comparison for settings CLASS_ID = SettingsAudioGenerator");
}

TEST(SettingsBase, IsEqualToDoesNotLookAtTheOtherRecord)
{
    // The base IsEqualTo names this record's identifier, whatever the other one is.
    const SettingsEffectBlurGaussian blur;
    const SettingsAudioGenerator generator;
    EXPECT_EQ(FormADescription<SettingsException>([&] { (void)blur.IsEqualTo(generator); }),
              "Not implemented comparison for settings CLASS_ID = $$EffectBlurGaussian$$");
}

TEST(SettingsBase, FailedBaseOperationsLeaveTheRecordUnchanged)
{
    SettingsEffectBlurGaussian blur = Blur(1.25, true);
    EXPECT_THROW((void)blur.IsEqualTo(blur), SettingsException);
    EXPECT_EQ(blur.GetScale(), 1.25);
    EXPECT_TRUE(blur.GetFast());
}

TEST(ClassIdentity, GetClassIdReturnsAReferenceToClassId)
{
    const SettingsEffectBlurGaussian blur;
    EXPECT_EQ(&blur.GetClassId(), &SettingsEffectBlurGaussian::CLASS_ID);
    EXPECT_EQ(blur.GetClassId(), "$$EffectBlurGaussian$$");
    const SettingsFilterSpeedUpVideo video;
    const Settings& asBase = video;
    EXPECT_EQ(&asBase.GetClassId(), &SettingsFilterSpeedUpVideo::CLASS_ID);
    EXPECT_NE(SettingsFilterSpeedUpVideo::CLASS_ID, SettingsFilterSpeedUp::CLASS_ID);
}

TEST(ClassIdentity, CloneCopiesTheRecordIntoANewObjectOfItsClass)
{
    const SettingsEffectBlurGaussian blur = Blur(2.5, true);
    const std::unique_ptr<Settings> clone = blur.Clone();
    ASSERT_NE(clone, nullptr);
    EXPECT_NE(clone.get(), static_cast<const Settings*>(&blur));
    EXPECT_EQ(typeid(*clone), typeid(SettingsEffectBlurGaussian));
    EXPECT_EQ(clone->GetClassId(), "$$EffectBlurGaussian$$");
    const auto& copy = dynamic_cast<const SettingsEffectBlurGaussian&>(*clone);
    EXPECT_EQ(copy.GetScale(), 2.5);
    EXPECT_TRUE(copy.GetFast());
}

TEST(ClassIdentity, CloneOfADerivedRecordThroughTheBaseKeepsTheDerivedClass)
{
    SettingsFilterSpeedUpVideo video;
    video.SetSpeedUp(2.0);
    video.SetConstantFPS({30000, 1001});
    video.UseSeek(true);
    const SettingsFilterSpeedUp& asBase = video;
    const std::unique_ptr<Settings> clone = asBase.Clone();
    EXPECT_EQ(typeid(*clone), typeid(SettingsFilterSpeedUpVideo));
    EXPECT_TRUE(video.IsEqualTo(*clone));
    EXPECT_TRUE(clone->IsEqualTo(video));
}

TEST(ClassIdentity, CloneSharesTheObjectsOfSharedPointerMembers)
{
    SettingsEffectBokehBlur bokeh;
    const auto image = std::make_shared<const ImageHandler>(2, 1, std::vector<std::uint8_t>{1, 2, 3, 4, 5, 6, 7, 8});
    bokeh.SetImage(image);
    bokeh.SetParams(3.0, 0.5, 0.25);
    const std::unique_ptr<Settings> clone = bokeh.Clone();
    const auto& copy = dynamic_cast<const SettingsEffectBokehBlur&>(*clone);
    EXPECT_EQ(copy.GetImage().get(), image.get());
    EXPECT_EQ(image.use_count(), 3); // the test, the record and its clone
    EXPECT_EQ(copy.GetSize(), 3.0);
    EXPECT_EQ(copy.GetHdrBorder(), 0.25);
}

TEST(BlurGaussian, ScaleWinsAndFastIsNotLookedAtWhenBothAreGiven)
{
    SettingsEffectBlurGaussian blur = Blur(1.0, false);
    blur.Deserialize("scale=2.5:fast=1");
    EXPECT_EQ(blur.GetScale(), 2.5);
    EXPECT_FALSE(blur.GetFast());

    SettingsEffectBlurGaussian fastBlur = Blur(1.0, true);
    fastBlur.Deserialize("scale=2.5:fast=0");
    EXPECT_TRUE(fastBlur.GetFast());
}

TEST(BlurGaussian, FastAloneSetsTheFlag)
{
    SettingsEffectBlurGaussian blur = Blur(1.0, false);
    blur.Deserialize("fast=1");
    EXPECT_TRUE(blur.GetFast());
    EXPECT_EQ(blur.GetScale(), 1.0);
}

TEST(BlurGaussian, FastBeforeScaleLeavesTheFlagUnchanged)
{
    SettingsEffectBlurGaussian blur = Blur(4.0, true);
    blur.Deserialize("fast=0:scale=1");
    EXPECT_TRUE(blur.GetFast());
    EXPECT_EQ(blur.GetScale(), 1.0);
}

TEST(BlurGaussian, FastIsTrueForAnyNonZeroNumber)
{
    SettingsEffectBlurGaussian blur;
    blur.Deserialize("fast=-3");
    EXPECT_TRUE(blur.GetFast());
    blur.Deserialize("fast=00");
    EXPECT_FALSE(blur.GetFast());
    blur.Deserialize("fast=2,5");
    EXPECT_TRUE(blur.GetFast());
}

TEST(BlurGaussian, UnquotedWordIsNoOptionAndChangesNothing)
{
    SettingsEffectBlurGaussian blur = Blur(0.75, true);
    blur.Deserialize("scale=abc");
    EXPECT_EQ(blur.GetScale(), 0.75);
    EXPECT_TRUE(blur.GetFast());
    // With scale absent, a fast key behind the word is read.
    blur.Deserialize("scale=abc:fast=0");
    EXPECT_FALSE(blur.GetFast());
    EXPECT_EQ(blur.GetScale(), 0.75);
}

TEST(BlurGaussian, ScaleIsReadWithStodAndKeepsNoRange)
{
    SettingsEffectBlurGaussian blur;
    blur.Deserialize("SCALE=-12.5e");
    EXPECT_EQ(blur.GetScale(), -12.5);
    blur.Deserialize("x-scale=3");
    EXPECT_EQ(blur.GetScale(), 3.0);
    blur.Deserialize("rescale=7");
    EXPECT_EQ(blur.GetScale(), 3.0);
    blur.SetScale(-1e300);
    EXPECT_EQ(blur.GetScale(), -1e300);
}

TEST(BlurGaussian, ConversionFailuresLeaveDeserialize)
{
    SettingsEffectBlurGaussian blur = Blur(1.0, false);
    EXPECT_THROW(blur.Deserialize("scale=\"2\""), std::invalid_argument);
    EXPECT_THROW(blur.Deserialize("scale=-"), std::invalid_argument);
    EXPECT_THROW(blur.Deserialize("scale=1" + std::string(400, '0')), std::out_of_range);
    EXPECT_EQ(blur.GetScale(), 1.0);
    blur.Deserialize("scale=1e999"); // the numeric value pattern stops at 'e': the value is "1"
    EXPECT_EQ(blur.GetScale(), 1.0);
}

TEST(BlurGaussian, ComparingTwoRecordsThrows)
{
    const SettingsEffectBlurGaussian a = Blur(1.0, false);
    const SettingsEffectBlurGaussian b = Blur(1.0, false);
    EXPECT_EQ(FormADescription<SettingsException>([&] { (void)a.IsEqualTo(b); }),
              "Not implemented comparison for settings CLASS_ID = $$EffectBlurGaussian$$");
}

TEST(CrossClassComparison, BaseRecordComparesOnlyTheSpeedOfADerivedRecord)
{
    SettingsFilterSpeedUp speedUp;
    speedUp.SetSpeedUp(1.5);
    SettingsFilterSpeedUpVideo video;
    video.SetSpeedUp(1.5 + 1.5 * std::numeric_limits<double>::epsilon()); // nearly equal, not equal
    video.SetConstantFPS({25, 1});
    video.UseSeek(true);
    EXPECT_TRUE(speedUp.IsEqualTo(video));
    video.SetSpeedUp(1.5001);
    EXPECT_FALSE(speedUp.IsEqualTo(video));
}

TEST(CrossClassComparison, DerivedRecordGivenTheBaseRecordRaisesBadCast)
{
    const SettingsFilterSpeedUp speedUp;
    const SettingsFilterSpeedUpVideo video;
    EXPECT_THROW((void)video.IsEqualTo(speedUp), std::bad_cast);
}

TEST(CrossClassComparison, ForeignTypeRaisesBadCastNeverFalse)
{
    const SettingsFilterSpeedUp speedUp;
    const SettingsEffectBlurGaussian blur;
    EXPECT_THROW((void)speedUp.IsEqualTo(blur), std::bad_cast);
}

// The three comparison rules of Part 1.1, Algorithms.
TEST(NearlyEqual, DoubleRuleIsRelativeToTheSumAtMostAndBelowTheSmallestNormal)
{
    constexpr double eps = 2.220446049250313e-16;
    EXPECT_TRUE(NearlyEqual(0.0, 0.0));
    EXPECT_TRUE(NearlyEqual(1.0, 1.0 + eps));                // difference eps <= 2.0000000000000002 * eps
    EXPECT_FALSE(NearlyEqual(1.0, 1.0 + 4 * eps));           // 4 eps > (2 + 4 eps) eps
    EXPECT_TRUE(NearlyEqual(1e-310, 0.0));                   // subnormal difference < smallest normal
    EXPECT_FALSE(NearlyEqual(2.2250738585072014e-308, 0.0)); // not strictly below
    EXPECT_TRUE(NearlyEqual(1.0, -1.0 + 2.0));
    EXPECT_FALSE(NearlyEqual(std::nan(""), std::nan("")));
    EXPECT_FALSE(NearlyEqual(1.0, std::nan("")));
}

TEST(NearlyEqual, FloatRuleUsesTheFloatConstants)
{
    constexpr float eps = 1.1920929e-7f;
    EXPECT_TRUE(NearlyEqual(1.0f, 1.0f + eps));
    EXPECT_FALSE(NearlyEqual(1.0f, 1.0f + 4 * eps));
    EXPECT_TRUE(NearlyEqual(1e-39f, 0.0f));
    EXPECT_FALSE(NearlyEqual(1.1754944e-38f, 0.0f));
    EXPECT_FALSE(NearlyEqual(std::nanf(""), 0.0f));
}

TEST(NearZero, HoldsOnlyAtZeroForNormalValuesAndForSubnormals)
{
    EXPECT_TRUE(NearZero(0.0));
    EXPECT_TRUE(NearZero(-0.0));
    EXPECT_TRUE(NearZero(4.9e-324));
    EXPECT_FALSE(NearZero(1e-300));
    EXPECT_TRUE(NearZero(0.0f));
    EXPECT_TRUE(NearZero(1e-40f));
    EXPECT_FALSE(NearZero(1e-30f));
}
