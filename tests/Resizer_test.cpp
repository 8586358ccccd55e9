// Part 2.1: SettingsResizer: setters, the twelve steps of Deserialize, GetOutputFrameSize,
// GetROI, CalculateCoordBuffer and the comparison. Expected sizes and margins are worked out
// by hand from the Algorithms text (the floating quotients where they truncate close to a
// whole number are noted at the test).
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <optional>
#include <stdexcept>
#include <typeinfo>

#include "Proc/Settings/SettingsFilterSpeedUp.h"
#include "Proc/Settings/SettingsResizer.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;
using Zorvan::Conf::FrameInfo;
using ZorvanTest::FormADescription;
using ZorvanTest::FormBDescription;
using SizeModes = SettingsResizer::SizeModes;
using CustomModes = SettingsResizer::CustomModes;
using ResizeMethods = SettingsResizer::ResizeMethods;

namespace {

SettingsResizer Custom(CustomModes mode, FrameInfo frame)
{
    SettingsResizer resizer;
    resizer.SetCustomMode(mode, frame);
    return resizer;
}

struct Roi {
    FrameInfo out;
    CropInfo source;
    CropInfo target;
};

Roi GetRoi(const SettingsResizer& resizer, const FrameInfo& frame)
{
    Roi roi;
    roi.out = resizer.GetOutputFrameSize(frame);
    // GetROI writes both rectangles whatever they held.
    roi.source = CropInfo{7, 7, 7, 7};
    roi.target = CropInfo{7, 7, 7, 7};
    EXPECT_EQ(resizer.GetROI(frame, roi.source, roi.target), roi.out);
    return roi;
}

} // namespace

// ---- Defaults, setters and getters ------------------------------------------------------

TEST(Resizer, DefaultRecordIsNeutral)
{
    const SettingsResizer resizer;
    EXPECT_EQ(resizer.GetClassId(), "$$RESIZE$$");
    EXPECT_EQ(resizer.GetImplName(), "");
    EXPECT_EQ(resizer.GetCrop(), (CropInfo{0, 0, 0, 0}));
    EXPECT_EQ(resizer.GetMaxWidth(), 0);
    EXPECT_EQ(resizer.GetMaxHeight(), 0);
    EXPECT_EQ(resizer.GetSizeMode(), SizeModes::Original);
    EXPECT_EQ(resizer.GetCustomMode(), CustomModes::Auto);
    EXPECT_EQ(resizer.GetFrameInfo(), (FrameInfo{0, 0, 1, 1}));
    EXPECT_EQ(resizer.GetScaleFactor(), 1.0);
    EXPECT_TRUE(resizer.GetOddWidthAllowed());
    EXPECT_TRUE(resizer.GetOddHeightAllowed());
    EXPECT_FALSE(resizer.GetPremultiplied());
    EXPECT_EQ(resizer.GetResizeMethod(), ResizeMethods::FastBilinear);
    EXPECT_TRUE(resizer.GetModel().IsEmpty());
    EXPECT_EQ(resizer.GetModelChannels(), 0U);
    EXPECT_FALSE(resizer.IsEnabled());
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1921, 1081, 3, 2}), (FrameInfo{1921, 1081, 3, 2}));
}

TEST(Resizer, EnumerationsHaveTheSpecNumbers)
{
    EXPECT_EQ(static_cast<int>(SizeModes::QuaterOriginal), 2);
    EXPECT_EQ(static_cast<int>(SizeModes::Custom), 4);
    EXPECT_EQ(static_cast<int>(CustomModes::LetterBox), 3);
    EXPECT_EQ(static_cast<int>(CustomModes::UpTo), 5);
    EXPECT_EQ(static_cast<int>(ResizeMethods::X), 3);
    EXPECT_EQ(static_cast<int>(ResizeMethods::Spline), 10);
    EXPECT_EQ(sizeof(SizeModes), 4U);
    EXPECT_EQ(sizeof(CustomModes), 4U);
    EXPECT_EQ(sizeof(ResizeMethods), 4U);
}

TEST(Resizer, EmptyImplNameThrowsAndKeepsTheName)
{
    SettingsResizer resizer;
    resizer.SetImplName("zorvan");
    EXPECT_EQ(FormADescription<SettingsException>([&] { resizer.SetImplName(""); }), "Empty impl name");
    EXPECT_EQ(resizer.GetImplName(), "zorvan");
}

TEST(Resizer, SetSizeModeChecksFiveOrMoreAsSigned)
{
    SettingsResizer resizer;
    resizer.SetSizeMode(SizeModes::HalfOriginal);
    EXPECT_EQ(FormADescription<SettingsException>([&] { resizer.SetSizeMode(static_cast<SizeModes>(5)); }),
              "Bad size mode");
    EXPECT_EQ(resizer.GetSizeMode(), SizeModes::HalfOriginal);
    // A negative mode passes the signed check, and GetOutputFrameSize refuses it as unsigned.
    resizer.SetSizeMode(static_cast<SizeModes>(-1));
    EXPECT_EQ(static_cast<int>(resizer.GetSizeMode()), -1);
    EXPECT_EQ(FormBDescription<std::logic_error>([&] {
                  (void)resizer.GetOutputFrameSize(FrameInfo{2, 2, 1, 1});
              }),
              "Unknown resize mode '4294967295'");
}

TEST(Resizer, SetSizeModeCustomKeepsTheCustomFrame)
{
    SettingsResizer resizer = Custom(CustomModes::Crop, FrameInfo{640, 480, 4, 3});
    resizer.SetSizeMode(SizeModes::Original);
    resizer.SetSizeMode(SizeModes::Custom);
    EXPECT_EQ(resizer.GetSizeMode(), SizeModes::Custom);
    EXPECT_EQ(resizer.GetCustomMode(), CustomModes::Crop);
    EXPECT_EQ(resizer.GetFrameInfo(), (FrameInfo{640, 480, 4, 3}));
}

TEST(Resizer, SetCustomModeStoresModeFrameAndSizeModeOrThrows)
{
    SettingsResizer resizer;
    resizer.SetCustomMode(CustomModes::UpTo, FrameInfo{1280, 720, 1, 1});
    EXPECT_EQ(resizer.GetSizeMode(), SizeModes::Custom);
    EXPECT_EQ(resizer.GetCustomMode(), CustomModes::UpTo);
    EXPECT_EQ(resizer.GetFrameInfo(), (FrameInfo{1280, 720, 1, 1}));
    resizer.SetSizeMode(SizeModes::Original);
    EXPECT_EQ(FormADescription<SettingsException>([&] {
                  resizer.SetCustomMode(static_cast<CustomModes>(6), FrameInfo{1, 1, 1, 1});
              }),
              "Bad custom mode");
    EXPECT_EQ(resizer.GetSizeMode(), SizeModes::Original);
    EXPECT_EQ(resizer.GetCustomMode(), CustomModes::UpTo);
    EXPECT_EQ(resizer.GetFrameInfo(), (FrameInfo{1280, 720, 1, 1}));
    resizer.SetCustomMode(static_cast<CustomModes>(-2), FrameInfo{8, 8, 1, 1});
    EXPECT_EQ(FormBDescription<std::logic_error>([&] {
                  (void)resizer.GetOutputFrameSize(FrameInfo{2, 2, 1, 1});
              }),
              "Unknown resize custom mode '4294967294'");
}

TEST(Resizer, SetCustomScaleRefusesZeroAndBelowButNotNaN)
{
    SettingsResizer resizer;
    for (const double bad : {0.0, -0.0, -1.5}) {
        EXPECT_EQ(FormADescription<SettingsException>([&] { resizer.SetCustomScale(bad); }),
                  "Custom scale have to be positive");
    }
    EXPECT_EQ(resizer.GetSizeMode(), SizeModes::Original);
    EXPECT_EQ(resizer.GetScaleFactor(), 1.0);
    resizer.SetCustomScale(0.25);
    EXPECT_EQ(resizer.GetSizeMode(), SizeModes::CustomScale);
    EXPECT_EQ(resizer.GetScaleFactor(), 0.25);
    resizer.SetCustomScale(std::nan(""));
    EXPECT_TRUE(std::isnan(resizer.GetScaleFactor()));
}

TEST(Resizer, PlainAccessorsStoreUnchecked)
{
    SettingsResizer resizer;
    resizer.SetCrop(CropInfo{1, 2, 3, 4});
    resizer.SetMaxWidth(-5);
    resizer.SetMaxHeight(720);
    resizer.SetOddWidthAllowed(false);
    resizer.SetOddHeightAllowed(false);
    resizer.SetPremultiplied(true);
    resizer.SetResizeMethod(static_cast<ResizeMethods>(42));
    resizer.SetModel(NeuralNetworkModelInfo{"m.onnx", "data", NeuralNetworkModelInfo::GPU});
    resizer.SetModelChannels(3);
    resizer.SetReservedInteger(-1);
    resizer.SetReservedInteger2(2);
    resizer.SetReservedInteger3(3);
    EXPECT_EQ(resizer.GetCrop(), (CropInfo{1, 2, 3, 4}));
    EXPECT_EQ(resizer.GetMaxWidth(), -5);
    EXPECT_EQ(resizer.GetMaxHeight(), 720);
    EXPECT_FALSE(resizer.GetOddWidthAllowed());
    EXPECT_FALSE(resizer.GetOddHeightAllowed());
    EXPECT_TRUE(resizer.GetPremultiplied());
    EXPECT_EQ(static_cast<int>(resizer.GetResizeMethod()), 42);
    EXPECT_EQ(resizer.GetModel(), (NeuralNetworkModelInfo{"m.onnx", "data", NeuralNetworkModelInfo::GPU}));
    EXPECT_EQ(resizer.GetModelChannels(), 3U);
    EXPECT_EQ(resizer.GetReservedInteger(), -1);
    EXPECT_EQ(resizer.GetReservedInteger2(), 2);
    EXPECT_EQ(resizer.GetReservedInteger3(), 3);
}

TEST(Resizer, IsEnabledByASizeModeOrAnyCropMargin)
{
    SettingsResizer resizer;
    EXPECT_FALSE(resizer.IsEnabled());
    for (const CropInfo crop :
         {CropInfo{1, 0, 0, 0}, CropInfo{0, 1, 0, 0}, CropInfo{0, 0, 1, 0}, CropInfo{0, 0, 0, 1}}) {
        resizer.SetCrop(crop);
        EXPECT_TRUE(resizer.IsEnabled());
    }
    resizer.SetCrop(CropInfo{});
    resizer.SetSizeMode(SizeModes::HalfOriginal);
    EXPECT_TRUE(resizer.IsEnabled());
    EXPECT_FALSE(resizer.IsEmpty()); // IsEmpty stays the base's
}

// ---- Deserialize --------------------------------------------------------------------------

TEST(ResizerDeserialize, EmptyStringChangesNothing)
{
    SettingsResizer resizer = Custom(CustomModes::Crop, FrameInfo{640, 480, 4, 3});
    resizer.Deserialize("");
    EXPECT_EQ(resizer.GetFrameInfo(), (FrameInfo{640, 480, 4, 3}));
}

TEST(ResizerDeserialize, SizeAloneChangesNothingInOriginal)
{
    SettingsResizer resizer;
    resizer.SetCustomMode(CustomModes::Crop, FrameInfo{640, 480, 4, 3});
    resizer.SetSizeMode(SizeModes::Original);
    resizer.Deserialize("1280x720");
    EXPECT_EQ(resizer.GetSizeMode(), SizeModes::Original);
    EXPECT_EQ(resizer.GetFrameInfo(), (FrameInfo{640, 480, 4, 3}));
    EXPECT_EQ(resizer.GetCustomMode(), CustomModes::Crop);
}

TEST(ResizerDeserialize, SizeAloneInCustomReplacesTheFrameWithSquarePixels)
{
    SettingsResizer resizer = Custom(CustomModes::LetterBox, FrameInfo{640, 480, 4, 3});
    resizer.Deserialize("1280x720");
    EXPECT_EQ(resizer.GetSizeMode(), SizeModes::Custom);
    EXPECT_EQ(resizer.GetCustomMode(), CustomModes::LetterBox);
    EXPECT_EQ(resizer.GetFrameInfo(), (FrameInfo{1280, 720, 1, 1}));
    // Other keys alone take the same path.
    resizer.Deserialize("800x600:impl=x");
    EXPECT_EQ(resizer.GetFrameInfo(), (FrameInfo{800, 600, 1, 1}));
    EXPECT_EQ(resizer.GetImplName(), "x");
}

