// The stand-in for the closed sibling libraries (imported/): FndException, Utils,
// ConfInt, ColorUtils, LUTInt. Expected values are worked out by hand.
#include <gtest/gtest.h>

#include <boost/exception/get_error_info.hpp>

#include <cmath>
#include <stdexcept>
#include <string>

#include "Proc/Settings/ProcException.h"
#include "imported/ColorUtils.h"
#include "imported/ConfInt.h"
#include "imported/FndException.h"
#include "imported/LUTInt.h"
#include "imported/Utils.h"

using namespace Zorvan;

TEST(FndException, ExceptionHasBothVirtualBases)
{
    static_assert(std::is_base_of_v<std::exception, Zorvan::Exception>);
    static_assert(std::is_base_of_v<boost::exception, Zorvan::Exception>);
    // Both bases are virtual: a class deriving twice still has one std::exception.
    struct Twice : Zorvan::Exception, virtual std::exception {};
    Twice twice;
    const std::exception& asStd = twice;
    EXPECT_EQ(&asStd, static_cast<const std::exception*>(&static_cast<const Zorvan::Exception&>(twice)));
}

TEST(FndException, CallStackIsRealText)
{
    const std::string stack = GetCallStack();
    ASSERT_FALSE(stack.empty());
    EXPECT_NE(stack.find('\n'), std::string::npos); // several frames, one a line
    EXPECT_EQ(stack.back() == '\n', false);
}

TEST(FndException, CallStackOfALibraryFailureStartsInTheLibrary)
{
    try {
        Proc::ThrowSettings("x");
        FAIL() << "no exception";
    } catch (const Proc::SettingsException& e) {
        const std::string* stack = boost::get_error_info<ErrorInfoCallStack>(e);
        ASSERT_NE(stack, nullptr);
        EXPECT_NE(stack->find("libZorvanSettings"), std::string::npos) << *stack;
        // The frames are those of the throw inside the library, then the caller's.
        EXPECT_NE(stack->find('\n'), std::string::npos) << *stack;
    }
}

TEST(Utils, RemoveQuotesRemovesOneEnclosingPairOnly)
{
    using Core::Utils::RemoveQuotes;
    EXPECT_EQ(RemoveQuotes("\"a b\""), "a b");
    EXPECT_EQ(RemoveQuotes("\"\""), "");
    EXPECT_EQ(RemoveQuotes("\"\"x\"\""), "\"x\"");
    EXPECT_EQ(RemoveQuotes("a"), "a");
    EXPECT_EQ(RemoveQuotes(""), "");
    EXPECT_EQ(RemoveQuotes("\""), "\"");
    EXPECT_EQ(RemoveQuotes("\"a"), "\"a");
    EXPECT_EQ(RemoveQuotes("a\""), "a\"");
    EXPECT_EQ(RemoveQuotes(" \"a\""), " \"a\"");
}

TEST(Utils, CutStringCutsAtTheFirstSeparator)
{
    using Core::Utils::CutString;
    EXPECT_EQ(CutString("1920x1080", 'x'), std::make_pair(std::string("1920"), std::string("1080")));
    EXPECT_EQ(CutString("1x2x3", 'x'), std::make_pair(std::string("1"), std::string("2x3")));
    EXPECT_EQ(CutString("x", 'x'), std::make_pair(std::string(""), std::string("")));
    EXPECT_EQ(CutString("1920", 'x'), std::make_pair(std::string("1920"), std::string("")));
    EXPECT_EQ(CutString("16X9", 'x'), std::make_pair(std::string("16X9"), std::string("")));
}

TEST(Utils, Matrix3x3IsAnAggregateComparedExactly)
{
    const Core::Matrix3x3 identity;
    EXPECT_EQ(identity.m, (std::array<double, 9>{1, 0, 0, 0, 1, 0, 0, 0, 1}));
    Core::Matrix3x3 other{{1, 0, 0, 0, 1, 0, 0, 0, 1}};
    EXPECT_TRUE(identity == other);
    other.m[4] = std::nextafter(1.0, 2.0);
    EXPECT_FALSE(identity == other);
}

TEST(ConfInt, DisplayMatrixConvertsFixedPoint)
{
    const Conf::DisplayMatrix identity;
    EXPECT_EQ(identity.GetTransform(), Core::Matrix3x3{});
    // A 90 degree rotation as stored by ISO/IEC 14496-12, shifted by 1080 pixels.
    const Conf::DisplayMatrix rotation{{0, 0x00010000, 0, -0x00010000, 0, 0, 1080 << 16, 0, 0x40000000}};
    EXPECT_EQ(rotation.GetTransform().m, (std::array<double, 9>{0, 1, 0, -1, 0, 0, 1080, 0, 1}));
    const Conf::DisplayMatrix fractions{{0x00008000, -0x00004000, 0x20000000, 0, 0, -0x10000000, 3, 0, 0x40000000}};
    EXPECT_EQ(fractions.GetTransform().m, (std::array<double, 9>{0.5, -0.25, 0.5, 0, 0, -0.25, 3.0 / 65536, 0, 1}));
}

TEST(ConfInt, BoundingBoxOfTheIdentityIsTheFrame)
{
    const Conf::Transform2D identity;
    const Conf::FrameInfo frame{1920, 1080, 4, 3};
    EXPECT_EQ(identity.GetBoundingBox(frame, false), (Conf::FrameInfo{1920, 1080, 4, 3}));
}

TEST(ConfInt, BoundingBoxOfARotationSwapsTheSides)
{
    const Conf::Transform2D rotation{{0, 1, 0, -1, 0, 0, 1080, 0, 1}};
    EXPECT_EQ(rotation.GetBoundingBox({1920, 1080, 1, 1}, false), (Conf::FrameInfo{1080, 1920, 1, 1}));
}

TEST(ConfInt, BoundingBoxRoundsUpAndEvenRoundsToEvenSides)
{
    const Conf::Transform2D scale{{0.5, 0, 0, 0, 0.5, 0, 0, 0, 1}};
    EXPECT_EQ(scale.GetBoundingBox({101, 51, 1, 1}, false), (Conf::FrameInfo{51, 26, 1, 1}));
    EXPECT_EQ(scale.GetBoundingBox({101, 51, 1, 1}, true), (Conf::FrameInfo{52, 26, 1, 1}));
    // 45 degrees: a 100 by 100 square spans 100 * sqrt(2) = 141.42 on both axes.
    const double c = std::sqrt(0.5);
    const Conf::Transform2D rotate45{{c, c, 0, -c, c, 0, 0, 0, 1}};
    EXPECT_EQ(rotate45.GetBoundingBox({100, 100, 1, 1}, false), (Conf::FrameInfo{142, 142, 1, 1}));
    EXPECT_EQ(rotate45.GetBoundingBox({100, 100, 1, 1}, true), (Conf::FrameInfo{142, 142, 1, 1}));
    EXPECT_EQ(scale.GetBoundingBox({3, 3, 1, 1}, true), (Conf::FrameInfo{2, 2, 1, 1}));
}

TEST(ConfInt, BoundingBoxDividesByTheProjectiveWeight)
{
    const Conf::Transform2D half{{1, 0, 0, 0, 1, 0, 0, 0, 2}};
    EXPECT_EQ(half.GetBoundingBox({640, 480, 1, 1}, false), (Conf::FrameInfo{320, 240, 1, 1}));
}

TEST(ConfInt, ColorSpaceDefaultsToUnspecified)
{
    const Conf::ColorSpace space;
    EXPECT_EQ(space.primaries, 2u);
    EXPECT_EQ(space.transfer, 2u);
    EXPECT_EQ(space.matrix, 2u);
}

TEST(ConfInt, ValidityFollowsTheCodePointsOfH273)
{
    using namespace Conf;
    for (std::uint32_t v : {1u, 2u, 4u, 12u, 22u}) {
        EXPECT_TRUE(IsValidColorPrimaries(v)) << v;
    }
    for (std::uint32_t v : {0u, 3u, 13u, 21u, 23u, 255u}) {
        EXPECT_FALSE(IsValidColorPrimaries(v)) << v;
    }
    for (std::uint32_t v : {1u, 2u, 4u, 13u, 18u}) {
        EXPECT_TRUE(IsValidTransferFunction(v)) << v;
    }
    for (std::uint32_t v : {0u, 3u, 19u, 0xFFFFFFFFu}) {
        EXPECT_FALSE(IsValidTransferFunction(v)) << v;
    }
    for (std::uint32_t v : {0u, 1u, 2u, 4u, 14u}) {
        EXPECT_TRUE(IsValidYCbCrMatrix(v)) << v;
    }
    for (std::uint32_t v : {3u, 15u, 100u}) {
        EXPECT_FALSE(IsValidYCbCrMatrix(v)) << v;
    }
}

TEST(ColorUtils, FromStringReadsTheDocumentedNamesInAnyCase)
{
    using Conf::ColorSpace;
    EXPECT_EQ(ColorSpace::FromString("bt709"), (ColorSpace{1, 1, 1}));
    EXPECT_EQ(ColorSpace::FromString("BT709"), (ColorSpace{1, 1, 1}));
    EXPECT_EQ(ColorSpace::FromString("smpte170m"), (ColorSpace{6, 6, 6}));
    EXPECT_EQ(ColorSpace::FromString("bt470bg"), (ColorSpace{5, 6, 5}));
    EXPECT_EQ(ColorSpace::FromString("Rec2020"), (ColorSpace{9, 14, 9}));
    EXPECT_EQ(ColorSpace::FromString("bt2020c"), (ColorSpace{9, 14, 10}));
    EXPECT_EQ(ColorSpace::FromString("hdr10"), (ColorSpace{9, 16, 9}));
    EXPECT_EQ(ColorSpace::FromString("HLG"), (ColorSpace{9, 18, 9}));
    EXPECT_EQ(ColorSpace::FromString("srgb"), (ColorSpace{1, 13, 0}));
    EXPECT_EQ(ColorSpace::FromString("display-p3"), (ColorSpace{12, 13, 0}));
    EXPECT_EQ(ColorSpace::FromString("unspecified"), ColorSpace{});
}

