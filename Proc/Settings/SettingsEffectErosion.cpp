#include "Proc/Settings/SettingsEffectErosion.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectErosion::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectErosion$$";

const std::string& SettingsEffectErosion::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectErosion::Clone() const
{
    return std::make_unique<SettingsEffectErosion>(*this);
}

} // namespace Zorvan::Proc
