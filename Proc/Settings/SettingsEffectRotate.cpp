#include "Proc/Settings/SettingsEffectRotate.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectRotate::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_ROTATE";

const std::string& SettingsEffectRotate::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectRotate::Clone() const
{
    return std::make_unique<SettingsEffectRotate>(*this);
}

} // namespace Zorvan::Proc