TEST(ColorUtils, UnknownNamesGiveCodePointsThatNoCheckAccepts)
{
    for (const char* name : {"", "bt7090", "bt709 ", "xyz"}) {
        const auto space = Conf::ColorSpace::FromString(name);
        EXPECT_EQ(space, (Conf::ColorSpace{3, 3, 3})) << name;
        EXPECT_FALSE(Conf::IsValidColorPrimaries(space.primaries));
        EXPECT_FALSE(Conf::IsValidTransferFunction(space.transfer));
        EXPECT_FALSE(Conf::IsValidYCbCrMatrix(space.matrix));
    }
}

TEST(ConfInt, ConstantsHaveTheirDocumentedTexts)
{
    EXPECT_EQ(Conf::IFormatFile::POSTFIX_ADDITIONAL_PARAMS, "??");
    EXPECT_EQ(Conf::IFormatFile::POSTFIX_PARAMS_SEPARATOR, "&;");
    EXPECT_EQ(Conf::IFormatFile::POSTFIX_VALUE_SEPARATOR, "=");
    EXPECT_EQ(Conf::IFormatCodecSubtitle::SUBTITLE_ENCODING_PREFIX, "sub_charenc");
    EXPECT_EQ(Conf::IFormatCodecVideo::CODEC_ID_H264, "h264");
    EXPECT_EQ(Conf::IFormatCodecVideo::CODEC_ID_H265, "hevc");
    EXPECT_EQ(Conf::IFormatCodecAudio::CODEC_ID_AAC, "aac");
    EXPECT_EQ(Conf::IFormatCodecAudio::CODEC_ID_AAC_LATM, "aac_latm");
    EXPECT_EQ(Proc::ImplNames::ZORVAN, "zorvan");
    EXPECT_EQ(Proc::ImplNames::FFMPEG, "ffmpeg");
}

namespace {

Proc::LUT::LUTTable Ramp(std::size_t size)
{
    std::vector<std::array<float, 3>> values;
    for (std::size_t b = 0; b < size; ++b) {
        for (std::size_t g = 0; g < size; ++g) {
            for (std::size_t r = 0; r < size; ++r) {
                values.push_back({static_cast<float>(r), static_cast<float>(g) * 10, static_cast<float>(b) * 100});
            }
        }
    }
    return {size, values};
}

} // namespace

TEST(LUTInt, RedIndexRunsFastest)
{
    const auto table = Ramp(3);
    EXPECT_EQ(table.GetSize(), 3u);
    EXPECT_EQ(table.GetValues()[1], (std::array<float, 3>{1, 0, 0}));
    EXPECT_EQ(table.GetValues()[3], (std::array<float, 3>{0, 10, 0}));
    EXPECT_EQ(table.GetValue(2, 1, 0), (std::array<float, 3>{2, 10, 0}));
    EXPECT_EQ(table.GetValue(0, 2, 1), (std::array<float, 3>{0, 20, 100}));
    EXPECT_EQ(table.GetValue(2, 2, 2), (std::array<float, 3>{2, 20, 200}));
}

TEST(LUTInt, OutOfRangeIndicesThrow)
{
    const auto table = Ramp(2);
    EXPECT_THROW((void)table.GetValue(2, 0, 0), std::out_of_range);
    EXPECT_THROW((void)table.GetValue(0, 0, 2), std::out_of_range);
    const Proc::LUT::LUTTable shortTable(2, {{0, 0, 0}});
    EXPECT_THROW((void)shortTable.GetValue(1, 0, 0), std::out_of_range);
}

TEST(LUTInt, ValidNeedsSizeTwoAndAFullCube)
{
    EXPECT_TRUE(Ramp(2).IsValid());
    EXPECT_TRUE(Ramp(17).IsValid());
    EXPECT_FALSE(Ramp(1).IsValid());
    EXPECT_FALSE(Proc::LUT::LUTTable().IsValid());
    EXPECT_FALSE(Proc::LUT::LUTTable(2, std::vector<std::array<float, 3>>(7)).IsValid());
    EXPECT_FALSE(Proc::LUT::LUTTable(2, std::vector<std::array<float, 3>>(9)).IsValid());
}

TEST(LUTInt, ComparesSizeAndValues)
{
    EXPECT_TRUE(Ramp(3) == Ramp(3));
    EXPECT_FALSE(Ramp(3) != Ramp(3));
    EXPECT_FALSE(Ramp(2) == Ramp(3));
    auto values = Ramp(2).GetValues();
    values[7][2] = 100.5F;
    EXPECT_FALSE(Ramp(2) == Proc::LUT::LUTTable(2, values));
    // Same values, different size: not equal.
    EXPECT_FALSE(Proc::LUT::LUTTable(2, values) == Proc::LUT::LUTTable(3, values));
}
