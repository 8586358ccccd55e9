#include "Proc/Settings/SettingsEffectBorder.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectBorder::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_BORDER";

const std::string& SettingsEffectBorder::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectBorder::Clone() const
{
    return std::make_unique<SettingsEffectBorder>(*this);
}

} // namespace Zorvan::Proc
