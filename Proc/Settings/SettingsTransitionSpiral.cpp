#include "Proc/Settings/SettingsTransitionSpiral.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionSpiral::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionSpiral$$";

const std::string& SettingsTransitionSpiral::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionSpiral::Clone() const
{
    return std::make_unique<SettingsTransitionSpiral>(*this);
}

} // namespace Zorvan::Proc
