#include "Proc/Settings/SettingsEffectColorSelect.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectColorSelect::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectColorSelect$$";

const std::string& SettingsEffectColorSelect::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectColorSelect::Clone() const
{
    return std::make_unique<SettingsEffectColorSelect>(*this);
}

} // namespace Zorvan::Proc
