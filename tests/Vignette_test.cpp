// Part 6.2: SettingsEffectVignetteFilter.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <vector>

#include "Proc/Settings/SettingsEffectBlurGaussian.h"
#include "Proc/Settings/SettingsEffectVignetteFilter.h"
#include "TestSupport.h"

using namespace Zorvan::Proc;

namespace {

// A record with every field away from its default.
SettingsEffectVignetteFilter Filled()
{
    SettingsEffectVignetteFilter vignette;
    vignette.SetForm(1);
    vignette.SetSmooth(2);
    vignette.SetAspect(3);
    vignette.SetColor(0x04030201U);
    vignette.SetParams(0.25, 0.75, 0.125, 0.875);
    vignette.SetIntensity(0.5F);
    return vignette;
}

void ExpectFields(const SettingsEffectVignetteFilter& v, int form, int smooth, int aspect, Color color, double x0,
                  double y0, double ri, double re, float intensity)
{
    EXPECT_EQ(v.GetForm(), form);
    EXPECT_EQ(v.GetSmooth(), smooth);
    EXPECT_EQ(v.GetAspect(), aspect);
    EXPECT_EQ(v.GetColor(), color);
    EXPECT_EQ(v.GetX0(), x0);
    EXPECT_EQ(v.GetY0(), y0);
    EXPECT_EQ(v.GetRi(), ri);
    EXPECT_EQ(v.GetRe(), re);
    EXPECT_EQ(v.GetIntensity(), intensity);
}

} // namespace

TEST(VignetteFilter, ClassIdIsEffectVignetteFilter)
{
    const SettingsEffectVignetteFilter vignette;
    EXPECT_EQ(SettingsEffectVignetteFilter::CLASS_ID, "EffectVignetteFilter");
    EXPECT_EQ(&vignette.GetClassId(), &SettingsEffectVignetteFilter::CLASS_ID);
}

TEST(VignetteFilter, DefaultsAreZeroSoTheStageChangesNothing)
{
    const SettingsEffectVignetteFilter vignette;
    ExpectFields(vignette, 0, 0, 0, 0U, 0.0, 0.0, 0.0, 0.0, 0.0F);
}

TEST(VignetteFilter, DeserializeReadsAllTwelveKeys)
{
    SettingsEffectVignetteFilter vignette;
    vignette.Deserialize("form=2:smooth=3:aspect=1:x0=0.25:y0=0.75:ri=0.1:re=0.9:r=10:g=20:b=30:a=40:intensity=0.5");
    ExpectFields(vignette, 2, 3, 1, 0x281E140AU, 0.25, 0.75, 0.1, 0.9, 0.5F);
}

TEST(VignetteFilter, KeysAreFoundInAnyOrderAndLetterCase)
{
    SettingsEffectVignetteFilter vignette;
    vignette.Deserialize("INTENSITY=0.25:A=4:B=3:G=2:R=1:RE=6:RI=5:Y0=-4:X0=-3:ASPECT=-2:Smooth=-1:Form=7");
    ExpectFields(vignette, 7, -1, -2, 0x04030201U, -3.0, -4.0, 5.0, 6.0, 0.25F);
}

TEST(VignetteFilter, ConversionsAreTheStandardOnesReadingTheLongestPrefix)
{
    SettingsEffectVignetteFilter vignette;
    // int: std::stoi stops at the point or the comma; double: std::stod stops at the
    // second point; float: std::stof, so intensity 0.1 is the float nearest to 0.1.
    vignette.Deserialize("form=2.9:smooth=1,5:aspect=-0:x0=1.2.3:y0=1,5:ri=-.5:re=5.:intensity=0.1");
    ExpectFields(vignette, 2, 1, 0, 0U, 1.2, 1.0, -0.5, 5.0, 0.1F);
}

TEST(VignetteFilter, ColourKeysArePackedRedLowestAlphaHighestFromTheAKey)
{
    SettingsEffectVignetteFilter vignette;
    vignette.Deserialize("r=1:g=2:b=3:a=255");
    EXPECT_EQ(vignette.GetColor(), 0xFF030201U);
    vignette.Deserialize("r=0:g=0:b=0:a=0");
    EXPECT_EQ(vignette.GetColor(), 0U);
}

TEST(VignetteFilter, RedGivenAs257StoresRedOne)
{
    SettingsEffectVignetteFilter vignette;
    vignette.Deserialize("r=257:g=0:b=0:a=0");
    EXPECT_EQ(vignette.GetColor(), 1U);
}

