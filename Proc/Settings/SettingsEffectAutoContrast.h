#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Automatic contrast. Map form, keys "b" (float, black), "w" (float, white) and "a"
// (double, alpha flag true when not 0.0), stored straight into the fields. Keeps the base's
// IsEmpty (false).
class ZORVAN_SETTINGS_EXPORT SettingsEffectAutoContrast : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    void Deserialize(const std::string& options) override;

    // White and black, exact; the alpha flag is deliberately outside the comparison.
    bool operator==(const SettingsEffectAutoContrast& other) const;

    // Clamp to 0..20: maximum with 0 first, then the upper bound, so a NaN becomes 0.
    // Deserialize bypasses the clamp.
    void SetWhiteSaturatedPixels(float value);
    void SetBlackSaturatedPixels(float value);
    void SetAlphaIsDisabled(bool value);

    float GetWhiteSaturatedPixels() const;
    float GetBlackSaturatedPixels() const;
    bool GetAlphaIsDisabled() const;

private:
    // Neutral defaults: no pixels saturated, alpha not disabled.
    float whiteSaturatedPixels = 0.0F;
    float blackSaturatedPixels = 0.0F;
    bool alphaIsDisabled = false;
};

} // namespace Zorvan::Proc
