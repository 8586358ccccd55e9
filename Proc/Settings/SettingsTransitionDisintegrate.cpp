#include "Proc/Settings/SettingsTransitionDisintegrate.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionDisintegrate::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionDisintegrate$$";

const std::string& SettingsTransitionDisintegrate::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionDisintegrate::Clone() const
{
    return std::make_unique<SettingsTransitionDisintegrate>(*this);
}

} // namespace Zorvan::Proc
