// Camera shake, glitch, tilt shift and bokeh records, read back through the catalogue's field
// lists.
#include <gtest/gtest.h>

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
#include "RecordSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::Call;
using ZorvanTest::Change;
using ZorvanTest::CheckKeyCases;
using ZorvanTest::Fails;
using ZorvanTest::KeyCase;
using ZorvanTest::Make;
using ZorvanTest::Opts;
using ZorvanTest::Values;

namespace {

const char* const kShake = "$$EffectCameraShake$$";
const char* const kBokeh = "$$EffectBokehBlur$$";
const char* const kMpeg = "EffectGlitchMpeg";
const char* const kCam = "EffectGlitchSecurityCam";
const char* const kTilt = "$$EffectTiltShiftVEZ$$";
const std::string kLines = "ua=1:ub=2:uc=3:la=4:lb=5:lc=6";
const std::string kCamFilled = "intensity=1:randDist=2:constDist=0.25";
const char* const kCamValues = "[1.0,2.0,0.25]";

} // namespace

// Camera shake and bokeh store straight into the fields; tilt shift reads each line as a
// group; the glitch records go through their setters.
TEST(ShakeGlitchTilt, KeysConversionsAndOrder)
{
    using enum Fails;
    const std::vector<KeyCase> cases = {
        {kShake, "", "shiftx=-2.5:shifty=3:rotate=45:freq=0.5:persistence=0.75:intensity=0.1", No,
         "[-2.5,3.0,45.0,0.5,0.75,0.10000000149011612]"},
        {kShake, "", "intensity=1:persistence=-:freq=4:rotate=3:shifty=2:shiftx=1", Invalid,
         "[1.0,2.0,3.0,4.0,0.0,0.0]"},
        {kBokeh, "", "size=12.5:exposure=-3:hdrborder=0.75:intensity=0.1", No,
         "[12.5,-3.0,0.75,null,0.10000000149011612]"},
        {kBokeh, "", "intensity=1:hdrborder=-:exposure=2:size=1", Invalid, "[1.0,2.0,0.0,null,0.0]"},
        {kMpeg, "", "INTENSITY=0.1:first=1", No, "[0.10000000149011612,[false,false,false]]"},
        {kCam, "", "intensity=2.5:randDist=1.5:constDist=0.1", No, "[2.5,1.5,0.10000000149011612]"},
        {kCam, kCamFilled, "constDist=-:randDist=0.5", Invalid, "[1.0,0.5,0.25]"},
        {kCam, kCamFilled, "intensity=1" + std::string(50, '0'), Range, kCamValues},
        // Upper line, lower line, smoothness, blurness.
        {kTilt, "", "ua=0.1:ub=-0.2:uc=0.3:la=1:lb=2,5:lc=3.5.1:smoothness=0.25:blurness=4", No,
         "[[0.1,-0.2,0.3],[1.0,2.0,3.5],0.25,4.0]"},
        {kTilt, kLines, "ua=9:ub=9:smoothness=0.125", No, "[[1.0,2.0,3.0],[4.0,5.0,6.0],0.125,0.0]"},
        {kTilt, kLines, "ub=9:uc=9:la=7:lb=8:lc=9", No, "[[1.0,2.0,3.0],[7.0,8.0,9.0],0.0,0.0]"},
        {kTilt, kLines, "lb=9:lc=9:UA=7:UB=8:UC=9", No, "[[7.0,8.0,9.0],[4.0,5.0,6.0],0.0,0.0]"},
        {kTilt, kLines, "la=9:lb=9:ua=7:ub=8:uc=9:blurness=1.5", No, "[[7.0,8.0,9.0],[4.0,5.0,6.0],0.0,1.5]"},
        // A failure inside the lower line leaves the whole line and everything after it.
        {kTilt, kLines, "blurness=9:smoothness=9:la=7:lb=-:lc=9:ua=-1:ub=-2:uc=-3", Invalid,
         "[[-1.0,-2.0,-3.0],[4.0,5.0,6.0],0.0,0.0]"},
        {kTilt, kLines, "blurness=9:smoothness=\"1\"", Invalid, "[[1.0,2.0,3.0],[4.0,5.0,6.0],0.0,0.0]"},
    };
    CheckKeyCases(cases);
}

