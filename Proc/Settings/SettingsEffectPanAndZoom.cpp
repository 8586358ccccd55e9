#include "Proc/Settings/SettingsEffectPanAndZoom.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectPanAndZoom::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectPanAndZoom$$";

const std::string& SettingsEffectPanAndZoom::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectPanAndZoom::Clone() const
{
    return std::make_unique<SettingsEffectPanAndZoom>(*this);
}

} // namespace Zorvan::Proc
