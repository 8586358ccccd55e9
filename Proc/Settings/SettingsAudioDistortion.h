#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The distortion: one of five kinds, with intensity, boost and tone. Keeps the base IsEqualTo
// (it throws) and IsEmpty (never empty) and has no operator==.
class ZORVAN_SETTINGS_EXPORT SettingsAudioDistortion : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Keys "intensity", "boost", "tone" (std::stof) and "type" (std::stoi), applied in this
    // order through the setters. A negative type wraps to a large unsigned number and fails.
    void Deserialize(const std::string& options) override;

    // Every check is inclusive and fails with EffectException; a not-a-number float passes and
    // is stored.
    // 0 to 4, "Invalid type!".
    void SetType(unsigned int value);
    // 0 to 1, "Invalid intensity!".
    void SetIntensity(float value);
    // 0 to 1, "Invalid boost!".
    void SetBoost(float value);
    // 0 to 1, "Invalid tone!".
    void SetTone(float value);

    std::uint32_t GetType() const;
    float GetIntensity() const;
    float GetBoost() const;
    float GetTone() const;

private:
    std::uint32_t type = 0U; // the first kind; what each kind does is the sound engine's
    float intensity = 0.0F;  // dry signal only
    float boost = 0.0F;      // no boost
    float tone = 0.0F;       // the lower bound; no effect at intensity 0
};

} // namespace Zorvan::Proc
