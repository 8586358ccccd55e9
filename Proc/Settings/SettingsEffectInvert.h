#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Inverts the colours. Map form, key "intensity" (float); compares it exactly; keeps the
// base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectInvert : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    void Deserialize(const std::string& options) override;

    // The intensity, exact.
    bool operator==(const SettingsEffectInvert& other) const;

    void SetIntensity(float intensity); // plain store
    float GetIntensity() const;

private:
    float intensity = 0.0F; // neutral default: nothing inverted
};

} // namespace Zorvan::Proc
