#include "Proc/Settings/SettingsTransitionCube.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionCube::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionCube";

const std::string& SettingsTransitionCube::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionCube::Clone() const
{
    return std::make_unique<SettingsTransitionCube>(*this);
}

} // namespace Zorvan::Proc
