// SettingsResizer. Sizes and margins are worked out by hand; a note gives the quotient where a
// truncation decides.
#include <gtest/gtest.h>

#include <cmath>

#include "Proc/Settings/SettingsResizer.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;
using Zorvan::Conf::FrameInfo;
using ZorvanTest::FormADescription;
using ZorvanTest::FormBDescription;
using Json = nlohmann::ordered_json;

namespace {

Json Fields(const SettingsResizer& resizer)
{
    return Zorvan::SettingsCatalog::Find(SettingsResizer::CLASS_ID)->FieldsToJson(resizer);
}

Json Frame(std::uint32_t width, std::uint32_t height, std::uint32_t numerator = 1, std::uint32_t denominator = 1)
{
    return {{"height", height}, {"parDenominator", denominator}, {"parNumerator", numerator}, {"width", width}};
}

std::string Custom(const std::string& size, const std::string& mode)
{
    return size + ":size_mode=Custom:custom_mode=" + mode;
}

SettingsResizer Make(const std::string& options, const CropInfo& crop = {}, int maxWidth = 0, int maxHeight = 0)
{
    SettingsResizer resizer;
    resizer.Deserialize(options);
    resizer.SetCrop(crop);
    resizer.SetMaxWidth(maxWidth);
    resizer.SetMaxHeight(maxHeight);
    return resizer;
}

} // namespace

TEST(Resizer, SettersRefuseBadValuesAndIsEnabledSeesAnyChange)
{
    SettingsResizer resizer;
    EXPECT_EQ(FormADescription<SettingsException>([&] { resizer.SetImplName(""); }), "Empty impl name");
    for (const double scale : {0.0, -1.5}) {
        EXPECT_EQ(FormADescription<SettingsException>([&] { resizer.SetCustomScale(scale); }),
                  "Custom scale have to be positive");
    }
    resizer.SetCustomScale(std::nan("")); // passes the check
    EXPECT_TRUE(std::isnan(resizer.GetScaleFactor()));
    EXPECT_FALSE(Make("").IsEnabled());
    EXPECT_TRUE(Make("1x1:size_mode=1").IsEnabled());
    EXPECT_TRUE(Make("", {1, 0, 0, 0}).IsEnabled() && Make("", {0, 1, 0, 0}).IsEnabled());
    EXPECT_TRUE(Make("", {0, 0, 1, 0}).IsEnabled() && Make("", {0, 0, 0, 1}).IsEnabled());
}

