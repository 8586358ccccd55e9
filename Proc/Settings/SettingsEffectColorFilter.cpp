#include "Proc/Settings/SettingsEffectColorFilter.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectColorFilter::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectColorFilter$$";

const std::string& SettingsEffectColorFilter::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectColorFilter::Clone() const
{
    return std::make_unique<SettingsEffectColorFilter>(*this);
}

} // namespace Zorvan::Proc
