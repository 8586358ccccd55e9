#include "Proc/Settings/SettingsEffectEmboss.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectEmboss::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_EMBOSS";

const std::string& SettingsEffectEmboss::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectEmboss::Clone() const
{
    return std::make_unique<SettingsEffectEmboss>(*this);
}

} // namespace Zorvan::Proc
