// The float expectations (0.0001 as bits 0x38D1B717 and its neighbours, 0.5001f - 0.5f) were
// worked out with python3 through float32 rounding, not by running this code.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <tuple>
#include <typeinfo>
#include <utility>
#include <vector>

#include "Proc/Settings/SettingsEffectColorBalance.h"
#include "Proc/Settings/SettingsEffectColorCurves.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;
using Curve::CurvePoints;
using Curves = SettingsEffectColorCurves;
using CurveType = Curves::CurveType;
using Domain = std::pair<float, float>;

namespace {

// The exact classes of the conversion failures as ZorvanTest::ThrownType names them.
const char* const kNone = "nothing";
const char* const kInvalid = typeid(std::invalid_argument).name();
const char* const kOutOfRange = typeid(std::out_of_range).name();

// The curves as the catalogue shows them, keyed by the number of their type.
std::string Json(const Curves& record)
{
    return Zorvan::SettingsCatalog::Find(record.GetClassId())->FieldsToJson(record)["curves"].dump();
}

Curves Make(const std::string& options)
{
    Curves record;
    record.Deserialize(options);
    return record;
}

} // namespace

TEST(CurvePoints, PointsCompareWithin0_0001AndDomainsExactlyAlsoInARecord)
{
    const float tolerance = std::bit_cast<float>(std::uint32_t{0x38D1B717U}); // 9.999999747378752e-05
    const float below = std::bit_cast<float>(std::uint32_t{0x38D1B716U});
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const Domain unit{0.0F, 1.0F};
    const Domain inner{0.2F, 0.8F};
    // Points and domain of each side, then IsEqualPoints and operator== (also of records holding them).
    const std::vector<std::tuple<std::vector<float>, Domain, std::vector<float>, Domain, bool, bool>> cases{
        {{}, unit, {}, unit, true, true},
        {{0.5F, 1.0F}, unit, {0.50005F, 1.0F}, unit, true, true},  // 5.0008296966552734e-05 apart
        {{0.5F, 1.0F}, unit, {0.5001F, 1.0F}, unit, false, false}, // 0.00010001659393310547 apart
        {{0.0F, 1.0F}, unit, {below, 1.0F}, unit, true, true},
        {{0.0F, 1.0F}, unit, {tolerance, 1.0F}, unit, false, false}, // not strictly below
        {{nan, 1.0F}, unit, {nan, 1.0F}, unit, false, false},
        {{0.0F, 1.0F}, unit, {0.0F, 1.0F, 1.0F}, unit, false, false},
        {{0.0F, 1.0F}, inner, {0.0F, 1.0F}, {std::nextafter(0.2F, 1.0F), 0.8F}, true, false},
        {{0.0F, 1.0F}, inner, {0.0F, 1.0F}, {0.2F, std::nextafter(0.8F, 0.0F)}, true, false},
        {{0.0F, 1.0F}, inner, {0.00005F, 1.0F}, {0.8F, 0.2F}, true, true}};
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const auto& [pointsA, domainA, pointsB, domainB, equalPoints, equal] = cases[i];
        SCOPED_TRACE(i);
        const CurvePoints a(domainA, pointsA);
        const CurvePoints b(domainB, pointsB);
        EXPECT_EQ(a.IsEqualPoints(b), equalPoints);
        EXPECT_EQ(a == b, equal);
        Curves recordA;
        Curves recordB;
        recordA.SetCurve(CurveType::Red, domainA, pointsA);
        recordB.SetCurve(CurveType::Red, domainB, pointsB);
        EXPECT_EQ(recordA == recordB, equal);
        EXPECT_EQ(recordB.IsEqualTo(recordA), equal);
    }
}

