#include "Proc/Settings/SettingsEffectGIMPColorize.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectGIMPColorize::CLASS_ID ZORVAN_INIT_STRINGS = "EffectGIMPColorize";

const std::string& SettingsEffectGIMPColorize::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectGIMPColorize::Clone() const
{
    return std::make_unique<SettingsEffectGIMPColorize>(*this);
}

} // namespace Zorvan::Proc