TEST(ResizerDeserialize, TheSizeTextIsMandatory)
{
    SettingsResizer resizer;
    EXPECT_EQ(FormADescription<SettingsException>([&] { resizer.Deserialize("size_mode=\"Custom\""); }),
              "Invalid output frame size = 'size_mode=\"Custom\"'");
    EXPECT_EQ(resizer.GetSizeMode(), SizeModes::Original);
    for (const char* size :
         {"1280", "x720", "1280x", "-1x5", "1280X720", "+1x1", "4294967296x1", "1x 1", " 1x1", "x"}) {
        EXPECT_EQ(FormADescription<SettingsException>([&] { resizer.Deserialize(std::string(size) + ":impl=y"); }),
                  "Invalid output frame size = '" + std::string(size) + "'")
            << size;
    }
    EXPECT_EQ(resizer.GetImplName(), ""); // nothing was applied
    resizer.Deserialize("4294967295x0001:size_mode=Custom");
    EXPECT_EQ(resizer.GetFrameInfo(), (FrameInfo{4294967295U, 1, 1, 1}));
}

TEST(ResizerDeserialize, ZeroSizeWithScaleEndsInCustomScale)
{
    SettingsResizer resizer;
    resizer.Deserialize("0x0:scale=2");
    EXPECT_EQ(resizer.GetSizeMode(), SizeModes::CustomScale);
    EXPECT_EQ(resizer.GetScaleFactor(), 2.0);
}

TEST(ResizerDeserialize, SizeModeNineReachesSetSizeMode)
{
    SettingsResizer resizer;
    resizer.Deserialize("1x1:impl=a");
    EXPECT_EQ(FormADescription<SettingsException>([&] { resizer.Deserialize("1x1:impl=b:size_mode=9"); }),
              "Bad size mode");
    EXPECT_EQ(resizer.GetImplName(), "b"); // step 5 came first
    EXPECT_EQ(resizer.GetSizeMode(), SizeModes::Original);
}

TEST(ResizerDeserialize, SizeModeByNumberOrSpellingInAnyCase)
{
    SettingsResizer resizer;
    resizer.Deserialize("1x1:size_mode=2");
    EXPECT_EQ(resizer.GetSizeMode(), SizeModes::QuaterOriginal);
    resizer.Deserialize("1x1:size_mode=halforiginal");
    EXPECT_EQ(resizer.GetSizeMode(), SizeModes::HalfOriginal);
    resizer.Deserialize("1x1:size_mode=CUSTOMSCALE");
    EXPECT_EQ(resizer.GetSizeMode(), SizeModes::CustomScale);
    for (const char* spelling : {"custom", "CUSTOM", "cUsToM", "\"Custom\"", "4"}) {
        SettingsResizer fresh;
        fresh.Deserialize(std::string("320x240:size_mode=") + spelling);
        EXPECT_EQ(fresh.GetSizeMode(), SizeModes::Custom) << spelling;
        EXPECT_EQ(fresh.GetFrameInfo(), (FrameInfo{320, 240, 1, 1})) << spelling;
    }
    // A number beyond 31 bits wraps into the signed 32 bits and passes SetSizeMode.
    resizer.Deserialize("1x1:size_mode=4294967295");
    EXPECT_EQ(static_cast<int>(resizer.GetSizeMode()), -1);
}

TEST(ResizerDeserialize, UnknownSpellingsThrowInvalidArgumentInFormB)
{
    SettingsResizer resizer;
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { resizer.Deserialize("1x1:size_mode=Huge"); }),
              "An unknown size mode has been requested for the resizer: Huge");
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { resizer.Deserialize("1x1:size_mode=-1"); }),
              "An unknown size mode has been requested for the resizer: -1");
    EXPECT_EQ(
        FormBDescription<std::invalid_argument>([&] { resizer.Deserialize("1x1:size_mode=Custom:custom_mode=Fit"); }),
        "An unknown custom mode has been requested for the resizer: Fit");
    EXPECT_EQ(resizer.GetSizeMode(), SizeModes::Original); // step 7 never ran
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { resizer.Deserialize("1x1:resize_method=nearest"); }),
              "An unknown resize method has been requested for the resizer: nearest");
}

TEST(ResizerDeserialize, CustomModeByNumberOrSpellingStartsFromTheCurrentOne)
{
    SettingsResizer resizer;
    resizer.Deserialize("1920x1080:size_mode=Custom:custom_mode=smartfit");
    EXPECT_EQ(resizer.GetCustomMode(), CustomModes::SmartFit);
    resizer.Deserialize("1280x720:custom_mode=5");
    EXPECT_EQ(resizer.GetCustomMode(), CustomModes::UpTo);
    EXPECT_EQ(resizer.GetFrameInfo(), (FrameInfo{1280, 720, 1, 1}));
    resizer.Deserialize("640x360:size_mode=Custom");
    EXPECT_EQ(resizer.GetCustomMode(), CustomModes::UpTo);
    EXPECT_EQ(FormADescription<SettingsException>([&] { resizer.Deserialize("2x2:custom_mode=6"); }),
              "Bad custom mode");
    EXPECT_EQ(resizer.GetFrameInfo(), (FrameInfo{640, 360, 1, 1}));
    // Outside Custom the custom mode is not read.
    resizer.Deserialize("2x2:size_mode=Original:custom_mode=Crop");
    EXPECT_EQ(resizer.GetCustomMode(), CustomModes::UpTo);
}

TEST(ResizerDeserialize, AspectIsReadWithTheSizePattern)
{
    SettingsResizer resizer;
    resizer.Deserialize("720x576:aspect=16x15:size_mode=Custom:custom_mode=Stretch");
    EXPECT_EQ(resizer.GetFrameInfo(), (FrameInfo{720, 576, 16, 15}));
    // Not matched by the size pattern: the default 1 to 1.
    resizer.Deserialize("720x576:aspect=16:9");
    EXPECT_EQ(resizer.GetFrameInfo(), (FrameInfo{720, 576, 1, 1}));
}

TEST(ResizerDeserialize, UpperCaseXInTheAspectRaisesBadOptionalAccess)
{
    SettingsResizer resizer;
    EXPECT_THROW(resizer.Deserialize("10x10:aspect=16X9"), std::bad_optional_access);
    EXPECT_THROW(resizer.Deserialize("10x10:aspect=4294967296x1"), std::bad_optional_access);
}

