// Stream filters that keep a few values for their stages: volume, bit-stream packaging,
// border blur, trimming, frame rate, looping and neural frame generation.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstdint>
#include <string>
#include <typeinfo>
#include <utility>

#include "Proc/Settings/SettingsFilterAudioVolume.h"
#include "Proc/Settings/SettingsFilterBitStream.h"
#include "Proc/Settings/SettingsFilterBlurTransparentBorder.h"
#include "Proc/Settings/SettingsFilterDurationTrimmer.h"
#include "Proc/Settings/SettingsFilterFPSDoubler.h"
#include "Proc/Settings/SettingsFilterFrameRate.h"
#include "Proc/Settings/SettingsFilterIntroLoopOutro.h"
#include "Proc/Settings/SettingsFilterLoop.h"
#include "Proc/Settings/SettingsFilterSlowMotion.h"
#include "imported/ConfInt.h"

using namespace Zorvan::Proc;
using Rational = SettingsFilterFrameRate::Rational;

TEST(StreamFilters, MatrixSizeKeepsPositiveOddAndAddsOneToEveryOther)
{
    const struct {
        int given;
        int stored;
    } cases[] = {{4, 5}, {5, 5}, {1, 1}, {0, 1}, {-3, -2}, {-4, -3}, {INT_MAX, INT_MAX}, {INT_MIN, INT_MIN + 1}};
    for (const auto& c : cases) {
        SettingsFilterBlurTransparentBorder set;
        set.SetMatrixSize(c.given);
        EXPECT_EQ(set.GetMatrixSize(), c.stored) << c.given;
        EXPECT_EQ(SettingsFilterBlurTransparentBorder(c.given).GetMatrixSize(), c.stored) << c.given;
    }
}

TEST(StreamFilters, TrimmerTakesOnlyDurationsFromOneMicrosecondToThirtyDays)
{
    constexpr std::int64_t thirtyDays = 2592000000000;
    const struct {
        std::int64_t given;
        std::int64_t stored;
    } cases[] = {{1, 1},           {thirtyDays, thirtyDays},     {0, thirtyDays},
                 {-1, thirtyDays}, {thirtyDays + 1, thirtyDays}, {INT64_MIN, thirtyDays}};
    for (const auto& c : cases) {
        SettingsFilterDurationTrimmer set;
        set.SetDuration(c.given);
        EXPECT_EQ(set.GetDuration(), c.stored) << c.given;
        const SettingsFilterDurationTrimmer built(c.given, true);
        EXPECT_EQ(built.GetDuration(), c.stored) << c.given;
    }
    SettingsFilterDurationTrimmer kept(5, false);
    kept.SetDuration(0);
    EXPECT_EQ(kept.GetDuration(), 5);
}

TEST(StreamFilters, BitStreamFormatFollowsCodecAndFlag)
{
    using Format = SettingsFilterBitStream::StreamFormat;
    using Video = Zorvan::Conf::IFormatCodecVideo;
    using Audio = Zorvan::Conf::IFormatCodecAudio;
    const struct {
        std::string codec;
        bool flag;
        std::uint32_t format;
    } cases[] = {{Video::CODEC_ID_H264, true, 1},
                 {Video::CODEC_ID_H264, false, 0},
                 {Video::CODEC_ID_H265, true, 1},
                 {Audio::CODEC_ID_AAC, true, 2},
                 {Audio::CODEC_ID_AAC, false, 3},
                 {Audio::CODEC_ID_AAC_LATM, false, 3},
                 {Video::CODEC_ID_VP9, true, 4},
                 {"H264", true, 4},
                 {"", false, 4}};
    for (const auto& c : cases) {
        const SettingsFilterBitStream built(c.codec, c.flag);
        EXPECT_EQ(static_cast<std::uint32_t>(built.GetStreamFormatNeeded()), c.format) << c.codec << c.flag;
    }
    EXPECT_EQ(SettingsFilterBitStream().GetStreamFormatNeeded(), Format::Other);
    EXPECT_TRUE(SettingsFilterBitStream(Format::Other).IsEqualTo(SettingsFilterBitStream("opus", true)));
    EXPECT_FALSE(SettingsFilterBitStream(Format::VideoFlagOn).IsEqualTo(SettingsFilterBitStream()));
}

TEST(StreamFilters, VolumeGainIsLinearAndComparesWithinOneMillionth)
{
    const struct {
        double left;
        double right;
        bool sameBoolean;
        bool equal;
    } cases[] = {{0.0, 0.999e-6, true, true},   {0.0, 1e-6, true, false}, {2.0, 2.0000009, true, true},
                 {2.0, 2.0000011, true, false}, {1.0, 1.0, false, false}, {NAN, NAN, true, false}};
    for (const auto& c : cases) {
        SettingsFilterAudioVolume left;
        SettingsFilterAudioVolume right;
        left.SetLinearGain(c.left);
        right.SetLinearGain(c.right);
        right.SetBoolean(!c.sameBoolean);
        EXPECT_EQ(left.IsEqualTo(right), c.equal) << c.left << " " << c.right;
    }
    EXPECT_THROW((void)SettingsFilterAudioVolume().IsEqualTo(SettingsFilterLoop()), std::bad_cast);
    const std::pair<double, double> decibelsToGain[] = {{0.0, 1.0}, {20.0, 10.0}, {60.0, 1000.0}, {-INFINITY, 0.0}};
    for (const auto& [db, gain] : decibelsToGain) {
        SettingsFilterAudioVolume volume;
        volume.SetVolumeDb(db);
        EXPECT_EQ(volume.GetLinearGain(), gain) << db;
    }
}

