#include "Proc/Settings/SettingsEffectGIMPHueSaturation.h"

#include <algorithm>
#include <cstddef>

#include "Proc/Settings/FloatRange.h"
#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

namespace {

using RangeValues = SettingsEffectGIMPHueSaturation::RangeValues;

constexpr FloatRange::Range kHueLimits{-180.0F, 180.0F};
constexpr FloatRange::Range kShiftLimits{-100.0F, 100.0F}; // lightness and saturation
constexpr FloatRange::Range kOverlapLimits{0.0F, 100.0F};
constexpr FloatRange::Range kIntensityLimits{0.0F, 1.0F};

// A range outside the enumeration changes nothing rather than writing past the array.
void SetClamped(RangeValues& values, SettingsEffectGIMPHueSaturation::HueRange range, float value,
                const FloatRange::Range& limits)
{
    if (range >= 0 && static_cast<std::size_t>(range) < values.size()) {
        values[static_cast<std::size_t>(range)] = FloatRange::Clamp(value, limits);
    }
}

} // namespace

const std::string SettingsEffectGIMPHueSaturation::CLASS_ID ZORVAN_INIT_STRINGS = "EffectGIMPHueSaturation";

const std::string SettingsEffectGIMPHueSaturation::s_hue_master ZORVAN_INIT_STRINGS = "hue-master";
const std::string SettingsEffectGIMPHueSaturation::s_hue_red ZORVAN_INIT_STRINGS = "hue-red";
const std::string SettingsEffectGIMPHueSaturation::s_hue_yellow ZORVAN_INIT_STRINGS = "hue-yellow";
const std::string SettingsEffectGIMPHueSaturation::s_hue_green ZORVAN_INIT_STRINGS = "hue-green";
const std::string SettingsEffectGIMPHueSaturation::s_hue_cyan ZORVAN_INIT_STRINGS = "hue-cyan";
const std::string SettingsEffectGIMPHueSaturation::s_hue_blue ZORVAN_INIT_STRINGS = "hue-blue";
const std::string SettingsEffectGIMPHueSaturation::s_hue_magenta ZORVAN_INIT_STRINGS = "hue-magenta";
const std::string SettingsEffectGIMPHueSaturation::s_lightness_master ZORVAN_INIT_STRINGS = "lightness-master";
const std::string SettingsEffectGIMPHueSaturation::s_lightness_red ZORVAN_INIT_STRINGS = "lightness-red";
const std::string SettingsEffectGIMPHueSaturation::s_lightness_yellow ZORVAN_INIT_STRINGS = "lightness-yellow";
const std::string SettingsEffectGIMPHueSaturation::s_lightness_green ZORVAN_INIT_STRINGS = "lightness-green";
const std::string SettingsEffectGIMPHueSaturation::s_lightness_cyan ZORVAN_INIT_STRINGS = "lightness-cyan";
const std::string SettingsEffectGIMPHueSaturation::s_lightness_blue ZORVAN_INIT_STRINGS = "lightness-blue";
const std::string SettingsEffectGIMPHueSaturation::s_lightness_magenta ZORVAN_INIT_STRINGS = "lightness-magenta";
const std::string SettingsEffectGIMPHueSaturation::s_saturation_master ZORVAN_INIT_STRINGS = "saturation-master";
const std::string SettingsEffectGIMPHueSaturation::s_saturation_red ZORVAN_INIT_STRINGS = "saturation-red";
const std::string SettingsEffectGIMPHueSaturation::s_saturation_yellow ZORVAN_INIT_STRINGS = "saturation-yellow";
const std::string SettingsEffectGIMPHueSaturation::s_saturation_green ZORVAN_INIT_STRINGS = "saturation-green";
const std::string SettingsEffectGIMPHueSaturation::s_saturation_cyan ZORVAN_INIT_STRINGS = "saturation-cyan";
const std::string SettingsEffectGIMPHueSaturation::s_saturation_blue ZORVAN_INIT_STRINGS = "saturation-blue";
const std::string SettingsEffectGIMPHueSaturation::s_saturation_magenta ZORVAN_INIT_STRINGS = "saturation-magenta";
const std::string SettingsEffectGIMPHueSaturation::s_overlap ZORVAN_INIT_STRINGS = "overlap";
const std::string SettingsEffectGIMPHueSaturation::s_intensity ZORVAN_INIT_STRINGS = "intensity";

