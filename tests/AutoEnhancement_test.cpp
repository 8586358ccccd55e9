// Expected tables, factors and shifts were worked out with python3 from the formulas (IEEE doubles,
// each fused step computed exactly with fractions and rounded once), not by running this code.
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <map>
#include <numeric>
#include <sstream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <typeinfo>
#include <vector>

#include "Proc/Settings/SettingsEffectAutoContrast.h"
#include "Proc/Settings/SettingsEffectAutoWhiteBalance.h"
#include "Proc/Settings/SettingsEffectMagicEnhance.h"
#include "Proc/Settings/SettingsEffectMagicEnhance2.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;

namespace {

using Magic = SettingsEffectMagicEnhance;
using Histogram = Magic::Histogram;
using ContrastTable = Magic::ContrastTable;

// Overflows a float but not a double.
const std::string kHuge = "1" + std::string(50, '0');

// The exact classes of the conversion failures as ZorvanTest::ThrownType names them.
const char* const kNone = "nothing";
const char* const kInvalid = typeid(std::invalid_argument).name();
const char* const kOutOfRange = typeid(std::out_of_range).name();

// A record from "field=value" pairs separated by ':', each through its setter in turn, for the
// class reads no option string.
Magic Make(const std::string& fields)
{
    static const std::map<std::string, void (*)(Magic&, double)> setters{
        {"contrastForce", [](Magic& r, double v) { r.SetContrastForce(v); }},
        {"brightness", [](Magic& r, double v) { r.SetBrightness(v); }},
        {"contrast", [](Magic& r, double v) { r.SetContrast(v); }},
        {"furtherInt1", [](Magic& r, double v) { r.SetFurtherInt1(v); }},
        {"furtherInt2", [](Magic& r, double v) { r.SetFurtherInt2(v); }},
        {"gamma", [](Magic& r, double v) { r.SetGamma(v); }},
        {"whiteBalanceForce", [](Magic& r, double v) { r.SetWhiteBalanceForce(v); }},
        {"temperature", [](Magic& r, double v) { r.SetTemperature(v); }},
        {"tint", [](Magic& r, double v) { r.SetTint(v); }},
        {"saturationForce", [](Magic& r, double v) { r.SetSaturationForce(v); }},
        {"saturation", [](Magic& r, double v) { r.SetSaturation(v); }},
        {"lastInt", [](Magic& r, double v) { r.SetLastInt(v); }},
    };
    Magic record;
    std::istringstream pairs(fields);
    for (std::string pair; std::getline(pairs, pair, ':');) {
        const auto equals = pair.find('=');
        setters.at(pair.substr(0, equals))(record, std::stod(pair.substr(equals + 1)));
    }
    return record;
}

Histogram Hist(std::initializer_list<std::pair<int, std::uint32_t>> bins)
{
    Histogram histogram{};
    for (const auto& [bin, count] : bins) {
        histogram[static_cast<std::size_t>(bin)] += count;
    }
    return histogram;
}

ContrastTable RunContrast(std::uint32_t force, const Histogram& histogram)
{
    ContrastTable table;
    table.fill(0xAA);
    const auto function = Make("contrastForce=" + std::to_string(force)).GetCustomContrast();
    if (function != nullptr) { // else the unwritten entries show
        function(histogram, table);
    }
    return table;
}

// Total 49157, T = 3. From below the running sum is 3 at bin 10 (not above T: the scan goes on)
// and 4 at bin 20; from above 1, 3, then bin 200. Low 20, high 200, middle 110.
const Histogram kTwoPeaksWithTails = Hist({{10, 3}, {20, 1}, {60, 24575}, {200, 24575}, {240, 2}, {250, 1}});

// Single force, bin 100 alone: gain 1.05, offset 1.4.
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

} // namespace

TEST(MagicEnhance, IsConfiguredBySettersAlone)
{
    Magic record;
    for (const char* options : {"", "brightness=5"}) {
        EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { record.Deserialize(options); }),
                  "Not implemented fill from string for settings CLASS_ID = $$MAGIC_ENHANCE$$");
    }
    EXPECT_FALSE(record.IsEmpty());
    EXPECT_TRUE(!record.GetCustomContrast() && !record.GetCustomSaturation() && !record.GetCustomWhiteBalance());
    // Any non-zero white-balance force selects the one automatic balance.
    const auto balance = Make("whiteBalanceForce=1").GetCustomWhiteBalance();
    EXPECT_TRUE(balance != nullptr && Make("whiteBalanceForce=4294967295").GetCustomWhiteBalance() == balance);
}

