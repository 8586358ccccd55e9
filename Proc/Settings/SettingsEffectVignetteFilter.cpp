#include "Proc/Settings/SettingsEffectVignetteFilter.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectVignetteFilter::CLASS_ID ZORVAN_INIT_STRINGS = "EffectVignetteFilter";

const std::string& SettingsEffectVignetteFilter::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectVignetteFilter::Clone() const
{
    return std::make_unique<SettingsEffectVignetteFilter>(*this);
}

} // namespace Zorvan::Proc
