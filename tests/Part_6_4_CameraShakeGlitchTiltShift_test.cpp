// Part 6.4: camera shake, glitch and tilt shift. So far SettingsEffectBokehBlur.
#include <gtest/gtest.h>

#include <memory>

#include "Proc/Settings/SettingsEffectBokehBlur.h"
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
