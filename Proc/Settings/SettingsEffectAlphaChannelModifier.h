#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Reshapes the alpha channel by a power and a multiplier. Map form, keys "power_scale" and
// "additional_multiplier" (double). Keeps the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectAlphaChannelModifier : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // "power_scale" is stored first and checked after: below 0.0 it raises SettingsException
    // with the value already in the record, and "additional_multiplier" is then not read.
    void Deserialize(const std::string& options) override;

    void SetPowerScale(double powerScale);                     // plain store, no check
    void SetAdditionalMultiplier(double additionalMultiplier); // plain store

    double GetPowerScale() const;
    double GetAdditionalMultiplier() const;

private:
    // Neutral defaults: alpha to the power 1, times 1, stays as it is.
    double powerScale = 1.0;
    double additionalMultiplier = 1.0;
};

} // namespace Zorvan::Proc
