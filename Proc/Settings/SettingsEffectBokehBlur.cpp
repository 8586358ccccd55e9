#include "Proc/Settings/SettingsEffectBokehBlur.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectBokehBlur::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectBokehBlur$$";

const std::string& SettingsEffectBokehBlur::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectBokehBlur::Clone() const
{
    return std::make_unique<SettingsEffectBokehBlur>(*this);
}

} // namespace Zorvan::Proc
