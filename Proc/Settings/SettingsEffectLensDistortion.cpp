#include "Proc/Settings/SettingsEffectLensDistortion.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectLensDistortion::CLASS_ID ZORVAN_INIT_STRINGS = "EffectLensDistortion";

SettingsEffectLensDistortion::SettingsEffectLensDistortion()
    : SettingsEffectLensDistortion(0.0, 0.0, 0) // neutral defaults: no zoom, no distortion
{
}

SettingsEffectLensDistortion::SettingsEffectLensDistortion(double newZoom, double newDistortion, int newMemberCount)
    : zoom(newZoom)
    , distortion(newDistortion)
    , memberCount(newMemberCount)
    , intensity(1.0)
{
}

const std::string& SettingsEffectLensDistortion::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectLensDistortion::Clone() const
{
    return std::make_unique<SettingsEffectLensDistortion>(*this);
}

bool SettingsEffectLensDistortion::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectLensDistortion&>(other);
}

bool SettingsEffectLensDistortion::IsEmpty() const
{
    return false;
}

void SettingsEffectLensDistortion::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"zoom", "distortion", "member_count", "intensity"});
    MapForm::Read(map, "zoom", zoom);
    MapForm::Read(map, "distortion", distortion);
    MapForm::Read(map, "member_count", memberCount);
    MapForm::Read(map, "intensity", intensity);
}

bool SettingsEffectLensDistortion::operator==(const SettingsEffectLensDistortion& other) const
{
    return zoom == other.zoom && distortion == other.distortion && intensity == other.intensity;
}

void SettingsEffectLensDistortion::SetZoom(double value)
{
    zoom = value;
}

void SettingsEffectLensDistortion::SetDistortion(double value)
{
    distortion = value;
}

void SettingsEffectLensDistortion::SetMemberCount(int value)
{
    memberCount = value;
}

void SettingsEffectLensDistortion::SetIntensity(double value)
{
    intensity = value;
}

double SettingsEffectLensDistortion::GetZoom() const
{
    return zoom * intensity;
}

double SettingsEffectLensDistortion::GetDistortion() const
{
    return distortion * intensity;
}

int SettingsEffectLensDistortion::GetMemberCount() const
{
    return memberCount;
}

double SettingsEffectLensDistortion::GetIntencity() const
{
    return intensity;
}

} // namespace Zorvan::Proc
