// Part 6.3: SettingsEffectHalfTone and SettingsEffectPopArt.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <vector>

#include "Proc/Settings/SettingsEffectHalfTone.h"
#include "Proc/Settings/SettingsEffectPopArt.h"
#include "TestSupport.h"

using namespace Zorvan::Proc;

namespace {

SettingsEffectHalfTone FilledHalfTone()
{
    SettingsEffectHalfTone halfTone;
    halfTone.SetBackgroundColor(0x00030201U);
    halfTone.SetDotColor(0x00060504U);
    halfTone.SetParam(1.5, 0.25, 4.0, 45);
    return halfTone;
}

void ExpectHalfTone(const SettingsEffectHalfTone& h, Color background, Color dot, double colorSize, double threshold,
                    double dotSize, int angle)
{
    EXPECT_EQ(h.GetBackgroundColor(), background);
    EXPECT_EQ(h.GetDotColor(), dot);
    EXPECT_EQ(h.GetColorSize(), colorSize);
    EXPECT_EQ(h.GetThreshold(), threshold);
    EXPECT_EQ(h.GetDotSize(), dotSize);
    EXPECT_EQ(h.GetAngle(), angle);
}

SettingsEffectPopArt FilledPopArt()
{
    SettingsEffectPopArt popArt;
    popArt.SetParams(2, 4, 0.5, 0.25, 0.125, 2.0);
    popArt.SetAmountHorizontal(3);
    popArt.SetInvert(true);
    popArt.SetIntensity(0.75F);
    popArt.SetResize(6);
    return popArt;
}

struct PopArtFields {
    double saturation;
    double hue;
    double offset;
    double scale;
    int levels;
    int amountVertical;
    int amountHorizontal;
    bool invert;
    float intensity;
    int resize;
};

void ExpectPopArt(const SettingsEffectPopArt& p, const PopArtFields& f)
{
    EXPECT_EQ(p.GetSaturation(), f.saturation);
    EXPECT_EQ(p.GetHue(), f.hue);
    EXPECT_EQ(p.GetOffset(), f.offset);
    EXPECT_EQ(p.GetScale(), f.scale);
    EXPECT_EQ(p.GetStoredLevels(), f.levels);
    EXPECT_EQ(p.GetAmountVertical(), f.amountVertical);
    EXPECT_EQ(p.GetAmountHorizontal(), f.amountHorizontal);
    EXPECT_EQ(p.GetInvert(), f.invert);
    EXPECT_EQ(p.GetIntensity(), f.intensity);
    EXPECT_EQ(p.GetResize(), f.resize);
}

const PopArtFields kFilledPopArt{0.5, 0.25, 0.125, 2.0, 4, 2, 3, true, 0.75F, 6};

} // namespace

// ---------------------------------------------------------------- SettingsEffectHalfTone

TEST(HalfTone, ClassIdIsDollarEffectHalfTone)
{
    const SettingsEffectHalfTone halfTone;
    EXPECT_EQ(SettingsEffectHalfTone::CLASS_ID, "$$EffectHalfTone$$");
    EXPECT_EQ(&halfTone.GetClassId(), &SettingsEffectHalfTone::CLASS_ID);
}

TEST(HalfTone, DefaultsAreValueInitialised)
{
    ExpectHalfTone(SettingsEffectHalfTone(), 0U, 0U, 0.0, 0.0, 0.0, 0);
}

TEST(HalfTone, DeserializeReadsAllTenKeysColoursWithATopByteOfZero)
{
    SettingsEffectHalfTone halfTone;
    halfTone.Deserialize(
        "rbg=1:gbg=2:bbg=3:rdot=255:gdot=254:bdot=253:colorsize=1.5:threshold=0.25:dotsize=4:angle=45");
    ExpectHalfTone(halfTone, 0x00030201U, 0x00FDFEFFU, 1.5, 0.25, 4.0, 45);
}

TEST(HalfTone, ColourKeysAreIntsCutToEightBits)
{
    SettingsEffectHalfTone halfTone;
    // 256 -> 0, -1 -> 0xFF, 257 -> 1, 2.9 -> std::stoi gives 2.
    halfTone.Deserialize("rbg=256:gbg=-1:bbg=257:rdot=2.9:gdot=511:bdot=0");
    EXPECT_EQ(halfTone.GetBackgroundColor(), 0x0001FF00U);
    EXPECT_EQ(halfTone.GetDotColor(), 0x0000FF02U);
}

