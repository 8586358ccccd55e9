#include "Proc/Settings/SettingsEffectMagicEnhance2.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectMagicEnhance2::CLASS_ID ZORVAN_INIT_STRINGS = "EffectMagicEnhance";

const std::string& SettingsEffectMagicEnhance2::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectMagicEnhance2::Clone() const
{
    return std::make_unique<SettingsEffectMagicEnhance2>(*this);
}

} // namespace Zorvan::Proc
