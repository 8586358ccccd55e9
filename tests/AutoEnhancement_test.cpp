// Part 5.1: automatic enhancement. Expected tables, factors and shifts were worked out with a
// python3 script that follows the Algorithms text (IEEE doubles; every fused step computed
// exactly with fractions.Fraction and rounded once), not by running the code under test.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <utility>

#include "Proc/Settings/SettingsEffectAutoContrast.h"
#include "Proc/Settings/SettingsEffectAutoWhiteBalance.h"
#include "Proc/Settings/SettingsEffectMagicEnhance.h"
#include "Proc/Settings/SettingsEffectMagicEnhance2.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;

namespace {

using Histogram = SettingsEffectMagicEnhance::Histogram;
using ContrastTable = SettingsEffectMagicEnhance::ContrastTable;

// A number that overflows a float but not a double: std::stof throws std::out_of_range.
const std::string kHuge = "1" + std::string(50, '0');

Histogram Hist(std::initializer_list<std::pair<int, std::uint32_t>> bins)
{
    Histogram histogram{};
    for (const auto& [bin, count] : bins) {
        histogram[static_cast<std::size_t>(bin)] += count;
    }
    return histogram;
}

SettingsEffectMagicEnhance::ContrastFunction ContrastOf(std::uint32_t force)
{
    SettingsEffectMagicEnhance record;
    record.SetContrastForce(force);
    return record.GetCustomContrast();
}

SettingsEffectMagicEnhance::SaturationFunction SaturationOf(std::uint32_t force)
{
    SettingsEffectMagicEnhance record;
    record.SetSaturationForce(force);
    return record.GetCustomSaturation();
}

SettingsEffectMagicEnhance::WhiteBalanceFunction WhiteBalanceOf(std::uint32_t force)
{
    SettingsEffectMagicEnhance record;
    record.SetWhiteBalanceForce(force);
    return record.GetCustomWhiteBalance();
}

// Runs a contrast function on a table that starts out filled with 0xAA, so that an entry
// the callee does not write shows.
ContrastTable RunContrast(std::uint32_t force, const Histogram& histogram)
{
    ContrastTable table;
    table.fill(0xAA);
    const auto function = ContrastOf(force);
    EXPECT_NE(function, nullptr);
    if (function != nullptr) {
        function(histogram, table);
    }
    return table;
}

double Saturation(std::uint32_t force, const Histogram& first, const Histogram& second, int firstShift, int secondShift)
{
    const auto function = SaturationOf(force);
    EXPECT_NE(function, nullptr);
    return function != nullptr ? function(first, second, firstShift, secondShift) : -1.0;
}

std::pair<int, int> WhiteBalance(const Histogram& first, const Histogram& second)
{
    const auto function = WhiteBalanceOf(1);
    EXPECT_NE(function, nullptr);
    int firstShift = 12345;
    int secondShift = 12345;
    if (function != nullptr) {
        function(first, second, firstShift, secondShift);
    }
    return {firstShift, secondShift};
}

// ContrastSingleForce of bin 100 alone: gain 1.05, offset 1.4.
constexpr ContrastTable kSingleBin100{
    1,   2,   4,   5,   6,   7,   8,   9,   10,  11,  12,  13,  14,  15,  16,  17,  //
    18,  19,  20,  21,  22,  23,  25,  26,  27,  28,  29,  30,  31,  32,  33,  34,  //
    35,  36,  37,  38,  39,  40,  41,  42,  43,  44,  46,  47,  48,  49,  50,  51,  //
    52,  53,  54,  55,  56,  57,  58,  59,  60,  61,  62,  63,  64,  65,  67,  68,  //
    69,  70,  71,  72,  73,  74,  75,  76,  77,  78,  79,  80,  81,  82,  83,  84,  //
    85,  86,  88,  89,  90,  91,  92,  93,  94,  95,  96,  97,  98,  99,  100, 101, //
    102, 103, 104, 105, 106, 107, 109, 110, 111, 112, 113, 114, 115, 116, 117, 118, //
    119, 120, 121, 122, 123, 124, 125, 126, 127, 128, 130, 131, 132, 133, 134, 135, //
    136, 137, 138, 139, 140, 141, 142, 143, 144, 145, 146, 147, 148, 149, 151, 152, //
    153, 154, 155, 156, 157, 158, 159, 160, 161, 162, 163, 164, 165, 166, 167, 168, //
    169, 170, 172, 173, 174, 175, 176, 177, 178, 179, 180, 181, 182, 183, 184, 185, //
    186, 187, 188, 189, 190, 191, 193, 194, 195, 196, 197, 198, 199, 200, 201, 202, //
    203, 204, 205, 206, 207, 208, 209, 210, 211, 212, 214, 215, 216, 217, 218, 219, //
    220, 221, 222, 223, 224, 225, 226, 227, 228, 229, 230, 231, 232, 233, 235, 236, //
    237, 238, 239, 240, 241, 242, 243, 244, 245, 246, 247, 248, 249, 250, 251, 252, //
    253, 254, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, //
};

// Two peaks with thin tails: bins 10:3, 20:1, 60:24575, 200:24575, 240:2, 250:1. Total 49157
// (not a multiple of 16384), T = 3. From below the running sum is 3 at bin 10 (equal to T:
// the scan goes on) and 4 at bin 20: low 20. From above 1 at 250, 3 at 240, then above T at
// 200: high 200. Width 180, middle 110, offset 0.9.
Histogram TwoPeaksWithTails()
{
    return Hist({{10, 3}, {20, 1}, {60, 24575}, {200, 24575}, {240, 2}, {250, 1}});
}

constexpr ContrastTable kSingleTwoPeaks{
    1,   2,   3,   4,   5,   6,   7,   8,   9,   10,  11,  12,  13,  14,  15,  16,  //
    17,  18,  19,  20,  21,  22,  23,  24,  25,  26,  27,  28,  29,  30,  31,  32,  //
    33,  34,  35,  36,  37,  38,  39,  40,  41,  42,  43,  44,  45,  46,  47,  48,  //
    49,  50,  51,  52,  53,  54,  55,  56,  57,  58,  59,  60,  61,  62,  63,  64,  //
    65,  66,  67,  68,  70,  71,  72,  73,  74,  75,  76,  77,  78,  79,  80,  81,  //
    82,  83,  84,  85,  86,  87,  88,  89,  90,  91,  92,  93,  94,  95,  96,  97,  //
    98,  99,  100, 101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, 112, 113, //
    114, 115, 116, 117, 118, 119, 120, 121, 122, 123, 124, 125, 126, 127, 128, 129, //
    130, 131, 132, 133, 134, 135, 136, 137, 138, 139, 140, 141, 142, 143, 144, 145, //
    146, 147, 148, 149, 150, 151, 152, 153, 154, 155, 156, 157, 158, 159, 160, 161, //
    162, 163, 164, 165, 166, 167, 168, 169, 170, 171, 172, 173, 174, 175, 176, 177, //
    178, 179, 180, 181, 183, 184, 185, 186, 187, 188, 189, 190, 191, 192, 193, 194, //
    195, 196, 197, 198, 199, 200, 201, 202, 203, 204, 205, 206, 207, 208, 209, 210, //
    211, 212, 213, 214, 215, 216, 217, 218, 219, 220, 221, 222, 223, 224, 225, 226, //
    227, 228, 229, 230, 231, 232, 233, 234, 235, 236, 237, 238, 239, 240, 241, 242, //
    243, 244, 245, 246, 247, 248, 249, 250, 251, 252, 253, 254, 255, 255, 255, 255, //
};

// ContrastDoubleForce of the same histogram: the first pass moves the bins to 11, 21, 61,
// 203, 243, 253; the second pass (T 3, low 21, high 203, offset 0.8) alone gives the table.
constexpr ContrastTable kDoubleTwoPeaks{
    1,   2,   3,   4,   5,   6,   7,   8,   9,   10,  11,  12,  13,  14,  15,  16,  //
    17,  18,  19,  20,  21,  22,  23,  24,  25,  26,  27,  28,  29,  30,  31,  32,  //
    33,  34,  35,  36,  37,  38,  39,  40,  41,  42,  43,  44,  45,  46,  47,  48,  //
    49,  50,  51,  52,  53,  54,  55,  56,  57,  58,  59,  60,  61,  62,  63,  64,  //
    65,  66,  67,  68,  69,  70,  71,  72,  73,  74,  75,  76,  77,  78,  79,  80,  //
    81,  82,  83,  85,  86,  87,  88,  89,  90,  91,  92,  93,  94,  95,  96,  97,  //
    98,  99,  100, 101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, 112, 113, //
    114, 115, 116, 117, 118, 119, 120, 121, 122, 123, 124, 125, 126, 127, 128, 129, //
    130, 131, 132, 133, 134, 135, 136, 137, 138, 139, 140, 141, 142, 143, 144, 145, //
    146, 147, 148, 149, 150, 151, 152, 153, 154, 155, 156, 157, 158, 159, 160, 161, //
    162, 163, 164, 165, 166, 167, 168, 169, 170, 171, 172, 173, 174, 175, 176, 177, //
    178, 179, 180, 181, 182, 183, 184, 185, 186, 187, 188, 189, 190, 191, 192, 193, //
    194, 195, 196, 197, 198, 199, 200, 201, 202, 203, 205, 206, 207, 208, 209, 210, //
    211, 212, 213, 214, 215, 216, 217, 218, 219, 220, 221, 222, 223, 224, 225, 226, //
    227, 228, 229, 230, 231, 232, 233, 234, 235, 236, 237, 238, 239, 240, 241, 242, //
    243, 244, 245, 246, 247, 248, 249, 250, 251, 252, 253, 254, 255, 255, 255, 255, //
};

// Bins 10:3 and 128:49148: total 49151, T = 49151 >> 14 = 2 (the quotient 2.9998 is not
// rounded), so the 3 of bin 10 are above T: low 10, high 128, middle 69, offset 2.95.
constexpr ContrastTable kSingleThresholdTwo{
    3,   4,   5,   6,   7,   8,   9,   10,  11,  12,  13,  14,  15,  16,  17,  18,  //
    19,  20,  21,  22,  23,  24,  25,  26,  28,  29,  30,  31,  32,  33,  34,  35,  //
    36,  37,  38,  39,  40,  41,  42,  43,  44,  45,  46,  47,  48,  49,  50,  51,  //
    52,  53,  54,  55,  56,  57,  58,  59,  60,  61,  62,  63,  64,  65,  66,  67,  //
    68,  69,  70,  71,  73,  74,  75,  76,  77,  78,  79,  80,  81,  82,  83,  84,  //
    85,  86,  87,  88,  89,  90,  91,  92,  93,  94,  95,  96,  97,  98,  99,  100, //
    101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, 112, 113, 114, 115, 117, //
    118, 119, 120, 121, 122, 123, 124, 125, 126, 127, 128, 129, 130, 131, 132, 133, //
    134, 135, 136, 137, 138, 139, 140, 141, 142, 143, 144, 145, 146, 147, 148, 149, //
    150, 151, 152, 153, 154, 155, 156, 157, 158, 159, 161, 162, 163, 164, 165, 166, //
    167, 168, 169, 170, 171, 172, 173, 174, 175, 176, 177, 178, 179, 180, 181, 182, //
    183, 184, 185, 186, 187, 188, 189, 190, 191, 192, 193, 194, 195, 196, 197, 198, //
    199, 200, 201, 202, 203, 204, 206, 207, 208, 209, 210, 211, 212, 213, 214, 215, //
    216, 217, 218, 219, 220, 221, 222, 223, 224, 225, 226, 227, 228, 229, 230, 231, //
    232, 233, 234, 235, 236, 237, 238, 239, 240, 241, 242, 243, 244, 245, 246, 247, //
    248, 250, 251, 252, 253, 254, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, //
};

ContrastTable Identity()
{
    ContrastTable table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        table[i] = static_cast<std::uint8_t>(i);
    }
    return table;
}

