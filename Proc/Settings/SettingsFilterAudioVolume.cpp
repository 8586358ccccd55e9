#include "Proc/Settings/SettingsFilterAudioVolume.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterAudioVolume::CLASS_ID ZORVAN_INIT_STRINGS = "$$AUDIO_VOLUME$$";

const std::string& SettingsFilterAudioVolume::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterAudioVolume::Clone() const
{
    return std::make_unique<SettingsFilterAudioVolume>(*this);
}

} // namespace Zorvan::Proc
