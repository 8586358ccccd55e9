// Denoise, grain and sharpen records, read back through the catalogue's fields.
#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <utility>

#include "Proc/Settings/SettingsEffectAddNoize.h"
#include "Proc/Settings/SettingsEffectDenoiseChromaLuma.h"
#include "Proc/Settings/SettingsEffectDenoiseDCT.h"
#include "Proc/Settings/SettingsEffectDenoiseOvercompleteWavelet.h"
#include "Proc/Settings/SettingsEffectNoiseVideo.h"
#include "Proc/Settings/SettingsEffectRemoveGrain.h"
#include "Proc/Settings/SettingsEffectSharpen.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;

namespace {

std::string Fields(const Settings& s)
{
    return Zorvan::SettingsCatalog::Find(s.GetClassId())->FieldsToJson(s).dump();
}

} // namespace

// The mode is checked before the plane, and a refused call leaves the modes as they were.
TEST(RemoveGrain, ModeAndPlaneBounds)
{
    const struct {
        int plane, mode;
        const char* message;
    } cases[] = {
        {0, 25, "Invalid mode value"},  {0, -1, "Invalid mode value"},   {4, 25, "Invalid mode value"},
        {4, 1, "Invalid plane index!"}, {-1, 0, "Invalid plane index!"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.plane) + " " + std::to_string(c.mode));
        SettingsEffectRemoveGrain grain;
        grain.Deserialize("m0=7:m3=5");
        EXPECT_EQ(ZorvanTest::FormADescription<EffectException>([&] { grain.SetMode(c.plane, c.mode); }), c.message);
        EXPECT_EQ(Fields(grain), R"({"modes":[7,0,0,5]})");
    }
    const SettingsEffectRemoveGrain grain;
    for (int plane : {-1, 4}) {
        EXPECT_EQ(ZorvanTest::FormADescription<EffectException>([&] { (void)grain.GetMode(plane); }),
                  "Invalid plane index!");
    }
}

// A failing key shows which keys were read before it; 24 is the highest mode a plane takes.
TEST(DenoiseAndGrain, DeserializeKeysInOrder)
{
    const struct {
        const char* id;
        const char* options;
        const char* values;
        std::string thrown = "nothing";
    } cases[] = {
        {"EffectRemoveGrain", "M3=24:m0=1.9:m1=2,5", R"({"modes":[1,2,0,24]})"},
        {"EffectRemoveGrain", "m2=3:m1=25:m0=1", R"({"modes":[1,0,0,0]})",
         typeid(boost::wrapexcept<EffectException>).name()},
        // Stored straight, past the 0..1 of the setter.
        {"$$EffectAddNoize$$", "level=2:type=3.7", R"({"level":2.0,"type":3})"},
        {"$$EffectAddNoize$$", "type=-:level=-0.5", R"({"level":-0.5,"type":0})", typeid(std::invalid_argument).name()},
        {"$$Effect_Sharpen$$", "level=-1,5", R"({"level":-1.0})"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.id) + " " + c.options);
        const auto record = Zorvan::SettingsCatalog::Find(c.id)->create();
        EXPECT_EQ(ZorvanTest::ThrownType([&] { record->Deserialize(c.options); }), c.thrown);
        EXPECT_EQ(Fields(*record), c.values);
        EXPECT_EQ(Fields(*record->Clone()), c.values);
    }
}

TEST(AddNoize, SetLevelClampsAndDropsTheSignOfZero)
{
    using Case = std::pair<double, double>; // given, stored
    for (const auto& [level, stored] : {Case{2.0, 1.0}, Case{0.25, 0.25}, Case{-0.5, 0.0}, Case{-0.0, 0.0}}) {
        SettingsEffectAddNoize noise;
        noise.SetLevel(level);
        EXPECT_EQ(noise.GetLevel(), stored) << level;
        EXPECT_FALSE(std::signbit(noise.GetLevel())) << level;
    }
}

// Each step changes one record and checks its emptiness and its comparison with the other.
TEST(DenoiseAndGrain, EmptinessAndComparison)
{
    SettingsEffectDenoiseChromaLuma luma, lumaOther;
    lumaOther.SetChromaTemporal(4.500001);
    EXPECT_TRUE(!luma.IsEmpty() && luma.IsEqualTo(lumaOther));
    luma.SetLumaSpatial(0.0);
    lumaOther.SetLumaSpatial(0.00001); // exactly the tolerance apart
    EXPECT_FALSE(luma.IsEmpty() || luma.IsEqualTo(lumaOther));
    luma.SetChromaSpatial(0.0); // the temporal strengths do not count
    EXPECT_TRUE(luma.IsEmpty());

    SettingsEffectDenoiseDCT dct, dctOther;
    EXPECT_TRUE(dct.IsEmpty() && dct.IsEqualTo(dctOther));
    dct.SetSigma(-1.0);
    EXPECT_FALSE(dct.IsEmpty() || dct.IsEqualTo(dctOther));
    dct.SetBlockSizeBits(0);
    EXPECT_TRUE(dct.IsEmpty());

    SettingsEffectDenoiseOvercompleteWavelet wavelet, waveletOther;
    EXPECT_TRUE(wavelet.IsEmpty() && wavelet.IsEqualTo(waveletOther));
    wavelet.SetChromaStrength(1e-300);
    EXPECT_FALSE(wavelet.IsEmpty() || wavelet.IsEqualTo(waveletOther));

    using Noise = SettingsEffectNoiseVideo;
    Noise noise(5, Noise::Method::Gaussian), noiseOther(5, Noise::Method::Gaussian);
    EXPECT_EQ(Fields(noise), R"({"method":1,"seed":0,"strength":5})");
    noiseOther.SetSeed(9); // the seed takes no part
    EXPECT_TRUE(!noise.IsEmpty() && noise.IsEqualTo(noiseOther));
    EXPECT_TRUE(Noise(0, Noise::Method::Pattern).IsEmpty());
    EXPECT_FALSE(noise.IsEqualTo(Noise(5, Noise::Method::Pattern)));

    SettingsEffectRemoveGrain grain;
    grain.SetMode(3, 1);
    EXPECT_FALSE(grain.IsEmpty() || grain.IsEqualTo(SettingsEffectRemoveGrain()));
}
