#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Sharpen. Map form, key "level" (double, stored as it stands); compares the level exactly.
class ZORVAN_SETTINGS_EXPORT SettingsEffectSharpen : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    void Deserialize(const std::string& options) override;

    // The level, exact.
    bool operator==(const SettingsEffectSharpen& other) const;

    void SetLevel(double level); // plain store

    double GetLevel() const;

private:
    double level = 0.0; // neutral: no sharpening
};

} // namespace Zorvan::Proc
