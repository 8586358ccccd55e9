// The object trackers' settings (base, OpenCV, ONNX Runtime) and the tracker's Result.
#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "Proc/Settings/SettingsAnalyzerVideoTrackObjectOnnxRT.h"
#include "Proc/Settings/SettingsAnalyzerVideoTrackObjectOpenCV.h"
#include "TestSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormADescription;
using TrackBase = SettingsAnalyzerVideoTrackObjectBase;
using TrackOpenCV = SettingsAnalyzerVideoTrackObjectOpenCV;
using TrackOnnx = SettingsAnalyzerVideoTrackObjectOnnxRT;
using TrackingInfo = TrackBase::Result::TrackingInfo;
using Model = NeuralNetworkModelInfo;
using Rect = std::array<double, 4>;

static_assert(std::is_base_of_v<IAnalyzerResult, TrackBase::Result>);

namespace {

const std::string RECT = "Rect not in range [0, 1]";
const Rect QUARTER{0.25, 0.25, 0.5, 0.5};

Rect Of(const TrackBase& track)
{
    return {track.GetRect().left, track.GetRect().top, track.GetRect().width, track.GetRect().height};
}

// Begin 33 and a quarter of the frame; the ONNX Runtime tracker with backbone data and a head path.
template <class T>
T Start()
{
    T record;
    record.SetBegin(33);
    record.SetRect({0.25, 0.25, 0.5, 0.5});
    if constexpr (std::is_same_v<T, TrackOnnx>) {
        record.SetBackboneModelBinaryData("DATA");
        record.SetHeadModelPath("h0.onnx");
    }
    return record;
}

} // namespace

TEST(VideoTracking, TheRectangleIsCheckedOnLeftTopAndBothFarEdgesAndDeserializeAlwaysSetsIt)
{
    const double nan = std::nan("");
    const Rect valid[] = {{0.5, 0, 0.5, 1}, {0.5, 0.25, -0.5, 0.5}, {1, 1, 0, 0}, {1, 1, -1, -1}, {0, 0, 1, 1}};
    const Rect invalid[] = {{0.5, 0, 0.6, 1},   {-0.25, 0, 0.5, 0.5}, {1.25, 0, -0.5, 0.5}, {0, -0.25, 0.5, 0.5},
                            {0, 1.5, 0.5, -1},  {0.25, 0, -0.5, 0.5}, {0, 0.5, 0.5, 0.75},  {0, 0.25, 0.5, -0.5},
                            {nan, 0, 0.5, 0.5}, {0, nan, 0.5, 0.5},   {0, 0, nan, 0.5},     {0, 0, 0.5, nan}};
    const auto set = [](TrackBase& track, const Rect& r) { track.SetRect({r[0], r[1], r[2], r[3]}); };
    for (const Rect& rect : valid) {
        TrackBase track;
        set(track, rect);
        EXPECT_EQ(Of(track), rect);
    }
    for (const Rect& rect : invalid) {
        TrackBase track = Start<TrackBase>();
        EXPECT_EQ(FormADescription<SettingsException>([&] { set(track, rect); }), RECT) << testing::PrintToString(rect);
        EXPECT_EQ(Of(track), QUARTER);
    }

    // Deserialize reads the derived class's keys, then the begin, then always the rectangle.
    TrackBase base = Start<TrackBase>();
    // A key the string lacks takes 0, 0, 1 or 1, not the field's value; begin is a whole number, not scaled.
    base.Deserialize("begin=12.9:leftTopY=0.25:height=0.5");
    EXPECT_EQ(base.GetBegin(), 12);
    EXPECT_EQ(Of(base), (Rect{0, 0.25, 1, 0.5}));
    base = Start<TrackBase>();
    EXPECT_EQ(FormADescription<SettingsException>([&] { base.Deserialize("begin=9:leftTopX=0.5"); }), RECT);
    EXPECT_EQ(base.GetBegin(), 9);
    EXPECT_EQ(Of(base), QUARTER);

    TrackOpenCV openCV;
    for (const char* options : {"algorithm=5", "begin=77:algorithm=-1"}) {
        EXPECT_EQ(FormADescription<SettingsException>([&] { openCV.Deserialize(options); }), "Invalid algorithm value");
    }
    EXPECT_EQ(openCV.GetBegin(), 0);
    EXPECT_EQ(FormADescription<SettingsException>([&] { openCV.Deserialize("ALGORITHM=4:leftTopX=2"); }), RECT);
    EXPECT_EQ(openCV.GetAlgorithm(), 4);
    openCV.Deserialize("algorithm=0");
    EXPECT_EQ(openCV.GetAlgorithm(), 0);

    // Backbone file, backbone type, head file, threshold, head type; the types unchecked.
    TrackOnnx onnx = Start<TrackOnnx>();
    const char* ordered = "head_nnm_type=2:confidence_threshold=0.25:head_nnm_file=\"h.onnx\":backbone_nnm_type=-1:"
                          "backbone_nnm_file=\"C:/my models/b=1.onnx\"";
    EXPECT_EQ(FormADescription<AnalyzerException>([&] { onnx.Deserialize(ordered); }),
              "Head model already settled by file path!");
    EXPECT_EQ(onnx.GetBackboneModelInfo(), (Model{"C:/my models/b=1.onnx", "", Model::ExecutorType(4294967295U)}));
    EXPECT_EQ(onnx.GetHeadModelInfo(), (Model{"h0.onnx", "", Model::CPU}));
    EXPECT_EQ(onnx.GetConfidenceThreshold(), 0.5F);
    EXPECT_THROW(onnx.Deserialize("head_nnm_type=-:confidence_threshold=-3"), std::invalid_argument);
    EXPECT_EQ(onnx.GetConfidenceThreshold(), -3.0F);
}

TEST(VideoTracking, OnnxModelSettersLookAtTheOtherMemberOnly)
{
    const auto refused = [](TrackOnnx track, void (*call)(TrackOnnx&)) {
        const TrackOnnx before = track;
        const std::string message = FormADescription<AnalyzerException>([&] { call(track); });
        EXPECT_TRUE(track == before);
        return message;
    };
    const std::string data = " model already settled by binary data!", path = " model already settled by file path!";
    TrackOnnx swapped; // backbone by path, head by data
    swapped.SetBackboneModelPath("b.onnx");
    swapped.SetHeadModelBinaryData("HEAD");
    using T = TrackOnnx&;
    EXPECT_EQ(refused(Start<TrackOnnx>(), [](T t) { t.SetBackboneModelPath("b"); }), "Backbone" + data);
    EXPECT_EQ(refused(Start<TrackOnnx>(), [](T t) { t.SetHeadModelBinaryData(""); }), "Head" + path);
    EXPECT_EQ(refused(swapped, [](T t) { t.SetBackboneModelBinaryData("D"); }), "Backbone" + path);
    EXPECT_EQ(refused(swapped, [](T t) { t.SetHeadModelPath("h"); }), "Head" + data);
    // A path read empties the data through the checked setter, so it cannot replace a path.
    EXPECT_EQ(refused(swapped, [](T t) { t.Deserialize("backbone_nnm_file=\"c\""); }), "Backbone" + path);
    // Its own member a setter replaces or clears.
    swapped.SetBackboneModelPath("");
    swapped.SetHeadModelBinaryData("");
    EXPECT_TRUE(swapped == TrackOnnx());
}

TEST(VideoTracking, OperatorsAndTheResultCompareEveryFieldExactlyButTheConfidenceThreshold)
{
    const auto differs = [](const auto& base, auto change) {
        auto other = base;
        change(other);
        return base != other;
    };
    const TrackOpenCV cv = Start<TrackOpenCV>();
    EXPECT_TRUE(differs(cv, [](auto& t) { t.SetBegin(1); }));
    EXPECT_TRUE(differs(cv, [](auto& t) { t.SetAlgorithm(TrackOpenCV::Algorithm(4)); }));
    const TrackOnnx onnx = Start<TrackOnnx>();
    EXPECT_FALSE(differs(onnx, [](auto& t) { t.SetConfidenceThreshold(0.125F); }));
    EXPECT_TRUE(differs(onnx, [](auto& t) { t.SetBegin(1); }));
    EXPECT_TRUE(differs(onnx, [](auto& t) { t.SetBackboneModelBinaryData("DATB"); }));
    EXPECT_TRUE(differs(onnx, [](auto& t) { t.SetBackboneModelBinaryData(""), t.SetBackboneModelPath("DATA"); }));
    EXPECT_TRUE(differs(onnx, [](auto& t) { t.SetBackboneModelType(Model::AUTO); }));
    EXPECT_TRUE(differs(onnx, [](auto& t) { t.SetHeadModelPath("h1.onnx"); }));
    EXPECT_TRUE(differs(onnx, [](auto& t) { t.SetHeadModelPath(""), t.SetHeadModelBinaryData("h0.onnx"); }));
    EXPECT_TRUE(differs(onnx, [](auto& t) { t.SetHeadModelType(Model::GPU); }));
    for (std::size_t i = 0; i < 4; ++i) { // each number of the rectangle, to the last bit
        Rect rect = QUARTER;
        rect[i] = std::nextafter(rect[i], 0.0);
        const auto change = [&](auto& t) { t.SetRect({rect[0], rect[1], rect[2], rect[3]}); };
        EXPECT_TRUE(differs(cv, change) && differs(onnx, change)) << i;
    }
    // Clones keep every field.
    EXPECT_TRUE(dynamic_cast<const TrackOpenCV&>(*cv.Clone()) == cv);
    EXPECT_TRUE(dynamic_cast<const TrackOnnx&>(*onnx.Clone()) == onnx);

    // The result keeps every rectangle in order and compares them exactly too.
    TrackBase::Result a;
    a.AddTrackingInfo(40, 41, {0.5, 0.5, 0.25, 0.25});
    a.AddTrackingInfo(-9'000'000'000, 9'000'000'000, {-1, 2, 5, -3}); // earlier, and beyond SetRect's range
    a.AddTrackingInfo(40, 41, {0.5, 0.5, 0.25, 0.25});                // a duplicate
    EXPECT_TRUE(a.GetResult()[1] == (TrackingInfo{-9'000'000'000, 9'000'000'000, {-1, 2, 5, -3}}));
    EXPECT_EQ(a.GetResult().size(), 3U);
    TrackBase::Result b = a;
    b.AddTrackingInfo(1, 2, {});
    EXPECT_FALSE(a == b); // a longer one
    const TrackingInfo info{5, 6, {0.25, 0.5, 0.125, 0.375}};
    EXPECT_FALSE(info == (TrackingInfo{4, 6, info.rect}));
    EXPECT_FALSE(info == (TrackingInfo{5, 7, info.rect}));
    EXPECT_FALSE(info == (TrackingInfo{5, 6, {0.25, 0.5, 0.125, 0.3750001}}));
    const TrackingInfo withNan{0, 0, {std::nan(""), 0, 0, 0}};
    EXPECT_FALSE(withNan == withNan);
}
