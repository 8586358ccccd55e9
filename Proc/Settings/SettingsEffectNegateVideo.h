#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Negates the picture. One int, set in code only: there is no option string, and Deserialize
// is the base's.
class ZORVAN_SETTINGS_EXPORT SettingsEffectNegateVideo : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // The mode is 0.
    bool IsEmpty() const override;

    // The mode.
    bool operator==(const SettingsEffectNegateVideo& other) const;

    // 0 leaves the picture as it is; what other values select is the renderer's.
    void SetMode(int mode); // plain store
    int GetMode() const;

private:
    int mode = 0; // neutral default: nothing negated
};

} // namespace Zorvan::Proc
