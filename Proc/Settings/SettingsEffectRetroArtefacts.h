#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Retro artefacts. Map form, keys "shake", "vignetting" (int, true only when exactly 1),
// "grain", "scratches", "rollerTrack" (int), "intensity" (float). Compares all six fields
// exactly; keeps the base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectRetroArtefacts : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    void Deserialize(const std::string& options) override;

    // All six fields, exact, in field order.
    bool operator==(const SettingsEffectRetroArtefacts& other) const;

    // Plain stores.
    void SetShake(bool shake);
    void SetVignetting(bool vignetting);
    void SetGrain(int grain);
    void SetScratches(int scratches);
    void SetRollerTrack(int rollerTrack);
    void SetIntensity(float intensity);

    bool GetShake() const;
    bool GetVignetting() const;
    int GetGrain() const;
    int GetScratches() const;
    int GetRollerTrack() const;
    float GetIntensity() const;

private:
    // Neutral defaults: all off and 0, the stage changes nothing.
    bool shake = false;
    bool vignetting = false;
    int grain = 0;
    int scratches = 0;
    int rollerTrack = 0;
    float intensity = 0.0F;
};

} // namespace Zorvan::Proc
