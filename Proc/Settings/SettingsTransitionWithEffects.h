#pragma once
#include <memory>
#include <string>
#include <vector>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A base transition with a few effects running over it. Option strings name the transition and
// the effects by class id, each with its own option string; a clone shares the nested records.
class ZORVAN_SETTINGS_EXPORT SettingsTransitionWithEffects : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Not an update: a non-empty string first drops the transition and the effects. Then
    // "power_scale", "intensity_multiplier", "transition_filling" (std::stod through the setters),
    // then "transition" and "effect0" to "effect9" in turn, each a quoted
    // "<class id>=<its options>" (no "=": the record as built). Transitions: "TransitionFlash",
    // "TransitionWhipe", "$$EffectWipe$$", "$$TransitionCrossfade$$", "$$TransitionZoom$$", else
    // SettingsException "Invalid transition for deserializing: '<name>'". Effects:
    // "EffectGlitchMpeg" (intensity 1.0) and "EffectGlitchSecurityCam" (1.0, 1.4, 0.15), else
    // SettingsException "'<name>' effect not suitable for use here". Nothing is rolled back.
    void Deserialize(const std::string& options) override;

    // Any record or none: the list of names applies only to option strings.
    void SetTransition(std::shared_ptr<Settings> value);
    const std::shared_ptr<Settings>& GetTransition() const;
    // Appends a record of "EffectGlitchMpeg" or "EffectGlitchSecurityCam"; any other class throws
    // SettingsException "'<class id>' effect not suitable for use here". Not an empty pointer.
    void AddEffect(std::shared_ptr<Settings> effect);
    const std::vector<std::shared_ptr<Settings>>& GetEffects() const;

    // Refused unless above 0.0 and at most 1.0, with SettingsException "Invalid
    // transition_filling. Must be greater 0.0 and less or equal 1.0 (0.0; 1.0]".
    void SetTransitionFilling(double filling);
    double GetTransitionFilling() const;
    // Refused below 0.0, with SettingsException "Invalid power_scale parameter. Must be greater
    // or equal zero.".
    void SetPowerScale(double scale);
    double GetPowerScale() const;
    // Refused at or below 0.0, with SettingsException "Invalid intensity_multiplier parameter.
    // Must be greater then zero.".
    // A not-a-number value passes all three checks and is stored.
    void SetIntensityMultiplier(double multiplier);
    double GetIntensityMultiplier() const;

    // Copied with the record; nothing here sets it.
    const std::string& GetName() const;

private:
    std::string name;
    std::vector<std::shared_ptr<Settings>> effects;
    std::shared_ptr<Settings> transition;
    double transitionFilling = 1.0;   // neutral default: the composition fills the whole transition
    double powerScale = 1.0;          // neutral default: the effects at their own power
    double intensityMultiplier = 1.0; // neutral default: the effects at their own intensity
};

} // namespace Zorvan::Proc
