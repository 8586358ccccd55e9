#include "Proc/Settings/SettingsEffectSaturation.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectSaturation::CLASS_ID ZORVAN_INIT_STRINGS = "EffectSaturation";

const std::string& SettingsEffectSaturation::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectSaturation::Clone() const
{
    return std::make_unique<SettingsEffectSaturation>(*this);
}

} // namespace Zorvan::Proc
