#include "Proc/Settings/SettingsEffectCensored.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectCensored::CLASS_ID ZORVAN_INIT_STRINGS = "EffectCensored";

const std::string& SettingsEffectCensored::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectCensored::Clone() const
{
    return std::make_unique<SettingsEffectCensored>(*this);
}

} // namespace Zorvan::Proc
