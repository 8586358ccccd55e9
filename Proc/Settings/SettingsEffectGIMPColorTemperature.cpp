#include "Proc/Settings/SettingsEffectGIMPColorTemperature.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectGIMPColorTemperature::CLASS_ID ZORVAN_INIT_STRINGS = "EffectGIMPColorTemperature";

const std::string& SettingsEffectGIMPColorTemperature::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectGIMPColorTemperature::Clone() const
{
    return std::make_unique<SettingsEffectGIMPColorTemperature>(*this);
}

} // namespace Zorvan::Proc
