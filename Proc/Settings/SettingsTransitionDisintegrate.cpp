#include "Proc/Settings/SettingsTransitionDisintegrate.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionDisintegrate::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionDisintegrate$$";

const std::string& SettingsTransitionDisintegrate::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionDisintegrate::Clone() const
{
    return std::make_unique<SettingsTransitionDisintegrate>(*this);
}

void SettingsTransitionDisintegrate::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"n", num});
}

} // namespace Zorvan::Proc
