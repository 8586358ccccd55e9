#include "Proc/Settings/SettingsEffectFlip.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectFlip::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_FLIP";

const std::string& SettingsEffectFlip::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectFlip::Clone() const
{
    return std::make_unique<SettingsEffectFlip>(*this);
}

} // namespace Zorvan::Proc
