#include "Proc/Settings/SettingsEffectNoiseVideo.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectNoiseVideo::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_NOISE_VIDEO";

SettingsEffectNoiseVideo::SettingsEffectNoiseVideo()
    : SettingsEffectNoiseVideo(0, Method::Uniform)
{
}

SettingsEffectNoiseVideo::SettingsEffectNoiseVideo(int newStrength, Method newMethod)
    : method(newMethod)
    , strength(newStrength)
{
}

const std::string& SettingsEffectNoiseVideo::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectNoiseVideo::Clone() const
{
    return std::make_unique<SettingsEffectNoiseVideo>(*this);
}

bool SettingsEffectNoiseVideo::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectNoiseVideo&>(other);
}

bool SettingsEffectNoiseVideo::IsEmpty() const
{
    return strength == 0;
}

bool SettingsEffectNoiseVideo::operator==(const SettingsEffectNoiseVideo& other) const
{
    return method == other.method && strength == other.strength;
}

void SettingsEffectNoiseVideo::SetMethod(Method value)
{
    method = value;
}

void SettingsEffectNoiseVideo::SetSeed(int value)
{
    seed = value;
}

void SettingsEffectNoiseVideo::SetStrength(int value)
{
    strength = value;
}

SettingsEffectNoiseVideo::Method SettingsEffectNoiseVideo::GetMethod() const
{
    return method;
}

int SettingsEffectNoiseVideo::GetSeed() const
{
    return seed;
}

int SettingsEffectNoiseVideo::GetStrength() const
{
    return strength;
}

} // namespace Zorvan::Proc
