#include "Proc/Settings/SettingsTransitionShatter.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionShatter::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionShatter$$";

const std::string& SettingsTransitionShatter::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionShatter::Clone() const
{
    return std::make_unique<SettingsTransitionShatter>(*this);
}

void SettingsTransitionShatter::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"n", num}, IntegerKey{"direction", dir});
}

} // namespace Zorvan::Proc
