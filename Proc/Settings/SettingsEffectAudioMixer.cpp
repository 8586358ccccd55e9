#include "Proc/Settings/SettingsEffectAudioMixer.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectAudioMixer::CLASS_ID ZORVAN_INIT_STRINGS = "EffectAudioMixer";

const std::string& SettingsEffectAudioMixer::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectAudioMixer::Clone() const
{
    return std::make_unique<SettingsEffectAudioMixer>(*this);
}

} // namespace Zorvan::Proc