// The checks hold for parsed values too, and a refused value leaves its field.
TEST(Glitch, CheckedSettersAndComparison)
{
    using Cam = SettingsEffectGlitchSecurityCam;
    using Mpeg = SettingsEffectGlitchMpeg;
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const std::string intensity = "Invalid intensity value. Must be greater or equal 0.0";
    const std::string rand = "Invalid rand distortion value. Must be in the interval [0.0, 3.0]";
    const std::string constant = "Invalid const distortion value. Must be in the interval [0.0, 0.5]";
    const char* const mpeg = "[0.5,[false,false,false]]";
    const struct {
        const char* id;
        Change call;
        std::string message; // empty when the value is taken
        const char* values;
    } cases[] = {
        {kMpeg, Call(&Mpeg::SetIntensity, -std::numeric_limits<float>::denorm_min()), intensity, mpeg},
        {kMpeg, Call(&Mpeg::SetIntensity, -0.0F), "", "[-0.0,[false,false,false]]"},
        {kMpeg, Opts("intensity=-1"), intensity, mpeg},
        {kMpeg, Opts("intensity=0.50000006"), "", "[0.5000000596046448,[false,false,false]]"},
        {kCam, Call(&Cam::SetIntensity, -0.5F), intensity, kCamValues},
        {kCam, Opts("intensity=1.0000001"), "", "[1.0000001192092896,2.0,0.25]"},
        {kCam, Opts("randDist=2.0000002"), "", "[1.0,2.000000238418579,0.25]"},
        {kCam, Opts("constDist=0.24999999"), "", "[1.0,2.0,0.2499999850988388]"},
        {kCam, Call(&Cam::SetIntensity, nan), "", "[null,2.0,0.25]"},
        {kCam, Call(&Cam::SetRandDistortion, -0.01F), rand, kCamValues},
        {kCam, Call(&Cam::SetRandDistortion, std::nextafter(3.0F, 4.0F)), rand, kCamValues},
        {kCam, Call(&Cam::SetRandDistortion, nan), rand, kCamValues},
        {kCam, Call(&Cam::SetRandDistortion, 0.0F), "", "[1.0,0.0,0.25]"},
        {kCam, Opts("randDist=3.0"), "", "[1.0,3.0,0.25]"},
        {kCam, Opts("randDist=3.01"), rand, kCamValues},
        {kCam, Call(&Cam::SetConstDistortion, -0.01F), constant, kCamValues},
        {kCam, Call(&Cam::SetConstDistortion, std::nextafter(0.5F, 1.0F)), constant, kCamValues},
        {kCam, Call(&Cam::SetConstDistortion, nan), constant, kCamValues},
        {kCam, Call(&Cam::SetConstDistortion, 0.0F), "", "[1.0,2.0,0.0]"},
        {kCam, Opts("constDist=0.5"), "", "[1.0,2.0,0.5]"},
        {kCam, Opts("constDist=0.51"), constant, kCamValues},
        // Order intensity, randDist, constDist.
        {kCam, Opts("constDist=0.125:randDist=4:intensity=3"), rand, "[3.0,2.0,0.25]"},
        {kCam, Opts("constDist=0.125:randDist=0.5:intensity=-2"), intensity, kCamValues},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        const auto record = Make(c.id);
        record->Deserialize(c.id == std::string(kMpeg) ? "intensity=0.5" : kCamFilled);
        const auto before = record->Clone();
        if (c.message.empty()) {
            EXPECT_NO_THROW(c.call(*record));
        } else {
            EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { c.call(*record); }), c.message);
        }
        EXPECT_EQ(Values(*record), c.values);
        // Exact comparison: a change of one unit in the last place counts.
        EXPECT_EQ(record->IsEqualTo(*before), Values(*before) == c.values);
    }
    // The flags of the mpeg glitch take no part in its comparison.
    SettingsEffectGlitchMpeg flags;
    flags.SetPrivateParameters(true, true, true);
    EXPECT_TRUE(flags.IsEqualTo(SettingsEffectGlitchMpeg()));
    EXPECT_THROW((void)SettingsEffectGlitchMpeg().IsEqualTo(SettingsEffectGlitchSecurityCam()), std::bad_cast);
    EXPECT_THROW((void)SettingsEffectGlitchSecurityCam().IsEqualTo(SettingsEffectGlitchMpeg()), std::bad_cast);
}

