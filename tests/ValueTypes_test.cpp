#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>
#include <tuple>
#include <type_traits>

#include "Proc/Settings/CropInfo.h"
#include "Proc/Settings/ImageHandler.h"
#include "Proc/Settings/NeuralNetworkModelInfo.h"
#include "Proc/Settings/RelativePoint.h"
#include "Proc/Settings/Types.h"

using namespace Zorvan::Proc;

namespace {

constexpr std::uint32_t kMax = std::numeric_limits<std::uint32_t>::max();
using Point = std::pair<double, double>;
using Pixel = std::pair<unsigned int, unsigned int>;

template <class T>
std::string Text(const T& value)
{
    std::ostringstream stream;
    stream << value;
    return stream.str();
}

} // namespace

// Callers build these by brace initialisation and store the numbers of the enumerations.
TEST(ValueTypes, LayoutAndNumbers)
{
    static_assert(std::is_same_v<avTime, std::int64_t> && std::is_same_v<Color, std::uint32_t>);
    static_assert(sizeof(NeuralNetworkModelInfo::ExecutorType) == 4 && sizeof(RelativePoint::Centers) == 4);
    static_assert(NeuralNetworkModelInfo::CPU == 0 && NeuralNetworkModelInfo::GPU == 1 &&
                  NeuralNetworkModelInfo::AUTO == 2 && RelativePoint::TopLeft == 0 && RelativePoint::TopRight == 1 &&
                  RelativePoint::BottomLeft == 2 && RelativePoint::BottomRight == 3 && RelativePoint::Center == 4);
    EXPECT_EQ((RectRel{0.125, 0.25, 0.5, 0.75}), (RectRel{.left = 0.125, .top = 0.25, .width = 0.5, .height = 0.75}));
    EXPECT_EQ((ColorF{0.25F, 0.5F, 0.75F, 1.0F}), (ColorF{.red = 0.25F, .green = 0.5F, .blue = 0.75F, .alpha = 1.0F}));
}

// Each difference is a signed 32-bit wrap-around value; the sum wraps at 2^32.
TEST(CropInfo, Diff)
{
    constexpr std::uint32_t h = 0x80000000;
    const std::tuple<CropInfo, CropInfo, std::uint32_t> rows[] = {
        // clang-format off
        {{10, 20, 30, 40},      {13, 15, 31, 50},      19},         {{},                    {kMax, 0, 0, 0},       1},
        {{kMax, 0, 0, 0},       {},                    1},          {{},                    {0, kMax, kMax, kMax}, 3},
        {{0x7FFFFFFF, 0, 0, 0}, {},                    0x7FFFFFFF}, {{h, 0, 0, 0},          {},                    h},
        {{},                    {0x80000001, 0, 0, 0}, 0x7FFFFFFF}, {{h, h, h, 0},          {},                    h},
        {{h, h, h, h},          {},                    0},
        // clang-format on
    };
    for (const auto& [a, b, diff] : rows) {
        EXPECT_EQ(a.Diff(b), diff) << Text(a) << Text(b);
    }
    EXPECT_EQ((CropInfoF{1.0, 2.0, 3.0, 4.0}.Diff(CropInfoF{1.5, 1.0, 3.25, 8.0})), 5.75);
}

// Align leaves alone an axis on which `other` is empty (where Union would not); a reversed
// axis is not empty. Apart's "+ 1" is unsigned and wraps at the limit.
TEST(CropInfo, AlignApartUnionIntersection)
{
    using Op = CropInfo (*)(CropInfo, const CropInfo&);
    const Op align = [](CropInfo a, const CropInfo& b) { return a.Align(b); };
    const Op apart = [](CropInfo a, const CropInfo& b) { return a.Apart(b.left, b.top); }; // the point in left, top
    const Op join = [](CropInfo a, const CropInfo& b) { return a.Union(b); };
    const Op meet = [](CropInfo a, const CropInfo& b) { return a.Intersection(b); };
    const CropInfo r{10, 20, 10, 20};
    const CropInfo q{10, 20, 30, 40};
    const CropInfo p{0, 10, 0, 10};
    const CropInfo last{kMax, 0, kMax, 0}; // x + 1 wraps to 0
    const std::tuple<Op, CropInfo, CropInfo, CropInfo> rows[] = {
        // clang-format off
        {align, r,  {15, 40, 2, 12}, {10, 40, 2, 20}},  {align, r,  {0, 0, 5, 30},   {10, 20, 5, 30}},
        {align, r,  {5, 30, 0, 0},   {5, 30, 10, 20}},  {align, r,  {0, 0, 50, 50},  r},
        {align, r,  {5, 3, 10, 20},  {5, 20, 10, 20}},  {join,  r,  {0, 0, 50, 50},  {0, 20, 10, 50}},
        {join,  q,  {15, 25, 5, 35}, {10, 25, 5, 40}},  {meet,  q,  {15, 25, 5, 35}, {15, 20, 30, 35}},
        {meet,  p,  {20, 30, 5, 8},  {20, 10, 5, 8}},   {meet,  r,  {},              {10, 0, 10, 0}},
        {apart, r,  {25, 0, 5, 0},   {10, 26, 5, 20}},  {apart, r,  {19, 0, 10, 0},  r},
        {apart, {}, {4, 0, 7, 0},    {0, 5, 0, 8}},     {apart, r,  last,            r},
        // clang-format on
    };
    for (const auto& [op, start, other, result] : rows) {
        EXPECT_EQ(op(start, other), result) << Text(start) << " with " << Text(other);
    }
}

// The same operations on doubles, compared exactly through Diff.
TEST(CropInfoF, AlignApartUnionIntersection)
{
    CropInfoF rect{1.0, 2.0, 1.0, 2.0};
    EXPECT_EQ(rect.Align(CropInfoF{0.5, 0.5, 0.25, 3.5}).Diff({1.0, 2.0, 0.25, 3.5}), 0.0) << Text(rect);
    EXPECT_EQ(rect.Apart(2.5, 0.0).Diff({1.0, 3.5, 0.0, 3.5}), 0.0) << Text(rect);
    EXPECT_EQ(rect.Apart(-0.5, 3.0).Diff({-0.5, 3.5, 0.0, 4.0}), 0.0) << Text(rect);
    const CropInfoF a{0.5, 2.0, 1.0, 3.0};
    EXPECT_EQ(a.Union({1.0, 4.0, 0.25, 2.0}).Diff({0.5, 4.0, 0.25, 3.0}), 0.0);
    EXPECT_EQ(a.Intersection({5.0, 6.0, 5.0, 6.0}).Diff({5.0, 2.0, 5.0, 3.0}), 0.0);
}

// Equal when the sum of the absolute differences is strictly below 1e-5.
TEST(CropInfoF, EqualityIsToleranceOnTheSum)
{
    const std::pair<CropInfoF, bool> rows[] = {
        // clang-format off
        {{4e-6, 0, 0, 4e-6},       true},  {{0, 6e-6, 6e-6, 0},         false}, {{1e-5, 0, 0, 0}, false},
        {{9.99e-6, 0, 0, 0},       true},  {{-2e-6, 2e-6, -2e-6, 2e-6}, true},  {{std::nan(""), 0, 0, 0}, false},
        {{-3e-6, 3e-6, -3e-6, 3e-6}, false},
        // clang-format on
    };
    for (const auto& [other, equal] : rows) {
        EXPECT_EQ(CropInfoF{} == other, equal) << Text(other);
        EXPECT_EQ(other == CropInfoF{}, equal) << Text(other);
        EXPECT_EQ(CropInfoF{} != other, !equal) << Text(other);
    }
}

// Written left, top, right, bottom although stored left, right, top, bottom; width 4 and
// a space fill for the six numbers only.
TEST(CropInfo, StreamOutput)
{
    EXPECT_EQ(Text(CropInfo{0, 1920, 8, 1088}), "(l:   0, t:   8, r:1920, b:1088) (w:1920, h:1080)");
    EXPECT_EQ(Text(CropInfo{5, 3, 0, 0}), "(l:   5, t:   0, r:   3, b:   0) (w:4294967294, h:   0)");
    EXPECT_EQ(Text(CropInfoF{0.5, 2.0, 1.0, 4.25}), "(l: 0.5, t:   1, r:   2, b:4.25) (w: 1.5, h:3.25)");
    EXPECT_EQ(Text(CropInfoF{3.0, 1.0, 0.0, 0.0}), "(l:   3, t:   0, r:   1, b:   0) (w:  -2, h:   0)");
    std::ostringstream stream;
    stream.fill('*');
    stream << "[" << CropInfo{1, 2, 3, 4} << "]" << 7;
    EXPECT_EQ(stream.str(), "[(l:   1, t:   3, r:   2, b:   4) (w:   1, h:   1)]7");
    EXPECT_EQ(stream.fill(), '*');
}

