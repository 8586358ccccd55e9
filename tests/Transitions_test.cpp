// Transitions, read back as the values of the catalogue's fields in field order. Matrix, Snake and
// Wipe offer setters only and list no field: their rows show which keys they read by failing.
#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "Proc/Settings/SettingsTransitionKenBurns.h"
#include "Proc/Settings/SettingsTransitionOrigamiPleats.h"
#include "Proc/Settings/SettingsTransitionRipple.h"
#include "Proc/Settings/SettingsTransitionSmear.h"
#include "RecordSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::Call;
using ZorvanTest::CheckKeyCases;
using ZorvanTest::CheckValues;
using ZorvanTest::Fails;
using ZorvanTest::FormBDescription;
using ZorvanTest::KeyCase;
using ZorvanTest::Make;
using ZorvanTest::Opts;

namespace {

const char* const kEnumerated = "Incorrect value passed, use enumerated value";
const char* const kRipple = "$$TransitionRipple$$";

} // namespace

// Every key is std::stoi: the longest prefix, a negative number in an unsigned field as its bit
// pattern, 2^31 out of range. A failing key shows which keys were read before it.
TEST(Transitions, KeysConversionsAndOrder)
{
    using enum Fails;
    const std::vector<KeyCase> cases = {
        {"$$TransitionBarnDoor$$", "", "direction=3", No, "[3]"},
        {"TransitionBlur", "", "direction=-2", No, "[-2]"},
        {"$$TransitionCircle$$", "", "DIRECTION=7.9", No, "[7]"},
        {"$$TransitionRadial$$", "", "direction=1,5", No, "[1]"},
        {"$$TransitionSlide$$", "direction=4", "direction=-", Invalid, "[4]"},
        {"$$TransitionSlidingDoor$$", "", "direction=\"2\"", Invalid, "[0]"},
        {"$$TransitionPush$$", "", "direction=6:dir=1", No, "[6]"},
        {"$$TransitionLens$$", "", "type=5", No, "[5]"},
        {"TransitionPixels", "", "type=-7", No, "[-7]"},
        {"TransitionPuzzle", "", "type=2147483647", No, "[2147483647]"},
        {"$$TransitionScale$$", "", "type=2147483648", Range, "[0]"},
        {"TransitionSpin", "", "type=1:type=2", No, "[1]"},
        {"$$TransitionSpiral$$", "", "type=3", No, "[3]"},
        {"$$TransitionTwist$$", "", "type=abc", No, "[0]"},
        {"$$TransitionZoom$$", "", "type=9", No, "[9]"},
        {"TransitionCross", "", "cross=2", No, "[true]"},
        {"TransitionCross", "cross=1", "cross=-1", No, "[false]"},
        {"TransitionCross", "cross=1", "cross=0", No, "[false]"},
        {"$$TransitionDisintegrate$$", "", "n=-1:num=3", No, "[4294967295]"},
        {"$$TransitionOrigamiFlips$$", "", "n=12", No, "[12]"},
        {"$$TransitionOrigamiPleats$$", "", "n=3:direction=1", No, "[3,1]"},
        {"$$TransitionOrigamiPleats$$", "direction=1", "direction=0:n=-", Invalid, "[0,1]"},
        {"$$TransitionPageturn$$", "", "direction=4:type=3", No, "[4,3]"},
        {"$$TransitionPageturn$$", "", "type=3:direction=-", Invalid, "[0,3]"},
        {"$$TransitionPageturn$$", "", "direction=4:type=-", Invalid, "[0,0]"},
        {"$$TransitionShatter$$", "", "n=5:direction=-1", No, "[5,-1]"},
        {"$$TransitionShatter$$", "", "direction=2:n=-", Invalid, "[0,0]"},
        {"$$TransitionRippleSmooth$$", "", "freq=-5:ampl=7", No, "[-5,7]"},
        {"$$TransitionRippleSmooth$$", "", "ampl=7:freq=-", Invalid, "[0,0]"},
        {"$$TransitionRoll$$", "", "type=2:direction=-1:size=-1", No, "[4294967295,-1,2]"},
        {"$$TransitionRoll$$", "", "type=2:direction=-:size=3", Invalid, "[3,0,0]"},
        {"$$TransitionWaterbrush$$", "", "type=1:rough=4:size=3:angle=-90", No, "[-90,3,4,1]"},
        {"$$TransitionWaterbrush$$", "", "type=1:rough=-:size=3:angle=-90", Invalid, "[-90,3,0,0]"},
        {"$$TransitionPinwheel$$", "", "smoothness=4:ampl=3:freq=-2:n=1", No, "[1,-2,3,4]"},
        {"$$TransitionPinwheel$$", "", "smoothness=4:ampl=-:freq=-2:n=1", Invalid, "[1,-2,0,0]"},
        {"$$TransitionMatrix$$", "", "blockCount=-:blocks=3:smoothness=4", No, "[]"},
        {"$$TransitionMatrix$$", "", "blocks=-", Invalid, "[]"},
        {"$$TransitionMatrix$$", "", "smoothness=-", Invalid, "[]"},
        {"$$TransitionSnake$$", "", "thickness=-", Invalid, "[]"},
        {"$$TransitionSnake$$", "", "smoothness=-", Invalid, "[]"},
        {"$$EffectWipe$$", "", "smooth_width=-", Invalid, "[]"},
        {"$$EffectWipe$$", "", "direction=-", Invalid, "[]"},
        {"$$TransitionSmear$$", "", "direction=-", Invalid, "[]"},
        // No options at all: nothing in the string is looked at.
        {"TransitionFlash", "", "n=-:direction=\"1\":cross=2147483648", No, "[]"},
        {"$$TransitionCrossfade$$", "", "n=-:direction=\"1\":cross=2147483648", No, "[]"},
        // The counts go through their lower bounds, as unsigned numbers.
        {kRipple, "", "ampl=3:period=0:n=0:mode=3", No, R"([3,10,7,1,{"x":0.5,"y":0.5}])"},
        {kRipple, "", "ampl=11:period=8:n=2", No, R"([0,11,8,2,{"x":0.5,"y":0.5}])"},
        {kRipple, "", "ampl=-1:period=-7", No, R"([0,4294967295,4294967289,1,{"x":0.5,"y":0.5}])"},
        {kRipple, "", "period=9:ampl=-:n=5", Invalid, R"([0,10,10,1,{"x":0.5,"y":0.5}])"},
        // x and y only together, each clamped.
        {kRipple, "", "x=0.25", No, R"([0,10,10,1,{"x":0.5,"y":0.5}])"},
        {kRipple, "", "y=0.25", No, R"([0,10,10,1,{"x":0.5,"y":0.5}])"},
        {kRipple, "", "y=2:x=-1", No, R"([0,10,10,1,{"x":0.0,"y":1.0}])"},
        {kRipple, "", "x=0.25:y=0.75", No, R"([0,10,10,1,{"x":0.25,"y":0.75}])"},
        {kRipple, "", "mode=2:y=0.25:x=-", Invalid, R"([2,10,10,1,{"x":0.5,"y":0.5}])"},
        {"$$TransitionKenBurns$$", "", "direction=4:fade=7:zoom=50", No,
         "[[-1.0,-2.0,1.0,-2.0,1.0,0.0,-1.0,0.0],0.07000000029802322,0.5]"},
    };
    CheckKeyCases(cases);
}

