#include "Proc/Settings/SettingsEffectChannelMixer.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectChannelMixer::CLASS_ID ZORVAN_INIT_STRINGS = "EffectChannelMixer";

const std::string& SettingsEffectChannelMixer::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectChannelMixer::Clone() const
{
    return std::make_unique<SettingsEffectChannelMixer>(*this);
}

} // namespace Zorvan::Proc