TEST(Resizer, DeserializeAppliesItsStepsInOrderAndKeepsThoseBeforeAFailure)
{
    const std::string crop43 = Custom("640x480:aspect=4x3", "Crop");
    // Before (applied to a fresh record first), options, the failure or "bad_optional_access", the changes.
    const std::tuple<std::string, std::string, std::string, Json> cases[] = {
        // clang-format off
        // The size text goes unused outside Custom and replaces the frame in it, whatever other keys come.
        {crop43 + ":scale=2", "1280x720", "", {}},
        {crop43, "8x6:impl=x", "", {{"implName", "x"}, {"customFrame", Frame(8, 6)}}},
        {"", Custom("720x576:aspect=16x15", "Stretch"), "",
            {{"sizeMode", 4}, {"customMode", 1}, {"customFrame", Frame(720, 576, 16, 15)}}},
        {"", "4294967295x0001:size_mode=Custom", "", {{"sizeMode", 4}, {"customFrame", Frame(4294967295U, 1)}}},
        {"", "1x1:size_mode=halfORIGINAL", "", {{"sizeMode", 1}}},
        {"", "1x1:size_mode=4294967295", "", {{"sizeMode", -1}}},
        // The custom mode is read only in Custom, from the current one; the scale overrides the size mode.
        {crop43, "2x2:custom_mode=5", "", {{"customMode", 5}, {"customFrame", Frame(2, 2)}}},
        {crop43, "2x2:size_mode=0:custom_mode=5", "", {{"sizeMode", 0}}},
        {"", Custom("3x2", "Crop") + ":scale=0.5", "",
            {{"sizeMode", 3}, {"customMode", 4}, {"customFrame", Frame(3, 2)}, {"scaleFactor", 0.5}}},
        {"", "1x1:resize_method=99", "", {{"resizeMethod", 99}}},
        {"", "1x1:resize_method=LANCZOS", "", {{"resizeMethod", 9}}},
        {"1x1:odd_h_allowed=0", "1x1:odd_w_allowed=0:odd_h_allowed=00002:premultiplied=7", "",
            {{"oddWidthAllowed", false}, {"oddHeightAllowed", true}, {"premultiplied", true}}},
        // The executor type is cut to 32 bits and not checked.
        {"", "1x1:nnm_file=/m/up scale.onnx:nnm_type=4294967303:nnm_channels=18446744073709551615", "",
            {{"model", {{"binaryDataSize", 0}, {"executorType", 7}, {"path", "/m/up scale.onnx"}}},
             {"modelChannels", 18446744073709551615ULL}}},
        {"1x1:impl=a:nnm_file=m", "1x1:impl=\"\":nnm_file=\"\"", "", {}},
        // Size, aspect, impl, size mode, custom mode, scale, resize method, flags, model.
        {"", "size_mode=\"Custom\"", "Invalid output frame size = 'size_mode=\"Custom\"'", {}},
        {"", "10x10:impl=d:aspect=16X9", "bad_optional_access", {}},
        {"", "1x1:impl=b:size_mode=5", "Bad size mode", {{"implName", "b"}}},
        {"", "1x1:size_mode=-1", "An unknown size mode has been requested for the resizer: -1", {}},
        {"", Custom("1x1:impl=c", "Fit"), "An unknown custom mode has been requested for the resizer: Fit",
            {{"implName", "c"}}},
        {"", Custom("2x2", "6"), "Bad custom mode", {}},
        {"", "640x480:resize_method=2:impl=abc:" + Custom("", "SmartFit") + ":scale=0:premultiplied=1",
            "Custom scale have to be positive",
            {{"implName", "abc"}, {"sizeMode", 4}, {"customMode", 2}, {"customFrame", Frame(640, 480)}}},
        {"", "1x1:scale=4:resize_method=x1", "An unknown resize method has been requested for the resizer: x1",
            {{"sizeMode", 3}, {"scaleFactor", 4}}},
        {"", "1x1:resize_method=2:odd_w_allowed=-1", "The '-1' value of the 'odd_w_allowed' option is not a number",
            {{"resizeMethod", 2}}},
        {"", "1x1:premultiplied=1:nnm_type=z:nnm_file=m", "The 'z' value of the 'nnm_type' option is not a number",
            {{"premultiplied", true}, {"model", {{"binaryDataSize", 0}, {"executorType", 0}, {"path", "m"}}}}},
        {"", "4294967296x1:impl=y", "Invalid output frame size = '4294967296x1'", {}},
        // clang-format on
    };
    for (const auto& [before, options, failure, changes] : cases) {
        SCOPED_TRACE(before + " then " + options);
        SettingsResizer resizer = Make(before);
        Json expected = Fields(resizer);
        if (!changes.is_null()) {
            expected.update(changes);
        }
        const auto call = [&] { resizer.Deserialize(options); };
        if (failure.empty()) {
            call();
        } else if (failure == "bad_optional_access") {
            EXPECT_THROW(call(), std::bad_optional_access);
        } else if (failure.starts_with("The '") || failure.starts_with("An unknown")) {
            // The grammar's plain std::invalid_argument, or the spelling tables' one in form B.
            EXPECT_EQ(FormBDescription<std::invalid_argument>(call, failure[0] == 'A'), failure);
        } else {
            EXPECT_EQ(FormADescription<SettingsException>(call), failure);
        }
        EXPECT_EQ(Fields(resizer), expected);
    }
    // A path read keeps the model's binary data.
    SettingsResizer resizer;
    resizer.SetModel(NeuralNetworkModelInfo{"old.onnx", "bytes", NeuralNetworkModelInfo::CPU});
    resizer.Deserialize("1x1:nnm_file=new.onnx");
    EXPECT_EQ(resizer.GetModel(), (NeuralNetworkModelInfo{"new.onnx", "bytes", NeuralNetworkModelInfo::CPU}));
}

TEST(Resizer, OutputFrameSize)
{
    const std::string even = ":odd_w_allowed=0:odd_h_allowed=0";
    // What, options, crop, maximum width and height, the frame in, the frame out.
    const std::tuple<const char*, std::string, CropInfo, int, int, FrameInfo, FrameInfo> cases[] = {
        {"Original keeps the frame", "", {}, 0, 0, {1921, 1081, 3, 2}, {1921, 1081, 3, 2}},
        {"odd sizes round up", "1x1" + even, {}, 0, 0, {1921, 1081, 1, 1}, {1922, 1082, 1, 1}},
        {"both zero stay zero", "1x1:size_mode=QuaterOriginal" + even, {}, 0, 0, {3, 3, 1, 1}, {0, 0, 1, 1}},
        {"one zero becomes 1", "1x1:size_mode=QuaterOriginal" + even, {}, 0, 0, {7, 3, 1, 1}, {2, 2, 1, 1}},
        {"crop, then half", "1x1:size_mode=HalfOriginal", {10, 30, 20, 40}, 0, 0, {1920, 1080, 1, 1}, {940, 510, 1, 1}},
        {"crop wraps around", "", {8, 4, 0, 0}, 0, 0, {10, 10, 1, 1}, {4294967294U, 10, 1, 1}},
        {"never enlarged", "", {}, 3840, 2160, {1920, 1080, 1, 1}, {1920, 1080, 1, 1}},
        {"1000 / (10/3) truncates", "", {}, 300, 400, {1000, 1000, 1, 1}, {300, 300, 1, 1}},
        {"a zero limit is none", "", {}, 300, 0, {1920, 1080, 1, 1}, {1920, 1080, 1, 1}},
        {"maximum after halving", "1x1:size_mode=HalfOriginal", {}, 960, 960, {3840, 2160, 1, 1}, {960, 540, 1, 1}},
        {"no maximum in CustomScale", "1x1:scale=2", {}, 960, 960, {1000, 500, 1, 1}, {2000, 1000, 1, 1}},
        {"499.5 truncates", "1x1:scale=1.5", {100, 100, 0, 0}, 0, 0, {1000, 333, 2, 1}, {1200, 499, 2, 1}},
        {"Auto", Custom("1280x720:aspect=4x3", "Auto"), {}, 0, 0, {1920, 1080, 1, 1}, {1280, 720, 4, 3}},
        {"Stretch, finished", Custom("1281x0", "Stretch" + even), {}, 0, 0, {1920, 1080, 1, 1}, {1282, 2, 1, 1}},
        {"LetterBox, no maximum", Custom("640x480", "LetterBox"), {}, 10, 10, {1920, 1080, 1, 1}, {640, 480, 1, 1}},
        {"UpTo keeps a smaller source", Custom("1920x1080", "UpTo"), {}, 0, 0, {1280, 720, 3, 2}, {1280, 720, 3, 2}},
        {"UpTo keeps an equal one", Custom("1920x1080", "UpTo"), {}, 0, 0, {1920, 1080, 3, 2}, {1920, 1080, 3, 2}},
        {"UpTo fits a larger one", Custom("1920x1080", "UpTo"), {}, 0, 0, {3840, 2160, 1, 1}, {1920, 1080, 1, 1}},
        // ratio 1280/1200 * 1/2 = 0.5333, w = trunc(576.0) = 576 < 1920.
        {"UpTo, too tall", Custom("1920x1080:aspect=2x1", "UpTo"), {}, 0, 0, {1280, 1200, 1, 1}, {576, 1080, 2, 1}},
        // ratio 16/9, w = 1777 >= 1000: height trunc(562.5).
        {"SmartFit wide", Custom("1000x1000", "SmartFit"), {}, 0, 0, {1920, 1080, 1, 1}, {1000, 562, 1, 1}},
        // ratio 1.25 * 16/15 = 4/3, w = 1440.
        {"SmartFit, PAL", Custom("1920x1080", "SmartFit"), {}, 0, 0, {720, 576, 16, 15}, {1440, 1080, 1, 1}},
        // ratio 16/9 * 3/4 = 4/3, w = 1440 = the custom width.
        {"SmartFit, 4:3", Custom("1440x1080:aspect=4x3", "SmartFit"), {}, 0, 0, {1920, 1080, 1, 1}, {1440, 1080, 4, 3}},
        // 65536 * 65536 wraps to 0 in 32 bits: ratio 0, w 0, finished to 1.
        {"32 bits", Custom("640x480:aspect=1x65536", "SmartFit"), {}, 0, 0, {1920, 1080, 65536, 1}, {1, 480, 1, 65536}},
    };
    for (const auto& [what, options, crop, maxWidth, maxHeight, in, out] : cases) {
        SCOPED_TRACE(what);
        EXPECT_EQ(Make(options, crop, maxWidth, maxHeight).GetOutputFrameSize(in), out);
    }
    // Modes that passed the signed setters are refused as unsigned, before GetROI writes anything.
    const SettingsResizer mode = Make("1x1:size_mode=4294967295");
    CropInfo rect{1, 1, 1, 1};
    const auto unknown = [](const std::function<void()>& call) { return FormBDescription<std::logic_error>(call); };
    EXPECT_EQ(unknown([&] { (void)mode.GetOutputFrameSize({}); }), "Unknown resize mode '4294967295'");
    EXPECT_EQ(unknown([&] { (void)mode.GetROI({}, rect, rect); }), "Unknown resize mode '4294967295'");
    EXPECT_EQ(unknown([&] { (void)Make(Custom("1x1", "4294967294")).GetOutputFrameSize({}); }),
              "Unknown resize custom mode '4294967294'");
    EXPECT_EQ(rect, (CropInfo{1, 1, 1, 1}));
}

TEST(Resizer, RegionOfInterestAndTheQuadToDraw)
{
    const CropInfo none{0, 0, 0, 0};
    const CropInfo margins{2, 4, 6, 8};
    const FrameInfo hd{1920, 1080, 1, 1};
    // What, options, crop, the frame in, the source and target margins.
    const std::tuple<const char*, std::string, CropInfo, FrameInfo, CropInfo, CropInfo> cases[] = {
        // candW trunc(1081.08) = 1081 < 1921, even 1080; d = -841, pad 842, h = 421 (odd): 420 and 422.
        {"LetterBox, odd width", Custom("1921x1080", "LetterBox"), none, {1001, 1000, 1, 1}, none, {420, 422, 0, 0}},
        // candH trunc(607.5) = 607, even 606; d = -474, pad 475, h = 237 (odd): 236 and 238.
        {"wide into square", Custom("1080x1080", "LetterBox"), none, hd, none, {0, 0, 236, 238}},
        // candH 1440: d = 360, cut = 360 * 720 / 1440 + 1 = 181, h = 90.
        {"Crop 4:3 into 16:9", Custom("1920x1080", "Crop"), none, {960, 720, 1, 1}, {0, 0, 90, 90}, none},
        // cut = 360 * 576 / 1440 + 1 = 145, h = 72.
        {"Crop of PAL pixels", Custom("1920x1080", "Crop"), none, {720, 576, 16, 15}, {0, 0, 72, 72}, none},
        // candW 1920 > 1080: d = 840, cut = 841, h = 420.
        {"Crop wide into square", Custom("1080x1080", "Crop"), none, hd, {420, 420, 0, 0}, none},
        // src 800x1000: candW 640 < 800, fit 800x1000, d = 200, cut = 201, h = 100; plus the margins.
        {"crop margins", Custom("800x800", "Crop"), {100, 100, 0, 0}, {1000, 1000, 1, 1}, {100, 100, 100, 100}, none},
        // autoAspect (4/3 + 16/9) / 2: candW 1679 < 1920, candH 1234; d = 154, cut = 135, h = 67: 66 and 68.
        {"Auto compromises", Custom("1920x1080", "Auto"), none, {1440, 1080, 1, 1}, {0, 0, 66, 68}, none},
        // autoAspect (16/9 + 4/3 * 4/3) / 2 * 3/4 = 4/3: candW 1440 = outW.
        {"Auto, 4:3 pixels", Custom("1440x1080:aspect=4x3", "Auto"), none, hd, none, none},
        // Elsewhere the source is the crop margins and nothing is padded.
        {"Original", "", margins, hd, margins, none},
        {"UpTo", Custom("8x8", "UpTo"), margins, hd, margins, none},
        {"Stretch", Custom("8x8", "Stretch"), margins, hd, margins, none},
        {"SmartFit", Custom("8x8", "SmartFit"), margins, hd, margins, none},
    };
    for (const auto& [what, options, crop, in, source, target] : cases) {
        SCOPED_TRACE(what);
        const SettingsResizer resizer = Make(options, crop);
        CropInfo sourceOut{7, 7, 7, 7}, targetOut{7, 7, 7, 7};
        EXPECT_EQ(resizer.GetROI(in, sourceOut, targetOut), resizer.GetOutputFrameSize(in));
        EXPECT_EQ(sourceOut, source);
        EXPECT_EQ(targetOut, target);
    }
    // The quad to draw, from the same margins.
    using Quad = std::array<float, 16>; // top left, top right, bottom right, bottom left: u, v, x, y
    // target left and right 240 of 1920: x = 2 * 240 / 1920 - 1 = -0.75.
    EXPECT_EQ(Make(Custom("1920x1080", "LetterBox")).CalculateCoordBuffer({1440, 1080, 1, 1}),
              (Quad{0, 0, -0.75F, -1, 1, 0, 0.75F, -1, 1, 1, 0.75F, 1, 0, 1, -0.75F, 1}));
    // source top and bottom 90 of 720: v = 0.125 and 0.875.
    EXPECT_EQ(Make(Custom("1920x1080", "Crop")).CalculateCoordBuffer({960, 720, 1, 1}),
              (Quad{0, 0.125F, -1, -1, 1, 0.125F, 1, -1, 1, 0.875F, 1, 1, 0, 0.875F, -1, 1}));
    // Crop margins are relative to the uncropped frame: 100 / 1000, 1 - 300 / 1000, 50 / 500, 1 - 150 / 500.
    EXPECT_EQ(Make("", {100, 300, 50, 150}).CalculateCoordBuffer({1000, 500, 1, 1}),
              (Quad{0.1F, 0.1F, -1, -1, 0.7F, 0.1F, 1, -1, 0.7F, 0.7F, 1, 1, 0.1F, 0.7F, -1, 1}));
}

