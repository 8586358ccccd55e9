#include "Proc/Settings/SettingsTransitionRadial.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionRadial::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionRadial$$";

const std::string& SettingsTransitionRadial::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionRadial::Clone() const
{
    return std::make_unique<SettingsTransitionRadial>(*this);
}

void SettingsTransitionRadial::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"direction", direction});
}

} // namespace Zorvan::Proc
