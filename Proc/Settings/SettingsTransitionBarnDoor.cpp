#include "Proc/Settings/SettingsTransitionBarnDoor.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionBarnDoor::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionBarnDoor$$";

const std::string& SettingsTransitionBarnDoor::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionBarnDoor::Clone() const
{
    return std::make_unique<SettingsTransitionBarnDoor>(*this);
}

void SettingsTransitionBarnDoor::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"direction", direction});
}

} // namespace Zorvan::Proc
