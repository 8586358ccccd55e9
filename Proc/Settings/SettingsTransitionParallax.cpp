#include "Proc/Settings/SettingsTransitionParallax.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionParallax::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionParallax";

const std::string& SettingsTransitionParallax::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionParallax::Clone() const
{
    return std::make_unique<SettingsTransitionParallax>(*this);
}

} // namespace Zorvan::Proc
