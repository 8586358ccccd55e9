#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Edge detection, two ints and a bool: two thresholds and an invert flag. It keeps the base's
// IsEqualTo, IsEmpty and Deserialize; callers compare two records with the public,
// non-virtual operator==.
class ZORVAN_SETTINGS_EXPORT SettingsEffectEdgeDetect : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    // The two ints and the bool, exact, in that order.
    bool operator==(const SettingsEffectEdgeDetect& other) const;

    void SetLowThreshold(int lowThreshold);
    void SetHighThreshold(int highThreshold);
    void SetInvert(bool invert);

    int GetLowThreshold() const;
    int GetHighThreshold() const;
    bool GetInvert() const;

private:
    // Neutral defaults: 0, 0 and false.
    int lowThreshold = 0;
    int highThreshold = 0;
    bool invert = false;
};

} // namespace Zorvan::Proc