// A record with every field of SettingsEffectMagicEnhance away from its default.
SettingsEffectMagicEnhance Filled()
{
    SettingsEffectMagicEnhance record;
    record.SetContrastForce(2);
    record.SetBrightness(-7);
    record.SetContrast(11);
    record.SetFurtherInt1(3);
    record.SetFurtherInt2(-4);
    record.SetGamma(2.2);
    record.SetWhiteBalanceForce(5);
    record.SetTemperature(6500);
    record.SetTint(-9);
    record.SetSaturationForce(1);
    record.SetSaturation(1.25);
    record.SetLastInt(42);
    return record;
}

void ExpectFilled(const SettingsEffectMagicEnhance& record)
{
    EXPECT_EQ(record.GetContrastForce(), 2u);
    EXPECT_EQ(record.GetBrightness(), -7);
    EXPECT_EQ(record.GetContrast(), 11);
    EXPECT_EQ(record.GetFurtherInt1(), 3);
    EXPECT_EQ(record.GetFurtherInt2(), -4);
    EXPECT_EQ(record.GetGamma(), 2.2);
    EXPECT_EQ(record.GetWhiteBalanceForce(), 5u);
    EXPECT_EQ(record.GetTemperature(), 6500);
    EXPECT_EQ(record.GetTint(), -9);
    EXPECT_EQ(record.GetSaturationForce(), 1u);
    EXPECT_EQ(record.GetSaturation(), 1.25);
    EXPECT_EQ(record.GetLastInt(), 42);
}

void ExpectDefaults(const SettingsEffectMagicEnhance& record)
{
    EXPECT_EQ(record.GetContrastForce(), 0u);
    EXPECT_EQ(record.GetBrightness(), 0);
    EXPECT_EQ(record.GetContrast(), 0);
    EXPECT_EQ(record.GetFurtherInt1(), 0);
    EXPECT_EQ(record.GetFurtherInt2(), 0);
    EXPECT_EQ(record.GetGamma(), 1.0);
    EXPECT_EQ(record.GetWhiteBalanceForce(), 0u);
    EXPECT_EQ(record.GetTemperature(), 0);
    EXPECT_EQ(record.GetTint(), 0);
    EXPECT_EQ(record.GetSaturationForce(), 0u);
    EXPECT_EQ(record.GetSaturation(), 1.0);
    EXPECT_EQ(record.GetLastInt(), 0);
}

} // namespace

// ---------------------------------------------------------------------------------------
// Identity, defaults, base operations
// ---------------------------------------------------------------------------------------

TEST(AutoEnhancement, ClassIdentifiersAreThoseOfThePart)
{
    EXPECT_EQ(SettingsEffectMagicEnhance().GetClassId(), "$$MAGIC_ENHANCE$$");
    EXPECT_EQ(SettingsEffectAutoContrast().GetClassId(), "EffectAutoContrast");
    EXPECT_EQ(SettingsEffectMagicEnhance2().GetClassId(), "EffectMagicEnhance");
    EXPECT_EQ(SettingsEffectAutoWhiteBalance().GetClassId(), "EffectAutoWhiteBalance");
    EXPECT_EQ(&SettingsEffectMagicEnhance().GetClassId(), &SettingsEffectMagicEnhance::CLASS_ID);
    EXPECT_EQ(&SettingsEffectAutoContrast().GetClassId(), &SettingsEffectAutoContrast::CLASS_ID);
    EXPECT_EQ(&SettingsEffectMagicEnhance2().GetClassId(), &SettingsEffectMagicEnhance2::CLASS_ID);
    EXPECT_EQ(&SettingsEffectAutoWhiteBalance().GetClassId(), &SettingsEffectAutoWhiteBalance::CLASS_ID);
}

TEST(AutoEnhancement, MagicEnhanceDefaultsAreThoseOfTheTable)
{
    ExpectDefaults(SettingsEffectMagicEnhance());
}

TEST(AutoEnhancement, MagicEnhanceSettersStorePlainlyAndLeaveTheForcesAlone)
{
    SettingsEffectMagicEnhance record;
    record.SetBrightness(-300);
    record.SetContrast(500);
    record.SetGamma(-2.5);
    record.SetTemperature(100000);
    record.SetTint(-100000);
    record.SetSaturation(40.0);
    EXPECT_EQ(record.GetBrightness(), -300);
    EXPECT_EQ(record.GetContrast(), 500);
    EXPECT_EQ(record.GetGamma(), -2.5);
    EXPECT_EQ(record.GetTemperature(), 100000);
    EXPECT_EQ(record.GetTint(), -100000);
    EXPECT_EQ(record.GetSaturation(), 40.0);
    EXPECT_EQ(record.GetContrastForce(), 0u);
    EXPECT_EQ(record.GetWhiteBalanceForce(), 0u);
    EXPECT_EQ(record.GetSaturationForce(), 0u);
}

TEST(AutoEnhancement, MagicEnhanceOpenAccessorsStoreEveryField)
{
    ExpectFilled(Filled());
}

TEST(AutoEnhancement, MagicEnhanceDeserializeIsTheBaseOneAndThrowsEvenOnTheEmptyString)
{
    SettingsEffectMagicEnhance record;
    const std::string expected = "Not implemented fill from string for settings CLASS_ID = $$MAGIC_ENHANCE$$";
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { record.Deserialize(""); }), expected);
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { record.Deserialize("brightness=5"); }), expected);
    ExpectDefaults(record);
}

TEST(AutoEnhancement, IsEmptyIsFalseForAllFourAtDefaults)
{
    EXPECT_FALSE(SettingsEffectMagicEnhance().IsEmpty());
    EXPECT_FALSE(SettingsEffectAutoContrast().IsEmpty());
    EXPECT_FALSE(SettingsEffectMagicEnhance2().IsEmpty());
    EXPECT_FALSE(SettingsEffectAutoWhiteBalance().IsEmpty());
}

TEST(AutoEnhancement, MagicEnhance2IsEmptyIsFalseWhateverItHolds)
{
    SettingsEffectMagicEnhance2 record;
    record.Deserialize("b=5:w=7");
    EXPECT_FALSE(record.IsEmpty());
    record.Deserialize("b=0:w=0");
    EXPECT_FALSE(record.IsEmpty());
}

TEST(AutoEnhancement, IsEqualToWithAForeignClassThrowsBadCast)
{
    const SettingsEffectMagicEnhance magic;
    const SettingsEffectAutoContrast contrast;
    const SettingsEffectMagicEnhance2 magic2;
    const SettingsEffectAutoWhiteBalance balance;
    EXPECT_THROW((void)magic.IsEqualTo(magic2), std::bad_cast);
    EXPECT_THROW((void)contrast.IsEqualTo(magic2), std::bad_cast);
    EXPECT_THROW((void)magic2.IsEqualTo(contrast), std::bad_cast);
    EXPECT_THROW((void)balance.IsEqualTo(magic), std::bad_cast);
}

TEST(AutoEnhancement, CloneOfMagicEnhanceCopiesEveryField)
{
    const SettingsEffectMagicEnhance record = Filled();
    const std::unique_ptr<Settings> clone = record.Clone();
    ASSERT_NE(clone, nullptr);
    EXPECT_NE(clone.get(), static_cast<const Settings*>(&record));
    EXPECT_EQ(typeid(*clone), typeid(SettingsEffectMagicEnhance));
    EXPECT_EQ(clone->GetClassId(), SettingsEffectMagicEnhance::CLASS_ID);
    ExpectFilled(dynamic_cast<const SettingsEffectMagicEnhance&>(*clone));
}

TEST(AutoEnhancement, CloneOfThePlainRecordsCopiesEveryField)
{
    SettingsEffectAutoContrast contrast;
    contrast.Deserialize("b=1.5:w=2.5:a=1");
    const auto contrastClone = contrast.Clone();
    EXPECT_EQ(typeid(*contrastClone), typeid(SettingsEffectAutoContrast));
    const auto& c = dynamic_cast<const SettingsEffectAutoContrast&>(*contrastClone);
    EXPECT_EQ(c.GetBlackSaturatedPixels(), 1.5F);
    EXPECT_EQ(c.GetWhiteSaturatedPixels(), 2.5F);
    EXPECT_TRUE(c.GetAlphaIsDisabled());

    SettingsEffectMagicEnhance2 magic2;
    magic2.Deserialize("b=3.5:w=4.5");
    const auto magic2Clone = magic2.Clone();
    EXPECT_EQ(typeid(*magic2Clone), typeid(SettingsEffectMagicEnhance2));
    const auto& m = dynamic_cast<const SettingsEffectMagicEnhance2&>(*magic2Clone);
    EXPECT_EQ(m.GetBlackSaturatedPixels(), 3.5F);
    EXPECT_EQ(m.GetWhiteSaturatedPixels(), 4.5F);

    SettingsEffectAutoWhiteBalance balance;
    balance.Deserialize("r=1:g=2:b=3:m=4");
    const auto balanceClone = balance.Clone();
    EXPECT_EQ(typeid(*balanceClone), typeid(SettingsEffectAutoWhiteBalance));
    EXPECT_TRUE(balanceClone->IsEqualTo(balance));
    EXPECT_FALSE(balanceClone->IsEqualTo(SettingsEffectAutoWhiteBalance()));
}

// ---------------------------------------------------------------------------------------
// The getters of the functions
// ---------------------------------------------------------------------------------------

TEST(AutoEnhancement, ForceZeroGivesNoFunction)
{
    EXPECT_EQ(ContrastOf(0), nullptr);
    EXPECT_EQ(SaturationOf(0), nullptr);
    EXPECT_EQ(WhiteBalanceOf(0), nullptr);
    const SettingsEffectMagicEnhance record;
    EXPECT_EQ(record.GetCustomContrast(), nullptr);
    EXPECT_EQ(record.GetCustomSaturation(), nullptr);
    EXPECT_EQ(record.GetCustomWhiteBalance(), nullptr);
}

TEST(AutoEnhancement, ForcesOneAndTwoGiveTwoDifferentFunctions)
{
    ASSERT_NE(ContrastOf(1), nullptr);
    ASSERT_NE(ContrastOf(2), nullptr);
    EXPECT_NE(ContrastOf(1), ContrastOf(2));
    ASSERT_NE(SaturationOf(1), nullptr);
    ASSERT_NE(SaturationOf(2), nullptr);
    EXPECT_NE(SaturationOf(1), SaturationOf(2));
    // Force 1 is the single force, 2 the double force.
    EXPECT_EQ(RunContrast(1, TwoPeaksWithTails()), kSingleTwoPeaks);
    EXPECT_EQ(RunContrast(2, TwoPeaksWithTails()), kDoubleTwoPeaks);
    const Histogram bin128 = Hist({{128, 1}});
    EXPECT_EQ(Saturation(1, bin128, bin128, 80, 0), 0.9);
    EXPECT_EQ(Saturation(2, bin128, bin128, 80, 0), 0.9 * 0.9);
}

