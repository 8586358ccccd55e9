#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A zoom that runs from one factor at the clip's start to another at its end. It keeps the
// base's IsEqualTo, IsEmpty and Deserialize.
class ZORVAN_SETTINGS_EXPORT SettingsEffectZoom : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    // The only setter: both factors together, unchecked.
    void SetInOut(double in, double out);

    double GetIn() const;
    double GetOut() const;

private:
    double in = 1.0;  // no zoom at the start
    double out = 1.0; // nor at the end
};

} // namespace Zorvan::Proc
