#include "Proc/Settings/SettingsEffectImageBlender.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectImageBlender::CLASS_ID ZORVAN_INIT_STRINGS = "$$BLEND$$";

SettingsEffectImageBlender::SettingsEffectImageBlender(int x, int y, int opacity, BlendAlphaMode mode)
    : SettingsEffectColorBlender(x, y, static_cast<float>(opacity) / 255.0F, mode)
{
}

const std::string& SettingsEffectImageBlender::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectImageBlender::Clone() const
{
    return std::make_unique<SettingsEffectImageBlender>(*this);
}

} // namespace Zorvan::Proc
