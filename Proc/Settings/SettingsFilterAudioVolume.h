#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The volume of an audio stream as a linear gain. Overrides IsEqualTo only: no option
// string, and the base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsFilterAudioVolume : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;

    // Gains closer than 1e-6 are one volume; the booleans must agree.
    bool operator==(const SettingsFilterAudioVolume& other) const;

    // Stores 10^(db / 20) as the linear gain.
    void SetVolumeDb(double db);
    // Plain stores, unchecked.
    void SetLinearGain(double gain);
    void SetBoolean(bool value);

    double GetLinearGain() const;
    bool GetBoolean() const;

private:
    double linearGain = 1.0;
    bool boolean = false; // the audio stage gives it its meaning; kept and compared here
};

} // namespace Zorvan::Proc
