#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Part 6.1: emboss, two ints and a bool: angle, depth and a grey-only flag (the names are left
// open by Part 6.1). A hyphen row of Part 1.5: it keeps the base's IsEqualTo, IsEmpty and
// Deserialize, and offers the public, non-virtual operator== of Part 6.1.
class ZORVAN_SETTINGS_EXPORT SettingsEffectEmboss : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    // Part 6.1: the two ints and the bool, exact, in that order.
    bool operator==(const SettingsEffectEmboss& other) const;

    void SetAngle(int angle);
    void SetDepth(int depth);
    void SetGrayscale(bool grayscale);

    int GetAngle() const;
    int GetDepth() const;
    bool GetGrayscale() const;

private:
    // Defaults left open by Part 6.1: 0, 0 and false.
    int angle = 0;
    int depth = 0;
    bool grayscale = false;
};

} // namespace Zorvan::Proc
