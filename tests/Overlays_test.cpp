// Overlay records. Flying objects are checked against the process's own table of starting states,
// which the C library's generator fills from its default seed as the library loads; cosines and
// float quotients were worked out with python3.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <limits>
#include <tuple>
#include <utility>
#include <vector>

#include "Proc/Settings/SettingsEffectFlyingObjects.h"
#include "Proc/Settings/SettingsEffectMask.h"
#include "Proc/Settings/SettingsEffectWatermark.h"
#include "RecordSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormBDescription;
using Mode = SettingsEffectColorBlender::BlendMode;

namespace {

constexpr double kDegree = 0.017453292519943295;
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

std::array<double, 10> AllOf(const InitialParams& p)
{
    return {p.x,          p.y,           p.deviation,   p.deviationCos, p.deviationSin,
            p.sizeFactor, p.speedFactor, p.angleSpread, p.rateFactor,   p.rotationSign};
}

} // namespace

// Any non-empty string replaces every functor and rewrites type and method; out-of-range and
// negative selectors fall back; a bad number leaves the record whole.
TEST(Mask, OptionStringsBuildOneStaticRectangle)
{
    const struct {
        const char* options;
        int type, method, shape;
        std::array<double, 9> matrix;
    } cases[] = {
        {"w=0.5:h=0.25", 0, 2, 0, {0.5, 0, 0, 0, 0.25, 0, 0, 0, 1}},
        {"x=0.1:y=-0.2:type=1:shape=1:method=1", 1, 1, 1, {1, 0, 0, 0, 1, 0, 0.1, -0.2, 1}},
        {"type=2:method=3:shape=2", 0, 2, 0, {1, 0, 0, 0, 1, 0, 0, 0, 1}},
        {"type=-1:method=-1:shape=-1", 0, 2, 0, {1, 0, 0, 0, 1, 0, 0, 0, 1}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.options);
        SettingsEffectMask record;
        record.SetFrameFunctors({[](double) { return std::make_unique<SettingsEffectMask::FrameMask>(); }, nullptr});
        record.Deserialize(c.options);
        EXPECT_THROW(record.Deserialize("type=1:method=0:w=-"), std::invalid_argument);
        EXPECT_EQ(std::pair(record.GetType(), record.GetMethod()), std::pair(c.type, c.method));
        const auto masks = record.GetFrames(-7.5);
        ASSERT_EQ(masks.size(), 1U);
        EXPECT_EQ(std::tuple(masks[0]->shape, masks[0]->method, masks[0]->matrix),
                  std::tuple(c.shape, c.method, c.matrix));
        EXPECT_NE(masks[0].get(), record.GetFrames(-7.5)[0].get()); // a new copy on every call
    }
    SettingsEffectMask record;
    EXPECT_TRUE(record.GetFrames(0.0).empty());
    record.SetFrameFunctors({[](double) { return nullptr; }, nullptr});
    EXPECT_THROW(record.GetFrames(0.0), std::bad_function_call);
}

// Channels are checked red, green, blue, alpha; a refused colour keeps the old one.
TEST(Mask, ColoursArePackedRedLowest)
{
    const struct {
        std::array<float, 4> rgba;
        Color packed;
        const char* outcome;
    } cases[] = {
        {{1, 1, 1, 1}, 0xFFFFFFFFU, ""},
        {{0.5F, 0, 1, kNaN}, 0x00FF007FU, ""},
        {{1, 2, 1, 1}, 0xFF000000U, "EffectException: Invalid green channel!"},
        {{-0.1F, 2, 2, 2}, 0xFF000000U, "EffectException: Invalid red channel!"},
        {{0, 0, 0, -1e-9F}, 0xFF000000U, "EffectException: Invalid alpha channel!"},
    };
    for (const auto& [rgba, packed, outcome] : cases) {
        SettingsEffectMask record;
        EXPECT_EQ(ZorvanTest::Outcome([&] { record.SetBackGColor(rgba[0], rgba[1], rgba[2], rgba[3]); }), outcome);
        EXPECT_EQ(record.GetBackGColor(), packed) << outcome;
        record.SetFrameColor(0, 0, 0, 1);
        EXPECT_EQ(record.GetFrameColor(), 0xFF000000U);
    }
}

