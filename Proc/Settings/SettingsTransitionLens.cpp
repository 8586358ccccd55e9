#include "Proc/Settings/SettingsTransitionLens.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionLens::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionLens$$";

const std::string& SettingsTransitionLens::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionLens::Clone() const
{
    return std::make_unique<SettingsTransitionLens>(*this);
}

} // namespace Zorvan::Proc
