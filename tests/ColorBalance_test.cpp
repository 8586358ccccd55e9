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
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;

namespace {

using Balance = SettingsEffectColorBalance;
using Chroma = SettingsEffectBalanceChroma;

// The exact classes of the conversion failures as ZorvanTest::ThrownType names them.
const char* const kNone = "nothing";
const char* const kInvalid = typeid(std::invalid_argument).name();
const char* const kOutOfRange = typeid(std::out_of_range).name();

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
        {INT_MIN, 0.0, -100, 0.1, -100},          {-100, 0.0, -100, 0.1, -100},
        {-99, 0.01, -99, 0.10900000000000001, -99}, {-50, 0.5, -50, 0.55, -49}, // -49.99999999999999
        {-1, 0.99, -1, 0.9910000000000001, -1},    {0, 1.0, 0, 1.0, 0},
        {1, 1.02, 1, 1.09, 1},                     {2, 1.04, 2, 1.18, 1},
        {33, 1.6600000000000001, 33, 3.97, 33},    {100, 3.0, 100, 10.0, 100},
        {101, 3.0, 100, 10.0, 100},                {INT_MAX, 3.0, 100, 10.0, 100}};
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
    const auto check = [](void (Balance::*set)(int), double (Balance::*get)() const,
                          const std::vector<std::pair<int, double>>& cases) {
        for (const auto& [slider, expected] : cases) {
            Balance record;
            (record.*set)(slider);
            EXPECT_EQ((record.*get)(), expected) << slider;
        }
    };
    // clang-format off
    check(&Balance::SetBrightness, &Balance::GetFFBrightness, {{-254, -0.996078431372549}, {0, 0.0},
        {1, 0.0039215686274509665}, {256, 1.0}, {INT_MIN, -1.0}, {INT_MAX, 1.0}});
    check(&Balance::SetContrast, &Balance::GetFFContrast, {{-126, 0.007874015748031496}, {0, 1.0},
        {63, 1.4960629921259843}, {-128, 0.0}, {128, 2.0}});
    check(&Balance::SetWeight, &Balance::GetFFGammaWeight, {{1, 0.01}, {33, 0.33}, {101, 1.0}, {-1, 0.0}});
    // clang-format on
}

TEST(ColorBalance, EmptyLumaAndChroma)
{
    const double threeUp = 1.0 + 3.0 * std::ldexp(1.0, -52);
    // Record, then IsEmpty, IsLumaChanged, IsChromaChanged, IsSaturationSet, IsGammaSet. One ulp
    // from 1 is neutral, three are not.
    constexpr bool T = true, F = false;
    // clang-format off
    const std::vector<std::tuple<Balance, bool, bool, bool, bool, bool>> cases{
        {Make(1.0, 1.0), T, F, F, F, F},               {Make(1.0, 1.0, "hue=10"), F, F, T, F, F},
        {Make(1.0, 1.0, "weight=50"), T, F, F, F, F},  {Make(1.0, 1.0, "brightness=-1"), F, T, F, F, F},
        {Make(1.0, 1.0, "contrast=1"), F, T, F, F, F}, {Make(1.0, 1.0, "rg=1"), F, T, F, F, F},
        {Make(1.0, 1.0, "gg=-1"), F, T, F, F, F},      {Make(1.0, 1.0, "bg=1"), F, T, F, F, F},
        {Make(1.02, 1.0), F, T, F, T, F},              {Make(1.0, 0.991), F, T, F, F, T},
        {Make(std::nextafter(1.0, 2.0), 1.0), T, F, F, F, F}, {Make(1.0, std::nextafter(1.0, 0.0)), T, F, F, F, F},
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
    const std::vector<std::pair<const char*, int>> cases{
        {"180", 180},    {"-180", -180},      {"190", -170},        {"179", 179},  {"181", -179},
        {"-181", 179},   {"360", 0},          {"-1", -1},           {"540", -180}, {"-540", -180},
        {"190.5", -170}, {"2147483647", 127}, {"-2147483648", -128}};
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(Make(1.0, 1.0, std::string("hue=") + text).GetHue(), expected) << text;
    }
}

TEST(ColorBalance, DeserializeReadsIntKeysInItsOwnOrder)
{
    // Options; the class thrown; the fields after, of the record and of its clone. A colour
    // balance starts from brightness=5:hue=20:weight=4, a chroma balance from highlights 10, 20, 30
    // with the flag off.
    const std::vector<std::tuple<bool, const char*, const char*, const char*>> cases{
        {false, "brightness=-20:contrast=30:saturation=50:hue=45:gamma=-50:rg=7:gg=-8:bg=9:weight=60", kNone,
         "-20 30 2.0 45 0.55 7 -8 9 60"},
        {false, "brightness=1000:contrast=-1000:rg=500:gg=-500:bg=101:weight=250:saturation=150:gamma=-150", kNone,
         "1000 -1000 3.0 20 0.1 500 -500 101 250"}, // only saturation and gamma are clamped
        {false, "brightness=2.7:contrast=1,5:saturation=50.9:gamma=1.99:weight=12abc", kNone,
         "2 1 2.0 20 1.09 0 0 0 12"},
        // Brightness, contrast and saturation are read before hue, whatever the order given.
        {false, "gamma=50:rg=9:hue=-:brightness=6:contrast=7:saturation=50", kInvalid, "6 7 2.0 20 1.0 0 0 0 4"},
        {false, "rg=1:gg=2:bg=3:weight=2147483648", kOutOfRange, "5 0 1.0 20 1.0 1 2 3 4"},
        {true,
         "shadows-red=1:shadows-green=2:shadows-blue=3:midtones-red=4:midtones-green=5:midtones-blue=6:"
         "highlights-red=7:highlights-green=8:highlights-blue=9:preserve-luminosity=1",
         kNone, "1 2 3 4 5 6 7 8 9 true"},
        {true, "preserve-luminosity=2", kNone, "0 0 0 0 0 0 10 20 30 true"},
        {true, "preserve-luminosity=0.9", kNone, "0 0 0 0 0 0 10 20 30 false"}, // std::stoi reads 0
        {true, "highlights-red=7:midtones-red=-:shadows-red=5:preserve-luminosity=1", kInvalid,
         "5 0 0 0 0 0 10 20 30 false"},
        {true, "shadows-red=-5:shadows-green=99999999999:shadows-blue=1", kOutOfRange, "-5 0 0 0 0 0 10 20 30 false"}};
    for (const auto& [chroma, options, failure, fields] : cases) {
        SCOPED_TRACE(options);
        const auto record = Zorvan::SettingsCatalog::Find(chroma ? Chroma::CLASS_ID : Balance::CLASS_ID)->create();
        record->Deserialize(chroma ? "highlights-red=10:highlights-green=20:highlights-blue=30:preserve-luminosity=0"
                                   : "brightness=5:hue=20:weight=4");
        EXPECT_EQ(ZorvanTest::ThrownType([&] { record->Deserialize(options); }), failure);
        EXPECT_EQ(Fields(*record), fields);
        EXPECT_EQ(Fields(*record->Clone()), fields);
        EXPECT_TRUE(record->Clone()->IsEqualTo(*record));
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
        EXPECT_EQ(other.IsEqualTo(base), equal);
    }
    EXPECT_THROW((void)Balance().IsEqualTo(Chroma()), std::bad_cast);
    EXPECT_THROW((void)Chroma().IsEqualTo(Balance()), std::bad_cast);
}

TEST(BalanceChroma, EachSetterAndKeyClampsItsOwnField)
{
    const std::array<void (Chroma::*)(int), 9> setters{
        &Chroma::SetShadowsRed,    &Chroma::SetShadowsGreen,    &Chroma::SetShadowsBlue,
        &Chroma::SetMidtonesRed,   &Chroma::SetMidtonesGreen,   &Chroma::SetMidtonesBlue,
        &Chroma::SetHighlightsRed, &Chroma::SetHighlightsGreen, &Chroma::SetHighlightsBlue};
    for (std::size_t i = 0; i < setters.size(); ++i) {
        for (const auto& [given, stored] :
             std::vector<std::pair<int, int>>{{101, 100}, {100, 100}, {-100, -100}, {-101, -100}}) {
            const std::string option = Chroma::s_params[i] + "=" + std::to_string(given);
            Chroma bySetter;
            (bySetter.*setters[i])(given);
            Chroma byKey;
            byKey.Deserialize(option);
            std::string expected;
            for (std::size_t field = 0; field < setters.size(); ++field) {
                expected += (field == i ? std::to_string(stored) : "0") + " ";
            }
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
