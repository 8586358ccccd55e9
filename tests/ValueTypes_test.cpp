// Part 1.4: Small value types.
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Proc/Settings/CropInfo.h"
#include "Proc/Settings/ImageHandler.h"
#include "Proc/Settings/NeuralNetworkModelInfo.h"
#include "Proc/Settings/RelativePoint.h"
#include "Proc/Settings/Types.h"

using Zorvan::Proc::CropInfo;
using Zorvan::Proc::CropInfoF;
using Zorvan::Proc::NeuralNetworkModelInfo;
using Zorvan::Proc::RelativePoint;

namespace {

constexpr std::uint32_t kMaxU32 = std::numeric_limits<std::uint32_t>::max();

void ExpectCrop(const CropInfo& rect, std::uint32_t left, std::uint32_t right, std::uint32_t top, std::uint32_t bottom)
{
    EXPECT_EQ(rect.left, left);
    EXPECT_EQ(rect.right, right);
    EXPECT_EQ(rect.top, top);
    EXPECT_EQ(rect.bottom, bottom);
}

void ExpectCropF(const CropInfoF& rect, double left, double right, double top, double bottom)
{
    EXPECT_EQ(rect.left, left);
    EXPECT_EQ(rect.right, right);
    EXPECT_EQ(rect.top, top);
    EXPECT_EQ(rect.bottom, bottom);
}

template <typename T>
std::string ToText(const T& value)
{
    std::ostringstream stream;
    stream << value;
    return stream.str();
}

using Point = std::pair<double, double>;
using Pixel = std::pair<unsigned int, unsigned int>;

} // namespace

// --- Data model ---------------------------------------------------------------------------

TEST(Part_1_4_DataModel, TimeAndColorTypes)
{
    static_assert(std::is_same_v<Zorvan::Proc::avTime, std::int64_t>);
    static_assert(std::is_same_v<Zorvan::Proc::Color, std::uint32_t>);
    const Zorvan::Proc::avTime oneMinute = 60 * 1000000;
    EXPECT_EQ(oneMinute, 60000000);
}

TEST(Part_1_4_DataModel, CropInfoIsAnAggregateInTheOrderLeftRightTopBottom)
{
    static_assert(std::is_aggregate_v<CropInfo>);
    static_assert(std::is_same_v<decltype(CropInfo::left), std::uint32_t>);
    const CropInfo rect{1, 2, 3, 4};
    ExpectCrop(rect, 1, 2, 3, 4);
    ExpectCrop(CropInfo{}, 0, 0, 0, 0);
}

TEST(Part_1_4_DataModel, CropInfoFIsAnAggregateOfDoublesInTheSameOrder)
{
    static_assert(std::is_aggregate_v<CropInfoF>);
    static_assert(std::is_same_v<decltype(CropInfoF::bottom), double>);
    const CropInfoF rect{0.5, 1.5, 2.5, 3.5};
    ExpectCropF(rect, 0.5, 1.5, 2.5, 3.5);
}

TEST(Part_1_4_DataModel, RectRelColorFAndFrameSizeAreAggregatesInTheSpecOrder)
{
    static_assert(std::is_aggregate_v<Zorvan::Proc::RectRel>);
    static_assert(std::is_aggregate_v<Zorvan::Proc::ColorF>);
    static_assert(std::is_aggregate_v<Zorvan::FrameSize>);
    static_assert(std::is_same_v<decltype(Zorvan::Proc::ColorF::alpha), float>);
    static_assert(std::is_same_v<decltype(Zorvan::FrameSize::width), std::uint32_t>);

    const Zorvan::Proc::RectRel rect{0.125, 0.25, 0.5, 0.75};
    EXPECT_EQ(rect.left, 0.125);
    EXPECT_EQ(rect.top, 0.25);
    EXPECT_EQ(rect.width, 0.5);
    EXPECT_EQ(rect.height, 0.75);

    const Zorvan::Proc::ColorF color{0.25F, 0.5F, 0.75F, 1.0F};
    EXPECT_EQ(color.red, 0.25F);
    EXPECT_EQ(color.green, 0.5F);
    EXPECT_EQ(color.blue, 0.75F);
    EXPECT_EQ(color.alpha, 1.0F);

    const Zorvan::FrameSize size{1920, 1080};
    EXPECT_EQ(size.width, 1920U);
    EXPECT_EQ(size.height, 1080U);
    EXPECT_TRUE((size == Zorvan::FrameSize{1920, 1080}));
    EXPECT_FALSE((size == Zorvan::FrameSize{1080, 1920}));
}

