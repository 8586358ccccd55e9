#include "Proc/Settings/SettingsEffectStripes.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectStripes::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectStripes$$";

const std::string& SettingsEffectStripes::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectStripes::Clone() const
{
    return std::make_unique<SettingsEffectStripes>(*this);
}

} // namespace Zorvan::Proc
