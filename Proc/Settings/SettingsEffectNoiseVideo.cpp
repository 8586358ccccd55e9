#include "Proc/Settings/SettingsEffectNoiseVideo.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectNoiseVideo::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_NOISE_VIDEO";

const std::string& SettingsEffectNoiseVideo::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectNoiseVideo::Clone() const
{
    return std::make_unique<SettingsEffectNoiseVideo>(*this);
}

} // namespace Zorvan::Proc
