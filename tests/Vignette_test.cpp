// SettingsEffectVignetteFilter, read back as the values of the catalogue's fields in field
// order: form, smooth, aspect, colour (packed, red lowest: 67305985 is 0x04030201), x0, y0,
// ri, re, intensity.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <typeinfo>

#include "Proc/Settings/SettingsEffectBlurGaussian.h"
#include "Proc/Settings/SettingsEffectVignetteFilter.h"
#include "RecordSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::CheckValues;
using ZorvanTest::Fails;
using ZorvanTest::Read;
using ZorvanTest::Values;

namespace {

const std::string kFilled = "form=1:smooth=2:aspect=3:r=1:g=2:b=3:a=4:x0=0.25:y0=0.75:ri=0.125:re=0.875:intensity=0.5";
const char* const kFilledValues = "[1,2,3,67305985,0.25,0.75,0.125,0.875,0.5]";

} // namespace

// Order: form, smooth, aspect, x0, y0, ri, re, the colour group r, g, b, a, intensity.
TEST(VignetteFilter, KeysConversionsAndOrder)
{
    using enum Fails;
    const struct {
        std::string before;
        std::string options;
        Fails fails;
        const char* values;
    } cases[] = {
        {"", "form=2:smooth=3:aspect=1:x0=0.25:y0=0.75:ri=0.1:re=0.9:r=10:g=20:b=30:a=40:intensity=0.1", No,
         "[2,3,1,673059850,0.25,0.75,0.1,0.9,0.10000000149011612]"},
        {"", "INTENSITY=0.25:A=4:B=3:G=2:R=1:RE=6:RI=5:Y0=-4:X0=-3:ASPECT=-2:Smooth=-1:Form=7", No,
         "[7,-1,-2,67305985,-3.0,-4.0,5.0,6.0,0.25]"},
        {"", "form=2.9:smooth=1,5:aspect=-0:x0=1.2.3:y0=1,5:ri=-.5:re=5.", No, "[2,1,0,0,1.2,1.0,-0.5,5.0,0.0]"},
        // Each colour key is an int cut to its low eight bits: 0x34FFFF01.
        {"", "r=257:g=-1:b=511:a=4660", No, "[0,0,0,889192193,0.0,0.0,0.0,0.0,0.0]"},
        {kFilled, "r=10:g=20:b=30:form=5:x0=0.5:intensity=1", No, "[5,2,3,67305985,0.5,0.75,0.125,0.875,1.0]"},
        {kFilled, "g=9:b=9:a=9", No, kFilledValues},
        {kFilled, "r=9:b=9:a=9", No, kFilledValues},
        {kFilled, "r=9:g=9:a=9", No, kFilledValues},
        {kFilled, "ri=1:re=2:g=9:b=9:a=9", No, "[1,2,3,67305985,0.25,0.75,1.0,2.0,0.5]"},
        {kFilled, "intensity=0.75:g=-:r=7:b=7:a=7:re=4:form=9", Invalid, "[9,2,3,67305985,0.25,0.75,0.125,4.0,0.5]"},
        {kFilled, "form=4:x0=\"1\":y0=2", Invalid, "[4,2,3,67305985,0.25,0.75,0.125,0.875,0.5]"},
        {kFilled, "r=1:g=2:b=3:a=99999999999", Range, kFilledValues},
        {kFilled, "intensity=1" + std::string(50, '0'), Range, kFilledValues},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.options);
        SettingsEffectVignetteFilter vignette;
        vignette.Deserialize(c.before);
        Read(vignette, c.options, c.fails);
        CheckValues(vignette, c.values);
    }
}

TEST(VignetteFilter, SetParamsTakesTheCentreThenTheRadii)
{
    SettingsEffectVignetteFilter vignette;
    vignette.SetParams(1.0, 2.0, 3.0, 4.0);
    EXPECT_EQ(Values(vignette), "[0,0,0,0,1.0,2.0,3.0,4.0,0.0]");
}

// Every field counts, exactly: each change is one unit in the last place or one bit.
TEST(VignetteFilter, Comparison)
{
    SettingsEffectVignetteFilter base;
    base.Deserialize(kFilled);
    for (const std::string change :
         {"form=9", "smooth=9", "aspect=9", "r=0:g=2:b=3:a=4", "r=1:g=2:b=3:a=132", "x0=0.25000000000000006",
          "y0=0.7500000000000001", "ri=0.12500000000000003", "re=0.8750000000000001", "intensity=0.50000006"}) {
        SCOPED_TRACE(change);
        SettingsEffectVignetteFilter other = base;
        EXPECT_TRUE(base.IsEqualTo(other));
        other.Deserialize(change);
        EXPECT_FALSE(base.IsEqualTo(other));
        EXPECT_FALSE(other.IsEqualTo(base));
    }
    EXPECT_THROW((void)base.IsEqualTo(SettingsEffectBlurGaussian()), std::bad_cast);
}
