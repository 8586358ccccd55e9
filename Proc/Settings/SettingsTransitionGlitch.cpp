#include "Proc/Settings/SettingsTransitionGlitch.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionGlitch::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionGlitch";

const std::string& SettingsTransitionGlitch::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionGlitch::Clone() const
{
    return std::make_unique<SettingsTransitionGlitch>(*this);
}

} // namespace Zorvan::Proc
