#include "Proc/Settings/SettingsEffectDisplacementMap.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectDisplacementMap::CLASS_ID ZORVAN_INIT_STRINGS = "EffectDisplacementMap";

const std::string& SettingsEffectDisplacementMap::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectDisplacementMap::Clone() const
{
    return std::make_unique<SettingsEffectDisplacementMap>(*this);
}

} // namespace Zorvan::Proc
