#include "Proc/Settings/SettingsTransitionWipe.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionWipe::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectWipe$$";

const std::string& SettingsTransitionWipe::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionWipe::Clone() const
{
    return std::make_unique<SettingsTransitionWipe>(*this);
}

} // namespace Zorvan::Proc
