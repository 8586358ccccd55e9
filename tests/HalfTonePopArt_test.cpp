// SettingsEffectHalfTone and SettingsEffectPopArt, read back as the values of the catalogue's
// fields in field order. Half tone: background, dot (packed, red lowest, top byte 0: 197121 is
// 0x030201), colour size, threshold, dot size, angle. Pop art: saturation, hue, offset, scale,
// levels, nv, nh, invert, intensity, resize.
#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <vector>

#include "Proc/Settings/SettingsEffectHalfTone.h"
#include "Proc/Settings/SettingsEffectPopArt.h"
#include "RecordSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::CheckKeyCases;
using ZorvanTest::Fails;
using ZorvanTest::KeyCase;
using ZorvanTest::Make;
using ZorvanTest::Opts;
using ZorvanTest::Values;

namespace {

const char* const kHalfTone = "$$EffectHalfTone$$";
const char* const kPopArt = "EffectPopArt";
const std::string kHalf = "rbg=1:gbg=2:bbg=3:rdot=4:gdot=5:bdot=6:colorsize=1.5:threshold=0.25:dotsize=4:angle=45";
const char* const kHalfValues = "[197121,394500,1.5,0.25,4.0,45]";
const std::string kPop =
    "saturation=0.5:hue=0.25:offset=0.125:scale=2:levels=4:nv=2:nh=3:invert=1:resize=6:intensity=0.75";

} // namespace

// Half tone order: background group, dot group, colorsize, threshold, dotsize, angle. Pop art
// order: saturation, hue, offset, scale, levels, nv, nh, invert, resize, intensity.
TEST(HalfTonePopArt, KeysConversionsAndOrder)
{
    using enum Fails;
    const std::vector<KeyCase> cases = {
        {kHalfTone, "", "rbg=1:gbg=2:bbg=3:rdot=255:gdot=254:bdot=253:colorsize=1.5:threshold=0.25:dotsize=4:angle=45",
         No, "[197121,16645887,1.5,0.25,4.0,45]"},
        // Ints cut to eight bits: 0x01FF00 and 0x00FF02.
        {kHalfTone, "", "rbg=256:gbg=-1:bbg=257:rdot=2.9:gdot=511:bdot=0", No, "[130816,65282,0.0,0.0,0.0,0]"},
        {kHalfTone, kHalf, "rbg=9:gbg=9:rdot=10:gdot=20:bdot=30", No, "[197121,1971210,1.5,0.25,4.0,45]"},
        {kHalfTone, kHalf, "gbg=9:bbg=9:gdot=9:bdot=9", No, kHalfValues},
        {kHalfTone, kHalf, "rbg=9:bbg=9:rdot=9:bdot=9", No, kHalfValues},
        {kHalfTone, kHalf, "rbg=9:gbg=9:rdot=9:gdot=9", No, kHalfValues},
        {kHalfTone, kHalf, "threshold=1,75:angle=30.7:COLORSIZE=2.5.1:DotSize=-.25", No,
         "[197121,394500,2.5,1.0,-0.25,30]"},
        {kHalfTone, kHalf, "angle=1:dotsize=9:threshold=-:colorsize=3:rbg=7:gbg=7:bbg=7", Invalid,
         "[460551,394500,3.0,0.25,4.0,45]"},
        {kHalfTone, kHalf, "rdot=1:gdot=\"2\":bdot=3:colorsize=8", Invalid, kHalfValues},
        {kHalfTone, kHalf, "angle=99999999999", Range, kHalfValues},
        {kPopArt, "",
         "saturation=0.5:hue=-0.25:offset=0.125:scale=2:levels=6:nv=3:nh=4:invert=1:resize=2:intensity=0.1", No,
         "[0.5,-0.25,0.125,2.0,6,3,4,true,0.10000000149011612,2]"},
        // invert is true for exactly 1.
        {kPopArt, kPop, "invert=2", No, "[0.5,0.25,0.125,2.0,4,2,3,false,0.75,6]"},
        {kPopArt, "invert=0:" + kPop, "invert=1.9", No, "[0.5,0.25,0.125,2.0,4,2,3,true,0.75,6]"},
        {kPopArt, kPop, "NH=7:Hue=1,5", No, "[0.5,1.0,0.125,2.0,4,2,7,true,0.75,6]"},
        {kPopArt, kPop, "intensity=0.5:resize=-:nh=9:levels=8", Invalid, "[0.5,0.25,0.125,2.0,8,2,9,true,0.75,6]"},
        {kPopArt, kPop, "invert=0:nv=\"5\":hue=3:saturation=2", Invalid, "[2.0,3.0,0.125,2.0,4,2,3,true,0.75,6]"},
        {kPopArt, kPop, "levels=99999999999:offset=1", Range, "[0.5,0.25,1.0,2.0,4,2,3,true,0.75,6]"},
    };
    CheckKeyCases(cases);
}

