// Expected tables, factors and shifts were worked out with a python3 script from the formulas
// (IEEE doubles, each fused step computed exactly with fractions and rounded once), not by
// running this code.
#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <limits>
#include <map>
#include <numeric>
#include <sstream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <typeinfo>
#include <utility>
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

// "" when f returns, else the exact class of the conversion failure and its text.
template <class F>
std::string Failure(F&& f)
{
    try {
        f();
    } catch (const std::logic_error& e) {
        return (typeid(e) == typeid(std::invalid_argument) ? "invalid_argument: "
                : typeid(e) == typeid(std::out_of_range)   ? "out_of_range: "
                                                           : "other: ") +
               std::string(e.what());
    }
    return "";
}

// A record from "field=value" pairs separated by ':', each through its setter in turn, for the
// class reads no option string.
Magic Make(const std::string& fields)
{
    static const std::map<std::string, void (*)(Magic&, double)> setters{
        {"contrastForce", [](Magic& r, double v) { r.SetContrastForce(static_cast<std::uint32_t>(v)); }},
        {"brightness", [](Magic& r, double v) { r.SetBrightness(static_cast<int>(v)); }},
        {"contrast", [](Magic& r, double v) { r.SetContrast(static_cast<int>(v)); }},
        {"furtherInt1", [](Magic& r, double v) { r.SetFurtherInt1(static_cast<int>(v)); }},
        {"furtherInt2", [](Magic& r, double v) { r.SetFurtherInt2(static_cast<int>(v)); }},
        {"gamma", [](Magic& r, double v) { r.SetGamma(v); }},
        {"whiteBalanceForce", [](Magic& r, double v) { r.SetWhiteBalanceForce(static_cast<std::uint32_t>(v)); }},
        {"temperature", [](Magic& r, double v) { r.SetTemperature(static_cast<int>(v)); }},
        {"tint", [](Magic& r, double v) { r.SetTint(static_cast<int>(v)); }},
        {"saturationForce", [](Magic& r, double v) { r.SetSaturationForce(static_cast<std::uint32_t>(v)); }},
        {"saturation", [](Magic& r, double v) { r.SetSaturation(v); }},
        {"lastInt", [](Magic& r, double v) { r.SetLastInt(static_cast<int>(v)); }},
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
    table.fill(0xAA); // an entry the callee leaves unwritten shows
    const auto function = Make("contrastForce=" + std::to_string(force)).GetCustomContrast();
    EXPECT_NE(function, nullptr);
    if (function != nullptr) {
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

// Double force of kTwoPeaksWithTails: the first pass moves its edges to 21 and 203, and the
// second pass (offset 0.8) alone makes the table.
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
    // clang-format off
    const std::vector<std::tuple<const char*, std::uint32_t, Histogram, ContrastTable>> tables{
        {"bin 100 alone: gain 1.05, offset 1.4", 1, Hist({{100, 1000}}), kSingleBin100},
        {"16 to 235 spans 219 levels: gain 1, offset 0.15", 1, Hist({{16, 5}, {235, 7}}), identity},
        // A composition of the passes would map level 0 through both tables to 2.
        {"the second pass replaces the first", 2, kTwoPeaksWithTails, kDoubleTwoPeaks},
        {"first pass edges 21, 203", 2, kTwoPeaksWithTails, RunContrast(1, Hist({{21, 1}, {203, 1}}))},
        {"a sum equal to T goes on", 1, kTwoPeaksWithTails, RunContrast(1, Hist({{20, 1}, {200, 1}}))},
        // 49151 >> 14 = 2, so the 3 of bin 10 are above T.
        {"T is total >> 14", 1, Hist({{10, 3}, {128, 49148}}), RunContrast(1, Hist({{10, 1}, {128, 1}}))},
        // 2^32 + 4 wraps to 4: T 0, so the 1 of bin 30 is the low edge (unwrapped: bin 100).
        {"the total wraps at 32 bits", 1, Hist({{30, 1}, {100, 0x80000000U}, {200, 0x80000003U}}),
         RunContrast(1, Hist({{30, 1}, {200, 1}}))},
        {"double of 100 is single of 106", 2, Hist({{100, 1000}}), RunContrast(1, Hist({{106, 1000}}))}};
    // clang-format on
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
        {"double force of bin 100", 2, Hist({{100, 1000}}), {{0, 1}, {100, 106}, {106, 112}}}};
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
        {1, mid, mid, 47, 0, 1.1}, {1, mid, mid, 48, 0, 1.1}, {1, mid, mid, 49, 0, 1.09375}, {1, mid, mid, 64, 0, 1.0},
        {1, mid, mid, 79, 0, 0.9062500000000001}, {1, mid, mid, 80, 0, 0.9}, {1, mid, mid, -64, 0, 1.0},
        {1, mid, mid, 0, -79, 0.9062500000000001}, {1, mid, mid, 50, -64, 1.0},
        {2, mid, mid, 47, 0, 1.2100000000000002}, {2, mid, mid, 79, 0, 0.8212890625000002}, {2, mid, mid, 80, 0, 0.81},
        {1, Hist({{100, 5}}), mid, 28, 0, 1.1},          // an edge of 100 shifted by 28 lies at 128
        {1, Hist({{70, 3}, {190, 4}}), mid, 5, 0, 0.9812500000000001}, // edges 75 and 195: distance 67
        {2, Hist({{70, 3}, {190, 4}}), mid, 5, 0, 0.9628515625000001},
        // T 4 comes from the first; under its own T of 0 the second's low edge would be 10.
        {1, Hist({{128, 65536}}), Hist({{10, 4}, {128, 10}}), 0, 0, 1.1},
        {1, Hist({{20, 4}, {128, 65532}, {250, 4}}), mid, 0, 0, 1.1}, // tails of T are skipped
        {1, Hist({{20, 5}, {128, 65531}, {250, 4}}), mid, 0, 0, 0.9}};
    // clang-format on
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const auto& [force, first, second, firstShift, secondShift, expected] = cases[i];
        const auto function = Make("saturationForce=" + std::to_string(force)).GetCustomSaturation();
        ASSERT_NE(function, nullptr);
        EXPECT_EQ(function(first, second, firstShift, secondShift), expected) << "case " << i;
    }
}

TEST(MagicEnhance, WhiteBalanceShifts)
{
    // clang-format off
    const std::vector<std::tuple<Histogram, Histogram, std::pair<int, int>>> cases{
        {Hist({{128, 9}}), Hist({{128, 9}}), {0, 0}},
        // Spread 40, factor 184/256: 28 * f + 0.5 = 20.625 and -12 * f + 0.5 = -8.125, toward zero.
        {Hist({{100, 9}}), Hist({{140, 9}}), {20, -8}},
        // Both means divided by the first total: 2000 / 10 = 200; factor 0.875 gives -62.5.
        {Hist({{100, 10}}), Hist({{100, 20}}), {25, -62}},
        // T 2, low edge 5; mean2 5600000 / 40003 = 139; spread 87, widest 95, factor 129/256.
        {Hist({{5, 3}, {100, 40000}}), Hist({{140, 40000}}), {15, -5}},
        // T 2: the 2 of bin 5 are skipped; means 99 and 139, factor 0.71875.
        {Hist({{5, 2}, {100, 40000}}), Hist({{140, 40000}}), {21, -7}},
        // Means 90 and 75; spread 20, widest 120, factor 104/256.
        {Hist({{60, 30}, {180, 10}}), Hist({{90, 5}, {170, 15}}), {15, 22}},
        {Hist({{0, 1}, {255, 9}}), Hist({{0, 1}, {255, 9}}), {0, 0}}, // limit 255: factor 0
        // 200 * 2^25 wraps to 2415919104: mean 72, not 200; factor 0.875 gives 49.5.
        {Hist({{200, 1U << 25U}}), Hist({{200, 1U << 25U}}), {49, 49}}};
    // clang-format on
    const auto function = Make("whiteBalanceForce=1").GetCustomWhiteBalance();
    ASSERT_NE(function, nullptr);
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const auto& [first, second, expected] = cases[i];
        std::pair<int, int> shifts{12345, 12345};
        function(first, second, shifts.first, shifts.second);
        EXPECT_EQ(shifts, expected) << "case " << i;
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
        {"saturation=0", "saturation=-0.001", true},
        {"saturation=0", "saturation=0.0010000000000000002", false}, // one ulp beyond the tolerance
        {"saturation=nan", "saturation=nan", false}, {"saturationForce=1", "saturationForce=1:saturation=nan", true},
        {"contrastForce=1:whiteBalanceForce=1:saturationForce=1",
         "contrastForce=1:whiteBalanceForce=1:saturationForce=1:lastInt=1", false}};
    // clang-format on
    for (const auto& [a, b, equal] : cases) {
        SCOPED_TRACE(std::string(a) + " against " + b);
        EXPECT_EQ(Make(a) == Make(b), equal);
        EXPECT_EQ(Make(b) == Make(a), equal);
        EXPECT_EQ(Make(a).IsEqualTo(Make(b)), equal);
    }
}

