// Frame sizes under a transform, subtitle placement and the self-repairing subtitle style.
// Expected sizes and positions are worked out by hand.
#include <gtest/gtest.h>

#include <glog/logging.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "Proc/Settings/FrameGeometry.h"
#include "Proc/Settings/SettingsSubtitleDrawer.h"

using namespace Zorvan::Proc;
using Zorvan::Conf::FrameInfo;
using Zorvan::Conf::Transform2D;
using H = SettingsSubtitleDrawer::AlignmentHorizontal;
using V = SettingsSubtitleDrawer::AlignmentVertical;

namespace {

const Transform2D kIdentity{{1, 0, 0, 0, 1, 0, 0, 0, 1}};

// Collects what glog is given while it lives.
class LogCollector : public google::LogSink {
public:
    LogCollector() { google::AddLogSink(this); }
    ~LogCollector() override { google::RemoveLogSink(this); }
    void send(google::LogSeverity severity, const char*, const char*, int, const google::LogMessageTime&,
              const char* message, std::size_t length) override
    {
        lines.push_back((severity == google::GLOG_WARNING ? "W " : "? ") + std::string(message, length));
    }
    std::vector<std::string> lines;
};

const std::string kReset = "W AssRenderer setting out of range. Set to default value.";

} // namespace

TEST(FrameGeometry, TransformFrameInfoKeepsProportionsUnderTheTransform)
{
    // {name, frame, transform, even, expected}
    const std::tuple<const char*, FrameInfo, Transform2D, bool, FrameInfo> cases[] = {
        {"identity", {1920, 1080, 1, 1}, kIdentity, false, {1920, 1080, 1, 1}},
        // L1 2, L2 1: r = 960 / 1080 < a = 1920 / 1080, height a * 1080 / r = 2160.
        {"x scaled by 2", {1920, 1080, 1, 1}, {{2, 0, 0, 0, 1, 0, 0, 0, 1}}, false, {1920, 2160, 1, 1}},
        // r = 1920 / 540 > a: width r * 1920 / a = 3840.
        {"y scaled by 2", {1920, 1080, 1, 1}, {{1, 0, 0, 0, 2, 0, 0, 0, 1}}, false, {3840, 1080, 1, 1}},
        // 7680 x 1080 times 4096 / 7680: 4096 x 576.
        {"y scaled by 4, capped", {1920, 1080, 1, 1}, {{1, 0, 0, 0, 4, 0, 0, 0, 1}}, false, {4096, 576, 1, 1}},
        {"rotated 90 degrees", {1920, 1080, 1, 1}, {{0, 1, 0, -1, 0, 0, 0, 0, 1}}, false, {1920, 1080, 1, 1}},
        // L2 = sqrt 2; the pixel aspect cancels: width sqrt 2 * 1000 + 0.5 = 1414.7.
        {"sheared", {1000, 1000, 4, 3}, {{1, 0, 0, 1, 1, 0, 0, 0, 1}}, false, {1414, 1000, 4, 3}},
        // (1, 0) has w = 2: L1 = 0.5, r = 4 > a = 2, width 2000.
        {"perspective", {1000, 500, 1, 1}, {{1, 0, 1, 0, 1, 0, 0, 0, 1}}, false, {2000, 500, 1, 1}},
        {"5000 x 2500 capped", {5000, 2500, 1, 1}, kIdentity, false, {4096, 2048, 1, 1}},
        {"a side of 4096 stays", {4096, 3001, 1, 1}, kIdentity, false, {4096, 3001, 1, 1}},
        {"even", {1921, 1081, 1, 1}, kIdentity, true, {1920, 1080, 1, 1}},
        // 65536 * 65537 wraps to 65536 in r but not in a: height a / r = 65537, then capped.
        // Products of one width would give 65537 x 1 and 4096 x 0.
        {"32-bit ratio, 64-bit aspect", {65537, 1, 65536, 1}, kIdentity, false, {4096, 4096, 65536, 1}},
        // L1 = 0: the width saturates at 2^32 - 1, and the cap leaves 4096 x 0.
        {"degenerate x step", {1920, 1080, 1, 1}, {{1, 0, 1, 0, 1, 0, 1, 0, 1}}, false, {4096, 0, 1, 1}},
        {"zero matrix", {1920, 1080, 1, 1}, {{0, 0, 0, 0, 0, 0, 0, 0, 0}}, false, {1920, 0, 1, 1}},
        {"empty frame", {0, 0, 1, 1}, kIdentity, false, {0, 0, 1, 1}},
    };
    for (const auto& [name, frame, transform, even, expected] : cases) {
        EXPECT_EQ(EditorAlgorithms::TransformFrameInfo(frame, transform, even), expected) << name;
    }
}

