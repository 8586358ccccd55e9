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
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;
using Curve::CurvePoints;
using Curves = SettingsEffectColorCurves;
using CurveType = Curves::CurveType;
using Domain = std::pair<float, float>;

namespace {

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

TEST(CurvePoints, DomainIsOrderedThenClamped)
{
    // clang-format off
    const std::vector<std::pair<Domain, Domain>> cases{
        {{0.8F, 0.2F}, {0.2F, 0.8F}}, {{0.2F, 0.8F}, {0.2F, 0.8F}}, {{0.3F, 0.3F}, {0.3F, 0.3F}},
        {{-1.0F, 2.0F}, {0.0F, 1.0F}}, {{2.0F, -1.0F}, {0.0F, 1.0F}}, {{1.5F, 0.5F}, {0.5F, 1.0F}},
        {{-0.5F, -0.2F}, {0.0F, 0.0F}}, {{3.0F, 2.0F}, {1.0F, 1.0F}}};
    // clang-format on
    for (const auto& [given, stored] : cases) {
        const CurvePoints curve(given, {2.0F, -1.0F, 0.5F});
        EXPECT_EQ(curve.GetDomain(), stored) << given.first << ", " << given.second;
        EXPECT_EQ(curve.GetPoints(), (std::vector<float>{2.0F, -1.0F, 0.5F}));
    }
}

TEST(CurvePoints, PointsCompareWithin0_0001AndDomainsExactly)
{
    const float tolerance = std::bit_cast<float>(std::uint32_t{0x38D1B717U}); // 9.999999747378752e-05
    const float below = std::bit_cast<float>(std::uint32_t{0x38D1B716U});
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const Domain unit{0.0F, 1.0F};
    const Domain inner{0.2F, 0.8F};
    // Points and domain of each side, then IsEqualPoints and operator==.
    // clang-format off
    const std::vector<std::tuple<std::vector<float>, Domain, std::vector<float>, Domain, bool, bool>> cases{
        {{0.0F, 1.0F}, unit, {0.00005F, 1.0F}, unit, true, true},     {{}, unit, {}, unit, true, true},
        {{0.5F, 1.0F}, unit, {0.50005F, 1.0F}, unit, true, true},     // 5.0008296966552734e-05 apart
        {{0.5F, 1.0F}, unit, {0.5001F, 1.0F}, unit, false, false},    // 0.00010001659393310547 apart
        {{0.0F, 1.0F}, unit, {below, 1.0F}, unit, true, true},
        {{0.0F, 1.0F}, unit, {tolerance, 1.0F}, unit, false, false},  // not strictly below
        {{0.0F, 1.0F}, unit, {0.0F, 1.001F}, unit, false, false},
        {{nan, 1.0F}, unit, {nan, 1.0F}, unit, false, false},
        {{0.0F, 1.0F}, unit, {0.0F, 1.0F, 1.0F}, unit, false, false},
        {{0.0F, 1.0F}, inner, {0.0F, 1.0F}, {std::nextafter(0.2F, 1.0F), 0.8F}, true, false},
        {{0.0F, 1.0F}, inner, {0.0F, 1.0F}, {0.2F, std::nextafter(0.8F, 0.0F)}, true, false},
        {{0.0F, 1.0F}, inner, {0.00005F, 1.0F}, {0.8F, 0.2F}, true, true}};
    // clang-format on
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const auto& [pointsA, domainA, pointsB, domainB, equalPoints, equal] = cases[i];
        SCOPED_TRACE(i);
        const CurvePoints a(domainA, pointsA);
        const CurvePoints b(domainB, pointsB);
        EXPECT_EQ(a.IsEqualPoints(b), equalPoints);
        EXPECT_EQ(a == b, equal);
    }
}

