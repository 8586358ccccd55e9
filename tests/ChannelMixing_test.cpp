// Channel mixing and table records, read back through the catalogue's fields in field order:
// 0.1 read as a float prints 0.10000000149011612. The shifts of CalculateShift were worked out
// by hand: 255 / sqrt 2 = 180.31..., 510 / sqrt 2 = 360.62..., 25.5 / sqrt 2 = 18.03...
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cmath>
#include <memory>
#include <stdexcept>
#include <string>
#include <tuple>
#include <typeinfo>
#include <utility>
#include <vector>

#include "Proc/Settings/SettingsEffectAlphaChannelModifier.h"
#include "Proc/Settings/SettingsEffectChannelMixer.h"
#include "Proc/Settings/SettingsEffectColorChannelMixer.h"
#include "Proc/Settings/SettingsEffectLUT.h"
#include "Proc/Settings/SettingsEffectPosterize.h"
#include "Proc/Settings/SettingsEffectSaturation.h"
#include "Proc/Settings/SettingsEffectShiftUV.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;

namespace {

const char* const kNone = "nothing";
const char* const kInvalid = typeid(std::invalid_argument).name();
const char* const kSettings = typeid(boost::wrapexcept<SettingsException>).name();

// The record's fields in field order.
std::string Values(const Settings& s)
{
    nlohmann::ordered_json values = nlohmann::ordered_json::array();
    for (const auto& value : Zorvan::SettingsCatalog::Find(s.GetClassId())->FieldsToJson(s)) {
        values.push_back(value);
    }
    return values.dump();
}

std::shared_ptr<LUT::LUTTable> Table(std::size_t size, float first = 0.0F)
{
    std::vector<std::array<float, 3>> values(size * size * size, {0.5F, 0.5F, 0.5F});
    values.front() = {first, 0.0F, 0.0F};
    return std::make_shared<LUT::LUTTable>(size, values);
}

} // namespace

// Every key lands in its own field; a failure keeps the keys read before it and skips the rest.
TEST(ChannelMixing, KeysConversionsAndOrder)
{
    const std::vector<std::tuple<const char*, const char*, const char*, const char*>> cases{
        {"EffectChannelMixer", "blue-channel=\"0, 0.25, 2\":red-channel=5,0,-5", kNone,
         "[[3.0,0.0,-3.0],[0.0,1.0,0.0],[0.0,0.25,2.0]]"},
        // Four or two numbers leave the row; a trailing comma makes no fourth piece.
        {"EffectChannelMixer", "red-channel=0,1,0,0:green-channel=1,1:blue-channel=1,0,0,", kNone,
         "[[1.0,0.0,0.0],[0.0,1.0,0.0],[1.0,0.0,0.0]]"},
        {"EffectChannelMixer", "red-channel=0,0,1:green-channel=1,,0:blue-channel=1,0,0", kInvalid,
         "[[0.0,0.0,1.0],[0.0,1.0,0.0],[0.0,0.0,1.0]]"},
        {"EffectChannelMixer", "green-channel=1,2,3,-", kInvalid, "[[1.0,0.0,0.0],[0.0,1.0,0.0],[0.0,0.0,1.0]]"},
        {"EffectSaturation", "s=0.1:a=0.5", kNone, "[0.10000000149011612,true]"},
        {"EffectShiftLuma", "highlights=0.5:shadows=-0.25", kNone, "[-0.25,0.5]"},
        {"EffectShiftUV", "shiftMG=0.5:shiftBR=1,5", kNone, "[1.0,0.5]"},
        {"$$EffectInvert$$", "intensity=0.5", kNone, "[0.5]"},
        {"$$Effect_Retro_Colors$$", "type=2.9:intensity=1", kNone, "[2,1.0]"},
        {"EffectAlphaChannelModifier", "additional_multiplier=0.5:power_scale=2", kNone, "[2.0,0.5]"},
        {"EffectAlphaChannelModifier", "additional_multiplier=0.5:power_scale=-1", kSettings, "[-1.0,1.0]"},
        {"EffectAlphaChannelModifier", "additional_multiplier=0.5:power_scale=-0", kNone, "[-0.0,0.5]"},
        {"EFFECT_POSTERIZE", "is_pal=2:seed=-7:colorsNumber=4:intensity=0.5", kNone, "[4,true,-7,0.5]"},
        {"EFFECT_POSTERIZE", "seed=5:is_pal=1:intensity=2:colorsNumber=3", kSettings, "[3,false,0,0.0]"},
        {"EFFECT_POSTERIZE", "seed=5:colorsNumber=-1", kSettings, "[0,false,0,0.0]"},
        {"EffectLUT", "mode=2:table=1", kNone, "[null,0]"}};
    for (const auto& [id, options, failure, values] : cases) {
        SCOPED_TRACE(options);
        const auto record = Zorvan::SettingsCatalog::Find(id)->create();
        EXPECT_EQ(ZorvanTest::ThrownType([&] { record->Deserialize(options); }), failure);
        EXPECT_EQ(Values(*record), values);
        EXPECT_EQ(Values(*record->Clone()), values);
    }
}

