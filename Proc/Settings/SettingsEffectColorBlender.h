#pragma once
#include <cstdint>
#include <optional>

#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc {

// A colour placed over the frame at a position, with an intensity and a blend mode. The
// blend-mode vocabulary of the library: the watermark and the image blender blend with it.
// Reads its keys with GetOption (no quoting needed for the mode's spelling).
class ZORVAN_SETTINGS_EXPORT SettingsEffectColorBlender : public Settings {
public:
    // The numbers are what the renderer receives.
    enum class BlendMode : std::int32_t {
        Normal = 0, // "default", "normal", "src-over", "source-over"
        Darken = 1,
        Multiply = 2,
        ColorBurn = 3,
        LinearBurn = 4,
        DarkerColor = 5,
        Lighten = 6,
        Screen = 7,
        ColorDodge = 8,
        LinearDodge = 9,
        LighterColor = 10,
        Overlay = 11,
        SoftLight = 12,
        HardLight = 13,
        VividLight = 14,
        LinearLight = 15,
        PinLight = 16,
        HardMix = 17,
        Difference = 18,
        Exclusion = 19,
        Subtract = 20,
        Divide = 21,
        Hue = 22,
        Saturation = 23,
        Color = 24,
        Luminosity = 25,
    };

    static const std::string CLASS_ID;

    // Position 0, 0, intensity 1.0, the normal mode, no base colour.
    SettingsEffectColorBlender() = default;
    // The intensity goes through SetIntensity's check; no base colour.
    SettingsEffectColorBlender(int x, int y, float intensity, BlendMode mode);

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // Intensity exactly 0.0, whatever the colour.
    bool IsEmpty() const override;
    // Keys "x", "y" (int), "intensity" (float, checked), "alpha" (int, divided by 255 into the
    // intensity, checked; it wins over "intensity"), "blendMode" (a spelling, in any case;
    // unknown: EffectException "Unknown blend mode: <spelling>"), and "r", "g", "b", "a"
    // (floats, through SetBaseColor, only when all four are given). Keys set before a failure
    // keep their new values.
    void Deserialize(const std::string& options) override;

    // X, y, intensity and mode exact; base colours both absent, or both present and equal
    // component by component, exact.
    bool operator==(const SettingsEffectColorBlender& other) const;

    // Below 0 or above 1: std::invalid_argument "Invalid intensity value"; NaN is stored.
    void SetIntensity(float intensity);
    // Each component of a given colour must not be below 0 (no upper bound), checked red,
    // green, blue, alpha in turn: std::invalid_argument "Invalid <component> base color
    // component". An absent colour clears the field.
    void SetBaseColor(const std::optional<ColorF>& color);
    void SetX(int x);
    void SetY(int y);
    void SetBlendMode(BlendMode mode);

    int GetX() const;
    int GetY() const;
    float GetIntensity() const;
    BlendMode GetBlendMode() const;
    const std::optional<ColorF>& GetBaseColor() const;

private:
    int x = 0;
    int y = 0;
    float intensity = 1.0F;
    BlendMode blendMode = BlendMode::Normal;
    std::optional<ColorF> baseColor;
};

} // namespace Zorvan::Proc
