// Expected doubles were worked out with python3 from the formulas (the same IEEE double
// operations in the same order), not by running this code.
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cmath>
#include <stdexcept>
#include <string>
#include <tuple>
#include <typeinfo>
#include <utility>
#include <vector>

#include "Proc/Settings/SettingsEffectBalanceChroma.h"
#include "Proc/Settings/SettingsEffectColorBalance.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;

namespace {

using Balance = SettingsEffectColorBalance;
using Chroma = SettingsEffectBalanceChroma;

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

// The fields in declared order as the catalogue reads them, separated by spaces.
std::string Fields(const Settings& record)
{
    std::string text;
    for (const auto& value : Zorvan::SettingsCatalog::Find(record.GetClassId())->FieldsToJson(record)) {
        text += (text.empty() ? "" : " ") + value.dump();
    }
    return text;
}

// The stored saturation and gamma first, then the options.
Balance Make(double saturation, double gamma, const std::string& options = "")
{
    Balance record;
    record.SetFFSaturation(saturation);
    record.SetFFGamma(gamma);
    record.Deserialize(options);
    return record;
}

} // namespace

TEST(ColorBalance, SaturationAndGammaSlidersMapOnTwoSlopes)
{
    // Slider; saturation stored and read back; gamma stored and read back (toward zero).
    // clang-format off
    const std::vector<std::tuple<int, double, int, double, int>> cases{
        {INT_MIN, 0.0, -100, 0.1, -100},           {-101, 0.0, -100, 0.1, -100},
        {-100, 0.0, -100, 0.1, -100},              {-99, 0.01, -99, 0.10900000000000001, -99},
        {-75, 0.25, -75, 0.325, -75},              {-50, 0.5, -50, 0.55, -49}, // -49.99999999999999
        {-33, 0.67, -33, 0.7030000000000001, -32}, {-1, 0.99, -1, 0.9910000000000001, -1},
        {0, 1.0, 0, 1.0, 0},                       {1, 1.02, 1, 1.09, 1},
        {2, 1.04, 2, 1.18, 1},                     {25, 1.5, 25, 3.25, 25},
        {33, 1.6600000000000001, 33, 3.97, 33},    {50, 2.0, 50, 5.5, 50},
        {75, 2.5, 75, 7.75, 75},                   {99, 2.98, 99, 9.91, 99},
        {100, 3.0, 100, 10.0, 100},                {101, 3.0, 100, 10.0, 100},
        {INT_MAX, 3.0, 100, 10.0, 100}};
    // clang-format on
    using Channel = std::pair<void (Balance::*)(int), double (Balance::*)() const>;
    const std::array<Channel, 3> channels{Channel{&Balance::SetRedGamma, &Balance::GetFFGammaRed},
                                          Channel{&Balance::SetGreenGamma, &Balance::GetFFGammaGreen},
                                          Channel{&Balance::SetBlueGamma, &Balance::GetFFGammaBlue}};
    for (const auto& [slider, saturation, saturationBack, gamma, gammaBack] : cases) {
        SCOPED_TRACE(slider);
        Balance record;
        record.SetSaturation(slider);
        record.SetGamma(slider);
        EXPECT_EQ(record.GetFFSaturation(), saturation);
        EXPECT_EQ(record.GetSaturation(), saturationBack);
        EXPECT_EQ(record.GetFFGamma(), gamma);
        EXPECT_EQ(record.GetGamma(), gammaBack);
        // Each channel gamma takes the same map from its own slider; the other two stay 1.
        for (const auto& [set, get] : channels) {
            Balance channel;
            (channel.*set)(slider);
            EXPECT_EQ((channel.*get)(), gamma);
            EXPECT_EQ(channel.GetFFGammaRed() * channel.GetFFGammaGreen() * channel.GetFFGammaBlue(), gamma);
        }
    }
    // Factors stored directly are clamped as the sliders' results are, NaN apart; read back as
    // sliders, -99.5, 49.95 and 16.67 lean toward zero and NaN gives 0.
    // clang-format off
    const std::vector<std::tuple<double, double, const char*, int, int>> stored{
        {0.005, 2.5, "0 0 0.005 0 2.5 0 0 0 0", -99, 16}, {1.999, 0.1, "0 0 1.999 0 0.1 0 0 0 0", 49, -100},
        {5.0, 11.0, "0 0 3.0 0 10.0 0 0 0 0", 100, 100}, {-1.0, 0.0, "0 0 0.0 0 0.1 0 0 0 0", -100, -100},
        {NAN, NAN, "0 0 null 0 null 0 0 0 0", 0, 0}};
    // clang-format on
    for (const auto& [saturation, gamma, fields, saturationSlider, gammaSlider] : stored) {
        const Balance record = Make(saturation, gamma);
        EXPECT_EQ(Fields(record), fields);
        EXPECT_EQ(record.GetSaturation(), saturationSlider) << saturation;
        EXPECT_EQ(record.GetGamma(), gammaSlider) << gamma;
    }
}

