#include "Proc/Settings/SettingsTransitionWithEffects.h"

#include <utility>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"
#include "Proc/Settings/SettingsEffectGlitchMpeg.h"
#include "Proc/Settings/SettingsEffectGlitchSecurityCam.h"
#include "Proc/Settings/SettingsTransitionCrossfade.h"
#include "Proc/Settings/SettingsTransitionFlash.h"
#include "Proc/Settings/SettingsTransitionWhipe.h"
#include "Proc/Settings/SettingsTransitionWipe.h"
#include "Proc/Settings/SettingsTransitionZoom.h"
#include "imported/Utils.h"

namespace Zorvan::Proc {

namespace {

// Option strings hold the effects under "effect0" to "effect9".
constexpr int kEffectKeys = 10;

// The transitions a composition can be built on from an option string, as built before their
// own options are read; nullptr for any other name.
std::shared_ptr<Settings> MakeTransition(const std::string& name)
{
    if (name == SettingsTransitionFlash::CLASS_ID) {
        return std::make_shared<SettingsTransitionFlash>();
    }
    if (name == SettingsTransitionWhipe::CLASS_ID) {
        return std::make_shared<SettingsTransitionWhipe>();
    }
    if (name == SettingsTransitionWipe::CLASS_ID) {
        return std::make_shared<SettingsTransitionWipe>();
    }
    if (name == SettingsTransitionCrossfade::CLASS_ID) {
        return std::make_shared<SettingsTransitionCrossfade>();
    }
    if (name == SettingsTransitionZoom::CLASS_ID) {
        return std::make_shared<SettingsTransitionZoom>();
    }
    return nullptr;
}

bool IsSuitableEffect(const std::string& id)
{
    return id == SettingsEffectGlitchMpeg::CLASS_ID || id == SettingsEffectGlitchSecurityCam::CLASS_ID;
}

// The effects that can run over the transition, at the strength the composition starts them
// with: full intensity, and the security camera's distortions of its presets.
std::shared_ptr<Settings> MakeEffect(const std::string& name)
{
    if (name == SettingsEffectGlitchMpeg::CLASS_ID) {
        auto effect = std::make_shared<SettingsEffectGlitchMpeg>();
        effect->SetIntensity(1.0F);
        return effect;
    }
    if (name == SettingsEffectGlitchSecurityCam::CLASS_ID) {
        auto effect = std::make_shared<SettingsEffectGlitchSecurityCam>();
        effect->SetIntensity(1.0F);
        effect->SetRandDistortion(1.4F);
        effect->SetConstDistortion(0.15F);
        return effect;
    }
    return nullptr;
}

[[noreturn]] void ThrowUnsuitableEffect(const std::string& id)
{
    ThrowSettings("'" + id + "' effect not suitable for use here");
}

} // namespace

const std::string SettingsTransitionWithEffects::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionWithEffects";

const std::string& SettingsTransitionWithEffects::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionWithEffects::Clone() const
{
    return std::make_unique<SettingsTransitionWithEffects>(*this);
}

void SettingsTransitionWithEffects::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // The string describes the whole composition: what it does not name is dropped, even when
    // a later key fails.
    transition.reset();
    effects.clear();

    std::vector<std::string> keys{"transition", "transition_filling", "power_scale", "intensity_multiplier"};
    for (int index = 0; index < kEffectKeys; ++index) {
        keys.push_back("effect" + std::to_string(index));
    }
    const auto map = GetOptionsMap(options, keys);
    if (const auto value = MapForm::Find<double>(map, "power_scale")) {
        SetPowerScale(*value);
    }
    if (const auto value = MapForm::Find<double>(map, "intensity_multiplier")) {
        SetIntensityMultiplier(*value);
    }
    if (const auto value = MapForm::Find<double>(map, "transition_filling")) {
        SetTransitionFilling(*value);
    }
    // Nested records are given as "<class id>=<their own options>", quoted.
    if (const std::string* text = MapForm::FindText(map, "transition")) {
        const auto [name, nested] = Core::Utils::CutString(Core::Utils::RemoveQuotes(*text), '=');
        std::shared_ptr<Settings> built = MakeTransition(name);
        if (!built) {
            ThrowSettings("Invalid transition for deserializing: '" + name + "'");
        }
        // Held before its options are read: a refused option leaves it in the composition.
        transition = std::move(built);
        transition->Deserialize(nested);
    }
    // Gaps are allowed: "effect3" alone gives one effect.
    for (int index = 0; index < kEffectKeys; ++index) {
        const std::string* text = MapForm::FindText(map, "effect" + std::to_string(index));
        if (text == nullptr) {
            continue;
        }
        const auto [name, nested] = Core::Utils::CutString(Core::Utils::RemoveQuotes(*text), '=');
        std::shared_ptr<Settings> effect = MakeEffect(name);
        if (!effect) {
            ThrowUnsuitableEffect(name);
        }
        effect->Deserialize(nested);
        effects.push_back(std::move(effect));
    }
}

void SettingsTransitionWithEffects::SetTransition(std::shared_ptr<Settings> value)
{
    transition = std::move(value);
}

const std::shared_ptr<Settings>& SettingsTransitionWithEffects::GetTransition() const
{
    return transition;
}

void SettingsTransitionWithEffects::AddEffect(std::shared_ptr<Settings> effect)
{
    if (!IsSuitableEffect(effect->GetClassId())) {
        ThrowUnsuitableEffect(effect->GetClassId());
    }
    effects.push_back(std::move(effect));
}

const std::vector<std::shared_ptr<Settings>>& SettingsTransitionWithEffects::GetEffects() const
{
    return effects;
}

void SettingsTransitionWithEffects::SetTransitionFilling(double filling)
{
    if (filling <= 0.0 || filling > 1.0) {
        ThrowSettings("Invalid transition_filling. Must be greater 0.0 and less or equal 1.0 (0.0; 1.0]");
    }
    transitionFilling = filling;
}

double SettingsTransitionWithEffects::GetTransitionFilling() const
{
    return transitionFilling;
}

void SettingsTransitionWithEffects::SetPowerScale(double scale)
{
    if (scale < 0.0) {
        ThrowSettings("Invalid power_scale parameter. Must be greater or equal zero.");
    }
    powerScale = scale;
}

double SettingsTransitionWithEffects::GetPowerScale() const
{
    return powerScale;
}

void SettingsTransitionWithEffects::SetIntensityMultiplier(double multiplier)
{
    if (multiplier <= 0.0) {
        ThrowSettings("Invalid intensity_multiplier parameter. Must be greater then zero.");
    }
    intensityMultiplier = multiplier;
}

double SettingsTransitionWithEffects::GetIntensityMultiplier() const
{
    return intensityMultiplier;
}

const std::string& SettingsTransitionWithEffects::GetName() const
{
    return name;
}

} // namespace Zorvan::Proc
