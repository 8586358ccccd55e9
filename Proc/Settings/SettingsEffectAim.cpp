#include "Proc/Settings/SettingsEffectAim.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectAim::CLASS_ID ZORVAN_INIT_STRINGS = "EffectAim";

const std::string& SettingsEffectAim::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectAim::Clone() const
{
    return std::make_unique<SettingsEffectAim>(*this);
}

} // namespace Zorvan::Proc