// No seed of the library's own: the table holds the generator's first draws from its default
// seed, object after object, eight draws each, in field order.
TEST(FlyingObjects, TableHoldsTheDefaultSeedsDrawsInFieldOrder)
{
    std::srand(1);
    for (const InitialParams& loaded : params) {
        EXPECT_EQ(AllOf(loaded), AllOf(InitialParams()));
    }
    std::srand(5);
    std::array<int, 9> raw{};
    std::generate(raw.begin(), raw.end(), std::rand);
    const auto r = [&](int i) { return raw[i] / 2147483647.0; };
    const double deviation = (r(2) - 0.5) * 0.3490658503988659;
    std::srand(5);
    EXPECT_EQ(AllOf(InitialParams()),
              (std::array{r(0), r(1), deviation, std::cos(deviation), std::sin(deviation), r(3) + 0.5, r(4) + 0.5,
                          2 * r(5) - 1, r(6) / 5 + 0.9, raw[7] % 2 == 0 ? -1.0 : 1.0}));
    EXPECT_EQ(InitialParams().x, r(8));
}

TEST(FlyingObjects, DescriptionFollowsTheObjectsStartingState)
{
    SettingsEffectFlyingObjects record;
    record.Deserialize("s=1.5:d=30:v=0.2:a0=10:ad=90:rv=2:samax=20:srv=3");
    const double aspect = 16.0 / 9.0;
    const double cos = std::cos(30 * kDegree), sin = std::sin(30 * kDegree), amplitude = 20 * kDegree;
    for (unsigned long object = 0; object <= 200; ++object) {
        const unsigned long index = object < 200 ? object : 5000; // past the table: the last object
        const InitialParams& p = params[std::min(index, 199UL)];
        for (const double t : {0.0, 1.75, -3.0}) {
            const double size = p.sizeFactor * 0.1 * 1.5;
            const double w = 3 * t * p.rateFactor / (2 * amplitude) + 0.5;
            const double swing = amplitude * 2 * std::abs(w - std::floor(w) - 0.5);
            const double base = std::fma(90.0, p.angleSpread, 10.0) * kDegree;
            const double marginX = size * 0.7071067811865476, marginY = size * aspect * 0.5;
            const double distance = 0.2 * t * p.speedFactor;
            const double u = (p.x + distance * (cos * p.deviationCos - sin * p.deviationSin)) / (1 + 2 * marginX);
            const double v = (p.y + distance * (cos * p.deviationSin + p.deviationCos * sin)) / (1 + 2 * marginY);
            const auto d = record.GetDescription(index, t, aspect);
            SCOPED_TRACE(std::to_string(index) + " at " + std::to_string(t));
            EXPECT_EQ(d.x, (u - std::floor(u)) * (1 + 2 * marginX) - marginX);
            EXPECT_EQ(d.y, (v - std::floor(v)) * (1 + 2 * marginY) - marginY);
            EXPECT_EQ(d.angle, std::fma(std::fma(2 * t, p.rateFactor, swing), p.rotationSign, base));
        }
    }
    EXPECT_TRUE(std::isnan(SettingsEffectFlyingObjects().GetDescription(0, 1.0, 1.0).angle)); // no swing: 0 / 0
}

// Keys apply in their order, so a bad "intensity" comes after the count and the scale.
TEST(FlyingObjects, ClampsWrapsAndTheFrameSizePair)
{
    SettingsEffectFlyingObjects start;
    start.Deserialize("n=50:v=5:d=90");
    const std::string invalid = typeid(std::invalid_argument).name();
    ZorvanTest::CheckParses(
        start, {
                   {"n=0:s=-1:v=-1:srv=100500.5", "",
                    R"({"objectsCount":1,"scale":0.0,"moveSpeed":0.0,"swingRotationSpeed":100500.0})"},
                   {"n=-1:s=3:rv=200000", "", R"({"objectsCount":200,"scale":2.0,"rotationSpeed":100500.0})"},
                   {"d=-1", "", R"({"moveDirection":359,"moveCos":0.9998476951563913,"moveSin":-0.01745240643728356})"},
                   {"d=720:a0=-1:ad=360:samax=-725", "",
                    R"({"moveDirection":0,"moveCos":1.0,"moveSin":0.0,"startAngle":359,"swingAmplitude":355})"},
                   {"w=640:intensity=0.25", "", R"({"intensity":0.25})"},
                   {"h=480:w=640", "", R"({"frameWidth":640,"frameHeight":480})"},
                   {"intensity=-:n=7:s=0.5", invalid, R"({"objectsCount":7,"scale":0.5})"},
               });
    SettingsEffectFlyingObjects record;
    record.SetObjectsCount(1000);
    EXPECT_EQ(record.GetObjectsCount(), 200U);
    record.SetScale(kNaN);
    EXPECT_EQ(record.GetScale(), 2.0);
    record.SetImage(nullptr);
    EXPECT_NE(record.GetImage(), nullptr);
}

