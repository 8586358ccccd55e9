#include "Proc/Settings/SettingsEffectAudioCrossfade.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectAudioCrossfade::CLASS_ID ZORVAN_INIT_STRINGS = "EffectAudioCrossfade";

const std::string& SettingsEffectAudioCrossfade::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectAudioCrossfade::Clone() const
{
    return std::make_unique<SettingsEffectAudioCrossfade>(*this);
}

} // namespace Zorvan::Proc
