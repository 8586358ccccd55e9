// Part 5.2: SettingsEffectColorBalance (slider maps, FF getters, hue normalisation, IsEmpty,
// luma and chroma, comparison, Deserialize) and SettingsEffectBalanceChroma (clamping setters,
// static keys, Deserialize, comparison). Expected doubles were worked out with python3 from the
// formulas of the Part (same IEEE double operations in the same order), not by running the
// code under test; the hue table by hand and with python3 (C++ remainder: sign of dividend).
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cmath>
#include <functional>
#include <limits>
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <vector>

#include "Proc/Settings/SettingsEffectBalanceChroma.h"
#include "Proc/Settings/SettingsEffectColorBalance.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;

namespace {

SettingsEffectColorBalance WithSaturation(int slider)
{
    SettingsEffectColorBalance record;
    record.SetSaturation(slider);
    return record;
}

SettingsEffectColorBalance WithGamma(int slider)
{
    SettingsEffectColorBalance record;
    record.SetGamma(slider);
    return record;
}

SettingsEffectColorBalance WithSaturationFactor(double factor)
{
    SettingsEffectColorBalance record;
    record.SetFFSaturation(factor);
    return record;
}

SettingsEffectColorBalance WithGammaFactor(double value)
{
    SettingsEffectColorBalance record;
    record.SetFFGamma(value);
    return record;
}

int HueAfter(const std::string& value)
{
    SettingsEffectColorBalance record;
    record.Deserialize("hue=" + value);
    return record.GetHue();
}

// One ulp of 1.0 upwards is 2^-52, downwards 2^-53.
const double kOneUlpAbove = std::nextafter(1.0, 2.0);
const double kOneUlpBelow = std::nextafter(1.0, 0.0);
const double kThreeUlpsAbove = 1.0 + 3.0 * std::ldexp(1.0, -52);

} // namespace

// ---- SettingsEffectColorBalance: defaults -------------------------------------------------

TEST(ColorBalance, DefaultRecordIsNeutralAndEmpty)
{
    const SettingsEffectColorBalance record;
    EXPECT_EQ(record.GetClassId(), "$$COLOR_BALANCE$$");
    EXPECT_EQ(&record.GetClassId(), &SettingsEffectColorBalance::CLASS_ID);
    EXPECT_EQ(record.GetBrightness(), 0);
    EXPECT_EQ(record.GetContrast(), 0);
    EXPECT_EQ(record.GetFFSaturation(), 1.0);
    EXPECT_EQ(record.GetHue(), 0);
    EXPECT_EQ(record.GetFFGamma(), 1.0);
    EXPECT_EQ(record.GetRedGamma(), 0);
    EXPECT_EQ(record.GetGreenGamma(), 0);
    EXPECT_EQ(record.GetBlueGamma(), 0);
    EXPECT_EQ(record.GetWeight(), 0);
    EXPECT_EQ(record.GetSaturation(), 0);
    EXPECT_EQ(record.GetGamma(), 0);
    EXPECT_FALSE(record.IsSaturationSet());
    EXPECT_FALSE(record.IsGammaSet());
    EXPECT_TRUE(record.IsEmpty());
    EXPECT_FALSE(record.IsLumaChanged());
    EXPECT_FALSE(record.IsChromaChanged());
    EXPECT_EQ(record.GetFFBrightness(), 0.0);
    EXPECT_EQ(record.GetFFContrast(), 1.0);
    EXPECT_EQ(record.GetFFGammaRed(), 1.0);
    EXPECT_EQ(record.GetFFGammaGreen(), 1.0);
    EXPECT_EQ(record.GetFFGammaBlue(), 1.0);
    EXPECT_EQ(record.GetFFGammaWeight(), 0.0);
}

TEST(ColorBalance, PlainIntAccessorsStoreAsGivenWithoutClampOrNormalisation)
{
    SettingsEffectColorBalance record;
    record.SetBrightness(1000);
    record.SetContrast(-1000);
    record.SetHue(540);
    record.SetRedGamma(300);
    record.SetGreenGamma(-300);
    record.SetBlueGamma(INT_MIN);
    record.SetWeight(INT_MAX);
    EXPECT_EQ(record.GetBrightness(), 1000);
    EXPECT_EQ(record.GetContrast(), -1000);
    EXPECT_EQ(record.GetHue(), 540);
    EXPECT_EQ(record.GetRedGamma(), 300);
    EXPECT_EQ(record.GetGreenGamma(), -300);
    EXPECT_EQ(record.GetBlueGamma(), INT_MIN);
    EXPECT_EQ(record.GetWeight(), INT_MAX);
}

// ---- Saturation slider map ----------------------------------------------------------------

TEST(ColorBalance, SetSaturationEdgeValuesOfThePart)
{
    EXPECT_EQ(WithSaturation(0).GetFFSaturation(), 1.0);
    EXPECT_EQ(WithSaturation(-100).GetFFSaturation(), 0.0);
    EXPECT_EQ(WithSaturation(100).GetFFSaturation(), 3.0);
    EXPECT_EQ(WithSaturation(200).GetFFSaturation(), 3.0);
}

TEST(ColorBalance, SetSaturationNegativeSlopeSpansZeroToOneInDouble)
{
    // (v + 100) / 100 + 0 in double: integer division would give 0 for all of these.
    EXPECT_EQ(WithSaturation(-99).GetFFSaturation(), 0.01);
    EXPECT_EQ(WithSaturation(-75).GetFFSaturation(), 0.25);
    EXPECT_EQ(WithSaturation(-50).GetFFSaturation(), 0.5);
    EXPECT_EQ(WithSaturation(-33).GetFFSaturation(), 0.67);
    EXPECT_EQ(WithSaturation(-1).GetFFSaturation(), 0.99);
}

