#include "Proc/Settings/SettingsEffectCameraShake.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectCameraShake::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectCameraShake$$";

const std::string& SettingsEffectCameraShake::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectCameraShake::Clone() const
{
    return std::make_unique<SettingsEffectCameraShake>(*this);
}

} // namespace Zorvan::Proc
