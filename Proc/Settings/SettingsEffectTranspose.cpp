#include "Proc/Settings/SettingsEffectTranspose.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectTranspose::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_TRANSPOSE";

const std::string& SettingsEffectTranspose::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectTranspose::Clone() const
{
    return std::make_unique<SettingsEffectTranspose>(*this);
}

} // namespace Zorvan::Proc