TEST(ResizerDeserialize, ScaleOverridesTheSizeModeAfterStepSeven)
{
    SettingsResizer resizer;
    resizer.Deserialize("300x200:size_mode=Custom:custom_mode=Crop:scale=0.5");
    EXPECT_EQ(resizer.GetSizeMode(), SizeModes::CustomScale);
    EXPECT_EQ(resizer.GetScaleFactor(), 0.5);
    EXPECT_EQ(resizer.GetCustomMode(), CustomModes::Crop);
    EXPECT_EQ(resizer.GetFrameInfo(), (FrameInfo{300, 200, 1, 1}));
}

TEST(ResizerDeserialize, AFailureKeepsTheEarlierSteps)
{
    SettingsResizer resizer;
    EXPECT_EQ(FormADescription<SettingsException>([&] {
                  resizer.Deserialize("640x480:resize_method=bicubic:impl=abc:size_mode=Custom:custom_mode=SmartFit:"
                                      "scale=0:premultiplied=1");
              }),
              "Custom scale have to be positive");
    EXPECT_EQ(resizer.GetImplName(), "abc");
    EXPECT_EQ(resizer.GetSizeMode(), SizeModes::Custom);
    EXPECT_EQ(resizer.GetCustomMode(), CustomModes::SmartFit);
    EXPECT_EQ(resizer.GetFrameInfo(), (FrameInfo{640, 480, 1, 1}));
    EXPECT_EQ(resizer.GetResizeMethod(), ResizeMethods::FastBilinear); // step 9 never ran
    EXPECT_FALSE(resizer.GetPremultiplied());
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { resizer.Deserialize("1x1:scale=abc"); }, false),
              "The 'abc' value of the 'scale' option is not a number");
}

TEST(ResizerDeserialize, ResizeMethodIsStoredWithoutACheck)
{
    SettingsResizer resizer;
    resizer.Deserialize("1x1:resize_method=99");
    EXPECT_EQ(static_cast<int>(resizer.GetResizeMethod()), 99);
    resizer.Deserialize("1x1:resize_method=LANCZOS");
    EXPECT_EQ(resizer.GetResizeMethod(), ResizeMethods::Lanczos);
    resizer.Deserialize("1x1:resize_method=x");
    EXPECT_EQ(resizer.GetResizeMethod(), ResizeMethods::X);
    resizer.Deserialize("1x1:resize_method=fast_bilinear");
    EXPECT_EQ(resizer.GetResizeMethod(), ResizeMethods::FastBilinear);
}

TEST(ResizerDeserialize, FlagsAreNonZeroUnsignedNumbers)
{
    SettingsResizer resizer;
    resizer.Deserialize("1x1:odd_w_allowed=0:odd_h_allowed=0:premultiplied=7");
    EXPECT_FALSE(resizer.GetOddWidthAllowed());
    EXPECT_FALSE(resizer.GetOddHeightAllowed());
    EXPECT_TRUE(resizer.GetPremultiplied());
    resizer.Deserialize("1x1:odd_h_allowed=00002");
    EXPECT_FALSE(resizer.GetOddWidthAllowed());
    EXPECT_TRUE(resizer.GetOddHeightAllowed());
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { resizer.Deserialize("1x1:odd_w_allowed=-1"); }, false),
              "The '-1' value of the 'odd_w_allowed' option is not a number");
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { resizer.Deserialize("1x1:premultiplied=true"); }, false),
              "The 'true' value of the 'premultiplied' option is not a number");
}

TEST(ResizerDeserialize, ModelKeysReplacePathTypeAndChannels)
{
    SettingsResizer resizer;
    resizer.SetModel(NeuralNetworkModelInfo{"old.onnx", "bytes", NeuralNetworkModelInfo::CPU});
    resizer.Deserialize("1x1:nnm_file=/models/up scale.onnx:nnm_type=4294967298:nnm_channels=18446744073709551615");
    EXPECT_EQ(resizer.GetModel().path, "/models/up scale.onnx");
    EXPECT_EQ(resizer.GetModel().binaryData, "bytes");
    EXPECT_EQ(resizer.GetModel().executorType, NeuralNetworkModelInfo::AUTO); // truncated to 32 bits
    EXPECT_EQ(resizer.GetModelChannels(), 18446744073709551615ULL);
    resizer.Deserialize("1x1:nnm_type=7");
    EXPECT_EQ(static_cast<unsigned>(resizer.GetModel().executorType), 7U); // not checked
    resizer.Deserialize("1x1:nnm_file=\"\"");
    EXPECT_EQ(resizer.GetModel().path, "/models/up scale.onnx"); // an empty quoted value is absent
}

TEST(ResizerDeserialize, ImplNameFromTheOptions)
{
    SettingsResizer resizer;
    resizer.Deserialize("1x1:impl=\"ffmpeg\"");
    EXPECT_EQ(resizer.GetImplName(), "ffmpeg");
    resizer.Deserialize("1x1:impl=\"\"");
    EXPECT_EQ(resizer.GetImplName(), "ffmpeg");
}

// ---- GetOutputFrameSize ---------------------------------------------------------------------

TEST(ResizerOutputSize, OriginalRoundsOddSizesUpWhenNotAllowed)
{
    SettingsResizer resizer;
    resizer.SetOddWidthAllowed(false);
    resizer.SetOddHeightAllowed(false);
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1921, 1081, 1, 1}), (FrameInfo{1922, 1082, 1, 1}));
    resizer.SetOddHeightAllowed(true);
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1921, 1081, 8, 9}), (FrameInfo{1922, 1081, 8, 9}));
}

TEST(ResizerOutputSize, HalfAndQuarterShiftRight)
{
    SettingsResizer resizer;
    resizer.SetSizeMode(SizeModes::HalfOriginal);
    resizer.SetOddWidthAllowed(true);
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1921, 1080, 1, 1}), (FrameInfo{960, 540, 1, 1}));
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1923, 1082, 4, 3}), (FrameInfo{961, 541, 4, 3}));
    resizer.SetOddWidthAllowed(false);
    resizer.SetOddHeightAllowed(false);
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1923, 1082, 4, 3}), (FrameInfo{962, 542, 4, 3}));
    resizer.SetSizeMode(SizeModes::QuaterOriginal);
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1922, 1082, 1, 1}), (FrameInfo{480, 270, 1, 1}));
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1004, 1007, 1, 1}), (FrameInfo{252, 252, 1, 1}));
    // 3 >> 2 is 0 on both axes: both zero stay zero.
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{3, 3, 1, 1}), (FrameInfo{0, 0, 1, 1}));
    // 7 >> 2 = 1 and 3 >> 2 = 0: the finish makes the zero 1, then both round up to 2.
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{7, 3, 1, 1}), (FrameInfo{2, 2, 1, 1}));
}

TEST(ResizerOutputSize, CropMarginsAreCutFirstWithUnsignedWrapAround)
{
    SettingsResizer resizer;
    resizer.SetCrop(CropInfo{10, 30, 20, 40});
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1920, 1080, 1, 1}), (FrameInfo{1880, 1020, 1, 1}));
    resizer.SetSizeMode(SizeModes::HalfOriginal);
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1920, 1080, 1, 1}), (FrameInfo{940, 510, 1, 1}));
    resizer.SetSizeMode(SizeModes::Original);
    resizer.SetCrop(CropInfo{8, 4, 0, 0});
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{10, 10, 1, 1}), (FrameInfo{4294967294U, 10, 1, 1}));
}

TEST(ResizerOutputSize, MaximumSizeShrinksKeepingTheShapeAndNeverEnlarges)
{
    SettingsResizer resizer;
    resizer.SetMaxWidth(1280);
    resizer.SetMaxHeight(720);
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1920, 1080, 1, 1}), (FrameInfo{1280, 720, 1, 1}));
    resizer.SetMaxHeight(1000); // rw 1.5 wins over rh 1.08
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1920, 1080, 1, 1}), (FrameInfo{1280, 720, 1, 1}));
    resizer.SetMaxWidth(960);
    resizer.SetMaxHeight(960); // r = 2
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1920, 1080, 1, 1}), (FrameInfo{960, 540, 1, 1}));
    resizer.SetMaxWidth(3840);
    resizer.SetMaxHeight(2160); // r = 1: never enlarged
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1920, 1080, 1, 1}), (FrameInfo{1920, 1080, 1, 1}));
    resizer.SetMaxWidth(300);
    resizer.SetMaxHeight(400); // r = 10/3; 1000 / r truncates to 300
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1000, 1000, 1, 1}), (FrameInfo{300, 300, 1, 1}));
    resizer.SetMaxHeight(0); // either limit zero: no limit
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1920, 1080, 1, 1}), (FrameInfo{1920, 1080, 1, 1}));
    // After the halving.
    resizer.SetMaxWidth(960);
    resizer.SetMaxHeight(960);
    resizer.SetSizeMode(SizeModes::HalfOriginal);
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{3840, 2160, 1, 1}), (FrameInfo{960, 540, 1, 1}));
    // Not in CustomScale.
    resizer.SetCustomScale(2.0);
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1000, 500, 1, 1}), (FrameInfo{2000, 1000, 1, 1}));
}

TEST(ResizerOutputSize, CustomScaleTruncatesThenFinishes)
{
    SettingsResizer resizer;
    resizer.SetCustomScale(0.0001);
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1000, 3, 1, 1}), (FrameInfo{0, 0, 1, 1}));
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{10000, 3, 1, 1}), (FrameInfo{1, 1, 1, 1}));
    resizer.SetOddWidthAllowed(false);
    resizer.SetOddHeightAllowed(false);
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{10000, 3, 1, 1}), (FrameInfo{2, 2, 1, 1}));
    resizer.SetCustomScale(0.5);
    resizer.SetCrop(CropInfo{100, 100, 0, 0});
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1000, 1000, 2, 1}), (FrameInfo{400, 500, 2, 1}));
    resizer.SetCustomScale(1.5);
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1000, 333, 2, 1}), (FrameInfo{1200, 500, 2, 1})); // 499.5
}

TEST(ResizerOutputSize, CustomModesThatTakeTheCustomFrame)
{
    for (const CustomModes mode :
         {CustomModes::Auto, CustomModes::Stretch, CustomModes::LetterBox, CustomModes::Crop}) {
        SettingsResizer resizer = Custom(mode, FrameInfo{1280, 720, 4, 3});
        EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1920, 1080, 1, 1}), (FrameInfo{1280, 720, 4, 3}));
        resizer.SetOddWidthAllowed(false);
        resizer.SetOddHeightAllowed(false);
        resizer.SetCustomMode(mode, FrameInfo{1281, 0, 1, 1});
        EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1920, 1080, 1, 1}), (FrameInfo{1282, 2, 1, 1}));
        // The maximum size does not apply to Custom.
        resizer.SetMaxWidth(10);
        resizer.SetMaxHeight(10);
        resizer.SetCustomMode(mode, FrameInfo{640, 480, 1, 1});
        EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1920, 1080, 1, 1}), (FrameInfo{640, 480, 1, 1}));
    }
}

TEST(ResizerOutputSize, UpToKeepsASmallerSourceAndFitsALargerOne)
{
    SettingsResizer resizer = Custom(CustomModes::UpTo, FrameInfo{1920, 1080, 1, 1});
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1280, 720, 3, 2}), (FrameInfo{1280, 720, 3, 2}));
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1920, 1080, 3, 2}), (FrameInfo{1920, 1080, 3, 2}));
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{3840, 2160, 1, 1}), (FrameInfo{1920, 1080, 1, 1}));
    resizer.SetCustomMode(CustomModes::UpTo, FrameInfo{1920, 1080, 2, 1});
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1280, 720, 1, 1}), (FrameInfo{1280, 720, 1, 1}));
    // Wide enough but not tall enough: as SmartFit. ratio 1280/1200 * 1/2 = 0.5333,
    // w = trunc(0.5333 * 1080) = 576 < 1920: 576 by 1080 with the custom pixel aspect.
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1280, 1200, 1, 1}), (FrameInfo{576, 1080, 2, 1}));
}

TEST(ResizerOutputSize, SmartFitKeepsTheDisplayedShapeInsideTheCustomFrame)
{
    SettingsResizer resizer = Custom(CustomModes::SmartFit, FrameInfo{1000, 1000, 1, 1});
    // ratio 16/9, w = 1777 >= 1000: width 1000, height trunc(562.5) = 562.
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1920, 1080, 1, 1}), (FrameInfo{1000, 562, 1, 1}));
    // ratio 9/16, w = trunc(562.5) = 562 < 1000: 562 by 1000.
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1080, 1920, 1, 1}), (FrameInfo{562, 1000, 1, 1}));
    resizer.SetOddWidthAllowed(false);
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1080, 1920, 1, 1}), (FrameInfo{562, 1000, 1, 1}));
    resizer.SetOddHeightAllowed(false);
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1920, 1080, 1, 1}), (FrameInfo{1000, 562, 1, 1}));
}

TEST(ResizerOutputSize, SmartFitWithNonSquarePixels)
{
    // PAL 720x576 at 16:15 into 1920x1080 square: ratio 1.25 * 16/15 = 4/3, w = 1440.
    SettingsResizer resizer = Custom(CustomModes::SmartFit, FrameInfo{1920, 1080, 1, 1});
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{720, 576, 16, 15}), (FrameInfo{1440, 1080, 1, 1}));
    // 1920x1080 square into 1440x1080 at 4:3: ratio 16/9 * 3/4 = 4/3, w = 1440 = the custom width.
    resizer.SetCustomMode(CustomModes::SmartFit, FrameInfo{1440, 1080, 4, 3});
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1920, 1080, 1, 1}), (FrameInfo{1440, 1080, 4, 3}));
    // The two products are formed in 32 bits: 65536 * 65536 wraps to 0, the ratio is 0,
    // w = 0, so the width is 0, and the finish makes it 1.
    resizer.SetCustomMode(CustomModes::SmartFit, FrameInfo{640, 480, 1, 65536});
    EXPECT_EQ(resizer.GetOutputFrameSize(FrameInfo{1920, 1080, 65536, 1}), (FrameInfo{1, 480, 1, 65536}));
}

// ---- GetROI -------------------------------------------------------------------------------

TEST(ResizerRoi, LetterBoxOfFourToThreeIntoSixteenToNine)
{
    // candW = 1440 < 1920: fit 1440x1080, d = -480, pad = 481, h = 240: 240 and 240.
    const SettingsResizer resizer = Custom(CustomModes::LetterBox, FrameInfo{1920, 1080, 1, 1});
    const Roi roi = GetRoi(resizer, FrameInfo{1440, 1080, 1, 1});
    EXPECT_EQ(roi.out, (FrameInfo{1920, 1080, 1, 1}));
    EXPECT_EQ(roi.source, (CropInfo{0, 0, 0, 0}));
    EXPECT_EQ(roi.target, (CropInfo{240, 240, 0, 0}));
    // The same shape in PAL pixels (720x576 at 16:15) gives the same bars.
    const Roi pal = GetRoi(resizer, FrameInfo{720, 576, 16, 15});
    EXPECT_EQ(pal.source, (CropInfo{0, 0, 0, 0}));
    EXPECT_EQ(pal.target, (CropInfo{240, 240, 0, 0}));
}

TEST(ResizerRoi, LetterBoxOfAWideSourceIntoASquare)
{
    // candW = 1920 >= 1080: fit 1080 by candH = trunc(607.5) = 607, even 606;
    // d = -474, pad = 475, h = 237 (odd): 236 and 238.
    const SettingsResizer resizer = Custom(CustomModes::LetterBox, FrameInfo{1080, 1080, 1, 1});
    const Roi roi = GetRoi(resizer, FrameInfo{1920, 1080, 1, 1});
    EXPECT_EQ(roi.source, (CropInfo{0, 0, 0, 0}));
    EXPECT_EQ(roi.target, (CropInfo{0, 0, 236, 238}));
}

TEST(ResizerRoi, CropOfFourToThreeIntoSixteenToNine)
{
    // candH = 1440: fit 1920x1440, d = 360, cut = 360 * 720 / 1440 + 1 = 181, h = 90.
    const SettingsResizer resizer = Custom(CustomModes::Crop, FrameInfo{1920, 1080, 1, 1});
    const Roi roi = GetRoi(resizer, FrameInfo{960, 720, 1, 1});
    EXPECT_EQ(roi.out, (FrameInfo{1920, 1080, 1, 1}));
    EXPECT_EQ(roi.source, (CropInfo{0, 0, 90, 90}));
    EXPECT_EQ(roi.target, (CropInfo{0, 0, 0, 0}));
    // PAL: cut = 360 * 576 / 1440 + 1 = 145, h = 72.
    const Roi pal = GetRoi(resizer, FrameInfo{720, 576, 16, 15});
    EXPECT_EQ(pal.source, (CropInfo{0, 0, 72, 72}));
    EXPECT_EQ(pal.target, (CropInfo{0, 0, 0, 0}));
}

TEST(ResizerRoi, CropOfAWideSourceIntoASquareCutsTheSides)
{
    // candW = 1920 > 1080: fit 1920x1080, d = 840, cut = 840 * 1920 / 1920 + 1 = 841, h = 420.
    const SettingsResizer resizer = Custom(CustomModes::Crop, FrameInfo{1080, 1080, 1, 1});
    const Roi roi = GetRoi(resizer, FrameInfo{1920, 1080, 1, 1});
    EXPECT_EQ(roi.source, (CropInfo{420, 420, 0, 0}));
    EXPECT_EQ(roi.target, (CropInfo{0, 0, 0, 0}));
}

TEST(ResizerRoi, CropAddsTheCropMarginsToTheSource)
{
    // src 800x1000, aspect 0.8, candW = 640 < 800: fit 800 by candH 1000; d = 200,
    // cut = 200 * 1000 / 1000 + 1 = 201, h = 100.
    SettingsResizer resizer = Custom(CustomModes::Crop, FrameInfo{800, 800, 1, 1});
    resizer.SetCrop(CropInfo{100, 100, 0, 0});
    const Roi roi = GetRoi(resizer, FrameInfo{1000, 1000, 1, 1});
    EXPECT_EQ(roi.source, (CropInfo{100, 100, 100, 100}));
    EXPECT_EQ(roi.target, (CropInfo{0, 0, 0, 0}));
}

