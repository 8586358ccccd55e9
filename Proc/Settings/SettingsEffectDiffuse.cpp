#include "Proc/Settings/SettingsEffectDiffuse.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectDiffuse::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectDiffuse$$";

const std::string& SettingsEffectDiffuse::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectDiffuse::Clone() const
{
    return std::make_unique<SettingsEffectDiffuse>(*this);
}

} // namespace Zorvan::Proc
