// The stand-ins for the closed sibling libraries (imported/). Expected values are worked out by hand.
#include <gtest/gtest.h>

#include <boost/exception/get_error_info.hpp>

#include <cmath>
#include <cstdint>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "Proc/Settings/ProcException.h"
#include "imported/ColorUtils.h"
#include "imported/ConfInt.h"
#include "imported/FndException.h"
#include "imported/LUTInt.h"
#include "imported/Utils.h"

using namespace Zorvan;

TEST(FndException, VirtualBasesAndCallStack)
{
    struct Twice : Zorvan::Exception, virtual std::exception, virtual boost::exception {};
    const Twice twice;
    // Each conversion would be ambiguous were the base not virtual.
    [[maybe_unused]] const std::exception& asStd = twice;
    [[maybe_unused]] const boost::exception& asBoost = twice;

    // One frame a line, no line feed after the last; a library failure's stack starts inside it.
    const std::string stack = GetCallStack();
    EXPECT_TRUE(stack.find('\n') != std::string::npos && stack.back() != '\n') << stack;
    try {
        Proc::ThrowSettings("x");
        FAIL() << "no exception";
    } catch (const Proc::SettingsException& e) {
        const std::string* thrown = boost::get_error_info<ErrorInfoCallStack>(e);
        ASSERT_NE(thrown, nullptr);
        // The first frame past GetCallStack's own (which an unoptimised build keeps) is the library's.
        std::istringstream frames(*thrown);
        std::string frame;
        while (std::getline(frames, frame) && frame.find("GetCallStack") != std::string::npos) {
        }
        EXPECT_NE(frame.find("libZorvanSettings"), std::string::npos) << *thrown;
    }
}

TEST(Utils, RemoveQuotesAndCutString)
{
    const std::vector<std::pair<std::string, std::string>> unquoted{
        {"\"a b\"", "a b"}, {"\"\"", ""},   {"\"\"x\"\"", "\"x\""}, {"a", "a"},          {"", ""},
        {"\"", "\""},       {"\"a", "\"a"}, {"a\"", "a\""},         {" \"a\"", " \"a\""}};
    for (const auto& [text, expected] : unquoted) {
        EXPECT_EQ(Core::Utils::RemoveQuotes(text), expected) << text;
    }
    using Cut = std::pair<std::string, std::string>;
    EXPECT_EQ(Core::Utils::CutString("1920x1080", 'x'), Cut("1920", "1080"));
    EXPECT_EQ(Core::Utils::CutString("1x2x3", 'x'), Cut("1", "2x3"));
    EXPECT_EQ(Core::Utils::CutString("x", 'x'), Cut("", ""));
    EXPECT_EQ(Core::Utils::CutString("16X9", 'x'), Cut("16X9", ""));
}

// a, b, c, d, x, y in 16.16, u, v, w in 2.30; matrices compare exactly.
TEST(ConfInt, DisplayMatrixConvertsFixedPoint)
{
    Core::Matrix3x3 identity{{1, 0, 0, 0, 1, 0, 0, 0, 1}};
    EXPECT_EQ(Conf::DisplayMatrix{}.GetTransform(), identity);
    identity.m[4] = std::nextafter(1.0, 2.0);
    EXPECT_FALSE(Conf::DisplayMatrix{}.GetTransform() == identity);
    const Conf::DisplayMatrix rotation{{0, 0x00010000, 0, -0x00010000, 0, 0, 1080 << 16, 0, 0x40000000}};
    EXPECT_EQ(rotation.GetTransform().m, (std::array<double, 9>{0, 1, 0, -1, 0, 0, 1080, 0, 1}));
    const Conf::DisplayMatrix fractions{{0x00008000, -0x00004000, 0x20000000, 0, 0, -0x10000000, 3, 0, 0x40000000}};
    EXPECT_EQ(fractions.GetTransform().m, (std::array<double, 9>{0.5, -0.25, 0.5, 0, 0, -0.25, 3.0 / 65536, 0, 1}));
}

TEST(ConfInt, BoundingBox)
{
    struct Case {
        const char* what;
        std::array<double, 9> m;
        Conf::FrameInfo frame;
        bool even;
        Conf::FrameInfo expected;
    };
    const double c = std::sqrt(0.5);
    const std::vector<Case> cases{
        {"identity keeps the pixel aspect", {1, 0, 0, 0, 1, 0, 0, 0, 1}, {1920, 1080, 4, 3}, false, {1920, 1080, 4, 3}},
        {"rotation swaps the sides", {0, 1, 0, -1, 0, 0, 1080, 0, 1}, {1920, 1080, 1, 1}, false, {1080, 1920, 1, 1}},
        {"50.5 x 25.5 rounds up", {0.5, 0, 0, 0, 0.5, 0, 0, 0, 1}, {101, 51, 1, 1}, false, {51, 26, 1, 1}},
        {"even rounds up to even", {0.5, 0, 0, 0, 0.5, 0, 0, 0, 1}, {101, 51, 1, 1}, true, {52, 26, 1, 1}},
        {"45 degrees: 141.42", {c, c, 0, -c, c, 0, 0, 0, 1}, {100, 100, 1, 1}, true, {142, 142, 1, 1}},
        {"divided by the weight", {1, 0, 0, 0, 1, 0, 0, 0, 2}, {640, 480, 1, 1}, false, {320, 240, 1, 1}},
        {"a zero weight divides nothing", {1, 0, 0, 0, 1, 0, 0, 0, 0}, {640, 480, 1, 1}, false, {640, 480, 1, 1}},
        {"an excess of 1e-10 is forgiven", {1 + 1e-12, 0, 0, 0, 1, 0, 0, 0, 1}, {100, 1, 1, 1}, false, {100, 1, 1, 1}},
        {"an excess of 1e-6 is not", {1 + 1e-8, 0, 0, 0, 1, 0, 0, 0, 1}, {100, 1, 1, 1}, false, {101, 1, 1, 1}},
        {"sides saturate", {1e10, 0, 0, 0, 1, 0, 0, 0, 1}, {10, 1, 1, 1}, false, {4294967295u, 1, 1, 1}},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(Conf::Transform2D{row.m}.GetBoundingBox(row.frame, row.even), row.expected) << row.what;
    }
}

