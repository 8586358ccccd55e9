#include "Proc/Settings/SettingsAudioFlanger.h"

#include <ostream>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

namespace {

// Fails only when the value compares outside its bounds, so a not-a-number passes, as in the
// compressor and the gate.
void Check(float value, float low, float high, const char* message)
{
    if (value < low || value > high) {
        ThrowEffect(message);
    }
}

} // namespace

const std::string SettingsAudioFlanger::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioFlanger";

const std::string& SettingsAudioFlanger::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioFlanger::Clone() const
{
    return std::make_unique<SettingsAudioFlanger>(*this);
}

bool SettingsAudioFlanger::IsEqualTo(const Settings& other) const
{
    const auto& o = dynamic_cast<const SettingsAudioFlanger&>(other);
    return delay == o.delay && depth == o.depth && regen == o.regen && intensity == o.intensity && speed == o.speed &&
           phase == o.phase && shape == o.shape && interpolation == o.interpolation;
}

void SettingsAudioFlanger::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // Built once, on the first call, under the language's initialisation guard.
    static const std::vector<std::string> keys = {"delay", "depth", "regen", "intensity",
                                                  "speed", "phase", "shape", "interpolation"};
    const auto map = GetOptionsMap(options, keys);
    if (const auto value = MapForm::Find<float>(map, "delay")) {
        SetDelay(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "depth")) {
        SetDepth(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "regen")) {
        SetRegen(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "intensity")) {
        SetIntensity(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "speed")) {
        SetSpeed(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "phase")) {
        SetPhase(*value);
    }
    // The text exactly as GetOptionsMap holds it, quotes kept, case-sensitive. No
    // quote removal: a quoted word keeps its quotes and fails, an unquoted one is no option.
    if (const std::string* text = MapForm::FindText(map, "shape")) {
        if (*text == "triangular") {
            shape = ShapeType::Triangular;
        } else if (*text == "sinusoidal") {
            shape = ShapeType::Sinusoidal;
        } else {
            ThrowEffect("Unknown value of shape type");
        }
    }
    if (const std::string* text = MapForm::FindText(map, "interpolation")) {
        if (*text == "linear") {
            interpolation = InterpolationType::Linear;
        } else if (*text == "quadratic") {
            interpolation = InterpolationType::Quadratic;
        } else {
            ThrowEffect("Unknown value of interpolation type");
        }
    }
}

void SettingsAudioFlanger::SetDelay(float value)
{
    Check(value, 0.0F, 30.0F, "Delay should be in range from 0.0f to 30.f");
    delay = value;
}

void SettingsAudioFlanger::SetDepth(float value)
{
    Check(value, 0.0F, 10.0F, "Depth should be in range from 0.f to 10.f");
    depth = value;
}

void SettingsAudioFlanger::SetRegen(float value)
{
    Check(value, -95.0F, 95.0F, "Regen should be in range from -95.f to 95.f");
    regen = value;
}

void SettingsAudioFlanger::SetIntensity(float value)
{
    Check(value, 0.0F, 1.0F, "Intensity should be in range from 0.f to 1.f");
    intensity = value;
}

void SettingsAudioFlanger::SetSpeed(float value)
{
    Check(value, 0.1F, 10.0F, "Speed should be in range from 0.1f to 10.f");
    speed = value;
}

void SettingsAudioFlanger::SetPhase(float value)
{
    Check(value, 0.0F, 100.0F, "Release should be in range from 0.f to 100.f");
    phase = value;
}

void SettingsAudioFlanger::SetShape(ShapeType value)
{
    shape = value;
}

void SettingsAudioFlanger::SetInterpolation(InterpolationType value)
{
    interpolation = value;
}

float SettingsAudioFlanger::GetDelay() const
{
    return delay;
}

float SettingsAudioFlanger::GetDepth() const
{
    return depth;
}

float SettingsAudioFlanger::GetRegen() const
{
    return regen;
}

float SettingsAudioFlanger::GetIntensity() const
{
    return intensity;
}

float SettingsAudioFlanger::GetSpeed() const
{
    return speed;
}

float SettingsAudioFlanger::GetPhase() const
{
    return phase;
}

SettingsAudioFlanger::ShapeType SettingsAudioFlanger::GetShape() const
{
    return shape;
}

SettingsAudioFlanger::InterpolationType SettingsAudioFlanger::GetInterpolation() const
{
    return interpolation;
}

std::ostream& operator<<(std::ostream& stream, SettingsAudioFlanger::ShapeType value)
{
    switch (value) {
    case SettingsAudioFlanger::ShapeType::Triangular:
        return stream << "triangular";
    case SettingsAudioFlanger::ShapeType::Sinusoidal:
        return stream << "sinusoidal";
    }
    ThrowEffect("Unknown shape type");
}

std::ostream& operator<<(std::ostream& stream, SettingsAudioFlanger::InterpolationType value)
{
    switch (value) {
    case SettingsAudioFlanger::InterpolationType::Linear:
        return stream << "linear";
    case SettingsAudioFlanger::InterpolationType::Quadratic:
        return stream << "quadratic";
    }
    ThrowEffect("Unknown interpolation type");
}

} // namespace Zorvan::Proc
