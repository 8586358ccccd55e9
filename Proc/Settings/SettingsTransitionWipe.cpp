#include "Proc/Settings/SettingsTransitionWipe.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

// A transition under an effect's identifier: the engine and saved projects know it by this one.
const std::string SettingsTransitionWipe::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectWipe$$";

const std::string& SettingsTransitionWipe::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionWipe::Clone() const
{
    return std::make_unique<SettingsTransitionWipe>(*this);
}

void SettingsTransitionWipe::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"smooth_width", smoothWidth}, IntegerKey{"direction", direction});
}

} // namespace Zorvan::Proc