// Shake: intensity near zero, else freq near zero, else rotate, shiftx and shifty all near zero.
TEST(ShakeGlitchTilt, IsEmpty)
{
    using CS = SettingsEffectCameraShake;
    using Mpeg = SettingsEffectGlitchMpeg;
    const float fDenorm = std::numeric_limits<float>::denorm_min();
    const double denorm = std::numeric_limits<double>::denorm_min();
    const Change shaking = Call(&CS::SetSettings, 10.0, 10.0, 10.0, 1.0, 0.5);
    const Change flags = Call(&Mpeg::SetPrivateParameters, true, true, true);
    const struct {
        const char* id;
        std::vector<Change> steps;
        bool empty;
    } cases[] = {
        {kShake, {shaking, Call(&CS::SetIntensity, 0.0F)}, true},
        {kShake, {shaking, Call(&CS::SetIntensity, fDenorm)}, true},
        {kShake, {shaking, Call(&CS::SetIntensity, std::numeric_limits<float>::min())}, false},
        {kShake, {Call(&CS::SetSettings, 1e6, 1e6, 1e6, 0.0, 0.5), Call(&CS::SetIntensity, 1.0F)}, true},
        {kShake, {Call(&CS::SetSettings, 1e6, 1e6, 1e6, denorm, 0.5), Call(&CS::SetIntensity, 1.0F)}, true},
        {kShake,
         {Call(&CS::SetSettings, 1e6, 1e6, 1e6, std::numeric_limits<double>::min(), 0.5),
          Call(&CS::SetIntensity, 1.0F)},
         false},
        {kShake, {Call(&CS::SetSettings, 0.0, 0.0, 0.0, 1.0, 100.0), Call(&CS::SetIntensity, 1.0F)}, true},
        {kShake, {Call(&CS::SetSettings, denorm, -denorm, denorm, 1.0, 0.5), Call(&CS::SetIntensity, 1.0F)}, true},
        {kShake, {Call(&CS::SetSettings, 0.5, 0.0, 0.0, 1.0, 0.0), Call(&CS::SetIntensity, 1.0F)}, false},
        {kShake, {Call(&CS::SetSettings, 0.0, -0.5, 0.0, 1.0, 0.5), Call(&CS::SetIntensity, 1.0F)}, false},
        {kShake, {Call(&CS::SetSettings, 0.0, 0.0, 1e-300, 1.0, 0.5), Call(&CS::SetIntensity, 1.0F)}, false},
        {kMpeg, {flags, Call(&Mpeg::SetIntensity, 0.0F)}, true},
        {kMpeg, {flags, Call(&Mpeg::SetIntensity, fDenorm)}, true},
        {kMpeg, {flags, Call(&Mpeg::SetIntensity, std::numeric_limits<float>::min())}, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Make(c.id, c.steps)->IsEmpty(), c.empty) << &c - cases;
    }
}

