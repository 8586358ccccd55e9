// Shader templates (effect and transition alike), human matting, the displacement map and the
// aim overlay. Records are read back through the catalogue's fields; 0.1 read as a float prints
// 0.10000000149011612.
#include <gtest/gtest.h>

#include <glog/logging.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <tuple>
#include <type_traits>
#include <typeinfo>
#include <vector>

#include "Proc/Settings/SettingsEffectAim.h"
#include "Proc/Settings/SettingsEffectDisplacementMap.h"
#include "Proc/Settings/SettingsEffectHumanMatting.h"
#include "Proc/Settings/SettingsEffectTemplateZES.h"
#include "Proc/Settings/SettingsTransitionTemplateZES.h"
#include "RecordSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::CheckParses;
using ZorvanTest::Outcome;
using ZorvanTest::Values;

namespace {

// Collects the warnings glog is given while it lives.
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

const std::string kInvalid = typeid(std::invalid_argument).name();
const std::string kMissing = "/no/such/dir/shader.zes";

template <class R>
class ShaderTemplates : public testing::Test {
};
using Twins = testing::Types<SettingsEffectTemplateZES, SettingsTransitionTemplateZES>;
TYPED_TEST_SUITE(ShaderTemplates, Twins);

} // namespace

TYPED_TEST(ShaderTemplates, UnknownVersionsFallBackAndIntensityIsClampedUnlessNotSet)
{
    const auto image = std::make_shared<const ImageHandler>();
    EXPECT_EQ(Values(TypeParam()), R"([0,"",null,-1.0])");
    EXPECT_EQ(Values(TypeParam(7, "x", image, 2.0F)), R"([0,"x",{"height":0,"width":0},1.0])");
    // {given, stored}: only exactly -1 means "not set".
    const std::vector<std::pair<float, float>> intensities{
        {-1.0F, -1.0F}, {-0.5F, 0.0F}, {std::nextafter(-1.0F, 0.0F), 0.0F},
        {-2.0F, 0.0F},  {2.0F, 1.0F},  {0.25F, 0.25F}};
    TypeParam record;
    record.SetVersion(7);
    EXPECT_EQ(record.GetVersion(), 0);
    for (const auto& [given, stored] : intensities) {
        record.SetIntensity(given);
        EXPECT_EQ(record.GetIntensity(), stored) << given;
    }
}

TYPED_TEST(ShaderTemplates, ShaderFileReplacesTextAndAMissingOneIsOnlyLogged)
{
    const std::string path = testing::TempDir() + "shader-" + typeid(TypeParam).name() + ".zes";
    std::ofstream(path, std::ios::binary) << std::string("x\0y", 3);
    const TypeParam start(0, "old", nullptr, 0.5F);
    LogCollector log;
    CheckParses<TypeParam>(start, {
                                      {"v=7:intensity=-1", "", R"({"intensity":-1.0})"},
                                      {R"(s="a=1:b":intensity=-0.5)", "", R"({"shader":"a=1:b","intensity":0.0})"},
                                      {"sf=\"" + path + "\":s=\"text\"", "", R"({"shader":"x\u0000y"})"},
                                      {"s=\"text\":sf=\"" + kMissing + "\"", "", R"({"shader":"text"})"},
                                      {"v=-", kInvalid, "{}"},
                                  });
    EXPECT_EQ(log.lines, std::vector<std::string>{"W Can't load shader from " + kMissing});
    std::remove(path.c_str());
}

TYPED_TEST(ShaderTemplates, ImagesCompareByPointerAndTheTwinsDoNotMix)
{
    using Other = std::conditional_t<std::is_same_v<TypeParam, SettingsEffectTemplateZES>,
                                     SettingsTransitionTemplateZES, SettingsEffectTemplateZES>;
    const auto image = std::make_shared<const ImageHandler>(1, 1, std::vector<std::uint8_t>{7});
    const auto sameContent = std::make_shared<const ImageHandler>(1, 1, std::vector<std::uint8_t>{7});
    const TypeParam record(0, "s", image, 0.5F);
    const std::vector<std::pair<TypeParam, bool>> cases{
        {TypeParam(0, "s", image, 0.5F), true},      {TypeParam(0, "s", sameContent, 0.5F), false},
        {TypeParam(0, "s", nullptr, 0.5F), false},   {TypeParam(0, "t", image, 0.5F), false},
        {TypeParam(0, "s", image, 0.50001F), false},
    };
    for (const auto& [other, equal] : cases) {
        EXPECT_EQ(record.IsEqualTo(other), equal) << Values(other);
    }
    EXPECT_THROW((void)record.IsEqualTo(Other(0, "s", image, 0.5F)), std::bad_cast);
    EXPECT_FALSE(TypeParam().IsEmpty());
}

