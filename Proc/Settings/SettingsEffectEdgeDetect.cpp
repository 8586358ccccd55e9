#include "Proc/Settings/SettingsEffectEdgeDetect.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectEdgeDetect::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_EDGE_DETECT";

const std::string& SettingsEffectEdgeDetect::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectEdgeDetect::Clone() const
{
    return std::make_unique<SettingsEffectEdgeDetect>(*this);
}

} // namespace Zorvan::Proc
