#include "Proc/Settings/SettingsEffectGIMPHueSaturation.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectGIMPHueSaturation::CLASS_ID ZORVAN_INIT_STRINGS = "EffectGIMPHueSaturation";

const std::string& SettingsEffectGIMPHueSaturation::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectGIMPHueSaturation::Clone() const
{
    return std::make_unique<SettingsEffectGIMPHueSaturation>(*this);
}

} // namespace Zorvan::Proc
