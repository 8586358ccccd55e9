#include "Proc/Settings/SettingsTransitionPush.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionPush::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionPush$$";

const std::string& SettingsTransitionPush::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionPush::Clone() const
{
    return std::make_unique<SettingsTransitionPush>(*this);
}

void SettingsTransitionPush::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"direction", dir});
}

} // namespace Zorvan::Proc
