#include "Proc/Settings/SettingsTransitionKenBurns.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionKenBurns::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionKenBurns$$";

const std::string& SettingsTransitionKenBurns::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionKenBurns::Clone() const
{
    return std::make_unique<SettingsTransitionKenBurns>(*this);
}

} // namespace Zorvan::Proc
