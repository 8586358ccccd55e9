#include "Proc/Settings/SettingsEffectAudioStereo2DualMono.h"

#include <string>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsEffectAudioStereo2DualMono::CLASS_ID ZORVAN_INIT_STRINGS = "EffectAudioStereo2DualMono";

const std::string& SettingsEffectAudioStereo2DualMono::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectAudioStereo2DualMono::Clone() const
{
    return std::make_unique<SettingsEffectAudioStereo2DualMono>(*this);
}

void SettingsEffectAudioStereo2DualMono::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"channel"});
    if (const auto value = MapForm::Find<ChannelToCopy>(map, "channel")) {
        SetChannel(*value);
    }
}

void SettingsEffectAudioStereo2DualMono::SetChannel(ChannelToCopy value)
{
    const auto number = static_cast<std::int32_t>(value);
    if (number < 0 || number > 2) {
        ThrowEffect("Unsupported channel setting: " + std::to_string(number));
    }
    channel = value;
}

SettingsEffectAudioStereo2DualMono::ChannelToCopy SettingsEffectAudioStereo2DualMono::GetChannel() const
{
    return channel;
}

} // namespace Zorvan::Proc
