#pragma once
#include <cstdint>
#include <vector>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The chorus, a list of voices and two gains. Keeps the base IsEqualTo (which
// throws) although it has a tolerant operator==; each option key reaches its own field.
class ZORVAN_SETTINGS_EXPORT SettingsAudioChorus : public Settings {
public:
    // One voice of the chorus; an aggregate: Voice{delay, decay, speed, depth}.
    struct ZORVAN_SETTINGS_EXPORT Voice {
        std::int32_t delay = 0; // units of the sound engine
        double decay = 0.0;
        double speed = 0.0;
        double depth = 0.0;

        // The voice check: delay 1..89999, decay in (0, 1], speed and depth in (0, 9.9]. A
        // not-a-number fails (the conditions are stated as what passes).
        bool IsOK() const;
        // delay exactly, decay, speed and depth `nearly equal`.
        bool operator==(const Voice& other) const;
    };

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Keys "intensity", "delay", "decay", "speed", "depth", "gain_in", "gain_out": intensity
    // (std::stof) through SetIntensity when present; then delay (std::stoi, 0 when absent),
    // decay, speed, depth (std::stod, 0 when absent), gain_in, gain_out (std::stod, 1 when
    // absent) are read, SetVoices is given the one voice and SetGainInOut the two gains.
    void Deserialize(const std::string& options) override;

    // Same number of voices, pairwise equal in order, then gainIn, gainOut and the float
    // intensity `nearly equal`.
    bool operator==(const SettingsAudioChorus& other) const;

    // 0 to 1 inclusive, else EffectException "Intensity should be in range from 0.f to 1.f"; a
    // not-a-number compares outside no bound, passes and is stored.
    void SetIntensity(float value);
    // Every voice passes Voice::IsOK, else SettingsException "Invalid Voice" and the old list
    // stays; an empty list passes.
    void SetVoices(const std::vector<Voice>& value);
    // Both strictly above 0, else SettingsException "Invalid gain parameters" and both stay; a
    // not-a-number fails.
    void SetGainInOut(double in, double out);

    const std::vector<Voice>& GetVoices() const;
    double GetGainIn() const;
    double GetGainOut() const;
    float GetIntensity() const;

private:
    // Neutral defaults: a record that changes nothing.
    std::vector<Voice> voices; // no voice: nothing is added
    double gainIn = 1.0;       // unity gain
    double gainOut = 1.0;      // unity gain
    float intensity = 0.0F;    // dry signal only
};

} // namespace Zorvan::Proc
