#include "Proc/Settings/SettingsTransitionCrossfade.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionCrossfade::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionCrossfade$$";

const std::string& SettingsTransitionCrossfade::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionCrossfade::Clone() const
{
    return std::make_unique<SettingsTransitionCrossfade>(*this);
}

// No options: whatever the string holds changes nothing and never fails.
void SettingsTransitionCrossfade::Deserialize(const std::string& /*options*/) {}

} // namespace Zorvan::Proc