TEST(ResizerRoi, AutoCompromisesBetweenTheTwoShapes)
{
    // autoAspect = (4/3 + 16/9) / 2 = 1.5555...; candW = trunc(1679.99...) = 1679 < 1920:
    // fit 1920 by candH = trunc(1234.28) = 1234; d = 154, cut = 154 * 1080 / 1234 + 1 = 135,
    // h = 67 (odd): 66 and 68.
    const SettingsResizer resizer = Custom(CustomModes::Auto, FrameInfo{1920, 1080, 1, 1});
    const Roi roi = GetRoi(resizer, FrameInfo{1440, 1080, 1, 1});
    EXPECT_EQ(roi.source, (CropInfo{0, 0, 66, 68}));
    EXPECT_EQ(roi.target, (CropInfo{0, 0, 0, 0}));
    // Equal shapes: candW = outW, the fit is the output and only the 1s of step 3 remain.
    const Roi same = GetRoi(resizer, FrameInfo{3840, 2160, 1, 1});
    EXPECT_EQ(same.source, (CropInfo{0, 0, 0, 0}));
    EXPECT_EQ(same.target, (CropInfo{0, 0, 0, 0}));
}

TEST(ResizerRoi, AutoWithNonSquareOutputPixels)
{
    // 16:9 into 1440x1080 at 4:3 (also 16:9 displayed): autoAspect = (16/9 + 4/3 * 4/3) / 2 * 3/4 = 4/3,
    // candW = 1440 = outW: nothing cut, nothing padded.
    const SettingsResizer resizer = Custom(CustomModes::Auto, FrameInfo{1440, 1080, 4, 3});
    const Roi roi = GetRoi(resizer, FrameInfo{1920, 1080, 1, 1});
    EXPECT_EQ(roi.out, (FrameInfo{1440, 1080, 4, 3}));
    EXPECT_EQ(roi.source, (CropInfo{0, 0, 0, 0}));
    EXPECT_EQ(roi.target, (CropInfo{0, 0, 0, 0}));
}

TEST(ResizerRoi, OtherModesGiveTheCropMarginsAndNoPadding)
{
    SettingsResizer resizer;
    resizer.SetCrop(CropInfo{2, 4, 6, 8});
    for (const SizeModes mode :
         {SizeModes::Original, SizeModes::HalfOriginal, SizeModes::QuaterOriginal, SizeModes::CustomScale}) {
        resizer.SetSizeMode(mode);
        const Roi roi = GetRoi(resizer, FrameInfo{1920, 1080, 1, 1});
        EXPECT_EQ(roi.source, (CropInfo{2, 4, 6, 8}));
        EXPECT_EQ(roi.target, (CropInfo{0, 0, 0, 0}));
    }
    for (const CustomModes mode : {CustomModes::Stretch, CustomModes::SmartFit, CustomModes::UpTo}) {
        resizer.SetCustomMode(mode, FrameInfo{1000, 1000, 1, 1});
        const Roi roi = GetRoi(resizer, FrameInfo{1920, 1080, 1, 1});
        EXPECT_EQ(roi.source, (CropInfo{2, 4, 6, 8}));
        EXPECT_EQ(roi.target, (CropInfo{0, 0, 0, 0}));
    }
}

TEST(ResizerRoi, FailuresOfTheOutputSizeComeFirst)
{
    SettingsResizer resizer;
    resizer.SetSizeMode(static_cast<SizeModes>(-3));
    CropInfo source{1, 1, 1, 1};
    CropInfo target{1, 1, 1, 1};
    EXPECT_EQ(FormBDescription<std::logic_error>([&] {
                  (void)resizer.GetROI(FrameInfo{10, 10, 1, 1}, source, target);
              }),
              "Unknown resize mode '4294967293'");
    EXPECT_EQ(source, (CropInfo{1, 1, 1, 1}));
    EXPECT_EQ(target, (CropInfo{1, 1, 1, 1}));
}

// ---- CalculateCoordBuffer -------------------------------------------------------------------

TEST(ResizerCoordBuffer, LetterBoxQuad)
{
    const SettingsResizer resizer = Custom(CustomModes::LetterBox, FrameInfo{1920, 1080, 1, 1});
    // target left and right 240 of 1920: x = 2 * 240 / 1920 - 1 = -0.75 and 0.75.
    const std::array<float, 16> expected{0.0F, 0.0F, -0.75F, -1.0F, 1.0F, 0.0F, 0.75F,  -1.0F,
                                         1.0F, 1.0F, 0.75F,  1.0F,  0.0F, 1.0F, -0.75F, 1.0F};
    EXPECT_EQ(resizer.CalculateCoordBuffer(FrameInfo{1440, 1080, 1, 1}), expected);
}

TEST(ResizerCoordBuffer, CropQuad)
{
    const SettingsResizer resizer = Custom(CustomModes::Crop, FrameInfo{1920, 1080, 1, 1});
    // source top and bottom 90 of 720: v = 0.125 and 0.875.
    const std::array<float, 16> expected{0.0F, 0.125F, -1.0F, -1.0F, 1.0F, 0.125F, 1.0F,  -1.0F,
                                         1.0F, 0.875F, 1.0F,  1.0F,  0.0F, 0.875F, -1.0F, 1.0F};
    EXPECT_EQ(resizer.CalculateCoordBuffer(FrameInfo{960, 720, 1, 1}), expected);
}

TEST(ResizerCoordBuffer, CropMarginsAreRelativeToTheUncroppedFrame)
{
    SettingsResizer resizer;
    resizer.SetCrop(CropInfo{100, 300, 50, 150});
    // W = 1000, H = 500 (the frame itself): u 0.1 and 0.7, v 0.1 and 0.7, all in float.
    const std::array<float, 16> buffer = resizer.CalculateCoordBuffer(FrameInfo{1000, 500, 1, 1});
    const float uLeft = 100.0F / 1000.0F;
    const float uRight = 1.0F - 300.0F / 1000.0F;
    const float vTop = 50.0F / 500.0F;
    const float vBottom = 1.0F - 150.0F / 500.0F;
    const std::array<float, 16> expected{uLeft,  vTop,    -1.0F, -1.0F, uRight, vTop,    1.0F,  -1.0F,
                                         uRight, vBottom, 1.0F,  1.0F,  uLeft,  vBottom, -1.0F, 1.0F};
    EXPECT_EQ(buffer, expected);
    EXPECT_EQ(buffer[0], 0.1F);
    EXPECT_EQ(buffer[9], 0.7F);
}

// ---- Comparison, Clone ----------------------------------------------------------------------

