#include "Proc/Settings/SettingsEffectEdgeDetect.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectEdgeDetect::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_EDGE_DETECT";

const std::string& SettingsEffectEdgeDetect::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectEdgeDetect::Clone() const
{
    return std::make_unique<SettingsEffectEdgeDetect>(*this);
}

bool SettingsEffectEdgeDetect::operator==(const SettingsEffectEdgeDetect& other) const
{
    return lowThreshold == other.lowThreshold && highThreshold == other.highThreshold && invert == other.invert;
}

void SettingsEffectEdgeDetect::SetLowThreshold(int value)
{
    lowThreshold = value;
}

void SettingsEffectEdgeDetect::SetHighThreshold(int value)
{
    highThreshold = value;
}

void SettingsEffectEdgeDetect::SetInvert(bool value)
{
    invert = value;
}

int SettingsEffectEdgeDetect::GetLowThreshold() const
{
    return lowThreshold;
}

int SettingsEffectEdgeDetect::GetHighThreshold() const
{
    return highThreshold;
}

bool SettingsEffectEdgeDetect::GetInvert() const
{
    return invert;
}

} // namespace Zorvan::Proc
