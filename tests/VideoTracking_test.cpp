// Part 3.2: video object tracking: SettingsAnalyzerVideoTrackObjectBase, its two derived
// trackers (OpenCV, OnnxRT) and the tracker's Result with its TrackingInfo.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

#include "Proc/Settings/IAnalyzerResult.h"
#include "Proc/Settings/SettingsAnalyzerVideoTrackObjectBase.h"
#include "Proc/Settings/SettingsAnalyzerVideoTrackObjectOnnxRT.h"
#include "Proc/Settings/SettingsAnalyzerVideoTrackObjectOpenCV.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormADescription;

using TrackBase = SettingsAnalyzerVideoTrackObjectBase;
using TrackOpenCV = SettingsAnalyzerVideoTrackObjectOpenCV;
using TrackOnnx = SettingsAnalyzerVideoTrackObjectOnnxRT;
using TrackResult = SettingsAnalyzerVideoTrackObjectBase::Result;
using TrackingInfo = SettingsAnalyzerVideoTrackObjectBase::Result::TrackingInfo;
using Executor = NeuralNetworkModelInfo::ExecutorType;

static_assert(std::is_base_of_v<Settings, TrackBase>);
static_assert(std::is_base_of_v<TrackBase, TrackOpenCV>);
static_assert(std::is_base_of_v<TrackBase, TrackOnnx>);
static_assert(std::is_base_of_v<IAnalyzerResult, TrackResult>);
static_assert(sizeof(TrackOpenCV::Algorithm) == 4);
static_assert(std::is_same_v<decltype(TrackingInfo::value0), std::int64_t>);
static_assert(std::is_same_v<decltype(TrackingInfo::value1), std::int64_t>);
static_assert(std::is_same_v<decltype(TrackingInfo::rect), RectRel>);

namespace {

const char* const kRectMessage = "Rect not in range [0, 1]";

void ExpectRect(const RectRel& rect, double left, double top, double width, double height)
{
    EXPECT_EQ(rect.left, left);
    EXPECT_EQ(rect.top, top);
    EXPECT_EQ(rect.width, width);
    EXPECT_EQ(rect.height, height);
}

std::string RectFailure(TrackBase& track, const RectRel& rect)
{
    return FormADescription<SettingsException>([&] { track.SetRect(rect); });
}

} // namespace

// ---------------------------------------------------------------- SettingsAnalyzerVideoTrackObjectBase

TEST(TrackObjectBase, ClassIdentifiersAndTheBaseIdHasNoWordBase)
{
    EXPECT_EQ(TrackBase::CLASS_ID, "SettingsAnalyzerVideoTrackObject");
    EXPECT_EQ(TrackOpenCV::CLASS_ID, "SettingsAnalyzerVideoTrackObjectOpenCV");
    EXPECT_EQ(TrackOnnx::CLASS_ID, "SettingsAnalyzerVideoTrackObjectOnnxRT");
    EXPECT_EQ(&TrackBase().GetClassId(), &TrackBase::CLASS_ID);
    EXPECT_EQ(&TrackOpenCV().GetClassId(), &TrackOpenCV::CLASS_ID);
    EXPECT_EQ(&TrackOnnx().GetClassId(), &TrackOnnx::CLASS_ID);
}

TEST(TrackObjectBase, DefaultsAreTheStartAndTheWholeFrame)
{
    const TrackBase track;
    EXPECT_EQ(track.GetBegin(), 0);
    ExpectRect(track.GetRect(), 0.0, 0.0, 1.0, 1.0);
}

TEST(TrackObjectBase, SetBeginStoresWithoutCheck)
{
    TrackBase track;
    track.SetBegin(-5);
    EXPECT_EQ(track.GetBegin(), -5);
    track.SetBegin(std::numeric_limits<avTime>::max());
    EXPECT_EQ(track.GetBegin(), std::numeric_limits<avTime>::max());
}

TEST(TrackObjectBase, SetRectLeftHalfWidthHalfPassesWidthPointSixFailsNegativeWidthPasses)
{
    TrackBase track;
    track.SetRect({0.5, 0.0, 0.5, 1.0});
    ExpectRect(track.GetRect(), 0.5, 0.0, 0.5, 1.0);
    EXPECT_EQ(RectFailure(track, {0.5, 0.0, 0.6, 1.0}), kRectMessage);
    ExpectRect(track.GetRect(), 0.5, 0.0, 0.5, 1.0);
    track.SetRect({0.5, 0.25, -0.5, 0.5});
    ExpectRect(track.GetRect(), 0.5, 0.25, -0.5, 0.5);
}

TEST(TrackObjectBase, SetRectChecksLeftTopAndBothFarEdgesBoundsIncluded)
{
    TrackBase track;
    track.SetRect({0.25, 0.125, 0.5, 0.5});
    EXPECT_EQ(RectFailure(track, {-0.25, 0.0, 0.5, 0.5}), kRectMessage); // step 1, below
    EXPECT_EQ(RectFailure(track, {1.25, 0.0, -0.5, 0.5}), kRectMessage); // step 1, above
    EXPECT_EQ(RectFailure(track, {0.0, -0.25, 0.5, 0.5}), kRectMessage); // step 2, below
    EXPECT_EQ(RectFailure(track, {0.0, 1.5, 0.5, -1.0}), kRectMessage);  // step 2, above
    EXPECT_EQ(RectFailure(track, {0.5, 0.0, 0.75, 0.5}), kRectMessage);  // step 3, above
    EXPECT_EQ(RectFailure(track, {0.25, 0.0, -0.5, 0.5}), kRectMessage); // step 3, below
    EXPECT_EQ(RectFailure(track, {0.0, 0.5, 0.5, 0.75}), kRectMessage);  // step 4, above
    EXPECT_EQ(RectFailure(track, {0.0, 0.25, 0.5, -0.5}), kRectMessage); // step 4, below
    ExpectRect(track.GetRect(), 0.25, 0.125, 0.5, 0.5);

    track.SetRect({1.0, 1.0, 0.0, 0.0});
    ExpectRect(track.GetRect(), 1.0, 1.0, 0.0, 0.0);
    track.SetRect({1.0, 1.0, -1.0, -1.0});
    ExpectRect(track.GetRect(), 1.0, 1.0, -1.0, -1.0);
    track.SetRect({0.0, 0.0, 1.0, 1.0});
    ExpectRect(track.GetRect(), 0.0, 0.0, 1.0, 1.0);
}

TEST(TrackObjectBase, SetRectWidthAndHeightAreNotTestedByThemselves)
{
    TrackBase track;
    // Negative width and height pass while the far edges stay in 0 to 1.
    track.SetRect({1.0, 0.75, -0.75, -0.5});
    ExpectRect(track.GetRect(), 1.0, 0.75, -0.75, -0.5);
}

TEST(TrackObjectBase, SetRectNotANumberInAnyOfTheFourFails)
{
    const double nan = std::nan("");
    TrackBase track;
    EXPECT_EQ(RectFailure(track, {nan, 0.0, 0.5, 0.5}), kRectMessage);
    EXPECT_EQ(RectFailure(track, {0.0, nan, 0.5, 0.5}), kRectMessage);
    EXPECT_EQ(RectFailure(track, {0.0, 0.0, nan, 0.5}), kRectMessage);
    EXPECT_EQ(RectFailure(track, {0.0, 0.0, 0.5, nan}), kRectMessage);
    ExpectRect(track.GetRect(), 0.0, 0.0, 1.0, 1.0);
}

TEST(TrackObjectBase, DeserializeReadsTheFiveKeysAndStoresBeginUnscaled)
{
    TrackBase track;
    track.Deserialize("height=0.75:width=0.5:LEFTTOPY=0.25:leftTopX=0.125:begin=1500");
    EXPECT_EQ(track.GetBegin(), 1500);
    ExpectRect(track.GetRect(), 0.125, 0.25, 0.5, 0.75);
}

TEST(TrackObjectBase, DeserializeEmptyStringChangesNothing)
{
    TrackBase track;
    track.SetBegin(33);
    track.SetRect({0.25, 0.25, 0.5, 0.5});
    track.Deserialize("");
    EXPECT_EQ(track.GetBegin(), 33);
    ExpectRect(track.GetRect(), 0.25, 0.25, 0.5, 0.5);
}

TEST(TrackObjectBase, DeserializeAnyNonEmptyStringWithoutRectKeysResetsTheRectToTheWholeFrame)
{
    TrackBase track;
    track.SetRect({0.25, 0.25, 0.5, 0.5});
    track.Deserialize("unknown=1");
    ExpectRect(track.GetRect(), 0.0, 0.0, 1.0, 1.0);

    track.SetRect({0.25, 0.25, 0.5, 0.5});
    track.Deserialize("begin=5");
    EXPECT_EQ(track.GetBegin(), 5);
    ExpectRect(track.GetRect(), 0.0, 0.0, 1.0, 1.0);

    track.SetRect({0.25, 0.25, 0.5, 0.5});
    track.Deserialize(":");
    ExpectRect(track.GetRect(), 0.0, 0.0, 1.0, 1.0);
}

TEST(TrackObjectBase, DeserializeMissingRectKeyTakesTheWorkingDefaultNotTheField)
{
    TrackBase track;
    track.SetRect({0.25, 0.125, 0.5, 0.5});
    track.Deserialize("leftTopY=0.5:height=0.25");
    ExpectRect(track.GetRect(), 0.0, 0.5, 1.0, 0.25);
    track.SetRect({0.25, 0.125, 0.5, 0.5});
    track.Deserialize("width=0.5");
    ExpectRect(track.GetRect(), 0.0, 0.0, 0.5, 1.0);
}

TEST(TrackObjectBase, DeserializeBeginIsADecimal32BitInteger)
{
    TrackBase track;
    track.Deserialize("begin=-20");
    EXPECT_EQ(track.GetBegin(), -20);
    track.Deserialize("begin=12.9");
    EXPECT_EQ(track.GetBegin(), 12);
    track.Deserialize("begin=2147483647");
    EXPECT_EQ(track.GetBegin(), 2147483647);

    track.SetRect({0.25, 0.25, 0.5, 0.5});
    EXPECT_THROW(track.Deserialize("begin=2147483648"), std::out_of_range);
    EXPECT_THROW(track.Deserialize("begin=\"5\""), std::invalid_argument);
    EXPECT_THROW(track.Deserialize("begin=-"), std::invalid_argument);
    // begin is read before the rectangle: the failures left the rectangle alone.
    EXPECT_EQ(track.GetBegin(), 2147483647);
    ExpectRect(track.GetRect(), 0.25, 0.25, 0.5, 0.5);
}

TEST(TrackObjectBase, DeserializeRectKeysUseStodOnTheNumericPattern)
{
    TrackBase track;
    track.Deserialize("width=0,5:height=0.5.5");
    ExpectRect(track.GetRect(), 0.0, 0.0, 0.0, 0.5);
    // "1e-1" holds the option "1" under the numeric value pattern.
    track.Deserialize("leftTopX=1e-1:width=0");
    ExpectRect(track.GetRect(), 1.0, 0.0, 0.0, 1.0);
    // An unquoted word is no option: the rectangle still resets.
    track.Deserialize("leftTopX=abc");
    ExpectRect(track.GetRect(), 0.0, 0.0, 1.0, 1.0);
}

