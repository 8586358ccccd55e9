#include "Proc/Settings/SettingsTransitionSpiral.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionSpiral::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionSpiral$$";

const std::string& SettingsTransitionSpiral::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionSpiral::Clone() const
{
    return std::make_unique<SettingsTransitionSpiral>(*this);
}

void SettingsTransitionSpiral::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"type", type});
}

} // namespace Zorvan::Proc
