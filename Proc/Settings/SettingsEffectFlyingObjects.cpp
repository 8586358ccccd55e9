#include "Proc/Settings/SettingsEffectFlyingObjects.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectFlyingObjects::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_FLYING_OBJECTS";

const std::string& SettingsEffectFlyingObjects::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectFlyingObjects::Clone() const
{
    return std::make_unique<SettingsEffectFlyingObjects>(*this);
}

} // namespace Zorvan::Proc