TEST(TrackObjectBase, DeserializeRectFailureLeavesBeginAppliedAndTheRectUnchanged)
{
    TrackBase track;
    track.SetRect({0.25, 0.25, 0.5, 0.5});
    EXPECT_EQ(FormADescription<SettingsException>([&] { track.Deserialize("begin=9:leftTopX=0.75:width=0.5"); }),
              kRectMessage);
    EXPECT_EQ(track.GetBegin(), 9);
    ExpectRect(track.GetRect(), 0.25, 0.25, 0.5, 0.5);

    // Without width the working width 1 puts left plus width beyond 1.
    EXPECT_EQ(FormADescription<SettingsException>([&] { track.Deserialize("begin=10:leftTopX=0.5"); }), kRectMessage);
    EXPECT_EQ(track.GetBegin(), 10);
    ExpectRect(track.GetRect(), 0.25, 0.25, 0.5, 0.5);

    EXPECT_THROW(track.Deserialize("begin=11:leftTopY=-"), std::invalid_argument);
    EXPECT_EQ(track.GetBegin(), 11);
    ExpectRect(track.GetRect(), 0.25, 0.25, 0.5, 0.5);
}

TEST(TrackObjectBase, IsEqualToThrowsTheBaseFailureForEachClassAndIsEmptyIsFalse)
{
    const TrackBase base;
    const TrackOpenCV openCV;
    const TrackOnnx onnx;
    EXPECT_EQ(FormADescription<SettingsException>([&] { (void)base.IsEqualTo(base); }),
              "Not implemented comparison for settings CLASS_ID = SettingsAnalyzerVideoTrackObject");
    EXPECT_EQ(FormADescription<SettingsException>([&] { (void)openCV.IsEqualTo(openCV); }),
              "Not implemented comparison for settings CLASS_ID = SettingsAnalyzerVideoTrackObjectOpenCV");
    EXPECT_EQ(FormADescription<SettingsException>([&] { (void)onnx.IsEqualTo(base); }),
              "Not implemented comparison for settings CLASS_ID = SettingsAnalyzerVideoTrackObjectOnnxRT");
    EXPECT_FALSE(base.IsEmpty());
    EXPECT_FALSE(openCV.IsEmpty());
    EXPECT_FALSE(onnx.IsEmpty());
}

TEST(TrackObjectBase, CloneCopiesBeginAndRect)
{
    TrackBase track;
    track.Deserialize("begin=77:leftTopX=0.25:leftTopY=0.5:width=0.5:height=0.25");
    const std::unique_ptr<Settings> clone = track.Clone();
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(clone->GetClassId(), "SettingsAnalyzerVideoTrackObject");
    const auto* copy = dynamic_cast<const TrackBase*>(clone.get());
    ASSERT_NE(copy, nullptr);
    EXPECT_NE(copy, &track);
    EXPECT_EQ(dynamic_cast<const TrackOpenCV*>(clone.get()), nullptr);
    EXPECT_EQ(copy->GetBegin(), 77);
    ExpectRect(copy->GetRect(), 0.25, 0.5, 0.5, 0.25);
}

// ---------------------------------------------------------------- SettingsAnalyzerVideoTrackObjectOpenCV

TEST(TrackObjectOpenCV, DefaultAlgorithmIsZero)
{
    EXPECT_EQ(TrackOpenCV().GetAlgorithm(), 0);
}

TEST(TrackObjectOpenCV, DeserializeAlgorithmFiveOrMinusOneFails)
{
    TrackOpenCV track;
    track.SetAlgorithm(TrackOpenCV::Algorithm(2));
    EXPECT_EQ(FormADescription<SettingsException>([&] { track.Deserialize("algorithm=5"); }),
              "Invalid algorithm value");
    EXPECT_EQ(FormADescription<SettingsException>([&] { track.Deserialize("algorithm=-1"); }),
              "Invalid algorithm value");
    EXPECT_EQ(track.GetAlgorithm(), 2);
    track.Deserialize("algorithm=4");
    EXPECT_EQ(track.GetAlgorithm(), 4);
    track.Deserialize("ALGORITHM=0");
    EXPECT_EQ(track.GetAlgorithm(), 0);
}

TEST(TrackObjectOpenCV, SetAlgorithmStoresAnyValue)
{
    TrackOpenCV track;
    track.SetAlgorithm(TrackOpenCV::Algorithm(7));
    EXPECT_EQ(track.GetAlgorithm(), 7);
    track.SetAlgorithm(TrackOpenCV::Algorithm(-3));
    EXPECT_EQ(track.GetAlgorithm(), -3);
}

TEST(TrackObjectOpenCV, DeserializeAlgorithmUsesStoi)
{
    TrackOpenCV track;
    track.Deserialize("algorithm=3.9");
    EXPECT_EQ(track.GetAlgorithm(), 3);
    EXPECT_THROW(track.Deserialize("algorithm=\"1\""), std::invalid_argument);
    EXPECT_THROW(track.Deserialize("algorithm=99999999999"), std::out_of_range);
    track.Deserialize("algorithm=abc");
    EXPECT_EQ(track.GetAlgorithm(), 3);
}

TEST(TrackObjectOpenCV, DeserializeRunsTheBaseOnTheSameString)
{
    TrackOpenCV track;
    track.SetRect({0.25, 0.25, 0.5, 0.5});
    track.Deserialize("algorithm=1:begin=250:leftTopX=0.5:width=0.25");
    EXPECT_EQ(track.GetAlgorithm(), 1);
    EXPECT_EQ(track.GetBegin(), 250);
    ExpectRect(track.GetRect(), 0.5, 0.0, 0.25, 1.0);

    track.SetRect({0.25, 0.25, 0.5, 0.5});
    track.Deserialize("algorithm=2");
    ExpectRect(track.GetRect(), 0.0, 0.0, 1.0, 1.0);

    track.SetRect({0.25, 0.25, 0.5, 0.5});
    track.Deserialize("");
    EXPECT_EQ(track.GetAlgorithm(), 2);
    ExpectRect(track.GetRect(), 0.25, 0.25, 0.5, 0.5);
}

TEST(TrackObjectOpenCV, DeserializeReadsAlgorithmBeforeTheBaseKeys)
{
    TrackOpenCV track;
    // The derived key is applied, then the base fails.
    EXPECT_EQ(FormADescription<SettingsException>([&] { track.Deserialize("leftTopX=2:algorithm=3"); }), kRectMessage);
    EXPECT_EQ(track.GetAlgorithm(), 3);
    // The derived key fails, so the base never runs.
    track.SetRect({0.25, 0.25, 0.5, 0.5});
    EXPECT_EQ(FormADescription<SettingsException>([&] { track.Deserialize("begin=77:algorithm=9"); }),
              "Invalid algorithm value");
    EXPECT_EQ(track.GetBegin(), 0);
    ExpectRect(track.GetRect(), 0.25, 0.25, 0.5, 0.5);
}

TEST(TrackObjectOpenCV, OperatorsCompareBeginRectAndAlgorithmExactly)
{
    TrackOpenCV a;
    TrackOpenCV b;
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);

    b.SetBegin(1);
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
    b.SetBegin(0);

    const RectRel rects[] = {{0.5, 0.0, 0.5, 1.0}, {0.0, 0.5, 1.0, 0.5}, {0.0, 0.0, 0.5, 1.0}, {0.0, 0.0, 1.0, 0.5}};
    for (const RectRel& rect : rects) {
        b.SetRect(rect);
        EXPECT_FALSE(a == b);
        EXPECT_TRUE(a != b);
    }
    b.SetRect({0.0, 0.0, 1.0, 1.0});
    EXPECT_TRUE(a == b);

    b.SetAlgorithm(TrackOpenCV::Algorithm(4));
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
    a.SetAlgorithm(TrackOpenCV::Algorithm(4));
    EXPECT_TRUE(a == b);

    // Exact: the smallest step of a double counts.
    a.SetRect({0.0, 0.0, std::nextafter(1.0, 0.0), 1.0});
    EXPECT_TRUE(a != b);
}

TEST(TrackObjectOpenCV, CloneCopiesEveryField)
{
    TrackOpenCV track;
    track.Deserialize("algorithm=3:begin=12:leftTopY=0.5:height=0.5");
    const std::unique_ptr<Settings> clone = track.Clone();
    EXPECT_EQ(clone->GetClassId(), "SettingsAnalyzerVideoTrackObjectOpenCV");
    const auto* copy = dynamic_cast<const TrackOpenCV*>(clone.get());
    ASSERT_NE(copy, nullptr);
    EXPECT_NE(copy, &track);
    EXPECT_TRUE(*copy == track);
    EXPECT_EQ(copy->GetAlgorithm(), 3);
    EXPECT_EQ(copy->GetBegin(), 12);
    ExpectRect(copy->GetRect(), 0.0, 0.5, 1.0, 0.5);
}

// ---------------------------------------------------------------- SettingsAnalyzerVideoTrackObjectOnnxRT

TEST(TrackObjectOnnxRT, DefaultsAreNoModelsOnTheCpu)
{
    const TrackOnnx track;
    EXPECT_EQ(track.GetBackboneModelInfo(), (NeuralNetworkModelInfo{"", "", NeuralNetworkModelInfo::CPU}));
    EXPECT_EQ(track.GetHeadModelInfo(), (NeuralNetworkModelInfo{"", "", NeuralNetworkModelInfo::CPU}));
    EXPECT_EQ(track.GetConfidenceThreshold(), 0.5F);
}

TEST(TrackObjectOnnxRT, BinaryDataBlocksSetBackboneModelPathButDeserializeReplacesIt)
{
    TrackOnnx track;
    track.SetBackboneModelBinaryData("ONNX-BYTES");
    EXPECT_EQ(FormADescription<AnalyzerException>([&] { track.SetBackboneModelPath("b.onnx"); }),
              "Backbone model already settled by binary data!");
    EXPECT_EQ(track.GetBackboneModelInfo().path, "");
    EXPECT_EQ(track.GetBackboneModelInfo().binaryData, "ONNX-BYTES");

    track.Deserialize("backbone_nnm_file=\"b.onnx\"");
    EXPECT_EQ(track.GetBackboneModelInfo().path, "b.onnx");
    EXPECT_EQ(track.GetBackboneModelInfo().binaryData, "");

    track.SetHeadModelBinaryData("HEAD-BYTES");
    track.Deserialize("head_nnm_file=\"h.onnx\"");
    EXPECT_EQ(track.GetHeadModelInfo().path, "h.onnx");
    EXPECT_EQ(track.GetHeadModelInfo().binaryData, "");
}

