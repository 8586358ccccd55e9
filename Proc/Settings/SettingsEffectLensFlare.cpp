#include "Proc/Settings/SettingsEffectLensFlare.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectLensFlare::CLASS_ID ZORVAN_INIT_STRINGS = "EffectLensFlare";

const std::string& SettingsEffectLensFlare::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectLensFlare::Clone() const
{
    return std::make_unique<SettingsEffectLensFlare>(*this);
}

} // namespace Zorvan::Proc
