#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A grid of posterised colour variations. Overrides IsEqualTo (all ten fields, exact) and
// Deserialize; keeps the base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectPopArt : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    void Deserialize(const std::string& options) override;

    // All ten fields exact, in field order.
    bool operator==(const SettingsEffectPopArt& other) const;

    // `amount` goes into both amount vertical and amount horizontal.
    void SetParams(int amount, int levels, double saturation, double hue, double offset, double scale);
    // Plain stores.
    void SetSaturation(double saturation);
    void SetHue(double hue);
    void SetOffset(double offset);
    void SetScale(double scale);
    void SetLevels(int levels);
    void SetAmountVertical(int amount);
    void SetAmountHorizontal(int amount);
    void SetIntensity(float intensity);
    void SetInvert(bool invert);
    void SetResize(int resize);

    double GetSaturation() const;
    double GetHue() const;
    double GetOffset() const;
    double GetScale() const;
    // Levels times intensity in float, truncated toward zero; anything not above 1 (NaN
    // included) yields 1; a product at or above 2^31 saturates to the largest int.
    int GetLevels() const;
    // The stored levels field; GetLevels gives the computed count.
    int GetStoredLevels() const;
    int GetAmountVertical() const;
    int GetAmountHorizontal() const;
    bool GetInvert() const;
    float GetIntensity() const;
    int GetResize() const;

private:
    // Neutral defaults: intensity 0 leaves the picture unchanged.
    double saturation = 0.0;
    double hue = 0.0;
    double offset = 0.0;
    double scale = 1.0;       // neutral default: 1, no scaling
    int levels = 0;           // default: 0, GetLevels then yields 1
    int amountVertical = 1;   // default: one tile down
    int amountHorizontal = 1; // default: one tile across
    bool invert = false;
    float intensity = 0.0F; // neutral default: 0, the stage changes nothing
    int resize = 0;
};

} // namespace Zorvan::Proc