TEST(ColorCurves, SetCurveRemoveCurveAndIsEmpty)
{
    static_assert(sizeof(CurveType) == 4);
    Curves record;
    EXPECT_TRUE(record.IsEmpty());
    record.SetCurve(CurveType::Green, {0.75F, 0.25F}, {0.0F, 0.25F, 1.0F});
    record.SetCurve(CurveType::Rgb, {0.0F, 1.0F}, {0.0F, 1.0F}); // an identity curve is not empty
    EXPECT_EQ(Json(record), R"({"0":{"domain":[0.0,1.0],"points":[0.0,1.0]},)"
                            R"("2":{"domain":[0.25,0.75],"points":[0.0,0.25,1.0]}})");
    // A new curve replaces the old one, which itself never changes.
    const auto first = record.GetCurve(CurveType::Green);
    record.SetCurve(CurveType::Green, {0.0F, 0.5F}, {1.0F, 0.0F});
    EXPECT_NE(record.GetCurve(CurveType::Green), first);
    EXPECT_EQ(first->GetPoints(), (std::vector<float>{0.0F, 0.25F, 1.0F}));
    // Fewer than two points remove the curve of that type and build nothing.
    record.SetCurve(CurveType::Blue, {0.0F, 1.0F}, {0.5F});
    record.RemoveCurve(CurveType::Red);
    EXPECT_EQ(Json(record), R"({"0":{"domain":[0.0,1.0],"points":[0.0,1.0]},)"
                            R"("2":{"domain":[0.0,0.5],"points":[1.0,0.0]}})");
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
        {"0,0.5,1", "", {0.0F, 0.5F, 1.0F}}, {"\"-0.25,1e-1, 3\"", "", {-0.25F, 0.1F, 3.0F}}, {"", "", {}},
        {"1.5abc,0.1.2", "", {1.5F, 0.1F}}, {"1,", "", {1.0F}}, {"1,,2", "invalid_argument: stof", {}},
        {"0,1e40", "out_of_range: stof", {}}};
    // clang-format on
    for (const auto& [text, failure, expected] : floats) {
        std::vector<float> numbers;
        EXPECT_EQ(Failure([&] { numbers = Curves::DeserializeFloats(text); }), failure) << text;
        EXPECT_EQ(numbers, expected) << text;
    }
    // The value of "red-domain"; exactly two numbers are taken as given, anything else is 0 and 1.
    // clang-format off
    const std::vector<std::tuple<Settings::OptionsMap, const char*, Domain>> domains{
        {{}, "", {0.0F, 1.0F}}, {{{"blue-domain", "0.2,0.8"}}, "", {0.0F, 1.0F}},
        {{{"red-domain", "0.5"}}, "", {0.0F, 1.0F}}, {{{"red-domain", "0.1,0.2,0.3"}}, "", {0.0F, 1.0F}},
        {{{"RED-DOMAIN", "\"0.8,-1\""}}, "", {0.8F, -1.0F}}, {{{"red-domain", "-,1"}}, "invalid_argument: stof", {}}};
    // clang-format on
    for (const auto& [map, failure, expected] : domains) {
        Domain domain{};
        EXPECT_EQ(Failure([&] { domain = Curves::DeserializeDomain(map, "red-domain"); }), failure);
        EXPECT_EQ(domain, expected);
    }
}

