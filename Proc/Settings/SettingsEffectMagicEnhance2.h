#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The plain enhancement record. Map form, keys "b" (float, black) and "w" (float, white),
// stored straight into the fields. IsEmpty is always false.
class ZORVAN_SETTINGS_EXPORT SettingsEffectMagicEnhance2 : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    bool IsEmpty() const override;
    void Deserialize(const std::string& options) override;

    // Both fields, exact.
    bool operator==(const SettingsEffectMagicEnhance2& other) const;

    // Clamp to 0..20: maximum with 0 first, then the upper bound, so a NaN becomes 0.
    // Deserialize bypasses the clamp.
    void SetWhiteSaturatedPixels(float value);
    void SetBlackSaturatedPixels(float value);

    float GetWhiteSaturatedPixels() const;
    float GetBlackSaturatedPixels() const;

private:
    // Neutral defaults: no pixels saturated.
    float whiteSaturatedPixels = 0.0F;
    float blackSaturatedPixels = 0.0F;
};

} // namespace Zorvan::Proc