TEST(ColorBalance, SetSaturationPositiveSlopeSpansOneToThreeInDouble)
{
    // (v + v) / 100 + 1 in double.
    EXPECT_EQ(WithSaturation(1).GetFFSaturation(), 1.02);
    EXPECT_EQ(WithSaturation(2).GetFFSaturation(), 1.04);
    EXPECT_EQ(WithSaturation(25).GetFFSaturation(), 1.5);
    EXPECT_EQ(WithSaturation(33).GetFFSaturation(), 1.6600000000000001);
    EXPECT_EQ(WithSaturation(50).GetFFSaturation(), 2.0);
    EXPECT_EQ(WithSaturation(75).GetFFSaturation(), 2.5);
    EXPECT_EQ(WithSaturation(99).GetFFSaturation(), 2.98);
}

TEST(ColorBalance, SetSaturationClampsToZeroAndThreeWithoutOverflow)
{
    EXPECT_EQ(WithSaturation(-101).GetFFSaturation(), 0.0);
    EXPECT_EQ(WithSaturation(-200).GetFFSaturation(), 0.0);
    EXPECT_EQ(WithSaturation(INT_MIN).GetFFSaturation(), 0.0);
    EXPECT_EQ(WithSaturation(101).GetFFSaturation(), 3.0);
    EXPECT_EQ(WithSaturation(INT_MAX).GetFFSaturation(), 3.0);
}

TEST(ColorBalance, GetSaturationEdgeValuesOfThePart)
{
    EXPECT_EQ(WithSaturation(100).GetSaturation(), 100); // factor 3.0
    EXPECT_EQ(WithSaturation(25).GetSaturation(), 25);   // factor 1.5
    EXPECT_EQ(WithSaturation(-50).GetSaturation(), -50); // factor 0.5
    EXPECT_EQ(WithSaturationFactor(3.0).GetSaturation(), 100);
    EXPECT_EQ(WithSaturationFactor(1.5).GetSaturation(), 25);
    EXPECT_EQ(WithSaturationFactor(0.5).GetSaturation(), -50);
}

TEST(ColorBalance, GetSaturationRoundTripsEverySliderOfBothSlopes)
{
    for (const int slider : {-100, -99, -75, -50, -33, -1, 0, 1, 2, 33, 50, 75, 99, 100}) {
        EXPECT_EQ(WithSaturation(slider).GetSaturation(), slider) << slider;
    }
}

TEST(ColorBalance, GetSaturationTruncatesTowardZeroOnBothSlopes)
{
    // 0.005 * 100 - 100 = -99.5: toward zero gives -99 (a floor would give -100).
    EXPECT_EQ(WithSaturationFactor(0.005).GetSaturation(), -99);
    // (1.999 - 1) * 100 * 0.5 + 0 = 49.95 -> 49; (2.999 - 1) * 50 = 99.95 -> 99.
    EXPECT_EQ(WithSaturationFactor(1.999).GetSaturation(), 49);
    EXPECT_EQ(WithSaturationFactor(2.999).GetSaturation(), 99);
    EXPECT_EQ(WithSaturationFactor(0.0).GetSaturation(), -100);
}

TEST(ColorBalance, GetSaturationOfNotANumberIsZero)
{
    const auto record = WithSaturationFactor(std::numeric_limits<double>::quiet_NaN());
    EXPECT_TRUE(std::isnan(record.GetFFSaturation()));
    EXPECT_EQ(record.GetSaturation(), 0);
    EXPECT_TRUE(record.IsSaturationSet());
}

TEST(ColorBalance, SetFFSaturationStoresTheFactorClampedToZeroThree)
{
    EXPECT_EQ(WithSaturationFactor(1.25).GetFFSaturation(), 1.25);
    EXPECT_EQ(WithSaturationFactor(5.0).GetFFSaturation(), 3.0);
    EXPECT_EQ(WithSaturationFactor(-1.0).GetFFSaturation(), 0.0);
}

// ---- Gamma slider map ---------------------------------------------------------------------

TEST(ColorBalance, SetGammaEdgeValuesOfThePart)
{
    EXPECT_EQ(WithGamma(0).GetFFGamma(), 1.0);
    EXPECT_EQ(WithGamma(-100).GetFFGamma(), 0.1);
    EXPECT_EQ(WithGamma(100).GetFFGamma(), 10.0);
    EXPECT_EQ(WithGamma(0).GetGamma(), 0);
    EXPECT_EQ(WithGammaFactor(1.0).GetGamma(), 0);
}

TEST(ColorBalance, SetGammaNegativeSlopeSpansPointOneToOne)
{
    // 0.1 + 0.9 * (v + 100) / 100, in double.
    EXPECT_EQ(WithGamma(-99).GetFFGamma(), 0.10900000000000001);
    EXPECT_EQ(WithGamma(-75).GetFFGamma(), 0.325);
    EXPECT_EQ(WithGamma(-50).GetFFGamma(), 0.55);
    EXPECT_EQ(WithGamma(-33).GetFFGamma(), 0.7030000000000001);
    EXPECT_EQ(WithGamma(-1).GetFFGamma(), 0.9910000000000001);
}

TEST(ColorBalance, SetGammaPositiveSlopeSpansOneToTen)
{
    // 1 + 9 * v / 100, in double.
    EXPECT_EQ(WithGamma(1).GetFFGamma(), 1.09);
    EXPECT_EQ(WithGamma(2).GetFFGamma(), 1.18);
    EXPECT_EQ(WithGamma(33).GetFFGamma(), 3.97);
    EXPECT_EQ(WithGamma(50).GetFFGamma(), 5.5);
    EXPECT_EQ(WithGamma(75).GetFFGamma(), 7.75);
    EXPECT_EQ(WithGamma(99).GetFFGamma(), 9.91);
}

