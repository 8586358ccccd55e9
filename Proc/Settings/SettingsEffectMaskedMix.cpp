#include "Proc/Settings/SettingsEffectMaskedMix.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectMaskedMix::CLASS_ID ZORVAN_INIT_STRINGS = "EffectMaskedMix";

const std::string& SettingsEffectMaskedMix::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectMaskedMix::Clone() const
{
    return std::make_unique<SettingsEffectMaskedMix>(*this);
}

} // namespace Zorvan::Proc
