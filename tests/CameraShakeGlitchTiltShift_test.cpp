// Part 6.4: camera shake, glitch and tilt shift.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <vector>

#include "Proc/Settings/SettingsEffectBokehBlur.h"
#include "Proc/Settings/SettingsEffectCameraShake.h"
#include "Proc/Settings/SettingsEffectGlitchMpeg.h"
#include "Proc/Settings/SettingsEffectGlitchSecurityCam.h"
#include "Proc/Settings/SettingsEffectTiltShiftVEZ.h"
#include "TestSupport.h"

using namespace Zorvan::Proc;

TEST(BokehBlur, DeserializeStoresStraightIntoTheFields)
{
    SettingsEffectBokehBlur bokeh;
    bokeh.Deserialize("size=12.5:exposure=-3:hdrborder=0.75:intensity=0.5");
    EXPECT_EQ(bokeh.GetSize(), 12.5);
    EXPECT_EQ(bokeh.GetExposure(), -3.0);
    EXPECT_EQ(bokeh.GetHdrBorder(), 0.75);
    EXPECT_EQ(bokeh.GetIntensity(), 0.5F);
}

TEST(BokehBlur, AbsentKeysChangeNothingAndAFailureKeepsEarlierKeys)
{
    SettingsEffectBokehBlur bokeh;
    bokeh.SetParams(1.0, 2.0, 3.0);
    bokeh.SetIntensity(0.25F);
    bokeh.Deserialize("exposure=4");
    EXPECT_EQ(bokeh.GetSize(), 1.0);
    EXPECT_EQ(bokeh.GetExposure(), 4.0);
    EXPECT_EQ(bokeh.GetHdrBorder(), 3.0);
    EXPECT_EQ(bokeh.GetIntensity(), 0.25F);
    // Keys are read in the order size, exposure, hdrborder, intensity.
    EXPECT_THROW(bokeh.Deserialize("intensity=-:size=9:hdrborder=\"1\""), std::invalid_argument);
    EXPECT_EQ(bokeh.GetSize(), 9.0);
    EXPECT_EQ(bokeh.GetHdrBorder(), 3.0);
    EXPECT_EQ(bokeh.GetIntensity(), 0.25F);
}

TEST(BokehBlur, IntensityIsAFloat)
{
    SettingsEffectBokehBlur bokeh;
    bokeh.Deserialize("intensity=0.1");
    EXPECT_EQ(bokeh.GetIntensity(), 0.1F);
    EXPECT_THROW(bokeh.Deserialize("intensity=1" + std::string(50, '0')), std::out_of_range);
}

TEST(BokehBlur, SetImageReplacesAnEmptyPointerByANewEmptyImage)
{
    SettingsEffectBokehBlur bokeh;
    EXPECT_EQ(bokeh.GetImage(), nullptr);
    bokeh.SetImage(nullptr);
    ASSERT_NE(bokeh.GetImage(), nullptr);
    EXPECT_TRUE(bokeh.GetImage()->IsEmpty());
    const auto image = std::make_shared<const ImageHandler>(1, 1, std::vector<std::uint8_t>{9});
    bokeh.SetImage(image);
    EXPECT_EQ(bokeh.GetImage(), image);
}

TEST(BokehBlur, KeepsTheBaseComparisonAndEmptiness)
{
    const SettingsEffectBokehBlur a;
    const SettingsEffectBokehBlur b;
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { (void)a.IsEqualTo(b); }),
              "Not implemented comparison for settings CLASS_ID = $$EffectBokehBlur$$");
    EXPECT_FALSE(a.IsEmpty());
}

TEST(BokehBlur, CloneSharesTheImageAndCopiesTheNumbers)
{
    SettingsEffectBokehBlur bokeh;
    bokeh.SetParams(1.0, 2.0, 3.0);
    bokeh.SetIntensity(0.5F);
    bokeh.SetImage(std::make_shared<const ImageHandler>());
    const std::unique_ptr<Settings> clone = bokeh.Clone();
    const auto& copy = dynamic_cast<const SettingsEffectBokehBlur&>(*clone);
    EXPECT_EQ(copy.GetClassId(), "$$EffectBokehBlur$$");
    EXPECT_EQ(copy.GetImage(), bokeh.GetImage());
    EXPECT_EQ(copy.GetSize(), 1.0);
    EXPECT_EQ(copy.GetExposure(), 2.0);
    EXPECT_EQ(copy.GetHdrBorder(), 3.0);
    EXPECT_EQ(copy.GetIntensity(), 0.5F);
}

// ---------------------------------------------------------------- SettingsEffectCameraShake

