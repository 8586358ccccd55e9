#include "Proc/Settings/SettingsEffectColorBrush.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectColorBrush::CLASS_ID ZORVAN_INIT_STRINGS = "EffectColorBrush";

const std::string& SettingsEffectColorBrush::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectColorBrush::Clone() const
{
    return std::make_unique<SettingsEffectColorBrush>(*this);
}

} // namespace Zorvan::Proc
