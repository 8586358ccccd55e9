#include "Proc/Settings/SettingsTransitionOrigamiFlips.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionOrigamiFlips::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionOrigamiFlips$$";

const std::string& SettingsTransitionOrigamiFlips::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionOrigamiFlips::Clone() const
{
    return std::make_unique<SettingsTransitionOrigamiFlips>(*this);
}

} // namespace Zorvan::Proc