TEST(Resizer, ComparisonLooksAtTheFieldsTheSizeModeUsesAndCloneCopiesThemAll)
{
    using R = SettingsResizer&;
    const std::string stretch = Custom("640x480", "Stretch");
    const struct {
        std::string base, change; // option strings
        bool equal;
        void (*set)(SettingsResizer&) = nullptr;
    } cases[] = {
        // clang-format off
        {"", "1x1:premultiplied=1", true}, {"", "1x1:nnm_channels=3", true}, {"", "1x1:impl=x", false},
        {"", "1x1:size_mode=2", false}, {"", "1x1:odd_w_allowed=0", false}, {"", "1x1:odd_h_allowed=0", false},
        {"", "1x1:resize_method=spline", false}, {"", "1x1:nnm_type=1", false}, {"", "1x1:nnm_file=m", false},
        {"", "", false, [](R r) { r.SetCrop({0, 0, 0, 1}); }}, {"", "", false, [](R r) { r.SetMaxWidth(1); }},
        {"", "", false, [](R r) { r.SetMaxHeight(1); }}, {"", "", false, [](R r) { r.SetReservedInteger(1); }},
        {"", "", false, [](R r) { r.SetReservedInteger2(1); }}, {"", "", false, [](R r) { r.SetReservedInteger3(1); }},
        // Below CustomScale the custom mode and frame are not compared, nor is the scale.
        {"", "", true, [](R r) { r.SetCustomMode(SettingsResizer::CustomModes(4), {8, 6, 1, 1}), r.SetSizeMode({}); }},
        {"1x1:size_mode=1", "1x1:scale=3", true, [](R r) { r.SetSizeMode(SettingsResizer::SizeModes(1)); }},
        {stretch, "800x600", false}, {stretch, "640x480:aspect=1x2", false}, {stretch, "640x480:custom_mode=3", false},
        {"1x1:scale=2", "", false, [](R r) { r.SetCustomScale(2.0000000000000004); }},
        {"1x1:scale=2", Custom("8x6", "Crop") + ":scale=2", true},
        // clang-format on
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        SCOPED_TRACE(i);
        const SettingsResizer base = Make(cases[i].base);
        SettingsResizer other = base;
        other.Deserialize(cases[i].change);
        if (cases[i].set) {
            cases[i].set(other);
        }
        EXPECT_EQ(base == other, cases[i].equal);
        EXPECT_EQ(base.IsEqualTo(other), cases[i].equal);
        EXPECT_EQ(Fields(dynamic_cast<const SettingsResizer&>(*other.Clone())), Fields(other));
    }
}
