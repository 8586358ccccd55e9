#include "Proc/Settings/SettingsEffectColorBrush.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectColorBrush::CLASS_ID ZORVAN_INIT_STRINGS = "EffectColorBrush";

const std::string& SettingsEffectColorBrush::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectColorBrush::Clone() const
{
    return std::make_unique<SettingsEffectColorBrush>(*this);
}

void SettingsEffectColorBrush::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"angle", "size", "rough", "type", "intensity"});
    MapForm::Read(map, "angle", angle);
    MapForm::Read(map, "size", size);
    MapForm::Read(map, "rough", rough);
    MapForm::Read(map, "type", type);
    MapForm::Read(map, "intensity", intensity);
}

void SettingsEffectColorBrush::SetIntensity(float value)
{
    intensity = value;
}

int SettingsEffectColorBrush::GetAngle() const
{
    return angle;
}

int SettingsEffectColorBrush::GetSize() const
{
    return size;
}

int SettingsEffectColorBrush::GetRough() const
{
    return rough;
}

int SettingsEffectColorBrush::GetType() const
{
    return type;
}

float SettingsEffectColorBrush::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc
