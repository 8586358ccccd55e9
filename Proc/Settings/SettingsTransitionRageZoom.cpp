#include "Proc/Settings/SettingsTransitionRageZoom.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionRageZoom::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionRageZoom";

const std::string& SettingsTransitionRageZoom::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionRageZoom::Clone() const
{
    return std::make_unique<SettingsTransitionRageZoom>(*this);
}

} // namespace Zorvan::Proc