// The counts' lower bounds on both sides; the named points, where 7 names none and gives the centre.
TEST(Transitions, RippleSettersClampAndNamePoints)
{
    using R = SettingsTransitionRipple;
    const auto named = [](unsigned int center) -> ZorvanTest::Change {
        return [center](Settings& s) { dynamic_cast<R&>(s).SetPoint(static_cast<RelativePoint::Centers>(center)); };
    };
    const ZorvanTest::Change away = Opts("x=0.25:y=0.75");
    const struct {
        std::vector<ZorvanTest::Change> steps;
        const char* values;
    } cases[] = {
        {{Call(&R::SetAmplitude, 9U), Call(&R::SetPeriod, 6U), Call(&R::SetWaveCount, 0U)},
         R"([0,10,7,1,{"x":0.5,"y":0.5}])"},
        {{Call(&R::SetAmplitude, 11U), Call(&R::SetPeriod, 8U), Call(&R::SetWaveCount, 2U)},
         R"([0,11,8,2,{"x":0.5,"y":0.5}])"},
        {{named(0)}, R"([0,10,10,1,{"x":0.0,"y":0.0}])"},
        {{named(1)}, R"([0,10,10,1,{"x":1.0,"y":0.0}])"},
        {{named(2)}, R"([0,10,10,1,{"x":0.0,"y":1.0}])"},
        {{named(3)}, R"([0,10,10,1,{"x":1.0,"y":1.0}])"},
        {{away, named(4)}, R"([0,10,10,1,{"x":0.5,"y":0.5}])"},
        {{away, named(7)}, R"([0,10,10,1,{"x":0.5,"y":0.5}])"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        CheckValues(*Make(kRipple, c.steps), c.values);
    }
}

// Any number is stored, from options too; only reading it back as a step refuses it.
TEST(Transitions, OrigamiPleatsDirIsAStepThatRefusesOtherNumbersWhenRead)
{
    SettingsTransitionOrigamiPleats record;
    EXPECT_EQ(record.GetDir(), -1);
    record.SetDir(SettingsTransitionOrigamiPleats::Direction::Positive);
    EXPECT_EQ(record.GetDir(), 1);
    for (const char* options : {"direction=2", "direction=-1"}) {
        record.Deserialize(options);
        EXPECT_EQ(FormBDescription<std::logic_error>([&] { (void)record.GetDir(); }), kEnumerated) << options;
    }
}

// Zoom up to 50 percent, fade up to 100; a refusal keeps the share. Options compare as unsigned,
// so -1 is refused, and the keys before a refused one stay read.
TEST(Transitions, KenBurnsPercentagesAreBoundedOnBothSides)
{
    SettingsTransitionKenBurns record;
    record.SetZoom(50);
    record.SetFade(100);
    const std::vector<std::function<void()>> refused = {
        [&] { record.SetZoom(51); },
        [&] { record.SetFade(101); },
        [&] { record.Deserialize("fade=-1"); },
        [&] { record.Deserialize("zoom=-1"); },
        [&] { record.Deserialize("direction=5:fade=0:zoom=51"); },
    };
    for (const auto& call : refused) {
        EXPECT_EQ(FormBDescription<std::logic_error>(call), "Incorrect value passed");
        EXPECT_EQ(record.GetZoom(), 0.5F);
    }
    EXPECT_EQ(record.GetFade(), 0.0F);
    EXPECT_EQ(record.GetDirection()[0], 0.0F); // direction 5
    record.SetZoom(0);
    EXPECT_EQ(record.GetZoom(), 0.0F);
}

// Every direction is the square of side 2 round the origin shifted by whole steps; 9, and -1 as a
// large unsigned number, are stored but refused when read.
TEST(Transitions, KenBurnsCornersAreTheCentredSquareShifted)
{
    const std::array<float, 8> square{-1, -1, 1, -1, 1, 1, -1, 1};
    const float shifts[9][2] = {{0, 0}, {1, 0}, {-1, 0}, {0, 1}, {0, -1}, {1, 1}, {1, -1}, {-1, 1}, {-1, -1}};
    SettingsTransitionKenBurns record;
    for (int direction = 0; direction < 9; ++direction) {
        record.SetDirection(static_cast<SettingsTransitionKenBurns::Direction>(direction));
        const auto corners = record.GetDirection();
        for (int i = 0; i < 8; ++i) {
            EXPECT_EQ(corners[i], square[i] + shifts[direction][i % 2]) << direction << " " << i;
        }
    }
    for (const char* options : {"direction=9", "direction=-1"}) {
        record.Deserialize(options);
        EXPECT_EQ(FormBDescription<std::logic_error>([&] { (void)record.GetDirection(); }), kEnumerated) << options;
    }
}

// first follows a = 2p, second b = 2(1 - p), both limited to 0..1; the diagonal directions take
// them over the square root of two. In the patterns '.' is 0, 'a' a, 'r' a / sqrt 2, 'b' b, 's'
// b / sqrt 2, and the capitals their negatives.
TEST(Transitions, SmearMatricesFollowProgressPerDirection)
{
    const char* const patterns[8][2] = {
        {"....a....", "....b..B."}, {"a.....A..", "b........"}, {"r...r.R..", "s...s..S."}, {"a........", "b.....B.."},
        {"r...r..R.", "s...s.S.."}, {"....a..A.", "....b...."}, {"r...r....", "s...s.SS."}, {"r...r.RR.", "s...s...."},
    };
    const float root = 0.70710677F; // 1 / sqrt 2
    const struct {
        float progress, a, b, r, s;
    } steps[] = {
        {0.0F, 0, 1, 0, root},
        {0.1F, 0.2F, 1, 0.14142136F, root},
        {0.25F, 0.5F, 1, 0.35355338F, root},
        {0.5F, 1, 1, root, root},
        {0.75F, 1, 0.5F, root, 0.35355338F},
        {1.0F, 1, 0, root, 0},
        {2.0F, 1, 0, root, 0},
        {-1.0F, 0, 1, 0, root},
    };
    SettingsTransitionSmear record;
    for (int direction = 0; direction < 8; ++direction) {
        record.SetDirection(static_cast<SettingsTransitionSmear::Direction>(direction));
        for (const auto& step : steps) {
            std::array<float, 9> first{};
            std::array<float, 9> second{};
            record.GetMatrices(first.data(), second.data(), step.progress);
            for (int i = 0; i < 9; ++i) {
                for (const auto& [matrix, pattern] :
                     {std::pair{&first, patterns[direction][0]}, std::pair{&second, patterns[direction][1]}}) {
                    const char c = pattern[i];
                    const float magnitude = c == '.'                 ? 0.0F
                                            : std::tolower(c) == 'a' ? step.a
                                            : std::tolower(c) == 'b' ? step.b
                                            : std::tolower(c) == 'r' ? step.r
                                                                     : step.s;
                    EXPECT_EQ((*matrix)[i], std::isupper(c) ? -magnitude : magnitude)
                        << direction << " at " << step.progress << ": " << pattern << "[" << i << "]";
                }
            }
        }
    }
    for (const char* options : {"direction=8", "direction=-1"}) {
        record.Deserialize(options);
        std::array<float, 9> first;
        std::array<float, 9> second;
        first.fill(7.0F);
        second.fill(7.0F);
        EXPECT_EQ(FormBDescription<std::logic_error>([&] { record.GetMatrices(first.data(), second.data(), 0.5F); }),
                  kEnumerated);
        EXPECT_EQ(first, (std::array<float, 9>{7, 7, 7, 7, 7, 7, 7, 7, 7}));
        EXPECT_EQ(second, first);
    }
}
