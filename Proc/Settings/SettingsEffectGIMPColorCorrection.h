#pragma once
#include <string>
#include <vector>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Brightness and contrast as the image editor's tool has them, each -1..1. Out-of-range values
// are clamped, by the setters and by the option string alike. The option keys are the static
// s_<role> strings.
class ZORVAN_SETTINGS_EXPORT SettingsEffectGIMPColorCorrection : public Settings {
public:
    static const std::string CLASS_ID;

    static const std::string s_brightness; // "brightness"
    static const std::string s_contrast;   // "contrast"
    // The two keys in the order above, built at library load after the strings.
    static const std::vector<std::string> s_params;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // Brightness and contrast are exactly 0.
    bool IsEmpty() const override;
    // Map form over s_params: each key by std::stof, clamped to -1..1 through its setter.
    void Deserialize(const std::string& options) override;

    // Both fields `nearly equal`.
    bool operator==(const SettingsEffectGIMPColorCorrection& other) const;

    // Each clamps to -1..1 and stores.
    void SetBrightness(float value);
    void SetContrast(float value);

    float GetBrightness() const;
    float GetContrast() const;

private:
    float brightness = 0.0F;
    float contrast = 0.0F;
};

} // namespace Zorvan::Proc
