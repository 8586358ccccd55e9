#include "Proc/Settings/SettingsEffectTiltShiftVEZ.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectTiltShiftVEZ::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectTiltShiftVEZ$$";

const std::string& SettingsEffectTiltShiftVEZ::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectTiltShiftVEZ::Clone() const
{
    return std::make_unique<SettingsEffectTiltShiftVEZ>(*this);
}

} // namespace Zorvan::Proc
