#include "Proc/Settings/SettingsTransitionZoom.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionZoom::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionZoom$$";

const std::string& SettingsTransitionZoom::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionZoom::Clone() const
{
    return std::make_unique<SettingsTransitionZoom>(*this);
}

} // namespace Zorvan::Proc
