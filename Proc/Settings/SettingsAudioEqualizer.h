#pragma once
#include <cstdint>
#include <vector>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The equalizer: a list of frequency bands, each with its gain, and a strength. Also held by
// value inside the radio. Keeps the base IsEqualTo (it throws) and IsEmpty (never empty) and
// has no operator== of its own; its two setters raise two different exception classes.
class ZORVAN_SETTINGS_EXPORT SettingsAudioEqualizer : public Settings {
public:
    // One band; an aggregate: BandEq{frequency, gain}.
    struct ZORVAN_SETTINGS_EXPORT BandEq {
        std::int32_t frequency = 0; // units of the sound engine
        double gain = 0.0;

        // True when frequency is 0 or more; the gain is not looked at.
        bool IsOK() const;
        // frequency exactly, gain `nearly equal`.
        bool operator==(const BandEq& other) const;
    };
    using Multiband = std::vector<BandEq>;

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Keys "intensity", "freq0", "freq1", "freq2", "gain0", "gain1", "gain2": intensity
    // (std::stof) through SetIntensity; then for index 0, 1, 2 a band of freqN (std::stoi) and
    // gainN (std::stod) when both are present (one without the other is skipped silently); the
    // bands found, possibly none, always go to SetMultiband and replace the list.
    void Deserialize(const std::string& options) override;

    // Every band passes BandEq::IsOK, else SettingsException "Invalid Echo" and the old list
    // stays; any length, an empty list passes and empties the record.
    void SetMultiband(const Multiband& value);
    // 0 to 1 inclusive, else EffectException "Intensity should be in range from 0.f to 1.f"; a
    // not-a-number compares outside no bound, passes and is stored.
    void SetIntensity(float value);

    const Multiband& GetMultiband() const;
    float GetIntensity() const;

private:
    Multiband multiband;    // no band: nothing is filtered
    float intensity = 1.0F; // full strength, as the radio's equalizer starts; no band changes nothing
};

} // namespace Zorvan::Proc
