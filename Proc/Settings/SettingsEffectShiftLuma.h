#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Shifts the brightness of the shadows and of the highlights. Map form, keys "shadows" and
// "highlights" (float); compares both exactly; keeps the base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectShiftLuma : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    void Deserialize(const std::string& options) override;

    // Both shifts, exact.
    bool operator==(const SettingsEffectShiftLuma& other) const;

    void SetShadowsShift(float shift);    // plain store
    void SetHighlightsShift(float shift); // plain store

    float GetShadows() const;
    float GetHighlights() const;

private:
    // Neutral defaults: no shift.
    float shadows = 0.0F;
    float highlights = 0.0F;
};

} // namespace Zorvan::Proc
