#include "Proc/Settings/SettingsEffectGIMPBalanceChroma.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectGIMPBalanceChroma::CLASS_ID ZORVAN_INIT_STRINGS = "EffectGIMPBalanceChroma";

const std::string& SettingsEffectGIMPBalanceChroma::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectGIMPBalanceChroma::Clone() const
{
    return std::make_unique<SettingsEffectGIMPBalanceChroma>(*this);
}

} // namespace Zorvan::Proc
