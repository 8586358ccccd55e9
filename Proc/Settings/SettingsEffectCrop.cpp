#include "Proc/Settings/SettingsEffectCrop.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectCrop::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_CROP";

const std::string& SettingsEffectCrop::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectCrop::Clone() const
{
    return std::make_unique<SettingsEffectCrop>(*this);
}

} // namespace Zorvan::Proc
