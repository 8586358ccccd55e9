#include "Proc/Settings/SettingsAudioRobot.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAudioRobot::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioRobot";

const std::string& SettingsAudioRobot::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioRobot::Clone() const
{
    return std::make_unique<SettingsAudioRobot>(*this);
}

} // namespace Zorvan::Proc