TEST(HalfTonePopArt, SettersWithSeveralArguments)
{
    SettingsEffectHalfTone halfTone;
    halfTone.SetParam(1.5, 0.25, 4.0, 45);
    EXPECT_EQ(Values(halfTone), "[0,0,1.5,0.25,4.0,45]");
    // The amount goes into both directions, the second number into levels.
    SettingsEffectPopArt popArt;
    popArt.SetParams(3, 5, 0.5, -0.25, 0.125, 2.0);
    EXPECT_EQ(Values(popArt), "[0.5,-0.25,0.125,2.0,5,3,3,false,0.0,0]");
}

// levels * intensity in float, truncated toward zero; anything not above 1 is 1.
TEST(PopArt, GetLevels)
{
    constexpr int kMax = std::numeric_limits<int>::max();
    const float inf = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    // 16777217 has no float; 10 * 0.7f is 6.99999988, which rounds to the float 7.
    const struct {
        int levels;
        float intensity;
        int expected;
    } cases[] = {{5, 0.5F, 2},      {5, 0.0F, 1},  {0, 1.0F, 1},    {3, 0.99F, 2},
                 {1, 1.0F, 1},      {5, -2.0F, 1}, {-5, -2.0F, 10}, {16777217, 1.0F, 16777216},
                 {10, 0.7F, 7},     {5, nan, 1},   {5, inf, kMax},  {0, inf, 1},
                 {kMax, 2.0F, kMax}};
    for (const auto& c : cases) {
        SettingsEffectPopArt popArt;
        popArt.SetLevels(c.levels);
        popArt.SetIntensity(c.intensity);
        EXPECT_EQ(popArt.GetLevels(), c.expected) << c.levels << " " << c.intensity;
    }
}

// Every field counts, exactly: each change is one unit in the last place where it can be.
TEST(HalfTonePopArt, Comparison)
{
    const struct {
        const char* id;
        std::string base;
        std::vector<std::string> changes;
    } cases[] = {
        {kHalfTone,
         kHalf,
         {"rbg=0:gbg=2:bbg=3", "rdot=4:gdot=5:bdot=7", "colorsize=1.5000000000000002", "threshold=0.24999999999999997",
          "dotsize=4.000000000000001", "angle=46"}},
        {kPopArt,
         kPop,
         {"saturation=0.5000000000000001", "hue=0.25000000000000006", "offset=0.12500000000000003",
          "scale=2.0000000000000004", "levels=5", "nv=3", "nh=2", "invert=0", "intensity=0.75000006", "resize=7"}},
        {kPopArt, "levels=0", {"levels=1"}}, // the stored levels, not GetLevels, which is 1 for both
    };
    for (const auto& c : cases) {
        for (const std::string& change : c.changes) {
            SCOPED_TRACE(change);
            const auto a = Make(c.id, {Opts(c.base)});
            const auto b = a->Clone();
            EXPECT_TRUE(a->IsEqualTo(*b));
            b->Deserialize(change);
            EXPECT_FALSE(a->IsEqualTo(*b));
            EXPECT_FALSE(b->IsEqualTo(*a));
        }
    }
    EXPECT_THROW((void)SettingsEffectHalfTone().IsEqualTo(SettingsEffectPopArt()), std::bad_cast);
    EXPECT_THROW((void)SettingsEffectPopArt().IsEqualTo(SettingsEffectHalfTone()), std::bad_cast);
}
