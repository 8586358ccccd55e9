#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Part 6.1: edge detection, two ints and a bool: two thresholds and an invert flag (the names
// are left open by Part 6.1). A hyphen row of Part 1.5: it keeps the base's IsEqualTo, IsEmpty
// and Deserialize, and offers the public, non-virtual operator== of Part 6.1.
class ZORVAN_SETTINGS_EXPORT SettingsEffectEdgeDetect : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    // Part 6.1: the two ints and the bool, exact, in that order.
    bool operator==(const SettingsEffectEdgeDetect& other) const;

    void SetLowThreshold(int lowThreshold);
    void SetHighThreshold(int highThreshold);
    void SetInvert(bool invert);

    int GetLowThreshold() const;
    int GetHighThreshold() const;
    bool GetInvert() const;

private:
    // Defaults left open by Part 6.1: 0, 0 and false.
    int lowThreshold = 0;
    int highThreshold = 0;
    bool invert = false;
};

} // namespace Zorvan::Proc
