#include "Proc/Settings/SettingsTransitionTwist.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionTwist::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionTwist$$";

const std::string& SettingsTransitionTwist::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionTwist::Clone() const
{
    return std::make_unique<SettingsTransitionTwist>(*this);
}

void SettingsTransitionTwist::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"type", type});
}

} // namespace Zorvan::Proc
