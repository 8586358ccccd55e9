#include "Proc/Settings/SettingsEffectOpacity.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectOpacity::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectOpacity$$";

const std::string& SettingsEffectOpacity::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectOpacity::Clone() const
{
    return std::make_unique<SettingsEffectOpacity>(*this);
}

} // namespace Zorvan::Proc
