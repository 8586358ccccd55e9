#include "Proc/Settings/SettingsEffectEmboss.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectEmboss::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_EMBOSS";

const std::string& SettingsEffectEmboss::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectEmboss::Clone() const
{
    return std::make_unique<SettingsEffectEmboss>(*this);
}

bool SettingsEffectEmboss::operator==(const SettingsEffectEmboss& other) const
{
    return angle == other.angle && depth == other.depth && grayscale == other.grayscale;
}

void SettingsEffectEmboss::SetAngle(int value)
{
    angle = value;
}

void SettingsEffectEmboss::SetDepth(int value)
{
    depth = value;
}

void SettingsEffectEmboss::SetGrayscale(bool value)
{
    grayscale = value;
}

int SettingsEffectEmboss::GetAngle() const
{
    return angle;
}

int SettingsEffectEmboss::GetDepth() const
{
    return depth;
}

bool SettingsEffectEmboss::GetGrayscale() const
{
    return grayscale;
}

} // namespace Zorvan::Proc
