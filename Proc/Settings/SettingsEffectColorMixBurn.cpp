#include "Proc/Settings/SettingsEffectColorMixBurn.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectColorMixBurn::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectColorMixBurn$$";

const std::string& SettingsEffectColorMixBurn::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectColorMixBurn::Clone() const
{
    return std::make_unique<SettingsEffectColorMixBurn>(*this);
}

} // namespace Zorvan::Proc
