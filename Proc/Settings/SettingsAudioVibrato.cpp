#include "Proc/Settings/SettingsAudioVibrato.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAudioVibrato::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioVibrato";

const std::string& SettingsAudioVibrato::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioVibrato::Clone() const
{
    return std::make_unique<SettingsAudioVibrato>(*this);
}

} // namespace Zorvan::Proc
