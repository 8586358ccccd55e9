#include "Proc/Settings/SettingsEffectMagicEnhance.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectMagicEnhance::CLASS_ID ZORVAN_INIT_STRINGS = "$$MAGIC_ENHANCE$$";

const std::string& SettingsEffectMagicEnhance::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectMagicEnhance::Clone() const
{
    return std::make_unique<SettingsEffectMagicEnhance>(*this);
}

} // namespace Zorvan::Proc
