#include "Proc/Settings/SettingsTransitionMotionSpin.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionMotionSpin::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionMotionSpin";

const std::string& SettingsTransitionMotionSpin::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionMotionSpin::Clone() const
{
    return std::make_unique<SettingsTransitionMotionSpin>(*this);
}

} // namespace Zorvan::Proc