// Each setter checks before it stores: a refused call leaves every field as it was.
TEST(Watermark, SettersRefuseAndKeepTheRecord)
{
    using W = SettingsEffectWatermark;
    const std::pair<std::function<void(W&)>, const char*> cases[] = {
        {[](W& w) { w.SetParamsOverlay(256); }, "Invalid opacity value"},
        {[](W& w) { w.SetParamsBlink(-1, 0, -1); }, "Invalid opacity value"},
        {[](W& w) { w.SetParamsBlink(255, 0, 0); }, "Invalid duration parameters"},
        {[](W& w) { w.SetParamsShow(-1, 5); }, "Invalid time interval"},
        {[](W& w) { w.SetParamsShow(0, 0); }, "Invalid time interval"},
        {[](W& w) { w.SetParamsPosition(-1, 0); }, "Invalid position parameters"},
    };
    for (const auto& [call, message] : cases) {
        W record;
        record.SetParamsBlink(7, 3, 2);
        record.SetParamsPosition(4, 6);
        const std::string before = ZorvanTest::Values(record);
        EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { call(record); }), message);
        EXPECT_EQ(ZorvanTest::Values(record), before) << message;
    }
}

// Blinking takes the remainder of a truncating division, so negative times show; an interval
// holds its begin, not its end. Centring truncates toward zero, then the position is made even.
TEST(Watermark, BlendSettingsAtATime)
{
    using W = SettingsEffectWatermark;
    const struct {
        std::function<void(W&)> set;
        Zorvan::Conf::FrameInfo overlay, frame;
        std::pair<int, int> position;
        std::vector<std::pair<avTime, int>> opacities;
    } cases[] = {
        // clang-format off
        {[](W&) {}, {100, 50}, {201, 1080}, {50, 514}, {{-5, 255}, {0, 255}}},
        {[](W& w) { w.SetParamsBlink(200, 3, 2); }, {105, 7}, {100, 0}, {-2, -4}, {{3, 0}, {5, 200}, {-4, 200}}},
        {[](W& w) { w.SetParamsBlink(255, 1, 0), w.SetParamsPosition(3, 7); }, {}, {}, {2, 6}, {{-7, 255}}},
        {[](W& w) { w.SetParamsShow(10, 20); }, {}, {}, {0, 0}, {{9, 0}, {10, 255}, {20, 0}}},
        {[](W& w) { w.SetParamsShow(10, 5), w.SetParamsPosition(-3, -9); }, {}, {}, {0, 0}, {{5, 0}, {7, 0}, {10, 0}}},
        {[](W& w) { w.SetParamsBlink(9, 1, 1), w.SetParamsShow(0, 1); }, {}, {}, {0, 0}, {{0, 255}, {1, 0}}},
        {[](W& w) { w.SetParamsShow(0, 1), w.SetParamsOverlay(128); }, {}, {}, {0, 0}, {{5, 128}}},
        // clang-format on
    };
    for (const auto& c : cases) {
        W record;
        c.set(record);
        for (const auto& [time, opacity] : c.opacities) {
            const auto blend = record.GetBlendSettings(time, c.overlay, c.frame);
            EXPECT_EQ(blend.GetIntensity(), static_cast<float>(opacity) / 255.0F) << time;
            EXPECT_EQ(std::pair(blend.GetX(), blend.GetY()), c.position);
            EXPECT_EQ(blend.GetBlendMode(), Mode::Normal);
        }
    }
}

TEST(ImageBlender, OpacityIsScaledInSinglePrecision)
{
    EXPECT_EQ(ZorvanTest::Values(SettingsEffectImageBlender(4, -6, 128, Mode::Screen)),
              "[4,-6,0.501960813999176,7,null]");
}