TEST(ColorBalance, SetGammaClampsToPointOneAndTenWithoutOverflow)
{
    EXPECT_EQ(WithGamma(-101).GetFFGamma(), 0.1);
    EXPECT_EQ(WithGamma(INT_MIN).GetFFGamma(), 0.1);
    EXPECT_EQ(WithGamma(101).GetFFGamma(), 10.0);
    EXPECT_EQ(WithGamma(INT_MAX).GetFFGamma(), 10.0);
}

TEST(ColorBalance, GetGammaOfBothSlopesTruncatesTowardZero)
{
    // Exact round trips.
    for (const int slider : {-100, -99, -75, -1, 0, 1, 33, 50, 75, 99, 100}) {
        EXPECT_EQ(WithGamma(slider).GetGamma(), slider) << slider;
    }
    // -100 + (0.55 - 0.1) * 100 / 0.9 = -49.99999999999999 -> -49, not -50.
    EXPECT_EQ(WithGamma(-50).GetGamma(), -49);
    // -100 + (0.703... - 0.1) * 100 / 0.9 = -32.999999999999986 -> -32.
    EXPECT_EQ(WithGamma(-33).GetGamma(), -32);
    // (1.18 - 1) * 100 / 9 = 1.9999999999999991 -> 1.
    EXPECT_EQ(WithGamma(2).GetGamma(), 1);
    EXPECT_EQ(WithGammaFactor(0.1).GetGamma(), -100);
    EXPECT_EQ(WithGammaFactor(10.0).GetGamma(), 100);
    EXPECT_EQ(WithGammaFactor(5.5).GetGamma(), 50);
}

