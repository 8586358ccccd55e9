#include "Proc/Settings/SettingsEffectColorSelect.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectColorSelect::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectColorSelect$$";

const std::string& SettingsEffectColorSelect::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectColorSelect::Clone() const
{
    return std::make_unique<SettingsEffectColorSelect>(*this);
}

void SettingsEffectColorSelect::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map =
        GetOptionsMap(options, {"angle", "noise", "harshness", "transparency", "r", "g", "b", "intensity"});
    if (const auto texts = MapForm::FindAll<3>(map, {"r", "g", "b"})) {
        const int red = MapForm::Convert<int>((*texts)[0]);
        const int green = MapForm::Convert<int>((*texts)[1]);
        const int blue = MapForm::Convert<int>((*texts)[2]);
        color = MapForm::PackColor(static_cast<std::uint32_t>(red), static_cast<std::uint32_t>(green),
                                   static_cast<std::uint32_t>(blue), 0U);
    }
    MapForm::Read(map, "angle", angle);
    MapForm::Read(map, "noise", noise);
    MapForm::Read(map, "harshness", harshness);
    MapForm::Read(map, "transparency", transparency);
    MapForm::Read(map, "intensity", intensity);
}

void SettingsEffectColorSelect::SetParams(int newAngle, double newNoise, double newHarshness, double newTransparency)
{
    angle = newAngle;
    noise = newNoise;
    harshness = newHarshness;
    transparency = newTransparency;
}

void SettingsEffectColorSelect::SetIntensity(float value)
{
    intensity = value;
}

int SettingsEffectColorSelect::GetAngle() const
{
    return angle;
}

double SettingsEffectColorSelect::GetNoise() const
{
    return noise;
}

double SettingsEffectColorSelect::GetHarshness() const
{
    return harshness;
}

double SettingsEffectColorSelect::GetTransparency() const
{
    return transparency;
}

Color SettingsEffectColorSelect::GetColor() const
{
    return color;
}

float SettingsEffectColorSelect::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc
