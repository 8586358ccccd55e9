#include "Proc/Settings/SettingsAudioPitch.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAudioPitch::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioPitch";

const std::string& SettingsAudioPitch::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioPitch::Clone() const
{
    return std::make_unique<SettingsAudioPitch>(*this);
}

} // namespace Zorvan::Proc
