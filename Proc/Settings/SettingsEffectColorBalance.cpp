#include "Proc/Settings/SettingsEffectColorBalance.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectColorBalance::CLASS_ID ZORVAN_INIT_STRINGS = "$$COLOR_BALANCE$$";

const std::string& SettingsEffectColorBalance::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectColorBalance::Clone() const
{
    return std::make_unique<SettingsEffectColorBalance>(*this);
}

} // namespace Zorvan::Proc
