#include "Proc/Settings/SettingsTransitionSlice.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionSlice::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionSlice";

const std::string& SettingsTransitionSlice::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionSlice::Clone() const
{
    return std::make_unique<SettingsTransitionSlice>(*this);
}

} // namespace Zorvan::Proc
