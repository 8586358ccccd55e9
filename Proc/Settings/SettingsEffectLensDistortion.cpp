#include "Proc/Settings/SettingsEffectLensDistortion.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectLensDistortion::CLASS_ID ZORVAN_INIT_STRINGS = "EffectLensDistortion";

const std::string& SettingsEffectLensDistortion::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectLensDistortion::Clone() const
{
    return std::make_unique<SettingsEffectLensDistortion>(*this);
}

} // namespace Zorvan::Proc
