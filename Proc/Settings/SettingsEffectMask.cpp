#include "Proc/Settings/SettingsEffectMask.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectMask::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectMask$$";

const std::string& SettingsEffectMask::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectMask::Clone() const
{
    return std::make_unique<SettingsEffectMask>(*this);
}

} // namespace Zorvan::Proc