TEST(AutoEnhancement, AnyNonZeroWhiteBalanceForceGivesTheOneAutomaticBalance)
{
    ASSERT_NE(WhiteBalanceOf(1), nullptr);
    EXPECT_EQ(WhiteBalanceOf(2), WhiteBalanceOf(1));
    EXPECT_EQ(WhiteBalanceOf(7), WhiteBalanceOf(1));
    EXPECT_EQ(WhiteBalanceOf(0xFFFFFFFFU), WhiteBalanceOf(1));
}

// ---------------------------------------------------------------------------------------
// Contrast
// ---------------------------------------------------------------------------------------

TEST(AutoEnhancement, ContrastOfBin100AloneHasGain105AndOffset14)
{
    const ContrastTable table = RunContrast(1, Hist({{100, 1000}}));
    EXPECT_EQ(table[100], 106);
    EXPECT_EQ(table, kSingleBin100);
}

TEST(AutoEnhancement, ContrastOfLow16High235IsTheIdentity)
{
    EXPECT_EQ(RunContrast(1, Hist({{16, 5}, {235, 7}})), Identity());
}

TEST(AutoEnhancement, ContrastStopsAt255ForLargeLevelsWithGainAbove1)
{
    const ContrastTable table = RunContrast(1, Hist({{100, 1000}}));
    EXPECT_EQ(table[241], 254); // 1.05 * 241 + 1.4 + 0.5 = 254.95
    for (std::size_t i = 242; i < 256; ++i) {
        EXPECT_EQ(table[i], 255) << i; // 1.05 * 242 + 1.9 = 256.0 and beyond
    }
}

TEST(AutoEnhancement, ContrastStopsAt0ForNegativeValuesAtTheLowEnd)
{
    // Bin 200 alone: gain 1.05, offset (128 - 200) * 0.05 = -3.6; level 0 gives -3.1.
    const ContrastTable table = RunContrast(1, Hist({{200, 9}}));
    EXPECT_EQ(table[0], 0);
    EXPECT_EQ(table[1], 0);
    EXPECT_EQ(table[2], 0);
    EXPECT_EQ(table[3], 0);
    EXPECT_EQ(table[4], 1); // 4.2 - 3.6 + 0.5 = 1.1
    EXPECT_EQ(table[5], 2);
}

TEST(AutoEnhancement, ContrastDoubleForceOfBin100EqualsSingleForceOfBin106)
{
    const ContrastTable twice = RunContrast(2, Hist({{100, 1000}}));
    EXPECT_EQ(twice, RunContrast(1, Hist({{106, 1000}})));
    // Bin 106 alone: gain 1.05, offset (128 - 106) * 0.05 = 1.1.
    EXPECT_EQ(twice[106], 112); // 1.05 * 106 + 1.1 + 0.5 = 112.9
    EXPECT_EQ(twice[0], 1);     // 1.1 + 0.5
    EXPECT_EQ(twice[100], 106); // 105 + 1.6 = 106.6
}

TEST(AutoEnhancement, ContrastTailScanContinuesWhileTheRunningSumEqualsT)
{
    // T 3: the 3 of bin 10 and the 2 + 1 of bins 240 and 250 are not above T, so the edges
    // are bins 20 and 200; a scan that stopped at T (sum >= T) would take 10 and 240.
    EXPECT_EQ(RunContrast(1, TwoPeaksWithTails()), kSingleTwoPeaks);
}

TEST(AutoEnhancement, ContrastThresholdIsTheTotalShiftedRightBy14)
{
    EXPECT_EQ(RunContrast(1, Hist({{10, 3}, {128, 49148}})), kSingleThresholdTwo);
}

TEST(AutoEnhancement, ContrastThresholdWrapsWithTheTotalAt32Bits)
{
    // Total 2^32 + 4 wraps to 4, so T is 0 and the 1 of bin 30 is the low edge. Unwrapped,
    // T would be 262144 and the low edge 100. Low 30, high 200: width 170, middle 115.
    const Histogram histogram = Hist({{30, 1}, {100, 0x80000000U}, {200, 0x80000003U}});
    const Histogram plain = Hist({{30, 1}, {200, 1}});
    EXPECT_EQ(RunContrast(1, histogram), RunContrast(1, plain));
    EXPECT_NE(RunContrast(1, histogram), RunContrast(1, Hist({{100, 1}, {200, 1}})));
}

TEST(AutoEnhancement, ContrastValueStepIsFused)
{
    // Bins 0 and 238: gain = fma(1 - 238/219, 0.05, 1), offset 0.45. At level 219 the fused
    // gain * 219 + 0.45 rounds to 218.5 exactly, so the entry is 219; a separate multiply
    // and add would give 218.49999999999997 and the entry 218.
    const ContrastTable table = RunContrast(1, Hist({{0, 1}, {238, 1}}));
    EXPECT_EQ(table[218], 218);
    EXPECT_EQ(table[219], 219);
    EXPECT_EQ(table[220], 219);
    EXPECT_EQ(table[221], 220);
    EXPECT_EQ(table[0], 0);
    EXPECT_EQ(table[255], 254);
}

TEST(AutoEnhancement, ContrastGainStepIsFused)
{
    // Bins 3 and 21: width 18, middle 12, offset 5.800000000000001. The fused gain is
    // 0x1.0bbf795644bbfp+0; a separate multiply and add would round to 0x1.0bbf795644bc0p+0,
    // and level 146 (fused value 158.49999999999997 + 0.5) would become 159 instead of 158.
    const ContrastTable table = RunContrast(1, Hist({{3, 1}, {21, 1}}));
    EXPECT_EQ(table[145], 157);
    EXPECT_EQ(table[146], 158);
    EXPECT_EQ(table[147], 160);
    EXPECT_EQ(table[0], 6);
}

TEST(AutoEnhancement, ContrastDoubleForceReplacesTheFirstPassInsteadOfComposingIt)
{
    const ContrastTable first = RunContrast(1, TwoPeaksWithTails());
    const ContrastTable twice = RunContrast(2, TwoPeaksWithTails());
    EXPECT_EQ(twice, kDoubleTwoPeaks);
    // The second pass alone: its histogram holds the bins where the first pass put them.
    EXPECT_EQ(twice, RunContrast(1, Hist({{11, 3}, {21, 1}, {61, 24575}, {203, 24575}, {243, 2}, {253, 1}})));
    // A composition of the two passes would map level 0 through the first table (0 -> 1)
    // and then the second (1 -> 2); the required table maps 0 to 1 directly.
    EXPECT_EQ(first[0], 1);
    EXPECT_EQ(twice[0], 1);
    EXPECT_EQ(kDoubleTwoPeaks[first[0]], 2);
    EXPECT_NE(twice, first);
}

// ---------------------------------------------------------------------------------------
// Saturation
// ---------------------------------------------------------------------------------------

