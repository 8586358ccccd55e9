#include "Proc/Settings/SettingsEffectOilPaint.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectOilPaint::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_OIL_PAINT";

const std::string& SettingsEffectOilPaint::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectOilPaint::Clone() const
{
    return std::make_unique<SettingsEffectOilPaint>(*this);
}

} // namespace Zorvan::Proc