TEST(ColorBalance, FilterValuesAreDoubleDivisionsClampedLast)
{
    using Setter = void (Balance::*)(int);
    using Getter = double (Balance::*)() const;
    const auto check = [](Setter set, Getter get, const std::vector<std::pair<int, double>>& cases) {
        for (const auto& [slider, expected] : cases) {
            Balance record;
            (record.*set)(slider);
            EXPECT_EQ((record.*get)(), expected) << slider;
        }
    };
    // clang-format off
    check(&Balance::SetBrightness, &Balance::GetFFBrightness, {{-255, -1.0}, {-254, -0.996078431372549}, {0, 0.0},
        {1, 0.0039215686274509665}, {255, 1.0}, {-256, -1.0}, {256, 1.0}, {INT_MIN, -1.0}, {INT_MAX, 1.0}});
    check(&Balance::SetContrast, &Balance::GetFFContrast, {{-127, 0.0}, {-126, 0.007874015748031496}, {0, 1.0},
        {63, 1.4960629921259843}, {127, 2.0}, {-128, 0.0}, {128, 2.0}, {INT_MIN, 0.0}, {INT_MAX, 2.0}});
    check(&Balance::SetWeight, &Balance::GetFFGammaWeight, {{0, 0.0}, {1, 0.01}, {33, 0.33}, {100, 1.0}, {101, 1.0},
        {INT_MAX, 1.0}, {-1, 0.0}, {INT_MIN, 0.0}});
    // clang-format on
}

TEST(ColorBalance, EmptyLumaAndChroma)
{
    const double up = std::nextafter(1.0, 2.0);
    const double down = std::nextafter(1.0, 0.0);
    const double threeUp = 1.0 + 3.0 * std::ldexp(1.0, -52);
    // Record, then IsEmpty, IsLumaChanged, IsChromaChanged, IsSaturationSet, IsGammaSet. One ulp
    // from 1 is neutral, three are not.
    const bool T = true;
    const bool F = false;
    // clang-format off
    const std::vector<std::tuple<Balance, bool, bool, bool, bool, bool>> cases{
        {Make(1.0, 1.0), T, F, F, F, F},               {Make(1.0, 1.0, "hue=10"), F, F, T, F, F},
        {Make(1.0, 1.0, "weight=50"), T, F, F, F, F},  {Make(1.0, 1.0, "brightness=-1"), F, T, F, F, F},
        {Make(1.0, 1.0, "contrast=1"), F, T, F, F, F}, {Make(1.0, 1.0, "rg=1"), F, T, F, F, F},
        {Make(1.0, 1.0, "gg=-1"), F, T, F, F, F},      {Make(1.0, 1.0, "bg=1"), F, T, F, F, F},
        {Make(1.02, 1.0), F, T, F, T, F},              {Make(1.0, 0.991), F, T, F, F, T},
        {Make(up, 1.0), T, F, F, F, F},                {Make(down, 1.0), T, F, F, F, F},
        {Make(1.0, up), T, F, F, F, F},                {Make(1.0, down), T, F, F, F, F},
        {Make(threeUp, 1.0), F, T, F, T, F},           {Make(1.0, threeUp), F, T, F, F, T},
        {Make(NAN, NAN), F, T, F, T, T}};
    // clang-format on
    for (const auto& [record, empty, luma, chroma, saturation, gamma] : cases) {
        SCOPED_TRACE(Fields(record));
        EXPECT_EQ(record.IsEmpty(), empty);
        EXPECT_EQ(record.IsLumaChanged(), luma);
        EXPECT_EQ(record.IsChromaChanged(), chroma);
        EXPECT_EQ(record.IsSaturationSet(), saturation);
        EXPECT_EQ(record.IsGammaSet(), gamma);
    }
}

TEST(ColorBalance, HueIsNormalisedExceptExactly180)
{
    // clang-format off
    const std::vector<std::pair<const char*, int>> cases{
        {"180", 180}, {"-180", -180}, {"190", -170}, {"360", 0}, {"0", 0}, {"1", 1}, {"-1", -1}, {"179", 179},
        {"181", -179}, {"-179", -179}, {"-181", 179}, {"359", -1}, {"361", 1}, {"-360", 0}, {"-361", -1},
        {"540", -180}, {"-540", -180}, {"720", 0}, {"900", -180}, {"-900", -180}, {"190.5", -170},
        {"2147483647", 127}, {"-2147483648", -128}, {"2147483646", 126}, {"-2147483647", -127}};
    // clang-format on
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(Make(1.0, 1.0, std::string("hue=") + text).GetHue(), expected) << text;
    }
}

TEST(ColorBalance, DeserializeReadsNineIntKeysInItsOwnOrder)
{
    // Options; the conversion failure; the fields after, of the record and of its clone. Each case
    // starts from brightness=5:hue=20:weight=4.
    // clang-format off
    const std::vector<std::tuple<const char*, const char*, const char*>> cases{
        {"brightness=-20:contrast=30:saturation=50:hue=45:gamma=-50:rg=7:gg=-8:bg=9:weight=60", "",
         "-20 30 2.0 45 0.55 7 -8 9 60"},
        {"brightness=1000:contrast=-1000:rg=500:gg=-500:bg=101:weight=250:saturation=150:gamma=-150", "",
         "1000 -1000 3.0 20 0.1 500 -500 101 250"}, // only saturation and gamma are clamped
        {"brightness=2.7:contrast=1,5:saturation=50.9:gamma=1.99:weight=12abc", "", "2 1 2.0 20 1.09 0 0 0 12"},
        {"BRIGHTNESS=3:brightness=4:Hue=-190:hue=9", "", "3 0 1.0 170 1.0 0 0 0 4"},
        {"contrast=-6:unknown=3:bright=7:brightness=abc:weight=+5", "", "5 -6 1.0 20 1.0 0 0 0 4"},
        {"", "", "5 0 1.0 20 1.0 0 0 0 4"},
        // Brightness, contrast and saturation are read before hue, whatever the order given.
        {"gamma=50:rg=9:hue=-:brightness=6:contrast=7:saturation=50", "invalid_argument: stoi",
         "6 7 2.0 20 1.0 0 0 0 4"},
        {"rg=1:gg=2:bg=3:weight=2147483648", "out_of_range: stoi", "5 0 1.0 20 1.0 1 2 3 4"},
        {"contrast=\"5\"", "invalid_argument: stoi", "5 0 1.0 20 1.0 0 0 0 4"}};
    // clang-format on
    for (const auto& [options, failure, fields] : cases) {
        SCOPED_TRACE(options);
        Balance record = Make(1.0, 1.0, "brightness=5:hue=20:weight=4");
        EXPECT_EQ(Failure([&] { record.Deserialize(options); }), failure);
        EXPECT_EQ(Fields(record), fields);
        EXPECT_EQ(Fields(*record.Clone()), fields);
        EXPECT_TRUE(record.Clone()->IsEqualTo(record));
    }
}

TEST(ColorBalance, ComparisonIsExactButNearlyEqualForSaturationAndGamma)
{
    // 1.5 and 1.5 + 3 ulps are nearly equal (3 * 2^-52 is within 3.0 * epsilon); 4 ulps are not.
    const double near = 1.5 + 3.0 * std::ldexp(1.0, -52);
    const double far = 1.5 + 4.0 * std::ldexp(1.0, -52);
    const Balance base = Make(1.5, 1.5);
    // clang-format off
    const std::vector<std::pair<Balance, bool>> cases{
        {Make(1.5, 1.5, "brightness=1"), false}, {Make(1.5, 1.5, "contrast=1"), false},
        {Make(1.5, 1.5, "hue=1"), false}, {Make(1.5, 1.5, "rg=1"), false}, {Make(1.5, 1.5, "gg=1"), false},
        {Make(1.5, 1.5, "bg=1"), false}, {Make(1.5, 1.5, "weight=1"), false},
        {Make(near, 1.5), true}, {Make(far, 1.5), false}, {Make(1.5, near), true}, {Make(1.5, far), false}};
    // clang-format on
    for (const auto& [other, equal] : cases) {
        SCOPED_TRACE(Fields(other));
        EXPECT_EQ(base == other, equal);
        EXPECT_EQ(other == base, equal);
        EXPECT_EQ(base.IsEqualTo(other), equal);
    }
}

TEST(BalanceChroma, EachSetterAndKeyClampsItsOwnField)
{
    const std::array<void (Chroma::*)(int), 9> setters{
        &Chroma::SetShadowsRed,    &Chroma::SetShadowsGreen,    &Chroma::SetShadowsBlue,
        &Chroma::SetMidtonesRed,   &Chroma::SetMidtonesGreen,   &Chroma::SetMidtonesBlue,
        &Chroma::SetHighlightsRed, &Chroma::SetHighlightsGreen, &Chroma::SetHighlightsBlue};
    for (std::size_t i = 0; i < setters.size(); ++i) {
        for (const auto& [given, stored] : std::vector<std::pair<int, int>>{
                 {101, 100}, {100, 100}, {-100, -100}, {-101, -100}, {INT_MAX, 100}, {INT_MIN, -100}}) {
            const std::string option = Chroma::s_params[i] + "=" + std::to_string(given);
            std::string expected;
            for (std::size_t field = 0; field < setters.size(); ++field) {
                expected += (field == i ? std::to_string(stored) : "0") + " ";
            }
            Chroma bySetter;
            (bySetter.*setters[i])(given);
            Chroma byKey;
            byKey.Deserialize(option);
            EXPECT_EQ(Fields(bySetter), expected + "true") << option;
            EXPECT_EQ(Fields(byKey), expected + "true") << option;
            EXPECT_FALSE(byKey.IsEmpty() || byKey == Chroma()) << option;
        }
    }
    Chroma record;
    record.SetShadows({150, -150, 5});
    record.SetMidtones({-7, 1000, -1000});
    record.SetHighlights({INT_MIN, 99, INT_MAX});
    EXPECT_EQ(Fields(record), "100 -100 5 -7 100 -100 -100 99 100 true");
    // The flag takes part in the comparison but not in IsEmpty.
    record = Chroma();
    record.SetPreserveLuminosity(false);
    EXPECT_TRUE(record.IsEmpty());
    EXPECT_FALSE(Chroma().IsEqualTo(record));
}

TEST(BalanceChroma, DeserializeReadsTenKeys)
{
    EXPECT_EQ(Chroma::s_params,
              (std::vector<std::string>{"shadows-red", "shadows-green", "shadows-blue", "midtones-red",
                                        "midtones-green", "midtones-blue", "highlights-red", "highlights-green",
                                        "highlights-blue", "preserve-luminosity"}));
    // Options; the conversion failure; the fields after, of the record and of its clone. Each case
    // starts from highlights 10, 20, 30 and the flag off.
    // clang-format off
    const std::vector<std::tuple<const char*, const char*, const char*>> cases{
        {"shadows-red=1:shadows-green=2:shadows-blue=3:midtones-red=4:midtones-green=5:midtones-blue=6:"
         "highlights-red=7:highlights-green=8:highlights-blue=9:preserve-luminosity=1", "", "1 2 3 4 5 6 7 8 9 true"},
        {"SHADOWS-RED=2.7:midtones-blue=-3,9:unknown=5", "", "2 0 0 0 0 -3 10 20 30 false"},
        {"preserve-luminosity=2", "", "0 0 0 0 0 0 10 20 30 true"},
        {"preserve-luminosity=-1", "", "0 0 0 0 0 0 10 20 30 true"},
        {"preserve-luminosity=0.9", "", "0 0 0 0 0 0 10 20 30 false"}, // std::stoi reads 0
        {"highlights-red=7:midtones-red=-:shadows-red=5:preserve-luminosity=1", "invalid_argument: stoi",
         "5 0 0 0 0 0 10 20 30 false"},
        {"shadows-red=-5:shadows-green=99999999999:shadows-blue=1", "out_of_range: stoi",
         "-5 0 0 0 0 0 10 20 30 false"}};
    // clang-format on
    for (const auto& [options, failure, fields] : cases) {
        SCOPED_TRACE(options);
        Chroma record;
        record.SetHighlights({10, 20, 30});
        record.SetPreserveLuminosity(false);
        EXPECT_EQ(Failure([&] { record.Deserialize(options); }), failure);
        EXPECT_EQ(Fields(record), fields);
        EXPECT_EQ(Fields(*record.Clone()), fields);
        EXPECT_TRUE(record.Clone()->IsEqualTo(record));
    }
}

TEST(ColorBalance, CatalogueNamesTheFieldsAndForeignComparisonThrows)
{
    const auto json = [](const Settings& record) {
        return Zorvan::SettingsCatalog::Find(record.GetClassId())->FieldsToJson(record).dump();
    };
    EXPECT_EQ(json(Balance()), R"({"brightness":0,"contrast":0,"saturation":1.0,"hue":0,"gamma":1.0,"redGamma":0,)"
                               R"("greenGamma":0,"blueGamma":0,"weight":0})");
    EXPECT_EQ(json(Chroma()), R"({"shadowsRed":0,"shadowsGreen":0,"shadowsBlue":0,"midtonesRed":0,"midtonesGreen":0,)"
                              R"("midtonesBlue":0,"highlightsRed":0,"highlightsGreen":0,"highlightsBlue":0,)"
                              R"("preserveLuminosity":true})");
    EXPECT_THROW((void)Balance().IsEqualTo(Chroma()), std::bad_cast);
    EXPECT_THROW((void)Chroma().IsEqualTo(Balance()), std::bad_cast);
}
