#include "Proc/Settings/SettingsEffectAudioStereo2DualMono.h"

#include "Proc/Settings/InitOrder.h"

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

} // namespace Zorvan::Proc
