#include "Proc/Settings/SettingsEffectTwirl.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectTwirl::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectTwirl$$";

const std::string& SettingsEffectTwirl::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectTwirl::Clone() const
{
    return std::make_unique<SettingsEffectTwirl>(*this);
}

} // namespace Zorvan::Proc