TEST(HalfTone, BackgroundWithoutBbgStaysWhileACompleteDotColourApplies)
{
    SettingsEffectHalfTone halfTone = FilledHalfTone();
    halfTone.Deserialize("rbg=9:gbg=9:rdot=10:gdot=20:bdot=30");
    ExpectHalfTone(halfTone, 0x00030201U, 0x001E140AU, 1.5, 0.25, 4.0, 45);
}

TEST(HalfTone, EachColourStaysWhenAnyOneOfItsThreeKeysIsAbsent)
{
    for (const std::string options :
         {"gbg=9:bbg=9:gdot=9:bdot=9", "rbg=9:bbg=9:rdot=9:bdot=9", "rbg=9:gbg=9:rdot=9:gdot=9"}) {
        SCOPED_TRACE(options);
        SettingsEffectHalfTone halfTone = FilledHalfTone();
        halfTone.Deserialize(options);
        EXPECT_EQ(halfTone.GetBackgroundColor(), 0x00030201U);
        EXPECT_EQ(halfTone.GetDotColor(), 0x00060504U);
    }
}

TEST(HalfTone, CompleteBackgroundAppliesWhileAnIncompleteDotColourStays)
{
    SettingsEffectHalfTone halfTone = FilledHalfTone();
    halfTone.Deserialize("rbg=7:gbg=8:bbg=9:rdot=1:bdot=1:angle=-30");
    ExpectHalfTone(halfTone, 0x00090807U, 0x00060504U, 1.5, 0.25, 4.0, -30);
}

TEST(HalfTone, ScalarKeysAreIndependentAndConvertedByTheStandardConversions)
{
    SettingsEffectHalfTone halfTone = FilledHalfTone();
    halfTone.Deserialize("threshold=1,75:angle=30.7");
    ExpectHalfTone(halfTone, 0x00030201U, 0x00060504U, 1.5, 1.0, 4.0, 30);
    halfTone.Deserialize("COLORSIZE=2.5.1:DotSize=-.25");
    ExpectHalfTone(halfTone, 0x00030201U, 0x00060504U, 2.5, 1.0, -0.25, 30);
}

TEST(HalfTone, EmptyOptionsAndAbsentOrUnknownKeysChangeNothing)
{
    SettingsEffectHalfTone halfTone = FilledHalfTone();
    halfTone.Deserialize("");
    EXPECT_TRUE(halfTone == FilledHalfTone());
    halfTone.Deserialize("colourSize=9:rgb=1:dot=3:size=4");
    EXPECT_TRUE(halfTone == FilledHalfTone());
}

TEST(HalfTone, FailingConversionLeavesEarlierKeysApplied)
{
    SettingsEffectHalfTone halfTone = FilledHalfTone();
    // Order: background group, dot group, colorsize, threshold, dotsize, angle.
    EXPECT_THROW(halfTone.Deserialize("angle=1:dotsize=9:threshold=-:colorsize=3:rbg=7:gbg=7:bbg=7"),
                 std::invalid_argument);
    ExpectHalfTone(halfTone, 0x00070707U, 0x00060504U, 3.0, 0.25, 4.0, 45);
    // A failing key inside a group leaves the whole group and everything after it.
    EXPECT_THROW(halfTone.Deserialize("rdot=1:gdot=\"2\":bdot=3:colorsize=8"), std::invalid_argument);
    ExpectHalfTone(halfTone, 0x00070707U, 0x00060504U, 3.0, 0.25, 4.0, 45);
    EXPECT_THROW(halfTone.Deserialize("angle=99999999999"), std::out_of_range);
    EXPECT_EQ(halfTone.GetAngle(), 45);
}

TEST(HalfTone, SettersSayColourAndStoreUnchecked)
{
    SettingsEffectHalfTone halfTone;
    halfTone.SetParam(-1.0, 2.0, -3.0, 720);
    ExpectHalfTone(halfTone, 0U, 0U, -1.0, 2.0, -3.0, 720);
    halfTone.SetColourSize(5.5);
    halfTone.SetThreshold(-0.5);
    halfTone.SetDotSize(1e-300);
    halfTone.SetAngle(-1);
    ExpectHalfTone(halfTone, 0U, 0U, 5.5, -0.5, 1e-300, -1);
}

TEST(HalfTone, IsEmptyIsTheBasesFalse)
{
    EXPECT_FALSE(SettingsEffectHalfTone().IsEmpty());
    EXPECT_FALSE(FilledHalfTone().IsEmpty());
}