TEST(TrackObjectOnnxRT, EachModelSetterFailsWhenTheOtherMemberIsSet)
{
    TrackOnnx track;
    track.SetBackboneModelPath("b.onnx");
    track.SetHeadModelBinaryData("HEAD");
    EXPECT_EQ(FormADescription<AnalyzerException>([&] { track.SetBackboneModelBinaryData("DATA"); }),
              "Backbone model already settled by file path!");
    EXPECT_EQ(FormADescription<AnalyzerException>([&] { track.SetHeadModelPath("h.onnx"); }),
              "Head model already settled by binary data!");
    EXPECT_EQ(track.GetBackboneModelInfo(), (NeuralNetworkModelInfo{"b.onnx", "", NeuralNetworkModelInfo::CPU}));
    EXPECT_EQ(track.GetHeadModelInfo(), (NeuralNetworkModelInfo{"", "HEAD", NeuralNetworkModelInfo::CPU}));

    TrackOnnx other;
    other.SetBackboneModelBinaryData("DATA");
    other.SetHeadModelPath("h.onnx");
    EXPECT_EQ(FormADescription<AnalyzerException>([&] { other.SetBackboneModelPath("b.onnx"); }),
              "Backbone model already settled by binary data!");
    EXPECT_EQ(FormADescription<AnalyzerException>([&] { other.SetHeadModelBinaryData("HEAD"); }),
              "Head model already settled by file path!");
    EXPECT_EQ(other.GetBackboneModelInfo(), (NeuralNetworkModelInfo{"", "DATA", NeuralNetworkModelInfo::CPU}));
    EXPECT_EQ(other.GetHeadModelInfo(), (NeuralNetworkModelInfo{"h.onnx", "", NeuralNetworkModelInfo::CPU}));
}

TEST(TrackObjectOnnxRT, ClearingWithAnEmptyStringAlsoFailsWhenTheOtherMemberIsSet)
{
    TrackOnnx track;
    track.SetBackboneModelPath("b.onnx");
    track.SetHeadModelBinaryData("HEAD");
    EXPECT_EQ(FormADescription<AnalyzerException>([&] { track.SetBackboneModelBinaryData(""); }),
              "Backbone model already settled by file path!");
    EXPECT_EQ(FormADescription<AnalyzerException>([&] { track.SetHeadModelPath(""); }),
              "Head model already settled by binary data!");
}

TEST(TrackObjectOnnxRT, SettersReplaceTheirOwnMemberAndClearItWhenTheOtherIsEmpty)
{
    TrackOnnx track;
    track.SetBackboneModelPath("a.onnx");
    track.SetBackboneModelPath("b.onnx");
    EXPECT_EQ(track.GetBackboneModelInfo().path, "b.onnx");
    track.SetBackboneModelPath("");
    track.SetBackboneModelBinaryData("DATA");
    EXPECT_EQ(track.GetBackboneModelInfo(), (NeuralNetworkModelInfo{"", "DATA", NeuralNetworkModelInfo::CPU}));
    track.SetHeadModelBinaryData("X");
    track.SetHeadModelBinaryData("");
    track.SetHeadModelPath("h.onnx");
    EXPECT_EQ(track.GetHeadModelInfo(), (NeuralNetworkModelInfo{"h.onnx", "", NeuralNetworkModelInfo::CPU}));
}

TEST(TrackObjectOnnxRT, ModelTypeSettersStoreAnyValue)
{
    TrackOnnx track;
    track.SetBackboneModelType(NeuralNetworkModelInfo::GPU);
    track.SetHeadModelType(static_cast<Executor>(9));
    EXPECT_EQ(track.GetBackboneModelInfo().executorType, NeuralNetworkModelInfo::GPU);
    EXPECT_EQ(static_cast<std::uint32_t>(track.GetHeadModelInfo().executorType), 9U);
    track.SetConfidenceThreshold(-2.5F);
    EXPECT_EQ(track.GetConfidenceThreshold(), -2.5F);
}

TEST(TrackObjectOnnxRT, SecondDeserializeOfAFileForTheSameModelFailsWithFilePathMessage)
{
    TrackOnnx track;
    track.Deserialize("head_nnm_file=\"h1.onnx\"");
    EXPECT_EQ(FormADescription<AnalyzerException>([&] { track.Deserialize("head_nnm_file=\"h2.onnx\""); }),
              "Head model already settled by file path!");
    EXPECT_EQ(track.GetHeadModelInfo().path, "h1.onnx");

    track.Deserialize("backbone_nnm_file=\"b1.onnx\"");
    EXPECT_EQ(FormADescription<AnalyzerException>([&] { track.Deserialize("backbone_nnm_file=\"b2.onnx\""); }),
              "Backbone model already settled by file path!");
    EXPECT_EQ(track.GetBackboneModelInfo().path, "b1.onnx");
}

TEST(TrackObjectOnnxRT, DeserializeFilePathsMustBeQuotedAndLoseTheirQuotes)
{
    TrackOnnx track;
    track.SetBackboneModelBinaryData("DATA");
    // Unquoted: no option at all, so the binary data is not emptied either.
    track.Deserialize("backbone_nnm_file=model.onnx:head_nnm_file=/m/h.onnx");
    EXPECT_EQ(track.GetBackboneModelInfo(), (NeuralNetworkModelInfo{"", "DATA", NeuralNetworkModelInfo::CPU}));
    EXPECT_EQ(track.GetHeadModelInfo().path, "");

    // Quoted text keeps colons, spaces and equals signs.
    track.Deserialize("backbone_nnm_file=\"C:/my models/b=1.onnx\":head_nnm_file=\"h.onnx\"");
    EXPECT_EQ(track.GetBackboneModelInfo(), (NeuralNetworkModelInfo{"C:/my models/b=1.onnx", "", Executor(0)}));
    EXPECT_EQ(track.GetHeadModelInfo().path, "h.onnx");
}

