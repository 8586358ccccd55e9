#include "Proc/Settings/SettingsEffectGIMPColorTemperature.h"

#include "Proc/Settings/FloatRange.h"
#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

namespace {

constexpr FloatRange::Range kTemperatureRange{1000.0F, 12000.0F};
constexpr FloatRange::Range kIntensityRange{0.0F, 1.0F};
constexpr float kNeutralTemperature = 6500.0F;

} // namespace

const std::string SettingsEffectGIMPColorTemperature::CLASS_ID ZORVAN_INIT_STRINGS = "EffectGIMPColorTemperature";

const std::string SettingsEffectGIMPColorTemperature::s_originalTemperature ZORVAN_INIT_STRINGS =
    "original-temperature";
const std::string SettingsEffectGIMPColorTemperature::s_intendedTemperature ZORVAN_INIT_STRINGS =
    "intended-temperature";
const std::string SettingsEffectGIMPColorTemperature::s_intensity ZORVAN_INIT_STRINGS = "intensity";

const std::vector<std::string> SettingsEffectGIMPColorTemperature::s_params ZORVAN_INIT_PARAMS = {
    s_originalTemperature, s_intendedTemperature, s_intensity};

const std::string& SettingsEffectGIMPColorTemperature::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectGIMPColorTemperature::Clone() const
{
    return std::make_unique<SettingsEffectGIMPColorTemperature>(*this);
}

bool SettingsEffectGIMPColorTemperature::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectGIMPColorTemperature&>(other);
}

bool SettingsEffectGIMPColorTemperature::IsEmpty() const
{
    return (NearlyEqual(originalTemperature, kNeutralTemperature) &&
            NearlyEqual(intendedTemperature, kNeutralTemperature)) ||
           NearZero(intensity);
}

void SettingsEffectGIMPColorTemperature::Deserialize(const std::string& options)
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
    read(s_originalTemperature, kTemperatureRange, originalTemperature);
    read(s_intendedTemperature, kTemperatureRange, intendedTemperature);
    read(s_intensity, kIntensityRange, intensity);
}

bool SettingsEffectGIMPColorTemperature::operator==(const SettingsEffectGIMPColorTemperature& other) const
{
    return NearlyEqual(originalTemperature, other.originalTemperature) &&
           NearlyEqual(intendedTemperature, other.intendedTemperature) && NearlyEqual(intensity, other.intensity);
}

bool SettingsEffectGIMPColorTemperature::operator!=(const SettingsEffectGIMPColorTemperature& other) const
{
    return !(*this == other);
}

void SettingsEffectGIMPColorTemperature::SetNewValue(float value, const std::pair<float, float>& range,
                                                     const std::string& message, float& target)
{
    FloatRange::StoreOrThrow(value, range, message, target);
}

void SettingsEffectGIMPColorTemperature::SetOriginalTemperature(float value)
{
    SetNewValue(value, kTemperatureRange, "Invalid value for temperature", originalTemperature);
}

void SettingsEffectGIMPColorTemperature::SetIntendedTemperature(float value)
{
    SetNewValue(value, kTemperatureRange, "Invalid value for temperature", intendedTemperature);
}

void SettingsEffectGIMPColorTemperature::SetIntensity(float value)
{
    SetNewValue(value, kIntensityRange, "Invalid value for intensity", intensity);
}

float SettingsEffectGIMPColorTemperature::GetOriginalTemperature() const
{
    return originalTemperature;
}

float SettingsEffectGIMPColorTemperature::GetIntendedTemperature() const
{
    return intendedTemperature;
}

float SettingsEffectGIMPColorTemperature::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc
