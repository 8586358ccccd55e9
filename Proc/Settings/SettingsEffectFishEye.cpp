#include "Proc/Settings/SettingsEffectFishEye.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectFishEye::CLASS_ID ZORVAN_INIT_STRINGS = "EffectFishEye";

const std::string& SettingsEffectFishEye::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectFishEye::Clone() const
{
    return std::make_unique<SettingsEffectFishEye>(*this);
}

} // namespace Zorvan::Proc