TEST(ColorCurves, SetCurveRemoveCurveAndIsEmpty)
{
    Curves record;
    EXPECT_TRUE(record.IsEmpty());
    // A domain is ordered, then clamped to 0..1; the points are kept as given.
    record.SetCurve(CurveType::Green, {0.75F, 0.25F}, {0.0F, 0.25F, 1.0F});
    record.SetCurve(CurveType::Rgb, {2.0F, -1.0F}, {2.0F, -1.0F});
    EXPECT_EQ(Json(record), R"({"0":{"domain":[0.0,1.0],"points":[2.0,-1.0]},)"
                            R"("2":{"domain":[0.25,0.75],"points":[0.0,0.25,1.0]}})");
    // A new curve replaces the old one, which itself never changes.
    const auto first = record.GetCurve(CurveType::Green);
    record.SetCurve(CurveType::Green, {1.5F, 0.5F}, {1.0F, 0.0F});
    EXPECT_NE(record.GetCurve(CurveType::Green), first);
    EXPECT_EQ(first->GetPoints(), (std::vector<float>{0.0F, 0.25F, 1.0F}));
    // Fewer than two points remove the curve of that type and build nothing.
    record.SetCurve(CurveType::Blue, {0.0F, 1.0F}, {0.5F});
    record.RemoveCurve(CurveType::Red);
    EXPECT_EQ(Json(record), R"({"0":{"domain":[0.0,1.0],"points":[2.0,-1.0]},)"
                            R"("2":{"domain":[0.5,1.0],"points":[1.0,0.0]}})");
    record.SetCurve(CurveType::Green, {0.0F, 1.0F}, {0.5F});
    EXPECT_EQ(record.GetCurve(CurveType::Green), nullptr);
    EXPECT_FALSE(record.IsEmpty());
    record.RemoveCurve(CurveType::Rgb);
    EXPECT_TRUE(record.IsEmpty());
    EXPECT_EQ(Json(record), "{}");
}

TEST(ColorCurves, NumberListsAndDomains)
{
    // clang-format off
    const std::vector<std::tuple<const char*, const char*, std::vector<float>>> floats{
        {"0,0.5,1", kNone, {0.0F, 0.5F, 1.0F}}, {"\"-0.25,1e-1, 3\"", kNone, {-0.25F, 0.1F, 3.0F}}, {"", kNone, {}},
        {"1.5abc,0.1.2", kNone, {1.5F, 0.1F}}, {"1,", kNone, {1.0F}}, {"1,,2", kInvalid, {}},
        {"0,1e40", kOutOfRange, {}}};
    // clang-format on
    for (const auto& [text, failure, expected] : floats) {
        std::vector<float> numbers;
        EXPECT_EQ(ZorvanTest::ThrownType([&] { numbers = Curves::DeserializeFloats(text); }), failure) << text;
        EXPECT_EQ(numbers, expected) << text;
    }
    // A domain of exactly two numbers is taken as given; the curve orders and clamps it.
    EXPECT_EQ(Curves::DeserializeDomain({{"RED-DOMAIN", "\"0.8,-1\""}}, "red-domain"), Domain(0.8F, -1.0F));
}

