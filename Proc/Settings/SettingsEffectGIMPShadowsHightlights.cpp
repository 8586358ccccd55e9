#include "Proc/Settings/SettingsEffectGIMPShadowsHightlights.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectGIMPShadowsHightlights::CLASS_ID ZORVAN_INIT_STRINGS = "EffectGIMPShadowsHightlights";

const std::string& SettingsEffectGIMPShadowsHightlights::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectGIMPShadowsHightlights::Clone() const
{
    return std::make_unique<SettingsEffectGIMPShadowsHightlights>(*this);
}

} // namespace Zorvan::Proc
