#include "Proc/Settings/SettingsEffectLightLeaks.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectLightLeaks::CLASS_ID ZORVAN_INIT_STRINGS = "EffectLightLeaks";

const std::string& SettingsEffectLightLeaks::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectLightLeaks::Clone() const
{
    return std::make_unique<SettingsEffectLightLeaks>(*this);
}

} // namespace Zorvan::Proc