TEST(HumanMatting, KeysReadOneByOneTakeUnquotedText)
{
    CheckParses<SettingsEffectHumanMatting>(
        {}, {
                {"nnm_file=/m/a b.onnx:nnm_type=2:downscaling_frame_size=512", "",
                 R"({"modelInfo":{"path":"/m/a b.onnx","executorType":2},"downscalingFrameSize":512})"},
                {R"(nnm_file="c:d":NNM_TYPE=000001)", "", R"({"modelInfo":{"path":"c:d","executorType":1}})"},
                {"downscaling_frame_size=7:nnm_type=-1", kInvalid, "{}"},
            });
}

TEST(DisplacementMap, SettersAndKeysRefuseShiftsWithDifferentTexts)
{
    using D = SettingsEffectDisplacementMap;
    const float above = std::nextafter(1.0F, 2.0F);
    // {call, outcome, values afterwards} from x 0.5, y 0.5, intensity 1.
    const std::vector<std::tuple<std::function<void(D&)>, std::string, const char*>> cases{
        {[](D& d) { d.SetXShift(-1.0F), d.SetYShift(1.0F); }, "", "[-1.0,1.0,1]"},
        {[&](D& d) { d.SetXShift(above); }, "EffectException: Invalid value for X shift", "[0.5,0.5,1]"},
        {[&](D& d) { d.SetYShift(-above); }, "EffectException: Invalid value for Yshift", "[0.5,0.5,1]"},
        {[](D& d) { d.SetYShift(NAN); }, "EffectException: Invalid value for Yshift", "[0.5,0.5,1]"},
        {[](D& d) { d.Deserialize("y-shift=1.5"); }, "EffectException: Invalid value", "[0.5,0.5,1]"},
        {[](D& d) { d.Deserialize("intensity=3:y-shift=2:x-shift=-1"); }, "EffectException: Invalid value",
         "[-1.0,0.5,1]"},
        {[](D& d) { d.Deserialize("intensity=-1:x-shift=0.1"); }, "", "[0.10000000149011612,0.5,4294967295]"},
    };
    for (const auto& [call, outcome, values] : cases) {
        D record;
        record.SetXShift(0.5F);
        record.SetYShift(0.5F);
        EXPECT_EQ(Outcome([&] { call(record); }), outcome);
        EXPECT_EQ(Values(record), values) << outcome;
    }
    D record;
    EXPECT_TRUE(record.IsEmpty());
    record.SetIntensity(0);
    EXPECT_FALSE(record.IsEmpty()); // an intensity of 1, not 0, leaves the frame alone
}

TEST(Aim, TypeIsZeroOrOneAndEmptinessReadsTheTrackedBoxes)
{
    const std::string refused = "SettingsException: Invalid type value";
    CheckParses<SettingsEffectAim>({}, {
                                           {"radius=-4:crossLen=3:thickness=-2:type=1", "",
                                            R"({"type":1,"thickness":-2.0,"crossLen":3.0,"radius":-4.0})"},
                                           {"radius=4:type=2", refused, "{}"},
                                           {"type=-1", refused, "{}"},
                                       });
    SettingsEffectAim aim;
    EXPECT_TRUE(aim.IsEmpty());
    auto boxes = std::make_shared<SettingsEffectAim::Result>();
    boxes->AddTrackingInfo(0, 1, {0.0, 0.0, 1.0, 1.0});
    aim.SetBBoxStream(boxes);
    EXPECT_FALSE(aim.IsEmpty());
}
