#include "Proc/Settings/SettingsTransitionOrigamiFlips.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionOrigamiFlips::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionOrigamiFlips$$";

const std::string& SettingsTransitionOrigamiFlips::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionOrigamiFlips::Clone() const
{
    return std::make_unique<SettingsTransitionOrigamiFlips>(*this);
}

void SettingsTransitionOrigamiFlips::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"n", num});
}

} // namespace Zorvan::Proc
