#include "Proc/Settings/SettingsTransitionWithEffects.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionWithEffects::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionWithEffects";

const std::string& SettingsTransitionWithEffects::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionWithEffects::Clone() const
{
    return std::make_unique<SettingsTransitionWithEffects>(*this);
}

} // namespace Zorvan::Proc