TEST(ColorBalance, GetGammaOfNotANumberIsZero)
{
    const auto record = WithGammaFactor(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(record.GetGamma(), 0);
    EXPECT_TRUE(record.IsGammaSet());
}

TEST(ColorBalance, SetFFGammaStoresTheGammaClampedToPointOneTen)
{
    EXPECT_EQ(WithGammaFactor(2.5).GetFFGamma(), 2.5);
    EXPECT_EQ(WithGammaFactor(0.0).GetFFGamma(), 0.1);
    EXPECT_EQ(WithGammaFactor(11.0).GetFFGamma(), 10.0);
}

// ---- FF getters ---------------------------------------------------------------------------

TEST(ColorBalance, FFBrightnessEdgeValuesOfThePart)
{
    SettingsEffectColorBalance record;
    record.SetBrightness(-255);
    EXPECT_EQ(record.GetFFBrightness(), -1.0);
    record.SetBrightness(0);
    EXPECT_EQ(record.GetFFBrightness(), 0.0);
    record.SetBrightness(255);
    EXPECT_EQ(record.GetFFBrightness(), 1.0);
}

TEST(ColorBalance, FFBrightnessIsDoubleDivisionWithClampLast)
{
    const std::vector<std::pair<int, double>> cases{
        {-254, -0.996078431372549},
        {-128, -0.5019607843137255},
        {-1, -0.0039215686274509665},
        {1, 0.0039215686274509665},
        {127, 0.4980392156862745},
        {128, 0.5019607843137255},
        {254, 0.996078431372549},
        {-256, -1.0},
        {256, 1.0},
        {INT_MIN, -1.0},
        {INT_MAX, 1.0},
    };
    for (const auto& [brightness, expected] : cases) {
        SettingsEffectColorBalance record;
        record.SetBrightness(brightness);
        EXPECT_EQ(record.GetFFBrightness(), expected) << brightness;
    }
}

TEST(ColorBalance, FFContrastEdgeValuesOfThePart)
{
    SettingsEffectColorBalance record;
    record.SetContrast(-127);
    EXPECT_EQ(record.GetFFContrast(), 0.0);
    record.SetContrast(0);
    EXPECT_EQ(record.GetFFContrast(), 1.0);
}

TEST(ColorBalance, FFContrastIsDoubleDivisionWithClampLast)
{
    const std::vector<std::pair<int, double>> cases{
        {-126, 0.007874015748031496},
        {-64, 0.49606299212598426},
        {-1, 0.9921259842519685},
        {1, 1.0078740157480315},
        {63, 1.4960629921259843},
        {127, 2.0},
        {-128, 0.0},
        {128, 2.0},
        {INT_MIN, 0.0},
        {INT_MAX, 2.0},
    };
    for (const auto& [contrast, expected] : cases) {
        SettingsEffectColorBalance record;
        record.SetContrast(contrast);
        EXPECT_EQ(record.GetFFContrast(), expected) << contrast;
    }
}

TEST(ColorBalance, FFGammaChannelsApplyTheSetGammaFormulaToTheirOwnSlider)
{
    const std::vector<std::pair<int, double>> cases{
        {-100, 0.1},     {-99, 0.10900000000000001},
        {-50, 0.55},     {-1, 0.9910000000000001},
        {0, 1.0},        {1, 1.09},
        {50, 5.5},       {99, 9.91},
        {100, 10.0},     {-101, 0.1},
        {101, 10.0},     {INT_MIN, 0.1},
        {INT_MAX, 10.0},
    };
    for (const auto& [slider, expected] : cases) {
        SettingsEffectColorBalance red;
        red.SetRedGamma(slider);
        EXPECT_EQ(red.GetFFGammaRed(), expected) << slider;
        EXPECT_EQ(red.GetFFGammaGreen(), 1.0);
        EXPECT_EQ(red.GetFFGammaBlue(), 1.0);
        SettingsEffectColorBalance green;
        green.SetGreenGamma(slider);
        EXPECT_EQ(green.GetFFGammaGreen(), expected) << slider;
        EXPECT_EQ(green.GetFFGammaRed(), 1.0);
        SettingsEffectColorBalance blue;
        blue.SetBlueGamma(slider);
        EXPECT_EQ(blue.GetFFGammaBlue(), expected) << slider;
        EXPECT_EQ(blue.GetFFGammaRed(), 1.0);
        // The stored overall gamma is not involved.
        EXPECT_EQ(blue.GetFFGamma(), 1.0);
    }
}

TEST(ColorBalance, FFGammaWeightIsPercentInDoubleClampedToZeroOne)
{
    const std::vector<std::pair<int, double>> cases{
        {0, 0.0},   {1, 0.01},  {33, 0.33},     {50, 0.5}, {99, 0.99},
        {100, 1.0}, {101, 1.0}, {INT_MAX, 1.0}, {-1, 0.0}, {INT_MIN, 0.0},
    };
    for (const auto& [weight, expected] : cases) {
        SettingsEffectColorBalance record;
        record.SetWeight(weight);
        EXPECT_EQ(record.GetFFGammaWeight(), expected) << weight;
    }
}

// ---- IsEmpty, luma and chroma -------------------------------------------------------------

TEST(ColorBalance, OnlyHueSetIsChromaNotLumaAndNotEmpty)
{
    SettingsEffectColorBalance record;
    record.Deserialize("hue=10");
    EXPECT_FALSE(record.IsLumaChanged());
    EXPECT_TRUE(record.IsChromaChanged());
    EXPECT_FALSE(record.IsEmpty());
}

TEST(ColorBalance, OnlyWeightSetIsEmptyAndChangesNothing)
{
    SettingsEffectColorBalance record;
    record.SetWeight(50);
    EXPECT_TRUE(record.IsEmpty());
    EXPECT_FALSE(record.IsLumaChanged());
    EXPECT_FALSE(record.IsChromaChanged());
}

TEST(ColorBalance, EachLumaFieldAloneIsLumaNotChromaAndNotEmpty)
{
    const std::vector<std::pair<const char*, std::function<void(SettingsEffectColorBalance&)>>> setters{
        {"brightness", [](auto& r) { r.SetBrightness(-1); }},
        {"contrast", [](auto& r) { r.SetContrast(1); }},
        {"red gamma", [](auto& r) { r.SetRedGamma(1); }},
        {"green gamma", [](auto& r) { r.SetGreenGamma(-1); }},
        {"blue gamma", [](auto& r) { r.SetBlueGamma(1); }},
        // Saturation counts as luma, not as chroma.
        {"saturation", [](auto& r) { r.SetSaturation(1); }},
        {"gamma", [](auto& r) { r.SetGamma(-1); }},
    };
    for (const auto& [name, set] : setters) {
        SettingsEffectColorBalance record;
        set(record);
        EXPECT_TRUE(record.IsLumaChanged()) << name;
        EXPECT_FALSE(record.IsChromaChanged()) << name;
        EXPECT_FALSE(record.IsEmpty()) << name;
    }
}

TEST(ColorBalance, SaturationOneUlpFromNeutralIsNeutral)
{
    for (const double factor : {kOneUlpAbove, kOneUlpBelow}) {
        const auto record = WithSaturationFactor(factor);
        EXPECT_NE(record.GetFFSaturation(), 1.0);
        EXPECT_FALSE(record.IsSaturationSet());
        EXPECT_FALSE(record.IsLumaChanged());
        EXPECT_TRUE(record.IsEmpty());
    }
    // Three ulps above 1.0 exceed |a + b| * epsilon: no longer neutral.
    const auto set = WithSaturationFactor(kThreeUlpsAbove);
    EXPECT_TRUE(set.IsSaturationSet());
    EXPECT_TRUE(set.IsLumaChanged());
    EXPECT_FALSE(set.IsEmpty());
}

TEST(ColorBalance, GammaOneUlpFromNeutralIsNeutral)
{
    for (const double value : {kOneUlpAbove, kOneUlpBelow}) {
        const auto record = WithGammaFactor(value);
        EXPECT_FALSE(record.IsGammaSet());
        EXPECT_TRUE(record.IsEmpty());
    }
    const auto set = WithGammaFactor(kThreeUlpsAbove);
    EXPECT_TRUE(set.IsGammaSet());
    EXPECT_FALSE(set.IsEmpty());
}

// ---- Deserialize --------------------------------------------------------------------------

TEST(ColorBalance, DeserializeHueEdgeValuesOfThePart)
{
    EXPECT_EQ(HueAfter("180"), 180);
    EXPECT_EQ(HueAfter("-180"), -180);
    EXPECT_EQ(HueAfter("190"), -170);
    EXPECT_EQ(HueAfter("360"), 0);
}

TEST(ColorBalance, DeserializeHueNormalisesIntoMinus180To179ExceptExactly180)
{
    const std::vector<std::pair<const char*, int>> cases{
        {"0", 0},
        {"1", 1},
        {"-1", -1},
        {"179", 179},
        {"181", -179},
        {"-179", -179},
        {"-181", 179},
        {"359", -1},
        {"361", 1},
        {"-360", 0},
        {"-361", -1},
        {"540", -180},
        {"-540", -180},
        {"720", 0},
        {"900", -180},
        {"-900", -180},
        {"2147483647", 127},
        {"-2147483648", -128},
        {"2147483646", 126},
        {"-2147483647", -127},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(HueAfter(text), expected) << text;
    }
}

TEST(ColorBalance, DeserializeReadsEveryKeyIntoItsField)
{
    SettingsEffectColorBalance record;
    record.Deserialize("brightness=-20:contrast=30:saturation=50:hue=45:gamma=-50:rg=7:gg=-8:bg=9:weight=60");
    EXPECT_EQ(record.GetBrightness(), -20);
    EXPECT_EQ(record.GetContrast(), 30);
    EXPECT_EQ(record.GetFFSaturation(), 2.0);
    EXPECT_EQ(record.GetHue(), 45);
    EXPECT_EQ(record.GetFFGamma(), 0.55);
    EXPECT_EQ(record.GetRedGamma(), 7);
    EXPECT_EQ(record.GetGreenGamma(), -8);
    EXPECT_EQ(record.GetBlueGamma(), 9);
    EXPECT_EQ(record.GetWeight(), 60);
}

TEST(ColorBalance, DeserializeStoresIntSlidersUnclampedAndSaturationGammaThroughTheirClamps)
{
    SettingsEffectColorBalance record;
    record.Deserialize("brightness=1000:contrast=-1000:rg=500:gg=-500:bg=101:weight=250:saturation=150:gamma=-150");
    EXPECT_EQ(record.GetBrightness(), 1000);
    EXPECT_EQ(record.GetContrast(), -1000);
    EXPECT_EQ(record.GetRedGamma(), 500);
    EXPECT_EQ(record.GetGreenGamma(), -500);
    EXPECT_EQ(record.GetBlueGamma(), 101);
    EXPECT_EQ(record.GetWeight(), 250);
    EXPECT_EQ(record.GetFFSaturation(), 3.0);
    EXPECT_EQ(record.GetFFGamma(), 0.1);
    // The FF getters clamp on the way out.
    EXPECT_EQ(record.GetFFBrightness(), 1.0);
    EXPECT_EQ(record.GetFFContrast(), 0.0);
    EXPECT_EQ(record.GetFFGammaRed(), 10.0);
    EXPECT_EQ(record.GetFFGammaGreen(), 0.1);
    EXPECT_EQ(record.GetFFGammaBlue(), 10.0);
    EXPECT_EQ(record.GetFFGammaWeight(), 1.0);
}

TEST(ColorBalance, DeserializeConvertsWithStoiReadingTheLongestPrefix)
{
    SettingsEffectColorBalance record;
    record.Deserialize("brightness=2.7:contrast=1,5:saturation=50.9:gamma=1.99:hue=190.5:weight=12abc");
    EXPECT_EQ(record.GetBrightness(), 2);
    EXPECT_EQ(record.GetContrast(), 1);
    EXPECT_EQ(record.GetFFSaturation(), 2.0); // SetSaturation(50)
    EXPECT_EQ(record.GetFFGamma(), 1.09);     // SetGamma(1)
    EXPECT_EQ(record.GetHue(), -170);         // 190
    EXPECT_EQ(record.GetWeight(), 12);
}

TEST(ColorBalance, DeserializeEmptyOrWithoutKeysChangesNothingAndAbsentKeysLeaveFields)
{
    SettingsEffectColorBalance record;
    record.Deserialize("brightness=5:saturation=50:gamma=50:hue=20:rg=1:gg=2:bg=3:weight=4:contrast=6");
    const SettingsEffectColorBalance before = record;
    record.Deserialize("");
    EXPECT_TRUE(record == before);
    record.Deserialize("unknown=3:bright=7:gammas=1");
    EXPECT_TRUE(record == before);
    // An update, not a reset: only the given key changes.
    record.Deserialize("contrast=-6");
    EXPECT_EQ(record.GetContrast(), -6);
    EXPECT_EQ(record.GetBrightness(), 5);
    EXPECT_EQ(record.GetFFSaturation(), 2.0);
    EXPECT_EQ(record.GetFFGamma(), 5.5);
    EXPECT_EQ(record.GetHue(), 20);
    EXPECT_EQ(record.GetRedGamma(), 1);
    EXPECT_EQ(record.GetGreenGamma(), 2);
    EXPECT_EQ(record.GetBlueGamma(), 3);
    EXPECT_EQ(record.GetWeight(), 4);
}

TEST(ColorBalance, DeserializeKeysAreCaseInsensitiveAndTheFirstOccurrenceCounts)
{
    SettingsEffectColorBalance record;
    record.Deserialize("BRIGHTNESS=3:brightness=4:Hue=-190:hue=5");
    EXPECT_EQ(record.GetBrightness(), 3);
    EXPECT_EQ(record.GetHue(), 170);
}

TEST(ColorBalance, DeserializeFailureLeavesEarlierKeysOfTheClassOrderApplied)
{
    SettingsEffectColorBalance record;
    // "hue" fails (std::stoi("-")); the keys are read in the class's order, not the string's:
    // brightness, contrast and saturation come before hue, gamma and the rest after it.
    EXPECT_EQ(ZorvanTest::FormBDescription<std::invalid_argument>(
                  [&] { record.Deserialize("gamma=50:rg=9:hue=-:brightness=5:contrast=6:saturation=50"); }, false),
              "stoi");
    EXPECT_EQ(record.GetBrightness(), 5);
    EXPECT_EQ(record.GetContrast(), 6);
    EXPECT_EQ(record.GetFFSaturation(), 2.0);
    EXPECT_EQ(record.GetHue(), 0);
    EXPECT_EQ(record.GetFFGamma(), 1.0);
    EXPECT_EQ(record.GetRedGamma(), 0);
}

TEST(ColorBalance, DeserializeOutOfRangeIntRaisesOutOfRangeAfterEarlierKeys)
{
    SettingsEffectColorBalance record;
    EXPECT_EQ(ZorvanTest::FormBDescription<std::out_of_range>(
                  [&] { record.Deserialize("rg=1:gg=2:bg=3:weight=2147483648"); }, false),
              "stoi");
    EXPECT_EQ(record.GetRedGamma(), 1);
    EXPECT_EQ(record.GetGreenGamma(), 2);
    EXPECT_EQ(record.GetBlueGamma(), 3);
    EXPECT_EQ(record.GetWeight(), 0);
}

TEST(ColorBalance, DeserializeQuotedNumberIsAConversionFailure)
{
    SettingsEffectColorBalance record;
    EXPECT_EQ(ZorvanTest::FormBDescription<std::invalid_argument>([&] { record.Deserialize("contrast=\"5\""); }, false),
              "stoi");
    EXPECT_EQ(record.GetContrast(), 0);
}

TEST(ColorBalance, DeserializeUnquotedWordIsNoOption)
{
    SettingsEffectColorBalance record;
    record.Deserialize("brightness=abc:weight=+5");
    EXPECT_TRUE(record == SettingsEffectColorBalance());
}

// ---- Comparison and copies ----------------------------------------------------------------

TEST(ColorBalance, EqualityComparesIntsExactlyIncludingWeight)
{
    const SettingsEffectColorBalance base;
    const std::vector<std::pair<const char*, std::function<void(SettingsEffectColorBalance&)>>> setters{
        {"brightness", [](auto& r) { r.SetBrightness(1); }},
        {"contrast", [](auto& r) { r.SetContrast(1); }},
        {"hue", [](auto& r) { r.SetHue(1); }},
        {"red gamma", [](auto& r) { r.SetRedGamma(1); }},
        {"green gamma", [](auto& r) { r.SetGreenGamma(1); }},
        {"blue gamma", [](auto& r) { r.SetBlueGamma(1); }},
        {"weight", [](auto& r) { r.SetWeight(1); }},
        {"saturation", [](auto& r) { r.SetSaturation(1); }},
        {"gamma", [](auto& r) { r.SetGamma(1); }},
    };
    for (const auto& [name, set] : setters) {
        SettingsEffectColorBalance other;
        set(other);
        EXPECT_FALSE(other == base) << name;
        EXPECT_FALSE(base == other) << name;
        EXPECT_FALSE(base.IsEqualTo(other)) << name;
        EXPECT_TRUE(other == other) << name;
    }
    EXPECT_TRUE(base == SettingsEffectColorBalance());
    EXPECT_TRUE(base.IsEqualTo(SettingsEffectColorBalance()));
}

TEST(ColorBalance, EqualityComparesSaturationAndGammaNearlyEqual)
{
    // 1.5 and 1.5 + 3 ulps are nearly equal (3 * 2^-52 <= 3.0 * epsilon); + 4 ulps are not.
    const double near = 1.5 + 3.0 * std::ldexp(1.0, -52);
    const double far = 1.5 + 4.0 * std::ldexp(1.0, -52);
    EXPECT_TRUE(WithSaturationFactor(1.5) == WithSaturationFactor(near));
    EXPECT_FALSE(WithSaturationFactor(1.5) == WithSaturationFactor(far));
    EXPECT_TRUE(WithGammaFactor(1.5) == WithGammaFactor(near));
    EXPECT_FALSE(WithGammaFactor(1.5) == WithGammaFactor(far));
    EXPECT_TRUE(WithGammaFactor(1.5).IsEqualTo(WithGammaFactor(near)));
    EXPECT_FALSE(WithSaturationFactor(1.5).IsEqualTo(WithSaturationFactor(far)));
}

TEST(ColorBalance, IsEqualToWithAForeignClassThrowsBadCast)
{
    const SettingsEffectColorBalance record;
    const SettingsEffectBalanceChroma foreign;
    EXPECT_THROW((void)record.IsEqualTo(foreign), std::bad_cast);
}

TEST(ColorBalance, CloneIsAnIndependentEqualCopy)
{
    SettingsEffectColorBalance record;
    record.Deserialize("brightness=1:contrast=2:saturation=3:hue=4:gamma=5:rg=6:gg=7:bg=8:weight=9");
    const auto clone = record.Clone();
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(clone->GetClassId(), SettingsEffectColorBalance::CLASS_ID);
    EXPECT_TRUE(clone->IsEqualTo(record));
    record.SetWeight(10);
    EXPECT_FALSE(clone->IsEqualTo(record));
    EXPECT_EQ(dynamic_cast<const SettingsEffectColorBalance&>(*clone).GetWeight(), 9);
}

// ---- Catalogue ----------------------------------------------------------------------------

TEST(ColorBalance, CatalogueShowsStoredFactorsOfSaturationGammaHue540)
{
    const auto* entry = Zorvan::SettingsCatalog::Find("$$COLOR_BALANCE$$");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->className, "SettingsEffectColorBalance");
    EXPECT_EQ(entry->Own(), "EMD");
    SettingsEffectColorBalance record;
    record.Deserialize("saturation=100:gamma=-100:hue=540");
    EXPECT_EQ(entry->FieldsToJson(record).dump(),
              R"({"brightness":0,"contrast":0,"saturation":3.0,"hue":-180,"gamma":0.1,)"
              R"("redGamma":0,"greenGamma":0,"blueGamma":0,"weight":0})");
}