TEST(ColorCurves, Deserialize)
{
    const std::string rgb = R"("0":{"domain":[0.0,1.0],"points":[0.0,1.0]})";
    const std::string red = R"("1":{"domain":[0.0,1.0],"points":[0.0,1.0]})";
    // Options, each case starting from rgb-curve=0,1:red-curve=0,1; the failure; the curves after.
    const std::vector<std::tuple<std::string, const char*, std::string>> cases{
        {"", kNone, "{" + rgb + "," + red + "}"},
        {"rgb-curve=0,0.5,1:red-curve=1,0:red-domain=0.25,0.75:green-curve=\"0,0.25\":green-domain=\"0.75,0.25\"",
         kNone,
         R"({"0":{"domain":[0.0,1.0],"points":[0.0,0.5,1.0]},"1":{"domain":[0.25,0.75],"points":[1.0,0.0]},)"
         R"("2":{"domain":[0.25,0.75],"points":[0.0,0.25]}})"},
        {"red-domain=0.25,0.75:blue-domain=0.25,0.75:unknown=1:rgbcurve=0,5", kNone, "{" + rgb + "," + red + "}"},
        // A domain of other than two numbers is 0 to 1.
        {"blue-curve=0,1:blue-domain=0.25,0.5,0.75:rgb-curve=0,1:rgb-domain=2,-1:red-curve=1,0:red-domain=0.5", kNone,
         "{" + rgb + R"(,"1":{"domain":[0.0,1.0],"points":[1.0,0.0]},"3":{"domain":[0.0,1.0],"points":[0.0,1.0]}})"},
        {"red-curve=0.5:green-curve=0.5", kNone, "{" + rgb + "}"},
        // RGB, red, green, blue in this order, whatever the order given.
        {"blue-curve=1,0:green-curve=0,,1:red-curve=\"\":rgb-curve=1,0", kInvalid,
         R"({"0":{"domain":[0.0,1.0],"points":[1.0,0.0]}})"},
        {"rgb-curve=1,0:red-curve=0,1" + std::string(50, '0'), kOutOfRange,
         R"({"0":{"domain":[0.0,1.0],"points":[1.0,0.0]},)" + red + "}"},
        {"red-curve=1,0:red-domain=-,1", kInvalid, "{" + rgb + "," + red + "}"}};
    for (const auto& [options, failure, curves] : cases) {
        SCOPED_TRACE(options);
        Curves record = Make("rgb-curve=0,1:red-curve=0,1");
        EXPECT_EQ(ZorvanTest::ThrownType([&] { record.Deserialize(options); }), failure);
        EXPECT_EQ(Json(record), curves);
    }
}

TEST(ColorCurves, ComparisonWalksBothMapsSideBySide)
{
    const std::vector<std::pair<const char*, const char*>> unequal{
        {"", "rgb-curve=0,1"}, {"red-curve=0,1", "green-curve=0,1"}, {"red-curve=0,1:rgb-curve=0,1", "red-curve=0,1"}};
    for (const auto& [a, b] : unequal) {
        EXPECT_FALSE(Make(a) == Make(b)) << a << " against " << b;
        EXPECT_FALSE(Make(b).IsEqualTo(Make(a))) << a << " against " << b;
    }
    EXPECT_THROW((void)Curves().IsEqualTo(SettingsEffectColorBalance()), std::bad_cast);
    // The same four curves set in every order of types: two records compare equal exactly when
    // their maps iterate the types in the same sequence, as there is no lookup by key.
    const auto order = [](const Curves& record) {
        std::vector<CurveType> types;
        for (const auto& [type, curve] : record.GetCurves()) {
            types.push_back(type);
        }
        return types;
    };
    std::array<CurveType, 4> types{CurveType::Rgb, CurveType::Red, CurveType::Green, CurveType::Blue};
    std::vector<Curves> records;
    do {
        records.emplace_back();
        for (const auto type : types) {
            records.back().SetCurve(type, {0.0F, 1.0F}, {0.0F, static_cast<float>(type) / 4.0F});
        }
    } while (std::next_permutation(types.begin(), types.end()));
    int unequalPairs = 0;
    for (const auto& a : records) {
        for (const auto& b : records) {
            EXPECT_EQ(a == b, order(a) == order(b));
            unequalPairs += order(a) == order(b) ? 0 : 1;
        }
    }
#if defined(__GLIBCXX__)
    // libstdc++ iterates these maps in the reverse order of insertion: the walk is really tried.
    EXPECT_GT(unequalPairs, 0);
#endif
    (void)unequalPairs;
}

TEST(ColorCurves, CloneSharesTheCurvesAndCopiesTheMap)
{
    Curves record = Make("rgb-curve=0,1:blue-curve=1,0:blue-domain=0.25,0.75");
    const auto clone = record.Clone();
    const auto& copy = dynamic_cast<const Curves&>(*clone);
    EXPECT_EQ(copy.GetCurve(CurveType::Rgb), record.GetCurve(CurveType::Rgb));
    EXPECT_EQ(copy.GetCurve(CurveType::Blue), record.GetCurve(CurveType::Blue));
    EXPECT_TRUE(clone->IsEqualTo(record));
    record.RemoveCurve(CurveType::Rgb);
    EXPECT_NE(copy.GetCurve(CurveType::Rgb), nullptr);
}