TEST(TrackObjectOnnxRT, DeserializeTypesAndThresholdAreStoredUnchecked)
{
    TrackOnnx track;
    track.Deserialize("backbone_nnm_type=1:head_nnm_type=2:confidence_threshold=0.75");
    EXPECT_EQ(track.GetBackboneModelInfo().executorType, NeuralNetworkModelInfo::GPU);
    EXPECT_EQ(track.GetHeadModelInfo().executorType, NeuralNetworkModelInfo::AUTO);
    EXPECT_EQ(track.GetConfidenceThreshold(), 0.75F);

    track.Deserialize("head_nnm_type=7:backbone_nnm_type=-1:confidence_threshold=-3");
    EXPECT_EQ(static_cast<std::uint32_t>(track.GetHeadModelInfo().executorType), 7U);
    EXPECT_EQ(static_cast<std::uint32_t>(track.GetBackboneModelInfo().executorType), 4294967295U);
    EXPECT_EQ(track.GetConfidenceThreshold(), -3.0F);

    // std::stoi and std::stof read the longest valid prefix.
    track.Deserialize("backbone_nnm_type=2.9:confidence_threshold=1,5");
    EXPECT_EQ(track.GetBackboneModelInfo().executorType, NeuralNetworkModelInfo::AUTO);
    EXPECT_EQ(track.GetConfidenceThreshold(), 1.0F);
    EXPECT_THROW(track.Deserialize("confidence_threshold=\"0.5\""), std::invalid_argument);
    EXPECT_EQ(track.GetConfidenceThreshold(), 1.0F);
}

TEST(TrackObjectOnnxRT, DeserializeAppliesKeysInTheOrderOfThePart)
{
    // Order 1 and 2 come before 3: a failing head file leaves the backbone applied, and
    // 4 and 5 (threshold, head type) unapplied.
    TrackOnnx track;
    track.SetHeadModelPath("h0.onnx");
    EXPECT_EQ(FormADescription<AnalyzerException>([&] {
                  track.Deserialize("head_nnm_type=2:confidence_threshold=0.25:head_nnm_file=\"h.onnx\":"
                                    "backbone_nnm_type=1:backbone_nnm_file=\"b.onnx\"");
              }),
              "Head model already settled by file path!");
    EXPECT_EQ(track.GetBackboneModelInfo(), (NeuralNetworkModelInfo{"b.onnx", "", NeuralNetworkModelInfo::GPU}));
    EXPECT_EQ(track.GetHeadModelInfo(), (NeuralNetworkModelInfo{"h0.onnx", "", NeuralNetworkModelInfo::CPU}));
    EXPECT_EQ(track.GetConfidenceThreshold(), 0.5F);

    // Order 4 comes before 5: the threshold is applied when the head type fails.
    TrackOnnx second;
    EXPECT_THROW(second.Deserialize("head_nnm_type=-:confidence_threshold=0.25"), std::invalid_argument);
    EXPECT_EQ(second.GetConfidenceThreshold(), 0.25F);

    // Order 1 comes before 2, and 2 before 3.
    TrackOnnx third;
    EXPECT_THROW(third.Deserialize("head_nnm_file=\"h.onnx\":backbone_nnm_type=-:backbone_nnm_file=\"b.onnx\""),
                 std::invalid_argument);
    EXPECT_EQ(third.GetBackboneModelInfo().path, "b.onnx");
    EXPECT_EQ(third.GetHeadModelInfo().path, "");

    // Order 3 comes before 4.
    TrackOnnx fourth;
    fourth.SetHeadModelPath("h0.onnx");
    EXPECT_THROW(fourth.Deserialize("confidence_threshold=0.125:head_nnm_file=\"h.onnx\""), AnalyzerException);
    EXPECT_EQ(fourth.GetConfidenceThreshold(), 0.5F);
}

TEST(TrackObjectOnnxRT, DeserializeRunsTheBaseAfterTheDerivedKeys)
{
    TrackOnnx track;
    track.SetRect({0.25, 0.25, 0.5, 0.5});
    track.Deserialize("confidence_threshold=0.625");
    ExpectRect(track.GetRect(), 0.0, 0.0, 1.0, 1.0);
    track.Deserialize("begin=40:leftTopX=0.5:width=0.5:head_nnm_type=1");
    EXPECT_EQ(track.GetBegin(), 40);
    ExpectRect(track.GetRect(), 0.5, 0.0, 0.5, 1.0);
    EXPECT_EQ(track.GetHeadModelInfo().executorType, NeuralNetworkModelInfo::GPU);

    // The derived keys are applied, then the base fails.
    EXPECT_EQ(FormADescription<SettingsException>(
                  [&] { track.Deserialize("leftTopX=1.5:confidence_threshold=0.25:begin=50"); }),
              kRectMessage);
    EXPECT_EQ(track.GetConfidenceThreshold(), 0.25F);
    EXPECT_EQ(track.GetBegin(), 50);
    ExpectRect(track.GetRect(), 0.5, 0.0, 0.5, 1.0);

    // A derived key fails, so the base never runs.
    track.SetBackboneModelPath("b.onnx");
    EXPECT_EQ(FormADescription<AnalyzerException>([&] { track.Deserialize("begin=42:backbone_nnm_file=\"x\""); }),
              "Backbone model already settled by file path!");
    EXPECT_EQ(track.GetBegin(), 50);
    ExpectRect(track.GetRect(), 0.5, 0.0, 0.5, 1.0);
}

