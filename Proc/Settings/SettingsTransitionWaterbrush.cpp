#include "Proc/Settings/SettingsTransitionWaterbrush.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionWaterbrush::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionWaterbrush$$";

const std::string& SettingsTransitionWaterbrush::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionWaterbrush::Clone() const
{
    return std::make_unique<SettingsTransitionWaterbrush>(*this);
}

} // namespace Zorvan::Proc
