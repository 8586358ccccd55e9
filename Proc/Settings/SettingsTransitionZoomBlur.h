#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A zoom through the cut with radial blur. The setters clamp instead of refusing.
class ZORVAN_SETTINGS_EXPORT SettingsTransitionZoomBlur : public Settings {
public:
    // Spelled "In", "Out", "InOut", "OutIn" in option strings, in any letter case.
    enum class Type : std::int32_t { In = 0, Out = 1, InOut = 2, OutIn = 3 };

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Read key by key, with no quoting needed: "type" by its spelling (another text throws
    // std::invalid_argument "Invalid zoom type: " followed by the text), then the floats
    // "maxZoom", "maxBlur", "boostPower", "mixDuration" through GetOption<float>, each clamped
    // by its setter.
    void Deserialize(const std::string& options) override;

    void SetType(Type value);
    Type GetType() const;
    // Clamped to 0.0..0.9.
    void SetMaxZoom(float zoom);
    float GetMaxZoom() const;
    // Clamped to 0.0..1.0.
    void SetMaxBlur(float blur);
    float GetMaxBlur() const;
    // Raised to at least 1.0; no upper limit.
    void SetBoostPower(float power);
    float GetBoostPower() const;
    // Clamped to 0.0..0.5.
    void SetMixDuration(float duration);
    float GetMixDuration() const;

private:
    Type type = Type::In;
    float maxZoom = 0.0F;     // neutral default: no zoom
    float maxBlur = 0.0F;     // neutral default: no blur
    float boostPower = 1.0F;  // neutral default: not boosted, the lowest value taken
    float mixDuration = 0.0F; // neutral default: a hard cut between the pictures
};

} // namespace Zorvan::Proc
