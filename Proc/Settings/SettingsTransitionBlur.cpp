#include "Proc/Settings/SettingsTransitionBlur.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionBlur::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionBlur";

const std::string& SettingsTransitionBlur::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionBlur::Clone() const
{
    return std::make_unique<SettingsTransitionBlur>(*this);
}

void SettingsTransitionBlur::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"direction", direction});
}

} // namespace Zorvan::Proc
