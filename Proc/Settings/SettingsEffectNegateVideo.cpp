#include "Proc/Settings/SettingsEffectNegateVideo.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectNegateVideo::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_NEGATE_VIDEO";

const std::string& SettingsEffectNegateVideo::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectNegateVideo::Clone() const
{
    return std::make_unique<SettingsEffectNegateVideo>(*this);
}

} // namespace Zorvan::Proc