TEST(HalfTone, EveryOneOfTheSixFieldsTakesPartInTheComparison)
{
    const std::vector<std::function<void(SettingsEffectHalfTone&)>> changes{
        [](auto& h) { h.SetBackgroundColor(0x00030200U); },
        [](auto& h) { h.SetDotColor(0x00060505U); },
        [](auto& h) { h.SetColourSize(std::nextafter(1.5, 2.0)); },
        [](auto& h) { h.SetThreshold(std::nextafter(0.25, 0.0)); },
        [](auto& h) { h.SetDotSize(std::nextafter(4.0, 5.0)); },
        [](auto& h) { h.SetAngle(46); },
    };
    const SettingsEffectHalfTone base = FilledHalfTone();
    EXPECT_TRUE(base.IsEqualTo(FilledHalfTone()));
    for (std::size_t i = 0; i < changes.size(); ++i) {
        SCOPED_TRACE(i);
        SettingsEffectHalfTone changed = FilledHalfTone();
        changes[i](changed);
        EXPECT_FALSE(base.IsEqualTo(changed));
        EXPECT_FALSE(changed == base);
    }
}

TEST(HalfTone, ComparisonWithAForeignClassThrowsBadCast)
{
    EXPECT_THROW((void)SettingsEffectHalfTone().IsEqualTo(SettingsEffectPopArt()), std::bad_cast);
}

TEST(HalfTone, CloneCopiesEveryField)
{
    const SettingsEffectHalfTone original = FilledHalfTone();
    const std::unique_ptr<Settings> clone = original.Clone();
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(clone->GetClassId(), "$$EffectHalfTone$$");
    ExpectHalfTone(dynamic_cast<const SettingsEffectHalfTone&>(*clone), 0x00030201U, 0x00060504U, 1.5, 0.25, 4.0, 45);
    EXPECT_TRUE(clone->IsEqualTo(original));
}

// ---------------------------------------------------------------- SettingsEffectPopArt

TEST(PopArt, ClassIdIsEffectPopArt)
{
    const SettingsEffectPopArt popArt;
    EXPECT_EQ(SettingsEffectPopArt::CLASS_ID, "EffectPopArt");
    EXPECT_EQ(&popArt.GetClassId(), &SettingsEffectPopArt::CLASS_ID);
}

TEST(PopArt, DefaultsAreOneTileAndZeroIntensity)
{
    ExpectPopArt(SettingsEffectPopArt(), {0.0, 0.0, 0.0, 1.0, 0, 1, 1, false, 0.0F, 0});
}

TEST(PopArt, SetParamsPutsTheAmountIntoBothDirectionsAndTheSecondIntoLevels)
{
    SettingsEffectPopArt popArt;
    popArt.SetParams(3, 5, 0.5, -0.25, 0.125, 2.0);
    EXPECT_EQ(popArt.GetAmountVertical(), 3);
    EXPECT_EQ(popArt.GetAmountHorizontal(), 3);
    EXPECT_EQ(popArt.GetStoredLevels(), 5);
    ExpectPopArt(popArt, {0.5, -0.25, 0.125, 2.0, 5, 3, 3, false, 0.0F, 0});
}

TEST(PopArt, PlainSettersStoreUnchecked)
{
    SettingsEffectPopArt popArt;
    popArt.SetSaturation(-1.0);
    popArt.SetHue(370.0);
    popArt.SetOffset(-0.5);
    popArt.SetScale(0.0);
    popArt.SetLevels(-4);
    popArt.SetAmountVertical(-2);
    popArt.SetAmountHorizontal(0);
    popArt.SetInvert(true);
    popArt.SetIntensity(-0.5F);
    popArt.SetResize(-9);
    ExpectPopArt(popArt, {-1.0, 370.0, -0.5, 0.0, -4, -2, 0, true, -0.5F, -9});
}

TEST(PopArt, GetLevelsWithLevelsFiveAndIntensityHalfIsTwo)
{
    SettingsEffectPopArt popArt;
    popArt.SetLevels(5);
    popArt.SetIntensity(0.5F);
    EXPECT_EQ(popArt.GetLevels(), 2);
}

TEST(PopArt, GetLevelsAtIntensityZeroIsOne)
{
    SettingsEffectPopArt popArt;
    popArt.SetLevels(5);
    popArt.SetIntensity(0.0F);
    EXPECT_EQ(popArt.GetLevels(), 1);
}

