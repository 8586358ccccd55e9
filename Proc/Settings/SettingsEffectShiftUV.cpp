#include "Proc/Settings/SettingsEffectShiftUV.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectShiftUV::CLASS_ID ZORVAN_INIT_STRINGS = "EffectShiftUV";

const std::string& SettingsEffectShiftUV::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectShiftUV::Clone() const
{
    return std::make_unique<SettingsEffectShiftUV>(*this);
}

} // namespace Zorvan::Proc