TEST(ColorBalance, CatalogueReadsEveryIntField)
{
    const auto* entry = Zorvan::SettingsCatalog::Find("SettingsEffectColorBalance");
    ASSERT_NE(entry, nullptr);
    SettingsEffectColorBalance record;
    record.Deserialize("brightness=1:contrast=2:saturation=-50:hue=4:gamma=50:rg=6:gg=7:bg=8:weight=9");
    EXPECT_EQ(entry->FieldsToJson(record).dump(),
              R"({"brightness":1,"contrast":2,"saturation":0.5,"hue":4,"gamma":5.5,)"
              R"("redGamma":6,"greenGamma":7,"blueGamma":8,"weight":9})");
}

// ---- SettingsEffectBalanceChroma ----------------------------------------------------------

namespace {

using ChromaSetter = void (SettingsEffectBalanceChroma::*)(int);
using ChromaGetter = int (SettingsEffectBalanceChroma::*)() const;

struct ChromaField {
    const char* key;
    ChromaSetter set;
    ChromaGetter get;
};

const std::array<ChromaField, 9> kChromaFields{{
    {"shadows-red", &SettingsEffectBalanceChroma::SetShadowsRed, &SettingsEffectBalanceChroma::GetShadowsRed},
    {"shadows-green", &SettingsEffectBalanceChroma::SetShadowsGreen, &SettingsEffectBalanceChroma::GetShadowsGreen},
    {"shadows-blue", &SettingsEffectBalanceChroma::SetShadowsBlue, &SettingsEffectBalanceChroma::GetShadowsBlue},
    {"midtones-red", &SettingsEffectBalanceChroma::SetMidtonesRed, &SettingsEffectBalanceChroma::GetMidtonesRed},
    {"midtones-green", &SettingsEffectBalanceChroma::SetMidtonesGreen, &SettingsEffectBalanceChroma::GetMidtonesGreen},
    {"midtones-blue", &SettingsEffectBalanceChroma::SetMidtonesBlue, &SettingsEffectBalanceChroma::GetMidtonesBlue},
    {"highlights-red", &SettingsEffectBalanceChroma::SetHighlightsRed, &SettingsEffectBalanceChroma::GetHighlightsRed},
    {"highlights-green", &SettingsEffectBalanceChroma::SetHighlightsGreen,
     &SettingsEffectBalanceChroma::GetHighlightsGreen},
    {"highlights-blue", &SettingsEffectBalanceChroma::SetHighlightsBlue,
     &SettingsEffectBalanceChroma::GetHighlightsBlue},
}};

std::array<int, 9> ChromaValues(const SettingsEffectBalanceChroma& record)
{
    std::array<int, 9> values{};
    for (std::size_t i = 0; i < kChromaFields.size(); ++i) {
        values[i] = (record.*kChromaFields[i].get)();
    }
    return values;
}

} // namespace

