// Colour blending, keying and tinting records, read back as the values of the catalogue's fields
// in field order, a base colour's members sorted by name: 0.1 read as a float prints
// 0.10000000149011612. Packed colours are numbers with red in the low byte; 128 / 255 in float
// was worked out with python3 (float32 through struct).
#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "Proc/Settings/SettingsEffectColorBlender.h"
#include "Proc/Settings/SettingsEffectColorMixExchange.h"
#include "RecordSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::Values;

namespace {

enum class Fails { No, Invalid, Effect, Number };

const char* const kBlender = "$$EffectColorBlender$$";

} // namespace

TEST(ColorBlender, EverySpellingInAnyLetterCase)
{
    const std::vector<std::pair<const char*, int>> spellings{
        {"DeFault", 0},     {"NORMAL", 0},      {"Src-Over", 0},     {"source-OVER", 0},    {"darKen", 1},
        {"Multiply", 2},    {"color-BURN", 3},  {"Linear-Burn", 4},  {"DARKER-color", 5},   {"lighteN", 6},
        {"ScReEn", 7},      {"Color-Dodge", 8}, {"linear-DODGE", 9}, {"Lighter-Color", 10}, {"OVERLAY", 11},
        {"Soft-Light", 12}, {"hard-LIGHT", 13}, {"Vivid-light", 14}, {"LINEAR-light", 15},  {"Pin-Light", 16},
        {"HARD-MIX", 17},   {"Difference", 18}, {"exclusIon", 19},   {"SUBTRACT", 20},      {"Divide", 21},
        {"HUE", 22},        {"Saturation", 23}, {"COLOR", 24},       {"Luminosity", 25},
    };
    for (const auto& [spelling, mode] : spellings) {
        SettingsEffectColorBlender record(0, 0, 1.0F, static_cast<SettingsEffectColorBlender::BlendMode>(99));
        record.Deserialize(std::string("blendMode=") + spelling);
        EXPECT_EQ(static_cast<int>(record.GetBlendMode()), mode) << spelling;
    }
}

// A failing key shows which keys were read before it. Base colours are checked red, green,
// blue, alpha, and a refused one leaves the earlier colour.
TEST(ColorBlender, KeysChecksAndMessages)
{
    using enum Fails;
    const struct {
        std::string before;
        std::string options;
        Fails fails;
        const char* values;
        const char* message = "";
    } cases[] = {
        {"", "alpha=255:intensity=0.2", No, "[0,0,1.0,0,null]"},
        {"", "alpha=128:blendMode=\"hard-mix\"", No, "[0,0,0.501960813999176,17,null]"},
        {"", "x=5:alpha=300:y=3", Invalid, "[5,3,1.0,0,null]", "Invalid intensity value"},
        {"", "intensity=1.5:alpha=0", Invalid, "[0,0,1.0,0,null]", "Invalid intensity value"},
        {"", "x=-2:alpha=-1", Invalid, "[-2,0,1.0,0,null]", "Invalid intensity value"},
        {"", "x=1:blendMode=soft light:r=1:g=1:b=1:a=1", Effect, "[1,0,1.0,0,null]", "Unknown blend mode: soft light"},
        {"", "y=1:x=+1", Number, "[0,0,1.0,0,null]", "The '+1' value of the 'x' option is not a number"},
        {"r=1:g=2:b=3:a=4", "r=7:g=0:b=0", No, "[0,0,1.0,0,{\"alpha\":4.0,\"blue\":3.0,\"green\":2.0,\"red\":1.0}]"},
        {"", "r=7:g=0:b=0:a=0.1", No,
         "[0,0,1.0,0,{\"alpha\":0.10000000149011612,\"blue\":0.0,\"green\":0.0,\"red\":7.0}]"},
        {"", "a=-1:b=-1:g=-1:r=-0.1", Invalid, "[0,0,1.0,0,null]", "Invalid red base color component"},
        {"", "r=0:g=-1:b=-1:a=-1", Invalid, "[0,0,1.0,0,null]", "Invalid green base color component"},
        {"", "r=0:g=0:b=-1:a=-1", Invalid, "[0,0,1.0,0,null]", "Invalid blue base color component"},
        {"r=1:g=2:b=3:a=4", "r=0:g=0:b=0:a=-1", Invalid,
         "[0,0,1.0,0,{\"alpha\":4.0,\"blue\":3.0,\"green\":2.0,\"red\":1.0}]", "Invalid alpha base color component"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.options);
        SettingsEffectColorBlender record;
        record.Deserialize(c.before);
        const auto apply = [&] { record.Deserialize(c.options); };
        if (c.fails == Invalid) {
            EXPECT_EQ(ZorvanTest::FormBDescription<std::invalid_argument>(apply), c.message);
        } else if (c.fails == Effect) {
            EXPECT_EQ(ZorvanTest::FormADescription<EffectException>(apply), c.message);
        } else if (c.fails == Number) {
            EXPECT_EQ(ZorvanTest::FormBDescription<std::invalid_argument>(apply, false), c.message);
        } else {
            apply();
        }
        EXPECT_EQ(Values(record), c.values);
    }
}

TEST(ColorBlender, EmptinessEqualityAndTheConstructorsCheck)
{
    using Mode = SettingsEffectColorBlender::BlendMode;
    SettingsEffectColorBlender blender(1, 2, 0.0F, Mode::Hue);
    blender.SetBaseColor(ColorF{1.0F, 1.0F, 1.0F, 1.0F});
    EXPECT_TRUE(blender.IsEmpty());
    blender.SetIntensity(1e-40F); // no tolerance: a subnormal intensity still blends
    EXPECT_FALSE(blender.IsEmpty());

    SettingsEffectColorBlender other(1, 2, 1e-40F, Mode::Hue);
    EXPECT_FALSE(blender.IsEqualTo(other)); // one base colour absent
    other.SetBaseColor(ColorF{1.0F, 1.0F, 1.0F, 2.0F});
    EXPECT_FALSE(blender.IsEqualTo(other));
    other.SetBaseColor(ColorF{1.0F, 1.0F, 1.0F, 1.0F});
    EXPECT_TRUE(blender.IsEqualTo(other));
    other.SetBaseColor(std::nullopt);
    EXPECT_EQ(Values(other), "[1,2,9.99994610111476e-41,22,null]");

    EXPECT_EQ(ZorvanTest::FormBDescription<std::invalid_argument>(
                  [] { SettingsEffectColorBlender(0, 0, -0.5F, Mode::Normal); }),
              "Invalid intensity value");
}

// Chromakey writes all its keys back together; the colour-select record changes its colour only
// when all three bytes are given; the exchange colour is stored once, after its three keys.
TEST(ColorKeyingAndTinting, PartialAndAllOrNothingReads)
{
    using enum Fails;
    const struct {
        const char* id;
        std::string before;
        std::string options;
        Fails fails;
        const char* values;
    } cases[] = {
        {"$$Effect_Chromakey$$", "angle=1", "angle=5:noise=-", Invalid, "[1,0.0,0.0,0.0,0]"},
        {"$$Effect_Chromakey$$", "", "noise=0.1:r=256:g=-1:b=7", No, "[0,0.10000000149011612,0.0,0.0,524032]"},
        {"$$Effect_Chromakey$$", "r=256:g=-1:b=7", "g=1:transparency=2", No, "[0,0.0,0.0,2.0,459008]"},
        {"$$EffectColorSelect$$", "r=1:g=2:b=3", "r=9:g=9:noise=0.1", No, "[0,0.1,0.0,0.0,197121,0.0]"},
        {"$$EffectColorSelect$$", "", "r=300:g=2:b=3:angle=4,5", No, "[4,0.0,0.0,0.0,197164,0.0]"},
        {"$$EffectColorMixExchange$$", "red=9", "intensity=0.5:red=1:green=-", Invalid, "[9,0.5]"},
        {"$$EffectColorMixExchange$$", "", "blue=1:green=128:red=511", No, "[98559,0.0]"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.options);
        auto record = Zorvan::SettingsCatalog::Find(c.id)->create();
        record->Deserialize(c.before);
        if (c.fails == Invalid) {
            EXPECT_THROW(record->Deserialize(c.options), std::invalid_argument);
        } else {
            record->Deserialize(c.options);
        }
        EXPECT_EQ(Values(*record), c.values);
    }
}

// Channels are scaled one by one and combined without masking, so they spill upwards.
TEST(ColorMixExchange, ExchangeColorScalesEachByte)
{
    SettingsEffectColorMixExchange record;
    record.Deserialize("red=255:green=128:blue=1");
    const std::pair<float, Color> cases[] = {{0.5F, 16511U}, {1.0F, 98559U}, {2.0F, 197118U}, {0.0F, 0U}};
    for (const auto& [intensity, expected] : cases) {
        record.SetIntensity(intensity);
        EXPECT_EQ(record.GetExchangeColor(), expected) << intensity;
    }
}