const std::vector<std::string> SettingsEffectGIMPHueSaturation::s_params ZORVAN_INIT_PARAMS = {
    s_hue_master,         s_hue_red,           s_hue_yellow,       s_hue_green,         s_hue_cyan,
    s_hue_blue,           s_hue_magenta,       s_lightness_master, s_lightness_red,     s_lightness_yellow,
    s_lightness_green,    s_lightness_cyan,    s_lightness_blue,   s_lightness_magenta, s_saturation_master,
    s_saturation_red,     s_saturation_yellow, s_saturation_green, s_saturation_cyan,   s_saturation_blue,
    s_saturation_magenta, s_overlap,           s_intensity,
};

const std::string& SettingsEffectGIMPHueSaturation::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectGIMPHueSaturation::Clone() const
{
    return std::make_unique<SettingsEffectGIMPHueSaturation>(*this);
}

bool SettingsEffectGIMPHueSaturation::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectGIMPHueSaturation&>(other);
}

bool SettingsEffectGIMPHueSaturation::IsEmpty() const
{
    const auto zero = [](const RangeValues& values) {
        return std::all_of(values.begin(), values.end(), [](float value) { return value == 0.0F; });
    };
    return (zero(hue) && zero(lightness) && zero(saturation)) || intensity == 0.0F;
}

void SettingsEffectGIMPHueSaturation::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, s_params);
    using Keys = std::array<const std::string*, 7>;
    // One group's keys in HueRange order, each clamped into its array.
    const auto readGroup = [&map](const Keys& keys, const FloatRange::Range& limits, RangeValues& values) {
        for (std::size_t i = 0; i < keys.size(); ++i) {
            if (const auto value = MapForm::Find<float>(map, *keys[i])) {
                values[i] = FloatRange::Clamp(*value, limits);
            }
        }
    };
    readGroup(Keys{&s_hue_master, &s_hue_red, &s_hue_yellow, &s_hue_green, &s_hue_cyan, &s_hue_blue, &s_hue_magenta},
              kHueLimits, hue);
    readGroup(Keys{&s_lightness_master, &s_lightness_red, &s_lightness_yellow, &s_lightness_green, &s_lightness_cyan,
                   &s_lightness_blue, &s_lightness_magenta},
              kShiftLimits, lightness);
    readGroup(Keys{&s_saturation_master, &s_saturation_red, &s_saturation_yellow, &s_saturation_green,
                   &s_saturation_cyan, &s_saturation_blue, &s_saturation_magenta},
              kShiftLimits, saturation);
    if (const auto value = MapForm::Find<float>(map, s_overlap)) {
        SetOverlap(*value);
    }
    if (const auto value = MapForm::Find<float>(map, s_intensity)) {
        SetIntensity(*value);
    }
}

bool SettingsEffectGIMPHueSaturation::operator==(const SettingsEffectGIMPHueSaturation& other) const
{
    return IsEquals(hue, other.hue) && IsEquals(lightness, other.lightness) && IsEquals(saturation, other.saturation) &&
           NearlyEqual(overlap, other.overlap) && NearlyEqual(intensity, other.intensity);
}

bool SettingsEffectGIMPHueSaturation::IsEquals(const RangeValues& left, const RangeValues& right)
{
    return std::equal(left.begin(), left.end(), right.begin(), [](float a, float b) { return NearlyEqual(a, b); });
}

void SettingsEffectGIMPHueSaturation::SetHue(HueRange range, float value)
{
    SetClamped(hue, range, value, kHueLimits);
}

void SettingsEffectGIMPHueSaturation::SetLightness(HueRange range, float value)
{
    SetClamped(lightness, range, value, kShiftLimits);
}

void SettingsEffectGIMPHueSaturation::SetSaturation(HueRange range, float value)
{
    SetClamped(saturation, range, value, kShiftLimits);
}

void SettingsEffectGIMPHueSaturation::SetOverlap(float value)
{
    overlap = FloatRange::Clamp(value, kOverlapLimits);
}

void SettingsEffectGIMPHueSaturation::SetIntensity(float value)
{
    intensity = FloatRange::Clamp(value, kIntensityLimits);
}

const SettingsEffectGIMPHueSaturation::RangeValues& SettingsEffectGIMPHueSaturation::GetHue() const
{
    return hue;
}

const SettingsEffectGIMPHueSaturation::RangeValues& SettingsEffectGIMPHueSaturation::GetLightness() const
{
    return lightness;
}

const SettingsEffectGIMPHueSaturation::RangeValues& SettingsEffectGIMPHueSaturation::GetSaturation() const
{
    return saturation;
}

float SettingsEffectGIMPHueSaturation::GetOverlap() const
{
    return overlap;
}

float SettingsEffectGIMPHueSaturation::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc
