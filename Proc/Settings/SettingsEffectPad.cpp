#include "Proc/Settings/SettingsEffectPad.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectPad::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_PAD";

const std::string& SettingsEffectPad::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectPad::Clone() const
{
    return std::make_unique<SettingsEffectPad>(*this);
}

} // namespace Zorvan::Proc