TEST(MagicEnhance, ContrastTables)
{
    ContrastTable identity{};
    std::iota(identity.begin(), identity.end(), std::uint8_t{0});
    // A table depends on the two edges alone, so a histogram of two single counts can name them.
    const std::vector<std::tuple<const char*, std::uint32_t, Histogram, ContrastTable>> tables{
        {"bin 100 alone: gain 1.05, offset 1.4", 1, Hist({{100, 1000}}), kSingleBin100},
        {"16 to 235 spans 219 levels: gain 1, offset 0.15", 1, Hist({{16, 5}, {235, 7}}), identity},
        {"first pass edges 21, 203", 2, kTwoPeaksWithTails, RunContrast(1, Hist({{21, 1}, {203, 1}}))},
        {"a sum equal to T goes on", 1, kTwoPeaksWithTails, RunContrast(1, Hist({{20, 1}, {200, 1}}))},
        // 49151 >> 14 = 2, so the 3 of bin 10 are above T.
        {"T is total >> 14", 1, Hist({{10, 3}, {128, 49148}}), RunContrast(1, Hist({{10, 1}, {128, 1}}))},
        // 2^32 + 4 wraps to 4: T 0, so the 1 of bin 30 is the low edge (unwrapped: bin 100).
        {"the total wraps at 32 bits", 1, Hist({{30, 1}, {100, 0x80000000U}, {200, 0x80000003U}}),
         RunContrast(1, Hist({{30, 1}, {200, 1}}))}};
    for (const auto& [what, force, histogram, expected] : tables) {
        EXPECT_EQ(RunContrast(force, histogram), expected) << what;
    }
    // Force, histogram, level and entry pairs.
    // clang-format off
    const std::vector<std::tuple<const char*, std::uint32_t, Histogram, std::vector<std::pair<int, int>>>> entries{
        {"bin 200 alone: offset -3.6 stops at 0", 1, Hist({{200, 9}}), {{0, 0}, {3, 0}, {4, 1}, {5, 2}}},
        // gain = fma(1 - 238/219, 0.05, 1), offset 0.45: level 219 gives 218.5 exactly; a separate
        // multiply and add gives 218.49999999999997 and entry 218.
        {"value step fused", 1, Hist({{0, 1}, {238, 1}}), {{0, 0}, {218, 218}, {219, 219}, {220, 219}, {255, 254}}},
        // Fused gain 0x1.0bbf795644bbfp+0; unfused 0x1.0bbf795644bc0p+0 makes level 146 159.
        {"gain step fused", 1, Hist({{3, 1}, {21, 1}}), {{0, 6}, {145, 157}, {146, 158}, {147, 160}}},
        // First pass edges 21 and 203; the second pass alone makes the table (a composition maps 0 to 2).
        {"second pass replaces the first", 2, kTwoPeaksWithTails,
         {{0, 1}, {82, 83}, {83, 85}, {201, 203}, {202, 205}, {251, 254}, {252, 255}}}};
    // clang-format on
    for (const auto& [what, force, histogram, levels] : entries) {
        const ContrastTable table = RunContrast(force, histogram);
        for (const auto& [level, entry] : levels) {
            EXPECT_EQ(table[static_cast<std::size_t>(level)], entry) << what << ", level " << level;
        }
    }
}

