#include "Proc/Settings/SettingsEffectVideoAlphaEnvelope.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectVideoAlphaEnvelope::CLASS_ID ZORVAN_INIT_STRINGS = "EffectVideoAlphaEnvelope";

const std::string& SettingsEffectVideoAlphaEnvelope::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectVideoAlphaEnvelope::Clone() const
{
    return std::make_unique<SettingsEffectVideoAlphaEnvelope>(*this);
}

} // namespace Zorvan::Proc
