#include "Proc/Settings/SettingsEffectPosterize.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectPosterize::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_POSTERIZE";

const std::string& SettingsEffectPosterize::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectPosterize::Clone() const
{
    return std::make_unique<SettingsEffectPosterize>(*this);
}

} // namespace Zorvan::Proc
