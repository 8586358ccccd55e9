#include "Proc/Settings/SettingsEffectStabilizer.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectStabilizer::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_VIDSTAB";

const std::string& SettingsEffectStabilizer::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectStabilizer::Clone() const
{
    return std::make_unique<SettingsEffectStabilizer>(*this);
}

bool SettingsEffectStabilizer::operator==(const SettingsEffectStabilizer& other) const
{
    return tripod == other.tripod && relative == other.relative && transformsPath == other.transformsPath &&
           smoothing == other.smoothing && zoom == other.zoom;
}

void SettingsEffectStabilizer::SetTripod(bool value)
{
    tripod = value;
}

void SettingsEffectStabilizer::SetRelative(bool value)
{
    relative = value;
}

void SettingsEffectStabilizer::SetTransformsPath(const std::string& value)
{
    transformsPath = value;
}

void SettingsEffectStabilizer::SetSmoothing(std::int32_t value)
{
    smoothing = value;
}

void SettingsEffectStabilizer::SetZoom(double value)
{
    zoom = value;
}

bool SettingsEffectStabilizer::GetTripod() const
{
    return tripod;
}

bool SettingsEffectStabilizer::GetRelative() const
{
    return relative;
}

const std::string& SettingsEffectStabilizer::GetTransformsPath() const
{
    return transformsPath;
}

std::int32_t SettingsEffectStabilizer::GetSmoothing() const
{
    return smoothing;
}

double SettingsEffectStabilizer::GetZoom() const
{
    return zoom;
}

} // namespace Zorvan::Proc