TEST(AutoEnhancement, SaturationSingleForceByDistance)
{
    // Bin 128 in both; the first shift moves both edges of the first to 128 + shift.
    const Histogram bin128 = Hist({{128, 1}});
    EXPECT_EQ(Saturation(1, bin128, bin128, 0, 0), 1.1);
    EXPECT_EQ(Saturation(1, bin128, bin128, 47, 0), 1.1);
    EXPECT_EQ(Saturation(1, bin128, bin128, 48, 0), 1.1);
    EXPECT_EQ(Saturation(1, bin128, bin128, 64, 0), 1.0);
    // 1.1 + 31 * -0.00625 in one rounding: the double just above 0.90625.
    EXPECT_EQ(Saturation(1, bin128, bin128, 79, 0), 0.9062500000000001);
    EXPECT_EQ(Saturation(1, bin128, bin128, 80, 0), 0.9);
    EXPECT_EQ(Saturation(1, bin128, bin128, 127, 0), 0.9);
}

TEST(AutoEnhancement, SaturationRampValuesAreTheFusedStep)
{
    const Histogram bin128 = Hist({{128, 1}});
    EXPECT_EQ(Saturation(1, bin128, bin128, 49, 0), 1.09375);
    EXPECT_EQ(Saturation(1, bin128, bin128, 50, 0), 1.0875000000000001);
    EXPECT_EQ(Saturation(1, bin128, bin128, 52, 0), 1.0750000000000002);
    EXPECT_EQ(Saturation(1, bin128, bin128, 56, 0), 1.05);
    EXPECT_EQ(Saturation(1, bin128, bin128, 65, 0), 0.9937500000000001);
    EXPECT_EQ(Saturation(1, bin128, bin128, 69, 0), 0.9687500000000001);
    EXPECT_EQ(Saturation(1, bin128, bin128, 76, 0), 0.925);
}

TEST(AutoEnhancement, SaturationDistanceCountsBelow128AndFromEitherHistogram)
{
    const Histogram bin128 = Hist({{128, 1}});
    EXPECT_EQ(Saturation(1, bin128, bin128, -47, 0), 1.1);
    EXPECT_EQ(Saturation(1, bin128, bin128, -64, 0), 1.0);
    EXPECT_EQ(Saturation(1, bin128, bin128, -80, 0), 0.9);
    EXPECT_EQ(Saturation(1, bin128, bin128, 0, 64), 1.0);
    EXPECT_EQ(Saturation(1, bin128, bin128, 0, -79), 0.9062500000000001);
    // Top from one, bottom from the other: the larger distance counts.
    EXPECT_EQ(Saturation(1, bin128, bin128, 50, -64), 1.0);
}

TEST(AutoEnhancement, SaturationDoubleForceSquaresTheFactor)
{
    const Histogram bin128 = Hist({{128, 1}});
    EXPECT_EQ(Saturation(2, bin128, bin128, 47, 0), 1.2100000000000002); // 1.1 * 1.1
    EXPECT_EQ(Saturation(2, bin128, bin128, 48, 0), 1.2100000000000002);
    EXPECT_EQ(Saturation(2, bin128, bin128, 64, 0), 1.0);
    EXPECT_EQ(Saturation(2, bin128, bin128, 79, 0), 0.8212890625000002); // the square of 0.9062500000000001
    EXPECT_EQ(Saturation(2, bin128, bin128, 80, 0), 0.81);               // 0.9 * 0.9
    EXPECT_NE(Saturation(2, bin128, bin128, 47, 0), 1.21);
}

TEST(AutoEnhancement, SaturationShiftsMoveTheEdgesBeforeTheDistance)
{
    // An edge of 100 with shift 28 lies at 128: distance 0.
    EXPECT_EQ(Saturation(1, Hist({{100, 5}}), Hist({{128, 5}}), 28, 0), 1.1);
    // An edge of 60 lies at distance 68 unshifted (0.9750000000000001) and at 128 with 68.
    EXPECT_EQ(Saturation(1, Hist({{60, 5}}), Hist({{128, 5}}), 0, 0), 0.9750000000000001);
    EXPECT_EQ(Saturation(1, Hist({{60, 5}}), Hist({{128, 5}}), 68, 0), 1.1);
    EXPECT_EQ(Saturation(1, Hist({{128, 5}}), Hist({{60, 5}}), 0, 68), 1.1);
}

TEST(AutoEnhancement, SaturationOfTwoPeaksTakesTheWiderSide)
{
    // First: bins 70 and 190, shift 5: edges 75 and 195; second: bin 128. Distance
    // max(|195 - 128|, |75 - 128|) = 67.
    EXPECT_EQ(Saturation(1, Hist({{70, 3}, {190, 4}}), Hist({{128, 9}}), 5, 0), 0.9812500000000001);
    EXPECT_EQ(Saturation(2, Hist({{70, 3}, {190, 4}}), Hist({{128, 9}}), 5, 0), 0.9628515625000001);
}

TEST(AutoEnhancement, SaturationThresholdComesFromTheFirstHistogramAlone)
{
    // First: 65536 in bin 128, T = 4. Second: 4 in bin 10 and 10 in bin 128: under the
    // first's T the 4 of bin 10 are not above it (edges 128, distance 0); under its own T of
    // 0 the low edge would be 10 (distance 118, factor 0.9).
    EXPECT_EQ(Saturation(1, Hist({{128, 65536}}), Hist({{10, 4}, {128, 10}}), 0, 0), 1.1);
}

TEST(AutoEnhancement, SaturationTailsAtTheThresholdAreSkippedAndAboveItCount)
{
    // Total 65540, T 4: the 4 of bin 20 and of bin 250 are not above T.
    EXPECT_EQ(Saturation(1, Hist({{20, 4}, {128, 65532}, {250, 4}}), Hist({{128, 100}}), 0, 0), 1.1);
    // One more in bin 20 (total unchanged): the low edge is 20, distance 108.
    EXPECT_EQ(Saturation(1, Hist({{20, 5}, {128, 65531}, {250, 4}}), Hist({{128, 100}}), 0, 0), 0.9);
}

// ---------------------------------------------------------------------------------------
// White balance
// ---------------------------------------------------------------------------------------

TEST(AutoEnhancement, WhiteBalanceOfBin128InBothIsZero)
{
    EXPECT_EQ(WhiteBalance(Hist({{128, 9}}), Hist({{128, 9}})), std::make_pair(0, 0));
}

TEST(AutoEnhancement, WhiteBalanceOfBins100And140)
{
    // Spread 40, factor 184 / 256 = 0.71875: 28 * 0.71875 + 0.5 = 20.625 -> 20 and
    // -12 * 0.71875 + 0.5 = -8.125 -> -8 (toward zero, not -9).
    EXPECT_EQ(WhiteBalance(Hist({{100, 9}}), Hist({{140, 9}})), std::make_pair(20, -8));
}

TEST(AutoEnhancement, WhiteBalanceDividesBothMeansByTheFirstTotal)
{
    // First: 10 in bin 100; second: 20 in bin 100, weighted sum 2000, mean 2000 / 10 = 200.
    // Factor 0.875: 28 * 0.875 + 0.5 = 25; -72 * 0.875 + 0.5 = -62.5 -> -62.
    EXPECT_EQ(WhiteBalance(Hist({{100, 10}}), Hist({{100, 20}})), std::make_pair(25, -62));
    // First total 40003 (T 2, low edge 5), second total 40000: mean2 = 5600000 / 40003 = 139.
    // Edges 5..100 and 140..140: spread (40 + 135) >> 1 = 87, widest 95, factor 129 / 256 =
    // 0.50390625: 29 * f + 0.5 = 15.11 -> 15; -11 * f + 0.5 = -5.04 -> -5.
    EXPECT_EQ(WhiteBalance(Hist({{5, 3}, {100, 40000}}), Hist({{140, 40000}})), std::make_pair(15, -5));
}

TEST(AutoEnhancement, WhiteBalanceTailsAtTheThresholdAreSkipped)
{
    // First total 40002, T 2: the 2 of bin 5 are not above T, so the edges are 100; spread 40,
    // factor 0.71875. Means 4000010 / 40002 = 99 and 5600000 / 40002 = 139.
    EXPECT_EQ(WhiteBalance(Hist({{5, 2}, {100, 40000}}), Hist({{140, 40000}})), std::make_pair(21, -7));
}

TEST(AutoEnhancement, WhiteBalanceOfTwoPeaks)
{
    // First: bins 60:30, 180:10 (mean 90); second: bins 90:5, 170:15 (sum 3000, mean 75).
    // Spread (10 + 30) >> 1 = 20, widest 120, factor 104 / 256 = 0.40625.
    // 38 * 0.40625 + 0.5 = 15.9375 -> 15; 53 * 0.40625 + 0.5 = 22.03125 -> 22.
    EXPECT_EQ(WhiteBalance(Hist({{60, 30}, {180, 10}}), Hist({{90, 5}, {170, 15}})), std::make_pair(15, 22));
}

TEST(AutoEnhancement, WhiteBalanceFactorIsZeroWhenTheLimitReaches224)
{
    // Bins 0:1 and 255:9 in both: widest 255, factor max(224 - 255, 0) = 0, so both shifts
    // are trunc(0.5) = 0 although the mean is 229.
    EXPECT_EQ(WhiteBalance(Hist({{0, 1}, {255, 9}}), Hist({{0, 1}, {255, 9}})), std::make_pair(0, 0));
}

TEST(AutoEnhancement, WhiteBalanceWeightedSumWrapsAt32Bits)
{
    // 2^25 in bin 200: 200 * 2^25 = 6710886400 wraps to 2415919104, mean 72 (not 200).
    // Factor 0.875: 56 * 0.875 + 0.5 = 49.5 -> 49.
    EXPECT_EQ(WhiteBalance(Hist({{200, 1U << 25U}}), Hist({{200, 1U << 25U}})), std::make_pair(49, 49));
}

// ---------------------------------------------------------------------------------------
// Equality of SettingsEffectMagicEnhance
// ---------------------------------------------------------------------------------------

TEST(AutoEnhancement, MagicEnhanceDefaultsCompareEqual)
{
    const SettingsEffectMagicEnhance a;
    const SettingsEffectMagicEnhance b;
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(a.IsEqualTo(b));
    EXPECT_TRUE(Filled() == Filled());
}

TEST(AutoEnhancement, MagicEnhanceForcesAlwaysCompare)
{
    SettingsEffectMagicEnhance a;
    SettingsEffectMagicEnhance b;
    b.SetContrastForce(1);
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(a.IsEqualTo(b));
    b = a;
    b.SetWhiteBalanceForce(1);
    EXPECT_FALSE(a == b);
    b = a;
    b.SetSaturationForce(2);
    EXPECT_FALSE(a == b);
    // Two automatic forces that differ differ too.
    a.SetWhiteBalanceForce(1);
    b = a;
    b.SetWhiteBalanceForce(2);
    EXPECT_FALSE(a == b);
}

TEST(AutoEnhancement, MagicEnhanceManualContrastValuesCompareExactly)
{
    const SettingsEffectMagicEnhance base;
    const std::array<void (*)(SettingsEffectMagicEnhance&), 5> changes{
        [](SettingsEffectMagicEnhance& r) { r.SetBrightness(1); },
        [](SettingsEffectMagicEnhance& r) { r.SetContrast(-1); },
        [](SettingsEffectMagicEnhance& r) { r.SetFurtherInt1(1); },
        [](SettingsEffectMagicEnhance& r) { r.SetFurtherInt2(1); },
        [](SettingsEffectMagicEnhance& r) { r.SetGamma(std::nextafter(1.0, 2.0)); },
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        SettingsEffectMagicEnhance changed;
        changes[i](changed);
        EXPECT_FALSE(base == changed) << i;
        EXPECT_FALSE(base.IsEqualTo(changed)) << i;
        // With an automatic contrast the same values are ignored.
        SettingsEffectMagicEnhance automatic;
        automatic.SetContrastForce(1);
        changed.SetContrastForce(1);
        EXPECT_TRUE(automatic == changed) << i;
        automatic.SetContrastForce(2);
        changed.SetContrastForce(2);
        EXPECT_TRUE(automatic == changed) << i;
    }
}

TEST(AutoEnhancement, MagicEnhanceContrastForce1IgnoresBrightness)
{
    SettingsEffectMagicEnhance a;
    SettingsEffectMagicEnhance b;
    a.SetContrastForce(1);
    b.SetContrastForce(1);
    a.SetBrightness(10);
    b.SetBrightness(-20);
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(a.IsEqualTo(b));
}

TEST(AutoEnhancement, MagicEnhanceManualWhiteBalanceValuesCompareExactly)
{
    SettingsEffectMagicEnhance a;
    SettingsEffectMagicEnhance b;
    b.SetTemperature(1);
    EXPECT_FALSE(a == b);
    b = a;
    b.SetTint(-1);
    EXPECT_FALSE(a == b);
    // Automatic: ignored, and the contrast and saturation values still count.
    a.SetWhiteBalanceForce(3);
    b = a;
    b.SetTemperature(5000);
    b.SetTint(40);
    EXPECT_TRUE(a == b);
    b.SetBrightness(1);
    EXPECT_FALSE(a == b);
}

TEST(AutoEnhancement, MagicEnhanceManualSaturationHasATolerance)
{
    SettingsEffectMagicEnhance a;
    SettingsEffectMagicEnhance b;
    b.SetSaturation(1.0005);
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(b == a);
    // Not above 0.001: a difference of exactly the double 0.001 is equal, one ulp more is not.
    a.SetSaturation(0.0);
    b.SetSaturation(0.001);
    EXPECT_TRUE(a == b);
    b.SetSaturation(std::nextafter(0.001, 1.0));
    EXPECT_FALSE(a == b);
    b.SetSaturation(-0.001);
    EXPECT_TRUE(a == b);
    b.SetSaturation(0.002);
    EXPECT_FALSE(a == b);
}

TEST(AutoEnhancement, MagicEnhanceSaturationNaNFailsUnlessAutomatic)
{
    SettingsEffectMagicEnhance a;
    a.SetSaturation(std::numeric_limits<double>::quiet_NaN());
    const SettingsEffectMagicEnhance b = a;
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(a.IsEqualTo(a));
    a.SetSaturationForce(1);
    SettingsEffectMagicEnhance c;
    c.SetSaturationForce(1);
    EXPECT_TRUE(a == c);
    // The tolerance is used on nothing else: a gamma 0.0005 away differs.
    SettingsEffectMagicEnhance d;
    d.SetGamma(1.0005);
    EXPECT_FALSE(SettingsEffectMagicEnhance() == d);
}

TEST(AutoEnhancement, MagicEnhanceGammaNaNFailsUnlessContrastIsAutomatic)
{
    SettingsEffectMagicEnhance a;
    a.SetGamma(std::numeric_limits<double>::quiet_NaN());
    EXPECT_FALSE(a == a);
    a.SetContrastForce(1);
    EXPECT_TRUE(a == a);
}

TEST(AutoEnhancement, MagicEnhanceLastFieldAlwaysCompares)
{
    SettingsEffectMagicEnhance a;
    a.SetContrastForce(1);
    a.SetWhiteBalanceForce(1);
    a.SetSaturationForce(1);
    SettingsEffectMagicEnhance b = a;
    EXPECT_TRUE(a == b);
    b.SetLastInt(1);
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(a.IsEqualTo(b));
}

