#include "Proc/Settings/SettingsEffectNeonLamp.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectNeonLamp::CLASS_ID ZORVAN_INIT_STRINGS = "EffectNeonLamp";

const std::string& SettingsEffectNeonLamp::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectNeonLamp::Clone() const
{
    return std::make_unique<SettingsEffectNeonLamp>(*this);
}

} // namespace Zorvan::Proc
