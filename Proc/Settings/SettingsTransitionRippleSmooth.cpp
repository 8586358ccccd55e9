#include "Proc/Settings/SettingsTransitionRippleSmooth.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionRippleSmooth::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionRippleSmooth$$";

const std::string& SettingsTransitionRippleSmooth::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionRippleSmooth::Clone() const
{
    return std::make_unique<SettingsTransitionRippleSmooth>(*this);
}

} // namespace Zorvan::Proc
