#include "Proc/Settings/SettingsEffectRetroColors.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectRetroColors::CLASS_ID ZORVAN_INIT_STRINGS = "$$Effect_Retro_Colors$$";

const std::string& SettingsEffectRetroColors::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectRetroColors::Clone() const
{
    return std::make_unique<SettingsEffectRetroColors>(*this);
}

} // namespace Zorvan::Proc