TEST(ChannelMixing, RefusedValuesKeepTheirTexts)
{
    const std::string colors = "'colorsNumber' must be equal or greater then 0";
    const std::string intensity = "'intensity' must be corespondent [ 0.0 <= intensivity <= 1.0 ]";
    SettingsEffectPosterize posterize;
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { posterize.SetColorsNumber(-1); }), colors);
    for (const float bad : {-0.001F, 1.001F, NAN}) {
        EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { posterize.SetIntensity(bad); }), intensity);
    }
    posterize.SetIntensity(1.0F);
    posterize.SetColorsNumber(0); // accepted, and empty
    EXPECT_TRUE(posterize.IsEmpty());
    posterize.SetColorsNumber(1);
    EXPECT_FALSE(posterize.IsEmpty());
    posterize.SetIntensity(0.0F);
    EXPECT_TRUE(posterize.IsEmpty());

    SettingsEffectAlphaChannelModifier alpha;
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { alpha.Deserialize("power_scale=-1"); }),
              "Invalid power_scale parameter. Must be greater or equal zero.");
    alpha.SetPowerScale(-2.0); // the setter does not check
    EXPECT_NO_THROW(alpha.Deserialize("additional_multiplier=2"));

    SettingsEffectLUT lut;
    EXPECT_EQ(ZorvanTest::FormADescription<EffectException>(
                  [&] { lut.SetMode(static_cast<SettingsEffectLUT::InterpolateMode>(3)); }),
              "Invalid interpolate mode");
    EXPECT_EQ(ZorvanTest::FormADescription<EffectException>(
                  [&] { lut.SetMode(static_cast<SettingsEffectLUT::InterpolateMode>(-1)); }),
              "Invalid interpolate mode");
    lut.SetMode(SettingsEffectLUT::InterpolateMode::Tetrahedral);
    EXPECT_EQ(Values(lut), "[null,2]");
}

TEST(ChannelMixing, LutEqualityWithAndWithoutTables)
{
    using Mode = SettingsEffectLUT::InterpolateMode;
    const auto make = [](std::shared_ptr<LUT::LUTTable> table, Mode mode) {
        SettingsEffectLUT record;
        record.SetTable(std::move(table));
        record.SetMode(mode);
        return record;
    };
    const auto shared = Table(2);
    const std::vector<std::tuple<SettingsEffectLUT, SettingsEffectLUT, bool>> cases{
        {make(nullptr, Mode::Nearest), make(nullptr, Mode::Tetrahedral), true}, // modes unread without tables
        {make(shared, Mode::Nearest), make(nullptr, Mode::Nearest), false},
        {make(nullptr, Mode::Nearest), make(shared, Mode::Nearest), false},
        {make(shared, Mode::Trilinear), make(Table(2), Mode::Trilinear), true},
        {make(shared, Mode::Trilinear), make(shared, Mode::Nearest), false},
        {make(shared, Mode::Nearest), make(Table(2, 0.25F), Mode::Nearest), false},
        {make(Table(1), Mode::Nearest), make(Table(1), Mode::Nearest), true}};
    for (const auto& [left, right, equal] : cases) {
        SCOPED_TRACE(Values(left) + " " + Values(right));
        EXPECT_EQ(left == right, equal);
        EXPECT_EQ(left != right, !equal);
        EXPECT_EQ(left.IsEqualTo(right), equal);
    }
    // Empty without a table or with one that is not a full cube; clones share the table.
    const std::vector<std::pair<std::shared_ptr<LUT::LUTTable>, bool>> empty{
        {nullptr, true},
        {Table(1), true},
        {std::make_shared<LUT::LUTTable>(2, std::vector<std::array<float, 3>>(7)), true},
        {shared, false}};
    for (const auto& [table, isEmpty] : empty) {
        EXPECT_EQ(make(table, Mode::Nearest).IsEmpty(), isEmpty) << Values(make(table, Mode::Nearest));
    }
    const auto clone = make(shared, Mode::Nearest).Clone();
    EXPECT_EQ(dynamic_cast<const SettingsEffectLUT&>(*clone).GetTable(), shared);
    EXPECT_EQ(Values(*clone), "[{\"size\":2,\"valid\":true},0]");
}

