#include "Proc/Settings/SettingsTransitionTwist.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionTwist::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionTwist$$";

const std::string& SettingsTransitionTwist::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionTwist::Clone() const
{
    return std::make_unique<SettingsTransitionTwist>(*this);
}

} // namespace Zorvan::Proc
