#include "Proc/Settings/SettingsEffectWatermark.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectWatermark::CLASS_ID ZORVAN_INIT_STRINGS = "EffectWatermark";

const std::string& SettingsEffectWatermark::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectWatermark::Clone() const
{
    return std::make_unique<SettingsEffectWatermark>(*this);
}

} // namespace Zorvan::Proc
