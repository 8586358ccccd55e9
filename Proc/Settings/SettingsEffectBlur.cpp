#include "Proc/Settings/SettingsEffectBlur.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectBlur::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_BLUR";

const std::string& SettingsEffectBlur::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectBlur::Clone() const
{
    return std::make_unique<SettingsEffectBlur>(*this);
}

} // namespace Zorvan::Proc