// H.273 code points; the reserved ones are refused.
TEST(ConfInt, ColorSpaceValidity)
{
    EXPECT_EQ(Conf::ColorSpace{}, (Conf::ColorSpace{2, 2, 2}));
    for (std::uint32_t v = 0; v < 32; ++v) {
        EXPECT_EQ(Conf::IsValidColorPrimaries(v), v == 1 || v == 2 || (v >= 4 && v <= 12) || v == 22) << v;
        EXPECT_EQ(Conf::IsValidTransferFunction(v), v == 1 || v == 2 || (v >= 4 && v <= 18)) << v;
        EXPECT_EQ(Conf::IsValidYCbCrMatrix(v), v <= 2 || (v >= 4 && v <= 14)) << v;
    }
}

// Names in any letter case; anything else gives the reserved 3, 3, 3.
TEST(ColorUtils, FromString)
{
    const std::vector<std::pair<const char*, Conf::ColorSpace>> cases{
        {"BT709", {1, 1, 1}},    {"smpte170m", {6, 6, 6}},    {"bt470bg", {5, 6, 5}}, {"smpte240m", {7, 7, 7}},
        {"Rec2020", {9, 14, 9}}, {"bt2020c", {9, 14, 10}},    {"hdr10", {9, 16, 9}},  {"HLG", {9, 18, 9}},
        {"srgb", {1, 13, 0}},    {"display-p3", {12, 13, 0}}, {"unknown", {2, 2, 2}}, {"", {3, 3, 3}},
        {"bt709 ", {3, 3, 3}}};
    for (const auto& [name, space] : cases) {
        EXPECT_EQ(Conf::ColorSpace::FromString(name), space) << name;
    }
}

TEST(ConfInt, ConstantsHaveTheirDocumentedTexts)
{
    using namespace Conf;
    EXPECT_EQ(IFormatFile::POSTFIX_ADDITIONAL_PARAMS + " " + IFormatFile::POSTFIX_PARAMS_SEPARATOR + " " +
                  IFormatFile::POSTFIX_VALUE_SEPARATOR + " " + IFormatCodecSubtitle::SUBTITLE_ENCODING_PREFIX,
              "?? &; = sub_charenc");
    EXPECT_EQ(IFormatCodecVideo::CODEC_ID_H264 + " " + IFormatCodecVideo::CODEC_ID_H265, "h264 hevc");
    EXPECT_EQ(IFormatCodecAudio::CODEC_ID_AAC + " " + IFormatCodecAudio::CODEC_ID_AAC_LATM, "aac aac_latm");
    EXPECT_EQ(Proc::ImplNames::ZORVAN + " " + Proc::ImplNames::FFMPEG, "zorvan ffmpeg");
}

namespace {

// Entry (r, g, b) holds {r, 10 g, 100 b}.
Proc::LUT::LUTTable Ramp(std::size_t size)
{
    std::vector<std::array<float, 3>> values;
    for (std::size_t i = 0; i < size * size * size; ++i) {
        values.push_back({float(i % size), float(i / size % size) * 10, float(i / size / size) * 100});
    }
    return {size, values};
}

} // namespace

TEST(LUTInt, LookupValidityAndComparison)
{
    using Proc::LUT::LUTTable;
    EXPECT_EQ(Ramp(3).GetValue(2, 1, 0), (std::array<float, 3>{2, 10, 0}));
    EXPECT_EQ(Ramp(3).GetValue(0, 2, 1), (std::array<float, 3>{0, 20, 100}));
    EXPECT_THROW((void)Ramp(3).GetValue(3, 0, 0), std::out_of_range);
    EXPECT_THROW((void)Ramp(3).GetValue(0, 0, 3), std::out_of_range);
    EXPECT_THROW((void)LUTTable(2, {{0, 0, 0}}).GetValue(1, 0, 0), std::out_of_range);
    EXPECT_TRUE(Ramp(2).IsValid());
    EXPECT_FALSE(Ramp(1).IsValid());
    EXPECT_FALSE(LUTTable(2, std::vector<std::array<float, 3>>(7)).IsValid());
    EXPECT_FALSE(LUTTable(2, std::vector<std::array<float, 3>>(9)).IsValid());
    auto values = Ramp(2).GetValues();
    EXPECT_FALSE(Ramp(2) != LUTTable(2, values));
    EXPECT_FALSE(LUTTable(2, values) == LUTTable(3, values));
    values[7][2] = 100.5F;
    EXPECT_FALSE(Ramp(2) == LUTTable(2, values));
}
