#include "Proc/Settings/SettingsTransitionSpin.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionSpin::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionSpin";

const std::string& SettingsTransitionSpin::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionSpin::Clone() const
{
    return std::make_unique<SettingsTransitionSpin>(*this);
}

} // namespace Zorvan::Proc