TEST(ResizerEquality, PremultipliedAndModelChannelsTakeNoPart)
{
    SettingsResizer a;
    SettingsResizer b;
    b.SetPremultiplied(true);
    b.SetModelChannels(3);
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(a.IsEqualTo(b));
}

TEST(ResizerEquality, CustomFrameCountsOnlyInCustom)
{
    SettingsResizer a = Custom(CustomModes::Stretch, FrameInfo{640, 480, 1, 1});
    SettingsResizer b = Custom(CustomModes::Stretch, FrameInfo{800, 600, 1, 1});
    EXPECT_FALSE(a == b);
    a.SetSizeMode(SizeModes::Original);
    b.SetSizeMode(SizeModes::Original);
    EXPECT_TRUE(a == b);
    // The custom mode likewise.
    SettingsResizer c = Custom(CustomModes::Crop, FrameInfo{640, 480, 1, 1});
    SettingsResizer d = Custom(CustomModes::LetterBox, FrameInfo{640, 480, 1, 1});
    EXPECT_FALSE(c == d);
    c.SetCustomMode(CustomModes::Crop, FrameInfo{640, 480, 1, 2});
    d.SetCustomMode(CustomModes::Crop, FrameInfo{640, 480, 1, 1});
    EXPECT_FALSE(c == d);
    c.SetCustomScale(2.0);
    d.SetCustomScale(2.0);
    EXPECT_TRUE(c == d);
}

TEST(ResizerEquality, ScaleFactorCountsExactlyOnlyInCustomScale)
{
    SettingsResizer a;
    SettingsResizer b;
    a.SetCustomScale(2.0);
    b.SetCustomScale(2.0000000000000004);
    EXPECT_FALSE(a == b);
    a.SetSizeMode(SizeModes::HalfOriginal);
    b.SetSizeMode(SizeModes::HalfOriginal);
    EXPECT_TRUE(a == b);
    a.SetCustomMode(CustomModes::Auto, FrameInfo{1, 1, 1, 1});
    b.SetCustomMode(CustomModes::Auto, FrameInfo{1, 1, 1, 1});
    EXPECT_TRUE(a == b);
}

TEST(ResizerEquality, EveryCommonFieldCounts)
{
    const SettingsResizer base;
    const auto differs = [&](auto change) {
        SettingsResizer other;
        change(other);
        return !(base == other) && !base.IsEqualTo(other);
    };
    EXPECT_TRUE(differs([](SettingsResizer& r) { r.SetImplName("x"); }));
    EXPECT_TRUE(differs([](SettingsResizer& r) { r.SetCrop(CropInfo{0, 0, 0, 1}); }));
    EXPECT_TRUE(differs([](SettingsResizer& r) { r.SetReservedInteger(1); }));
    EXPECT_TRUE(differs([](SettingsResizer& r) { r.SetMaxWidth(1); }));
    EXPECT_TRUE(differs([](SettingsResizer& r) { r.SetMaxHeight(1); }));
    EXPECT_TRUE(differs([](SettingsResizer& r) { r.SetReservedInteger2(1); }));
    EXPECT_TRUE(differs([](SettingsResizer& r) { r.SetReservedInteger3(1); }));
    EXPECT_TRUE(differs([](SettingsResizer& r) { r.SetSizeMode(SizeModes::QuaterOriginal); }));
    EXPECT_TRUE(differs([](SettingsResizer& r) { r.SetOddWidthAllowed(false); }));
    EXPECT_TRUE(differs([](SettingsResizer& r) { r.SetOddHeightAllowed(false); }));
    EXPECT_TRUE(differs([](SettingsResizer& r) { r.SetResizeMethod(ResizeMethods::Spline); }));
    EXPECT_TRUE(differs([](SettingsResizer& r) {
        r.SetModel(NeuralNetworkModelInfo{"", "", NeuralNetworkModelInfo::GPU});
    }));
}

TEST(ResizerEquality, ForeignTypeRaisesBadCast)
{
    const SettingsResizer resizer;
    const SettingsFilterSpeedUp speedUp;
    EXPECT_THROW((void)resizer.IsEqualTo(speedUp), std::bad_cast);
}

TEST(Resizer, CloneCopiesEveryField)
{
    SettingsResizer resizer;
    resizer.Deserialize("320x240:aspect=4x3:impl=z:size_mode=Custom:custom_mode=Crop:resize_method=gauss:"
                        "odd_w_allowed=0:premultiplied=1:nnm_file=m:nnm_channels=4");
    resizer.SetCrop(CropInfo{2, 2, 2, 2});
    const auto clone = resizer.Clone();
    const auto& copy = dynamic_cast<const SettingsResizer&>(*clone);
    EXPECT_EQ(copy.GetClassId(), "$$RESIZE$$");
    EXPECT_TRUE(copy == resizer);
    EXPECT_EQ(copy.GetFrameInfo(), (FrameInfo{320, 240, 4, 3}));
    EXPECT_EQ(copy.GetCrop(), (CropInfo{2, 2, 2, 2}));
    EXPECT_TRUE(copy.GetPremultiplied());
    EXPECT_EQ(copy.GetModelChannels(), 4U);
    EXPECT_EQ(copy.GetModel().path, "m");
    EXPECT_EQ(copy.GetResizeMethod(), ResizeMethods::Gauss);
}

TEST(Resizer, CatalogueReadsEveryFieldInDeclaredOrder)
{
    const auto* entry = Zorvan::SettingsCatalog::Find("$$RESIZE$$");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->Own(), "ED");
    SettingsResizer resizer;
    resizer.Deserialize(
        "640x480:aspect=4x3:impl=z:size_mode=Custom:custom_mode=Crop:resize_method=spline:nnm_type=1:nnm_channels=3");
    EXPECT_EQ(entry->FieldsToJson(resizer).dump(),
              R"({"implName":"z","crop":{"bottom":0,"left":0,"right":0,"top":0},"reservedInteger":0,"maxWidth":0,)"
              R"("maxHeight":0,"reservedInteger2":0,"reservedInteger3":0,"sizeMode":4,"customMode":4,)"
              R"("customFrame":{"height":480,"parDenominator":3,"parNumerator":4,"width":640},"scaleFactor":1.0,)"
              R"("oddWidthAllowed":true,"oddHeightAllowed":true,"premultiplied":false,"resizeMethod":10,)"
              R"("model":{"binaryDataSize":0,"executorType":1,"path":""},"modelChannels":3})");
}
