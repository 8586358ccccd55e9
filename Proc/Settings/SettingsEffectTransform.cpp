#include "Proc/Settings/SettingsEffectTransform.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectTransform::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_TRANSFORM";

const std::string& SettingsEffectTransform::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectTransform::Clone() const
{
    return std::make_unique<SettingsEffectTransform>(*this);
}

} // namespace Zorvan::Proc
