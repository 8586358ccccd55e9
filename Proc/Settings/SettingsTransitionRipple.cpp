#include "Proc/Settings/SettingsTransitionRipple.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionRipple::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionRipple$$";

const std::string& SettingsTransitionRipple::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionRipple::Clone() const
{
    return std::make_unique<SettingsTransitionRipple>(*this);
}

} // namespace Zorvan::Proc