TEST(Part_1_4_DataModel, NeuralNetworkModelInfoIsAnAggregateWith32BitExecutorNumbers)
{
    static_assert(std::is_aggregate_v<NeuralNetworkModelInfo>);
    static_assert(sizeof(NeuralNetworkModelInfo::ExecutorType) == 4);
    static_assert(std::is_same_v<std::underlying_type_t<NeuralNetworkModelInfo::ExecutorType>, std::uint32_t>);
    EXPECT_EQ(static_cast<std::uint32_t>(NeuralNetworkModelInfo::CPU), 0U);
    EXPECT_EQ(static_cast<std::uint32_t>(NeuralNetworkModelInfo::GPU), 1U);
    EXPECT_EQ(static_cast<std::uint32_t>(NeuralNetworkModelInfo::AUTO), 2U);

    const NeuralNetworkModelInfo info{"model.onnx", "bytes", NeuralNetworkModelInfo::GPU};
    EXPECT_EQ(info.path, "model.onnx");
    EXPECT_EQ(info.binaryData, "bytes");
    EXPECT_EQ(info.executorType, NeuralNetworkModelInfo::GPU);
}

TEST(Part_1_4_DataModel, RelativePointCentersHaveTheTableNumbers)
{
    EXPECT_EQ(static_cast<std::uint32_t>(RelativePoint::TopLeft), 0U);
    EXPECT_EQ(static_cast<std::uint32_t>(RelativePoint::TopRight), 1U);
    EXPECT_EQ(static_cast<std::uint32_t>(RelativePoint::BottomLeft), 2U);
    EXPECT_EQ(static_cast<std::uint32_t>(RelativePoint::BottomRight), 3U);
    EXPECT_EQ(static_cast<std::uint32_t>(RelativePoint::Center), 4U);
}

// --- CropInfo::Diff -------------------------------------------------------------------------

TEST(Part_1_4_CropInfo, DiffSumsTheAbsoluteFieldDifferences)
{
    const CropInfo a{10, 20, 30, 40};
    const CropInfo b{13, 15, 31, 50};
    EXPECT_EQ(a.Diff(b), 3U + 5U + 1U + 10U);
    EXPECT_EQ(b.Diff(a), 19U);
    EXPECT_EQ(a.Diff(a), 0U);
}

TEST(Part_1_4_CropInfo, DiffTakesEachDifferenceAsSigned32BitWrapAround)
{
    // 0 - 0xFFFFFFFF wraps to 1 as a signed 32-bit value, and 0xFFFFFFFF - 0 to -1.
    EXPECT_EQ((CropInfo{0, 0, 0, 0}.Diff(CropInfo{kMaxU32, 0, 0, 0})), 1U);
    EXPECT_EQ((CropInfo{kMaxU32, 0, 0, 0}.Diff(CropInfo{0, 0, 0, 0})), 1U);
    EXPECT_EQ((CropInfo{0, 0, 0, 0}.Diff(CropInfo{0, kMaxU32, kMaxU32, kMaxU32})), 3U);
    // The largest positive difference stays as it is; one more wraps to the smallest int,
    // whose absolute value is 0x80000000.
    EXPECT_EQ((CropInfo{0x7FFFFFFFU, 0, 0, 0}.Diff(CropInfo{0, 0, 0, 0})), 0x7FFFFFFFU);
    EXPECT_EQ((CropInfo{0x80000000U, 0, 0, 0}.Diff(CropInfo{0, 0, 0, 0})), 0x80000000U);
    EXPECT_EQ((CropInfo{0, 0, 0, 0}.Diff(CropInfo{0x80000001U, 0, 0, 0})), 0x7FFFFFFFU);
    EXPECT_EQ((CropInfo{0x80000001U, 0, 0, 0}.Diff(CropInfo{0, 0, 0, 0})), 0x7FFFFFFFU);
}

TEST(Part_1_4_CropInfo, DiffSumIsUnsigned32Bit)
{
    // Four differences of 0x80000000 (|INT32_MIN| each) add up to 2^33, which is 0 in 32 bits.
    const CropInfo a{0x80000000U, 0x80000000U, 0x80000000U, 0x80000000U};
    EXPECT_EQ(a.Diff(CropInfo{0, 0, 0, 0}), 0U);
    // Three add up to 0x180000000, which is 0x80000000 in 32 bits.
    EXPECT_EQ((CropInfo{0x80000000U, 0x80000000U, 0x80000000U, 0}.Diff(CropInfo{0, 0, 0, 0})), 0x80000000U);
}

TEST(Part_1_4_CropInfoF, DiffSumsTheAbsoluteFieldDifferences)
{
    const CropInfoF a{1.0, 2.0, 3.0, 4.0};
    const CropInfoF b{1.5, 1.0, 3.25, 8.0};
    EXPECT_EQ(a.Diff(b), 0.5 + 1.0 + 0.25 + 4.0);
    EXPECT_EQ(b.Diff(a), 5.75);
    EXPECT_EQ(a.Diff(a), 0.0);
}

// --- CropInfo::Align ------------------------------------------------------------------------

TEST(Part_1_4_CropInfo, AlignWithHorizontallyEmptyOtherLeavesLeftAndRightUnchanged)
{
    CropInfo rect{10, 20, 10, 20};
    rect.Align(CropInfo{0, 0, 5, 30});
    ExpectCrop(rect, 10, 20, 5, 30);

    CropInfo rect2{10, 20, 10, 20};
    rect2.Align(CropInfo{100, 100, 15, 16}); // left == right far away: ignored as well
    ExpectCrop(rect2, 10, 20, 10, 20);
}

TEST(Part_1_4_CropInfo, AlignWithVerticallyEmptyOtherLeavesTopAndBottomUnchanged)
{
    CropInfo rect{10, 20, 10, 20};
    rect.Align(CropInfo{5, 30, 0, 0});
    ExpectCrop(rect, 5, 30, 10, 20);
}

TEST(Part_1_4_CropInfo, AlignGrowsEachAxisToCoverOther)
{
    CropInfo rect{10, 20, 10, 20};
    CropInfo& result = rect.Align(CropInfo{15, 40, 2, 12});
    EXPECT_EQ(&result, &rect);
    ExpectCrop(rect, 10, 40, 2, 20);

    // Empty on both axes: nothing changes, unlike Union.
    CropInfo rect2{10, 20, 10, 20};
    rect2.Align(CropInfo{0, 0, 50, 50});
    ExpectCrop(rect2, 10, 20, 10, 20);
    ExpectCrop(CropInfo{10, 20, 10, 20}.Union(CropInfo{0, 0, 50, 50}), 0, 20, 10, 50);
}

TEST(Part_1_4_CropInfo, AlignCountsAReversedOtherAsNotEmpty)
{
    // other.left differs from other.right even though it is larger: the axis is treated.
    CropInfo rect{10, 20, 10, 20};
    rect.Align(CropInfo{30, 5, 10, 20});
    ExpectCrop(rect, 10, 20, 10, 20); // min(10, 30) = 10, max(20, 5) = 20
    CropInfo rect2{10, 20, 10, 20};
    rect2.Align(CropInfo{5, 3, 10, 20});
    ExpectCrop(rect2, 5, 20, 10, 20);
}

TEST(Part_1_4_CropInfoF, AlignTreatsEachAxisByItself)
{
    CropInfoF rect{1.0, 2.0, 1.0, 2.0};
    CropInfoF& result = rect.Align(CropInfoF{0.5, 0.5, 0.25, 3.5});
    EXPECT_EQ(&result, &rect);
    ExpectCropF(rect, 1.0, 2.0, 0.25, 3.5);

    CropInfoF rect2{1.0, 2.0, 1.0, 2.0};
    rect2.Align(CropInfoF{0.5, 2.5, 7.0, 7.0});
    ExpectCropF(rect2, 0.5, 2.5, 1.0, 2.0);
}

// --- Apart ----------------------------------------------------------------------------------

TEST(Part_1_4_CropInfo, ApartGrowsToCoverThePixel)
{
    CropInfo rect{10, 20, 10, 20};
    CropInfo& result = rect.Apart(25, 5);
    EXPECT_EQ(&result, &rect);
    ExpectCrop(rect, 10, 26, 5, 20);

    rect.Apart(3, 40);
    ExpectCrop(rect, 3, 26, 5, 41);
}

TEST(Part_1_4_CropInfo, ApartInsideLeavesTheRectangle)
{
    CropInfo rect{10, 20, 10, 20};
    rect.Apart(10, 19);
    ExpectCrop(rect, 10, 20, 10, 20);
    rect.Apart(19, 10);
    ExpectCrop(rect, 10, 20, 10, 20);
}

TEST(Part_1_4_CropInfo, ApartOnAnEmptyRectangleAtTheOrigin)
{
    CropInfo rect{};
    rect.Apart(4, 7);
    ExpectCrop(rect, 0, 5, 0, 8);
}

TEST(Part_1_4_CropInfo, ApartPlusOneIsUnsignedAndWrapsAtTheLimit)
{
    // x + 1 of 0xFFFFFFFF is 0 in unsigned arithmetic, so right keeps the larger value.
    CropInfo rect{10, 20, 10, 20};
    rect.Apart(kMaxU32, kMaxU32);
    ExpectCrop(rect, 10, 20, 10, 20);
}

TEST(Part_1_4_CropInfoF, ApartUsesTheSamePlusOne)
{
    CropInfoF rect{1.0, 2.0, 1.0, 2.0};
    CropInfoF& result = rect.Apart(2.5, 0.25);
    EXPECT_EQ(&result, &rect);
    ExpectCropF(rect, 1.0, 3.5, 0.25, 2.0);

    rect.Apart(-0.5, 1.5); // y + 1 = 2.5 is beyond bottom
    ExpectCropF(rect, -0.5, 3.5, 0.25, 2.5);

    rect.Apart(1.0, 1.0); // inside
    ExpectCropF(rect, -0.5, 3.5, 0.25, 2.5);
}

// --- Union and Intersection ----------------------------------------------------------------

TEST(Part_1_4_CropInfo, UnionTakesSmallerLeftTopAndLargerRightBottom)
{
    const CropInfo a{10, 20, 30, 40};
    const CropInfo b{15, 25, 5, 35};
    ExpectCrop(a.Union(b), 10, 25, 5, 40);
    ExpectCrop(b.Union(a), 10, 25, 5, 40);
    ExpectCrop(a, 10, 20, 30, 40); // unchanged
}

TEST(Part_1_4_CropInfo, IntersectionTakesLargerLeftTopAndSmallerRightBottom)
{
    const CropInfo a{10, 20, 30, 40};
    const CropInfo b{15, 25, 5, 35};
    ExpectCrop(a.Intersection(b), 15, 20, 30, 35);
    ExpectCrop(b.Intersection(a), 15, 20, 30, 35);
}

TEST(Part_1_4_CropInfo, UnionAndIntersectionDoNotSpecialCaseEmptyRectangles)
{
    const CropInfo rect{10, 20, 10, 20};
    const CropInfo empty{0, 0, 0, 0};
    ExpectCrop(rect.Union(empty), 0, 20, 0, 20);
    ExpectCrop(rect.Intersection(empty), 10, 0, 10, 0);
}

TEST(Part_1_4_CropInfo, IntersectionOfDisjointRectanglesHasLeftGreaterThanRight)
{
    const CropInfo a{0, 10, 0, 10};
    const CropInfo b{20, 30, 5, 8};
    const CropInfo cut = a.Intersection(b);
    ExpectCrop(cut, 20, 10, 5, 8);
    EXPECT_GT(cut.left, cut.right);
}

TEST(Part_1_4_CropInfoF, UnionAndIntersection)
{
    const CropInfoF a{0.5, 2.0, 1.0, 3.0};
    const CropInfoF b{1.0, 4.0, 0.25, 2.0};
    ExpectCropF(a.Union(b), 0.5, 4.0, 0.25, 3.0);
    ExpectCropF(a.Intersection(b), 1.0, 2.0, 1.0, 2.0);
    const CropInfoF far{5.0, 6.0, 5.0, 6.0};
    ExpectCropF(a.Intersection(far), 5.0, 2.0, 5.0, 3.0);
}

// --- CropInfoF::operator== ------------------------------------------------------------------

TEST(Part_1_4_CropInfoF, RectanglesDifferingBy4e6InTwoFieldsAreEqual)
{
    const CropInfoF a{0.0, 0.0, 0.0, 0.0};
    const CropInfoF b{4e-6, 0.0, 0.0, 4e-6};
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(b == a);
    EXPECT_FALSE(a != b);
}

TEST(Part_1_4_CropInfoF, RectanglesDifferingBy6e6InTwoFieldsAreNotEqual)
{
    const CropInfoF a{0.0, 0.0, 0.0, 0.0};
    const CropInfoF b{0.0, 6e-6, 6e-6, 0.0};
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(b == a);
    EXPECT_TRUE(a != b);
}

TEST(Part_1_4_CropInfoF, EqualityIsStrictlyBelow1e5)
{
    const CropInfoF a{0.0, 0.0, 0.0, 0.0};
    EXPECT_FALSE((a == CropInfoF{1e-5, 0.0, 0.0, 0.0})); // exactly 1e-5 is not below
    EXPECT_TRUE((a == CropInfoF{9.99e-6, 0.0, 0.0, 0.0}));
    EXPECT_TRUE((a == CropInfoF{-2e-6, 2e-6, -2e-6, 2e-6}));  // absolute values: 8e-6
    EXPECT_FALSE((a == CropInfoF{-3e-6, 3e-6, -3e-6, 3e-6})); // 1.2e-5
    EXPECT_FALSE((a == CropInfoF{std::nan(""), 0.0, 0.0, 0.0}));
}

// --- Stream output --------------------------------------------------------------------------

TEST(Part_1_4_StreamOutput, CropInfoWritesLeftTopRightBottomWidthHeight)
{
    EXPECT_EQ(ToText(CropInfo{1, 2, 3, 4}), "(l:   1, t:   3, r:   2, b:   4) (w:   1, h:   1)");
    EXPECT_EQ(ToText(CropInfo{0, 1920, 8, 1088}), "(l:   0, t:   8, r:1920, b:1088) (w:1920, h:1080)");
}

TEST(Part_1_4_StreamOutput, CropInfoWiderNumbersOverflowTheFieldWidth)
{
    EXPECT_EQ(ToText(CropInfo{12345, 20000, 7, 100000}), "(l:12345, t:   7, r:20000, b:100000) (w:7655, h:99993)");
    // Width is right - left in unsigned 32-bit: it wraps when right < left.
    EXPECT_EQ(ToText(CropInfo{5, 3, 0, 0}), "(l:   5, t:   0, r:   3, b:   0) (w:4294967294, h:   0)");
}

TEST(Part_1_4_StreamOutput, FillCharacterIsASpaceWhateverTheStreamHad)
{
    std::ostringstream stream;
    stream.fill('*');
    stream << CropInfo{1, 2, 3, 4};
    EXPECT_EQ(stream.str(), "(l:   1, t:   3, r:   2, b:   4) (w:   1, h:   1)");
    // Our choice, documented at the operator: the stream's own fill character comes back.
    EXPECT_EQ(stream.fill(), '*');
}

TEST(Part_1_4_StreamOutput, WidthAppliesOnlyToTheSixNumbers)
{
    std::ostringstream stream;
    stream << "[" << CropInfo{1, 2, 3, 4} << "]" << 7;
    EXPECT_EQ(stream.str(), "[(l:   1, t:   3, r:   2, b:   4) (w:   1, h:   1)]7");
}

TEST(Part_1_4_StreamOutput, CropInfoFWritesDoublesTheSameWay)
{
    EXPECT_EQ(ToText(CropInfoF{1.0, 2.0, 3.0, 4.0}), "(l:   1, t:   3, r:   2, b:   4) (w:   1, h:   1)");
    EXPECT_EQ(ToText(CropInfoF{0.5, 2.0, 1.0, 4.25}), "(l: 0.5, t:   1, r:   2, b:4.25) (w: 1.5, h:3.25)");
    EXPECT_EQ(ToText(CropInfoF{3.0, 1.0, 0.0, 0.0}), "(l:   3, t:   0, r:   1, b:   0) (w:  -2, h:   0)");
}

// --- RelativePoint ---------------------------------------------------------------------------

TEST(Part_1_4_RelativePoint, DefaultIsTheMiddle)
{
    const RelativePoint point;
    EXPECT_EQ(point.GetCenter(), Point(0.5, 0.5));
}

TEST(Part_1_4_RelativePoint, ConstructorFromCentersGivesTheNamedPoint)
{
    EXPECT_EQ(RelativePoint(RelativePoint::TopLeft).GetCenter(), Point(0.0, 0.0));
    EXPECT_EQ(RelativePoint(RelativePoint::TopRight).GetCenter(), Point(1.0, 0.0));
    EXPECT_EQ(RelativePoint(RelativePoint::BottomLeft).GetCenter(), Point(0.0, 1.0));
    EXPECT_EQ(RelativePoint(RelativePoint::BottomRight).GetCenter(), Point(1.0, 1.0));
    EXPECT_EQ(RelativePoint(RelativePoint::Center).GetCenter(), Point(0.5, 0.5));
    EXPECT_EQ(RelativePoint(static_cast<RelativePoint::Centers>(3)).GetCenter(), Point(1.0, 1.0));
}

TEST(Part_1_4_RelativePoint, ConstructorFromValueOutsideTheTableGivesTheMiddle)
{
    EXPECT_EQ(RelativePoint(static_cast<RelativePoint::Centers>(5)).GetCenter(), Point(0.5, 0.5));
    EXPECT_EQ(RelativePoint(static_cast<RelativePoint::Centers>(0xFFFFFFFFU)).GetCenter(), Point(0.5, 0.5));
}

