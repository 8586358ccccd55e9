#pragma once
#include <cstdint>
#include <vector>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The echo, a list of echos and two gains. Its conventions differ from the chorus's
// on purpose: unchecked gains, per-parameter messages, and an option string in which
// "gain_out" acts on the in-gain and the out-gain is always reset to 1.
class ZORVAN_SETTINGS_EXPORT SettingsAudioEcho : public Settings {
public:
    // One echo; an aggregate: Echo{delay, decay}.
    struct ZORVAN_SETTINGS_EXPORT Echo {
        std::int32_t delay = 0; // units of the sound engine
        double decay = 0.0;

        // delay exactly, decay `nearly equal`.
        bool operator==(const Echo& other) const;
    };

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // `*this == other` after a checked cast: std::bad_cast for a foreign class.
    bool IsEqualTo(const Settings& other) const override;
    // Keys "intensity", "gain_in", "gain_out", "delay", "decay": intensity (std::stof) through
    // SetIntensity; a working gain starts at 1, "gain_in" then "gain_out" (std::stod) replace
    // it in turn; delay (std::stoi, 0 when absent) and decay (std::stod, 0 when absent) go to
    // SetEchos as one echo; then gainIn = working gain and gainOut = 1.
    void Deserialize(const std::string& options) override;

    // Same number of echos, pairwise equal in order, then gainIn, gainOut and the float
    // intensity `nearly equal`.
    bool operator==(const SettingsAudioEcho& other) const;

    // 0 to 1 inclusive, else EffectException "Intensity should be in range from 0.f to 1.f"; a
    // not-a-number compares outside no bound, passes and is stored.
    void SetIntensity(float value);
    // For each echo in order: delay 1..89999 else SettingsException "Invalid Echo parameter:
    // delay", then decay in (0, 1] else "Invalid Echo parameter: decay" (a not-a-number fails);
    // the first fault met decides and the old list stays. An empty list passes.
    void SetEchos(const std::vector<Echo>& value);
    // Stores both unchecked.
    void SetGainInOut(double in, double out);

    const std::vector<Echo>& GetEchos() const;
    double GetGainIn() const;
    double GetGainOut() const;
    float GetIntensity() const;

private:
    // Neutral defaults: a record that changes nothing.
    std::vector<Echo> echos; // no echo: nothing is added
    double gainIn = 1.0;     // unity gain
    double gainOut = 1.0;    // unity gain
    float intensity = 0.0F;  // dry signal only
};

} // namespace Zorvan::Proc
