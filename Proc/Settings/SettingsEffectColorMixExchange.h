#pragma once
#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc {

// Exchanges colours for one colour scaled by the intensity. Map form: "intensity" (float)
// first, then "red", "green", "blue" (ints, the low 8 bits count), each on its own; the
// colour is stored once, after all three are read. Keeps the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectColorMixExchange : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    void Deserialize(const std::string& options) override;

    void SetIntensity(float intensity); // plain store

    float GetIntensity() const;
    // The stored exchange colour, red in the low byte, then green, blue; top byte 0.
    Color GetColor() const;
    // Each byte times the intensity in float, truncated toward zero, packed red lowest and
    // combined without masking: an intensity above 1 spills a channel into the next one.
    Color GetExchangeColor() const;

private:
    Color color = 0;        // black
    float intensity = 0.0F; // neutral default: 0, the stage changes nothing
};

} // namespace Zorvan::Proc
