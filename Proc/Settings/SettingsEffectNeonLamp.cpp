#include "Proc/Settings/SettingsEffectNeonLamp.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/Saturate.h"

namespace Zorvan::Proc {

const std::string SettingsEffectNeonLamp::CLASS_ID ZORVAN_INIT_STRINGS = "EffectNeonLamp";

const std::string& SettingsEffectNeonLamp::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectNeonLamp::Clone() const
{
    return std::make_unique<SettingsEffectNeonLamp>(*this);
}

bool SettingsEffectNeonLamp::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectNeonLamp&>(other);
}

bool SettingsEffectNeonLamp::IsEmpty() const
{
    return false;
}

void SettingsEffectNeonLamp::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto red = GetOption<unsigned char>(options, "r", "");
    const auto green = GetOption<unsigned char>(options, "g", "");
    const auto blue = GetOption<unsigned char>(options, "b", "");
    if (red && green && blue) {
        color = MapForm::PackColor(*red, *green, *blue, 255U);
    }
    if (const auto value = GetOption<double>(options, "intensity", "")) {
        SetIntensity(*value);
    }
}

bool SettingsEffectNeonLamp::operator==(const SettingsEffectNeonLamp& other) const
{
    return intensity == other.intensity && color == other.color;
}

void SettingsEffectNeonLamp::SetIntensity(double value)
{
    intensity = Saturate(value, 0.0, 1.0);
}

void SettingsEffectNeonLamp::SetColor(Color value)
{
    color = value;
}

double SettingsEffectNeonLamp::GetIntensity() const
{
    return intensity;
}

Color SettingsEffectNeonLamp::GetColor() const
{
    return color;
}

} // namespace Zorvan::Proc