// ---------------------------------------------------------------------------------------
// SettingsEffectAutoContrast
// ---------------------------------------------------------------------------------------

TEST(AutoEnhancement, AutoContrastDefaults)
{
    const SettingsEffectAutoContrast record;
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 0.0F);
    EXPECT_EQ(record.GetBlackSaturatedPixels(), 0.0F);
    EXPECT_FALSE(record.GetAlphaIsDisabled());
}

TEST(AutoEnhancement, AutoContrastReadsItsThreeKeys)
{
    SettingsEffectAutoContrast record;
    record.Deserialize("b=1.5:w=2.25:a=1");
    EXPECT_EQ(record.GetBlackSaturatedPixels(), 1.5F);
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 2.25F);
    EXPECT_TRUE(record.GetAlphaIsDisabled());
    // Absent keys leave the fields; keys are case-insensitive; unknown keys are ignored.
    record.Deserialize("W=3:x=9");
    EXPECT_EQ(record.GetBlackSaturatedPixels(), 1.5F);
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 3.0F);
    EXPECT_TRUE(record.GetAlphaIsDisabled());
    record.Deserialize("");
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 3.0F);
}

TEST(AutoEnhancement, AutoContrastValuesAreFloatsThroughStof)
{
    SettingsEffectAutoContrast record;
    record.Deserialize("w=0.1:b=1.2.3");
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 0.1F);
    EXPECT_EQ(record.GetBlackSaturatedPixels(), 1.2F); // longest valid prefix
    record.Deserialize("w=1,5");
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 1.0F);
}

TEST(AutoEnhancement, AutoContrastAlphaFlagIsADoubleTrueWhenNotZero)
{
    SettingsEffectAutoContrast record;
    record.Deserialize("a=0.5"); // std::stoi would read 0
    EXPECT_TRUE(record.GetAlphaIsDisabled());
    record.Deserialize("a=0");
    EXPECT_FALSE(record.GetAlphaIsDisabled());
    record.Deserialize("a=0.0001");
    EXPECT_TRUE(record.GetAlphaIsDisabled());
    record.Deserialize("a=-0.0");
    EXPECT_FALSE(record.GetAlphaIsDisabled());
    record.Deserialize("a=-2");
    EXPECT_TRUE(record.GetAlphaIsDisabled());
    record.Deserialize("a=0,9"); // std::stod reads 0
    EXPECT_FALSE(record.GetAlphaIsDisabled());
    record.Deserialize("a=" + kHuge); // a double holds 1e50
    EXPECT_TRUE(record.GetAlphaIsDisabled());
}

TEST(AutoEnhancement, AutoContrastDeserializeBypassesTheClamp)
{
    SettingsEffectAutoContrast record;
    record.Deserialize("w=25:b=-3");
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 25.0F);
    EXPECT_EQ(record.GetBlackSaturatedPixels(), -3.0F);
}

TEST(AutoEnhancement, AutoContrastSettersClampTo0Through20)
{
    SettingsEffectAutoContrast record;
    record.SetWhiteSaturatedPixels(25.0F);
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 20.0F);
    record.SetWhiteSaturatedPixels(7.5F);
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 7.5F);
    record.SetWhiteSaturatedPixels(-1.0F);
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 0.0F);
    record.SetWhiteSaturatedPixels(20.0F);
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 20.0F);
    record.SetWhiteSaturatedPixels(std::numeric_limits<float>::infinity());
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 20.0F);
    record.SetBlackSaturatedPixels(20.5F);
    EXPECT_EQ(record.GetBlackSaturatedPixels(), 20.0F);
    record.SetBlackSaturatedPixels(-std::numeric_limits<float>::infinity());
    EXPECT_EQ(record.GetBlackSaturatedPixels(), 0.0F);
    record.SetBlackSaturatedPixels(0.25F);
    EXPECT_EQ(record.GetBlackSaturatedPixels(), 0.25F);
    record.SetAlphaIsDisabled(true);
    EXPECT_TRUE(record.GetAlphaIsDisabled());
    record.SetAlphaIsDisabled(false);
    EXPECT_FALSE(record.GetAlphaIsDisabled());
}

TEST(AutoEnhancement, AutoContrastSettersTurnNaNInto0)
{
    SettingsEffectAutoContrast record;
    record.SetWhiteSaturatedPixels(5.0F);
    record.SetBlackSaturatedPixels(5.0F);
    record.SetWhiteSaturatedPixels(std::numeric_limits<float>::quiet_NaN());
    record.SetBlackSaturatedPixels(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 0.0F);
    EXPECT_EQ(record.GetBlackSaturatedPixels(), 0.0F);
}

TEST(AutoEnhancement, AutoContrastFailuresComeFromTheConversionAndKeepEarlierKeys)
{
    SettingsEffectAutoContrast record;
    // "b" is read first, so it stays applied when "w" fails.
    EXPECT_THROW(record.Deserialize("b=2:w=-"), std::invalid_argument);
    EXPECT_EQ(record.GetBlackSaturatedPixels(), 2.0F);
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 0.0F);
    EXPECT_THROW(record.Deserialize("w=\"5\""), std::invalid_argument);
    EXPECT_THROW(record.Deserialize("w=" + kHuge), std::out_of_range);
    EXPECT_THROW(record.Deserialize("a=-:w=4"), std::invalid_argument);
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 4.0F); // "w" is read before "a"
    EXPECT_FALSE(record.GetAlphaIsDisabled());
    // An unquoted word is no option under the numeric value pattern.
    record.Deserialize("w=abc");
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 4.0F);
}

TEST(AutoEnhancement, AutoContrastRecordsDifferingOnlyInTheAlphaFlagCompareEqual)
{
    SettingsEffectAutoContrast a;
    SettingsEffectAutoContrast b;
    a.Deserialize("w=3:b=4:a=1");
    b.Deserialize("w=3:b=4:a=0");
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(a.IsEqualTo(b));
    b.Deserialize("w=3.5");
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(a.IsEqualTo(b));
    b.Deserialize("w=3:b=4.5");
    EXPECT_FALSE(a == b);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectMagicEnhance2
// ---------------------------------------------------------------------------------------

TEST(AutoEnhancement, MagicEnhance2ReadsItsTwoKeysPastTheClamp)
{
    SettingsEffectMagicEnhance2 record;
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 0.0F);
    EXPECT_EQ(record.GetBlackSaturatedPixels(), 0.0F);
    record.Deserialize("b=-2.5:w=25:a=1");
    EXPECT_EQ(record.GetBlackSaturatedPixels(), -2.5F);
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 25.0F);
    record.Deserialize("w=0.1");
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 0.1F);
    EXPECT_EQ(record.GetBlackSaturatedPixels(), -2.5F);
    record.Deserialize("");
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 0.1F);
}

TEST(AutoEnhancement, MagicEnhance2SettersClampTo0Through20AndNaNTo0)
{
    SettingsEffectMagicEnhance2 record;
    record.SetWhiteSaturatedPixels(25.0F);
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 20.0F);
    record.SetBlackSaturatedPixels(-0.5F);
    EXPECT_EQ(record.GetBlackSaturatedPixels(), 0.0F);
    record.SetBlackSaturatedPixels(12.0F);
    EXPECT_EQ(record.GetBlackSaturatedPixels(), 12.0F);
    record.SetBlackSaturatedPixels(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(record.GetBlackSaturatedPixels(), 0.0F);
    record.SetWhiteSaturatedPixels(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 0.0F);
}

