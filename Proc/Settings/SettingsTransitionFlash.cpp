#include "Proc/Settings/SettingsTransitionFlash.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionFlash::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionFlash";

const std::string& SettingsTransitionFlash::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionFlash::Clone() const
{
    return std::make_unique<SettingsTransitionFlash>(*this);
}

// No options: whatever the string holds changes nothing and never fails.
void SettingsTransitionFlash::Deserialize(const std::string& /*options*/) {}

} // namespace Zorvan::Proc
