#include "Proc/Settings/SettingsEffectGlitchMpeg.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectGlitchMpeg::CLASS_ID ZORVAN_INIT_STRINGS = "EffectGlitchMpeg";

const std::string& SettingsEffectGlitchMpeg::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectGlitchMpeg::Clone() const
{
    return std::make_unique<SettingsEffectGlitchMpeg>(*this);
}

} // namespace Zorvan::Proc
