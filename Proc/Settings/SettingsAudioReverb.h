#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A reverberation stage that holds only a strength. Keeps the base IsEqualTo
// (which throws) and the base IsEmpty (never empty).
class ZORVAN_SETTINGS_EXPORT SettingsAudioReverb : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Map form: the one key "intensity", std::stof, through SetIntensity.
    void Deserialize(const std::string& options) override;

    // 0 to 1 inclusive, else EffectException "Invalid intensity!"; the check fails only when
    // the value compares outside its bounds, so a not-a-number passes (as in the dynamics stages).
    void SetIntensity(float value);
    float GetIntensity() const;

private:
    float intensity = 0.0F; // neutral default: 0, no reverberation
};

} // namespace Zorvan::Proc
