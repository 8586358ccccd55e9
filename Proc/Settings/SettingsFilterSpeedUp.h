#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The speed factor of a stream.
class ZORVAN_SETTINGS_EXPORT SettingsFilterSpeedUp : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    bool IsEmpty() const override;
    void Deserialize(const std::string& options) override;

    // `nearly equal` on the speed.
    bool operator==(const SettingsFilterSpeedUp& other) const;

    // Throws SettingsException "Invalid speed" below zero; zero and NaN pass.
    void SetSpeedUp(double speed);
    double GetSpeedFactor() const;

private:
    double speedFactor = 1.0; // neutral default: 1.0, the stage changes nothing
};

} // namespace Zorvan::Proc
