#include "Proc/Settings/SettingsTransitionFadeInFadeOut.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionFadeInFadeOut::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionFadeInFadeOut$$";

const std::string& SettingsTransitionFadeInFadeOut::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionFadeInFadeOut::Clone() const
{
    return std::make_unique<SettingsTransitionFadeInFadeOut>(*this);
}

} // namespace Zorvan::Proc
