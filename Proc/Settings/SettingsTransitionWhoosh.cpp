#include "Proc/Settings/SettingsTransitionWhoosh.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionWhoosh::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionWhoosh";

const std::string& SettingsTransitionWhoosh::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionWhoosh::Clone() const
{
    return std::make_unique<SettingsTransitionWhoosh>(*this);
}

} // namespace Zorvan::Proc
