#include "Proc/Settings/SettingsEffectPopArt.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectPopArt::CLASS_ID ZORVAN_INIT_STRINGS = "EffectPopArt";

const std::string& SettingsEffectPopArt::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectPopArt::Clone() const
{
    return std::make_unique<SettingsEffectPopArt>(*this);
}

} // namespace Zorvan::Proc
