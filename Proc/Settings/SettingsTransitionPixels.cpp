#include "Proc/Settings/SettingsTransitionPixels.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionPixels::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionPixels";

const std::string& SettingsTransitionPixels::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionPixels::Clone() const
{
    return std::make_unique<SettingsTransitionPixels>(*this);
}

} // namespace Zorvan::Proc
