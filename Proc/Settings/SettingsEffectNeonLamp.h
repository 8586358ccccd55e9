#pragma once
#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc {

// Neon lamp. Reads "r", "g", "b" (unsigned 8-bit) and "intensity" (double) with GetOption,
// not through the map. Compares intensity and colour exactly; IsEmpty is overridden and
// always false.
class ZORVAN_SETTINGS_EXPORT SettingsEffectNeonLamp : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    bool IsEmpty() const override; // always false, though overridden; kept so on purpose
    // The colour changes only when "r", "g" and "b" are all present (alpha 255, red lowest);
    // "intensity" is clamped to 0..1 as SetIntensity does.
    void Deserialize(const std::string& options) override;

    // Intensity and colour, exact.
    bool operator==(const SettingsEffectNeonLamp& other) const;

    // Clamps to 0..1 (Saturate: NaN is stored as it is).
    void SetIntensity(double intensity);
    void SetColor(Color color);

    double GetIntensity() const;
    Color GetColor() const;

private:
    double intensity = 0.0; // neutral default: 0, the stage changes nothing
    Color color = 0;        // default: 0 (all four bytes)
};

} // namespace Zorvan::Proc
