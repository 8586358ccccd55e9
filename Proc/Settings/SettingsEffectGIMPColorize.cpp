#include "Proc/Settings/SettingsEffectGIMPColorize.h"

#include "Proc/Settings/FloatRange.h"
#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

namespace {

constexpr FloatRange::Range kUnitRange{0.0F, 1.0F};
constexpr FloatRange::Range kLightnessRange{-1.0F, 1.0F};
constexpr float kNotSet = -1.0F;

} // namespace

const std::string SettingsEffectGIMPColorize::CLASS_ID ZORVAN_INIT_STRINGS = "EffectGIMPColorize";

const std::string SettingsEffectGIMPColorize::s_hue ZORVAN_INIT_STRINGS = "hue";
const std::string SettingsEffectGIMPColorize::s_saturation ZORVAN_INIT_STRINGS = "saturation";
const std::string SettingsEffectGIMPColorize::s_lightness ZORVAN_INIT_STRINGS = "lightness";
const std::string SettingsEffectGIMPColorize::s_red ZORVAN_INIT_STRINGS = "red";
const std::string SettingsEffectGIMPColorize::s_green ZORVAN_INIT_STRINGS = "green";
const std::string SettingsEffectGIMPColorize::s_blue ZORVAN_INIT_STRINGS = "blue";
const std::string SettingsEffectGIMPColorize::s_intensity ZORVAN_INIT_STRINGS = "intensity";

const std::vector<std::string> SettingsEffectGIMPColorize::s_params ZORVAN_INIT_PARAMS = {
    s_hue, s_saturation, s_lightness, s_red, s_green, s_blue, s_intensity};

const std::string& SettingsEffectGIMPColorize::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectGIMPColorize::Clone() const
{
    return std::make_unique<SettingsEffectGIMPColorize>(*this);
}

bool SettingsEffectGIMPColorize::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectGIMPColorize&>(other);
}

bool SettingsEffectGIMPColorize::IsEmpty() const
{
    return NearZero(intensity);
}

void SettingsEffectGIMPColorize::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, s_params);
    const auto read = [&map](const std::string& key, const FloatRange::Range& range, float& field) {
        if (const auto value = MapForm::Find<float>(map, key)) {
            SetNewValue(*value, range, FloatRange::kInvalidValue, field);
        }
    };
    read(s_hue, kUnitRange, hue);
    read(s_saturation, kUnitRange, saturation);
    read(s_lightness, kLightnessRange, lightness);
    read(s_red, kUnitRange, red);
    read(s_green, kUnitRange, green);
    read(s_blue, kUnitRange, blue);
    // Kept so on purpose: an "intensity" in the option string leaves the record alone; only
    // SetIntensity sets it.
}

bool SettingsEffectGIMPColorize::operator==(const SettingsEffectGIMPColorize& other) const
{
    return NearlyEqual(hue, other.hue) && NearlyEqual(saturation, other.saturation) &&
           NearlyEqual(lightness, other.lightness) && NearlyEqual(red, other.red) && NearlyEqual(green, other.green) &&
           NearlyEqual(blue, other.blue) && NearlyEqual(intensity, other.intensity);
}

bool SettingsEffectGIMPColorize::operator!=(const SettingsEffectGIMPColorize& other) const
{
    return !(*this == other);
}

void SettingsEffectGIMPColorize::SetNewValue(float value, const std::pair<float, float>& range,
                                             const std::string& message, float& target)
{
    FloatRange::StoreOrThrow(value, range, message, target);
}

void SettingsEffectGIMPColorize::SetHue(float value)
{
    SetNewValue(value, kUnitRange, "Invalid value for hue", hue);
}

void SettingsEffectGIMPColorize::SetSaturation(float value)
{
    SetNewValue(value, kUnitRange, "Invalid value for saturation", saturation);
}

void SettingsEffectGIMPColorize::SetLightness(float value)
{
    SetNewValue(value, kLightnessRange, "Invalid value for lightness", lightness);
}

void SettingsEffectGIMPColorize::SetRed(float value)
{
    SetNewValue(value, kUnitRange, "Invalid value for red", red);
}

void SettingsEffectGIMPColorize::SetGreen(float value)
{
    SetNewValue(value, kUnitRange, "Invalid value for green", green);
}

void SettingsEffectGIMPColorize::SetBlue(float value)
{
    SetNewValue(value, kUnitRange, "Invalid value for blue", blue);
}

void SettingsEffectGIMPColorize::SetIntensity(float value)
{
    SetNewValue(value, kUnitRange, "Invalid value for intensity", intensity);
}

float SettingsEffectGIMPColorize::GetHue() const
{
    return hue;
}

float SettingsEffectGIMPColorize::GetSaturation() const
{
    return saturation;
}

float SettingsEffectGIMPColorize::GetLightness() const
{
    return lightness;
}

float SettingsEffectGIMPColorize::GetRed() const
{
    return red;
}

float SettingsEffectGIMPColorize::GetGreen() const
{
    return green;
}

float SettingsEffectGIMPColorize::GetBlue() const
{
    return blue;
}

float SettingsEffectGIMPColorize::GetIntensity() const
{
    return intensity;
}

bool SettingsEffectGIMPColorize::IsValidRGB() const
{
    return red != kNotSet && green != kNotSet && blue != kNotSet;
}

} // namespace Zorvan::Proc