TEST(Part_1_4_RelativePoint, SetCenterFromCentersGivesTheNamedPoint)
{
    RelativePoint point;
    point.SetCenter(RelativePoint::TopRight);
    EXPECT_EQ(point.GetCenter(), Point(1.0, 0.0));
    point.SetCenter(RelativePoint::BottomLeft);
    EXPECT_EQ(point.GetCenter(), Point(0.0, 1.0));
    point.SetCenter(RelativePoint::TopLeft);
    EXPECT_EQ(point.GetCenter(), Point(0.0, 0.0));
    point.SetCenter(RelativePoint::BottomRight);
    EXPECT_EQ(point.GetCenter(), Point(1.0, 1.0));
    point.SetCenter(RelativePoint::Center);
    EXPECT_EQ(point.GetCenter(), Point(0.5, 0.5));
}

TEST(Part_1_4_RelativePoint, SetCenterFromValueOutsideTheTableKeepsThePoint)
{
    RelativePoint point;
    point.SetCenter(0.25, 0.75);
    point.SetCenter(static_cast<RelativePoint::Centers>(7));
    EXPECT_EQ(point.GetCenter(), Point(0.25, 0.75));

    point.SetCenter(RelativePoint::TopRight);
    point.SetCenter(static_cast<RelativePoint::Centers>(5));
    EXPECT_EQ(point.GetCenter(), Point(1.0, 0.0));
}

TEST(Part_1_4_RelativePoint, SetCenterWithTwoAndMinusOneStoresOneAndZero)
{
    RelativePoint point;
    point.SetCenter(2.0, -1.0);
    EXPECT_EQ(point.GetCenter(), Point(1.0, 0.0));
}

TEST(Part_1_4_RelativePoint, SetCenterStoresValuesInsideTheSquareAsTheyAre)
{
    RelativePoint point;
    point.SetCenter(0.1, 0.9);
    EXPECT_EQ(point.GetCenter(), Point(0.1, 0.9));
    point.SetCenter(-0.5, 1.5);
    EXPECT_EQ(point.GetCenter(), Point(0.0, 1.0));
    point.SetCenter(1.0, 0.0);
    EXPECT_EQ(point.GetCenter(), Point(1.0, 0.0));
}

TEST(Part_1_4_RelativePoint, GetCenterAtOneOneOfFullHdIsTheLastPixel)
{
    const RelativePoint point(RelativePoint::BottomRight);
    EXPECT_EQ(point.GetCenter(1920, 1080), Pixel(1919, 1079));
}

TEST(Part_1_4_RelativePoint, GetCenterRoundsByAddingHalfAndTruncating)
{
    RelativePoint point;                           // (0.5, 0.5)
    EXPECT_EQ(point.GetCenter(3, 4), Pixel(2, 2)); // 1.5 + 0.5 = 2; 2 + 0.5 = 2.5 -> 2
    EXPECT_EQ(point.GetCenter(1920, 1080), Pixel(960, 540));
    point.SetCenter(0.25, 0.125);
    EXPECT_EQ(point.GetCenter(3, 4), Pixel(1, 1)); // 0.75 + 0.5 -> 1; 0.5 + 0.5 = 1
    EXPECT_EQ(point.GetCenter(2, 8), Pixel(1, 1)); // 0.5 + 0.5 = 1; 1 + 0.5 -> 1
    point.SetCenter(0.0, 0.0);
    EXPECT_EQ(point.GetCenter(1920, 1080), Pixel(0, 0));
}

TEST(Part_1_4_RelativePoint, GetCenterLimitsToSizeMinusOne)
{
    RelativePoint point;
    point.SetCenter(0.9, 1.0);
    EXPECT_EQ(point.GetCenter(10, 1), Pixel(9, 0)); // 9.5 -> 9 (limit 9); 1.5 -> 1, limited to 0
    EXPECT_EQ(point.GetCenter(1, 1), Pixel(0, 0));
}

TEST(Part_1_4_RelativePoint, GetCenterWithZeroWidthDoesNotClampHorizontally)
{
    // Width 0: the limit width - 1 wraps round to 0xFFFFFFFF, so nothing is limited; the
    // column is truncate(x * 0 + 0.5) = 0, not 0xFFFFFFFF (no wrapped limit taken as a value).
    const RelativePoint point(RelativePoint::BottomRight);
    EXPECT_EQ(point.GetCenter(0, 1080), Pixel(0, 1079));
    EXPECT_EQ(point.GetCenter(1920, 0), Pixel(1919, 0));
    EXPECT_EQ(point.GetCenter(0, 0), Pixel(0, 0));
}

