#pragma once
#include <cstdint>
#include <optional>

#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"
#include "imported/ConfInt.h"

namespace Zorvan::Proc {

// What frames a video decoder is to deliver: in GPU memory or not, how deep their colour,
// at what size, and in which colour space when the stream's own tags are wrong.
class ZORVAN_SETTINGS_EXPORT SettingsVideoDecoder : public Settings {
public:
    static const std::string CLASS_ID;

    enum class FrameOutputType : std::int32_t {
        FFmpeg = 0,   // "FFMPEG", "FF", "CPU"
        AllowGPU = 1, // "GPU", "allowGPU"
    };

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    void Deserialize(const std::string& options) override;

    // The colour space override takes no part: a decoder need not restart for it.
    bool operator==(const SettingsVideoDecoder& other) const;

    bool IsGPUFrameAllowed() const;
    FrameOutputType GetFrameType() const;
    void SetFrameType(FrameOutputType type);
    std::uint64_t GetMinColorDepth() const;
    void SetMinColorDepth(std::uint64_t depth);
    const std::optional<FrameSize>& GetOutputResolution() const;
    // An engaged size with a zero side throws std::invalid_argument; empty clears.
    void SetOutputResolution(const std::optional<FrameSize>& resolution);
    const Conf::ColorSpace& GetColorSpaceOverride() const;
    void SetColorSpaceOverride(const Conf::ColorSpace& colorSpace);

private:
    FrameOutputType frameType = FrameOutputType::FFmpeg;
    std::uint64_t minColorDepth = 10;
    std::optional<FrameSize> outputResolution;
    Conf::ColorSpace colorSpaceOverride;
};

} // namespace Zorvan::Proc
