// Part 6.1: simple stylising effects. Expected values of the computed getters were worked
// out by hand and with python3 (float32 rounding through struct, exact products through
// fractions), not by running the code under test.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <functional>
#include <iterator>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <vector>

#include "Proc/Settings/SettingsEffectBlur.h"
#include "Proc/Settings/SettingsEffectChromaticAberration.h"
#include "Proc/Settings/SettingsEffectDiffuse.h"
#include "Proc/Settings/SettingsEffectEdgeDetect.h"
#include "Proc/Settings/SettingsEffectEmboss.h"
#include "Proc/Settings/SettingsEffectErosion.h"
#include "Proc/Settings/SettingsEffectFilmStrip.h"
#include "Proc/Settings/SettingsEffectFindEdges.h"
#include "Proc/Settings/SettingsEffectFishEye.h"
#include "Proc/Settings/SettingsEffectGlassMosaic.h"
#include "Proc/Settings/SettingsEffectJalousie.h"
#include "Proc/Settings/SettingsEffectLensDistortion.h"
#include "Proc/Settings/SettingsEffectLensFlare.h"
#include "Proc/Settings/SettingsEffectLightLeaks.h"
#include "Proc/Settings/SettingsEffectMosaic.h"
#include "Proc/Settings/SettingsEffectMotionBlur.h"
#include "Proc/Settings/SettingsEffectNeonLamp.h"
#include "Proc/Settings/SettingsEffectOilPaint.h"
#include "Proc/Settings/SettingsEffectRetroArtefacts.h"
#include "Proc/Settings/SettingsEffectSmartBlur.h"
#include "Proc/Settings/SettingsEffectStripes.h"
#include "Proc/Settings/SettingsEffectTelevision70s.h"
#include "Proc/Settings/SettingsEffectTwirl.h"
#include "Proc/Settings/SettingsEffectVHS.h"
#include "Proc/Settings/SettingsEffectVertigo.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;

namespace {

// A number that overflows a float but not a double: std::stof throws std::out_of_range.
const std::string kHuge = "1" + std::string(50, '0');
const double kHugeDouble = 1e50;

std::string NotComparable(const std::string& id)
{
    return "Not implemented comparison for settings CLASS_ID = " + id;
}

std::string NotFillable(const std::string& id)
{
    return "Not implemented fill from string for settings CLASS_ID = " + id;
}

template <class C>
std::string CompareFailure()
{
    const C a;
    const C b;
    return ZorvanTest::FormADescription<SettingsException>([&] { (void)a.IsEqualTo(b); });
}

template <class C>
std::string DeserializeFailure(const std::string& options)
{
    C record;
    return ZorvanTest::FormADescription<SettingsException>([&] { record.Deserialize(options); });
}

// Clone: a new record of the same class with the same identifier, not the same object.
template <class C>
const C& CloneOf(const C& record, std::unique_ptr<Settings>& holder)
{
    holder = record.Clone();
    EXPECT_NE(holder.get(), static_cast<const Settings*>(&record));
    EXPECT_EQ(typeid(*holder), typeid(C));
    EXPECT_EQ(holder->GetClassId(), C::CLASS_ID);
    return dynamic_cast<const C&>(*holder);
}

} // namespace

// ---------------------------------------------------------------------------------------
// Identity of the family
// ---------------------------------------------------------------------------------------

TEST(SimpleStylising, ClassIdentifiersAreThoseOfTheTable)
{
    EXPECT_EQ(SettingsEffectMotionBlur().GetClassId(), "$$EffectMotionBlur$$");
    EXPECT_EQ(SettingsEffectDiffuse().GetClassId(), "$$EffectDiffuse$$");
    EXPECT_EQ(SettingsEffectErosion().GetClassId(), "$$EffectErosion$$");
    EXPECT_EQ(SettingsEffectFindEdges().GetClassId(), "$$EffectFindEdges$$");
    EXPECT_EQ(SettingsEffectFishEye().GetClassId(), "EffectFishEye");
    EXPECT_EQ(SettingsEffectMosaic().GetClassId(), "$$EffectMosaic$$");
    EXPECT_EQ(SettingsEffectGlassMosaic().GetClassId(), "$$EffectGlassMosaic$$");
    EXPECT_EQ(SettingsEffectOilPaint().GetClassId(), "EFFECT_OIL_PAINT");
    EXPECT_EQ(SettingsEffectStripes().GetClassId(), "$$EffectStripes$$");
    EXPECT_EQ(SettingsEffectTelevision70s().GetClassId(), "EffectTelevision70s");
    EXPECT_EQ(SettingsEffectTwirl().GetClassId(), "$$EffectTwirl$$");
    EXPECT_EQ(SettingsEffectVertigo().GetClassId(), "$$EffectVertigo$$");
    EXPECT_EQ(SettingsEffectVHS().GetClassId(), "$$EffectVHS$$");
    EXPECT_EQ(SettingsEffectLightLeaks().GetClassId(), "EffectLightLeaks");
    EXPECT_EQ(SettingsEffectLensFlare().GetClassId(), "EffectLensFlare");
    EXPECT_EQ(SettingsEffectLensDistortion().GetClassId(), "EffectLensDistortion");
    EXPECT_EQ(SettingsEffectChromaticAberration().GetClassId(), "EffectChromaticAberration");
    EXPECT_EQ(SettingsEffectNeonLamp().GetClassId(), "EffectNeonLamp");
    EXPECT_EQ(SettingsEffectRetroArtefacts().GetClassId(), "$$Effect_Retro_Artefacts$$");
    EXPECT_EQ(SettingsEffectBlur().GetClassId(), "EFFECT_BLUR");
    EXPECT_EQ(SettingsEffectEmboss().GetClassId(), "EFFECT_EMBOSS");
    EXPECT_EQ(SettingsEffectEdgeDetect().GetClassId(), "EFFECT_EDGE_DETECT");
    EXPECT_EQ(SettingsEffectSmartBlur().GetClassId(), "EFFECT_SMARTBLUR");
    EXPECT_EQ(SettingsEffectFilmStrip().GetClassId(), "EffectFilmStrip");
    EXPECT_EQ(SettingsEffectJalousie().GetClassId(), "$$EffectJalousie$$");
}

TEST(SimpleStylising, ClassesWithDefaultEqualityThrowTheBaseFailure)
{
    EXPECT_EQ(CompareFailure<SettingsEffectMotionBlur>(), NotComparable("$$EffectMotionBlur$$"));
    EXPECT_EQ(CompareFailure<SettingsEffectDiffuse>(), NotComparable("$$EffectDiffuse$$"));
    EXPECT_EQ(CompareFailure<SettingsEffectErosion>(), NotComparable("$$EffectErosion$$"));
    EXPECT_EQ(CompareFailure<SettingsEffectFindEdges>(), NotComparable("$$EffectFindEdges$$"));
    EXPECT_EQ(CompareFailure<SettingsEffectMosaic>(), NotComparable("$$EffectMosaic$$"));
    EXPECT_EQ(CompareFailure<SettingsEffectGlassMosaic>(), NotComparable("$$EffectGlassMosaic$$"));
    EXPECT_EQ(CompareFailure<SettingsEffectStripes>(), NotComparable("$$EffectStripes$$"));
    EXPECT_EQ(CompareFailure<SettingsEffectTwirl>(), NotComparable("$$EffectTwirl$$"));
    EXPECT_EQ(CompareFailure<SettingsEffectVertigo>(), NotComparable("$$EffectVertigo$$"));
    EXPECT_EQ(CompareFailure<SettingsEffectVHS>(), NotComparable("$$EffectVHS$$"));
    EXPECT_EQ(CompareFailure<SettingsEffectLensFlare>(), NotComparable("EffectLensFlare"));
    EXPECT_EQ(CompareFailure<SettingsEffectEmboss>(), NotComparable("EFFECT_EMBOSS"));
    EXPECT_EQ(CompareFailure<SettingsEffectEdgeDetect>(), NotComparable("EFFECT_EDGE_DETECT"));
    EXPECT_EQ(CompareFailure<SettingsEffectSmartBlur>(), NotComparable("EFFECT_SMARTBLUR"));
    EXPECT_EQ(CompareFailure<SettingsEffectFilmStrip>(), NotComparable("EffectFilmStrip"));
    EXPECT_EQ(CompareFailure<SettingsEffectJalousie>(), NotComparable("$$EffectJalousie$$"));
}

TEST(SimpleStylising, ClassesWithTheirOwnEqualityCompareDefaultRecordsEqual)
{
    EXPECT_TRUE(SettingsEffectFishEye().IsEqualTo(SettingsEffectFishEye()));
    EXPECT_TRUE(SettingsEffectOilPaint().IsEqualTo(SettingsEffectOilPaint()));
    EXPECT_TRUE(SettingsEffectTelevision70s().IsEqualTo(SettingsEffectTelevision70s()));
    EXPECT_TRUE(SettingsEffectLightLeaks().IsEqualTo(SettingsEffectLightLeaks()));
    EXPECT_TRUE(SettingsEffectLensDistortion().IsEqualTo(SettingsEffectLensDistortion()));
    EXPECT_TRUE(SettingsEffectChromaticAberration().IsEqualTo(SettingsEffectChromaticAberration()));
    EXPECT_TRUE(SettingsEffectNeonLamp().IsEqualTo(SettingsEffectNeonLamp()));
    EXPECT_TRUE(SettingsEffectRetroArtefacts().IsEqualTo(SettingsEffectRetroArtefacts()));
    EXPECT_TRUE(SettingsEffectBlur().IsEqualTo(SettingsEffectBlur()));
}

TEST(SimpleStylising, IsEqualToWithARecordOfAnotherClassRaisesBadCast)
{
    EXPECT_THROW((void)SettingsEffectFishEye().IsEqualTo(SettingsEffectOilPaint()), std::bad_cast);
    EXPECT_THROW((void)SettingsEffectOilPaint().IsEqualTo(SettingsEffectFishEye()), std::bad_cast);
    EXPECT_THROW((void)SettingsEffectTelevision70s().IsEqualTo(SettingsEffectLightLeaks()), std::bad_cast);
    EXPECT_THROW((void)SettingsEffectLightLeaks().IsEqualTo(SettingsEffectLensFlare()), std::bad_cast);
    EXPECT_THROW((void)SettingsEffectLensDistortion().IsEqualTo(SettingsEffectNeonLamp()), std::bad_cast);
    EXPECT_THROW((void)SettingsEffectChromaticAberration().IsEqualTo(SettingsEffectFishEye()), std::bad_cast);
    EXPECT_THROW((void)SettingsEffectNeonLamp().IsEqualTo(SettingsEffectLensDistortion()), std::bad_cast);
    EXPECT_THROW((void)SettingsEffectRetroArtefacts().IsEqualTo(SettingsEffectVHS()), std::bad_cast);
    EXPECT_THROW((void)SettingsEffectBlur().IsEqualTo(SettingsEffectSmartBlur()), std::bad_cast);
}

