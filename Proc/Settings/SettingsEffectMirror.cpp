#include "Proc/Settings/SettingsEffectMirror.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectMirror::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectMirror$$";

const std::string& SettingsEffectMirror::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectMirror::Clone() const
{
    return std::make_unique<SettingsEffectMirror>(*this);
}

} // namespace Zorvan::Proc
