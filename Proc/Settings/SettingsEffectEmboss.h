#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Emboss, two ints and a bool: angle, depth and a grey-only flag. It keeps the base's
// IsEqualTo, IsEmpty and Deserialize; callers compare two records with the public,
// non-virtual operator==.
class ZORVAN_SETTINGS_EXPORT SettingsEffectEmboss : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    // The two ints and the bool, exact, in that order.
    bool operator==(const SettingsEffectEmboss& other) const;

    void SetAngle(int angle);
    void SetDepth(int depth);
    void SetGrayscale(bool grayscale);

    int GetAngle() const;
    int GetDepth() const;
    bool GetGrayscale() const;

private:
    // Neutral defaults: 0, 0 and false.
    int angle = 0;
    int depth = 0;
    bool grayscale = false;
};

} // namespace Zorvan::Proc