TEST(AutoEnhancement, MagicEnhance2FailuresComeFromTheConversionAndKeepEarlierKeys)
{
    SettingsEffectMagicEnhance2 record;
    EXPECT_THROW(record.Deserialize("b=1:w=-"), std::invalid_argument);
    EXPECT_EQ(record.GetBlackSaturatedPixels(), 1.0F);
    EXPECT_THROW(record.Deserialize("b=" + kHuge), std::out_of_range);
    EXPECT_EQ(record.GetBlackSaturatedPixels(), 1.0F);
}

TEST(AutoEnhancement, MagicEnhance2ComparesBothFieldsExactly)
{
    SettingsEffectMagicEnhance2 a;
    SettingsEffectMagicEnhance2 b;
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(a.IsEqualTo(b));
    b.Deserialize("w=0.000001");
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(a.IsEqualTo(b));
    b = a;
    b.Deserialize("b=0.000001");
    EXPECT_FALSE(a == b);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectAutoWhiteBalance (no accessors: observed through the comparison)
// ---------------------------------------------------------------------------------------

namespace {

SettingsEffectAutoWhiteBalance Balance(const std::string& options)
{
    SettingsEffectAutoWhiteBalance record;
    record.Deserialize(options);
    return record;
}

} // namespace

TEST(AutoEnhancement, AutoWhiteBalanceTakesTheLow8BitsOfEachColourKey)
{
    EXPECT_TRUE(Balance("r=1:g=2:b=3") == Balance("r=257:g=258:b=259"));
    EXPECT_TRUE(Balance("r=1:g=2:b=3") == Balance("r=-255:g=-254:b=-253"));
    EXPECT_FALSE(Balance("r=1:g=2:b=3") == Balance("r=1:g=2:b=4"));
    EXPECT_FALSE(Balance("r=1:g=2:b=3") == Balance("r=3:g=2:b=1"));
    EXPECT_FALSE(Balance("r=1:g=2:b=3") == Balance("r=1:g=3:b=2"));
    EXPECT_TRUE(Balance("r=1:g=2:b=3").IsEqualTo(Balance("R=1:G=2:B=3")));
}

TEST(AutoEnhancement, AutoWhiteBalanceColourHasAlphaByte0)
{
    // The default colour is 0; a black taken from the keys with alpha 255 would differ.
    EXPECT_TRUE(Balance("r=0:g=0:b=0") == SettingsEffectAutoWhiteBalance());
    EXPECT_TRUE(Balance("r=256:g=512:b=768") == SettingsEffectAutoWhiteBalance());
    EXPECT_FALSE(Balance("r=1:g=0:b=0") == SettingsEffectAutoWhiteBalance());
}

TEST(AutoEnhancement, AutoWhiteBalanceTakesTheColourOnlyWithAllThreeKeys)
{
    SettingsEffectAutoWhiteBalance record = Balance("r=1:g=2:b=3");
    record.Deserialize("r=9:g=9:m=4"); // "b" absent: the colour stays, "m" is still read
    EXPECT_TRUE(record == Balance("r=1:g=2:b=3:m=4"));
    record.Deserialize("g=7:b=7");
    EXPECT_TRUE(record == Balance("r=1:g=2:b=3:m=4"));
    record.Deserialize("r=5:b=5:m=6");
    EXPECT_TRUE(record == Balance("r=1:g=2:b=3:m=6"));
    EXPECT_TRUE(Balance("r=1:g=2") == SettingsEffectAutoWhiteBalance());
}

TEST(AutoEnhancement, AutoWhiteBalanceModeIsReadAndCompared)
{
    EXPECT_FALSE(Balance("m=2") == SettingsEffectAutoWhiteBalance());
    EXPECT_TRUE(Balance("m=2") == Balance("m=2.9")); // std::stoi reads 2
    EXPECT_FALSE(Balance("m=2").IsEqualTo(Balance("m=-2")));
    EXPECT_TRUE(Balance("m=0") == SettingsEffectAutoWhiteBalance());
    SettingsEffectAutoWhiteBalance record = Balance("r=1:g=2:b=3:m=4");
    record.Deserialize("");
    EXPECT_TRUE(record == Balance("r=1:g=2:b=3:m=4"));
}

TEST(AutoEnhancement, AutoWhiteBalanceFailuresComeFromTheConversion)
{
    SettingsEffectAutoWhiteBalance record;
    // The colour is stored before "m" is read, and stays when "m" fails.
    EXPECT_THROW(record.Deserialize("r=1:g=2:b=3:m=-"), std::invalid_argument);
    EXPECT_TRUE(record == Balance("r=1:g=2:b=3"));
    // A bad colour key leaves the colour as it was.
    EXPECT_THROW(record.Deserialize("r=-:g=5:b=5"), std::invalid_argument);
    EXPECT_TRUE(record == Balance("r=1:g=2:b=3"));
    EXPECT_THROW(record.Deserialize("r=1:g=2:b=99999999999"), std::out_of_range);
    EXPECT_TRUE(record == Balance("r=1:g=2:b=3"));
    EXPECT_THROW(record.Deserialize("m=\"1\""), std::invalid_argument);
}

// ---------------------------------------------------------------------------------------
// Catalogue fields
// ---------------------------------------------------------------------------------------

TEST(AutoEnhancement, CatalogueListsTheReadableFieldsInOrder)
{
    const auto* magic = Zorvan::SettingsCatalog::Find("$$MAGIC_ENHANCE$$");
    ASSERT_NE(magic, nullptr);
    EXPECT_EQ(magic->FieldsToJson(SettingsEffectMagicEnhance()).dump(),
              R"({"contrastForce":0,"brightness":0,"contrast":0,"furtherInt1":0,"furtherInt2":0,"gamma":1.0,)"
              R"("whiteBalanceForce":0,"temperature":0,"tint":0,"saturationForce":0,"saturation":1.0,"lastInt":0})");
    EXPECT_EQ(magic->FieldsToJson(Filled()).dump(),
              R"({"contrastForce":2,"brightness":-7,"contrast":11,"furtherInt1":3,"furtherInt2":-4,"gamma":2.2,)"
              R"("whiteBalanceForce":5,"temperature":6500,"tint":-9,"saturationForce":1,"saturation":1.25,)"
              R"("lastInt":42})");

    const auto* contrast = Zorvan::SettingsCatalog::Find("EffectAutoContrast");
    ASSERT_NE(contrast, nullptr);
    SettingsEffectAutoContrast contrastRecord;
    contrastRecord.Deserialize("w=2.5:b=1.5:a=1");
    EXPECT_EQ(contrast->FieldsToJson(contrastRecord).dump(),
              R"({"whiteSaturatedPixels":2.5,"blackSaturatedPixels":1.5,"alphaIsDisabled":true})");

    const auto* magic2 = Zorvan::SettingsCatalog::Find("EffectMagicEnhance");
    ASSERT_NE(magic2, nullptr);
    SettingsEffectMagicEnhance2 magic2Record;
    magic2Record.Deserialize("w=2.5:b=1.5");
    EXPECT_EQ(magic2->FieldsToJson(magic2Record).dump(), R"({"whiteSaturatedPixels":2.5,"blackSaturatedPixels":1.5})");

    // No getters in the Part, so no fields.
    const auto* balance = Zorvan::SettingsCatalog::Find("EffectAutoWhiteBalance");
    ASSERT_NE(balance, nullptr);
    EXPECT_TRUE(balance->fields.empty());
}
