#include "Proc/Settings/SettingsTransitionThroughColor.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionThroughColor::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionThroughColor";

const std::string& SettingsTransitionThroughColor::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionThroughColor::Clone() const
{
    return std::make_unique<SettingsTransitionThroughColor>(*this);
}

} // namespace Zorvan::Proc
