#include "Proc/Settings/SettingsEffectColorCurves.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectColorCurves::CLASS_ID ZORVAN_INIT_STRINGS = "EffectColorCurves";

const std::string& SettingsEffectColorCurves::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectColorCurves::Clone() const
{
    return std::make_unique<SettingsEffectColorCurves>(*this);
}

} // namespace Zorvan::Proc