TEST(MagicEnhance, SaturationFactor)
{
    const Histogram mid = Hist({{128, 1}});
    // Force, histograms and shifts: the distance is the larger of the shifted edges' from 128.
    // clang-format off
    const std::vector<std::tuple<std::uint32_t, Histogram, Histogram, int, int, double>> cases{
        {1, mid, mid, 47, 0, 1.1}, {1, mid, mid, 49, 0, 1.09375}, {1, mid, mid, 79, 0, 0.9062500000000001},
        {1, mid, mid, 80, 0, 0.9}, {1, mid, mid, 0, -79, 0.9062500000000001}, {1, mid, mid, 50, -64, 1.0},
        {2, mid, mid, 47, 0, 1.2100000000000002}, // squared, not a rounded 1.21
        {1, Hist({{70, 3}, {190, 4}}), mid, 5, 0, 0.9812500000000001}, // edges 75 and 195: distance 67
        {2, Hist({{70, 3}, {190, 4}}), mid, 5, 0, 0.9628515625000001},
        // T 4 comes from the first; under its own T of 0 the second's low edge would be 10.
        {1, Hist({{128, 65536}}), Hist({{10, 4}, {128, 10}}), 0, 0, 1.1},
        {1, Hist({{20, 4}, {128, 65532}, {250, 4}}), mid, 0, 0, 1.1}, // tails of T are skipped
        {1, Hist({{20, 5}, {128, 65531}, {250, 4}}), mid, 0, 0, 0.9}};
    // clang-format on
    for (const auto& [force, first, second, firstShift, secondShift, expected] : cases) {
        const auto function = Make("saturationForce=" + std::to_string(force)).GetCustomSaturation();
        ASSERT_NE(function, nullptr);
        EXPECT_EQ(function(first, second, firstShift, secondShift), expected) << firstShift << ", " << secondShift;
    }
}

TEST(MagicEnhance, WhiteBalanceShifts)
{
    const std::vector<std::tuple<Histogram, Histogram, std::pair<int, int>>> cases{
        // Spread 40, factor 184/256: 28 * f + 0.5 = 20.625 and -12 * f + 0.5 = -8.125, toward zero.
        {Hist({{100, 9}}), Hist({{140, 9}}), {20, -8}},
        {Hist({{100, 10}}), Hist({{100, 20}}), {25, -62}}, // means over the first total: 2000 / 10 = 200
        // T 2, low edge 5; mean2 5600000 / 40003 = 139; spread 87, widest 95, factor 129/256.
        {Hist({{5, 3}, {100, 40000}}), Hist({{140, 40000}}), {15, -5}},
        // T 2: the 2 of bin 5 are skipped; means 99 and 139, factor 0.71875.
        {Hist({{5, 2}, {100, 40000}}), Hist({{140, 40000}}), {21, -7}},
        {Hist({{60, 30}, {180, 10}}), Hist({{90, 5}, {170, 15}}), {15, 22}}, // widest 120: factor 104/256
        {Hist({{0, 1}, {255, 9}}), Hist({{0, 1}, {255, 9}}), {0, 0}},        // limit 255: factor 0
        // 200 * 2^25 wraps to 2415919104: mean 72, not 200; factor 0.875 gives 49.5.
        {Hist({{200, 1U << 25U}}), Hist({{200, 1U << 25U}}), {49, 49}}};
    const auto function = Make("whiteBalanceForce=1").GetCustomWhiteBalance();
    ASSERT_NE(function, nullptr);
    for (const auto& [first, second, expected] : cases) {
        std::pair<int, int> shifts{12345, 12345};
        function(first, second, shifts.first, shifts.second);
        EXPECT_EQ(shifts, expected);
    }
}

TEST(MagicEnhance, ComparisonSkipsTheValuesOfAutomaticCorrections)
{
    // A force is set before the values, so a setter that reset it would show.
    // clang-format off
    const std::vector<std::tuple<const char*, const char*, bool>> cases{
        {"", "contrastForce=1", false}, {"", "whiteBalanceForce=1", false}, {"", "saturationForce=2", false},
        {"whiteBalanceForce=3", "whiteBalanceForce=4", false},
        {"", "brightness=1", false}, {"", "contrast=-1", false}, {"", "furtherInt1=1", false},
        {"", "furtherInt2=1", false}, {"", "gamma=1.0000000000000002", false},
        {"contrastForce=1", "contrastForce=1:brightness=10:contrast=-20:furtherInt1=1:furtherInt2=2:gamma=nan", true},
        {"contrastForce=2", "contrastForce=2:brightness=-20", true},
        {"", "temperature=1", false}, {"", "tint=-1", false},
        {"whiteBalanceForce=3", "whiteBalanceForce=3:temperature=5000:tint=40", true},
        {"whiteBalanceForce=3", "whiteBalanceForce=3:brightness=1", false},
        {"", "saturation=1.0005", true}, {"saturation=0", "saturation=0.001", true},
        {"saturation=0", "saturation=0.0010000000000000002", false}, // one ulp beyond the tolerance
        {"saturation=nan", "saturation=nan", false}, {"saturationForce=1", "saturationForce=1:saturation=nan", true},
        {"contrastForce=1:whiteBalanceForce=1:saturationForce=1",
         "contrastForce=1:whiteBalanceForce=1:saturationForce=1:lastInt=1", false}};
    // clang-format on
    for (const auto& [a, b, equal] : cases) {
        SCOPED_TRACE(std::string(a) + " against " + b);
        EXPECT_EQ(Make(a) == Make(b), equal);
        EXPECT_EQ(Make(b).IsEqualTo(Make(a)), equal);
    }
}

TEST(AutoEnhancement, CloneKeepsEveryFieldAndForeignComparisonThrows)
{
    // The setters store plainly: nothing is clamped.
    const Magic magic = Make("contrastForce=2:brightness=-300:contrast=500:furtherInt1=3:furtherInt2=-4:gamma=-2.5:"
                             "whiteBalanceForce=5:temperature=100000:tint=-100000:saturationForce=1:saturation=40:"
                             "lastInt=42");
    EXPECT_EQ(Zorvan::SettingsCatalog::Find(Magic::CLASS_ID)->FieldsToJson(*magic.Clone()).dump(),
              R"({"contrastForce":2,"brightness":-300,"contrast":500,"furtherInt1":3,"furtherInt2":-4,"gamma":-2.5,)"
              R"("whiteBalanceForce":5,"temperature":100000,"tint":-100000,"saturationForce":1,"saturation":40.0,)"
              R"("lastInt":42})");
    SettingsEffectAutoWhiteBalance balance; // no getters: its colour and mode show through the comparison
    balance.Deserialize("r=1:g=2:b=3:m=4");
    EXPECT_TRUE(balance.IsEqualTo(*balance.Clone()));
    EXPECT_FALSE(SettingsEffectAutoWhiteBalance().IsEqualTo(*balance.Clone()));
    const SettingsEffectAutoContrast contrast;
    const SettingsEffectMagicEnhance2 magic2;
    EXPECT_THROW((void)magic.IsEqualTo(contrast), std::bad_cast);
    EXPECT_THROW((void)contrast.IsEqualTo(magic2), std::bad_cast);
    EXPECT_THROW((void)magic2.IsEqualTo(contrast), std::bad_cast);
    EXPECT_THROW((void)balance.IsEqualTo(magic2), std::bad_cast);
}

// SettingsEffectAutoContrast and SettingsEffectMagicEnhance2 share their saturated-pixel fields.
template <class Record>
class SaturatedPixels : public ::testing::Test {
};
using SaturatedPixelRecords = ::testing::Types<SettingsEffectAutoContrast, SettingsEffectMagicEnhance2>;
TYPED_TEST_SUITE(SaturatedPixels, SaturatedPixelRecords);

TYPED_TEST(SaturatedPixels, DeserializeStoresFloatsPastTheClampAndComparesExactly)
{
    TypeParam base;
    base.Deserialize("b=7:w=8");
    // Options, each case starting from b=7:w=8; the class thrown; black and white after.
    const std::vector<std::tuple<std::string, const char*, float, float>> cases{
        {"b=1.5:w=2.25", kNone, 1.5F, 2.25F},   {"w=25:b=-3", kNone, -3.0F, 25.0F},
        {"w=8.000001", kNone, 7.0F, 8.000001F}, {"b=7.000001", kNone, 7.000001F, 8.0F},
        {"b=2:w=-", kInvalid, 2.0F, 8.0F},      {"w=" + kHuge, kOutOfRange, 7.0F, 8.0F}};
    for (const auto& [options, failure, black, white] : cases) {
        SCOPED_TRACE(options);
        TypeParam record = base;
        EXPECT_EQ(ZorvanTest::ThrownType([&] { record.Deserialize(options); }), failure);
        const auto clone = record.Clone();
        const auto& copy = dynamic_cast<const TypeParam&>(*clone);
        EXPECT_EQ(copy.GetBlackSaturatedPixels(), black);
        EXPECT_EQ(copy.GetWhiteSaturatedPixels(), white);
        EXPECT_EQ(clone->IsEqualTo(base), black == 7.0F && white == 8.0F);
        EXPECT_FALSE(record.IsEmpty());
    }
}

