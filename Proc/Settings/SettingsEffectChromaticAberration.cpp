#include "Proc/Settings/SettingsEffectChromaticAberration.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectChromaticAberration::CLASS_ID ZORVAN_INIT_STRINGS = "EffectChromaticAberration";

const std::string& SettingsEffectChromaticAberration::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectChromaticAberration::Clone() const
{
    return std::make_unique<SettingsEffectChromaticAberration>(*this);
}

} // namespace Zorvan::Proc
