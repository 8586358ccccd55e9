#include "Proc/Settings/SettingsEffectAudioVolumeEnvelope.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectAudioVolumeEnvelope::CLASS_ID ZORVAN_INIT_STRINGS = "EffectAudioVolumeEnvelope";

const std::string& SettingsEffectAudioVolumeEnvelope::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectAudioVolumeEnvelope::Clone() const
{
    return std::make_unique<SettingsEffectAudioVolumeEnvelope>(*this);
}

} // namespace Zorvan::Proc
