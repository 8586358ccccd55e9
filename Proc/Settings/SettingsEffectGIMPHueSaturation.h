#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Hue, lightness and saturation shifts for the whole picture (master) and for six colour
// ranges, with the overlap of neighbouring ranges and an intensity. Out-of-range values are
// clamped, by the setters and by the option string alike. The option keys are the static
// s_<role> strings.
class ZORVAN_SETTINGS_EXPORT SettingsEffectGIMPHueSaturation : public Settings {
public:
    static const std::string CLASS_ID;

    // Indexes the three arrays.
    enum HueRange : std::int32_t { Master = 0, Red = 1, Yellow = 2, Green = 3, Cyan = 4, Blue = 5, Magenta = 6 };
    // One value per HueRange, in its order.
    using RangeValues = std::array<float, 7>;

    static const std::string s_hue_master;         // "hue-master"
    static const std::string s_hue_red;            // "hue-red"
    static const std::string s_hue_yellow;         // "hue-yellow"
    static const std::string s_hue_green;          // "hue-green"
    static const std::string s_hue_cyan;           // "hue-cyan"
    static const std::string s_hue_blue;           // "hue-blue"
    static const std::string s_hue_magenta;        // "hue-magenta"
    static const std::string s_lightness_master;   // "lightness-master"
    static const std::string s_lightness_red;      // "lightness-red"
    static const std::string s_lightness_yellow;   // "lightness-yellow"
    static const std::string s_lightness_green;    // "lightness-green"
    static const std::string s_lightness_cyan;     // "lightness-cyan"
    static const std::string s_lightness_blue;     // "lightness-blue"
    static const std::string s_lightness_magenta;  // "lightness-magenta"
    static const std::string s_saturation_master;  // "saturation-master"
    static const std::string s_saturation_red;     // "saturation-red"
    static const std::string s_saturation_yellow;  // "saturation-yellow"
    static const std::string s_saturation_green;   // "saturation-green"
    static const std::string s_saturation_cyan;    // "saturation-cyan"
    static const std::string s_saturation_blue;    // "saturation-blue"
    static const std::string s_saturation_magenta; // "saturation-magenta"
    static const std::string s_overlap;            // "overlap"
    static const std::string s_intensity;          // "intensity"
    // The 23 keys in the order above, built at library load after the strings.
    static const std::vector<std::string> s_params;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // All 21 shifts exactly 0, or intensity exactly 0.
    bool IsEmpty() const override;
    // Map form over s_params: each key by std::stof, in the order of s_params, clamped to its
    // range as its setter does; nothing is refused.
    void Deserialize(const std::string& options) override;

    // Every value `nearly equal`, the arrays through IsEquals.
    bool operator==(const SettingsEffectGIMPHueSaturation& other) const;

    // Each pair of values `nearly equal`.
    static bool IsEquals(const RangeValues& left, const RangeValues& right);

    // Each clamps and stores: hue to -180..180, lightness and saturation to -100..100, overlap
    // to 0..100, intensity to 0..1. A range outside HueRange changes nothing.
    void SetHue(HueRange range, float value);
    void SetLightness(HueRange range, float value);
    void SetSaturation(HueRange range, float value);
    void SetOverlap(float value);
    void SetIntensity(float value);

    const RangeValues& GetHue() const;
    const RangeValues& GetLightness() const;
    const RangeValues& GetSaturation() const;
    float GetOverlap() const;
    float GetIntensity() const;

private:
    RangeValues hue{};
    RangeValues lightness{};
    RangeValues saturation{};
    float overlap = 0.0F;
    float intensity = 1.0F; // full strength: the zero shifts already change nothing
};

} // namespace Zorvan::Proc
