#include "Proc/Settings/SettingsTransitionISF.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionISF::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionISF";

const std::string& SettingsTransitionISF::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionISF::Clone() const
{
    return std::make_unique<SettingsTransitionISF>(*this);
}

} // namespace Zorvan::Proc
