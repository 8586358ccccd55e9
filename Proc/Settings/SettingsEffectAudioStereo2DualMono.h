#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Turns a stereo stream into dual mono from the channel chosen.
// Keeps the base IsEqualTo (it throws) and IsEmpty (never empty) and has no operator==.
class ZORVAN_SETTINGS_EXPORT SettingsEffectAudioStereo2DualMono : public Settings {
public:
    // The numbers 0 to 2 are the interface; the enumerator names are this library's own.
    enum class ChannelToCopy : std::int32_t { Left = 0, Right = 1, Both = 2 };

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Key "channel" (std::stoi) through SetChannel.
    void Deserialize(const std::string& options) override;

    // 0 to 2, else EffectException "Unsupported channel setting: " and the value as a signed
    // decimal number.
    void SetChannel(ChannelToCopy value);

    ChannelToCopy GetChannel() const;

private:
    ChannelToCopy channel = ChannelToCopy::Left; // value 0: every choice changes a stereo stream
};

} // namespace Zorvan::Proc
