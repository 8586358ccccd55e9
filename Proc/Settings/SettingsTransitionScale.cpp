#include "Proc/Settings/SettingsTransitionScale.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionScale::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionScale$$";

const std::string& SettingsTransitionScale::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionScale::Clone() const
{
    return std::make_unique<SettingsTransitionScale>(*this);
}

void SettingsTransitionScale::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"type", type});
}

} // namespace Zorvan::Proc