TEST(StreamFilters, FrameRateComparesTheRateAlone)
{
    EXPECT_EQ(SettingsFilterFrameRate::IMPL_DEFAULT, "zorvan");
    EXPECT_EQ(SettingsFilterFrameRate::IMPL_DEFAULT, ImplNames::ZORVAN);
    EXPECT_EQ(SettingsFilterFrameRate::IMPL_FFMPEG, "ffmpeg");
    const SettingsFilterFrameRate defaults;
    EXPECT_EQ(defaults.GetFrameRate().numerator(), 0);
    EXPECT_EQ(defaults.GetFrameRate().denominator(), 1);
    EXPECT_EQ(defaults.GetImplementationName(), "framerate");
    EXPECT_EQ(SettingsFilterFrameRate(Rational(25)).GetImplementationName(), "framerate");

    const SettingsFilterFrameRate motion(Rational(60, 2), SettingsFilterFrameRate::IMPL_FFMPEG_MOTION);
    EXPECT_TRUE(motion.IsEqualTo(SettingsFilterFrameRate(Rational(30, 1), "ADJUST_IMPL")));
    EXPECT_FALSE(motion.IsEqualTo(SettingsFilterFrameRate(Rational(30000, 1001))));
    EXPECT_FALSE(motion.IsEqualTo(defaults));
}

TEST(StreamFilters, LoopsCompareEveryField)
{
    const auto make = [](avTime duration, avTime intro, avTime outro, unsigned int count) {
        SettingsFilterIntroLoopOutro record;
        record.SetDuration(duration);
        record.SetIntro(intro);
        record.SetOutro(outro);
        record.SetLoopMinCount(count);
        return record;
    };
    const auto base = make(10, 1, 2, 3);
    EXPECT_TRUE(base == make(10, 1, 2, 3));
    EXPECT_FALSE(base == make(11, 1, 2, 3));
    EXPECT_FALSE(base == make(10, 0, 2, 3));
    EXPECT_FALSE(base == make(10, 1, 0, 3));
    EXPECT_FALSE(base == make(10, 1, 2, 0));
    SettingsFilterLoop loop;
    loop.SetDuration(-5);
    EXPECT_FALSE(loop == SettingsFilterLoop());
}

TEST(StreamFilters, FrameGeneratorReadsModelAndResizeKeys)
{
    SettingsFilterSlowMotion slow;
    slow.SetModelBinaryData("weights");
    slow.Deserialize(R"(nnm_file="/models/rife.onnx":nnm_type=2:resize_method=9:resize_percents=300)");
    EXPECT_EQ(slow.GetModelInfo().path, "/models/rife.onnx");
    EXPECT_EQ(slow.GetModelInfo().binaryData, "");
    EXPECT_EQ(slow.GetModelInfo().executorType, NeuralNetworkModelInfo::AUTO);
    EXPECT_EQ(slow.GetResizeMethod(), SettingsResizer::ResizeMethods::Lanczos);
    EXPECT_EQ(slow.GetResizePercents(), 44); // 300 keeps its low byte

    SettingsFilterFPSDoubler doubler;
    doubler.Deserialize("resize_percents=-1:nnm_type=-1:nnm_file=12");
    EXPECT_EQ(doubler.GetResizePercents(), 255);
    EXPECT_EQ(static_cast<std::uint32_t>(doubler.GetModelInfo().executorType), 4294967295U);
    EXPECT_EQ(doubler.GetModelInfo().path, "12");
    EXPECT_THROW(doubler.Deserialize(R"(nnm_file="a":resize_method=99999999999:resize_percents=7)"), std::out_of_range);
    EXPECT_EQ(doubler.GetModelInfo().path, "a");
    EXPECT_EQ(doubler.GetResizePercents(), 255);
}

TEST(StreamFilters, FrameGeneratorsCompareEveryField)
{
    using Change = void (*)(SettingsFilterFPSDoubler&);
    const Change changes[] = {
        [](SettingsFilterFPSDoubler& r) { r.SetModelPath("m"); },
        [](SettingsFilterFPSDoubler& r) { r.SetModelBinaryData("m"); },
        [](SettingsFilterFPSDoubler& r) { r.SetModelType(NeuralNetworkModelInfo::GPU); },
        [](SettingsFilterFPSDoubler& r) { r.SetResizeMethod(SettingsResizer::ResizeMethods::Area); },
        [](SettingsFilterFPSDoubler& r) { r.SetResizePercents(50); },
    };
    const SettingsFilterFPSDoubler base;
    for (const Change change : changes) {
        SettingsFilterFPSDoubler changed;
        change(changed);
        EXPECT_FALSE(base.IsEqualTo(changed));
        EXPECT_TRUE(changed.IsEqualTo(*changed.Clone()));
    }
    EXPECT_THROW((void)base.IsEqualTo(SettingsFilterSlowMotion()), std::bad_cast);
}
