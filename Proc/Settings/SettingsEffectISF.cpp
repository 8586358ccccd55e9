#include "Proc/Settings/SettingsEffectISF.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectISF::CLASS_ID ZORVAN_INIT_STRINGS = "EffectISF";

const std::string& SettingsEffectISF::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectISF::Clone() const
{
    return std::make_unique<SettingsEffectISF>(*this);
}

} // namespace Zorvan::Proc
