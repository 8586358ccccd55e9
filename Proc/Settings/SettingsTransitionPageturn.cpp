#include "Proc/Settings/SettingsTransitionPageturn.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionPageturn::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionPageturn$$";

const std::string& SettingsTransitionPageturn::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionPageturn::Clone() const
{
    return std::make_unique<SettingsTransitionPageturn>(*this);
}

void SettingsTransitionPageturn::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"type", type}, IntegerKey{"direction", dir});
}

} // namespace Zorvan::Proc
