#include "Proc/Settings/SettingsTransitionCross.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionCross::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionCross";

const std::string& SettingsTransitionCross::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionCross::Clone() const
{
    return std::make_unique<SettingsTransitionCross>(*this);
}

} // namespace Zorvan::Proc
