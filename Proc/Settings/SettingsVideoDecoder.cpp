#include "Proc/Settings/SettingsVideoDecoder.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/ProcException.h"
#include "Proc/Settings/Spellings.h"
#include "imported/Utils.h"

namespace Zorvan::Proc {

const std::string SettingsVideoDecoder::CLASS_ID ZORVAN_INIT_STRINGS = "VideoDecoder";

const std::string& SettingsVideoDecoder::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsVideoDecoder::Clone() const
{
    return std::make_unique<SettingsVideoDecoder>(*this);
}

bool SettingsVideoDecoder::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsVideoDecoder&>(other);
}

void SettingsVideoDecoder::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    if (const std::string_view type = OptionRegexSearch(options, "frameType", ""); !type.empty()) {
        static const SpellingTable<FrameOutputType> table{
            {"GPU", FrameOutputType::AllowGPU},  {"allowGPU", FrameOutputType::AllowGPU},
            {"FFMPEG", FrameOutputType::FFmpeg}, {"FF", FrameOutputType::FFmpeg},
            {"CPU", FrameOutputType::FFmpeg},
        };
        const auto found = FindSpelling(table, type);
        if (!found) {
            ThrowInvalidArgument("An unknown frame type has been requested for the decoder: " + std::string(type));
        }
        frameType = *found;
    }
    if (const auto depth = GetOption<unsigned long>(options, "colorDepth", "")) {
        minColorDepth = *depth;
    }
    if (const std::string_view size = OptionRegexSearch(options, "frameSize", R"(\d+x\d+)"); !size.empty()) {
        const auto [width, height] = Core::Utils::CutString(size, 'x');
        SetOutputResolution(FrameSize{static_cast<std::uint32_t>(std::stoll(width, nullptr, 10)),
                                      static_cast<std::uint32_t>(std::stoll(height, nullptr, 10))});
    }
    if (const std::string_view name = OptionRegexSearch(options, "colorSpaceOverride", ""); !name.empty()) {
        colorSpaceOverride = ColorSpaceFromName(name);
    }
}

bool SettingsVideoDecoder::operator==(const SettingsVideoDecoder& other) const
{
    if (frameType != other.frameType || minColorDepth != other.minColorDepth) {
        return false;
    }
    if (!outputResolution || !other.outputResolution) {
        return !outputResolution && !other.outputResolution;
    }
    return outputResolution->width == other.outputResolution->width &&
           outputResolution->height == other.outputResolution->height;
}

bool SettingsVideoDecoder::IsGPUFrameAllowed() const
{
    return frameType == FrameOutputType::AllowGPU;
}

SettingsVideoDecoder::FrameOutputType SettingsVideoDecoder::GetFrameType() const
{
    return frameType;
}

void SettingsVideoDecoder::SetFrameType(FrameOutputType type)
{
    frameType = type;
}

std::uint64_t SettingsVideoDecoder::GetMinColorDepth() const
{
    return minColorDepth;
}

void SettingsVideoDecoder::SetMinColorDepth(std::uint64_t depth)
{
    minColorDepth = depth;
}

const std::optional<FrameSize>& SettingsVideoDecoder::GetOutputResolution() const
{
    return outputResolution;
}

void SettingsVideoDecoder::SetOutputResolution(const std::optional<FrameSize>& resolution)
{
    if (resolution && (resolution->width == 0 || resolution->height == 0)) {
        ThrowInvalidArgument("Invalid frame size");
    }
    outputResolution = resolution;
}

const Conf::ColorSpace& SettingsVideoDecoder::GetColorSpaceOverride() const
{
    return colorSpaceOverride;
}

void SettingsVideoDecoder::SetColorSpaceOverride(const Conf::ColorSpace& colorSpace)
{
    colorSpaceOverride = colorSpace;
}

} // namespace Zorvan::Proc
