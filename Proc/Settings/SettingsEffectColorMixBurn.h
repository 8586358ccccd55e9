#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Colour burn. Map form, key "strength" (double). Compares the strength exactly; keeps the
// base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectColorMixBurn : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    void Deserialize(const std::string& options) override;

    // Strength, exact.
    bool operator==(const SettingsEffectColorMixBurn& other) const;

    void SetStrength(double strength); // plain store
    double GetStrength() const;

private:
    double strength = 0.0; // neutral default: 0, no burn
};

} // namespace Zorvan::Proc
