#include "Proc/Settings/SettingsEffectGlitchSecurityCam.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectGlitchSecurityCam::CLASS_ID ZORVAN_INIT_STRINGS = "EffectGlitchSecurityCam";

const std::string& SettingsEffectGlitchSecurityCam::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectGlitchSecurityCam::Clone() const
{
    return std::make_unique<SettingsEffectGlitchSecurityCam>(*this);
}

} // namespace Zorvan::Proc
