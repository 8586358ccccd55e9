#include "Proc/Settings/SettingsTransitionWhipe.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionWhipe::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionWhipe";

const std::string& SettingsTransitionWhipe::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionWhipe::Clone() const
{
    return std::make_unique<SettingsTransitionWhipe>(*this);
}

} // namespace Zorvan::Proc
