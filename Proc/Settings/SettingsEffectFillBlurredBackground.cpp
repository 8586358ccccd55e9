#include "Proc/Settings/SettingsEffectFillBlurredBackground.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectFillBlurredBackground::CLASS_ID ZORVAN_INIT_STRINGS = "EffectFillBlurredBackground";

const std::string& SettingsEffectFillBlurredBackground::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectFillBlurredBackground::Clone() const
{
    return std::make_unique<SettingsEffectFillBlurredBackground>(*this);
}

} // namespace Zorvan::Proc
