#include "Proc/Settings/SettingsEffectStabilizer.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectStabilizer::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_VIDSTAB";

const std::string& SettingsEffectStabilizer::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectStabilizer::Clone() const
{
    return std::make_unique<SettingsEffectStabilizer>(*this);
}

} // namespace Zorvan::Proc
