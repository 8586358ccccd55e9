#include "Proc/Settings/SettingsAudioFlanger.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAudioFlanger::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioFlanger";

const std::string& SettingsAudioFlanger::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioFlanger::Clone() const
{
    return std::make_unique<SettingsAudioFlanger>(*this);
}

} // namespace Zorvan::Proc