TEST(PopArt, GetLevelsWithLevelsZeroIsOne)
{
    SettingsEffectPopArt popArt;
    popArt.SetLevels(0);
    popArt.SetIntensity(1.0F);
    EXPECT_EQ(popArt.GetLevels(), 1);
}

TEST(PopArt, GetLevelsTruncatesTowardZeroAndYieldsOneForAnythingNotAboveOne)
{
    SettingsEffectPopArt popArt;
    const auto levels = [&](int levelsField, float intensity) {
        popArt.SetLevels(levelsField);
        popArt.SetIntensity(intensity);
        return popArt.GetLevels();
    };
    EXPECT_EQ(levels(5, 1.0F), 5);
    EXPECT_EQ(levels(3, 0.99F), 2);   // 2.97
    EXPECT_EQ(levels(8, 0.25F), 2);   // exactly 2
    EXPECT_EQ(levels(2, 0.6F), 1);    // 1.2
    EXPECT_EQ(levels(1, 1.0F), 1);    // exactly 1: not above 1
    EXPECT_EQ(levels(7, 0.1F), 1);    // 0.7
    EXPECT_EQ(levels(-5, 1.0F), 1);   // negative
    EXPECT_EQ(levels(5, -2.0F), 1);   // negative
    EXPECT_EQ(levels(-5, -2.0F), 10); // the product is positive
    EXPECT_EQ(levels(10, 2.5F), 25);  // intensity above 1 multiplies up
}

TEST(PopArt, GetLevelsMultipliesInFloat)
{
    SettingsEffectPopArt popArt;
    // 16777217 (2^24 + 1) has no float: it becomes 16777216 before the product.
    popArt.SetLevels(16777217);
    popArt.SetIntensity(1.0F);
    EXPECT_EQ(popArt.GetLevels(), 16777216);
    // 0.7f is 0.699999988...; 10 * 0.7f is 6.99999988... exactly, which rounds to the float 7
    // (in double it would stay below 7 and truncate to 6).
    popArt.SetLevels(10);
    popArt.SetIntensity(0.7F);
    EXPECT_EQ(popArt.GetLevels(), 7);
}

