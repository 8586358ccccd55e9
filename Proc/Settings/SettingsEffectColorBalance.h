#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Brightness, contrast, saturation, hue and gamma, translated between the user's integer
// sliders and the values of the filter stage (the getters with `FF` in their names).
// Saturation and gamma are stored as filter factors; GetSaturation and GetGamma compute the
// slider back. Map form with nine int keys, read independently.
class ZORVAN_SETTINGS_EXPORT SettingsEffectColorBalance : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // Brightness, contrast, hue and the three channel gammas are 0, saturation and gamma are
    // nearly 1.0. Weight is ignored.
    bool IsEmpty() const override;
    // Keys "brightness", "contrast", "saturation", "hue", "gamma", "rg", "gg", "bg", "weight",
    // each std::stoi in this order. "saturation" and "gamma" go through the SetSaturation and
    // SetGamma formulas; "hue" is normalised (180 stays 180, else into -180..179); the others
    // are stored unclamped.
    void Deserialize(const std::string& options) override;

    // Saturation and gamma `nearly equal`; brightness, contrast, hue, the three channel gammas
    // and weight exact.
    bool operator==(const SettingsEffectColorBalance& other) const;

    // 2 * (brightness + 255) / 510 - 1, clamped to -1..1.
    double GetFFBrightness() const;
    // 2 * (contrast + 127) / 254 + 0, clamped to 0..2.
    double GetFFContrast() const;

    // Saturation is not nearly 1.0.
    bool IsSaturationSet() const;
    // The slider of the stored factor: below 1 factor * 100 - 100, else (factor - 1) * 100 *
    // 0.5 + 0; truncated toward zero; clamped to -100..100.
    int GetSaturation() const;
    // v below 0: (v + 100) / 100 + 0, else (v + v) / 100 + 1, in double; clamped to 0..3.
    void SetSaturation(int value);
    // The stored factor.
    double GetFFSaturation() const;
    // Stores a filter factor directly, for callers that hold one rather than a slider value;
    // clamped to 0..3 like the slider setter's result; a not-a-number value is stored as is.
    void SetFFSaturation(double factor);

    // Gamma is not nearly 1.0.
    bool IsGammaSet() const;
    // The slider of the stored gamma: below 1 -100 + (gamma - 0.1) * 100 / 0.9, else 0 +
    // (gamma - 1) * 100 / 9; truncated toward zero; clamped to -100..100.
    int GetGamma() const;
    // v below 0: 0.1 + 0.9 * (v + 100) / 100, else 1 + 9 * v / 100, in double; clamped to 0.1..10.
    void SetGamma(int value);
    // The stored gamma.
    double GetFFGamma() const;
    // Stores a filter gamma directly, for callers that hold one rather than a slider value;
    // clamped to 0.1..10 like the slider setter's result; a not-a-number value is stored as is.
    void SetFFGamma(double filterGamma);

    // The SetGamma formula applied to the channel's slider, clamped to 0.1..10.
    double GetFFGammaRed() const;
    double GetFFGammaGreen() const;
    double GetFFGammaBlue() const;
    // weight / 100 + 0, clamped to 0..1.
    double GetFFGammaWeight() const;

    // Brightness, contrast or a channel gamma is not 0, or saturation or gamma is not neutral.
    bool IsLumaChanged() const;
    // Hue is not 0.
    bool IsChromaChanged() const;

    // Plain accessors of the int fields: stored as given.
    void SetBrightness(int value);
    void SetContrast(int value);
    void SetHue(int value);
    void SetRedGamma(int value);
    void SetGreenGamma(int value);
    void SetBlueGamma(int value);
    void SetWeight(int value);
    int GetBrightness() const;
    int GetContrast() const;
    int GetHue() const;
    int GetRedGamma() const;
    int GetGreenGamma() const;
    int GetBlueGamma() const;
    int GetWeight() const;

private:
    // Neutral defaults: ints 0, saturation and gamma 1.0.
    int brightness = 0;
    int contrast = 0;
    double saturation = 1.0; // filter factor, 0..3, 1 is neutral
    int hue = 0;             // degrees
    double gamma = 1.0;      // filter gamma, 0.1..10, 1 is neutral
    int redGamma = 0;
    int greenGamma = 0;
    int blueGamma = 0;
    int weight = 0; // percent
};

} // namespace Zorvan::Proc
