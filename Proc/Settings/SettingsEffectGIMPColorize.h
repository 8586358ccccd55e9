#pragma once
#include <string>
#include <utility>
#include <vector>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Colouring of the picture by hue, saturation and lightness, or by a red, green and blue
// colour, at an intensity of 0..1. A colour channel of exactly -1 marks the colour as not set.
// Out-of-range values are refused with EffectException, by the setters with their own texts and
// by the option string with "Invalid value". The option keys are the static s_<role> strings.
class ZORVAN_SETTINGS_EXPORT SettingsEffectGIMPColorize : public Settings {
public:
    static const std::string CLASS_ID;

    static const std::string s_hue;        // "hue"
    static const std::string s_saturation; // "saturation"
    static const std::string s_lightness;  // "lightness"
    static const std::string s_red;        // "red"
    static const std::string s_green;      // "green"
    static const std::string s_blue;       // "blue"
    static const std::string s_intensity;  // "intensity"
    // The seven keys in the order above, built at library load after the strings.
    static const std::vector<std::string> s_params;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // Intensity near zero, whatever the colour.
    bool IsEmpty() const override;
    // Map form over s_params: "hue", "saturation", "lightness", "red", "green", "blue" by
    // std::stof, in this order, through SetNewValue with the field's range and the text
    // "Invalid value". "intensity" is not read: only SetIntensity sets it.
    void Deserialize(const std::string& options) override;

    // Every field `nearly equal`.
    bool operator==(const SettingsEffectGIMPColorize& other) const;
    bool operator!=(const SettingsEffectGIMPColorize& other) const;

    // Stores `value` into `target` when it lies in `range`, bounds included; else, and for
    // not-a-number, throws EffectException with `message` and leaves `target` as it was.
    static void SetNewValue(float value, const std::pair<float, float>& range, const std::string& message,
                            float& target);

    // Each refuses a value outside its range with "Invalid value for " and the field's name:
    // lightness -1..1, the others 0..1.
    void SetHue(float value);
    void SetSaturation(float value);
    void SetLightness(float value);
    void SetRed(float value);
    void SetGreen(float value);
    void SetBlue(float value);
    void SetIntensity(float value);

    float GetHue() const;
    float GetSaturation() const;
    float GetLightness() const;
    float GetRed() const;
    float GetGreen() const;
    float GetBlue() const;
    float GetIntensity() const;
    // None of red, green and blue is exactly -1.
    bool IsValidRGB() const;

private:
    float hue = 0.0F;
    float saturation = 0.0F;
    float lightness = 0.0F;
    float red = -1.0F; // the colour is not set until a red, green and blue are given
    float green = -1.0F;
    float blue = -1.0F;
    float intensity = 0.0F; // neutral: the stage changes nothing until an intensity is set
};

} // namespace Zorvan::Proc
