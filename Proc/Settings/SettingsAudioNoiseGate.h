#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The noise gate: four unchecked doubles and a checked float intensity.
class ZORVAN_SETTINGS_EXPORT SettingsAudioNoiseGate : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // `*this == other` after a checked cast: std::bad_cast for a foreign class.
    bool IsEqualTo(const Settings& other) const override;
    // Keys "threshold", "attack", "decay", "soft_knee" (std::stod, stored unchecked), then
    // "intensity" (std::stof, through SetIntensity), applied in this order.
    void Deserialize(const std::string& options) override;

    // Every field exactly, in declared order.
    bool operator==(const SettingsAudioNoiseGate& other) const;

    // 0 to 1 inclusive, else EffectException "Intensity should be in range from 0.f to 1.f"; a
    // not-a-number passes and is stored.
    void SetIntensity(float value);
    // Stored as given, unchecked, as Deserialize does.
    void SetThreshold(double value);
    void SetAttack(double value);
    void SetDecay(double value);
    void SetSoftKnee(double value);

    double GetThreshold() const;
    double GetAttack() const;
    double GetDecay() const;
    double GetSoftKnee() const;
    float GetIntensity() const;

private:
    // Neutral defaults (units are the sound engine's): zeros, and intensity 0, so
    // that the stage changes nothing.
    double threshold = 0.0; // nothing lies below it
    double attack = 0.0;
    double decay = 0.0;
    double softKnee = 0.0;
    float intensity = 0.0F; // no effect
};

} // namespace Zorvan::Proc