TEST(ColorCurves, Deserialize)
{
    EXPECT_EQ(Curves::s_params, (std::vector<std::string>{"rgb-curve", "red-curve", "green-curve", "blue-curve",
                                                          "rgb-domain", "red-domain", "green-domain", "blue-domain"}));
    const std::string rgb = R"("0":{"domain":[0.0,1.0],"points":[0.0,1.0]})";
    const std::string red = R"("1":{"domain":[0.0,1.0],"points":[0.0,1.0]})";
    // Options, each case starting from rgb-curve=0,1:red-curve=0,1; the failure; the curves after.
    // clang-format off
    const std::vector<std::tuple<std::string, const char*, std::string>> cases{
        {"", "", "{" + rgb + "," + red + "}"},
        {"rgb-curve=0,0.5,1:red-curve=1,0:red-domain=0.25,0.75:green-curve=\"0,0.25\":green-domain=\"0.75,0.25\"", "",
         R"({"0":{"domain":[0.0,1.0],"points":[0.0,0.5,1.0]},"1":{"domain":[0.25,0.75],"points":[1.0,0.0]},)"
         R"("2":{"domain":[0.25,0.75],"points":[0.0,0.25]}})"},
        {"red-domain=0.25,0.75:blue-domain=0.25,0.75:unknown=1:rgbcurve=0,5", "", "{" + rgb + "," + red + "}"},
        {"blue-curve=0,1:blue-domain=0.25,0.5,0.75:rgb-curve=0,1:rgb-domain=2,-1", "",
         "{" + rgb + "," + red + R"(,"3":{"domain":[0.0,1.0],"points":[0.0,1.0]}})"},
        {"red-curve=0.5:green-curve=0.5", "", "{" + rgb + "}"},
        {"RED-CURVE=0,0.25:red-curve=1,0:Red-Domain=0.5,0.75", "",
         "{" + rgb + R"(,"1":{"domain":[0.5,0.75],"points":[0.0,0.25]}})"},
        // RGB, red, green, blue in this order, whatever the order given.
        {"blue-curve=1,0:green-curve=0,,1:red-curve=\"\":rgb-curve=1,0", "invalid_argument: stof",
         R"({"0":{"domain":[0.0,1.0],"points":[1.0,0.0]}})"},
        {"rgb-curve=1,0:red-curve=0,1" + std::string(50, '0'), "out_of_range: stof",
         R"({"0":{"domain":[0.0,1.0],"points":[1.0,0.0]},)" + red + "}"},
        {"red-curve=1,0:red-domain=-,1", "invalid_argument: stof", "{" + rgb + "," + red + "}"}};
    // clang-format on
    for (const auto& [options, failure, curves] : cases) {
        SCOPED_TRACE(options);
        Curves record = Make("rgb-curve=0,1:red-curve=0,1");
        EXPECT_EQ(Failure([&] { record.Deserialize(options); }), failure);
        EXPECT_EQ(Json(record), curves);
    }
}

TEST(ColorCurves, ComparisonIsSizeTypeToleratedPointsAndExactDomains)
{
    // clang-format off
    const std::vector<std::tuple<const char*, const char*, bool>> cases{
        {"", "", true}, {"", "rgb-curve=0,1", false}, {"red-curve=0,1", "green-curve=0,1", false},
        {"red-curve=0.5,1:red-domain=0.25,0.75", "red-curve=0.50005,1:red-domain=0.75,0.25", true},
        {"red-curve=0.5,1:red-domain=0.25,0.75", "red-curve=0.5001,1:red-domain=0.25,0.75", false},
        {"red-curve=0.5,1:red-domain=0.25,0.75", "red-curve=0.5,1:red-domain=0.25,0.75000006", false}, // one ulp
        {"red-curve=0.5,1:red-domain=0.25,0.75", "red-curve=0.5,1,1:red-domain=0.25,0.75", false},
        {"red-curve=0,1:rgb-curve=0,1", "red-curve=0,1", false}};
    // clang-format on
    for (const auto& [a, b, equal] : cases) {
        SCOPED_TRACE(std::string(a) + " against " + b);
        EXPECT_EQ(Make(a) == Make(b), equal);
        EXPECT_EQ(Make(b) == Make(a), equal);
        EXPECT_EQ(Make(a).IsEqualTo(Make(b)), equal);
    }
    EXPECT_THROW((void)Curves().IsEqualTo(SettingsEffectColorBalance()), std::bad_cast);
}

TEST(ColorCurves, ComparisonWalksBothMapsSideBySide)
{
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
        Curves record;
        for (const auto type : types) {
            record.SetCurve(type, {0.0F, 1.0F}, {0.0F, static_cast<float>(type) / 4.0F});
        }
        records.push_back(record);
    } while (std::next_permutation(types.begin(), types.end()));
    int unequalPairs = 0;
    for (const auto& a : records) {
        for (const auto& b : records) {
            const bool sameOrder = order(a) == order(b);
            EXPECT_EQ(a == b, sameOrder);
            EXPECT_EQ(a.IsEqualTo(b), sameOrder);
            unequalPairs += sameOrder ? 0 : 1;
        }
    }
#if defined(__GLIBCXX__)
    // libstdc++ iterates these maps in the reverse order of insertion, so the same curves set in
    // another order compare unequal.
    EXPECT_GT(unequalPairs, 0);
#else
    (void)unequalPairs;
#endif
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
