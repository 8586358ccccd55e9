#include "Proc/Settings/SettingsEffectAutoContrast.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectAutoContrast::CLASS_ID ZORVAN_INIT_STRINGS = "EffectAutoContrast";

const std::string& SettingsEffectAutoContrast::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectAutoContrast::Clone() const
{
    return std::make_unique<SettingsEffectAutoContrast>(*this);
}

} // namespace Zorvan::Proc
