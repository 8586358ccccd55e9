#include "Proc/Settings/SettingsTransitionBlinds.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionBlinds::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionBlinds$$";

const std::string& SettingsTransitionBlinds::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionBlinds::Clone() const
{
    return std::make_unique<SettingsTransitionBlinds>(*this);
}

} // namespace Zorvan::Proc
