#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The packaging a compressed stream needs. Overrides IsEqualTo only: no option string,
// and the base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsFilterBitStream : public Settings {
public:
    // The numbers are what the stage reads; the names only say how the codec constructor
    // picks them.
    enum class StreamFormat : std::uint32_t {
        VideoFlagOff = 0, // H.264 or H.265, flag false
        VideoFlagOn = 1,  // H.264 or H.265, flag true
        AudioFlagOn = 2,  // AAC or AAC LATM, flag true
        AudioFlagOff = 3, // AAC or AAC LATM, flag false
        Other = 4,        // any other codec, and the default
    };

    static const std::string CLASS_ID;

    SettingsFilterBitStream() = default;
    explicit SettingsFilterBitStream(StreamFormat format);
    // Picks the format from the codec identifier (as ConfInt names codecs) and the flag.
    SettingsFilterBitStream(const std::string& codecId, bool flag);

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;

    bool operator==(const SettingsFilterBitStream& other) const;

    void SetStreamFormatNeeded(StreamFormat format);
    StreamFormat GetStreamFormatNeeded() const;

private:
    StreamFormat streamFormatNeeded = StreamFormat::Other;
};

} // namespace Zorvan::Proc
