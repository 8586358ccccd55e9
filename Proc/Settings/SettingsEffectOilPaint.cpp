#include "Proc/Settings/SettingsEffectOilPaint.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectOilPaint::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_OIL_PAINT";

const std::string& SettingsEffectOilPaint::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectOilPaint::Clone() const
{
    return std::make_unique<SettingsEffectOilPaint>(*this);
}

bool SettingsEffectOilPaint::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectOilPaint&>(other);
}

bool SettingsEffectOilPaint::IsEmpty() const
{
    return radius == 0 || NearZero(intensity);
}

void SettingsEffectOilPaint::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"radius", "intensity"});
    MapForm::Read(map, "radius", radius);
    MapForm::Read(map, "intensity", intensity);
}

bool SettingsEffectOilPaint::operator==(const SettingsEffectOilPaint& other) const
{
    return radius == other.radius && intensity == other.intensity;
}

void SettingsEffectOilPaint::SetRadius(int value)
{
    radius = value;
}

void SettingsEffectOilPaint::SetIntensity(float value)
{
    intensity = value;
}

int SettingsEffectOilPaint::GetRadius() const
{
    return radius;
}

float SettingsEffectOilPaint::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc
