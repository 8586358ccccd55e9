#pragma once
#include <array>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A 4 by 4 colour matrix over red, green, blue and alpha, sixteen doubles by rows. Set in code
// only: there is no option string, and Deserialize is the base's.
class ZORVAN_SETTINGS_EXPORT SettingsEffectColorChannelMixer : public Settings {
public:
    using Matrix = std::array<double, 16>;

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // Every element within strictly less than 0.001 of the identity.
    bool IsEmpty() const override;

    // Every pair of elements within strictly less than 0.001.
    bool operator==(const SettingsEffectColorChannelMixer& other) const;

    void SetMatrix(const Matrix& matrix); // plain store
    const Matrix& GetMatrix() const;

private:
    // The identity: the stage changes nothing.
    Matrix matrix{1.0, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 0.0, 1.0};
};

} // namespace Zorvan::Proc