TEST(FrameGeometry, BoundFrameInfoReadsTheShiftInFrameSizes)
{
    // 2 x 2 with w = 1 + x and the shift (1, 1) times (2, 2): the corners go to (2, 2),
    // (4/3, 2/3), (2, 4), (4/3, 4/3); the extent 2/3 x 10/3 rounds up to 1 x 4.
    // An unscaled shift would give 0 x 3.
    const Transform2D perspective{{1, 0, 1, 0, 1, 0, 1, 1, 1}};
    EXPECT_EQ(BoundFrameInfo({2, 2, 1, 1}, perspective, false), (FrameInfo{1, 4, 1, 1}));
    EXPECT_EQ(BoundFrameInfo({2, 2, 1, 1}, perspective, true), (FrameInfo{2, 4, 1, 1}));
}

TEST(SubtitleDrawer, AlignmentsSetThePercents)
{
    // {alignment, percent x, percent y}; 7 is stored and keeps the percents set before.
    for (const auto [alignment, x, y] : {std::array{0, 50, 50}, {1, 0, 100}, {2, 100, 0}, {3, 50, 90}, {7, 20, 30}}) {
        SettingsSubtitleDrawer drawer;
        drawer.SetPercentX(20);
        drawer.SetPercentY(30);
        drawer.SetHorizontalAlignment(static_cast<H>(alignment));
        drawer.SetVerticalAligment(static_cast<V>(alignment));
        EXPECT_EQ(std::pair(drawer.GetPercentX(), drawer.GetPercentY()), std::pair(x, y)) << alignment;
    }
}

TEST(SubtitleDrawer, PositionsInBothModes)
{
    // Mode 0: offset x 10, offset y -20; frame 1920 x 1080, picture 202 x 100 at (100, 900):
    // free 1718 x 980.
    const FrameInfo hd{1920, 1080, 1, 1};
    const CropInfo picture{100, 302, 900, 1000};
    // {name, mode, alignment (both ways), percent (both ways, mode 1), frame, picture, left, top}
    const std::tuple<const char*, int, int, int, FrameInfo, CropInfo, int, int> cases[] = {
        {"centred: half of free, even", 0, 0, 0, hd, picture, 10 + 858, -20 + 490},
        {"left / bottom", 0, 1, 0, hd, picture, 10, -20 + 980},
        {"right / top", 0, 2, 0, hd, picture, 10 + 1718, -20},
        {"own position", 0, 3, 0, hd, picture, 10 + 100, -20 + 900},
        {"unknown alignment", 0, 9, 0, hd, picture, 10, -20},
        // free = 100 - 301 wraps to 2^32 - 201; shifted unsigned and made even: 2147483546.
        {"picture wider than the frame", 0, 0, 0, {100, 100, 1, 1}, {0, 301, 0, 301}, 2147483556, 2147483526},
        // 50% of 1920 minus 101 / 2: 910 and 540 - 50 = 490.
        {"percent", 1, 0, 50, hd, {0, 101, 0, 100}, 910, 490},
        {"percent, lowest bit cleared", 1, 0, 50, {1922, 1082, 1, 1}, {0, 100, 0, 100}, 910, 490},
        // 1920 - 50 > room 1819: the room, even; 1080 - 50 > 980.
        {"past the room", 1, 0, 100, hd, {10, 111, 0, 100}, 1818, 980},
        {"negative p", 1, 0, 0, hd, {0, 100, 0, 100}, 0, 0},
        // p = 100 - 99 = 1 > room -99: (-99 + 1) with its lowest bit cleared.
        {"negative room", 1, 0, 100, {100, 100, 1, 1}, {0, 199, 0, 199}, -98, -98},
        {"no placement", 2, 2, 50, hd, picture, 0, 0},
    };
    for (const auto& [name, mode, alignment, percent, frame, crop, left, top] : cases) {
        SettingsSubtitleDrawer drawer;
        drawer.SetMode(mode);
        drawer.SetOffsetX(10);
        drawer.SetOffsetY(-20);
        drawer.SetHorizontalAlignment(static_cast<H>(alignment));
        drawer.SetVerticalAligment(static_cast<V>(alignment));
        if (mode == 1) {
            drawer.SetPercentX(percent);
            drawer.SetPercentY(percent);
        }
        EXPECT_EQ(std::pair(drawer.GetPositionLeft(frame, crop), drawer.GetPositionTop(frame, crop)),
                  std::pair(left, top))
            << name;
    }
}

TEST(SubtitleDrawer, MovesByModeAndComparesWithoutModeOrPercents)
{
    SettingsSubtitleDrawer drawer;
    drawer.SetMode(1);
    drawer.SetPercentY(90);
    drawer.SetPercentX(3);
    drawer.SetMoveSubtitles(200, -5);
    EXPECT_EQ(std::pair(drawer.GetPercentY(), drawer.GetPercentX()), std::pair(100, 0));
    EXPECT_TRUE(drawer == SettingsSubtitleDrawer());
    drawer.SetMode(0);
    drawer.SetOffsetY(std::numeric_limits<std::int32_t>::max());
    drawer.SetMoveSubtitles(1, -5);
    EXPECT_EQ(std::pair(drawer.GetOffsetY(), drawer.GetOffsetX()),
              std::pair(std::numeric_limits<std::int32_t>::min(), -5));
    drawer.SetMode(5);
    drawer.SetMoveSubtitles(1, 1);
    EXPECT_EQ(drawer.GetOffsetX(), -5);

    using Change = void (*)(SettingsSubtitleDrawer&);
    for (const Change change :
         {+[](SettingsSubtitleDrawer& d) { d.SetOffsetX(1); }, +[](SettingsSubtitleDrawer& d) { d.SetOffsetY(1); },
          +[](SettingsSubtitleDrawer& d) { d.SetSubtitleId(1); },
          +[](SettingsSubtitleDrawer& d) { d.SetHorizontalAlignment(H::Right); },
          +[](SettingsSubtitleDrawer& d) { d.SetVerticalAligment(V::Top); }}) {
        SettingsSubtitleDrawer changed;
        change(changed);
        EXPECT_FALSE(changed == SettingsSubtitleDrawer());
    }
}

using R = AssRendererSettings;
struct Access {
    std::function<void(R&, double)> set;
    std::function<double(const R&)> get;
};
template <class T>
Access Of(void (R::*set)(T), T (R::*get)() const)
{
    return {[set](R& r, double v) { (r.*set)(static_cast<T>(v)); },
            [get](const R& r) { return static_cast<double>((r.*get)()); }};
}

TEST(AssRenderer, CopiesResetEachFieldOutOfRangeWithOneWarning)
{
    const auto below = [](double v) { return std::nextafter(v, -1000.0); };
    const auto above = [](double v) { return std::nextafter(v, 1000.0); };
    // {name, field, accepted values, rejected values}
    const std::tuple<const char*, Access, std::vector<double>, std::vector<double>> cases[] = {
        {"marginLeft", Of(&R::SetMarginLeft, &R::GetMarginLeft), {0, 1000}, {-1, 1001}},
        {"marginRight", Of(&R::SetMarginRight, &R::GetMarginRight), {0, 1000}, {-1, 1001}},
        {"marginVertical", Of(&R::SetMarginVertical, &R::GetMarginVertical), {0, 1000}, {-1, 1001}},
        {"fontSize", Of(&R::SetFontSize, &R::GetFontSize), {1, 200}, {below(1), above(200), std::nan("")}},
        {"spacing", Of(&R::SetSpacing, &R::GetSpacing), {0, 100}, {below(0), above(100)}},
        {"angle", Of(&R::SetAngle, &R::GetAngle), {-360, 360}, {below(-360), above(360)}},
        {"borderStyle", Of(&R::SetBorderStyle, &R::GetBorderStyle), {1, 3}, {0, 2, 4}},
        {"outline", Of(&R::SetOutline, &R::GetOutline), {0, 4}, {below(0), above(4)}},
        {"shadow", Of(&R::SetShadow, &R::GetShadow), {0, 4}, {below(0), above(4)}},
        {"alignment", Of(&R::SetAlignment, &R::GetAlignment), {1, 9}, {0, 10}},
        {"blur", Of(&R::SetBlur, &R::GetBlur), {0, 100}, {below(0), above(100)}},
        {"scaleX", Of(&R::SetScaleX, &R::GetScaleX), {0.1, 10}, {below(0.1), above(10)}},
        {"scaleY", Of(&R::SetScaleY, &R::GetScaleY), {0.1, 10}, {below(0.1), above(10)}},
        {"fontStyle", Of(&R::SetFontStyle, &R::GetFontStyle), {0, 15}, {-1, 16}},
    };
    for (const auto& [name, field, good, bad] : cases) {
        for (const bool accepted : {true, false}) {
            for (const double value : accepted ? good : bad) {
                LogCollector log;
                R record;
                field.set(record, value);
                const R copy(record);
                EXPECT_EQ(field.get(copy), accepted ? value : R::SETTING_DEFAULT_VALUE) << name << " " << value;
                EXPECT_EQ(log.lines, std::vector<std::string>(accepted ? 0 : 1, kReset)) << name << " " << value;
            }
        }
    }
}

TEST(AssRenderer, AssignmentWarnsOncePerFieldAndColoursPack)
{
    LogCollector log;
    R bad;
    bad.SetFontSize(500.0);
    bad.SetBorderStyle(2);
    bad.SetPrimaryColour(0x12, 0x34, 0x56);
    bad.SetBackColour(0xFF, 0x00, 0x80);
    R target;
    target = bad;
    EXPECT_EQ(log.lines, (std::vector<std::string>{kReset, kReset}));
    EXPECT_EQ(std::pair(target.GetFontSize(), bad.GetFontSize()), std::pair(2147483647.0, 500.0));
    EXPECT_EQ(target.GetBorderStyle(), R::SETTING_DEFAULT_VALUE);
    EXPECT_EQ(std::pair(target.GetPrimaryColour(), target.GetBackColour()), std::pair(0x12345600U, 0xFF008000U));
    EXPECT_EQ(target.GetSecondaryColour(), 2147483647U);
    bad.ValidateSettings();
    EXPECT_EQ(log.lines.size(), 4U);
}