TEST(TrackObjectOnnxRT, DeserializeEmptyStringChangesNothing)
{
    TrackOnnx track;
    track.SetHeadModelPath("h.onnx");
    track.SetRect({0.25, 0.25, 0.5, 0.5});
    track.Deserialize("");
    EXPECT_EQ(track.GetHeadModelInfo().path, "h.onnx");
    ExpectRect(track.GetRect(), 0.25, 0.25, 0.5, 0.5);
}

TEST(TrackObjectOnnxRT, RecordsThatDifferOnlyInConfidenceThresholdCompareEqual)
{
    TrackOnnx a;
    TrackOnnx b;
    a.SetConfidenceThreshold(0.1F);
    b.SetConfidenceThreshold(0.9F);
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
}

TEST(TrackObjectOnnxRT, OperatorsCompareBeginRectAndBothModelsExactly)
{
    const auto differs = [](auto change) {
        TrackOnnx a;
        a.SetBackboneModelPath("b.onnx");
        a.SetHeadModelBinaryData("HEAD");
        TrackOnnx b = a;
        EXPECT_TRUE(a == b);
        change(b);
        return !(a == b) && (a != b);
    };
    EXPECT_TRUE(differs([](TrackOnnx& t) { t.SetBegin(1); }));
    EXPECT_TRUE(differs([](TrackOnnx& t) { t.SetRect({0.5, 0.0, 0.5, 1.0}); }));
    EXPECT_TRUE(differs([](TrackOnnx& t) { t.SetRect({0.0, 0.5, 1.0, 0.5}); }));
    EXPECT_TRUE(differs([](TrackOnnx& t) { t.SetRect({0.0, 0.0, 0.5, 1.0}); }));
    EXPECT_TRUE(differs([](TrackOnnx& t) { t.SetRect({0.0, 0.0, 1.0, 0.5}); }));
    EXPECT_TRUE(differs([](TrackOnnx& t) { t.SetBackboneModelPath("c.onnx"); }));
    EXPECT_TRUE(differs([](TrackOnnx& t) {
        t.SetBackboneModelPath("");
        t.SetBackboneModelBinaryData("b.onnx");
    }));
    EXPECT_TRUE(differs([](TrackOnnx& t) { t.SetBackboneModelType(NeuralNetworkModelInfo::AUTO); }));
    EXPECT_TRUE(differs([](TrackOnnx& t) { t.SetHeadModelBinaryData("HEAD2"); }));
    EXPECT_TRUE(differs([](TrackOnnx& t) {
        t.SetHeadModelBinaryData("");
        t.SetHeadModelPath("HEAD");
    }));
    EXPECT_TRUE(differs([](TrackOnnx& t) { t.SetHeadModelType(NeuralNetworkModelInfo::GPU); }));
    EXPECT_FALSE(differs([](TrackOnnx& t) { t.SetConfidenceThreshold(0.0F); }));
}

TEST(TrackObjectOnnxRT, CloneCopiesEveryFieldStringsIncluded)
{
    TrackOnnx track;
    track.SetBackboneModelBinaryData(std::string("\x00\x01ONNX", 6));
    track.SetHeadModelPath("h.onnx");
    track.Deserialize("backbone_nnm_type=2:head_nnm_type=1:confidence_threshold=0.375:begin=9:height=0.5");
    const std::unique_ptr<Settings> clone = track.Clone();
    EXPECT_EQ(clone->GetClassId(), "SettingsAnalyzerVideoTrackObjectOnnxRT");
    const auto* copy = dynamic_cast<const TrackOnnx*>(clone.get());
    ASSERT_NE(copy, nullptr);
    EXPECT_NE(copy, &track);
    EXPECT_EQ(copy->GetBackboneModelInfo(),
              (NeuralNetworkModelInfo{"", std::string("\x00\x01ONNX", 6), NeuralNetworkModelInfo::AUTO}));
    EXPECT_EQ(copy->GetHeadModelInfo(), (NeuralNetworkModelInfo{"h.onnx", "", NeuralNetworkModelInfo::GPU}));
    EXPECT_EQ(copy->GetConfidenceThreshold(), 0.375F);
    EXPECT_EQ(copy->GetBegin(), 9);
    ExpectRect(copy->GetRect(), 0.0, 0.0, 1.0, 0.5);
}

// ---------------------------------------------------------------- Result and TrackingInfo

TEST(TrackResult, AddTrackingInfoAppendsInInsertionOrderWithoutAnyCheck)
{
    TrackResult result;
    EXPECT_TRUE(result.GetResult().empty());
    result.AddTrackingInfo(40, 41, {0.5, 0.5, 0.25, 0.25});
    result.AddTrackingInfo(-9000000000LL, 9000000000LL, {-1.0, 2.0, 5.0, -3.0}); // beyond SetRect's range
    result.AddTrackingInfo(10, 11, {0.0, 0.0, 1.0, 1.0});                        // earlier, not sorted
    result.AddTrackingInfo(40, 41, {0.5, 0.5, 0.25, 0.25});                      // a duplicate, kept
    const auto& infos = result.GetResult();
    ASSERT_EQ(infos.size(), 4U);
    EXPECT_EQ(infos[0].value0, 40);
    EXPECT_EQ(infos[0].value1, 41);
    ExpectRect(infos[0].rect, 0.5, 0.5, 0.25, 0.25);
    EXPECT_EQ(infos[1].value0, -9000000000LL);
    EXPECT_EQ(infos[1].value1, 9000000000LL);
    ExpectRect(infos[1].rect, -1.0, 2.0, 5.0, -3.0);
    EXPECT_EQ(infos[2].value0, 10);
    EXPECT_EQ(infos[2].value1, 11);
    ExpectRect(infos[2].rect, 0.0, 0.0, 1.0, 1.0);
    EXPECT_TRUE(infos[3] == infos[0]);
}

TEST(TrackResult, ResultsWithTheSameElementsInAnotherOrderAreUnequal)
{
    TrackResult a;
    TrackResult b;
    a.AddTrackingInfo(1, 2, {0.0, 0.0, 0.5, 0.5});
    a.AddTrackingInfo(3, 4, {0.5, 0.5, 0.5, 0.5});
    b.AddTrackingInfo(3, 4, {0.5, 0.5, 0.5, 0.5});
    b.AddTrackingInfo(1, 2, {0.0, 0.0, 0.5, 0.5});
    EXPECT_FALSE(a == b);

    TrackResult c;
    c.AddTrackingInfo(1, 2, {0.0, 0.0, 0.5, 0.5});
    c.AddTrackingInfo(3, 4, {0.5, 0.5, 0.5, 0.5});
    EXPECT_TRUE(a == c);
}

TEST(TrackResult, EqualityNeedsTheSameLengthAndTwoEmptyResultsAreEqual)
{
    TrackResult a;
    TrackResult b;
    EXPECT_TRUE(a == b);
    a.AddTrackingInfo(1, 2, {0.0, 0.0, 0.5, 0.5});
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(b == a);
    b.AddTrackingInfo(1, 2, {0.0, 0.0, 0.5, 0.5});
    b.AddTrackingInfo(1, 2, {0.0, 0.0, 0.5, 0.5});
    EXPECT_FALSE(a == b);
}

TEST(TrackResult, TrackingInfoComparesEveryMemberExactly)
{
    const TrackingInfo base{5, 6, {0.25, 0.5, 0.125, 0.375}};
    EXPECT_TRUE(base == (TrackingInfo{5, 6, {0.25, 0.5, 0.125, 0.375}}));
    EXPECT_FALSE(base == (TrackingInfo{4, 6, {0.25, 0.5, 0.125, 0.375}}));
    EXPECT_FALSE(base == (TrackingInfo{5, 7, {0.25, 0.5, 0.125, 0.375}}));
    EXPECT_FALSE(base == (TrackingInfo{5, 6, {std::nextafter(0.25, 1.0), 0.5, 0.125, 0.375}}));
    EXPECT_FALSE(base == (TrackingInfo{5, 6, {0.25, 0.5000001, 0.125, 0.375}}));
    EXPECT_FALSE(base == (TrackingInfo{5, 6, {0.25, 0.5, 0.12500001, 0.375}}));
    EXPECT_FALSE(base == (TrackingInfo{5, 6, {0.25, 0.5, 0.125, 0.3750001}}));
    // The double ==: zero equals negative zero, and not-a-number equals nothing.
    EXPECT_TRUE((TrackingInfo{0, 0, {0.0, 0.0, 0.0, 0.0}}) == (TrackingInfo{0, 0, {-0.0, 0.0, 0.0, 0.0}}));
    const TrackingInfo withNan{0, 0, {std::nan(""), 0.0, 0.0, 0.0}};
    EXPECT_FALSE(withNan == withNan);
}

TEST(TrackResult, IsHeldThroughTheAnalyzerInterfaceAndSharedAsConstant)
{
    auto result = std::make_shared<TrackResult>();
    result->AddTrackingInfo(1, 2, {0.0, 0.0, 1.0, 1.0});
    const std::shared_ptr<const TrackResult> shared = result;
    const std::shared_ptr<IAnalyzerResult> asInterface = result;
    EXPECT_EQ(shared.use_count(), 3);
    const auto* back = dynamic_cast<const TrackResult*>(asInterface.get());
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(back->GetResult().size(), 1U);
    const TrackResult copy = *shared;
    EXPECT_TRUE(copy == *result);
}

// ---------------------------------------------------------------- catalogue

TEST(TrackCatalogue, FieldsOfTheThreeClassesReadInOrder)
{
    using Zorvan::SettingsCatalog;
    const auto* base = SettingsCatalog::Find("SettingsAnalyzerVideoTrackObject");
    const auto* openCV = SettingsCatalog::Find("SettingsAnalyzerVideoTrackObjectOpenCV");
    const auto* onnx = SettingsCatalog::Find("SettingsAnalyzerVideoTrackObjectOnnxRT");
    ASSERT_NE(base, nullptr);
    ASSERT_NE(openCV, nullptr);
    ASSERT_NE(onnx, nullptr);

    TrackBase b;
    b.Deserialize("begin=7:leftTopX=0.25:width=0.5");
    EXPECT_EQ(base->FieldsToJson(b).dump(), R"({"begin":7,"rect":{"height":1.0,"left":0.25,"top":0.0,"width":0.5}})");

    TrackOpenCV o;
    o.Deserialize("algorithm=3");
    EXPECT_EQ(openCV->FieldsToJson(o).dump(),
              R"({"begin":0,"rect":{"height":1.0,"left":0.0,"top":0.0,"width":1.0},"algorithm":3})");

    TrackOnnx n;
    n.SetBackboneModelBinaryData("1234");
    n.Deserialize("head_nnm_file=\"h.onnx\":head_nnm_type=1:confidence_threshold=0.25");
    EXPECT_EQ(onnx->FieldsToJson(n).dump(), R"({"begin":0,"rect":{"height":1.0,"left":0.0,"top":0.0,"width":1.0},)"
                                            R"("backboneModelInfo":{"binaryDataSize":4,"executorType":0,"path":""},)"
                                            R"("headModelInfo":{"binaryDataSize":0,"executorType":1,"path":"h.onnx"},)"
                                            R"("confidenceThreshold":0.25})");
}