// Expected values from an independent Python transcription of the noise (IEEE doubles, each
// fused step as the exact rational result rounded once), 17 significant digits. Several rows
// go wrong when one of the four fused steps is left unfused.
TEST(CameraShake, Noise)
{
    const struct {
        double time;
        int octaves;
        double persistence;
        double x;
        double y;
        double r;
    } cases[] = {
        // clang-format off
        {0.3, 0, 0.5, 0.0, 0.0, 0.0},
        {-1.75, -1, 0.5, 0.0, 0.0, 0.0},
        {0.3, 1, 0.5, -0.13637673140496015, -0.16696169815376402, -0.06505910894848406},
        {0.713, 1, 0.5, -0.11724070921596182, -0.27734621355503736, 0.25609126449815828},
        // Whole-number times with one octave: half the hash of the integer.
        {0.0, 1, 0.5, -0.14089550962671638, -0.14089551055803895, -0.14089552359655499},
        {5.0, 1, 0.0, -0.35647068312391639, 0.20305372169241309, 0.32187361037358642},
        {-7.0, 1, 0.5, 0.0092015438713133335, 0.31369101768359542, -0.077650441322475672},
        // Negative times truncate toward zero, so the fraction is negative.
        {-0.3, 1, 0.5, -0.15214756665572524, -0.075988977207094438, -0.32973321834936736},
        {-0.0001, 1, 0.5, -0.14089550962699351, -0.14089551055644034, -0.14089552360120594},
        {-1.75, 1, 0.5, 6.5893384903683909, -2.6644786985998508, 1.6047093939014303},
        {0.3, 2, 0.5, -0.19736797020457686, -0.29195856124900282, 0.023197149311453127},
        // Persistence 0: only the first octave counts.
        {0.3, 2, 0.0, -0.13637673140496015, -0.16696169815376402, -0.06505910894848406},
        {0.3, 40, 0.0, -0.13637673140496015, -0.16696169815376402, -0.06505910894848406},
        {0.3, 2, 1.0, -0.25835920900419351, -0.4169554243442416, 0.11145340757139031},
        {-10.481, 2, 0.65, 17.38807753490282, 0.52657655009936954, -3.6381163678446926},
        {123.456, 3, 1.0, -0.29828419117601107, -0.35029045335216241, 0.047061154628940838},
        {-123.456, 4, 0.5, 2.8682987910649311, -0.97535243850313269, -3.2194675106622608},
        {16.64, 4, 0.3, -0.043286757808206816, -0.31919343447892728, -0.075327026197650457},
        {10.625, 8, 0.65, 0.27266610336993519, -0.64778776403627847, 0.43220975639929377},
        // Beyond the int range the lattice index saturates and the index after it wraps.
        {2147483647.5, 1, 0.5, 0.15458380850031972, -0.25168907875195146, -0.064257749821990728},
        {3e9, 1, 0.5, -1.5966948514013295e+45, 5.987001764622513e+44, -4.1413097737046025e+44},
        {-3e9, 1, 0.5, -7.4866092295968513e+43, 4.3185868183350303e+44, -1.2564405110882453e+45},
        {1.5e9, 3, 0.5, -7.5306324468242138e+47, 2.8237023316190159e+47, -1.9532023746954102e+47},
        // clang-format on
    };
    // The noise reads no field of the record.
    SettingsEffectCameraShake shake;
    shake.Deserialize("shiftx=5:shifty=6:rotate=7:freq=8:persistence=0.9:intensity=1");
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.time << ", " << c.octaves << " octaves, persistence " << c.persistence);
        EXPECT_EQ(shake.GetNoizeX(c.time, c.octaves, c.persistence), c.x);
        EXPECT_EQ(shake.GetNoizeY(c.time, c.octaves, c.persistence), c.y);
        EXPECT_EQ(shake.GetNoizeR(c.time, c.octaves, c.persistence), c.r);
    }
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(std::isnan(shake.GetNoizeX(nan, 2, 0.5)));
    EXPECT_TRUE(std::isnan(shake.GetNoizeY(nan, 1, 0.5)));
    EXPECT_TRUE(std::isnan(shake.GetNoizeR(nan, 1, 0.0)));
}

TEST(BokehBlur, AnEmptyImageIsReplacedAndClonesShareTheImage)
{
    SettingsEffectBokehBlur bokeh;
    bokeh.SetImage(nullptr);
    ASSERT_NE(bokeh.GetImage(), nullptr);
    EXPECT_TRUE(bokeh.GetImage()->IsEmpty());
    const auto image = std::make_shared<const ImageHandler>(1, 1, std::vector<std::uint8_t>{9});
    bokeh.SetImage(image);
    EXPECT_EQ(dynamic_cast<const SettingsEffectBokehBlur&>(*bokeh.Clone()).GetImage(), image);
}
