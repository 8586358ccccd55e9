#include "Proc/Settings/SettingsTransitionOrigamiPleats.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionOrigamiPleats::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionOrigamiPleats$$";

const std::string& SettingsTransitionOrigamiPleats::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionOrigamiPleats::Clone() const
{
    return std::make_unique<SettingsTransitionOrigamiPleats>(*this);
}

} // namespace Zorvan::Proc
