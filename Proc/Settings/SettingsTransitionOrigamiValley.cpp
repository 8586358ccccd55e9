#include "Proc/Settings/SettingsTransitionOrigamiValley.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionOrigamiValley::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionOrigamiValley$$";

const std::string& SettingsTransitionOrigamiValley::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionOrigamiValley::Clone() const
{
    return std::make_unique<SettingsTransitionOrigamiValley>(*this);
}

} // namespace Zorvan::Proc
