#include "Proc/Settings/SettingsTransitionPinwheel.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionPinwheel::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionPinwheel$$";

const std::string& SettingsTransitionPinwheel::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionPinwheel::Clone() const
{
    return std::make_unique<SettingsTransitionPinwheel>(*this);
}

} // namespace Zorvan::Proc
