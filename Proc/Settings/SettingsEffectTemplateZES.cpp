#include "Proc/Settings/SettingsEffectTemplateZES.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectTemplateZES::CLASS_ID ZORVAN_INIT_STRINGS = "EffectTemplateZES";

const std::string& SettingsEffectTemplateZES::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectTemplateZES::Clone() const
{
    return std::make_unique<SettingsEffectTemplateZES>(*this);
}

} // namespace Zorvan::Proc