TEST(PopArt, GetLevelsGuardsNaNAndProductsOutsideInt)
{
    SettingsEffectPopArt popArt;
    popArt.SetLevels(5);
    popArt.SetIntensity(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(popArt.GetLevels(), 1);
    popArt.SetIntensity(std::numeric_limits<float>::infinity());
    EXPECT_EQ(popArt.GetLevels(), std::numeric_limits<int>::max());
    popArt.SetLevels(std::numeric_limits<int>::max());
    popArt.SetIntensity(2.0F);
    EXPECT_EQ(popArt.GetLevels(), std::numeric_limits<int>::max());
    popArt.SetLevels(0);
    popArt.SetIntensity(std::numeric_limits<float>::infinity()); // 0 * inf is NaN
    EXPECT_EQ(popArt.GetLevels(), 1);
}

TEST(PopArt, DeserializeReadsAllTenKeys)
{
    SettingsEffectPopArt popArt;
    popArt.Deserialize("saturation=0.5:hue=-0.25:offset=0.125:scale=2:levels=6:nv=3:nh=4:invert=1:resize=2:"
                       "intensity=0.1");
    ExpectPopArt(popArt, {0.5, -0.25, 0.125, 2.0, 6, 3, 4, true, 0.1F, 2});
}

TEST(PopArt, InvertGivenAsTwoIsFalse)
{
    SettingsEffectPopArt popArt = FilledPopArt();
    popArt.Deserialize("invert=2");
    EXPECT_FALSE(popArt.GetInvert());
}

TEST(PopArt, InvertIsTrueOnlyWhenTheIntegerIsExactlyOne)
{
    SettingsEffectPopArt popArt;
    popArt.Deserialize("invert=1");
    EXPECT_TRUE(popArt.GetInvert());
    popArt.Deserialize("invert=0");
    EXPECT_FALSE(popArt.GetInvert());
    popArt.Deserialize("invert=1.9"); // std::stoi reads 1
    EXPECT_TRUE(popArt.GetInvert());
    popArt.Deserialize("invert=-1");
    EXPECT_FALSE(popArt.GetInvert());
    popArt.Deserialize("invert=01");
    EXPECT_TRUE(popArt.GetInvert());
}

TEST(PopArt, KeysAreIndependentAndAbsentOrUnknownKeysChangeNothing)
{
    SettingsEffectPopArt popArt = FilledPopArt();
    popArt.Deserialize("");
    EXPECT_TRUE(popArt == FilledPopArt());
    popArt.Deserialize("amount=9:level=9:n=9:invertx=1:sat=4");
    EXPECT_TRUE(popArt == FilledPopArt());
    popArt.Deserialize("NH=7:Hue=1,5");
    ExpectPopArt(popArt, {0.5, 1.0, 0.125, 2.0, 4, 2, 7, true, 0.75F, 6});
}

TEST(PopArt, ResizeIsReadBeforeIntensity)
{
    SettingsEffectPopArt popArt = FilledPopArt();
    EXPECT_THROW(popArt.Deserialize("intensity=0.5:resize=-:nh=9:levels=8"), std::invalid_argument);
    ExpectPopArt(popArt, {0.5, 0.25, 0.125, 2.0, 8, 2, 9, true, 0.75F, 6});
}

TEST(PopArt, FailingConversionLeavesEarlierKeysApplied)
{
    SettingsEffectPopArt popArt = FilledPopArt();
    EXPECT_THROW(popArt.Deserialize("invert=0:nv=\"5\":hue=3:saturation=2"), std::invalid_argument);
    ExpectPopArt(popArt, {2.0, 3.0, 0.125, 2.0, 4, 2, 3, true, 0.75F, 6});
    EXPECT_THROW(popArt.Deserialize("levels=99999999999:offset=1"), std::out_of_range);
    ExpectPopArt(popArt, {2.0, 3.0, 1.0, 2.0, 4, 2, 3, true, 0.75F, 6});
    EXPECT_THROW(popArt.Deserialize("invert=99999999999"), std::out_of_range);
    EXPECT_TRUE(popArt.GetInvert());
}

TEST(PopArt, IsEmptyIsTheBasesFalse)
{
    EXPECT_FALSE(SettingsEffectPopArt().IsEmpty());
    EXPECT_FALSE(FilledPopArt().IsEmpty());
}

TEST(PopArt, EveryOneOfTheTenFieldsTakesPartInTheComparison)
{
    const std::vector<std::function<void(SettingsEffectPopArt&)>> changes{
        [](auto& p) { p.SetSaturation(std::nextafter(0.5, 1.0)); },
        [](auto& p) { p.SetHue(std::nextafter(0.25, 1.0)); },
        [](auto& p) { p.SetOffset(std::nextafter(0.125, 1.0)); },
        [](auto& p) { p.SetScale(std::nextafter(2.0, 3.0)); },
        [](auto& p) { p.SetLevels(5); },
        [](auto& p) { p.SetAmountVertical(3); },
        [](auto& p) { p.SetAmountHorizontal(2); },
        [](auto& p) { p.SetInvert(false); },
        [](auto& p) { p.SetIntensity(std::nextafter(0.75F, 1.0F)); },
        [](auto& p) { p.SetResize(7); },
    };
    const SettingsEffectPopArt base = FilledPopArt();
    EXPECT_TRUE(base.IsEqualTo(FilledPopArt()));
    for (std::size_t i = 0; i < changes.size(); ++i) {
        SCOPED_TRACE(i);
        SettingsEffectPopArt changed = FilledPopArt();
        changes[i](changed);
        EXPECT_FALSE(base.IsEqualTo(changed));
        EXPECT_FALSE(changed == base);
    }
}

TEST(PopArt, ComparisonIsOnTheStoredLevelsNotOnGetLevels)
{
    SettingsEffectPopArt a;
    SettingsEffectPopArt b;
    a.SetLevels(0);
    b.SetLevels(1);
    ASSERT_EQ(a.GetLevels(), b.GetLevels());
    EXPECT_FALSE(a.IsEqualTo(b));
}

TEST(PopArt, ComparisonWithAForeignClassThrowsBadCast)
{
    EXPECT_THROW((void)SettingsEffectPopArt().IsEqualTo(SettingsEffectHalfTone()), std::bad_cast);
}

TEST(PopArt, CloneCopiesEveryField)
{
    const SettingsEffectPopArt original = FilledPopArt();
    const std::unique_ptr<Settings> clone = original.Clone();
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(clone->GetClassId(), "EffectPopArt");
    ExpectPopArt(dynamic_cast<const SettingsEffectPopArt&>(*clone), kFilledPopArt);
    EXPECT_TRUE(clone->IsEqualTo(original));
}
