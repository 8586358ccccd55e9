// Frame geometry records: padding, flips and quarter turns, and the tolerances of their comparisons.
// Sines and cosines were worked out with python3's math module from the same double angles.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <stdexcept>
#include <string>
#include <vector>

#include "Proc/Settings/SettingsEffect360Cylindrical.h"
#include "Proc/Settings/SettingsEffectBorder.h"
#include "Proc/Settings/SettingsEffectCrop.h"
#include "Proc/Settings/SettingsEffectDeshake.h"
#include "Proc/Settings/SettingsEffectDisplayMatrix.h"
#include "Proc/Settings/SettingsEffectFillBlurredBackground.h"
#include "Proc/Settings/SettingsEffectFlip.h"
#include "Proc/Settings/SettingsEffectPad.h"
#include "Proc/Settings/SettingsEffectRotate.h"
#include "Proc/Settings/SettingsEffectTransform.h"
#include "Proc/Settings/SettingsEffectTranspose.h"
#include "TestSupport.h"

using namespace Zorvan::Proc;
using Zorvan::Core::Matrix3x3;
using ZorvanTest::FormBDescription;

namespace {

using Mode = SettingsEffectPad::Mode;
using Rotation = SettingsEffectTranspose::Rotation;

SettingsEffectPad Pad(Mode mode, int red, std::uint32_t gapX, CropInfo crop = {1, 2, 3, 4})
{
    SettingsEffectPad pad(crop, mode);
    pad.Deserialize("r=" + std::to_string(red));
    pad.SetGapX(gapX);
    return pad;
}

SettingsEffectBorder Border(std::int32_t relative, CropInfo sizes, CropInfoF relativeSizes, Color color = 0)
{
    SettingsEffectBorder border;
    border.SetRelative(relative);
    border.SetSizes(sizes);
    border.SetRelativeSizes(relativeSizes);
    border.SetColor(color);
    return border;
}

SettingsEffect360Cylindrical Cylinder(bool enabled, double fi, double tetta = 0.0, double zoom = 0.0)
{
    SettingsEffect360Cylindrical cylinder;
    cylinder.SetEnabled(enabled);
    cylinder.SetParams(fi, tetta, zoom);
    return cylinder;
}

} // namespace

// Margins only when one of the four is not 0 (then all four, a negative one wrapping); the colour
// always, opaque, from the low 8 bits; the gaps when present.
TEST(Pad, OptionsReplaceMarginsAsAGroupAndAlwaysTheColour)
{
    struct Row {
        const char* before;
        const char* options;
        CropInfo crop;
        Color color;
        std::uint32_t gapX;
    };
    const std::vector<Row> rows{
        {"", "gapx=4", {0, 0, 0, 0}, 0xFF000000U, 4},
        {"left=5:r=9", "gapy=2", {5, 0, 0, 0}, 0xFF000000U, 0},
        {"left=5:gapx=3", "left=0:right=0:top=0:bottom=0:r=255", {5, 0, 0, 0}, 0xFF0000FFU, 3},
        {"top=7", "left=-1", {4294967295U, 0, 0, 0}, 0xFF000000U, 0},
        {"", "r=-1:g=256:b=511:gapx=-1", {0, 0, 0, 0}, 0xFFFF00FFU, 4294967295U},
        {"left=1:r=9", "", {1, 0, 0, 0}, 0xFF000009U, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.options);
        SettingsEffectPad pad;
        pad.Deserialize(row.before);
        pad.Deserialize(row.options);
        EXPECT_EQ(pad.GetCrop(), row.crop);
        EXPECT_EQ(pad.GetColor(), row.color);
        EXPECT_EQ(pad.GetGapX(), row.gapX);
    }
    SettingsEffectPad pad;
    pad.Deserialize("mode=7");
    EXPECT_EQ(static_cast<int>(pad.GetMode()), 7);
}

TEST(Pad, ComparisonDependsOnTheMode)
{
    const Mode unknown = static_cast<Mode>(3);
    struct Row {
        SettingsEffectPad a, b;
        const char* result;
    };
    const std::vector<Row> rows{
        {Pad(Mode::Tile, 1, 0), Pad(Mode::Tile, 2, 0), "equal"}, // no gap, so no colour shows
        {Pad(Mode::TileMirrored, 1, 0), Pad(Mode::TileMirrored, 2, 0), "equal"},
        {Pad(Mode::Tile, 1, 5), Pad(Mode::Tile, 2, 5), "different"},
        {Pad(Mode::Tile, 1, 5), Pad(Mode::Tile, 1, 6), "different"},
        {Pad(Mode::Fill, 1, 0), Pad(Mode::Fill, 2, 0), "different"},
        {Pad(Mode::Fill, 1, 5), Pad(Mode::Fill, 1, 6), "equal"}, // gaps are not compared
        {Pad(Mode::Tile, 1, 0), Pad(Mode::TileMirrored, 1, 0), "different"},
        {Pad(unknown, 1, 0), Pad(unknown, 1, 0, {1, 2, 3, 5}), "different"},
        {Pad(unknown, 1, 0), Pad(unknown, 1, 0), "Unknown mode"},
    };
    for (const auto& row : rows) {
        const auto compare = [&] { return std::string(row.a.IsEqualTo(row.b) ? "equal" : "different"); };
        const std::string result = std::string(row.result) == "Unknown mode"
                                       ? FormBDescription<std::logic_error>([&] { (void)compare(); })
                                       : compare();
        EXPECT_EQ(result, row.result) << &row - rows.data();
    }
    EXPECT_TRUE(Pad(Mode::Tile, 0, 9, {0, 0, 0, 0}).IsEmpty());
    EXPECT_FALSE(SettingsEffectPad({0, 0, 0, 1}, Mode::Fill).IsEmpty());
}

// Only a quoted value is read; its tokens are exact and a missing one clears its flag.
TEST(Flip, TokensOfTheQuotedValueSetBothFlags)
{
    struct Row {
        bool h, v;
        const char* options;
        bool hAfter, vAfter;
    };
    const std::vector<Row> rows{
        {true, true, "flip=\"h\"", true, false},      {false, false, "flip=\"h,v\"", true, true},
        {false, false, "flip=\"v,x,h\"", true, true}, {true, true, "flip=\"x\"", false, false},
        {true, true, "flip=\"\"", false, false},      {true, true, "flip=1", false, false},
        {true, true, "flip=h", true, true},           {false, false, "FLIP=\"H,v\"", false, true},
        {true, false, "flip=\" h\"", false, false},   {true, true, "", true, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.options);
        SettingsEffectFlip flip(row.h, row.v);
        flip.Deserialize(row.options);
        EXPECT_EQ(flip.GetHorizontalFlip(), row.hAfter);
        EXPECT_EQ(flip.GetVerticalFlip(), row.vAfter);
        const std::array<double, 9> diagonal{row.hAfter ? -1.0 : 1.0, 0, 0, 0, row.vAfter ? -1.0 : 1.0, 0, 0, 0, 1};
        EXPECT_EQ(flip.GetMatrix().m, diagonal);
        EXPECT_EQ(flip.IsEmpty(), !row.hAfter && !row.vAfter);
    }
    const SettingsEffectTransform& asTransform = SettingsEffectFlip(true, false);
    EXPECT_TRUE(asTransform.IsOddSizeAllowed());
    EXPECT_FALSE(SettingsEffectTransform().IsOddSizeAllowed());
}

TEST(Transpose, QuarterTurnsKeepTheSignOfTheRemainder)
{
    using Step = void (SettingsEffectTranspose::*)();
    struct Row {
        int start;
        Step step;
        int rotation;
    };
    const std::vector<Row> rows{
        {-5, nullptr, -1},
        {6, nullptr, 2},
        {0, &SettingsEffectTranspose::SubAngle90, 3},
        {3, &SettingsEffectTranspose::AddAngle90, 0},
        {-1, &SettingsEffectTranspose::SubAngle90, 2},
        {-3, &SettingsEffectTranspose::AddAngle90, -2},
        {-3, &SettingsEffectTranspose::SubAngle90, 0},
    };
    for (const auto& row : rows) {
        SettingsEffectTranspose transpose(static_cast<Rotation>(row.start));
        if (row.step != nullptr) {
            (transpose.*row.step)();
        }
        EXPECT_EQ(static_cast<int>(transpose.GetRotation()), row.rotation) << row.start;
    }
    const double c90 = 6.123233995736766e-17;
    const double s180 = 1.2246467991473532e-16;
    const double c270 = -1.8369701987210297e-16;
    EXPECT_EQ(SettingsEffectTranspose(static_cast<Rotation>(-1)).GetMatrix().m,
              (std::array<double, 9>{c90, -1, 0, 1, c90, 0, 0, 0, 1}));
    EXPECT_EQ(SettingsEffectTranspose(Rotation::Angle180).GetMatrix().m,
              (std::array<double, 9>{-1, s180, 0, -s180, -1, 0, 0, 0, 1}));
    EXPECT_EQ(SettingsEffectTranspose(Rotation::Angle270).GetMatrix().m,
              (std::array<double, 9>{c270, -1, 0, 1, c270, 0, 0, 0, 1}));
}

// A record with a source equals nothing, not even itself; the scale counts for equality only.
TEST(Transform, SourceMatrixModeAndScale)
{
    SettingsEffectTransform sourced;
    sourced.SetSource(1);
    EXPECT_FALSE(sourced.IsEqualTo(sourced));
    EXPECT_FALSE(SettingsEffectTransform().IsEqualTo(sourced));
    EXPECT_FALSE(sourced.IsEmpty());
    SettingsEffectTransform scaled;
    scaled.SetScale(2.0);
    EXPECT_TRUE(scaled.IsEmpty());
    EXPECT_FALSE(scaled.IsEqualTo(SettingsEffectTransform()));
    EXPECT_FALSE(SettingsEffectTransform(Matrix3x3{}, 1).IsEqualTo(SettingsEffectTransform()));
    Matrix3x3 nudged;
    nudged.m[7] = 4.9406564584124654e-324;
    EXPECT_FALSE(SettingsEffectTransform(nudged).IsEmpty());
    // A flip compares as the transform it is, from either side.
    const SettingsEffectTransform mirror(Matrix3x3{{-1, 0, 0, 0, 1, 0, 0, 0, 1}});
    EXPECT_TRUE(mirror.IsEqualTo(SettingsEffectFlip(true, false)));
    EXPECT_TRUE(SettingsEffectFlip(true, false).IsEqualTo(mirror));
    EXPECT_FALSE(SettingsEffectFlip(false, true).IsEqualTo(mirror));

    const Zorvan::Conf::DisplayMatrix rotated{{0, 0x10000, 0, -0x10000, 0, 0, 0x20000, 0x8000, 0x40000000}};
    const SettingsEffectDisplayMatrix display(rotated);
    EXPECT_EQ(display.GetDisplayMatrix(), rotated);
    EXPECT_EQ(display.GetMatrix().m, (std::array<double, 9>{0, 1, 0, -1, 0, 0, 2, 0.5, 1}));
}

// Relative widths agree below a summed 1e-5 and only they count when relative; the colour always.
TEST(Border, TheFormInUseDecides)
{
    const CropInfoF none{};
    const CropInfoF near{4e-6, 4e-6, 0, 0};
    const CropInfoF apart{6e-6, 6e-6, 0, 0};
    EXPECT_TRUE(Border(1, {1, 1, 1, 1}, none).IsEqualTo(Border(1, {2, 2, 2, 2}, near)));
    EXPECT_FALSE(Border(1, {}, none).IsEqualTo(Border(1, {}, apart)));
    EXPECT_TRUE(Border(0, {1, 2, 3, 4}, none).IsEqualTo(Border(0, {1, 2, 3, 4}, apart)));
    EXPECT_FALSE(Border(0, {1, 2, 3, 4}, none).IsEqualTo(Border(0, {1, 2, 3, 5}, none)));
    EXPECT_FALSE(Border(1, {}, none, 1).IsEqualTo(Border(1, {}, none, 2)));
    EXPECT_FALSE(Border(1, {}, none).IsEqualTo(Border(2, {}, none)));
    EXPECT_TRUE(Border(1, {9, 9, 9, 9}, near).IsEmpty());
    EXPECT_FALSE(Border(1, {}, apart).IsEmpty());
    EXPECT_TRUE(Border(0, {}, {1, 1, 1, 1}).IsEmpty());
    EXPECT_FALSE(Border(0, {0, 0, 0, 1}, none).IsEmpty());
}

// Values within the double epsilon, strictly; disabled records all alike.
TEST(Cylindrical360, ToleranceAndTheEnabledFlag)
{
    const double eps = 2.220446049250313e-16;
    EXPECT_TRUE(Cylinder(false, 1.0).IsEqualTo(Cylinder(false, 2.0)));
    EXPECT_FALSE(Cylinder(true, 1.0).IsEqualTo(Cylinder(false, 1.0)));
    EXPECT_TRUE(Cylinder(true, 0.0, 1e-16).IsEqualTo(Cylinder(true, 0.0, 0.0)));
    EXPECT_FALSE(Cylinder(true, 0.0, 0.0, eps).IsEqualTo(Cylinder(true, 0.0)));
    EXPECT_FALSE(Cylinder(true, std::nan("")).IsEqualTo(Cylinder(true, std::nan(""))));
    EXPECT_TRUE(Cylinder(false, 5.0).IsEmpty());
    EXPECT_TRUE(Cylinder(true, 1e-308, -1e-308, 0.0).IsEmpty());
    EXPECT_FALSE(Cylinder(true, 0.0, 0.0, 2.2250738585072014e-308).IsEmpty());
}

TEST(GeometryComparisons, OnlyTheFieldsThatMatter)
{
    EXPECT_FALSE(SettingsEffectCrop().IsEmpty());
    EXPECT_FALSE(SettingsEffectCrop(1, 2, 3, 4).IsEqualTo(SettingsEffectCrop(1, 2, 3, 5)));
    SettingsEffectRotate keep, sized;
    sized.SetOutputSize(640, 480);
    EXPECT_TRUE(keep == sized); // the size is read only with type 1
    keep.SetType(1);
    sized.SetType(1);
    EXPECT_FALSE(keep == sized);
    SettingsEffectDeshake edge;
    edge.SetEdgeMode(2);
    EXPECT_TRUE(edge == SettingsEffectDeshake());
    edge.SetRange(0, 16);
    EXPECT_FALSE(edge == SettingsEffectDeshake());
}

// Key by key in order: a bad rectangle value leaves the keys before it applied.
TEST(FillBlurredBackground, KeysAreReadInOrder)
{
    SettingsEffectFillBlurredBackground fill;
    EXPECT_EQ(FormBDescription<std::invalid_argument>(
                  [&] { fill.Deserialize("rect_bottom=0.5:radius=7:rect_left=0.25:rect_top=abc"); }, false),
              "The 'abc' value of the 'rect_top' option is not a number");
    EXPECT_EQ(fill.GetRadius(), 7);
    EXPECT_EQ(fill.GetRect(), (CropInfoF{0.25, 1.0, 0.0, 1.0}));
}
