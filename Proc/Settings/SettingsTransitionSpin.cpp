#include "Proc/Settings/SettingsTransitionSpin.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionSpin::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionSpin";

const std::string& SettingsTransitionSpin::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionSpin::Clone() const
{
    return std::make_unique<SettingsTransitionSpin>(*this);
}

void SettingsTransitionSpin::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"type", type});
}

} // namespace Zorvan::Proc
