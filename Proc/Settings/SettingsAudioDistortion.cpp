#include "Proc/Settings/SettingsAudioDistortion.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

namespace {

// The inclusive range check of the float setters; a not-a-number passes, kept so on purpose.
void Check(float value, const char* message)
{
    if (value < 0.0F || value > 1.0F) {
        ThrowEffect(message);
    }
}

} // namespace

const std::string SettingsAudioDistortion::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioDistortion";

const std::string& SettingsAudioDistortion::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioDistortion::Clone() const
{
    return std::make_unique<SettingsAudioDistortion>(*this);
}

void SettingsAudioDistortion::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"intensity", "boost", "tone", "type"});
    if (const auto value = MapForm::Find<float>(map, "intensity")) {
        SetIntensity(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "boost")) {
        SetBoost(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "tone")) {
        SetTone(*value);
    }
    if (const auto value = MapForm::Find<int>(map, "type")) {
        SetType(static_cast<unsigned int>(*value));
    }
}

void SettingsAudioDistortion::SetType(unsigned int value)
{
    if (value > 4U) {
        ThrowEffect("Invalid type!");
    }
    type = value;
}

void SettingsAudioDistortion::SetIntensity(float value)
{
    Check(value, "Invalid intensity!");
    intensity = value;
}

void SettingsAudioDistortion::SetBoost(float value)
{
    Check(value, "Invalid boost!");
    boost = value;
}

void SettingsAudioDistortion::SetTone(float value)
{
    Check(value, "Invalid tone!");
    tone = value;
}

std::uint32_t SettingsAudioDistortion::GetType() const
{
    return type;
}

float SettingsAudioDistortion::GetIntensity() const
{
    return intensity;
}

float SettingsAudioDistortion::GetBoost() const
{
    return boost;
}

float SettingsAudioDistortion::GetTone() const
{
    return tone;
}

} // namespace Zorvan::Proc