TEST(SimpleStylising, RecordsWithoutTheirOwnDeserializeThrowTheBaseFailureEvenOnAnEmptyString)
{
    for (const std::string options : {"", "radius=1"}) {
        SCOPED_TRACE(options);
        EXPECT_EQ(DeserializeFailure<SettingsEffectBlur>(options), NotFillable("EFFECT_BLUR"));
        EXPECT_EQ(DeserializeFailure<SettingsEffectEmboss>(options), NotFillable("EFFECT_EMBOSS"));
        EXPECT_EQ(DeserializeFailure<SettingsEffectEdgeDetect>(options), NotFillable("EFFECT_EDGE_DETECT"));
        EXPECT_EQ(DeserializeFailure<SettingsEffectSmartBlur>(options), NotFillable("EFFECT_SMARTBLUR"));
        EXPECT_EQ(DeserializeFailure<SettingsEffectFilmStrip>(options), NotFillable("EffectFilmStrip"));
        EXPECT_EQ(DeserializeFailure<SettingsEffectJalousie>(options), NotFillable("$$EffectJalousie$$"));
    }
}

TEST(SimpleStylising, DefaultEmptinessIsFalseEvenAtZeroIntensity)
{
    EXPECT_FALSE(SettingsEffectMotionBlur().IsEmpty());
    EXPECT_FALSE(SettingsEffectDiffuse().IsEmpty());
    EXPECT_FALSE(SettingsEffectErosion().IsEmpty());
    EXPECT_FALSE(SettingsEffectFindEdges().IsEmpty());
    EXPECT_FALSE(SettingsEffectFishEye().IsEmpty());
    EXPECT_FALSE(SettingsEffectMosaic().IsEmpty());
    EXPECT_FALSE(SettingsEffectGlassMosaic().IsEmpty());
    EXPECT_FALSE(SettingsEffectTelevision70s().IsEmpty());
    EXPECT_FALSE(SettingsEffectTwirl().IsEmpty());
    EXPECT_FALSE(SettingsEffectVertigo().IsEmpty());
    EXPECT_FALSE(SettingsEffectVHS().IsEmpty());
    EXPECT_FALSE(SettingsEffectLightLeaks().IsEmpty());
    EXPECT_FALSE(SettingsEffectLensFlare().IsEmpty());
    EXPECT_FALSE(SettingsEffectChromaticAberration().IsEmpty());
    EXPECT_FALSE(SettingsEffectRetroArtefacts().IsEmpty());
    EXPECT_FALSE(SettingsEffectEmboss().IsEmpty());
    EXPECT_FALSE(SettingsEffectEdgeDetect().IsEmpty());
    EXPECT_FALSE(SettingsEffectSmartBlur().IsEmpty());
    EXPECT_FALSE(SettingsEffectFilmStrip().IsEmpty());
    EXPECT_FALSE(SettingsEffectJalousie().IsEmpty());
    SettingsEffectChromaticAberration chromatic;
    chromatic.Deserialize("intensity=0");
    EXPECT_FALSE(chromatic.IsEmpty());
}

TEST(SimpleStylising, AnEmptyOptionStringChangesNothing)
{
    SettingsEffectVHS vhs;
    vhs.SetParams(1.0, 2.0, 3.0, 4.0);
    vhs.Deserialize("");
    EXPECT_EQ(vhs.GetSpeed(), 1.0);
    EXPECT_EQ(vhs.GetRelief(), 4.0);
    SettingsEffectNeonLamp neon;
    neon.SetColor(0x11223344U);
    neon.SetIntensity(0.5);
    neon.Deserialize("");
    EXPECT_EQ(neon.GetColor(), 0x11223344U);
    EXPECT_EQ(neon.GetIntensity(), 0.5);
    SettingsEffectMotionBlur motion;
    motion.SetScale(3.0);
    motion.Deserialize("");
    EXPECT_EQ(motion.GetScale(), 3.0);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectMotionBlur
// ---------------------------------------------------------------------------------------

TEST(MotionBlur, ScaleIsReadWithStod)
{
    SettingsEffectMotionBlur motion;
    motion.Deserialize("scale=0.1");
    EXPECT_EQ(motion.GetScale(), 0.1);
    motion.Deserialize("scale=1,5");
    EXPECT_EQ(motion.GetScale(), 1.0);
    motion.Deserialize("scale=1.2.3");
    EXPECT_EQ(motion.GetScale(), 1.2);
    motion.Deserialize("scale=" + kHuge);
    EXPECT_EQ(motion.GetScale(), kHugeDouble);
    motion.Deserialize("SCALE=-2");
    EXPECT_EQ(motion.GetScale(), -2.0);
}

TEST(MotionBlur, AbsentOrUnconvertibleScaleLeavesTheField)
{
    SettingsEffectMotionBlur motion;
    motion.SetScale(4.5);
    motion.Deserialize("speed=3:rescale=9:scale=abc");
    EXPECT_EQ(motion.GetScale(), 4.5);
    EXPECT_THROW(motion.Deserialize("scale=-"), std::invalid_argument);
    EXPECT_THROW(motion.Deserialize("scale=\"2\""), std::invalid_argument);
    EXPECT_EQ(motion.GetScale(), 4.5);
}

TEST(MotionBlur, CloneCopiesTheScale)
{
    SettingsEffectMotionBlur motion;
    motion.SetScale(7.25);
    std::unique_ptr<Settings> holder;
    EXPECT_EQ(CloneOf(motion, holder).GetScale(), 7.25);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectDiffuse
// ---------------------------------------------------------------------------------------

TEST(Diffuse, KeysAreReadWithTheirConversions)
{
    SettingsEffectDiffuse diffuse;
    diffuse.Deserialize("level=0.1:probability=0.2:intensity=0.1");
    EXPECT_EQ(diffuse.GetLevel(), 0.1);
    EXPECT_EQ(diffuse.GetProbability(), 0.2);
    EXPECT_EQ(diffuse.GetIntensity(), 0.1F);
    diffuse.Deserialize("level=" + kHuge + ":probability=" + kHuge);
    EXPECT_EQ(diffuse.GetLevel(), kHugeDouble);
    EXPECT_EQ(diffuse.GetProbability(), kHugeDouble);
    EXPECT_THROW(diffuse.Deserialize("intensity=" + kHuge), std::out_of_range); // stof
    EXPECT_EQ(diffuse.GetIntensity(), 0.1F);
}

TEST(Diffuse, AbsentKeysLeaveFieldsAndAFailureKeepsEarlierKeys)
{
    SettingsEffectDiffuse diffuse;
    diffuse.SetParams(1.0, 0.5);
    diffuse.SetIntensity(0.25F);
    diffuse.Deserialize("probability=0.75");
    EXPECT_EQ(diffuse.GetLevel(), 1.0);
    EXPECT_EQ(diffuse.GetProbability(), 0.75);
    EXPECT_EQ(diffuse.GetIntensity(), 0.25F);
    // Order level, probability, intensity: level is stored before intensity fails.
    EXPECT_THROW(diffuse.Deserialize("intensity=-:level=3"), std::invalid_argument);
    EXPECT_EQ(diffuse.GetLevel(), 3.0);
    EXPECT_EQ(diffuse.GetIntensity(), 0.25F);
    // level fails first: probability and intensity stay.
    EXPECT_THROW(diffuse.Deserialize("probability=0.1:intensity=0.9:level=-"), std::invalid_argument);
    EXPECT_EQ(diffuse.GetProbability(), 0.75);
    EXPECT_EQ(diffuse.GetIntensity(), 0.25F);
}

TEST(Diffuse, SetParamsStoresLevelAndProbabilityUnchecked)
{
    SettingsEffectDiffuse diffuse;
    diffuse.SetParams(-5.0, 2.0);
    EXPECT_EQ(diffuse.GetLevel(), -5.0);
    EXPECT_EQ(diffuse.GetProbability(), 2.0);
    EXPECT_EQ(diffuse.GetIntensity(), 0.0F);
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(diffuse, holder);
    EXPECT_EQ(copy.GetLevel(), -5.0);
    EXPECT_EQ(copy.GetProbability(), 2.0);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectErosion
// ---------------------------------------------------------------------------------------

TEST(Erosion, ModeIsAnIntIntoTypesAndRadiusADouble)
{
    SettingsEffectErosion erosion;
    erosion.Deserialize("mode=1:radius=0.1");
    EXPECT_EQ(erosion.GetMode(), SettingsEffectErosion::Types::Dilate);
    EXPECT_EQ(erosion.GetRadius(), 0.1);
    erosion.Deserialize("mode=7.9");
    EXPECT_EQ(static_cast<int>(erosion.GetMode()), 7); // no range check
    erosion.Deserialize("mode=0,5:radius=1,5");
    EXPECT_EQ(erosion.GetMode(), SettingsEffectErosion::Types::Erode);
    EXPECT_EQ(erosion.GetRadius(), 1.0);
    EXPECT_THROW(erosion.Deserialize("mode=3000000000"), std::out_of_range);
}

TEST(Erosion, ModeIsReadBeforeRadius)
{
    SettingsEffectErosion erosion;
    erosion.SetParams(2.5, SettingsEffectErosion::Types::Erode);
    EXPECT_THROW(erosion.Deserialize("radius=-:mode=1"), std::invalid_argument);
    EXPECT_EQ(erosion.GetMode(), SettingsEffectErosion::Types::Dilate);
    EXPECT_EQ(erosion.GetRadius(), 2.5);
    EXPECT_THROW(erosion.Deserialize("radius=4:mode=-"), std::invalid_argument);
    EXPECT_EQ(erosion.GetRadius(), 2.5);
    erosion.Deserialize("radius=4");
    EXPECT_EQ(erosion.GetRadius(), 4.0);
    EXPECT_EQ(erosion.GetMode(), SettingsEffectErosion::Types::Dilate);
}

TEST(Erosion, SetParamsTakesRadiusThenMode)
{
    SettingsEffectErosion erosion;
    EXPECT_EQ(erosion.GetMode(), SettingsEffectErosion::Types::Erode);
    EXPECT_EQ(static_cast<int>(SettingsEffectErosion::Types::Erode), 0);
    erosion.SetParams(3.5, SettingsEffectErosion::Types::Dilate);
    EXPECT_EQ(erosion.GetRadius(), 3.5);
    EXPECT_EQ(erosion.GetMode(), SettingsEffectErosion::Types::Dilate);
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(erosion, holder);
    EXPECT_EQ(copy.GetRadius(), 3.5);
    EXPECT_EQ(copy.GetMode(), SettingsEffectErosion::Types::Dilate);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectFindEdges
// ---------------------------------------------------------------------------------------

TEST(FindEdges, KeysAreReadWithTheirConversions)
{
    SettingsEffectFindEdges edges;
    edges.Deserialize("blend=0.1:sensibility=0.3:type=2");
    EXPECT_EQ(edges.GetBlend(), 0.1);
    EXPECT_EQ(edges.GetSensibility(), 0.3);
    EXPECT_EQ(edges.GetType(), SettingsEffectFindEdges::Type::Laplacian);
    edges.Deserialize("type=1.9");
    EXPECT_EQ(edges.GetType(), SettingsEffectFindEdges::Type::Prewitt);
    edges.Deserialize("type=-4");
    EXPECT_EQ(static_cast<int>(edges.GetType()), -4);
}

TEST(FindEdges, KeyOrderIsBlendSensibilityType)
{
    SettingsEffectFindEdges edges;
    edges.SetParams(SettingsEffectFindEdges::Type::Prewitt, 0.5, 0.25);
    EXPECT_THROW(edges.Deserialize("type=-:sensibility=0.75:blend=1"), std::invalid_argument);
    EXPECT_EQ(edges.GetBlend(), 1.0);
    EXPECT_EQ(edges.GetSensibility(), 0.75);
    EXPECT_EQ(edges.GetType(), SettingsEffectFindEdges::Type::Prewitt);
    EXPECT_THROW(edges.Deserialize("type=0:sensibility=-"), std::invalid_argument);
    EXPECT_EQ(edges.GetType(), SettingsEffectFindEdges::Type::Prewitt);
    edges.Deserialize("sensibility=2");
    EXPECT_EQ(edges.GetBlend(), 1.0);
    EXPECT_EQ(edges.GetSensibility(), 2.0);
}

TEST(FindEdges, SetParamsTakesTypeBlendSensibility)
{
    SettingsEffectFindEdges edges;
    EXPECT_EQ(edges.GetType(), SettingsEffectFindEdges::Type::Sobel);
    edges.SetParams(SettingsEffectFindEdges::Type::Laplacian, 0.5, 0.25);
    EXPECT_EQ(edges.GetType(), SettingsEffectFindEdges::Type::Laplacian);
    EXPECT_EQ(edges.GetBlend(), 0.5);
    EXPECT_EQ(edges.GetSensibility(), 0.25);
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(edges, holder);
    EXPECT_EQ(copy.GetType(), SettingsEffectFindEdges::Type::Laplacian);
    EXPECT_EQ(copy.GetBlend(), 0.5);
    EXPECT_EQ(copy.GetSensibility(), 0.25);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectFishEye
// ---------------------------------------------------------------------------------------

TEST(FishEye, DeviationIsADoubleAndIntensityAFloat)
{
    SettingsEffectFishEye fish;
    fish.Deserialize("deviation=0.1:intensity=0.1");
    EXPECT_EQ(fish.GetDeviation(), 0.1);
    EXPECT_EQ(fish.GetIntensity(), 0.1F);
    fish.Deserialize("deviation=" + kHuge);
    EXPECT_EQ(fish.GetDeviation(), kHugeDouble);
    EXPECT_THROW(fish.Deserialize("intensity=" + kHuge), std::out_of_range);
    EXPECT_EQ(fish.GetIntensity(), 0.1F);
}

TEST(FishEye, AFailureKeepsTheDeviation)
{
    SettingsEffectFishEye fish;
    fish.SetDeviation(1.0);
    fish.SetIntensity(0.5F);
    EXPECT_THROW(fish.Deserialize("intensity=-:deviation=2"), std::invalid_argument);
    EXPECT_EQ(fish.GetDeviation(), 2.0);
    EXPECT_EQ(fish.GetIntensity(), 0.5F);
    fish.Deserialize("intensity=0.75");
    EXPECT_EQ(fish.GetDeviation(), 2.0);
    EXPECT_EQ(fish.GetIntensity(), 0.75F);
}

TEST(FishEye, ComparesDeviationAndIntensityExactly)
{
    SettingsEffectFishEye a;
    SettingsEffectFishEye b;
    a.SetDeviation(0.3);
    b.SetDeviation(0.1 + 0.2); // differs from 0.3 in the last bit
    EXPECT_FALSE(a.IsEqualTo(b));
    EXPECT_FALSE(a == b);
    b.SetDeviation(0.3);
    EXPECT_TRUE(a.IsEqualTo(b));
    b.SetIntensity(1e-30F);
    EXPECT_FALSE(a.IsEqualTo(b));
    a.SetIntensity(1e-30F);
    EXPECT_TRUE(a == b);
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(a, holder);
    EXPECT_TRUE(copy.IsEqualTo(a));
    EXPECT_EQ(copy.GetDeviation(), 0.3);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectMosaic
// ---------------------------------------------------------------------------------------

TEST(Mosaic, KeysAreReadWithTheirConversions)
{
    SettingsEffectMosaic mosaic;
    mosaic.Deserialize("type=2.7:amountVer=7:amountHor=3,5:intensity=1");
    EXPECT_EQ(mosaic.GetType(), 2);
    EXPECT_EQ(mosaic.GetIntensity(), 1.0F);
    // At intensity 1 the computed amounts are the stored ones.
    EXPECT_EQ(mosaic.GetAmountVer(100), 7);
    EXPECT_EQ(mosaic.GetAmountHor(100), 3);
    mosaic.Deserialize("intensity=0.1");
    EXPECT_EQ(mosaic.GetIntensity(), 0.1F);
    EXPECT_THROW(mosaic.Deserialize("intensity=" + kHuge), std::out_of_range);
    EXPECT_THROW(mosaic.Deserialize("type=3000000000"), std::out_of_range);
}

TEST(Mosaic, KeyOrderIsTypeAmountVerAmountHorIntensity)
{
    SettingsEffectMosaic mosaic;
    mosaic.SetType(1);
    mosaic.SetAmount(3, 7);
    mosaic.SetIntensity(1.0F);
    EXPECT_THROW(mosaic.Deserialize("amountHor=-:amountVer=9:type=4"), std::invalid_argument);
    EXPECT_EQ(mosaic.GetType(), 4);
    EXPECT_EQ(mosaic.GetAmountVer(100), 9);
    EXPECT_EQ(mosaic.GetAmountHor(100), 3);
    EXPECT_THROW(mosaic.Deserialize("intensity=0:amountHor=-"), std::invalid_argument);
    EXPECT_EQ(mosaic.GetIntensity(), 1.0F);
    mosaic.Deserialize("amountHor=11");
    EXPECT_EQ(mosaic.GetType(), 4);
    EXPECT_EQ(mosaic.GetAmountVer(100), 9);
    EXPECT_EQ(mosaic.GetAmountHor(100), 11);
}

TEST(Mosaic, SetAmountStoresItsFirstArgumentIntoAmountHor)
{
    SettingsEffectMosaic mosaic;
    mosaic.SetAmount(3, 7);
    mosaic.SetIntensity(1.0F);
    EXPECT_EQ(mosaic.GetAmountHor(1920), 3);
    EXPECT_EQ(mosaic.GetAmountVer(1080), 7);
    EXPECT_EQ(mosaic.GetAmountHor(), 3); // the stored fields
    EXPECT_EQ(mosaic.GetAmountVer(), 7);
    // At intensity 1/32 (p = 0.5): n - (n - a) / 2.
    mosaic.SetIntensity(0.03125F);
    EXPECT_EQ(mosaic.GetAmountHor(1001), 502); // 1001 - 998 / 2
    EXPECT_EQ(mosaic.GetAmountVer(1001), 504); // 1001 - 994 / 2
}

TEST(Mosaic, AmountEqualToNGivesNAtAnyIntensityOrOneWhenNIsNotAboveOne)
{
    for (const float intensity : {0.0F, 0.37F, 1.0F, 5.0F, 1e30F}) {
        SCOPED_TRACE(intensity);
        SettingsEffectMosaic mosaic;
        mosaic.SetIntensity(intensity);
        for (const int n : {2, 50, 1080, 100000}) {
            mosaic.SetAmount(n, n);
            EXPECT_EQ(mosaic.GetAmountHor(n), n);
            EXPECT_EQ(mosaic.GetAmountVer(n), n);
        }
        for (const int n : {1, 0, -5}) {
            mosaic.SetAmount(n, n);
            EXPECT_EQ(mosaic.GetAmountHor(n), 1);
            EXPECT_EQ(mosaic.GetAmountVer(n), 1);
        }
    }
}

TEST(Mosaic, ComputedAmountsAtSeveralIntensities)
{
    SettingsEffectMosaic mosaic;
    // Intensity 0: p = 0, the result is n.
    mosaic.SetAmount(10, 10);
    EXPECT_EQ(mosaic.GetAmountHor(1920), 1920);
    EXPECT_EQ(mosaic.GetAmountVer(2), 2);
    EXPECT_EQ(mosaic.GetAmountVer(1), 1);
    EXPECT_EQ(mosaic.GetAmountVer(0), 1);
    // Intensity 0.5: p = powf(0.5, 0.2f) = 0.87055057; 100 - 90 p = 21.650448.
    mosaic.SetIntensity(0.5F);
    EXPECT_EQ(mosaic.GetAmountHor(100), 21);
    // Intensity 0.9: p = 0.97914833; 100 - 90 p = 11.876651.
    mosaic.SetIntensity(0.9F);
    EXPECT_EQ(mosaic.GetAmountVer(100), 11);
    // Intensity 0.1: p = 0.63095737; 1920 - 1880 p = 733.80017.
    mosaic.SetAmount(40, 40);
    mosaic.SetIntensity(0.1F);
    EXPECT_EQ(mosaic.GetAmountHor(1920), 733);
    // Intensity 32: p = 2; an amount above n goes further up: 10 - (10 - 14) * 2 = 18.
    mosaic.SetIntensity(32.0F);
    mosaic.SetAmount(14, 4);
    EXPECT_EQ(mosaic.GetAmountHor(10), 18);
    EXPECT_EQ(mosaic.GetAmountVer(10), 1); // 10 - 6 * 2 = -2, not above 1
}

TEST(Mosaic, ResultIsTruncatedTowardZeroAndAnythingNotAboveOneIsOne)
{
    SettingsEffectMosaic mosaic;
    mosaic.SetIntensity(0.03125F); // p = 0.5
    mosaic.SetAmount(1, 0);
    EXPECT_EQ(mosaic.GetAmountHor(4), 2); // 4 - 3 / 2 = 2.5
    EXPECT_EQ(mosaic.GetAmountHor(3), 2); // 3 - 2 / 2 = 2
    EXPECT_EQ(mosaic.GetAmountVer(3), 1); // 3 - 3 / 2 = 1.5
    EXPECT_EQ(mosaic.GetAmountVer(2), 1); // 2 - 2 / 2 = 1, not above 1
    EXPECT_EQ(mosaic.GetAmountVer(1), 1); // 0.5
    mosaic.SetAmount(-20, -20);
    EXPECT_EQ(mosaic.GetAmountHor(1), 1); // 1 - 21 / 2 = -9.5, not -9
}

TEST(Mosaic, MultiplicationAndSubtractionAreOneFusedStep)
{
    // Intensity 243: p = 3. n = 2, a = 5592409: (n - a) p = -16777221 is not a float;
    // fused, 2 + 16777221 = 16777223 rounds to 16777224; unfused it would be 16777222.
    SettingsEffectMosaic mosaic;
    mosaic.SetIntensity(243.0F);
    mosaic.SetAmount(5592409, 5592409);
    EXPECT_EQ(mosaic.GetAmountHor(2), 16777224);
    EXPECT_EQ(mosaic.GetAmountVer(2), 16777224);
}

TEST(Mosaic, NotANumberGivesOneAndResultsBeyondIntSaturate)
{
    SettingsEffectMosaic mosaic;
    mosaic.SetAmount(10, 10);
    mosaic.SetIntensity(-1.0F); // powf of a negative base to 0.2 is NaN
    EXPECT_EQ(mosaic.GetAmountHor(100), 1);
    EXPECT_EQ(mosaic.GetAmountVer(10), 1); // 0 * NaN is NaN too
    mosaic.SetIntensity(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(mosaic.GetAmountHor(100), 1);
    // Intensity 243 (p = 3): 0 - (0 - 1e9) * 3 = 3e9, beyond int: saturated to INT_MAX.
    mosaic.SetIntensity(243.0F);
    mosaic.SetAmount(1000000000, 1000000000);
    EXPECT_EQ(mosaic.GetAmountHor(0), std::numeric_limits<int>::max());
    EXPECT_EQ(mosaic.GetAmountVer(0), std::numeric_limits<int>::max());
}

TEST(Mosaic, CloneCopiesEveryField)
{
    SettingsEffectMosaic mosaic;
    mosaic.SetType(3);
    mosaic.SetAmount(5, 6);
    mosaic.SetIntensity(1.0F);
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(mosaic, holder);
    EXPECT_EQ(copy.GetType(), 3);
    EXPECT_EQ(copy.GetIntensity(), 1.0F);
    EXPECT_EQ(copy.GetAmountHor(50), 5);
    EXPECT_EQ(copy.GetAmountVer(50), 6);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectGlassMosaic
// ---------------------------------------------------------------------------------------

TEST(GlassMosaic, KeysAreReadWithTheirConversions)
{
    SettingsEffectGlassMosaic glass;
    glass.Deserialize("angle=0.1:curve=0.8:repeatsh=0.3:repeatsv=1,5:intensity=1");
    EXPECT_EQ(glass.GetAngle(), 0.1);
    EXPECT_EQ(glass.GetCurve(), 0.8); // intensity 1: the field
    EXPECT_EQ(glass.GetRepeatsh(), 0.3);
    EXPECT_EQ(glass.GetRepeatsv(), 1.0);
    EXPECT_EQ(glass.GetIntensity(), 1.0F);
    glass.Deserialize("intensity=0.1:repeatsh=" + kHuge);
    EXPECT_EQ(glass.GetIntensity(), 0.1F);
    EXPECT_EQ(glass.GetRepeatsh(), kHugeDouble);
    EXPECT_THROW(glass.Deserialize("intensity=" + kHuge), std::out_of_range);
}

TEST(GlassMosaic, KeyOrderIsAngleCurveRepeatshRepeatsvIntensity)
{
    SettingsEffectGlassMosaic glass;
    glass.SetParams(1.0, 2.0, 3.0, 4.0);
    glass.SetIntensity(1.0F);
    EXPECT_THROW(glass.Deserialize("repeatsv=-:repeatsh=7:curve=6:angle=5:intensity=0"), std::invalid_argument);
    EXPECT_EQ(glass.GetAngle(), 5.0);
    EXPECT_EQ(glass.GetCurve(), 6.0);
    EXPECT_EQ(glass.GetRepeatsh(), 7.0);
    EXPECT_EQ(glass.GetRepeatsv(), 4.0);
    EXPECT_EQ(glass.GetIntensity(), 1.0F);
    glass.Deserialize("repeatsv=8");
    EXPECT_EQ(glass.GetAngle(), 5.0);
    EXPECT_EQ(glass.GetRepeatsv(), 8.0);
}

TEST(GlassMosaic, SetParamsTakesAngleCurveRepeatshRepeatsv)
{
    SettingsEffectGlassMosaic glass;
    glass.SetParams(10.0, 0.3, 2.0, 5.0);
    glass.SetIntensity(1.0F);
    EXPECT_EQ(glass.GetAngle(), 10.0);
    EXPECT_EQ(glass.GetCurve(), 0.3);
    EXPECT_EQ(glass.GetRepeatsh(), 2.0);
    EXPECT_EQ(glass.GetRepeatsv(), 5.0);
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(glass, holder);
    EXPECT_EQ(copy.GetAngle(), 10.0);
    EXPECT_EQ(copy.GetCurve(), 0.3);
    EXPECT_EQ(copy.GetRepeatsh(), 2.0);
    EXPECT_EQ(copy.GetRepeatsv(), 5.0);
    EXPECT_EQ(copy.GetIntensity(), 1.0F);
}

TEST(GlassMosaic, GetCurveIsOneHalfAtIntensityZeroAndTheCurveAtIntensityOne)
{
    SettingsEffectGlassMosaic glass;
    glass.SetParams(0.0, 0.8, 0.0, 0.0);
    EXPECT_EQ(glass.GetCurve(), 0.5);
    glass.SetIntensity(1.0F);
    EXPECT_EQ(glass.GetCurve(), 0.8);
    glass.SetParams(0.0, -1.0, 0.0, 0.0);
    glass.SetIntensity(0.5F);
    EXPECT_EQ(glass.GetCurve(), -0.25); // -1.5 * 0.5 + 0.5
}

TEST(GlassMosaic, GetCurveWidensTheIntensityAndFusesTheStep)
{
    SettingsEffectGlassMosaic glass;
    // 0.1f widened is 0.100000001490116...: 1.5 * it + 0.5.
    glass.SetParams(0.0, 2.0, 0.0, 0.0);
    glass.SetIntensity(0.1F);
    EXPECT_EQ(glass.GetCurve(), 0.6500000022351742);
    // Cases where one rounding (fused) and two roundings differ in the last bit:
    // unfused they would give 0.8599999904632569 and 1.140000009536743.
    glass.SetParams(0.0, 0.9, 0.0, 0.0);
    glass.SetIntensity(0.9F);
    EXPECT_EQ(glass.GetCurve(), 0.8599999904632568);
    glass.SetParams(0.0, 3.7, 0.0, 0.0);
    glass.SetIntensity(0.2F);
    EXPECT_EQ(glass.GetCurve(), 1.1400000095367433);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectOilPaint
// ---------------------------------------------------------------------------------------

TEST(OilPaint, RadiusIsAnIntAndIntensityAFloat)
{
    SettingsEffectOilPaint oil;
    oil.Deserialize("radius=2.7:intensity=0.1");
    EXPECT_EQ(oil.GetRadius(), 2);
    EXPECT_EQ(oil.GetIntensity(), 0.1F);
    oil.Deserialize("radius=1,5");
    EXPECT_EQ(oil.GetRadius(), 1);
    EXPECT_THROW(oil.Deserialize("radius=3000000000"), std::out_of_range);
    EXPECT_THROW(oil.Deserialize("intensity=-:radius=4"), std::invalid_argument);
    EXPECT_EQ(oil.GetRadius(), 4);
    EXPECT_EQ(oil.GetIntensity(), 0.1F);
    EXPECT_THROW(oil.Deserialize("radius=-:intensity=0.5"), std::invalid_argument);
    EXPECT_EQ(oil.GetIntensity(), 0.1F);
    oil.Deserialize("intensity=0.5");
    EXPECT_EQ(oil.GetRadius(), 4);
    EXPECT_EQ(oil.GetIntensity(), 0.5F);
}

TEST(OilPaint, EmptyWhenRadiusIsZeroAtAnyIntensityOrIntensityIsNearZero)
{
    SettingsEffectOilPaint oil;
    EXPECT_TRUE(oil.IsEmpty());
    for (const float intensity : {0.0F, 0.5F, 1.0F, 100.0F, -1.0F}) {
        oil.SetIntensity(intensity);
        EXPECT_TRUE(oil.IsEmpty()) << intensity;
    }
    oil.SetRadius(3);
    oil.SetIntensity(0.5F);
    EXPECT_FALSE(oil.IsEmpty());
    oil.SetIntensity(0.0F);
    EXPECT_TRUE(oil.IsEmpty());
    oil.SetIntensity(1e-40F); // subnormal: near zero
    EXPECT_TRUE(oil.IsEmpty());
    oil.SetIntensity(1.2e-38F); // just above the smallest normal float: not near zero
    EXPECT_FALSE(oil.IsEmpty());
    oil.SetRadius(-1);
    oil.SetIntensity(1.0F);
    EXPECT_FALSE(oil.IsEmpty());
}

TEST(OilPaint, ComparesRadiusAndIntensityExactly)
{
    SettingsEffectOilPaint a;
    SettingsEffectOilPaint b;
    a.SetRadius(3);
    b.SetRadius(4);
    EXPECT_FALSE(a.IsEqualTo(b));
    b.SetRadius(3);
    EXPECT_TRUE(a.IsEqualTo(b));
    a.SetIntensity(0.5F);
    b.SetIntensity(std::nextafter(0.5F, 1.0F));
    EXPECT_FALSE(a.IsEqualTo(b));
    EXPECT_FALSE(a == b);
    b.SetIntensity(0.5F);
    EXPECT_TRUE(a == b);
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(a, holder);
    EXPECT_TRUE(copy.IsEqualTo(a));
    EXPECT_EQ(copy.GetRadius(), 3);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectStripes
// ---------------------------------------------------------------------------------------

TEST(Stripes, KeysAreReadWithTheirConversions)
{
    SettingsEffectStripes stripes;
    stripes.Deserialize("count=5.9:deep=0.1:intensity=0.1");
    EXPECT_EQ(stripes.GetCount(), 5);
    EXPECT_EQ(stripes.GetDeep(), 0.1);
    EXPECT_EQ(stripes.GetIntensity(), 0.1F);
    EXPECT_THROW(stripes.Deserialize("intensity=-:deep=2:count=8"), std::invalid_argument);
    EXPECT_EQ(stripes.GetCount(), 8);
    EXPECT_EQ(stripes.GetDeep(), 2.0);
    EXPECT_EQ(stripes.GetIntensity(), 0.1F);
    EXPECT_THROW(stripes.Deserialize("deep=-:count=9"), std::invalid_argument);
    EXPECT_EQ(stripes.GetCount(), 9);
    EXPECT_EQ(stripes.GetDeep(), 2.0);
    stripes.Deserialize("deep=" + kHuge);
    EXPECT_EQ(stripes.GetDeep(), kHugeDouble);
    EXPECT_EQ(stripes.GetCount(), 9);
}

TEST(Stripes, SettersStoreUnchecked)
{
    SettingsEffectStripes stripes;
    stripes.SetCount(-3);
    stripes.SetDeep(-0.5);
    stripes.SetIntensity(7.0F);
    EXPECT_EQ(stripes.GetCount(), -3);
    EXPECT_EQ(stripes.GetDeep(), -0.5);
    EXPECT_EQ(stripes.GetIntensity(), 7.0F);
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(stripes, holder);
    EXPECT_EQ(copy.GetCount(), -3);
    EXPECT_EQ(copy.GetDeep(), -0.5);
    EXPECT_EQ(copy.GetIntensity(), 7.0F);
}

TEST(Stripes, EmptyWhenIntensityIsNearZeroAtAnyCountOrCountIsZero)
{
    SettingsEffectStripes stripes;
    EXPECT_TRUE(stripes.IsEmpty());
    for (const int count : {0, 1, 10, -5}) {
        stripes.SetCount(count);
        EXPECT_TRUE(stripes.IsEmpty()) << count;
    }
    stripes.SetIntensity(1e-40F); // subnormal: near zero
    EXPECT_TRUE(stripes.IsEmpty());
    stripes.SetIntensity(0.5F);
    EXPECT_FALSE(stripes.IsEmpty());
    stripes.SetCount(0);
    EXPECT_TRUE(stripes.IsEmpty());
    EXPECT_EQ(CompareFailure<SettingsEffectStripes>(), NotComparable("$$EffectStripes$$"));
}

// ---------------------------------------------------------------------------------------
// SettingsEffectTelevision70s
// ---------------------------------------------------------------------------------------

TEST(Television70s, BothKeysAreFloats)
{
    SettingsEffectTelevision70s tv;
    tv.Deserialize("intensity=0.1:stripesWidth=0.3");
    EXPECT_EQ(tv.GetIntensity(), 0.1F);
    EXPECT_EQ(tv.GetStripesWidth(), 0.3F);
    EXPECT_THROW(tv.Deserialize("stripesWidth=" + kHuge), std::out_of_range);
    EXPECT_EQ(tv.GetStripesWidth(), 0.3F);
    tv.Deserialize("stripeswidth=2,5");
    EXPECT_EQ(tv.GetStripesWidth(), 2.0F);
    EXPECT_THROW(tv.Deserialize("stripesWidth=-:intensity=0.5"), std::invalid_argument);
    EXPECT_EQ(tv.GetIntensity(), 0.5F);
    EXPECT_EQ(tv.GetStripesWidth(), 2.0F);
    EXPECT_THROW(tv.Deserialize("intensity=-:stripesWidth=4"), std::invalid_argument);
    EXPECT_EQ(tv.GetStripesWidth(), 2.0F);
}

TEST(Television70s, ComparesBothFieldsExactly)
{
    SettingsEffectTelevision70s a;
    SettingsEffectTelevision70s b;
    a.SetIntensity(0.5F);
    EXPECT_FALSE(a.IsEqualTo(b));
    b.SetIntensity(0.5F);
    EXPECT_TRUE(a.IsEqualTo(b));
    b.SetStripesWidth(2.0F);
    EXPECT_FALSE(a.IsEqualTo(b));
    EXPECT_FALSE(a == b);
    a.SetStripesWidth(2.0F);
    EXPECT_TRUE(a == b);
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(a, holder);
    EXPECT_TRUE(copy.IsEqualTo(a));
    EXPECT_EQ(copy.GetStripesWidth(), 2.0F);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectTwirl
// ---------------------------------------------------------------------------------------

TEST(Twirl, KeysAreReadWithTheirConversions)
{
    SettingsEffectTwirl twirl;
    twirl.Deserialize("rt0=0.1:vr=0.2:tt0=0.3:vt=0.7:intensity=0.1");
    EXPECT_EQ(twirl.GetRt0(), 0.1);
    EXPECT_EQ(twirl.GetVr(), 0.2);
    EXPECT_EQ(twirl.GetTt0(), 0.3);
    EXPECT_EQ(twirl.GetVt(), 0.7);
    EXPECT_EQ(twirl.GetIntensity(), 0.1F);
    twirl.Deserialize("vt=" + kHuge);
    EXPECT_EQ(twirl.GetVt(), kHugeDouble);
    EXPECT_THROW(twirl.Deserialize("intensity=" + kHuge), std::out_of_range);
}

TEST(Twirl, KeyOrderIsRt0VrTt0VtIntensity)
{
    SettingsEffectTwirl twirl;
    twirl.SetParams(1.0, 2.0, 3.0, 4.0);
    twirl.SetIntensity(0.5F);
    EXPECT_THROW(twirl.Deserialize("vt=-:tt0=30:vr=20:intensity=0.25"), std::invalid_argument);
    EXPECT_EQ(twirl.GetRt0(), 1.0);
    EXPECT_EQ(twirl.GetVr(), 20.0);
    EXPECT_EQ(twirl.GetTt0(), 30.0);
    EXPECT_EQ(twirl.GetVt(), 4.0);
    EXPECT_EQ(twirl.GetIntensity(), 0.5F);
}

TEST(Twirl, SetParamsTakesRt0VrTt0Vt)
{
    SettingsEffectTwirl twirl;
    twirl.SetParams(1.5, 2.5, 3.5, 4.5);
    EXPECT_EQ(twirl.GetRt0(), 1.5);
    EXPECT_EQ(twirl.GetVr(), 2.5);
    EXPECT_EQ(twirl.GetTt0(), 3.5);
    EXPECT_EQ(twirl.GetVt(), 4.5);
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(twirl, holder);
    EXPECT_EQ(copy.GetRt0(), 1.5);
    EXPECT_EQ(copy.GetVr(), 2.5);
    EXPECT_EQ(copy.GetTt0(), 3.5);
    EXPECT_EQ(copy.GetVt(), 4.5);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectVertigo
// ---------------------------------------------------------------------------------------

TEST(Vertigo, AllThreeKeysAreDoublesIntensityIncluded)
{
    SettingsEffectVertigo vertigo;
    vertigo.Deserialize("scale=0.1:speed=0.2:intensity=0.1");
    EXPECT_EQ(vertigo.GetScale(), 0.1);
    EXPECT_EQ(vertigo.GetSpeed(), 0.2);
    EXPECT_EQ(vertigo.GetIntensity(), 0.1);    // the double 0.1, not the float
    vertigo.Deserialize("intensity=" + kHuge); // std::stod: no overflow
    EXPECT_EQ(vertigo.GetIntensity(), kHugeDouble);
}

TEST(Vertigo, KeyOrderIsScaleSpeedIntensity)
{
    SettingsEffectVertigo vertigo;
    vertigo.SetParams(1.0, 2.0);
    vertigo.SetIntensity(0.5);
    EXPECT_THROW(vertigo.Deserialize("intensity=-:speed=4:scale=3"), std::invalid_argument);
    EXPECT_EQ(vertigo.GetScale(), 3.0);
    EXPECT_EQ(vertigo.GetSpeed(), 4.0);
    EXPECT_EQ(vertigo.GetIntensity(), 0.5);
    EXPECT_THROW(vertigo.Deserialize("speed=-:scale=5:intensity=1"), std::invalid_argument);
    EXPECT_EQ(vertigo.GetScale(), 5.0);
    EXPECT_EQ(vertigo.GetIntensity(), 0.5);
}

TEST(Vertigo, SettersStoreUnchecked)
{
    SettingsEffectVertigo vertigo;
    vertigo.SetParams(-1.5, 2.5);
    vertigo.SetIntensity(0.3);
    EXPECT_EQ(vertigo.GetScale(), -1.5);
    EXPECT_EQ(vertigo.GetSpeed(), 2.5);
    EXPECT_EQ(vertigo.GetIntensity(), 0.3);
    vertigo.SetIntensity(-7.0);
    EXPECT_EQ(vertigo.GetIntensity(), -7.0);
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(vertigo, holder);
    EXPECT_EQ(copy.GetScale(), -1.5);
    EXPECT_EQ(copy.GetSpeed(), 2.5);
    EXPECT_EQ(copy.GetIntensity(), -7.0);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectVHS
// ---------------------------------------------------------------------------------------

TEST(VHS, KeysAreReadWithTheirConversions)
{
    SettingsEffectVHS vhs;
    vhs.Deserialize("speed=0.1:relief=0.2:smoothness=0.3:shift=0.7:intensity=0.1");
    EXPECT_EQ(vhs.GetSpeed(), 0.1);
    EXPECT_EQ(vhs.GetRelief(), 0.2);
    EXPECT_EQ(vhs.GetSmoothness(), 0.3);
    EXPECT_EQ(vhs.GetShift(), 0.7);
    EXPECT_EQ(vhs.GetIntensity(), 0.1F);
    EXPECT_FALSE(vhs.GetDrawBorder());
    vhs.Deserialize("drawBorder=1:border=1:shift=" + kHuge);
    EXPECT_FALSE(vhs.GetDrawBorder()); // no key exists for it
    EXPECT_EQ(vhs.GetShift(), kHugeDouble);
    EXPECT_THROW(vhs.Deserialize("intensity=" + kHuge), std::out_of_range);
    EXPECT_EQ(vhs.GetIntensity(), 0.1F);
}

TEST(VHS, KeyOrderIsSpeedReliefSmoothnessShiftIntensity)
{
    SettingsEffectVHS vhs;
    vhs.SetParams(1.0, 2.0, 3.0, 4.0);
    vhs.SetIntensity(0.5F);
    EXPECT_THROW(vhs.Deserialize("shift=-:smoothness=30:relief=40:intensity=0.25"), std::invalid_argument);
    EXPECT_EQ(vhs.GetSpeed(), 1.0);
    EXPECT_EQ(vhs.GetRelief(), 40.0);
    EXPECT_EQ(vhs.GetSmoothness(), 30.0);
    EXPECT_EQ(vhs.GetShift(), 2.0);
    EXPECT_EQ(vhs.GetIntensity(), 0.5F);
    EXPECT_THROW(vhs.Deserialize("relief=-:speed=10:smoothness=0"), std::invalid_argument);
    EXPECT_EQ(vhs.GetSpeed(), 10.0);
    EXPECT_EQ(vhs.GetSmoothness(), 30.0);
}

TEST(VHS, SetParamsTakesTheFieldOrderSpeedShiftSmoothnessRelief)
{
    SettingsEffectVHS vhs;
    vhs.SetParams(1.0, 2.0, 3.0, 4.0);
    EXPECT_EQ(vhs.GetSpeed(), 1.0);
    EXPECT_EQ(vhs.GetShift(), 2.0);
    EXPECT_EQ(vhs.GetSmoothness(), 3.0);
    EXPECT_EQ(vhs.GetRelief(), 4.0);
    vhs.SetDrawBorder(true);
    EXPECT_TRUE(vhs.GetDrawBorder());
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(vhs, holder);
    EXPECT_EQ(copy.GetSpeed(), 1.0);
    EXPECT_EQ(copy.GetShift(), 2.0);
    EXPECT_EQ(copy.GetSmoothness(), 3.0);
    EXPECT_EQ(copy.GetRelief(), 4.0);
    EXPECT_TRUE(copy.GetDrawBorder());
}

TEST(VHS, SetIntensityRaisesToTheFloorWhileDeserializeStoresZero)
{
    const float floor = std::bit_cast<float>(std::uint32_t{0x358637BDU});
    EXPECT_EQ(floor, 0.000001F);
    SettingsEffectVHS vhs;
    vhs.SetIntensity(0.0F);
    EXPECT_EQ(std::bit_cast<std::uint32_t>(vhs.GetIntensity()), 0x358637BDU);
    vhs.SetIntensity(-3.0F);
    EXPECT_EQ(vhs.GetIntensity(), floor);
    vhs.SetIntensity(std::nextafter(floor, 0.0F));
    EXPECT_EQ(vhs.GetIntensity(), floor);
    vhs.SetIntensity(std::nextafter(floor, 1.0F));
    EXPECT_EQ(vhs.GetIntensity(), std::nextafter(floor, 1.0F));
    vhs.SetIntensity(0.5F);
    EXPECT_EQ(vhs.GetIntensity(), 0.5F);
    vhs.Deserialize("intensity=0");
    EXPECT_EQ(vhs.GetIntensity(), 0.0F);
    vhs.Deserialize("intensity=-2");
    EXPECT_EQ(vhs.GetIntensity(), -2.0F);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectLightLeaks and SettingsEffectLensFlare
// ---------------------------------------------------------------------------------------

TEST(LightLeaks, PresetIsAnIntAndIntensityAFloat)
{
    SettingsEffectLightLeaks leaks;
    leaks.Deserialize("preset=2.7:intensity=0.1");
    EXPECT_EQ(leaks.GetPreset(), 2);
    EXPECT_EQ(leaks.GetIntensity(), 0.1F);
    EXPECT_THROW(leaks.Deserialize("intensity=-:preset=1,5"), std::invalid_argument);
    EXPECT_EQ(leaks.GetPreset(), 1);
    EXPECT_EQ(leaks.GetIntensity(), 0.1F);
    EXPECT_THROW(leaks.Deserialize("preset=-:intensity=0.5"), std::invalid_argument);
    EXPECT_EQ(leaks.GetIntensity(), 0.1F);
    EXPECT_THROW(leaks.Deserialize("preset=3000000000"), std::out_of_range);
    leaks.Deserialize("intensity=0.5");
    EXPECT_EQ(leaks.GetPreset(), 1);
    EXPECT_EQ(leaks.GetIntensity(), 0.5F);
}

TEST(LightLeaks, ComparesPresetAndIntensityExactly)
{
    SettingsEffectLightLeaks a;
    SettingsEffectLightLeaks b;
    a.SetPreset(3);
    EXPECT_FALSE(a.IsEqualTo(b));
    b.SetPreset(3);
    EXPECT_TRUE(a.IsEqualTo(b));
    a.SetIntensity(0.25F);
    EXPECT_FALSE(a.IsEqualTo(b));
    EXPECT_FALSE(a == b);
    b.SetIntensity(0.25F);
    EXPECT_TRUE(a == b);
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(a, holder);
    EXPECT_TRUE(copy.IsEqualTo(a));
    EXPECT_EQ(copy.GetPreset(), 3);
    EXPECT_EQ(copy.GetIntensity(), 0.25F);
}

TEST(LensFlare, PresetIsAnIntAndIntensityAFloat)
{
    SettingsEffectLensFlare flare;
    flare.Deserialize("preset=4.2:intensity=0.1");
    EXPECT_EQ(flare.GetPreset(), 4);
    EXPECT_EQ(flare.GetIntensity(), 0.1F);
    EXPECT_THROW(flare.Deserialize("intensity=" + kHuge + ":preset=6"), std::out_of_range);
    EXPECT_EQ(flare.GetPreset(), 6);
    EXPECT_EQ(flare.GetIntensity(), 0.1F);
    EXPECT_THROW(flare.Deserialize("preset=-:intensity=0.5"), std::invalid_argument);
    EXPECT_EQ(flare.GetIntensity(), 0.1F);
    flare.SetPreset(-2);
    flare.SetIntensity(3.0F);
    EXPECT_EQ(flare.GetPreset(), -2);
    EXPECT_EQ(flare.GetIntensity(), 3.0F);
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(flare, holder);
    EXPECT_EQ(copy.GetPreset(), -2);
    EXPECT_EQ(copy.GetIntensity(), 3.0F);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectLensDistortion
// ---------------------------------------------------------------------------------------

TEST(LensDistortion, ConstructorSetsIntensityToOne)
{
    const SettingsEffectLensDistortion lens(2.0, 3.0, 4);
    EXPECT_EQ(lens.GetIntencity(), 1.0);
    EXPECT_EQ(lens.GetZoom(), 2.0);
    EXPECT_EQ(lens.GetDistortion(), 3.0);
    EXPECT_EQ(lens.GetMemberCount(), 4);
    const SettingsEffectLensDistortion neutral;
    EXPECT_EQ(neutral.GetIntencity(), 1.0);
    EXPECT_EQ(neutral.GetZoom(), 0.0);
    EXPECT_EQ(neutral.GetDistortion(), 0.0);
    EXPECT_EQ(neutral.GetMemberCount(), 0);
}

TEST(LensDistortion, ZoomAndDistortionAreMultipliedByTheIntensity)
{
    SettingsEffectLensDistortion lens(2.0, 3.0, 4);
    lens.SetIntensity(0.5);
    EXPECT_EQ(lens.GetZoom(), 1.0);
    EXPECT_EQ(lens.GetDistortion(), 1.5);
    EXPECT_EQ(lens.GetIntencity(), 0.5);
    lens.SetZoom(0.1);
    lens.SetDistortion(-0.7);
    lens.SetIntensity(3.0);
    EXPECT_EQ(lens.GetZoom(), 0.30000000000000004);       // 0.1 * 3 in double
    EXPECT_EQ(lens.GetDistortion(), -2.0999999999999996); // -0.7 * 3 in double
    lens.SetIntensity(0.0);
    EXPECT_EQ(lens.GetZoom(), 0.0);
    EXPECT_EQ(lens.GetDistortion(), -0.0);
    lens.SetMemberCount(9);
    EXPECT_EQ(lens.GetMemberCount(), 9);
}

TEST(LensDistortion, KeysAreReadWithTheirConversions)
{
    SettingsEffectLensDistortion lens;
    lens.Deserialize("zoom=0.5:distortion=0.25:member_count=3.9:intensity=0.1");
    EXPECT_EQ(lens.GetIntencity(), 0.1); // a double
    EXPECT_EQ(lens.GetMemberCount(), 3);
    lens.Deserialize("intensity=1");
    EXPECT_EQ(lens.GetZoom(), 0.5);
    EXPECT_EQ(lens.GetDistortion(), 0.25);
    lens.Deserialize("intensity=" + kHuge);
    EXPECT_EQ(lens.GetIntencity(), kHugeDouble);
    EXPECT_THROW(lens.Deserialize("member_count=3000000000"), std::out_of_range);
}

TEST(LensDistortion, KeyOrderIsZoomDistortionMemberCountIntensity)
{
    SettingsEffectLensDistortion lens(1.0, 2.0, 3);
    EXPECT_THROW(lens.Deserialize("member_count=-:distortion=5:zoom=4:intensity=2"), std::invalid_argument);
    EXPECT_EQ(lens.GetIntencity(), 1.0);
    EXPECT_EQ(lens.GetZoom(), 4.0);
    EXPECT_EQ(lens.GetDistortion(), 5.0);
    EXPECT_EQ(lens.GetMemberCount(), 3);
    lens.Deserialize("member_count=6");
    EXPECT_EQ(lens.GetZoom(), 4.0);
    EXPECT_EQ(lens.GetMemberCount(), 6);
}

TEST(LensDistortion, RecordsThatDifferOnlyInMemberCountCompareEqual)
{
    const SettingsEffectLensDistortion a(2.0, 3.0, 4);
    const SettingsEffectLensDistortion b(2.0, 3.0, 99);
    EXPECT_TRUE(a.IsEqualTo(b));
    EXPECT_TRUE(a == b);
}

TEST(LensDistortion, ComparesTheFieldsNotTheComputedValues)
{
    SettingsEffectLensDistortion a(2.0, 3.0, 4);
    SettingsEffectLensDistortion b(1.0, 3.0, 4);
    b.SetIntensity(2.0);
    b.SetDistortion(1.5);
    EXPECT_EQ(a.GetZoom(), b.GetZoom());
    EXPECT_EQ(a.GetDistortion(), b.GetDistortion());
    EXPECT_FALSE(a.IsEqualTo(b));
    SettingsEffectLensDistortion c(2.0, 3.0, 4);
    c.SetDistortion(3.5);
    EXPECT_FALSE(a.IsEqualTo(c));
    c.SetDistortion(3.0);
    c.SetIntensity(1.5);
    EXPECT_FALSE(a == c);
    c.SetIntensity(1.0);
    EXPECT_TRUE(a == c);
}

TEST(LensDistortion, IsNeverEmptyAndClonesEveryField)
{
    SettingsEffectLensDistortion lens(0.0, 0.0, 0);
    lens.SetIntensity(0.0);
    EXPECT_FALSE(lens.IsEmpty());
    lens.SetZoom(2.0);
    lens.SetDistortion(4.0);
    lens.SetMemberCount(5);
    lens.SetIntensity(0.5);
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(lens, holder);
    EXPECT_EQ(copy.GetZoom(), 1.0);
    EXPECT_EQ(copy.GetDistortion(), 2.0);
    EXPECT_EQ(copy.GetMemberCount(), 5);
    EXPECT_EQ(copy.GetIntencity(), 0.5);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectChromaticAberration
// ---------------------------------------------------------------------------------------

TEST(ChromaticAberration, IntensityIsAFloatComparedExactly)
{
    SettingsEffectChromaticAberration a;
    a.Deserialize("intensity=0.1");
    EXPECT_EQ(a.GetIntensity(), 0.1F);
    a.Deserialize("intensity=2,5");
    EXPECT_EQ(a.GetIntensity(), 2.0F);
    EXPECT_THROW(a.Deserialize("intensity=" + kHuge), std::out_of_range);
    EXPECT_THROW(a.Deserialize("intensity=-"), std::invalid_argument);
    EXPECT_EQ(a.GetIntensity(), 2.0F);
    SettingsEffectChromaticAberration b;
    EXPECT_FALSE(a.IsEqualTo(b));
    b.SetIntensity(2.0F);
    EXPECT_TRUE(a.IsEqualTo(b));
    EXPECT_TRUE(a == b);
    std::unique_ptr<Settings> holder;
    EXPECT_TRUE(CloneOf(a, holder).IsEqualTo(a));
}

// ---------------------------------------------------------------------------------------
// SettingsEffectNeonLamp
// ---------------------------------------------------------------------------------------

TEST(NeonLamp, AllThreeColourKeysReplaceTheColourWithAlpha255RedLowest)
{
    SettingsEffectNeonLamp neon;
    neon.Deserialize("r=1:g=2:b=3");
    EXPECT_EQ(neon.GetColor(), 0xFF030201U);
    neon.Deserialize("b=0:R=255:G=000128");
    EXPECT_EQ(neon.GetColor(), 0xFF0080FFU);
    EXPECT_EQ(neon.GetIntensity(), 0.0);
}

TEST(NeonLamp, MissingColourKeyLeavesTheColourWhileIntensityStillApplies)
{
    SettingsEffectNeonLamp neon;
    neon.SetColor(0x11223344U);
    neon.Deserialize("r=1:g=2:intensity=0.25");
    EXPECT_EQ(neon.GetColor(), 0x11223344U);
    EXPECT_EQ(neon.GetIntensity(), 0.25);
    neon.Deserialize("g=2:b=3");
    EXPECT_EQ(neon.GetColor(), 0x11223344U);
}

TEST(NeonLamp, IntensityIsClampedToZeroOne)
{
    SettingsEffectNeonLamp neon;
    neon.Deserialize("intensity=5");
    EXPECT_EQ(neon.GetIntensity(), 1.0);
    neon.Deserialize("intensity=-1");
    EXPECT_EQ(neon.GetIntensity(), 0.0);
    neon.Deserialize("intensity=0.1");
    EXPECT_EQ(neon.GetIntensity(), 0.1);  // a double
    neon.Deserialize("intensity=2.5e-1"); // GetOption<double>: strtod reads the exponent
    EXPECT_EQ(neon.GetIntensity(), 0.25);
    neon.SetIntensity(7.0);
    EXPECT_EQ(neon.GetIntensity(), 1.0);
    neon.SetIntensity(-0.5);
    EXPECT_EQ(neon.GetIntensity(), 0.0);
    neon.SetIntensity(0.75);
    EXPECT_EQ(neon.GetIntensity(), 0.75);
}

TEST(NeonLamp, ValuesAreReadWithGetOptionAndItsFailures)
{
    SettingsEffectNeonLamp neon;
    neon.SetColor(0x11223344U);
    neon.SetIntensity(0.5);
    EXPECT_EQ(ZorvanTest::FormBDescription<std::invalid_argument>([&] { neon.Deserialize("r=256:g=1:b=1"); }, false),
              "The '256' value of the 'r' option is not a number");
    EXPECT_EQ(ZorvanTest::FormBDescription<std::invalid_argument>([&] { neon.Deserialize("r=1:g=-1:b=1"); }, false),
              "The '-1' value of the 'g' option is not a number");
    EXPECT_EQ(ZorvanTest::FormBDescription<std::invalid_argument>(
                  [&] { neon.Deserialize("intensity=0.9:r=1:g=2:b=x"); }, false),
              "The 'x' value of the 'b' option is not a number");
    EXPECT_EQ(ZorvanTest::FormBDescription<std::invalid_argument>([&] { neon.Deserialize("intensity=abc"); }, false),
              "The 'abc' value of the 'intensity' option is not a number");
    // Colour keys are read before the intensity: a bad colour leaves both unchanged.
    EXPECT_EQ(neon.GetColor(), 0x11223344U);
    EXPECT_EQ(neon.GetIntensity(), 0.5);
    // A bad intensity after a complete colour keeps the new colour.
    EXPECT_THROW(neon.Deserialize("r=9:g=8:b=7:intensity=x"), std::invalid_argument);
    EXPECT_EQ(neon.GetColor(), 0xFF070809U);
    EXPECT_EQ(neon.GetIntensity(), 0.5);
}

TEST(NeonLamp, ComparesIntensityAndColourExactlyAndIsNeverEmpty)
{
    SettingsEffectNeonLamp a;
    SettingsEffectNeonLamp b;
    EXPECT_FALSE(a.IsEmpty());
    a.SetColor(0xFF000001U);
    EXPECT_FALSE(a.IsEqualTo(b));
    b.SetColor(0xFF000001U);
    EXPECT_TRUE(a.IsEqualTo(b));
    a.SetIntensity(0.5);
    EXPECT_FALSE(a == b);
    b.SetIntensity(0.5);
    EXPECT_TRUE(a == b);
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(a, holder);
    EXPECT_TRUE(copy.IsEqualTo(a));
    EXPECT_EQ(copy.GetColor(), 0xFF000001U);
    EXPECT_EQ(copy.GetIntensity(), 0.5);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectRetroArtefacts
// ---------------------------------------------------------------------------------------

TEST(RetroArtefacts, ShakeAndVignettingAreTrueOnlyForExactlyOne)
{
    SettingsEffectRetroArtefacts retro;
    retro.Deserialize("shake=1:vignetting=1");
    EXPECT_TRUE(retro.GetShake());
    EXPECT_TRUE(retro.GetVignetting());
    retro.Deserialize("shake=2:vignetting=2");
    EXPECT_FALSE(retro.GetShake());
    EXPECT_FALSE(retro.GetVignetting());
    retro.Deserialize("shake=1,5:vignetting=1.9");
    EXPECT_TRUE(retro.GetShake());
    EXPECT_TRUE(retro.GetVignetting());
    retro.Deserialize("shake=-1:vignetting=0");
    EXPECT_FALSE(retro.GetShake());
    EXPECT_FALSE(retro.GetVignetting());
}

TEST(RetroArtefacts, OtherKeysAreIntsAndAFloat)
{
    SettingsEffectRetroArtefacts retro;
    retro.Deserialize("grain=2.7:scratches=3,5:rollertrack=-4:intensity=0.1");
    EXPECT_EQ(retro.GetGrain(), 2);
    EXPECT_EQ(retro.GetScratches(), 3);
    EXPECT_EQ(retro.GetRollerTrack(), -4);
    EXPECT_EQ(retro.GetIntensity(), 0.1F);
    EXPECT_THROW(retro.Deserialize("intensity=" + kHuge), std::out_of_range);
    EXPECT_THROW(retro.Deserialize("grain=3000000000"), std::out_of_range);
    EXPECT_EQ(retro.GetGrain(), 2);
}

TEST(RetroArtefacts, KeyOrderIsShakeVignettingGrainScratchesRollerTrackIntensity)
{
    SettingsEffectRetroArtefacts retro;
    EXPECT_THROW(retro.Deserialize("rollerTrack=-:scratches=5:grain=4:vignetting=1:shake=1:intensity=1"),
                 std::invalid_argument);
    EXPECT_TRUE(retro.GetShake());
    EXPECT_TRUE(retro.GetVignetting());
    EXPECT_EQ(retro.GetGrain(), 4);
    EXPECT_EQ(retro.GetScratches(), 5);
    EXPECT_EQ(retro.GetRollerTrack(), 0);
    EXPECT_EQ(retro.GetIntensity(), 0.0F);
    EXPECT_THROW(retro.Deserialize("shake=-:grain=9"), std::invalid_argument);
    EXPECT_EQ(retro.GetGrain(), 4);
    retro.Deserialize("rollerTrack=6");
    EXPECT_TRUE(retro.GetShake());
    EXPECT_EQ(retro.GetRollerTrack(), 6);
}

TEST(RetroArtefacts, ComparesAllSixFieldsExactly)
{
    SettingsEffectRetroArtefacts base;
    base.SetShake(true);
    base.SetVignetting(true);
    base.SetGrain(1);
    base.SetScratches(2);
    base.SetRollerTrack(3);
    base.SetIntensity(0.5F);
    SettingsEffectRetroArtefacts same = base;
    EXPECT_TRUE(base.IsEqualTo(same));
    EXPECT_TRUE(base == same);
    const std::function<void(SettingsEffectRetroArtefacts&)> changes[] = {
        [](SettingsEffectRetroArtefacts& r) { r.SetShake(false); },
        [](SettingsEffectRetroArtefacts& r) { r.SetVignetting(false); },
        [](SettingsEffectRetroArtefacts& r) { r.SetGrain(10); },
        [](SettingsEffectRetroArtefacts& r) { r.SetScratches(20); },
        [](SettingsEffectRetroArtefacts& r) { r.SetRollerTrack(30); },
        [](SettingsEffectRetroArtefacts& r) { r.SetIntensity(0.25F); },
    };
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        SettingsEffectRetroArtefacts other = base;
        changes[i](other);
        EXPECT_FALSE(base.IsEqualTo(other)) << i;
        EXPECT_FALSE(other == base) << i;
    }
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(base, holder);
    EXPECT_TRUE(copy.IsEqualTo(base));
    EXPECT_TRUE(copy.GetShake());
    EXPECT_EQ(copy.GetRollerTrack(), 3);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectBlur
// ---------------------------------------------------------------------------------------

TEST(Blur, ConstructorTakesTheAlgorithmAndSetsTheDefaultsOfThePart)
{
    const SettingsEffectBlur blur(SettingsEffectBlur::Algorithm::Median);
    EXPECT_EQ(blur.GetAlgorithm(), SettingsEffectBlur::Algorithm::Median);
    EXPECT_EQ(blur.GetKernelSize(), 2);
    EXPECT_EQ(blur.GetSigmaX(), -1.0);
    EXPECT_EQ(blur.GetSigmaY(), -1.0);
    EXPECT_EQ(blur.GetRadius(), 1);
    EXPECT_EQ(blur.GetMaxRadius(), 15);
    EXPECT_EQ(blur.GetAnchor(), -1);
    EXPECT_EQ(blur.GetBorderMode(), 0);
    EXPECT_EQ(blur.GetToleranceX(), 0.02);
    EXPECT_EQ(blur.GetToleranceY(), 0.02);
    const SettingsEffectBlur plain;
    EXPECT_EQ(static_cast<int>(plain.GetAlgorithm()), 0);
    EXPECT_EQ(plain.GetRadius(), 1);
    EXPECT_EQ(plain.GetMaxRadius(), 15);
}

TEST(Blur, EmptyExactlyWhenTheFifthFieldIsZero)
{
    SettingsEffectBlur blur;
    EXPECT_FALSE(blur.IsEmpty());
    blur.SetRadius(0);
    EXPECT_TRUE(blur.IsEmpty());
    blur.SetKernelSize(0);
    blur.SetMaxRadius(0);
    blur.SetRadius(-1);
    EXPECT_FALSE(blur.IsEmpty());
}

TEST(Blur, ComparesAllTenFieldsExactly)
{
    const SettingsEffectBlur base(SettingsEffectBlur::Algorithm::Gaussian);
    EXPECT_TRUE(base.IsEqualTo(SettingsEffectBlur(SettingsEffectBlur::Algorithm::Gaussian)));
    EXPECT_TRUE(base == SettingsEffectBlur(SettingsEffectBlur::Algorithm::Gaussian));
    EXPECT_FALSE(base.IsEqualTo(SettingsEffectBlur(SettingsEffectBlur::Algorithm::Box)));
    const std::function<void(SettingsEffectBlur&)> changes[] = {
        [](SettingsEffectBlur& b) { b.SetAlgorithm(SettingsEffectBlur::Algorithm::Bilateral); },
        [](SettingsEffectBlur& b) { b.SetKernelSize(3); },
        [](SettingsEffectBlur& b) { b.SetSigmaX(-0.9999999999999999); },
        [](SettingsEffectBlur& b) { b.SetSigmaY(0.5); },
        [](SettingsEffectBlur& b) { b.SetRadius(2); },
        [](SettingsEffectBlur& b) { b.SetMaxRadius(16); },
        [](SettingsEffectBlur& b) { b.SetAnchor(0); },
        [](SettingsEffectBlur& b) { b.SetBorderMode(4); },
        [](SettingsEffectBlur& b) { b.SetToleranceX(0.020000000000000004); },
        [](SettingsEffectBlur& b) { b.SetToleranceY(0.03); },
    };
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        SettingsEffectBlur other = base;
        changes[i](other);
        EXPECT_FALSE(base.IsEqualTo(other)) << i;
        EXPECT_FALSE(other == base) << i;
    }
}

TEST(Blur, CloneCopiesEveryField)
{
    SettingsEffectBlur blur(SettingsEffectBlur::Algorithm::Bilateral);
    blur.SetKernelSize(5);
    blur.SetSigmaX(1.5);
    blur.SetSigmaY(2.5);
    blur.SetRadius(3);
    blur.SetMaxRadius(20);
    blur.SetAnchor(7);
    blur.SetBorderMode(2);
    blur.SetToleranceX(0.5);
    blur.SetToleranceY(0.25);
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(blur, holder);
    EXPECT_TRUE(copy == blur);
    EXPECT_EQ(copy.GetAlgorithm(), SettingsEffectBlur::Algorithm::Bilateral);
    EXPECT_EQ(copy.GetKernelSize(), 5);
    EXPECT_EQ(copy.GetSigmaX(), 1.5);
    EXPECT_EQ(copy.GetSigmaY(), 2.5);
    EXPECT_EQ(copy.GetRadius(), 3);
    EXPECT_EQ(copy.GetMaxRadius(), 20);
    EXPECT_EQ(copy.GetAnchor(), 7);
    EXPECT_EQ(copy.GetBorderMode(), 2);
    EXPECT_EQ(copy.GetToleranceX(), 0.5);
    EXPECT_EQ(copy.GetToleranceY(), 0.25);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectEmboss and SettingsEffectEdgeDetect
// ---------------------------------------------------------------------------------------

TEST(Emboss, OperatorEqualsComparesTwoIntsAndABool)
{
    SettingsEffectEmboss a;
    a.SetAngle(45);
    a.SetDepth(3);
    a.SetGrayscale(true);
    SettingsEffectEmboss b = a;
    EXPECT_TRUE(a == b);
    b.SetAngle(46);
    EXPECT_FALSE(a == b);
    b = a;
    b.SetDepth(2);
    EXPECT_FALSE(a == b);
    b = a;
    b.SetGrayscale(false);
    EXPECT_FALSE(a == b);
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { (void)a.IsEqualTo(a); }),
              NotComparable("EFFECT_EMBOSS"));
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(a, holder);
    EXPECT_TRUE(copy == a);
    EXPECT_EQ(copy.GetAngle(), 45);
    EXPECT_EQ(copy.GetDepth(), 3);
    EXPECT_TRUE(copy.GetGrayscale());
}

TEST(EdgeDetect, OperatorEqualsComparesTwoIntsAndABool)
{
    SettingsEffectEdgeDetect a;
    a.SetLowThreshold(10);
    a.SetHighThreshold(30);
    a.SetInvert(true);
    SettingsEffectEdgeDetect b = a;
    EXPECT_TRUE(a == b);
    b.SetLowThreshold(11);
    EXPECT_FALSE(a == b);
    b = a;
    b.SetHighThreshold(31);
    EXPECT_FALSE(a == b);
    b = a;
    b.SetInvert(false);
    EXPECT_FALSE(a == b);
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { (void)a.IsEqualTo(a); }),
              NotComparable("EFFECT_EDGE_DETECT"));
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(a, holder);
    EXPECT_TRUE(copy == a);
    EXPECT_EQ(copy.GetLowThreshold(), 10);
    EXPECT_EQ(copy.GetHighThreshold(), 30);
    EXPECT_TRUE(copy.GetInvert());
}

// ---------------------------------------------------------------------------------------
// SettingsEffectSmartBlur
// ---------------------------------------------------------------------------------------

namespace {

SettingsEffectSmartBlur SmartBlur(int radius, int threshold, int right, int bottom, int left, int top, int quality,
                                  int mode)
{
    SettingsEffectSmartBlur blur;
    blur.SetRadius(radius);
    blur.SetThreshold(threshold);
    blur.SetRight(right);
    blur.SetBottom(bottom);
    blur.SetLeft(left);
    blur.SetTop(top);
    blur.SetQuality(quality);
    blur.SetMode(mode);
    return blur;
}

} // namespace

TEST(SmartBlur, ComparesFirstSecondSeventhEighthDirectly)
{
    const auto base = SmartBlur(1, 2, 30, 40, 5, 6, 7, 8);
    EXPECT_TRUE(base == SmartBlur(1, 2, 30, 40, 5, 6, 7, 8));
    EXPECT_FALSE(base == SmartBlur(9, 2, 30, 40, 5, 6, 7, 8));
    EXPECT_FALSE(base == SmartBlur(1, 9, 30, 40, 5, 6, 7, 8));
    EXPECT_FALSE(base == SmartBlur(1, 2, 30, 40, 5, 6, 9, 8));
    EXPECT_FALSE(base == SmartBlur(1, 2, 30, 40, 5, 6, 7, 9));
}

TEST(SmartBlur, ComparesThirdAndFourthOnlyThroughTheirDifferencesFromFifthAndSixth)
{
    const auto base = SmartBlur(1, 2, 30, 40, 5, 6, 7, 8);
    // Both pairs shifted by the same amount: equal.
    EXPECT_TRUE(base == SmartBlur(1, 2, 130, 40, 105, 6, 7, 8));
    EXPECT_TRUE(base == SmartBlur(1, 2, 30, 24, 5, -10, 7, 8));
    EXPECT_TRUE(base == SmartBlur(1, 2, -70, -60, -95, -94, 7, 8));
    // One member of a pair changed alone: unequal.
    EXPECT_FALSE(base == SmartBlur(1, 2, 31, 40, 5, 6, 7, 8));
    EXPECT_FALSE(base == SmartBlur(1, 2, 30, 41, 5, 6, 7, 8));
    EXPECT_FALSE(base == SmartBlur(1, 2, 30, 40, 4, 6, 7, 8));
    EXPECT_FALSE(base == SmartBlur(1, 2, 30, 40, 5, 7, 7, 8));
    // The difference of the third pair may not stand in for the fourth.
    EXPECT_FALSE(base == SmartBlur(1, 2, 40, 30, 5, 6, 7, 8));
}

TEST(SmartBlur, DifferencesWrapAroundIn32BitsWithoutOverflow)
{
    constexpr int max = std::numeric_limits<int>::max();
    constexpr int min = std::numeric_limits<int>::min();
    // max - min wraps to -1 modulo 2^32, the same as -1 - 0.
    EXPECT_TRUE(SmartBlur(0, 0, max, max, min, min, 0, 0) == SmartBlur(0, 0, -1, -1, 0, 0, 0, 0));
    EXPECT_FALSE(SmartBlur(0, 0, max, 0, min, 0, 0, 0) == SmartBlur(0, 0, 0, 0, 0, 0, 0, 0));
}

TEST(SmartBlur, KeepsTheBaseOperationsAndClonesEveryField)
{
    const auto blur = SmartBlur(1, 2, 3, 4, 5, 6, 7, 8);
    EXPECT_EQ(ZorvanTest::FormADescription<SettingsException>([&] { (void)blur.IsEqualTo(blur); }),
              NotComparable("EFFECT_SMARTBLUR"));
    EXPECT_FALSE(blur.IsEmpty());
    std::unique_ptr<Settings> holder;
    const auto& copy = CloneOf(blur, holder);
    EXPECT_EQ(copy.GetRadius(), 1);
    EXPECT_EQ(copy.GetThreshold(), 2);
    EXPECT_EQ(copy.GetRight(), 3);
    EXPECT_EQ(copy.GetBottom(), 4);
    EXPECT_EQ(copy.GetLeft(), 5);
    EXPECT_EQ(copy.GetTop(), 6);
    EXPECT_EQ(copy.GetQuality(), 7);
    EXPECT_EQ(copy.GetMode(), 8);
}

// ---------------------------------------------------------------------------------------
// SettingsEffectFilmStrip and SettingsEffectJalousie
// ---------------------------------------------------------------------------------------

TEST(FilmStrip, SetTypeStoresTheType)
{
    SettingsEffectFilmStrip strip;
    EXPECT_EQ(static_cast<int>(strip.GetType()), 0);
    strip.SetType(SettingsEffectFilmStrip::Type::Vertical);
    EXPECT_EQ(strip.GetType(), SettingsEffectFilmStrip::Type::Vertical);
    EXPECT_EQ(static_cast<int>(strip.GetType()), 1);
    std::unique_ptr<Settings> holder;
    EXPECT_EQ(CloneOf(strip, holder).GetType(), SettingsEffectFilmStrip::Type::Vertical);
}

TEST(Jalousie, SetThicknessStoresAnyUnsignedValue)
{
    SettingsEffectJalousie jalousie;
    EXPECT_EQ(jalousie.GetThickness(), 0U);
    jalousie.SetThickness(4000000000U);
    EXPECT_EQ(jalousie.GetThickness(), 4000000000U);
    std::unique_ptr<Settings> holder;
    EXPECT_EQ(CloneOf(jalousie, holder).GetThickness(), 4000000000U);
}

// ---------------------------------------------------------------------------------------
// Catalogue fields
// ---------------------------------------------------------------------------------------

TEST(SimpleStylisingCatalogue, FieldsAreListedInFieldOrder)
{
    const auto names = [](const char* id) {
        std::vector<std::string> result;
        const auto* entry = Zorvan::SettingsCatalog::Find(id);
        EXPECT_NE(entry, nullptr) << id;
        if (entry != nullptr) {
            for (const auto& field : entry->fields) {
                result.push_back(field.name);
            }
        }
        return result;
    };
    using V = std::vector<std::string>;
    EXPECT_EQ(names("$$EffectVHS$$"), (V{"speed", "shift", "smoothness", "relief", "drawBorder", "intensity"}));
    EXPECT_EQ(names("$$EffectErosion$$"), (V{"radius", "mode"}));
    EXPECT_EQ(names("$$EffectFindEdges$$"), (V{"type", "blend", "sensibility"}));
    EXPECT_EQ(names("$$EffectMosaic$$"), (V{"type", "amountVer", "amountHor", "intensity"}));
    EXPECT_EQ(names("EffectNeonLamp"), (V{"intensity", "color"}));
    EXPECT_EQ(names("EffectLensDistortion"), (V{"zoom", "distortion", "memberCount", "intensity"}));
    EXPECT_EQ(names("$$Effect_Retro_Artefacts$$"),
              (V{"shake", "vignetting", "grain", "scratches", "rollerTrack", "intensity"}));
    EXPECT_EQ(names("EFFECT_BLUR").size(), 10U);
    EXPECT_EQ(names("EFFECT_SMARTBLUR").size(), 8U);
}

TEST(SimpleStylisingCatalogue, FieldsReadTheRecord)
{
    const auto* entry = Zorvan::SettingsCatalog::Find("EffectNeonLamp");
    ASSERT_NE(entry, nullptr);
    SettingsEffectNeonLamp neon;
    neon.Deserialize("r=1:g=2:b=3:intensity=0.5");
    EXPECT_EQ(entry->FieldsToJson(neon).dump(), R"({"intensity":0.5,"color":4278387201})");
    const auto* erosion = Zorvan::SettingsCatalog::Find("$$EffectErosion$$");
    ASSERT_NE(erosion, nullptr);
    SettingsEffectErosion record;
    record.SetParams(2.5, SettingsEffectErosion::Types::Dilate);
    EXPECT_EQ(erosion->FieldsToJson(record).dump(), R"({"radius":2.5,"mode":1})");
}
