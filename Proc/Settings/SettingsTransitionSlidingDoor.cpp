#include "Proc/Settings/SettingsTransitionSlidingDoor.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionSlidingDoor::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionSlidingDoor$$";

const std::string& SettingsTransitionSlidingDoor::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionSlidingDoor::Clone() const
{
    return std::make_unique<SettingsTransitionSlidingDoor>(*this);
}

void SettingsTransitionSlidingDoor::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"direction", direction});
}

} // namespace Zorvan::Proc
