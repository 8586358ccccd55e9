#include "Proc/Settings/SettingsEffectShiftLuma.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectShiftLuma::CLASS_ID ZORVAN_INIT_STRINGS = "EffectShiftLuma";

const std::string& SettingsEffectShiftLuma::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectShiftLuma::Clone() const
{
    return std::make_unique<SettingsEffectShiftLuma>(*this);
}

} // namespace Zorvan::Proc