TEST(ChannelMixing, ShiftUVTurnsBothAxesAndRoundsUp)
{
    // Blue-red, magenta-green; the pair; IsEmpty. A subnormal shift counts as zero.
    const std::vector<std::tuple<float, float, std::pair<int, int>, bool>> cases{
        {0.0F, 0.0F, {0, 0}, true},
        {1e-45F, -1e-45F, {0, 1}, true}, // empty, yet the ceil of a tiny difference
                                         // is 1
        {0.1F, 0.0F, {-18, 19}, false},  // a rounds to 25.5 in float
        {1.0F, 1.0F, {-360, 0}, false},
        {0.5F, -0.5F, {0, 181}, false},
        {-1.0F, 0.0F, {181, -180}, false},
        {0.0F, 2.0F, {-360, -360}, false},
        {1e30F, 0.0F, {INT_MIN, INT_MAX}, false}};
    for (const auto& [blueRed, magentaGreen, shift, empty] : cases) {
        SCOPED_TRACE(std::to_string(blueRed) + " " + std::to_string(magentaGreen));
        SettingsEffectShiftUV record;
        record.SetShiftBlueRed(blueRed);
        record.SetShiftMagentaGreen(magentaGreen);
        EXPECT_EQ(record.CalculateShift(), shift);
        EXPECT_EQ(record.IsEmpty(), empty);
    }
}

TEST(ChannelMixing, EmptinessAndEqualityAgainstNeutralRecords)
{
    // The saturation stage is never left out, and its flag takes no part in the comparison.
    SettingsEffectSaturation flagged;
    flagged.SetFlag(true);
    EXPECT_FALSE(flagged.IsEmpty() || SettingsEffectSaturation().IsEmpty());
    EXPECT_TRUE(flagged.IsEqualTo(SettingsEffectSaturation()));

    SettingsEffectChannelMixer mixer;
    mixer.Deserialize("red-channel=1,0,0");
    EXPECT_TRUE(mixer.IsEmpty());
    mixer.SetToGreenChannel(SettingsEffectChannelMixer::SourceChannel::Blue, -7.0F);
    EXPECT_EQ(Values(mixer), "[[1.0,0.0,0.0],[0.0,1.0,-3.0],[0.0,0.0,1.0]]");
    EXPECT_FALSE(mixer.IsEmpty() || mixer == SettingsEffectChannelMixer());

    // Element, value; empty; equal to the identity. The tolerance is strict: 0.001 is too far.
    const std::vector<std::tuple<std::size_t, double, bool>> cases{
        {0, 1.0005, true},  {15, 0.9991, true}, {1, 0.0009, true}, {1, 0.001, false},
        {4, -0.001, false}, {10, 1.002, false}, {5, NAN, false}};
    for (const auto& [index, value, close] : cases) {
        SettingsEffectColorChannelMixer::Matrix matrix = SettingsEffectColorChannelMixer().GetMatrix();
        matrix[index] = value;
        SettingsEffectColorChannelMixer record;
        record.SetMatrix(matrix);
        EXPECT_EQ(record.IsEmpty(), close) << index << " " << value;
        EXPECT_EQ(record.IsEqualTo(SettingsEffectColorChannelMixer()), close) << index << " " << value;
    }
}
