#include "Proc/Settings/SettingsEffectLUT.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectLUT::CLASS_ID ZORVAN_INIT_STRINGS = "EffectLUT";

const std::string& SettingsEffectLUT::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectLUT::Clone() const
{
    return std::make_unique<SettingsEffectLUT>(*this);
}

} // namespace Zorvan::Proc
