#include "Proc/Settings/SettingsEffectVHS.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectVHS::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectVHS$$";

const std::string& SettingsEffectVHS::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectVHS::Clone() const
{
    return std::make_unique<SettingsEffectVHS>(*this);
}

} // namespace Zorvan::Proc
