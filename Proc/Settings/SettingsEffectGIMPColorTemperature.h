#pragma once
#include <string>
#include <utility>
#include <vector>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A white-balance shift from an original to an intended colour temperature, each 1000..12000
// kelvin, at an intensity of 0..1. Out-of-range values are refused with EffectException, by
// the setters with their own texts and by the option string with "Invalid value". The option
// keys are the static s_<role> strings.
class ZORVAN_SETTINGS_EXPORT SettingsEffectGIMPColorTemperature : public Settings {
public:
    static const std::string CLASS_ID;

    static const std::string s_originalTemperature; // "original-temperature"
    static const std::string s_intendedTemperature; // "intended-temperature"
    static const std::string s_intensity;           // "intensity"
    // The three keys in the order above, built at library load after the strings.
    static const std::vector<std::string> s_params;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // Both temperatures nearly 6500, or intensity near zero.
    bool IsEmpty() const override;
    // Map form over s_params: each key by std::stof, in the order of s_params, through
    // SetNewValue with its field's range and the text "Invalid value".
    void Deserialize(const std::string& options) override;

    // Every field `nearly equal`.
    bool operator==(const SettingsEffectGIMPColorTemperature& other) const;
    bool operator!=(const SettingsEffectGIMPColorTemperature& other) const;

    // Stores `value` into `target` when it lies in `range`, bounds included; else, and for
    // not-a-number, throws EffectException with `message` and leaves `target` as it was.
    static void SetNewValue(float value, const std::pair<float, float>& range, const std::string& message,
                            float& target);

    // 1000..12000, else "Invalid value for temperature".
    void SetOriginalTemperature(float value);
    void SetIntendedTemperature(float value);
    // 0..1, else "Invalid value for intensity".
    void SetIntensity(float value);

    float GetOriginalTemperature() const;
    float GetIntendedTemperature() const;
    float GetIntensity() const;

private:
    float originalTemperature = 6500.0F; // neutral: both at 6500, so the stage changes nothing
    float intendedTemperature = 6500.0F;
    float intensity = 1.0F; // full strength: the equal temperatures already change nothing
};

} // namespace Zorvan::Proc