// Expected noise values come from an independent Python 3 transcription of the Algorithms
// text of Part 6.4 (Python floats are IEEE doubles; a fused multiply-add is the exact
// rational result rounded once to double), printed with 17 significant digits:
//
//   from fractions import Fraction
//   M = 1 << 32
//   def fma(a, b, c): return float(Fraction(a) * Fraction(b) + Fraction(c))
//   def trunc32(x):  # toward zero; saturating outside int32 (our choice), NaN -> 0
//       if x != x: return 0
//       if x >= 2.0**31: return 2**31 - 1
//       if x <= -(2.0**31) - 1: return -(2**31)
//       return int(x)
//   def hash32(k, row):
//       a, b, c = row; k %= M; n = (k ^ (k << 13)) % M
//       h = ((((n * a) % M) * n + b) % M * n + c) % M
//       return 1.0 - (h & 0x7FFFFFFF) * 2.0**-30
//   def noise(time, octaves, persistence, row):
//       if octaves < 1: return 0.0
//       total, amplitude, x = 0.0, 1.0, time
//       for _ in range(octaves):
//           i = trunc32(x); left = hash32(i, row); right = hash32(i + 1, row); f = x - float(i)
//           inner = fma(f, 6.0, -15.0); inner2 = fma(f, inner, 10.0); s = f * f * f * inner2
//           value = fma(s, right - left, left); total = fma(value, amplitude, total)
//           x = x + x; amplitude = amplitude * persistence
//       return total * 0.5
//
// with the rows X (15731, 789221, 1376312627), Y (15733, 789227, 1376312629) and
// R (15737, 789251, 1376312657). Several rows below were picked because an implementation
// that leaves one of the four fused steps unfused gets them wrong.
namespace {

struct NoiseCase {
    double time;
    int octaves;
    double persistence;
    double x;
    double y;
    double r;
};

// clang-format off
const std::vector<NoiseCase> kNoiseCases{
    {0.0, 1, 0.5, -0.14089550962671638, -0.14089551055803895, -0.14089552359655499},
    {1.0, 1, 0.5, -0.11318654334172606, -0.30073232436552644, 0.32413032045587897},
    {5.0, 1, 0.0, -0.35647068312391639, 0.20305372169241309, 0.32187361037358642},
    {-7.0, 1, 0.5, 0.0092015438713133335, 0.31369101768359542, -0.077650441322475672},
    {0.3, 1, 0.5, -0.13637673140496015, -0.16696169815376402, -0.06505910894848406},
    {2.75, 1, 0.5, -0.10008347342409252, -0.2085108515148022, -0.32198260058976302},
    {0.713, 1, 0.5, -0.11724070921596182, -0.27734621355503736, 0.25609126449815828},
    {-0.3, 1, 0.5, -0.15214756665572524, -0.075988977207094438, -0.32973321834936736},
    {-1.75, 1, 0.5, 6.5893384903683909, -2.6644786985998508, 1.6047093939014303},
    {-6.6, 1, 0.5, -1.7002336652921113, -0.92927851203456302, -0.38785203946366797},
    {0.3, 2, 0.5, -0.19736797020457686, -0.29195856124900282, 0.023197149311453127},
    {0.3, 2, 0.0, -0.13637673140496015, -0.16696169815376402, -0.06505910894848406},
    {0.3, 2, 1.0, -0.25835920900419351, -0.4169554243442416, 0.11145340757139031},
    {0.62, 2, 0.5, -0.16551225831785998, -0.40824247905729605, 0.32274853311534246},
    {-0.773, 2, 0.5, 0.72275443428238351, 1.1765440451237246, -5.2939510315584322},
    {35.847, 2, 0.5, -0.37591798399524368, -0.21316251431314134, -0.39094268921713238},
    {-10.481, 2, 0.65, 17.38807753490282, 0.52657655009936954, -3.6381163678446926},
    {1000.9999, 2, 1.0, -0.033741101625646086, 0.051455523841419049, 0.084365541119622106},
    {2.75, 3, 0.5, -0.083143307996579097, -0.3262642371973925, -0.20937489762764017},
    {-1.75, 3, 0.5, 7.1129542950438918, -2.5539086519565899, 1.8264848082653771},
    {4.8, 3, 0.5, -0.11029072551075376, 0.23066868755910552, 0.15240146558303383},
    {11.901, 3, 0.0, -0.36697234563884545, -0.41140316736129995, -0.48417551380036866},
    {-12.33, 3, 0.65, 0.21748838739968712, -1.0483875298007395, 0.29135284977882753},
    {123.456, 3, 1.0, -0.29828419117601107, -0.35029045335216241, 0.047061154628940838},
    {-0.0001, 3, 0.5, -0.24656714185257558, -0.24656714344298492, -0.24656716639167758},
    {-123.456, 4, 0.5, 2.8682987910649311, -0.97535243850313269, -3.2194675106622608},
    {16.64, 4, 0.3, -0.043286757808206816, -0.31919343447892728, -0.075327026197650457},
    {0.1, 5, 0.5, -0.2536598811286222, -0.32272629770633765, -0.16373470922336913},
    {10.625, 8, 0.65, 0.27266610336993519, -0.64778776403627847, 0.43220975639929377},
};

// hash32(k) per axis, from the same script.
struct HashCase {
    int k;
    double x;
    double y;
    double r;
};

const std::vector<HashCase> kHashes{
    {0, -0.28179101925343275, -0.2817910211160779, -0.28179104719310999},
    {1, -0.22637308668345213, -0.60146464873105288, 0.64826064091175795},
    {5, -0.71294136624783278, 0.40610744338482618, 0.64374722074717283},
    {-7, 0.018403087742626667, 0.62738203536719084, -0.15530088264495134},
    {-1, 0.90012625325471163, -0.72496529389172792, 0.024760047905147076},
};
// clang-format on

SettingsEffectCameraShake Shake(double shiftx, double shifty, double rotate, double freq, double persistence,
                                float intensity)
{
    SettingsEffectCameraShake shake;
    shake.SetSettings(shiftx, shifty, rotate, freq, persistence);
    shake.SetIntensity(intensity);
    return shake;
}

void ExpectShake(const SettingsEffectCameraShake& s, double shiftx, double shifty, double rotate, double freq,
                 double persistence, float intensity)
{
    EXPECT_EQ(s.GetShiftx(), shiftx);
    EXPECT_EQ(s.GetShifty(), shifty);
    EXPECT_EQ(s.GetRotate(), rotate);
    EXPECT_EQ(s.GetFreq(), freq);
    EXPECT_EQ(s.GetPersistence(), persistence);
    EXPECT_EQ(s.GetIntensity(), intensity);
}

} // namespace

TEST(CameraShake, ClassIdIsDollarEffectCameraShake)
{
    const SettingsEffectCameraShake shake;
    EXPECT_EQ(SettingsEffectCameraShake::CLASS_ID, "$$EffectCameraShake$$");
    EXPECT_EQ(&shake.GetClassId(), &SettingsEffectCameraShake::CLASS_ID);
}

TEST(CameraShake, DefaultsAreZeroAndTheDefaultRecordIsEmpty)
{
    const SettingsEffectCameraShake shake;
    ExpectShake(shake, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0F);
    EXPECT_TRUE(shake.IsEmpty());
}

TEST(CameraShake, SetSettingsAndSetIntensityStoreUnchecked)
{
    const SettingsEffectCameraShake shake = Shake(-1.5, 2.5, -360.0, -4.0, 7.0, -0.5F);
    ExpectShake(shake, -1.5, 2.5, -360.0, -4.0, 7.0, -0.5F);
}

TEST(CameraShake, DeserializeStoresAllSixKeysStraightIntoTheFields)
{
    SettingsEffectCameraShake shake;
    shake.Deserialize("shiftx=-2.5:shifty=3:rotate=45:freq=0.5:persistence=0.75:intensity=0.1");
    ExpectShake(shake, -2.5, 3.0, 45.0, 0.5, 0.75, 0.1F);
    shake.Deserialize("SHIFTY=1,5:Freq=2.5.5");
    ExpectShake(shake, -2.5, 1.0, 45.0, 2.5, 0.75, 0.1F);
}

TEST(CameraShake, EmptyOptionsAndAbsentOrUnknownKeysChangeNothing)
{
    SettingsEffectCameraShake shake = Shake(1.0, 2.0, 3.0, 4.0, 5.0, 0.5F);
    shake.Deserialize("");
    shake.Deserialize("shift=9:frequency=9:rotation=9:x=9");
    ExpectShake(shake, 1.0, 2.0, 3.0, 4.0, 5.0, 0.5F);
}

TEST(CameraShake, FailingConversionLeavesEarlierKeysApplied)
{
    SettingsEffectCameraShake shake = Shake(1.0, 2.0, 3.0, 4.0, 5.0, 0.5F);
    // Order: shiftx, shifty, rotate, freq, persistence, intensity.
    EXPECT_THROW(shake.Deserialize("intensity=0.25:persistence=\"1\":rotate=9:shiftx=-1"), std::invalid_argument);
    ExpectShake(shake, -1.0, 2.0, 9.0, 4.0, 5.0, 0.5F);
    EXPECT_THROW(shake.Deserialize("freq=8:intensity=1" + std::string(50, '0')), std::out_of_range);
    ExpectShake(shake, -1.0, 2.0, 9.0, 8.0, 5.0, 0.5F);
}

TEST(CameraShake, IsEmptyWhenIntensityIsNearZeroWhateverTheRest)
{
    EXPECT_TRUE(Shake(10.0, 10.0, 10.0, 1.0, 0.5, 0.0F).IsEmpty());
    EXPECT_TRUE(Shake(10.0, 10.0, 10.0, 1.0, 0.5, -0.0F).IsEmpty());
    // A subnormal float counts as zero; the smallest normal float does not.
    EXPECT_TRUE(Shake(10.0, 10.0, 10.0, 1.0, 0.5, std::numeric_limits<float>::denorm_min()).IsEmpty());
    EXPECT_TRUE(Shake(10.0, 10.0, 10.0, 1.0, 0.5, -std::numeric_limits<float>::denorm_min()).IsEmpty());
    EXPECT_FALSE(Shake(10.0, 10.0, 10.0, 1.0, 0.5, std::numeric_limits<float>::min()).IsEmpty());
}

TEST(CameraShake, ShakeWithFreqZeroIsEmptyEvenWithALargeShift)
{
    EXPECT_TRUE(Shake(1e6, 1e6, 1e6, 0.0, 0.5, 1.0F).IsEmpty());
    EXPECT_TRUE(Shake(1e6, 1e6, 1e6, std::numeric_limits<double>::denorm_min(), 0.5, 1.0F).IsEmpty());
    // The smallest normal double is not near zero.
    EXPECT_FALSE(Shake(1e6, 1e6, 1e6, std::numeric_limits<double>::min(), 0.5, 1.0F).IsEmpty());
}

TEST(CameraShake, WithRotateShiftxAndShiftyAllZeroItIsEmpty)
{
    EXPECT_TRUE(Shake(0.0, 0.0, 0.0, 1.0, 0.5, 1.0F).IsEmpty());
    const double tiny = std::numeric_limits<double>::denorm_min();
    EXPECT_TRUE(Shake(tiny, -tiny, tiny, 1.0, 0.5, 1.0F).IsEmpty());
}

TEST(CameraShake, AnyOneOfRotateShiftxShiftyMakesItNotEmpty)
{
    EXPECT_FALSE(Shake(0.5, 0.0, 0.0, 1.0, 0.5, 1.0F).IsEmpty());
    EXPECT_FALSE(Shake(0.0, -0.5, 0.0, 1.0, 0.5, 1.0F).IsEmpty());
    EXPECT_FALSE(Shake(0.0, 0.0, 1e-300, 1.0, 0.5, 1.0F).IsEmpty());
}

TEST(CameraShake, PersistenceDoesNotCountForEmptiness)
{
    EXPECT_TRUE(Shake(0.0, 0.0, 0.0, 1.0, 100.0, 1.0F).IsEmpty());
    EXPECT_FALSE(Shake(1.0, 0.0, 0.0, 1.0, 0.0, 1.0F).IsEmpty());
}

TEST(CameraShake, KeepsTheBaseComparison)
{
    const SettingsEffectCameraShake a;
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { (void)a.IsEqualTo(a); }),
              "Not implemented comparison for settings CLASS_ID = $$EffectCameraShake$$");
}

TEST(CameraShake, CloneCopiesEveryField)
{
    const SettingsEffectCameraShake original = Shake(1.0, 2.0, 3.0, 4.0, 5.0, 0.5F);
    const std::unique_ptr<Settings> clone = original.Clone();
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(clone->GetClassId(), "$$EffectCameraShake$$");
    ExpectShake(dynamic_cast<const SettingsEffectCameraShake&>(*clone), 1.0, 2.0, 3.0, 4.0, 5.0, 0.5F);
}

TEST(CameraShakeNoise, ZeroOrNegativeOctavesGiveZeroOnEveryAxis)
{
    const SettingsEffectCameraShake shake;
    for (const int octaves : {0, -1, -2, std::numeric_limits<int>::min()}) {
        SCOPED_TRACE(octaves);
        for (const double time : {0.0, 0.3, -1.75, 123.456}) {
            EXPECT_EQ(shake.GetNoizeX(time, octaves, 0.5), 0.0);
            EXPECT_EQ(shake.GetNoizeY(time, octaves, 0.5), 0.0);
            EXPECT_EQ(shake.GetNoizeR(time, octaves, 0.5), 0.0);
        }
    }
    EXPECT_FALSE(std::signbit(shake.GetNoizeX(-1.0, 0, 1.0)));
}

TEST(CameraShakeNoise, WholeNumberTimeWithOneOctaveIsHalfTheHashOfThatInteger)
{
    const SettingsEffectCameraShake shake;
    for (const HashCase& c : kHashes) {
        SCOPED_TRACE(c.k);
        for (const double persistence : {0.0, 0.5, 1.0}) {
            EXPECT_EQ(shake.GetNoizeX(c.k, 1, persistence), c.x * 0.5);
            EXPECT_EQ(shake.GetNoizeY(c.k, 1, persistence), c.y * 0.5);
            EXPECT_EQ(shake.GetNoizeR(c.k, 1, persistence), c.r * 0.5);
        }
    }
}

TEST(CameraShakeNoise, MatchesTheIndependentReferenceOnAllThreeAxes)
{
    const SettingsEffectCameraShake shake;
    for (const NoiseCase& c : kNoiseCases) {
        SCOPED_TRACE(testing::Message() << "time " << c.time << ", octaves " << c.octaves << ", persistence "
                                        << c.persistence);
        EXPECT_EQ(shake.GetNoizeX(c.time, c.octaves, c.persistence), c.x);
        EXPECT_EQ(shake.GetNoizeY(c.time, c.octaves, c.persistence), c.y);
        EXPECT_EQ(shake.GetNoizeR(c.time, c.octaves, c.persistence), c.r);
    }
}

TEST(CameraShakeNoise, TheThreeAxesDifferAtTheSameTimeAndRepeatedCallsAgreeExactly)
{
    const SettingsEffectCameraShake shake;
    for (const double time : {0.0, 0.3, 1.0, -1.75, 10.625}) {
        SCOPED_TRACE(time);
        const double x = shake.GetNoizeX(time, 3, 0.5);
        const double y = shake.GetNoizeY(time, 3, 0.5);
        const double r = shake.GetNoizeR(time, 3, 0.5);
        EXPECT_NE(x, y);
        EXPECT_NE(y, r);
        EXPECT_NE(x, r);
        for (int repeat = 0; repeat < 3; ++repeat) {
            EXPECT_EQ(shake.GetNoizeX(time, 3, 0.5), x);
            EXPECT_EQ(shake.GetNoizeY(time, 3, 0.5), y);
            EXPECT_EQ(shake.GetNoizeR(time, 3, 0.5), r);
        }
    }
}

TEST(CameraShakeNoise, WithPersistenceZeroOnlyTheFirstOctaveContributes)
{
    const SettingsEffectCameraShake shake;
    // Reference for 0.3 with one octave (any persistence): first rows of kNoiseCases.
    for (const int octaves : {1, 2, 3, 8, 40}) {
        SCOPED_TRACE(octaves);
        EXPECT_EQ(shake.GetNoizeX(0.3, octaves, 0.0), -0.13637673140496015);
        EXPECT_EQ(shake.GetNoizeY(0.3, octaves, 0.0), -0.16696169815376402);
        EXPECT_EQ(shake.GetNoizeR(0.3, octaves, 0.0), -0.06505910894848406);
    }
    // ... while a non-zero persistence lets the second octave in.
    EXPECT_NE(shake.GetNoizeX(0.3, 2, 0.5), shake.GetNoizeX(0.3, 1, 0.5));
}

TEST(CameraShakeNoise, NegativeTimesTruncateTowardZeroSoTheFractionIsNegative)
{
    const SettingsEffectCameraShake shake;
    // -1.75: i = -1, f = -0.75; the smoothstep leaves 0..1 and the value leaves -1..1.
    EXPECT_EQ(shake.GetNoizeX(-1.75, 1, 0.5), 6.5893384903683909);
    EXPECT_EQ(shake.GetNoizeY(-1.75, 1, 0.5), -2.6644786985998508);
    EXPECT_EQ(shake.GetNoizeR(-1.75, 1, 0.5), 1.6047093939014303);
    // Just below zero i is 0 (not -1), so the value is near half the hash of 0.
    EXPECT_EQ(shake.GetNoizeX(-0.0001, 1, 0.5), -0.14089550962699351);
}

TEST(CameraShakeNoise, ReadsNoFieldOfTheRecord)
{
    const SettingsEffectCameraShake empty;
    const SettingsEffectCameraShake full = Shake(5.0, 6.0, 7.0, 8.0, 0.9, 1.0F);
    for (const NoiseCase& c : kNoiseCases) {
        EXPECT_EQ(full.GetNoizeX(c.time, c.octaves, c.persistence), empty.GetNoizeX(c.time, c.octaves, c.persistence));
        EXPECT_EQ(full.GetNoizeR(c.time, c.octaves, c.persistence), c.r);
    }
}

TEST(CameraShakeNoise, PositionsOutsideIntSaturateAtTheIntLimits)
{
    const SettingsEffectCameraShake shake;
    // Our choice where the spec is silent: truncation saturates (as on 64-bit Arm), and
    // i + 1 wraps in unsigned. Reference values from the same script.
    EXPECT_EQ(shake.GetNoizeX(2147483647.5, 1, 0.5), 0.15458380850031972);
    EXPECT_EQ(shake.GetNoizeY(2147483647.5, 1, 0.5), -0.25168907875195146);
    EXPECT_EQ(shake.GetNoizeR(2147483647.5, 1, 0.5), -0.064257749821990728);
    EXPECT_EQ(shake.GetNoizeX(3e9, 1, 0.5), -1.5966948514013295e+45);
    EXPECT_EQ(shake.GetNoizeY(-3e9, 1, 0.5), 4.3185868183350303e+44);
    EXPECT_EQ(shake.GetNoizeX(1.5e9, 3, 0.5), -7.5306324468242138e+47);
    EXPECT_EQ(shake.GetNoizeR(-1.5e9, 3, 0.5), -5.9258609570898621e+47);
}

TEST(CameraShakeNoise, NotANumberTimeGivesNotANumber)
{
    const SettingsEffectCameraShake shake;
    EXPECT_TRUE(std::isnan(shake.GetNoizeX(std::numeric_limits<double>::quiet_NaN(), 2, 0.5)));
    EXPECT_TRUE(std::isnan(shake.GetNoizeY(std::numeric_limits<double>::quiet_NaN(), 1, 0.5)));
    EXPECT_TRUE(std::isnan(shake.GetNoizeR(std::numeric_limits<double>::quiet_NaN(), 1, 0.0)));
}

// ---------------------------------------------------------------- SettingsEffectGlitchMpeg

TEST(GlitchMpeg, ClassIdIsEffectGlitchMpeg)
{
    const SettingsEffectGlitchMpeg glitch;
    EXPECT_EQ(SettingsEffectGlitchMpeg::CLASS_ID, "EffectGlitchMpeg");
    EXPECT_EQ(&glitch.GetClassId(), &SettingsEffectGlitchMpeg::CLASS_ID);
}

TEST(GlitchMpeg, DefaultsAreZeroIntensityAndThreeFalseFlags)
{
    const SettingsEffectGlitchMpeg glitch;
    EXPECT_EQ(glitch.GetIntensity(), 0.0F);
    EXPECT_EQ(glitch.GetPrivateParameters(), (std::array<bool, 3>{false, false, false}));
    EXPECT_TRUE(glitch.IsEmpty());
}

TEST(GlitchMpeg, SetIntensityBelowZeroThrowsAndLeavesTheField)
{
    SettingsEffectGlitchMpeg glitch;
    glitch.SetIntensity(0.5F);
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { glitch.SetIntensity(-0.001F); }),
              "Invalid intensity value. Must be greater or equal 0.0");
    EXPECT_EQ(glitch.GetIntensity(), 0.5F);
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>(
                  [&] { glitch.SetIntensity(-std::numeric_limits<float>::denorm_min()); }),
              "Invalid intensity value. Must be greater or equal 0.0");
    EXPECT_EQ(glitch.GetIntensity(), 0.5F);
}

TEST(GlitchMpeg, SetIntensityAcceptsZeroAndLargeValues)
{
    SettingsEffectGlitchMpeg glitch;
    glitch.SetIntensity(0.0F);
    EXPECT_EQ(glitch.GetIntensity(), 0.0F);
    glitch.SetIntensity(-0.0F); // not below 0.0
    EXPECT_EQ(glitch.GetIntensity(), 0.0F);
    glitch.SetIntensity(1000.0F);
    EXPECT_EQ(glitch.GetIntensity(), 1000.0F);
}

TEST(GlitchMpeg, DeserializeGoesThroughTheCheckingSetter)
{
    SettingsEffectGlitchMpeg glitch;
    glitch.Deserialize("INTENSITY=0.3");
    EXPECT_EQ(glitch.GetIntensity(), 0.3F);
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { glitch.Deserialize("intensity=-1"); }),
              "Invalid intensity value. Must be greater or equal 0.0");
    EXPECT_EQ(glitch.GetIntensity(), 0.3F);
    glitch.Deserialize("intensity=0");
    EXPECT_EQ(glitch.GetIntensity(), 0.0F);
}

TEST(GlitchMpeg, DeserializeWithoutTheKeyOrWithABadValue)
{
    SettingsEffectGlitchMpeg glitch;
    glitch.SetIntensity(0.5F);
    glitch.Deserialize("");
    glitch.Deserialize("strength=2:intensity=abc");
    EXPECT_EQ(glitch.GetIntensity(), 0.5F);
    EXPECT_THROW(glitch.Deserialize("intensity=\"1\""), std::invalid_argument);
    EXPECT_THROW(glitch.Deserialize("intensity=-"), std::invalid_argument);
    EXPECT_EQ(glitch.GetIntensity(), 0.5F);
}

TEST(GlitchMpeg, PrivateParametersKeepTheirOrderAndNoKeyReadsThem)
{
    SettingsEffectGlitchMpeg glitch;
    glitch.SetPrivateParameters(true, false, true);
    EXPECT_EQ(glitch.GetPrivateParameters(), (std::array<bool, 3>{true, false, true}));
    glitch.SetPrivateParameters(false, true, false);
    EXPECT_EQ(glitch.GetPrivateParameters(), (std::array<bool, 3>{false, true, false}));
    glitch.Deserialize("intensity=1:first=1:second=0:third=1");
    EXPECT_EQ(glitch.GetPrivateParameters(), (std::array<bool, 3>{false, true, false}));
}

TEST(GlitchMpeg, IsEmptyWhenIntensityIsNearZero)
{
    SettingsEffectGlitchMpeg glitch;
    glitch.SetPrivateParameters(true, true, true);
    EXPECT_TRUE(glitch.IsEmpty());
    glitch.SetIntensity(std::numeric_limits<float>::denorm_min());
    EXPECT_TRUE(glitch.IsEmpty());
    glitch.SetIntensity(std::numeric_limits<float>::min());
    EXPECT_FALSE(glitch.IsEmpty());
    glitch.SetIntensity(0.5F);
    EXPECT_FALSE(glitch.IsEmpty());
}

TEST(GlitchMpeg, ComparisonLooksAtIntensityOnly)
{
    SettingsEffectGlitchMpeg a;
    SettingsEffectGlitchMpeg b;
    a.SetIntensity(0.5F);
    b.SetIntensity(0.5F);
    b.SetPrivateParameters(true, true, true);
    EXPECT_TRUE(a.IsEqualTo(b));
    EXPECT_TRUE(a == b);
    b.SetIntensity(std::nextafter(0.5F, 1.0F));
    EXPECT_FALSE(a.IsEqualTo(b));
    EXPECT_FALSE(b == a);
}

TEST(GlitchMpeg, ComparisonWithAForeignClassThrowsBadCast)
{
    EXPECT_THROW((void)SettingsEffectGlitchMpeg().IsEqualTo(SettingsEffectGlitchSecurityCam()), std::bad_cast);
}

TEST(GlitchMpeg, CloneCopiesIntensityAndTheThreeFlags)
{
    SettingsEffectGlitchMpeg original;
    original.SetIntensity(0.75F);
    original.SetPrivateParameters(true, false, true);
    const std::unique_ptr<Settings> clone = original.Clone();
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(clone->GetClassId(), "EffectGlitchMpeg");
    const auto& copy = dynamic_cast<const SettingsEffectGlitchMpeg&>(*clone);
    EXPECT_EQ(copy.GetIntensity(), 0.75F);
    EXPECT_EQ(copy.GetPrivateParameters(), (std::array<bool, 3>{true, false, true}));
}

// ---------------------------------------------------------------- SettingsEffectGlitchSecurityCam

namespace {

SettingsEffectGlitchSecurityCam SecurityCam(float intensity, float randDistortion, float constDistortion)
{
    SettingsEffectGlitchSecurityCam cam;
    cam.SetIntensity(intensity);
    cam.SetRandDistortion(randDistortion);
    cam.SetConstDistortion(constDistortion);
    return cam;
}

void ExpectCam(const SettingsEffectGlitchSecurityCam& cam, float intensity, float randDistortion, float constDistortion)
{
    EXPECT_EQ(cam.GetIntensity(), intensity);
    EXPECT_EQ(cam.GetRandDistortion(), randDistortion);
    EXPECT_EQ(cam.GetConstDistortion(), constDistortion);
}

const std::string kIntensityText = "Invalid intensity value. Must be greater or equal 0.0";
const std::string kRandText = "Invalid rand distortion value. Must be in the interval [0.0, 3.0]";
const std::string kConstText = "Invalid const distortion value. Must be in the interval [0.0, 0.5]";

} // namespace

TEST(GlitchSecurityCam, ClassIdIsEffectGlitchSecurityCam)
{
    const SettingsEffectGlitchSecurityCam cam;
    EXPECT_EQ(SettingsEffectGlitchSecurityCam::CLASS_ID, "EffectGlitchSecurityCam");
    EXPECT_EQ(&cam.GetClassId(), &SettingsEffectGlitchSecurityCam::CLASS_ID);
}

TEST(GlitchSecurityCam, DefaultsAreZero)
{
    ExpectCam(SettingsEffectGlitchSecurityCam(), 0.0F, 0.0F, 0.0F);
}

TEST(GlitchSecurityCam, DeserializeReadsTheThreeKeysThroughTheSetters)
{
    SettingsEffectGlitchSecurityCam cam;
    cam.Deserialize("intensity=2.5:randDist=1.5:constDist=0.25");
    ExpectCam(cam, 2.5F, 1.5F, 0.25F);
    cam.Deserialize("RANDDIST=0.1:constdist=0,3");
    ExpectCam(cam, 2.5F, 0.1F, 0.0F);
}

TEST(GlitchSecurityCam, RandDistGivenAsThreeIsAcceptedAndAs301Raises)
{
    SettingsEffectGlitchSecurityCam cam;
    cam.Deserialize("randDist=3.0");
    EXPECT_EQ(cam.GetRandDistortion(), 3.0F);
    cam.Deserialize("randDist=1");
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { cam.Deserialize("randDist=3.01"); }), kRandText);
    EXPECT_EQ(cam.GetRandDistortion(), 1.0F);
}

TEST(GlitchSecurityCam, ConstDistGivenAsHalfIsAcceptedAndAs051Raises)
{
    SettingsEffectGlitchSecurityCam cam;
    cam.Deserialize("constDist=0.5");
    EXPECT_EQ(cam.GetConstDistortion(), 0.5F);
    cam.Deserialize("constDist=0.125");
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { cam.Deserialize("constDist=0.51"); }), kConstText);
    EXPECT_EQ(cam.GetConstDistortion(), 0.125F);
}

TEST(GlitchSecurityCam, SettersAcceptTheirClosedIntervals)
{
    SettingsEffectGlitchSecurityCam cam;
    cam.SetRandDistortion(0.0F);
    cam.SetConstDistortion(0.0F);
    cam.SetIntensity(0.0F);
    ExpectCam(cam, 0.0F, 0.0F, 0.0F);
    cam.SetRandDistortion(3.0F);
    cam.SetConstDistortion(0.5F);
    cam.SetIntensity(1e30F);
    ExpectCam(cam, 1e30F, 3.0F, 0.5F);
}

TEST(GlitchSecurityCam, SettersRefuseValuesOutsideAndLeaveTheirField)
{
    SettingsEffectGlitchSecurityCam cam = SecurityCam(1.0F, 2.0F, 0.25F);
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { cam.SetIntensity(-0.5F); }), kIntensityText);
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { cam.SetRandDistortion(-0.01F); }), kRandText);
    EXPECT_EQ(
        ZorvanTest::FormADescription<SettingsException>([&] { cam.SetRandDistortion(std::nextafter(3.0F, 4.0F)); }),
        kRandText);
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { cam.SetConstDistortion(-0.01F); }), kConstText);
    EXPECT_EQ(
        ZorvanTest::FormADescription<SettingsException>([&] { cam.SetConstDistortion(std::nextafter(0.5F, 1.0F)); }),
        kConstText);
    ExpectCam(cam, 1.0F, 2.0F, 0.25F);
}

TEST(GlitchSecurityCam, NotANumberIsRefusedByTheIntervalsButNotBelowZero)
{
    // "accepted in 0.0..3.0" refuses NaN; "a value below 0.0 raises" lets it through.
    SettingsEffectGlitchSecurityCam cam = SecurityCam(1.0F, 2.0F, 0.25F);
    const float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { cam.SetRandDistortion(nan); }), kRandText);
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { cam.SetConstDistortion(nan); }), kConstText);
    ExpectCam(cam, 1.0F, 2.0F, 0.25F);
    cam.SetIntensity(nan);
    EXPECT_TRUE(std::isnan(cam.GetIntensity()));
}

TEST(GlitchSecurityCam, AFailedSetterInDeserializeKeepsTheEarlierKeys)
{
    SettingsEffectGlitchSecurityCam cam = SecurityCam(1.0F, 2.0F, 0.25F);
    // Order: intensity, randDist, constDist.
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>(
                  [&] { cam.Deserialize("constDist=0.125:randDist=4:intensity=3"); }),
              kRandText);
    ExpectCam(cam, 3.0F, 2.0F, 0.25F);
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>(
                  [&] { cam.Deserialize("constDist=0.125:randDist=0.5:intensity=-2"); }),
              kIntensityText);
    ExpectCam(cam, 3.0F, 2.0F, 0.25F);
    EXPECT_THROW(cam.Deserialize("constDist=-:randDist=0.5"), std::invalid_argument);
    ExpectCam(cam, 3.0F, 0.5F, 0.25F);
}

TEST(GlitchSecurityCam, EmptyOptionsAndAbsentOrUnknownKeysChangeNothing)
{
    SettingsEffectGlitchSecurityCam cam = SecurityCam(1.0F, 2.0F, 0.25F);
    cam.Deserialize("");
    cam.Deserialize("rand=1:const=0.1:dist=2:randDistortion=1");
    ExpectCam(cam, 1.0F, 2.0F, 0.25F);
}

TEST(GlitchSecurityCam, IsEmptyIsTheBasesFalse)
{
    EXPECT_FALSE(SettingsEffectGlitchSecurityCam().IsEmpty());
}

TEST(GlitchSecurityCam, EveryOneOfTheThreeFieldsTakesPartInTheComparison)
{
    const SettingsEffectGlitchSecurityCam base = SecurityCam(1.0F, 2.0F, 0.25F);
    EXPECT_TRUE(base.IsEqualTo(SecurityCam(1.0F, 2.0F, 0.25F)));
    EXPECT_TRUE(base == SecurityCam(1.0F, 2.0F, 0.25F));
    EXPECT_FALSE(base.IsEqualTo(SecurityCam(std::nextafter(1.0F, 2.0F), 2.0F, 0.25F)));
    EXPECT_FALSE(base.IsEqualTo(SecurityCam(1.0F, std::nextafter(2.0F, 3.0F), 0.25F)));
    EXPECT_FALSE(base.IsEqualTo(SecurityCam(1.0F, 2.0F, std::nextafter(0.25F, 0.0F))));
}

TEST(GlitchSecurityCam, ComparisonWithAForeignClassThrowsBadCast)
{
    EXPECT_THROW((void)SettingsEffectGlitchSecurityCam().IsEqualTo(SettingsEffectGlitchMpeg()), std::bad_cast);
}

TEST(GlitchSecurityCam, CloneCopiesTheThreeFields)
{
    const SettingsEffectGlitchSecurityCam original = SecurityCam(1.0F, 2.0F, 0.25F);
    const std::unique_ptr<Settings> clone = original.Clone();
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(clone->GetClassId(), "EffectGlitchSecurityCam");
    ExpectCam(dynamic_cast<const SettingsEffectGlitchSecurityCam&>(*clone), 1.0F, 2.0F, 0.25F);
    EXPECT_TRUE(clone->IsEqualTo(original));
}

// ---------------------------------------------------------------- SettingsEffectTiltShiftVEZ

namespace {

using Line = std::array<double, 3>;

SettingsEffectTiltShiftVEZ FilledTiltShift()
{
    SettingsEffectTiltShiftVEZ tilt;
    tilt.SetUpperLine(1.0, 2.0, 3.0);
    tilt.SetLowerLine(4.0, 5.0, 6.0);
    tilt.SetParams(0.5, 0.75);
    return tilt;
}

void ExpectTilt(const SettingsEffectTiltShiftVEZ& t, const Line& upper, const Line& lower, double smoothness,
                double blurness)
{
    EXPECT_EQ(t.GetUpperLine(), upper);
    EXPECT_EQ(t.GetLowerLine(), lower);
    EXPECT_EQ(t.GetSmoothness(), smoothness);
    EXPECT_EQ(t.GetBlurness(), blurness);
}

} // namespace

TEST(TiltShiftVEZ, ClassIdIsDollarEffectTiltShiftVEZ)
{
    const SettingsEffectTiltShiftVEZ tilt;
    EXPECT_EQ(SettingsEffectTiltShiftVEZ::CLASS_ID, "$$EffectTiltShiftVEZ$$");
    EXPECT_EQ(&tilt.GetClassId(), &SettingsEffectTiltShiftVEZ::CLASS_ID);
}

TEST(TiltShiftVEZ, DefaultsAreZero)
{
    ExpectTilt(SettingsEffectTiltShiftVEZ(), {0.0, 0.0, 0.0}, {0.0, 0.0, 0.0}, 0.0, 0.0);
}

TEST(TiltShiftVEZ, SettersStoreUnchecked)
{
    SettingsEffectTiltShiftVEZ tilt;
    tilt.SetUpperLine(-1.0, 0.5, 1e300);
    tilt.SetLowerLine(7.0, -8.0, 9.0);
    tilt.SetParams(-2.0, 3.5);
    ExpectTilt(tilt, {-1.0, 0.5, 1e300}, {7.0, -8.0, 9.0}, -2.0, 3.5);
}

TEST(TiltShiftVEZ, DeserializeReadsBothLinesAndBothParameters)
{
    SettingsEffectTiltShiftVEZ tilt;
    tilt.Deserialize("ua=0.1:ub=-0.2:uc=0.3:la=1:lb=2,5:lc=3.5.1:smoothness=0.25:blurness=4");
    ExpectTilt(tilt, {0.1, -0.2, 0.3}, {1.0, 2.0, 3.5}, 0.25, 4.0);
}

TEST(TiltShiftVEZ, UaAndUbOnlyLeaveTheUpperLine)
{
    SettingsEffectTiltShiftVEZ tilt = FilledTiltShift();
    tilt.Deserialize("ua=9:ub=9:smoothness=0.125");
    ExpectTilt(tilt, {1.0, 2.0, 3.0}, {4.0, 5.0, 6.0}, 0.125, 0.75);
}

TEST(TiltShiftVEZ, EachLineStaysWhenAnyOneOfItsKeysIsAbsentWhileACompleteLineApplies)
{
    for (const std::string options :
         {"ub=9:uc=9:la=7:lb=8:lc=9", "ua=9:uc=9:la=7:lb=8:lc=9", "ua=9:ub=9:la=7:lb=8:lc=9"}) {
        SCOPED_TRACE(options);
        SettingsEffectTiltShiftVEZ tilt = FilledTiltShift();
        tilt.Deserialize(options);
        ExpectTilt(tilt, {1.0, 2.0, 3.0}, {7.0, 8.0, 9.0}, 0.5, 0.75);
    }
    for (const std::string options :
         {"lb=9:lc=9:UA=7:UB=8:UC=9", "la=9:lc=9:ua=7:ub=8:uc=9", "la=9:lb=9:ua=7:ub=8:uc=9"}) {
        SCOPED_TRACE(options);
        SettingsEffectTiltShiftVEZ tilt = FilledTiltShift();
        tilt.Deserialize(options);
        ExpectTilt(tilt, {7.0, 8.0, 9.0}, {4.0, 5.0, 6.0}, 0.5, 0.75);
    }
}

TEST(TiltShiftVEZ, EmptyOptionsAndAbsentOrUnknownKeysChangeNothing)
{
    SettingsEffectTiltShiftVEZ tilt = FilledTiltShift();
    tilt.Deserialize("");
    tilt.Deserialize("u=1:l=2:smooth=3:blur=4:uaa=5");
    ExpectTilt(tilt, {1.0, 2.0, 3.0}, {4.0, 5.0, 6.0}, 0.5, 0.75);
    tilt.Deserialize("blurness=1.5");
    ExpectTilt(tilt, {1.0, 2.0, 3.0}, {4.0, 5.0, 6.0}, 0.5, 1.5);
}

TEST(TiltShiftVEZ, FailingConversionLeavesEarlierKeysApplied)
{
    SettingsEffectTiltShiftVEZ tilt = FilledTiltShift();
    // Order: upper line, lower line, smoothness, blurness. A failure inside a group keeps
    // the whole group.
    EXPECT_THROW(tilt.Deserialize("blurness=9:smoothness=9:la=7:lb=-:lc=9:ua=-1:ub=-2:uc=-3"), std::invalid_argument);
    ExpectTilt(tilt, {-1.0, -2.0, -3.0}, {4.0, 5.0, 6.0}, 0.5, 0.75);
    EXPECT_THROW(tilt.Deserialize("blurness=9:smoothness=\"1\""), std::invalid_argument);
    ExpectTilt(tilt, {-1.0, -2.0, -3.0}, {4.0, 5.0, 6.0}, 0.5, 0.75);
}

TEST(TiltShiftVEZ, KeepsTheBaseComparisonAndEmptiness)
{
    const SettingsEffectTiltShiftVEZ tilt;
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { (void)tilt.IsEqualTo(tilt); }),
              "Not implemented comparison for settings CLASS_ID = $$EffectTiltShiftVEZ$$");
    EXPECT_FALSE(tilt.IsEmpty());
}

TEST(TiltShiftVEZ, CloneCopiesEveryField)
{
    const SettingsEffectTiltShiftVEZ original = FilledTiltShift();
    const std::unique_ptr<Settings> clone = original.Clone();
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(clone->GetClassId(), "$$EffectTiltShiftVEZ$$");
    ExpectTilt(dynamic_cast<const SettingsEffectTiltShiftVEZ&>(*clone), {1.0, 2.0, 3.0}, {4.0, 5.0, 6.0}, 0.5, 0.75);
}
