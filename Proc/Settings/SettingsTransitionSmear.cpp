#include "Proc/Settings/SettingsTransitionSmear.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionSmear::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionSmear$$";

const std::string& SettingsTransitionSmear::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionSmear::Clone() const
{
    return std::make_unique<SettingsTransitionSmear>(*this);
}

} // namespace Zorvan::Proc