TEST(VignetteFilter, EveryColourKeyIsCutToItsLowEightBits)
{
    SettingsEffectVignetteFilter vignette;
    // -1 is 0xFFFFFFFF cut to 0xFF; 511 to 0xFF; 256 to 0; 4660 (0x1234) to 0x34.
    vignette.Deserialize("r=-1:g=511:b=256:a=4660");
    EXPECT_EQ(vignette.GetColor(), 0x3400FFFFU);
}

TEST(VignetteFilter, ColourWithoutAlphaStaysWhileTheOtherKeysApply)
{
    SettingsEffectVignetteFilter vignette = Filled();
    vignette.Deserialize("r=10:g=20:b=30:form=5:x0=0.5:intensity=1");
    ExpectFields(vignette, 5, 2, 3, 0x04030201U, 0.5, 0.75, 0.125, 0.875, 1.0F);
}

TEST(VignetteFilter, ColourStaysWhenAnyOneOfItsFourKeysIsAbsent)
{
    for (const std::string options : {"g=9:b=9:a=9", "r=9:b=9:a=9", "r=9:g=9:a=9", "r=9:g=9:b=9"}) {
        SCOPED_TRACE(options);
        SettingsEffectVignetteFilter vignette = Filled();
        vignette.Deserialize(options);
        EXPECT_EQ(vignette.GetColor(), 0x04030201U);
    }
}

TEST(VignetteFilter, RadiusKeysAreNotTheRedKey)
{
    SettingsEffectVignetteFilter vignette = Filled();
    vignette.Deserialize("ri=1:re=2:g=9:b=9:a=9");
    EXPECT_EQ(vignette.GetColor(), 0x04030201U);
    EXPECT_EQ(vignette.GetRi(), 1.0);
    EXPECT_EQ(vignette.GetRe(), 2.0);
}

TEST(VignetteFilter, EmptyOptionsAndAbsentOrUnknownKeysChangeNothing)
{
    SettingsEffectVignetteFilter vignette = Filled();
    vignette.Deserialize("");
    EXPECT_TRUE(vignette == Filled());
    vignette.Deserialize("radius=3:colour=5:alpha=1:x=1");
    EXPECT_TRUE(vignette == Filled());
    vignette.Deserialize("smooth=8");
    ExpectFields(vignette, 1, 8, 3, 0x04030201U, 0.25, 0.75, 0.125, 0.875, 0.5F);
}

TEST(VignetteFilter, RepeatedKeysTakeTheFirstOccurrence)
{
    SettingsEffectVignetteFilter vignette;
    vignette.Deserialize("form=1:FORM=2:form=3");
    EXPECT_EQ(vignette.GetForm(), 1);
}

TEST(VignetteFilter, UnquotedWordIsNoOptionUnderTheNumericPattern)
{
    SettingsEffectVignetteFilter vignette = Filled();
    vignette.Deserialize("form=abc:intensity=x");
    EXPECT_TRUE(vignette == Filled());
}

TEST(VignetteFilter, FailingConversionLeavesEarlierKeysApplied)
{
    SettingsEffectVignetteFilter vignette = Filled();
    // Order: form, smooth, aspect, x0, y0, ri, re, then the colour group, then intensity.
    EXPECT_THROW(vignette.Deserialize("intensity=0.75:g=-:r=7:b=7:a=7:re=4:form=9"), std::invalid_argument);
    ExpectFields(vignette, 9, 2, 3, 0x04030201U, 0.25, 0.75, 0.125, 4.0, 0.5F);
}

TEST(VignetteFilter, QuotedNumberAndOutOfRangeValuesThrowTheConversionsExceptions)
{
    SettingsEffectVignetteFilter vignette = Filled();
    EXPECT_THROW(vignette.Deserialize("form=4:x0=\"1\":y0=2"), std::invalid_argument);
    EXPECT_EQ(vignette.GetForm(), 4);
    EXPECT_EQ(vignette.GetX0(), 0.25);
    EXPECT_EQ(vignette.GetY0(), 0.75);
    EXPECT_THROW(vignette.Deserialize("smooth=99999999999"), std::out_of_range);
    EXPECT_EQ(vignette.GetSmooth(), 2);
    EXPECT_THROW(vignette.Deserialize("r=1:g=2:b=3:a=99999999999"), std::out_of_range);
    EXPECT_EQ(vignette.GetColor(), 0x04030201U);
    EXPECT_THROW(vignette.Deserialize("intensity=1" + std::string(50, '0')), std::out_of_range);
    EXPECT_EQ(vignette.GetIntensity(), 0.5F);
}