TYPED_TEST(SaturatedPixels, SettersClampTo0Through20AndNaNTo0)
{
    const float inf = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const std::vector<std::pair<float, float>> cases{{20.5F, 20.0F}, {20.0F, 20.0F}, {0.25F, 0.25F}, {-1.0F, 0.0F},
                                                     {inf, 20.0F},   {-inf, 0.0F},   {nan, 0.0F}};
    for (const auto& [given, stored] : cases) {
        TypeParam record;
        record.Deserialize("b=5:w=5");
        record.SetWhiteSaturatedPixels(given);
        record.SetBlackSaturatedPixels(given);
        EXPECT_EQ(record.GetWhiteSaturatedPixels(), stored) << given;
        EXPECT_EQ(record.GetBlackSaturatedPixels(), stored) << given;
    }
}

TEST(AutoContrast, AlphaKeyIsADoubleTrueWhenNotZeroAndOutsideTheComparison)
{
    // std::stoi would read 0.5 as 0; a float would not hold 1e50.
    const std::vector<std::pair<std::string, bool>> cases{{"0.5", true}, {"0.0001", true}, {"-2", true},  {kHuge, true},
                                                          {"0", false},  {"-0.0", false},  {"0,9", false}};
    for (const auto& [value, flag] : cases) {
        SettingsEffectAutoContrast record;
        record.SetAlphaIsDisabled(!flag);
        record.Deserialize("a=" + value);
        EXPECT_EQ(record.GetAlphaIsDisabled(), flag) << value;
        EXPECT_TRUE(record == SettingsEffectAutoContrast()) << value;
    }
    SettingsEffectAutoContrast record; // "a" is read after "w"
    EXPECT_EQ(ZorvanTest::ThrownType([&] { record.Deserialize("a=-:w=5"); }), kInvalid);
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 5.0F);
}

TEST(AutoWhiteBalance, ColourTakesTheLowBytesOfAllThreeKeysWithAlpha0)
{
    // Options applied to r=1:g=2:b=3 with the class thrown, then options applied to a fresh
    // record, and whether the two compare equal.
    const char* const start = "r=1:g=2:b=3";
    // clang-format off
    const std::vector<std::tuple<const char*, const char*, const char*, bool>> cases{
        {"r=257:g=258:b=-253", kNone, start, true},
        {"", kNone, "r=2:g=2:b=3", false}, {"", kNone, "r=1:g=3:b=3", false}, {"", kNone, "r=1:g=2:b=4", false},
        {"r=0:g=0:b=0", kNone, "", true}, // alpha 255 would differ from the default colour
        {"r=9:g=9:m=4", kNone, "r=1:g=2:b=3:m=4", true}, // "b" absent: the colour stays, "m" is still read
        {"m=2", kNone, start, false},
        {"r=5:g=5:b=5:m=-", kInvalid, "r=5:g=5:b=5", true}, // the colour comes first
        {"r=-:g=5:b=5", kInvalid, start, true},
        {"r=5:g=5:b=99999999999", kOutOfRange, start, true}};
    // clang-format on
    for (const auto& [options, failure, other, equal] : cases) {
        SCOPED_TRACE(std::string(options) + " against " + other);
        SettingsEffectAutoWhiteBalance a;
        a.Deserialize(start);
        EXPECT_EQ(ZorvanTest::ThrownType([&] { a.Deserialize(options); }), failure);
        SettingsEffectAutoWhiteBalance b;
        b.Deserialize(other);
        EXPECT_EQ(a == b, equal);
        EXPECT_EQ(b.IsEqualTo(a), equal);
        EXPECT_FALSE(b.IsEmpty());
    }
}