TEST(BalanceChroma, DefaultRecordIsZeroWithPreservedLuminosityAndEmpty)
{
    const SettingsEffectBalanceChroma record;
    EXPECT_EQ(record.GetClassId(), "EFFECT_BALANCE_CHROMA");
    EXPECT_EQ(&record.GetClassId(), &SettingsEffectBalanceChroma::CLASS_ID);
    EXPECT_EQ(ChromaValues(record), (std::array<int, 9>{}));
    EXPECT_TRUE(record.GetPreserveLuminosity());
    EXPECT_TRUE(record.IsEmpty());
}

TEST(BalanceChroma, StaticKeysAndParamsInTheirOrder)
{
    EXPECT_EQ(SettingsEffectBalanceChroma::s_shadowsRed, "shadows-red");
    EXPECT_EQ(SettingsEffectBalanceChroma::s_shadowsGreen, "shadows-green");
    EXPECT_EQ(SettingsEffectBalanceChroma::s_shadowsBlue, "shadows-blue");
    EXPECT_EQ(SettingsEffectBalanceChroma::s_midtonesRed, "midtones-red");
    EXPECT_EQ(SettingsEffectBalanceChroma::s_midtonesGreen, "midtones-green");
    EXPECT_EQ(SettingsEffectBalanceChroma::s_midtonesBlue, "midtones-blue");
    EXPECT_EQ(SettingsEffectBalanceChroma::s_highlightsRed, "highlights-red");
    EXPECT_EQ(SettingsEffectBalanceChroma::s_highlightsGreen, "highlights-green");
    EXPECT_EQ(SettingsEffectBalanceChroma::s_highlightsBlue, "highlights-blue");
    EXPECT_EQ(SettingsEffectBalanceChroma::s_preserveLuminosity, "preserve-luminosity");
    EXPECT_EQ(SettingsEffectBalanceChroma::s_params,
              (std::vector<std::string>{"shadows-red", "shadows-green", "shadows-blue", "midtones-red",
                                        "midtones-green", "midtones-blue", "highlights-red", "highlights-green",
                                        "highlights-blue", "preserve-luminosity"}));
}

TEST(BalanceChroma, EachSetterClampsToMinus100To100AndTouchesOnlyItsField)
{
    const std::vector<std::pair<int, int>> cases{{150, 100}, {-150, -100}, {5, 5}, {100, 100},     {-100, -100},
                                                 {101, 100}, {-101, -100}, {0, 0}, {INT_MAX, 100}, {INT_MIN, -100}};
    for (std::size_t i = 0; i < kChromaFields.size(); ++i) {
        for (const auto& [given, stored] : cases) {
            SettingsEffectBalanceChroma record;
            (record.*kChromaFields[i].set)(given);
            std::array<int, 9> expected{};
            expected[i] = stored;
            EXPECT_EQ(ChromaValues(record), expected) << kChromaFields[i].key << " " << given;
        }
    }
}

TEST(BalanceChroma, SetShadowsClampsEachOfRedGreenBlue)
{
    SettingsEffectBalanceChroma record;
    record.SetShadows({150, -150, 5});
    EXPECT_EQ(record.GetShadowsRed(), 100);
    EXPECT_EQ(record.GetShadowsGreen(), -100);
    EXPECT_EQ(record.GetShadowsBlue(), 5);
    EXPECT_EQ(ChromaValues(record), (std::array<int, 9>{100, -100, 5, 0, 0, 0, 0, 0, 0}));
}

TEST(BalanceChroma, SetMidtonesAndSetHighlightsClampEachOfRedGreenBlue)
{
    SettingsEffectBalanceChroma record;
    record.SetMidtones({-7, 1000, -1000});
    EXPECT_EQ(ChromaValues(record), (std::array<int, 9>{0, 0, 0, -7, 100, -100, 0, 0, 0}));
    record.SetHighlights({INT_MIN, 99, INT_MAX});
    EXPECT_EQ(ChromaValues(record), (std::array<int, 9>{0, 0, 0, -7, 100, -100, -100, 99, 100}));
}

TEST(BalanceChroma, IsEmptyLooksAtTheNineIntsOnly)
{
    SettingsEffectBalanceChroma record;
    record.SetPreserveLuminosity(false);
    EXPECT_TRUE(record.IsEmpty());
    for (const auto& field : kChromaFields) {
        SettingsEffectBalanceChroma one;
        (one.*field.set)(-1);
        EXPECT_FALSE(one.IsEmpty()) << field.key;
    }
}

