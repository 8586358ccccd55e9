#include "Proc/Settings/SettingsEffectAddNoize.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectAddNoize::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectAddNoize$$";

const std::string& SettingsEffectAddNoize::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectAddNoize::Clone() const
{
    return std::make_unique<SettingsEffectAddNoize>(*this);
}

} // namespace Zorvan::Proc
