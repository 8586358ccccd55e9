#include "Proc/Settings/SettingsEffectMotionBlur.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectMotionBlur::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectMotionBlur$$";

const std::string& SettingsEffectMotionBlur::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectMotionBlur::Clone() const
{
    return std::make_unique<SettingsEffectMotionBlur>(*this);
}

} // namespace Zorvan::Proc
