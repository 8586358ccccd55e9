#include "Proc/Settings/SettingsEffectMultiInputISF.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectMultiInputISF::CLASS_ID ZORVAN_INIT_STRINGS = "EffectMultiInputISF";

const std::string& SettingsEffectMultiInputISF::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectMultiInputISF::Clone() const
{
    return std::make_unique<SettingsEffectMultiInputISF>(*this);
}

} // namespace Zorvan::Proc
