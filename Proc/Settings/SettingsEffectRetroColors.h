#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Retro colour looks. Map form, keys "type" (int) and "intensity" (float); compares both
// exactly; keeps the base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectRetroColors : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    void Deserialize(const std::string& options) override;

    // Type and intensity, exact.
    bool operator==(const SettingsEffectRetroColors& other) const;

    void SetType(int type);             // plain store
    void SetIntensity(float intensity); // plain store

    int GetType() const;
    float GetIntensity() const;

private:
    // Neutral defaults: the first look at no intensity, the stage changes nothing.
    int type = 0;
    float intensity = 0.0F;
};

} // namespace Zorvan::Proc
