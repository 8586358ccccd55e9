#include "Proc/Settings/SettingsEffectColorChannelMixer.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectColorChannelMixer::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_COLOR_CHANNEL_MIXER";

const std::string& SettingsEffectColorChannelMixer::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectColorChannelMixer::Clone() const
{
    return std::make_unique<SettingsEffectColorChannelMixer>(*this);
}

} // namespace Zorvan::Proc