// An unknown centre gives the middle on construction but leaves a set point where it is.
TEST(RelativePoint, NamedPointsAndClamping)
{
    const Point named[] = {{0.0, 0.0}, {1.0, 0.0}, {0.0, 1.0}, {1.0, 1.0}, {0.5, 0.5}, {0.5, 0.5}};
    for (std::uint32_t center = 0; center < 6; ++center) {
        const auto value = static_cast<RelativePoint::Centers>(center);
        EXPECT_EQ(RelativePoint(value).GetCenter(), named[center]) << center;
        RelativePoint point;
        point.SetCenter(0.1, 0.9);
        point.SetCenter(value);
        EXPECT_EQ(point.GetCenter(), center < 5 ? named[center] : Point(0.1, 0.9)) << center;
    }
    RelativePoint point;
    EXPECT_EQ(point.GetCenter(), Point(0.5, 0.5));
    point.SetCenter(2.0, -1.0);
    EXPECT_EQ(point.GetCenter(), Point(1.0, 0.0));
    // Not-a-number is stored as it is, survives the clamp of an unknown centre, and gives 0.
    point.SetCenter(std::nan(""), 0.5);
    point.SetCenter(static_cast<RelativePoint::Centers>(9));
    EXPECT_TRUE(std::isnan(point.GetCenter().first));
    EXPECT_EQ(point.GetCenter(1920, 1080), Pixel(0, 540));
}

// column = truncate(x * width + 0.5), limited to width - 1, which wraps at width 0.
TEST(RelativePoint, PixelPosition)
{
    const std::tuple<Point, Pixel, Pixel> rows[] = {
        // clang-format off
        {{1.0, 1.0},    {1920, 1080}, {1919, 1079}},  {{0.5, 0.5},   {3, 4},      {2, 2}},
        {{0.25, 0.125}, {3, 4},       {1, 1}},        {{0.25, 0.125}, {2, 8},     {1, 1}},
        {{0.9, 1.0},    {10, 1},      {9, 0}},        {{1.0, 1.0},   {0, 1080},   {0, 1079}},
        {{1.0, 1.0},    {1920, 0},    {1919, 0}},     {{1.0, 1.0},   {kMax, kMax}, {kMax - 1, kMax - 1}},
        {{0.5, 0.5},    {kMax, kMax}, {2147483648U, 2147483648U}},
        // clang-format on
    };
    for (const auto& [center, size, pixel] : rows) {
        RelativePoint point;
        point.SetCenter(center.first, center.second);
        EXPECT_EQ(point.GetCenter(size.first, size.second), pixel) << size.first << "x" << size.second;
    }
}

TEST(NeuralNetworkModelInfo, EmptinessEqualityAndExecutorNames)
{
    using Info = NeuralNetworkModelInfo;
    const auto executor = [](std::uint32_t value) { return static_cast<Info::ExecutorType>(value); };
    EXPECT_TRUE((Info{"", "", executor(9)}.IsEmpty()));
    EXPECT_FALSE((Info{"a.onnx", "", Info::CPU}.IsEmpty()) || (Info{"", std::string(1, '\0'), Info::CPU}.IsEmpty()));
    const Info a{"a.onnx", "data", Info::GPU};
    EXPECT_TRUE((a == Info{"a.onnx", "data", Info::GPU}));
    EXPECT_FALSE((a == Info{"A.onnx", "data", Info::GPU}) || (a == Info{"a.onnx", "datA", Info::GPU}) ||
                 (a == Info{"a.onnx", "data", Info::CPU}));
    const std::string names[] = {"CPU", "GPU", "AUTO", ""};
    for (std::uint32_t value = 0; value < 4; ++value) {
        EXPECT_EQ(Info::ExecutorTypeToString(executor(value)), names[value]) << value;
    }
    EXPECT_EQ(Info::ExecutorTypeToString(executor(kMax)), "");
}

// Not-a-number fails both tests and comes back as it is.
TEST(Saturate, ClampsAndLetsNotANumberThrough)
{
    static_assert(::Saturate<int>(10, 0, 5) == 5 && ::Saturate<unsigned int>(0U, 1U, 5U) == 1U);
    EXPECT_EQ(Saturate<int>(-5, -2, 7), -2);
    EXPECT_EQ(Saturate<int>(8, -2, 7), 7);
    EXPECT_EQ(Saturate<unsigned int>(kMax, 2U, 7U), 7U);
    EXPECT_EQ(Saturate<double>(-std::numeric_limits<double>::infinity(), 0.0, 1.0), 0.0);
    EXPECT_EQ(Saturate<double>(0.25, 0.0, 1.0), 0.25);
    EXPECT_TRUE(std::signbit(Saturate<double>(-0.0, 0.0, 1.0)));
    EXPECT_TRUE(std::isnan(Saturate<double>(std::nan(""), 0.0, 1.0)));
}

TEST(ImageHandler, EmptyMeansNoPixelBytes)
{
    EXPECT_TRUE(ImageHandler().IsEmpty() && ImageHandler(4, 4, {}).IsEmpty());
    EXPECT_FALSE(ImageHandler(0, 0, {1}).IsEmpty());
}
