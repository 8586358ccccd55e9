// Simple stylising effects, read back as the values of the catalogue's fields in field order:
// 0.1 read as a float prints 0.10000000149011612. Expected values of the computed getters were
// worked out by hand and with python3 (float32 through struct, exact products through fractions).
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <vector>

#include "Proc/Settings/SettingsEffectBlur.h"
#include "Proc/Settings/SettingsEffectEdgeDetect.h"
#include "Proc/Settings/SettingsEffectEmboss.h"
#include "Proc/Settings/SettingsEffectErosion.h"
#include "Proc/Settings/SettingsEffectFilmStrip.h"
#include "Proc/Settings/SettingsEffectFindEdges.h"
#include "Proc/Settings/SettingsEffectGlassMosaic.h"
#include "Proc/Settings/SettingsEffectJalousie.h"
#include "Proc/Settings/SettingsEffectLensDistortion.h"
#include "Proc/Settings/SettingsEffectMosaic.h"
#include "Proc/Settings/SettingsEffectMotionBlur.h"
#include "Proc/Settings/SettingsEffectNeonLamp.h"
#include "Proc/Settings/SettingsEffectOilPaint.h"
#include "Proc/Settings/SettingsEffectSmartBlur.h"
#include "Proc/Settings/SettingsEffectStripes.h"
#include "Proc/Settings/SettingsEffectVHS.h"
#include "RecordSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::Call;
using ZorvanTest::Change;
using ZorvanTest::CheckKeyCases;
using ZorvanTest::CheckValues;
using ZorvanTest::Fails;
using ZorvanTest::KeyCase;
using ZorvanTest::Make;
using ZorvanTest::Opts;
using ZorvanTest::Values;

namespace {

// A record of class C after the steps.
template <class C>
C Built(const std::vector<Change>& steps)
{
    C record;
    for (const Change& step : steps) {
        step(record);
    }
    return record;
}

const char* const kRetro = "$$Effect_Retro_Artefacts$$";
const char* const kLamp = "r=1:g=2:b=3:intensity=0.5";

} // namespace

// A failing key in the middle shows which keys were read before it; the lamp reads its colour
// before its intensity. Every record is cloned.
TEST(SimpleStylising, KeysConversionsAndOrder)
{
    using enum Fails;
    const std::vector<KeyCase> cases = {
        {"$$EffectMotionBlur$$", "", "SCALE=1.2.3", No, "[1.2]"},
        {"$$EffectMotionBlur$$", "scale=4.5", "scale=-", Invalid, "[4.5]"},
        {"$$EffectDiffuse$$", "", "level=0.1:probability=0.2:intensity=0.1", No, "[0.1,0.2,0.10000000149011612]"},
        {"$$EffectDiffuse$$", "intensity=0.5", "intensity=0.25:probability=-:level=3", Invalid, "[3.0,0.0,0.5]"},
        {"$$EffectErosion$$", "", "mode=7.9:radius=1,5", No, "[1.0,7]"},
        {"$$EffectErosion$$", "", "radius=-:mode=1", Invalid, "[0.0,1]"},
        {"$$EffectFindEdges$$", "", "blend=0.1:sensibility=0.3:type=2.9", No, "[2,0.1,0.3]"},
        {"$$EffectFindEdges$$", "", "type=1:sensibility=-:blend=1", Invalid, "[0,1.0,0.0]"},
        {"EffectFishEye", "", "deviation=0.1:intensity=0.1", No, "[0.1,0.10000000149011612]"},
        {"EffectFishEye", "", "intensity=-:deviation=2", Invalid, "[2.0,0.0]"},
        {"$$EffectMosaic$$", "", "type=2.7:amountVer=7:amountHor=3,5:intensity=0.1", No, "[2,7,3,0.10000000149011612]"},
        {"$$EffectMosaic$$", "", "intensity=1:amountHor=-:amountVer=9:type=4", Invalid, "[4,9,0,0.0]"},
        {"$$EffectMosaic$$", "", "type=3000000000", Range, "[0,0,0,0.0]"},
        // The curve is listed as GetCurve gives it; at intensity 1 that is the field.
        {"$$EffectGlassMosaic$$", "", "angle=0.1:curve=0.8:repeatsh=0.3:repeatsv=1,5:intensity=1", No,
         "[0.1,0.8,0.3,1.0,1.0]"},
        {"$$EffectGlassMosaic$$", "intensity=1", "intensity=0:repeatsv=-:repeatsh=7:curve=6:angle=5", Invalid,
         "[5.0,6.0,7.0,0.0,1.0]"},
        {"EFFECT_OIL_PAINT", "", "radius=2.7:intensity=0.1", No, "[2,0.10000000149011612]"},
        {"EFFECT_OIL_PAINT", "", "intensity=-:radius=4", Invalid, "[4,0.0]"},
        {"$$EffectStripes$$", "", "count=5.9:deep=0.1:intensity=0.1", No, "[5,0.1,0.10000000149011612]"},
        {"$$EffectStripes$$", "", "intensity=1:deep=-:count=8", Invalid, "[8,0.0,0.0]"},
        {"EffectTelevision70s", "", "intensity=0.1:stripeswidth=0.3", No, "[0.10000000149011612,0.30000001192092896]"},
        {"EffectTelevision70s", "", "stripesWidth=-:intensity=0.5", Invalid, "[0.5,0.0]"},
        {"$$EffectTwirl$$", "", "rt0=0.1:vr=0.2:tt0=0.3:vt=0.7:intensity=0.1", No,
         "[0.1,0.2,0.3,0.7,0.10000000149011612]"},
        {"$$EffectTwirl$$", "", "intensity=1:vt=-:tt0=3:vr=2:rt0=1", Invalid, "[1.0,2.0,3.0,0.0,0.0]"},
        {"$$EffectVertigo$$", "", "scale=0.1:speed=0.2:intensity=0.1", No, "[0.1,0.2,0.1]"},
        {"$$EffectVertigo$$", "", "intensity=1:speed=-:scale=3", Invalid, "[3.0,0.0,0.0]"},
        // Below the floor of SetIntensity: stored straight. No key sets the border.
        {"$$EffectVHS$$", "", "speed=1:relief=4:smoothness=3:shift=2:intensity=-0.1:drawBorder=1", No,
         "[1.0,2.0,3.0,4.0,false,-0.10000000149011612]"},
        {"$$EffectVHS$$", "", "intensity=1:shift=-:smoothness=3:relief=4:speed=1", Invalid,
         "[1.0,0.0,3.0,4.0,false,0.0]"},
        {"EffectLightLeaks", "", "preset=2.7:intensity=0.1", No, "[2,0.10000000149011612]"},
        {"EffectLightLeaks", "", "intensity=-:preset=2", Invalid, "[2,0.0]"},
        {"EffectLensFlare", "", "preset=4.2:intensity=0.1", No, "[4,0.10000000149011612]"},
        {"EffectLensFlare", "", "intensity=-:preset=2", Invalid, "[2,0.0]"},
        // Zoom and distortion are listed as the getters give them, multiplied by the intensity.
        {"EffectLensDistortion", "", "zoom=0.5:distortion=0.25:member_count=3.9:intensity=0.1", No,
         "[0.05,0.025,3,0.1]"},
        {"EffectLensDistortion", "", "intensity=2:member_count=-:distortion=5:zoom=4", Invalid, "[4.0,5.0,0,1.0]"},
        {"EffectChromaticAberration", "", "intensity=0.1", No, "[0.10000000149011612]"},
        // The lamp reads through GetOption: exponents count, the colour needs all three keys.
        {"EffectNeonLamp", "", "b=3:R=1:G=000002:intensity=2.5e-1", No, "[0.25,4278387201]"},
        {"EffectNeonLamp", "r=1:g=2:b=3", "r=9:g=9:intensity=5", No, "[1.0,4278387201]"},
        {"EffectNeonLamp", "", "intensity=-1", No, "[0.0,0]"},
        {"EffectNeonLamp", kLamp, "r=256:g=1:b=1", Invalid, "[0.5,4278387201]",
         "The '256' value of the 'r' option is not a number"},
        {"EffectNeonLamp", kLamp, "r=1:g=-1:b=1", Invalid, "[0.5,4278387201]",
         "The '-1' value of the 'g' option is not a number"},
        {"EffectNeonLamp", kLamp, "intensity=0.9:r=9:g=8:b=x", Invalid, "[0.5,4278387201]",
         "The 'x' value of the 'b' option is not a number"},
        {"EffectNeonLamp", kLamp, "r=9:g=8:b=7:intensity=x", Invalid, "[0.5,4278650889]",
         "The 'x' value of the 'intensity' option is not a number"},
        // shake and vignetting are true for exactly 1.
        {kRetro, "", "shake=1:vignetting=2:grain=2.7:scratches=3,5:rollerTrack=-4:intensity=0.1", No,
         "[true,false,2,3,-4,0.10000000149011612]"},
        {kRetro, "shake=1:vignetting=1", "shake=2:vignetting=1.9", No, "[false,true,0,0,0,0.0]"},
        {kRetro, "", "intensity=1:rollerTrack=-:scratches=5:grain=4:vignetting=1:shake=1", Invalid,
         "[true,true,4,5,0,0.0]"},
    };
    CheckKeyCases(cases);
}

// Emptiness, and setters that clamp or take their arguments in an unusual order; every record
// is cloned.
TEST(SimpleStylising, SettersAndIsEmpty)
{
    using VHS = SettingsEffectVHS;
    using Neon = SettingsEffectNeonLamp;
    using Lens = SettingsEffectLensDistortion;
    using Erosion = SettingsEffectErosion;
    using Edges = SettingsEffectFindEdges;
    using Strip = SettingsEffectFilmStrip;
    using Oil = SettingsEffectOilPaint;
    using Stripes = SettingsEffectStripes;
    const float floor = 0.000001F; // the VHS stage divides by its intensity
    const char* const floored = "[0.0,0.0,0.0,0.0,false,9.999999974752427e-07]";
    const struct {
        const char* id;
        std::vector<Change> steps;
        const char* values;
        bool empty = false;
    } cases[] = {
        {"EFFECT_OIL_PAINT", {Opts("radius=0:intensity=100")}, "[0,100.0]", true},
        {"EFFECT_OIL_PAINT", {Opts("radius=0:intensity=-1")}, "[0,-1.0]", true},
        {"EFFECT_OIL_PAINT", {Opts("radius=3:intensity=0")}, "[3,0.0]", true},
        // A subnormal intensity counts as zero, the smallest normal float does not.
        {"EFFECT_OIL_PAINT", {Opts("radius=3"), Call(&Oil::SetIntensity, 1e-40F)}, "[3,9.99994610111476e-41]", true},
        {"EFFECT_OIL_PAINT", {Opts("radius=3"), Call(&Oil::SetIntensity, 1.2e-38F)}, "[3,1.199999978106707e-38]"},
        {"EFFECT_OIL_PAINT", {Opts("radius=-1:intensity=1")}, "[-1,1.0]"},
        {"$$EffectStripes$$", {Opts("count=10:intensity=0")}, "[10,0.0,0.0]", true},
        {"$$EffectStripes$$",
         {Opts("count=5"), Call(&Stripes::SetIntensity, 1e-40F)},
         "[5,0.0,9.99994610111476e-41]",
         true},
        {"$$EffectStripes$$", {Opts("count=0:intensity=0.5")}, "[0,0.0,0.5]", true},
        {"$$EffectStripes$$", {Opts("count=1:intensity=0.5")}, "[1,0.0,0.5]"},
        {"$$EffectStripes$$", {Opts("count=-5:intensity=0.5")}, "[-5,0.0,0.5]"},
        {"EFFECT_BLUR", {Call(&SettingsEffectBlur::SetRadius, 0)}, "[0,2,-1.0,-1.0,0,15,-1,0,0.02,0.02]", true},
        {"EFFECT_BLUR", {Call(&SettingsEffectBlur::SetRadius, -1)}, "[0,2,-1.0,-1.0,-1,15,-1,0,0.02,0.02]"},
        {"EffectLensDistortion", {Opts("intensity=0")}, "[0.0,0.0,0,0.0]"},
        {"$$EffectVHS$$", {Call(&VHS::SetIntensity, 0.0F)}, floored},
        {"$$EffectVHS$$", {Call(&VHS::SetIntensity, -3.0F)}, floored},
        {"$$EffectVHS$$", {Call(&VHS::SetIntensity, std::nextafter(floor, 0.0F))}, floored},
        {"$$EffectVHS$$",
         {Call(&VHS::SetIntensity, std::nextafter(floor, 1.0F))},
         "[0.0,0.0,0.0,0.0,false,1.0000001111620804e-06]"},
        {"$$EffectVHS$$",
         {Call(&VHS::SetParams, 1.0, 2.0, 3.0, 4.0), Call(&VHS::SetDrawBorder, true)},
         "[1.0,2.0,3.0,4.0,true,0.0]"},
        {"EffectNeonLamp", {Call(&Neon::SetIntensity, 7.0)}, "[1.0,0]"},
        {"EffectNeonLamp", {Call(&Neon::SetIntensity, std::nextafter(1.0, 2.0))}, "[1.0,0]"},
        {"EffectNeonLamp", {Call(&Neon::SetIntensity, 0.75)}, "[0.75,0]"},
        {"EffectNeonLamp", {Call(&Neon::SetIntensity, -0.5), Call(&Neon::SetColor, 0x11223344U)}, "[0.0,287454020]"},
        {"$$EffectMosaic$$", {Call(&SettingsEffectMosaic::SetAmount, 3, 7)}, "[0,7,3,0.0]"},
        {"$$EffectErosion$$", {Call(&Erosion::SetParams, 3.5, Erosion::Types::Dilate)}, "[3.5,1]"},
        {"$$EffectFindEdges$$", {Call(&Edges::SetParams, Edges::Type::Laplacian, 0.5, 0.25)}, "[2,0.5,0.25]"},
        {"EffectLensDistortion",
         {Call(&Lens::SetZoom, 0.1), Call(&Lens::SetDistortion, -0.7), Call(&Lens::SetIntensity, 3.0)},
         "[0.30000000000000004,-2.0999999999999996,0,3.0]"},
        {"EFFECT_BLUR", {Call(&SettingsEffectBlur::SetToleranceY, 0.5)}, "[0,2,-1.0,-1.0,1,15,-1,0,0.02,0.5]"},
        {"EFFECT_EMBOSS", {Call(&SettingsEffectEmboss::SetGrayscale, true)}, "[0,0,true]"},
        {"EFFECT_EDGE_DETECT", {Call(&SettingsEffectEdgeDetect::SetHighThreshold, 30)}, "[0,30,false]"},
        {"EFFECT_SMARTBLUR", {Call(&SettingsEffectSmartBlur::SetMode, 8)}, "[0,0,0,0,0,0,0,8]"},
        {"EffectFilmStrip", {Call(&Strip::SetType, Strip::Type::Vertical)}, "[1]"},
        {"$$EffectJalousie$$", {Call(&SettingsEffectJalousie::SetThickness, 4000000000U)}, "[4000000000]"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        const auto record = Make(c.id, c.steps);
        CheckValues(*record, c.values);
        EXPECT_EQ(record->IsEmpty(), c.empty);
    }
}

TEST(SimpleStylising, FixedConstructorDefaults)
{
    EXPECT_EQ(Values(SettingsEffectBlur(SettingsEffectBlur::Algorithm::Median)), "[2,2,-1.0,-1.0,1,15,-1,0,0.02,0.02]");
    EXPECT_EQ(Values(SettingsEffectLensDistortion(2.0, 3.0, 4)), "[2.0,3.0,4,1.0]");
}

// Each change of one field makes a copy of the base record unequal. Comparison is exact: most
// changes are one unit in the last place, which a tolerant comparison would let pass.
TEST(SimpleStylising, Comparison)
{
    using Blur = SettingsEffectBlur;
    const struct {
        const char* id;
        const char* base; // nullptr for a record without option strings
        std::vector<Change> changes;
    } cases[] = {
        {"EffectFishEye",
         "deviation=0.3:intensity=0.5",
         {Opts("deviation=0.30000000000000004"), Opts("intensity=0.50000006")}},
        {"EFFECT_OIL_PAINT", "radius=3:intensity=0.5", {Opts("radius=4"), Opts("intensity=0.50000006")}},
        {"EffectTelevision70s",
         "intensity=0.5:stripesWidth=2",
         {Opts("intensity=0.50000006"), Opts("stripesWidth=2.0000002")}},
        {"EffectLightLeaks", "preset=3:intensity=0.25", {Opts("preset=4"), Opts("intensity=0.25000003")}},
        {"EffectLensDistortion",
         "zoom=2:distortion=3:member_count=4:intensity=1",
         {Opts("zoom=1:intensity=2") /* the same zoom from other fields */, Opts("distortion=3.0000000000000004"),
          Opts("intensity=1.0000000000000002")}},
        {"EffectChromaticAberration", "intensity=0.5", {Opts("intensity=0.50000006")}},
        {"EffectNeonLamp", "r=1:g=2:b=3:intensity=0.5", {Opts("r=1:g=2:b=4"), Opts("intensity=0.5000000000000001")}},
        {kRetro,
         "shake=1:vignetting=1:grain=1:scratches=2:rollerTrack=3:intensity=0.5",
         {Opts("shake=0"), Opts("vignetting=0"), Opts("grain=9"), Opts("scratches=9"), Opts("rollerTrack=9"),
          Opts("intensity=0.50000006")}},
        {"EFFECT_BLUR",
         nullptr,
         {Call(&Blur::SetAlgorithm, Blur::Algorithm::Bilateral), Call(&Blur::SetKernelSize, 3),
          Call(&Blur::SetSigmaX, -0.9999999999999999), Call(&Blur::SetSigmaY, 0.5), Call(&Blur::SetRadius, 2),
          Call(&Blur::SetMaxRadius, 16), Call(&Blur::SetAnchor, 0), Call(&Blur::SetBorderMode, 4),
          Call(&Blur::SetToleranceX, 0.020000000000000004), Call(&Blur::SetToleranceY, 0.03)}},
    };
    const SettingsEffectMotionBlur foreign;
    for (const auto& c : cases) {
        for (const Change& change : c.changes) {
            SCOPED_TRACE(testing::Message() << c.id << " " << &change - c.changes.data());
            const auto a = c.base ? Make(c.id, {Opts(c.base)}) : Make(c.id);
            const auto b = a->Clone();
            EXPECT_TRUE(a->IsEqualTo(*b));
            change(*b);
            EXPECT_FALSE(a->IsEqualTo(*b));
            EXPECT_FALSE(b->IsEqualTo(*a));
        }
        EXPECT_THROW((void)Make(c.id)->IsEqualTo(foreign), std::bad_cast);
    }
    // The member count takes no part.
    EXPECT_TRUE(SettingsEffectLensDistortion(2.0, 3.0, 4).IsEqualTo(SettingsEffectLensDistortion(2.0, 3.0, 99)));
}

// These records have operator== alone. Smart blur compares its third and fourth ints only
// through their differences from the fifth and sixth (each by itself, not summed), in wrapping
// 32-bit arithmetic.
TEST(EmbossEdgeDetectSmartBlur, OperatorEquals)
{
    using E = SettingsEffectEmboss;
    using D = SettingsEffectEdgeDetect;
    using S = SettingsEffectSmartBlur;
    constexpr int max = std::numeric_limits<int>::max();
    constexpr int min = std::numeric_limits<int>::min();
    EXPECT_TRUE(E() == E());
    EXPECT_TRUE(D() == D());
    for (const Change& change : {Call(&E::SetAngle, 1), Call(&E::SetDepth, 1), Call(&E::SetGrayscale, true)}) {
        EXPECT_FALSE(Built<E>({change}) == E());
    }
    for (const Change& change :
         {Call(&D::SetLowThreshold, 1), Call(&D::SetHighThreshold, 1), Call(&D::SetInvert, true)}) {
        EXPECT_FALSE(Built<D>({change}) == D());
    }
    for (const Change& change :
         {Call(&S::SetRadius, 1), Call(&S::SetThreshold, 1), Call(&S::SetRight, 1), Call(&S::SetBottom, 1),
          Call(&S::SetLeft, 1), Call(&S::SetTop, 1), Call(&S::SetQuality, 1), Call(&S::SetMode, 1)}) {
        EXPECT_FALSE(Built<S>({change}) == S());
    }
    EXPECT_TRUE(Built<S>({Call(&S::SetRight, 100), Call(&S::SetLeft, 100)}) == S());
    EXPECT_TRUE(Built<S>({Call(&S::SetBottom, -16), Call(&S::SetTop, -16)}) == S());
    EXPECT_FALSE(Built<S>({Call(&S::SetRight, 1), Call(&S::SetTop, 1)}) == S());
    EXPECT_FALSE(Built<S>({Call(&S::SetRight, max), Call(&S::SetLeft, min)}) == S());
    EXPECT_TRUE(Built<S>({Call(&S::SetRight, max), Call(&S::SetBottom, max), Call(&S::SetLeft, min),
                          Call(&S::SetTop, min)}) == Built<S>({Call(&S::SetRight, -1), Call(&S::SetBottom, -1)}));
}

// n - (n - a) * powf(intensity, 0.2f) in one fused float step, truncated; not above 1 is 1.
TEST(Mosaic, ComputedAmounts)
{
    constexpr int kMax = std::numeric_limits<int>::max();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const struct {
        float intensity;
        int hor; // SetAmount's first argument
        int ver;
        int n;
        int expectedHor;
        int expectedVer;
    } cases[] = {
        {0.03125F, 3, 7, 1001, 502, 504}, // p = 0.5: 1001 - 998 / 2, 1001 - 994 / 2
        {0.0F, 10, 10, 1920, 1920, 1920},
        {0.0F, 10, 10, 0, 1, 1},
        {0.5F, 10, 10, 100, 21, 21},                       // p = 0.87055057: 21.650448
        {0.1F, 40, 40, 1920, 733, 733},                    // p = 0.63095737: 733.80017
        {32.0F, 14, 4, 10, 18, 1},                         // p = 2: 10 + 8, 10 - 12
        {0.03125F, 1, 0, 3, 2, 1},                         // 2, 1.5
        {0.03125F, 1, 0, 2, 1, 1},                         // 1.5, exactly 1
        {0.03125F, -20, -20, 1, 1, 1},                     // -9.5 is not -9
        {0.37F, 1080, 1080, 1080, 1080, 1080},             // a = n gives n at any intensity
        {0.37F, 1, 1, 1, 1, 1},                            // unless n is not above 1
        {243.0F, 5592409, 5592409, 2, 16777224, 16777224}, // p = 3; unfused 16777222
        {-1.0F, 10, 10, 100, 1, 1},                        // NaN power
        {nan, 10, 10, 100, 1, 1},
        {243.0F, 1000000000, 1000000000, 0, kMax, kMax}, // 3e9 saturates
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.intensity << " " << c.hor << " " << c.ver << " " << c.n);
        SettingsEffectMosaic mosaic;
        mosaic.SetIntensity(c.intensity);
        mosaic.SetAmount(c.hor, c.ver);
        EXPECT_EQ(mosaic.GetAmountHor(c.n), c.expectedHor);
        EXPECT_EQ(mosaic.GetAmountVer(c.n), c.expectedVer);
    }
}

// (curve - 0.5) * intensity + 0.5 in double, fused.
TEST(GlassMosaic, ComputedCurve)
{
    const struct {
        double curve;
        float intensity;
        double expected;
    } cases[] = {
        {0.8, 0.0F, 0.5},
        {0.8, 1.0F, 0.8},
        {-1.0, 0.5F, -0.25},
        {2.0, 0.1F, 0.6500000022351742}, // the float 0.1 widened
        {0.9, 0.9F, 0.8599999904632568}, // unfused 0.8599999904632569
        {3.7, 0.2F, 1.1400000095367433}, // unfused 1.140000009536743
    };
    for (const auto& c : cases) {
        SettingsEffectGlassMosaic glass;
        glass.SetParams(0.0, c.curve, 0.0, 0.0);
        glass.SetIntensity(c.intensity);
        EXPECT_EQ(glass.GetCurve(), c.expected) << c.curve << " " << c.intensity;
    }
}
