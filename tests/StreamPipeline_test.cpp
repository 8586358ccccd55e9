// The records a stream passes on its way in: parser, decoder, colour conversion,
// deinterlacing, pixel format conversion.
#include <gtest/gtest.h>

#include "Proc/Settings/SettingsColorSpaceConverter.h"
#include "Proc/Settings/SettingsDeinterlace.h"
#include "Proc/Settings/SettingsParser.h"
#include "Proc/Settings/SettingsPixelFormatConverter.h"
#include "Proc/Settings/SettingsVideoDecoder.h"
#include "TestSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormADescription;
using ZorvanTest::FormBDescription;

TEST(Parser, AdditionalParametersLeaveTheFileNameAndOnlyTheSubtitleEncoding)
{
    const struct {
        const char* text;
        const char* name;
        const char* encoding;
    } rows[] = {
        {"movie.mkv", "movie.mkv", "keep"},
        {"movie.mkv??", "movie.mkv", "keep"},
        {"a.mkv??sub_charenc=cp1251&sub_charenc=utf8", "a.mkv", "utf8"},
        {"a.mkv??x=1;;sub_charenc=koi8-r&", "a.mkv", "koi8-r"},
        {"a.mkv??sub_charenc=a=b", "a.mkv", "a=b"},
        {"a.mkv??sub_charenc=&=cp1251&sub_charenc", "a.mkv", "keep"},
        {"a??b??sub_charenc=x", "a", "keep"}, // the key is "b??sub_charenc"
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        SettingsParser parser;
        parser.ParseAdditionalParameters("x??sub_charenc=keep");
        EXPECT_EQ(parser.ParseAdditionalParameters(row.text), row.name);
        EXPECT_EQ(parser.GetSubtitleEncoding(), row.encoding);
    }
}

TEST(Parser, StreamDurationPolicySpellings)
{
    using P = SettingsParser::StreamDurationPolicy;
    const std::pair<const char*, P> rows[] = {{"file", P::File},        {"MIN", P::Minimal}, {"Min", P::Minimal},
                                              {"minimal", P::Minimal},  {"MAX", P::Maximal}, {"maximal", P::Maximal},
                                              {"Original", P::Original}};
    for (const auto& [text, policy] : rows) {
        EXPECT_EQ(SettingsParser::GetStreamDurationPolicy(text), policy) << text;
    }
    for (const std::string text : {"", "minimum"}) {
        EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { SettingsParser::GetStreamDurationPolicy(text); }),
                  "Unknown stream duration policy: " + text);
    }
}

TEST(VideoDecoder, OptionStrings)
{
    SettingsVideoDecoder decoder;
    decoder.Deserialize("frameType=allowgpu:colorDepth=12:frameSize=1280x720:colorSpaceOverride=BT709");
    EXPECT_TRUE(decoder.IsGPUFrameAllowed());
    EXPECT_EQ(decoder.GetMinColorDepth(), 12U);
    EXPECT_EQ(decoder.GetOutputResolution(), (Zorvan::FrameSize{1280, 720}));
    EXPECT_EQ(decoder.GetColorSpaceOverride(), (Zorvan::Conf::ColorSpace{1, 1, 1}));
    for (const char* cpu : {"frameType=Cpu", "frameType=ff", "frameType=FFMPEG"}) {
        decoder.SetFrameType(SettingsVideoDecoder::FrameOutputType::AllowGPU);
        decoder.Deserialize(cpu);
        EXPECT_FALSE(decoder.IsGPUFrameAllowed()) << cpu;
    }
    decoder.Deserialize("frameType=GPU:frameSize=4294967297x2"); // each side cut to 32 bits
    EXPECT_TRUE(decoder.IsGPUFrameAllowed());
    EXPECT_EQ(decoder.GetOutputResolution(), (Zorvan::FrameSize{1, 2}));
}

TEST(VideoDecoder, FailuresAndTheKeysReadBeforeThem)
{
    SettingsVideoDecoder decoder;
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { decoder.Deserialize("frameType=vulkan:colorDepth=8"); }),
              "An unknown frame type has been requested for the decoder: vulkan");
    EXPECT_EQ(decoder.GetMinColorDepth(), 10U);
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { decoder.Deserialize("colorDepth=8:frameSize=0x720"); }),
              "Invalid frame size");
    EXPECT_EQ(decoder.GetMinColorDepth(), 8U);
    EXPECT_FALSE(decoder.GetOutputResolution());
    EXPECT_EQ(FormADescription<EffectException>([&] { decoder.Deserialize("colorSpaceOverride=bt999"); }),
              "Unknown color space name: bt999");
    decoder.SetOutputResolution(Zorvan::FrameSize{2, 2});
    decoder.SetOutputResolution(std::nullopt);
    EXPECT_FALSE(decoder.GetOutputResolution());
}

