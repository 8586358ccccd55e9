#include "Proc/Settings/SettingsTransitionRoll.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionRoll::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionRoll$$";

const std::string& SettingsTransitionRoll::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionRoll::Clone() const
{
    return std::make_unique<SettingsTransitionRoll>(*this);
}

void SettingsTransitionRoll::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"size", size}, IntegerKey{"direction", dir}, IntegerKey{"type", type});
}

} // namespace Zorvan::Proc
