#include "Proc/Settings/SettingsEffectGIMPColorCorrection.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectGIMPColorCorrection::CLASS_ID ZORVAN_INIT_STRINGS = "EffectGIMPColorCorrection";

const std::string& SettingsEffectGIMPColorCorrection::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectGIMPColorCorrection::Clone() const
{
    return std::make_unique<SettingsEffectGIMPColorCorrection>(*this);
}

} // namespace Zorvan::Proc
