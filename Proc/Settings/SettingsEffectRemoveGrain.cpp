#include "Proc/Settings/SettingsEffectRemoveGrain.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectRemoveGrain::CLASS_ID ZORVAN_INIT_STRINGS = "EffectRemoveGrain";

const std::string& SettingsEffectRemoveGrain::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectRemoveGrain::Clone() const
{
    return std::make_unique<SettingsEffectRemoveGrain>(*this);
}

} // namespace Zorvan::Proc