TEST(VignetteFilter, SettersStoreUnchecked)
{
    SettingsEffectVignetteFilter vignette;
    vignette.SetParams(-1.0, 2.5, -3.0, 1e300);
    vignette.SetIntensity(-7.5F);
    ExpectFields(vignette, 0, 0, 0, 0U, -1.0, 2.5, -3.0, 1e300, -7.5F);
}

TEST(VignetteFilter, IsEmptyIsTheBasesFalseEvenAtZeroIntensity)
{
    const SettingsEffectVignetteFilter vignette;
    EXPECT_FALSE(vignette.IsEmpty());
    EXPECT_FALSE(Filled().IsEmpty());
}

TEST(VignetteFilter, EqualRecordsCompareEqual)
{
    const SettingsEffectVignetteFilter a = Filled();
    const SettingsEffectVignetteFilter b = Filled();
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(a.IsEqualTo(b));
    EXPECT_TRUE(SettingsEffectVignetteFilter().IsEqualTo(SettingsEffectVignetteFilter()));
}

TEST(VignetteFilter, TwoRecordsThatDifferOnlyInColourCompareUnequal)
{
    const SettingsEffectVignetteFilter a = Filled();
    SettingsEffectVignetteFilter b = Filled();
    b.SetColor(0x84030201U); // alpha differs in its top bit only
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(a.IsEqualTo(b));
    EXPECT_FALSE(b.IsEqualTo(a));
}

TEST(VignetteFilter, EveryFieldTakesPartInTheComparison)
{
    const std::vector<std::function<void(SettingsEffectVignetteFilter&)>> changes{
        [](auto& v) { v.SetForm(9); },
        [](auto& v) { v.SetSmooth(9); },
        [](auto& v) { v.SetAspect(9); },
        [](auto& v) { v.SetColor(0x04030200U); },
        [](auto& v) { v.SetParams(std::nextafter(0.25, 1.0), 0.75, 0.125, 0.875); },
        [](auto& v) { v.SetParams(0.25, std::nextafter(0.75, 1.0), 0.125, 0.875); },
        [](auto& v) { v.SetParams(0.25, 0.75, std::nextafter(0.125, 1.0), 0.875); },
        [](auto& v) { v.SetParams(0.25, 0.75, 0.125, std::nextafter(0.875, 1.0)); },
        [](auto& v) { v.SetIntensity(std::nextafter(0.5F, 1.0F)); },
    };
    const SettingsEffectVignetteFilter base = Filled();
    for (std::size_t i = 0; i < changes.size(); ++i) {
        SCOPED_TRACE(i);
        SettingsEffectVignetteFilter changed = Filled();
        changes[i](changed);
        EXPECT_FALSE(base.IsEqualTo(changed));
        EXPECT_FALSE(changed == base);
    }
}

TEST(VignetteFilter, ComparisonIsExactNotNearlyEqualAndNaNIsNeverEqual)
{
    SettingsEffectVignetteFilter a;
    SettingsEffectVignetteFilter b;
    a.SetIntensity(0.0F);
    b.SetIntensity(std::numeric_limits<float>::denorm_min());
    EXPECT_FALSE(a.IsEqualTo(b));
    a.SetParams(std::nan(""), 0.0, 0.0, 0.0);
    EXPECT_FALSE(a.IsEqualTo(a));
}

TEST(VignetteFilter, ComparisonWithAForeignClassThrowsBadCast)
{
    const SettingsEffectVignetteFilter vignette;
    const SettingsEffectBlurGaussian blur;
    EXPECT_THROW((void)vignette.IsEqualTo(blur), std::bad_cast);
}

TEST(VignetteFilter, CloneCopiesEveryFieldIntoANewRecord)
{
    const SettingsEffectVignetteFilter original = Filled();
    const std::unique_ptr<Settings> clone = original.Clone();
    ASSERT_NE(clone, nullptr);
    EXPECT_NE(clone.get(), static_cast<const Settings*>(&original));
    EXPECT_EQ(clone->GetClassId(), "EffectVignetteFilter");
    const auto& copy = dynamic_cast<const SettingsEffectVignetteFilter&>(*clone);
    ExpectFields(copy, 1, 2, 3, 0x04030201U, 0.25, 0.75, 0.125, 0.875, 0.5F);
    EXPECT_TRUE(original.IsEqualTo(*clone));
}
