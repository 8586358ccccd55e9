#include "Proc/Settings/SettingsEffectSmartBlur.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectSmartBlur::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_SMARTBLUR";

const std::string& SettingsEffectSmartBlur::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectSmartBlur::Clone() const
{
    return std::make_unique<SettingsEffectSmartBlur>(*this);
}

} // namespace Zorvan::Proc
