#include "Proc/Settings/SettingsTransitionRoll.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionRoll::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionRoll$$";

const std::string& SettingsTransitionRoll::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionRoll::Clone() const
{
    return std::make_unique<SettingsTransitionRoll>(*this);
}

} // namespace Zorvan::Proc
