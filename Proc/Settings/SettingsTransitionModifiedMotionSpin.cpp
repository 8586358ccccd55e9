#include "Proc/Settings/SettingsTransitionModifiedMotionSpin.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionModifiedMotionSpin::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionModifiedMotionSpin";

const std::string& SettingsTransitionModifiedMotionSpin::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionModifiedMotionSpin::Clone() const
{
    return std::make_unique<SettingsTransitionModifiedMotionSpin>(*this);
}

} // namespace Zorvan::Proc