TEST(AutoEnhancement, CatalogueAndCloneShowEveryField)
{
    const auto check = [](const Settings& record, const std::string& json) {
        const auto* entry = Zorvan::SettingsCatalog::Find(record.GetClassId());
        const auto clone = record.Clone();
        EXPECT_EQ(entry->FieldsToJson(record).dump(), json);
        EXPECT_EQ(entry->FieldsToJson(*clone).dump(), json);
        EXPECT_TRUE(clone->IsEqualTo(record));
    };
    // The setters store plainly: nothing is clamped.
    check(Make("contrastForce=2:brightness=-300:contrast=500:furtherInt1=3:furtherInt2=-4:gamma=-2.5:"
               "whiteBalanceForce=5:temperature=100000:tint=-100000:saturationForce=1:saturation=40:lastInt=42"),
          R"({"contrastForce":2,"brightness":-300,"contrast":500,"furtherInt1":3,"furtherInt2":-4,"gamma":-2.5,)"
          R"("whiteBalanceForce":5,"temperature":100000,"tint":-100000,"saturationForce":1,"saturation":40.0,)"
          R"("lastInt":42})");
    check(Magic(),
          R"({"contrastForce":0,"brightness":0,"contrast":0,"furtherInt1":0,"furtherInt2":0,"gamma":1.0,)"
          R"("whiteBalanceForce":0,"temperature":0,"tint":0,"saturationForce":0,"saturation":1.0,"lastInt":0})");
    const SettingsEffectAutoContrast contrast;
    check(contrast, R"({"whiteSaturatedPixels":0.0,"blackSaturatedPixels":0.0,"alphaIsDisabled":false})");
    const SettingsEffectMagicEnhance2 magic2;
    check(magic2, R"({"whiteSaturatedPixels":0.0,"blackSaturatedPixels":0.0})");
    SettingsEffectAutoWhiteBalance balance; // no getters: its colour and mode show through the comparison
    balance.Deserialize("r=1:g=2:b=3:m=4");
    check(balance, "{}");
    EXPECT_FALSE(SettingsEffectAutoWhiteBalance().IsEqualTo(*balance.Clone()));
    EXPECT_THROW((void)Magic().IsEqualTo(contrast), std::bad_cast);
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

TYPED_TEST(SaturatedPixels, DeserializeStoresFloatsPastTheClamp)
{
    // Options, each case starting from b=7:w=8; the conversion failure; black and white after.
    // clang-format off
    const std::vector<std::tuple<std::string, const char*, float, float>> cases{
        {"b=1.5:w=2.25", "", 1.5F, 2.25F}, {"W=3:x=9", "", 7.0F, 3.0F}, {"w=25:b=-3", "", -3.0F, 25.0F},
        {"w=0.1:b=1.2.3", "", 1.2F, 0.1F}, {"w=1,5", "", 7.0F, 1.0F}, {"b=2:b=3", "", 2.0F, 8.0F},
        {"w=abc:b=+1", "", 7.0F, 8.0F}, // no option under the numeric value pattern
        {"b=2:w=-", "invalid_argument: stof", 2.0F, 8.0F}, {"w=\"5\"", "invalid_argument: stof", 7.0F, 8.0F},
        {"w=" + kHuge, "out_of_range: stof", 7.0F, 8.0F}};
    // clang-format on
    for (const auto& [options, failure, black, white] : cases) {
        SCOPED_TRACE(options);
        TypeParam record;
        record.Deserialize("b=7:w=8");
        EXPECT_EQ(Failure([&] { record.Deserialize(options); }), failure);
        const auto clone = record.Clone();
        const auto& copy = dynamic_cast<const TypeParam&>(*clone);
        EXPECT_EQ(copy.GetBlackSaturatedPixels(), black);
        EXPECT_EQ(copy.GetWhiteSaturatedPixels(), white);
        EXPECT_FALSE(record.IsEmpty());
    }
}

TYPED_TEST(SaturatedPixels, SettersClampTo0Through20AndNaNTo0)
{
    const float inf = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const std::vector<std::pair<float, float>> cases{{25.0F, 20.0F}, {20.5F, 20.0F}, {20.0F, 20.0F},
                                                     {7.5F, 7.5F},   {0.25F, 0.25F}, {-1.0F, 0.0F},
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

TYPED_TEST(SaturatedPixels, ComparesBothFieldsExactly)
{
    for (const char* options : {"w=0.000001", "b=0.000001"}) {
        TypeParam changed;
        changed.Deserialize(options);
        EXPECT_FALSE(TypeParam() == changed) << options;
        EXPECT_FALSE(changed.IsEqualTo(TypeParam())) << options;
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
    EXPECT_EQ(Failure([&] { record.Deserialize("a=-:w=5"); }), "invalid_argument: stod");
    EXPECT_EQ(record.GetWhiteSaturatedPixels(), 5.0F);
}

TEST(AutoWhiteBalance, ColourTakesTheLowBytesOfAllThreeKeysWithAlpha0)
{
    // Options applied in turn ('|' between calls) with the conversion failure, then options
    // applied to a fresh record, and whether the two compare equal.
    // clang-format off
    const std::vector<std::tuple<std::string, const char*, const char*, bool>> cases{
        {"r=1:g=2:b=3", "", "r=257:g=258:b=259", true}, {"r=1:g=2:b=3", "", "r=-255:g=-254:b=-253", true},
        {"r=1:g=2:b=3", "", "r=1:g=2:b=4", false}, {"r=1:g=2:b=3", "", "r=2:g=1:b=3", false},
        {"r=1:g=2:b=3", "", "r=1:g=3:b=2", false}, {"r=1:g=2:b=3", "", "r=3:g=2:b=1", false},
        {"r=0:g=0:b=0", "", "", true}, // alpha 255 would differ from the default colour
        {"r=256:g=512:b=768", "", "", true}, {"r=1:g=0:b=0", "", "", false}, {"r=1:g=2", "", "", true},
        {"r=1:g=2:b=3|r=9:g=9:m=4", "", "r=1:g=2:b=3:m=4", true}, // "b" absent: "m" is still read
        {"r=1:g=2:b=3|g=7:b=7|", "", "r=1:g=2:b=3", true},
        {"m=2", "", "", false}, {"m=2", "", "m=2.9", true}, {"m=2", "", "m=-2", false},
        {"r=1:g=2:b=3:m=-", "invalid_argument: stoi", "r=1:g=2:b=3", true}, // the colour comes first
        {"r=-:g=5:b=5", "invalid_argument: stoi", "", true},
        {"r=1:g=2:b=99999999999", "out_of_range: stoi", "", true},
        {"m=\"1\"", "invalid_argument: stoi", "", true}};
    // clang-format on
    for (const auto& [options, failure, other, equal] : cases) {
        SCOPED_TRACE(options + " against " + other);
        SettingsEffectAutoWhiteBalance a;
        std::istringstream calls(options);
        EXPECT_EQ(Failure([&] {
                      for (std::string call; std::getline(calls, call, '|');) {
                          a.Deserialize(call);
                      }
                  }),
                  failure);
        SettingsEffectAutoWhiteBalance b;
        b.Deserialize(other);
        EXPECT_EQ(a == b, equal);
        EXPECT_EQ(b.IsEqualTo(a), equal);
        EXPECT_FALSE(a.IsEmpty());
    }
}
