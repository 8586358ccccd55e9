#pragma once
#include <cstdint>
#include <iosfwd>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The parameters from which an impulse response is synthesised: a noise of a
// given colour, shaped by a fade curve, filtered by a sliding low-pass filter.
class ZORVAN_SETTINGS_EXPORT SettingsAudioReverberationImpulseResponse : public Settings {
public:
    // Read as "tri", "exp", "qua", "cub", "sin"; written by operator<< as "tri", "exp", "qua",
    // "cub", "hsin".
    enum class ChangeFunction : std::int32_t { Tri = 0, Exp = 1, Qua = 2, Cub = 3, Sin = 4 };
    // Read as "white"/"w", "pink"/"p", "brown"/"b" (case-sensitive); written as the long form.
    enum class NoiseColor : std::int32_t { White = 0, Pink = 1, Brown = 2 };

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Casts other to this class (std::bad_cast for a foreign one) and compares with operator==.
    bool IsEqualTo(const Settings& other) const override;
    // Key by key through GetOption / OptionRegexSearch with the default value pattern, in this
    // order: "reverb_time" (double), "dry_gain" (double), "wet_gain" (double), "delay" (int),
    // "slpf_freq" (int), each through its setter; "fade_func" and then "slpf_func", both into
    // fadeFunction (so "slpf_func" wins; slpfFunction is not reachable); "noise_color".
    // Unknown spellings raise EffectException "Unknown value of change function" or "Unknown
    // value of noise color". Keys before a failing one stay applied.
    void Deserialize(const std::string& options) override;

    // All eight fields exactly.
    bool operator==(const SettingsAudioReverberationImpulseResponse& other) const;
    bool operator!=(const SettingsAudioReverberationImpulseResponse& other) const;

    // The checked setters throw EffectException and leave the field as it was. A check fails
    // only when the value compares outside its bounds, so a not-a-number passes, as in the
    // dynamics stages.
    // 0.0001 to 30 inclusive: "Reverberation time should be in range from 0.0001 to 30.0."
    void SetReverberationTime(double value);
    // 0 to 10 inclusive: "Dry gain should be in range from 0.0 to 10.0."
    void SetDryGain(double value);
    // 0 to 10 inclusive: "Wet gain should be in range from 0.0 to 10.0."
    void SetWetGain(double value);
    // 0 to 200 inclusive: "Dry-wet balance should be in range from 0 to 200."
    void SetDelay(int value);
    // Above 0: "Sliding LPF frequency should be greater than 0."
    void SetSlpfFrequency(int value);
    // Plain setters: stored as given.
    void SetNoiseColor(NoiseColor value);
    void SetFadeFunction(ChangeFunction value);
    void SetSlpfFunction(ChangeFunction value);

    double GetReverberationTime() const;
    double GetDryGain() const;
    double GetWetGain() const;
    int GetDelay() const;
    NoiseColor GetNoiseColor() const;
    int GetSlpfFrequency() const;
    ChangeFunction GetFadeFunction() const;
    ChangeFunction GetSlpfFunction() const;

private:
    // Neutral defaults: dry 1 and wet 0, so the stage changes nothing; the other
    // fields take valid values.
    double reverberationTime = 1.0; // seconds; any valid value, the wet gain 0 mutes it
    double dryGain = 1.0;           // the dry signal passes unchanged
    double wetGain = 0.0;           // no reverberated signal
    std::int32_t delay = 0;         // no delay
    NoiseColor noiseColor = NoiseColor::White;
    std::int32_t slpfFrequency = 20000; // Hz; the top of the audible range, filters nothing audible
    ChangeFunction fadeFunction = ChangeFunction::Tri;
    ChangeFunction slpfFunction = ChangeFunction::Tri;
};

// The text given at each enumerator, without a line end; any other value writes nothing and
// raises nothing. Returns the stream.
ZORVAN_SETTINGS_EXPORT std::ostream& operator<<(std::ostream& stream,
                                                SettingsAudioReverberationImpulseResponse::ChangeFunction value);
ZORVAN_SETTINGS_EXPORT std::ostream& operator<<(std::ostream& stream,
                                                SettingsAudioReverberationImpulseResponse::NoiseColor value);

} // namespace Zorvan::Proc
