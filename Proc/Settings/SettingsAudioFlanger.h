#pragma once
#include <cstdint>
#include <iosfwd>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The flanger, eight flat parameters. IsEqualTo compares all eight exactly; there is
// no operator==.
class ZORVAN_SETTINGS_EXPORT SettingsAudioFlanger : public Settings {
public:
    // Written by operator<< as "triangular" and "sinusoidal".
    enum class ShapeType : std::int32_t { Triangular = 0, Sinusoidal = 1 };
    // Written by operator<< as "linear" and "quadratic".
    enum class InterpolationType : std::int32_t { Linear = 0, Quadratic = 1 };

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Checked cast (std::bad_cast for a foreign class), then every field exactly, in declared
    // order.
    bool IsEqualTo(const Settings& other) const override;
    // Keys "delay", "depth", "regen", "intensity", "speed", "phase" (std::stof, through the
    // setters), then "shape" and "interpolation", compared as the map holds them (quotes kept,
    // case-sensitive) with "triangular"/"sinusoidal" and "linear"/"quadratic", else
    // EffectException "Unknown value of shape type" / "Unknown value of interpolation type".
    // The key list is a function-local static, built on the first call.
    void Deserialize(const std::string& options) override;

    // Every check is inclusive and fails with EffectException; a not-a-number compares outside
    // no bound, passes and is stored. A failed setter leaves its field.
    // 0 to 30, "Delay should be in range from 0.0f to 30.f".
    void SetDelay(float value);
    // 0 to 10, "Depth should be in range from 0.f to 10.f".
    void SetDepth(float value);
    // -95 to 95, "Regen should be in range from -95.f to 95.f".
    void SetRegen(float value);
    // 0 to 1, "Intensity should be in range from 0.f to 1.f".
    void SetIntensity(float value);
    // 0.1 to 10, "Speed should be in range from 0.1f to 10.f".
    void SetSpeed(float value);
    // 0 to 100, "Release should be in range from 0.f to 100.f" (names release; kept so on
    // purpose for callers that match the message).
    void SetPhase(float value);
    // Stored as given, unchecked, unlike the setters above.
    void SetShape(ShapeType value);
    void SetInterpolation(InterpolationType value);

    float GetDelay() const;
    float GetDepth() const;
    float GetRegen() const;
    float GetIntensity() const;
    float GetSpeed() const;
    float GetPhase() const;
    ShapeType GetShape() const;
    InterpolationType GetInterpolation() const;

private:
    // Neutral defaults: valid values and intensity 0, so nothing changes.
    float delay = 0.0F;
    float depth = 0.0F;                                          // no sweep
    float regen = 0.0F;                                          // no feedback
    float intensity = 0.0F;                                      // dry signal only
    float speed = 0.1F;                                          // the lower bound, valid
    float phase = 0.0F;                                          // no phase shift
    ShapeType shape = ShapeType::Triangular;                     // value 0
    InterpolationType interpolation = InterpolationType::Linear; // value 0
};

// The text given at each enumerator, without a line end; any other value raises EffectException
// "Unknown shape type" / "Unknown interpolation type". Returns the stream.
ZORVAN_SETTINGS_EXPORT std::ostream& operator<<(std::ostream& stream, SettingsAudioFlanger::ShapeType value);
ZORVAN_SETTINGS_EXPORT std::ostream& operator<<(std::ostream& stream, SettingsAudioFlanger::InterpolationType value);

} // namespace Zorvan::Proc