TEST(Part_1_4_RelativePoint, GetCenterAtTheLimitsOf32BitUnsigned)
{
    const RelativePoint corner(RelativePoint::BottomRight);
    // 1 * 0xFFFFFFFF + 0.5 truncates to 0xFFFFFFFF and is limited to 0xFFFFFFFE.
    EXPECT_EQ(corner.GetCenter(kMaxU32, kMaxU32), Pixel(kMaxU32 - 1U, kMaxU32 - 1U));
    const RelativePoint middle;
    // 0.5 * 0xFFFFFFFF + 0.5 = 2147483648 exactly.
    EXPECT_EQ(middle.GetCenter(kMaxU32, kMaxU32), Pixel(2147483648U, 2147483648U));
}

TEST(Part_1_4_RelativePoint, NotANumberIsStoredAndGivesPixelZero)
{
    // Our resolution: clamping keeps not-a-number (as Saturate does), and the saturating
    // truncation turns it into 0 (as the float-to-unsigned conversion of 64-bit Arm does).
    RelativePoint point;
    point.SetCenter(std::nan(""), 0.5);
    EXPECT_TRUE(std::isnan(point.GetCenter().first));
    EXPECT_EQ(point.GetCenter().second, 0.5);
    EXPECT_EQ(point.GetCenter(1920, 1080), Pixel(0, 540));
    point.SetCenter(static_cast<RelativePoint::Centers>(9)); // clamping keeps it as well
    EXPECT_TRUE(std::isnan(point.GetCenter().first));
}

// --- NeuralNetworkModelInfo ---------------------------------------------------------------------

TEST(Part_1_4_NeuralNetworkModelInfo, IsEmptyWhenPathAndDataAreEmptyWhateverTheExecutor)
{
    EXPECT_TRUE(NeuralNetworkModelInfo{}.IsEmpty());
    EXPECT_TRUE((NeuralNetworkModelInfo{"", "", NeuralNetworkModelInfo::GPU}.IsEmpty()));
    EXPECT_TRUE((NeuralNetworkModelInfo{"", "", static_cast<NeuralNetworkModelInfo::ExecutorType>(9)}.IsEmpty()));
    EXPECT_FALSE((NeuralNetworkModelInfo{"a.onnx", "", NeuralNetworkModelInfo::CPU}.IsEmpty()));
    EXPECT_FALSE((NeuralNetworkModelInfo{"", std::string(1, '\0'), NeuralNetworkModelInfo::CPU}.IsEmpty()));
    EXPECT_FALSE((NeuralNetworkModelInfo{"a.onnx", "data", NeuralNetworkModelInfo::AUTO}.IsEmpty()));
}

TEST(Part_1_4_NeuralNetworkModelInfo, EqualityComparesAllThreeFields)
{
    const NeuralNetworkModelInfo a{"a.onnx", "data", NeuralNetworkModelInfo::GPU};
    EXPECT_TRUE((a == NeuralNetworkModelInfo{"a.onnx", "data", NeuralNetworkModelInfo::GPU}));
    EXPECT_FALSE((a == NeuralNetworkModelInfo{"b.onnx", "data", NeuralNetworkModelInfo::GPU}));
    EXPECT_FALSE((a == NeuralNetworkModelInfo{"a.onnx", "datA", NeuralNetworkModelInfo::GPU}));
    EXPECT_FALSE((a == NeuralNetworkModelInfo{"a.onnx", "data", NeuralNetworkModelInfo::CPU}));
    EXPECT_FALSE((a == NeuralNetworkModelInfo{"A.onnx", "data", NeuralNetworkModelInfo::GPU})); // case counts
    EXPECT_TRUE((NeuralNetworkModelInfo{} == NeuralNetworkModelInfo{}));
    EXPECT_TRUE((a != NeuralNetworkModelInfo{}));
}

TEST(Part_1_4_NeuralNetworkModelInfo, ExecutorTypeToStringNamesZeroOneTwo)
{
    EXPECT_EQ(NeuralNetworkModelInfo::ExecutorTypeToString(NeuralNetworkModelInfo::CPU), "CPU");
    EXPECT_EQ(NeuralNetworkModelInfo::ExecutorTypeToString(NeuralNetworkModelInfo::GPU), "GPU");
    EXPECT_EQ(NeuralNetworkModelInfo::ExecutorTypeToString(NeuralNetworkModelInfo::AUTO), "AUTO");
    EXPECT_EQ(NeuralNetworkModelInfo::ExecutorTypeToString(static_cast<NeuralNetworkModelInfo::ExecutorType>(0)),
              "CPU");
    EXPECT_EQ(NeuralNetworkModelInfo::ExecutorTypeToString(static_cast<NeuralNetworkModelInfo::ExecutorType>(1)),
              "GPU");
    EXPECT_EQ(NeuralNetworkModelInfo::ExecutorTypeToString(static_cast<NeuralNetworkModelInfo::ExecutorType>(2)),
              "AUTO");
}