TEST(VideoDecoder, EqualityIgnoresTheColorSpaceOverride)
{
    SettingsVideoDecoder a, b;
    b.SetColorSpaceOverride({9, 16, 9});
    EXPECT_TRUE(a.IsEqualTo(b));
    b.SetOutputResolution(Zorvan::FrameSize{640, 480});
    EXPECT_FALSE(a == b);
    a.SetOutputResolution(Zorvan::FrameSize{640, 480});
    EXPECT_TRUE(a == b);
    a.SetMinColorDepth(8);
    EXPECT_FALSE(a == b);
}

TEST(ColorSpaceConverter, OptionStringsAndTheirFailures)
{
    using LM = ColorConversionInfo::LinearMode;
    SettingsColorSpaceConverter converter;
    EXPECT_EQ(FormADescription<EffectException>([&] { converter.Deserialize("linearMode=BT709_A"); }),
              "Parameter 'colorSpace' must be set");
    EXPECT_EQ(converter.GetLinearMode(), LM::DisplayReferred);
    const std::pair<const char*, const char*> failures[] = {
        {"colorSpace=nope:linearMode=BT709_A", "Unknown color space name: nope"},
        {"colorSpace=bt709:linearMode=sceneReferred", "Unknown linear mode name: sceneReferred"},
        {"colorSpace=bt2020:linearMode=sceneReffered:toneMapping=bad", "Unknown tone mapping: bad"},
    };
    for (const auto& [options, message] : failures) {
        EXPECT_EQ(FormADescription<EffectException>([&] { converter.Deserialize(options); }), message);
    }
    // The failing tone mapping comes after the colour space and the linear mode were stored.
    EXPECT_EQ(converter.GetDestinationColorSpace(), (Zorvan::Conf::ColorSpace{9, 14, 9}));
    EXPECT_EQ(converter.GetLinearMode(), LM::SceneReferred);
    EXPECT_EQ(converter.GetToneMapping(), ColorConversionInfo::ToneMapping::Direct);

    SettingsColorSpaceConverter rec(Zorvan::Conf::ColorSpace{1, 1, 1}), bt;
    rec.Deserialize("colorSpace=bt709:linearMode=rec709_a:toneMapping=ENABLE");
    bt.Deserialize("colorSpace=bt709:linearMode=BT709_A:toneMapping=enable");
    EXPECT_TRUE(rec.IsEqualTo(bt));
    bt.SetToneMapping(ColorConversionInfo::ToneMapping::None);
    EXPECT_FALSE(rec == bt);
}

TEST(Deinterlace, ModesByWordInAnyOrderAndCase)
{
    using FM = SettingsDeinterlace::FrameMode;
    using DM = SettingsDeinterlace::DeinterlaceMode;
    SettingsDeinterlace deinterlace;
    deinterlace.Deserialize("deinterlace-mode=deinterlaceall:frame-mode=SENDFIELD");
    EXPECT_EQ(deinterlace.GetFrameMode(), FM::SendField);
    EXPECT_EQ(deinterlace.GetDeinterlaceMode(), DM::DeinterlaceAll);
    SettingsDeinterlace fresh;
    EXPECT_EQ(FormBDescription<std::invalid_argument>(
                  [&] { fresh.Deserialize("frame-mode=Bad:deinterlace-mode=DeinterlaceAll"); }),
              "Invalid frame mode: Bad");
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { fresh.Deserialize("deinterlace-mode=Some"); }),
              "Invalid deinterlace mode: Some");
    EXPECT_TRUE(fresh == SettingsDeinterlace{});
    EXPECT_FALSE(fresh.IsEqualTo(deinterlace));
}

TEST(PixelFormatConverter, EqualityTakesTheOrderOfFormatsAndEveryByte)
{
    SettingsPixelFormatConverter a, b;
    a.SetPixelFormats({0, 23});
    b.SetPixelFormats({23, 0});
    EXPECT_FALSE(a == b);
    b.SetPixelFormats({0, 23});
    EXPECT_TRUE(a == b);
    b.SetPadColor(0, 0, 1);
    EXPECT_FALSE(a == b);
    a.SetPadColor(0, 0, 1);
    a.SetReservedByte(1);
    EXPECT_FALSE(a == b);
}