TEST(BalanceChroma, DeserializeClampsEveryIntKeyAndStoresIt)
{
    for (std::size_t i = 0; i < kChromaFields.size(); ++i) {
        const std::string key = kChromaFields[i].key;
        for (const auto& [given, stored] : std::vector<std::pair<std::string, int>>{
                 {"150", 100}, {"-150", -100}, {"5", 5}, {"-100", -100}, {"2147483647", 100}}) {
            SettingsEffectBalanceChroma record;
            record.Deserialize(key + "=" + given);
            std::array<int, 9> expected{};
            expected[i] = stored;
            EXPECT_EQ(ChromaValues(record), expected) << key << "=" << given;
            EXPECT_TRUE(record.GetPreserveLuminosity());
        }
    }
}

TEST(BalanceChroma, DeserializeReadsAllTenKeys)
{
    SettingsEffectBalanceChroma record;
    record.Deserialize("shadows-red=1:shadows-green=2:shadows-blue=3:midtones-red=4:midtones-green=5:"
                       "midtones-blue=6:highlights-red=7:highlights-green=8:highlights-blue=9:preserve-luminosity=0");
    EXPECT_EQ(ChromaValues(record), (std::array<int, 9>{1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_FALSE(record.GetPreserveLuminosity());
}

TEST(BalanceChroma, DeserializePreserveLuminosityIsTrueForAnyNonZeroInt)
{
    SettingsEffectBalanceChroma record;
    record.Deserialize("preserve-luminosity=0");
    EXPECT_FALSE(record.GetPreserveLuminosity());
    record.Deserialize("preserve-luminosity=2");
    EXPECT_TRUE(record.GetPreserveLuminosity());
    record.Deserialize("preserve-luminosity=0.9"); // std::stoi gives 0
    EXPECT_FALSE(record.GetPreserveLuminosity());
    record.Deserialize("preserve-luminosity=-1");
    EXPECT_TRUE(record.GetPreserveLuminosity());
}

TEST(BalanceChroma, DeserializeConvertsWithStoiAndAbsentKeysLeaveFields)
{
    SettingsEffectBalanceChroma record;
    record.SetHighlights({10, 20, 30});
    record.SetPreserveLuminosity(false);
    record.Deserialize("");
    record.Deserialize("SHADOWS-RED=2.7:midtones-blue=-3,9:unknown=5");
    EXPECT_EQ(ChromaValues(record), (std::array<int, 9>{2, 0, 0, 0, 0, -3, 10, 20, 30}));
    EXPECT_FALSE(record.GetPreserveLuminosity());
}

TEST(BalanceChroma, DeserializeFailureLeavesEarlierKeysApplied)
{
    SettingsEffectBalanceChroma record;
    EXPECT_EQ(
        ZorvanTest::FormBDescription<std::invalid_argument>(
            [&] { record.Deserialize("highlights-red=7:midtones-red=-:shadows-red=5:preserve-luminosity=0"); }, false),
        "stoi");
    EXPECT_EQ(ChromaValues(record), (std::array<int, 9>{5, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_TRUE(record.GetPreserveLuminosity());

    SettingsEffectBalanceChroma other;
    EXPECT_EQ(ZorvanTest::FormBDescription<std::out_of_range>(
                  [&] { other.Deserialize("shadows-red=-5:shadows-green=99999999999:shadows-blue=1"); }, false),
              "stoi");
    EXPECT_EQ(ChromaValues(other), (std::array<int, 9>{-5, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(BalanceChroma, EqualityComparesAllNineIntsAndTheFlagExactly)
{
    const SettingsEffectBalanceChroma base;
    EXPECT_TRUE(base == SettingsEffectBalanceChroma());
    EXPECT_TRUE(base.IsEqualTo(SettingsEffectBalanceChroma()));
    for (const auto& field : kChromaFields) {
        SettingsEffectBalanceChroma other;
        (other.*field.set)(1);
        EXPECT_FALSE(other == base) << field.key;
        EXPECT_FALSE(base.IsEqualTo(other)) << field.key;
    }
    SettingsEffectBalanceChroma flag;
    flag.SetPreserveLuminosity(false);
    EXPECT_FALSE(flag == base);
    EXPECT_FALSE(flag.IsEqualTo(base));
}

TEST(BalanceChroma, IsEqualToWithAForeignClassThrowsBadCast)
{
    const SettingsEffectBalanceChroma record;
    const SettingsEffectColorBalance foreign;
    EXPECT_THROW((void)record.IsEqualTo(foreign), std::bad_cast);
}

TEST(BalanceChroma, CloneIsAnIndependentEqualCopy)
{
    SettingsEffectBalanceChroma record;
    record.SetShadows({1, 2, 3});
    const auto clone = record.Clone();
    EXPECT_EQ(clone->GetClassId(), "EFFECT_BALANCE_CHROMA");
    EXPECT_TRUE(clone->IsEqualTo(record));
    record.SetShadowsRed(4);
    EXPECT_FALSE(clone->IsEqualTo(record));
}

TEST(BalanceChroma, CatalogueReadsEveryField)
{
    const auto* entry = Zorvan::SettingsCatalog::Find("EFFECT_BALANCE_CHROMA");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->Own(), "EMD");
    SettingsEffectBalanceChroma record;
    record.Deserialize("shadows-red=1:shadows-green=-2:shadows-blue=3:midtones-red=4:midtones-green=5:"
                       "midtones-blue=6:highlights-red=7:highlights-green=8:highlights-blue=150:preserve-luminosity=0");
    EXPECT_EQ(entry->FieldsToJson(record).dump(),
              R"({"shadowsRed":1,"shadowsGreen":-2,"shadowsBlue":3,"midtonesRed":4,"midtonesGreen":5,)"
              R"("midtonesBlue":6,"highlightsRed":7,"highlightsGreen":8,"highlightsBlue":100,)"
              R"("preserveLuminosity":false})");
}
