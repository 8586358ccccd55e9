#include "Proc/Settings/SettingsEffectBalanceChroma.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectBalanceChroma::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_BALANCE_CHROMA";

const std::string& SettingsEffectBalanceChroma::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectBalanceChroma::Clone() const
{
    return std::make_unique<SettingsEffectBalanceChroma>(*this);
}

} // namespace Zorvan::Proc