TEST(Part_1_4_NeuralNetworkModelInfo, ExecutorTypeToStringWithThreeGivesAnEmptyString)
{
    EXPECT_EQ(NeuralNetworkModelInfo::ExecutorTypeToString(static_cast<NeuralNetworkModelInfo::ExecutorType>(3)), "");
    EXPECT_EQ(
        NeuralNetworkModelInfo::ExecutorTypeToString(static_cast<NeuralNetworkModelInfo::ExecutorType>(0xFFFFFFFFU)),
        "");
}

// --- Saturate -------------------------------------------------------------------------------

TEST(Part_1_4_Saturate, IntBelowAboveAndInside)
{
    EXPECT_EQ(Saturate<int>(-5, -2, 7), -2);
    EXPECT_EQ(Saturate<int>(9, -2, 7), 7);
    EXPECT_EQ(Saturate<int>(3, -2, 7), 3);
    EXPECT_EQ(Saturate<int>(-2, -2, 7), -2);
    EXPECT_EQ(Saturate<int>(7, -2, 7), 7);
    EXPECT_EQ(Saturate<int>(std::numeric_limits<int>::min(), 0, 100), 0);
}

TEST(Part_1_4_Saturate, UnsignedBelowAboveAndInside)
{
    EXPECT_EQ(Saturate<unsigned int>(1U, 2U, 7U), 2U);
    EXPECT_EQ(Saturate<unsigned int>(kMaxU32, 2U, 7U), 7U);
    EXPECT_EQ(Saturate<unsigned int>(5U, 2U, 7U), 5U);
}

TEST(Part_1_4_Saturate, DoubleBelowAboveAndInside)
{
    EXPECT_EQ(Saturate<double>(-0.5, 0.0, 1.0), 0.0);
    EXPECT_EQ(Saturate<double>(1.5, 0.0, 1.0), 1.0);
    EXPECT_EQ(Saturate<double>(0.25, 0.0, 1.0), 0.25);
    EXPECT_EQ(Saturate<double>(-std::numeric_limits<double>::infinity(), 0.0, 1.0), 0.0);
    EXPECT_EQ(Saturate<double>(std::numeric_limits<double>::infinity(), 0.0, 1.0), 1.0);
    // -0.0 is not below 0.0: the value itself comes back.
    EXPECT_TRUE(std::signbit(Saturate<double>(-0.0, 0.0, 1.0)));
}

TEST(Part_1_4_Saturate, NotANumberComesBackAsItIs)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(std::isnan(Saturate<double>(nan, 0.0, 1.0)));
    EXPECT_TRUE(std::isnan(Saturate<double>(-nan, -1.0, 1.0)));
}

TEST(Part_1_4_Saturate, IsAGlobalConstexprTemplate)
{
    static_assert(::Saturate<int>(10, 0, 5) == 5);
    static_assert(::Saturate<unsigned int>(0U, 1U, 5U) == 1U);
    static_assert(::Saturate(0.5, 0.0, 1.0) == 0.5);
}

// --- ImageHandler ---------------------------------------------------------------------------

TEST(Part_1_4_ImageHandler, DefaultIsEmpty)
{
    const auto image = std::make_shared<const Zorvan::Proc::ImageHandler>();
    EXPECT_EQ(image->GetWidth(), 0U);
    EXPECT_EQ(image->GetHeight(), 0U);
    EXPECT_TRUE(image->GetPixels().empty());
    EXPECT_TRUE(image->IsEmpty());
}

TEST(Part_1_4_ImageHandler, KeepsWhatItIsGiven)
{
    const Zorvan::Proc::ImageHandler image(2, 1, std::vector<std::uint8_t>{1, 2, 3, 4, 5, 6, 7, 8});
    EXPECT_EQ(image.GetWidth(), 2U);
    EXPECT_EQ(image.GetHeight(), 1U);
    EXPECT_EQ(image.GetPixels(), (std::vector<std::uint8_t>{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_FALSE(image.IsEmpty());
}
