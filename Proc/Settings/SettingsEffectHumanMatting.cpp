#include "Proc/Settings/SettingsEffectHumanMatting.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectHumanMatting::CLASS_ID ZORVAN_INIT_STRINGS = "EffectHumanMatting";

const std::string& SettingsEffectHumanMatting::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectHumanMatting::Clone() const
{
    return std::make_unique<SettingsEffectHumanMatting>(*this);
}

} // namespace Zorvan::Proc
