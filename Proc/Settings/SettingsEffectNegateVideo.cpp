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

bool SettingsEffectNegateVideo::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectNegateVideo&>(other);
}

bool SettingsEffectNegateVideo::IsEmpty() const
{
    return mode == 0;
}

bool SettingsEffectNegateVideo::operator==(const SettingsEffectNegateVideo& other) const
{
    return mode == other.mode;
}

void SettingsEffectNegateVideo::SetMode(int value)
{
    mode = value;
}

int SettingsEffectNegateVideo::GetMode() const
{
    return mode;
}

} // namespace Zorvan::Proc
