#include "Proc/Settings/SettingsEffectColorMixExchange.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectColorMixExchange::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectColorMixExchange$$";

const std::string& SettingsEffectColorMixExchange::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectColorMixExchange::Clone() const
{
    return std::make_unique<SettingsEffectColorMixExchange>(*this);
}

} // namespace Zorvan::Proc
