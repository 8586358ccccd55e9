#include "Proc/Settings/SettingsAudioCompressor.h"

#include <ostream>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

namespace {

// An accepted threshold below this is raised to it. The decimal in double, deliberately not
// 2^-10 exactly, so that raised thresholds match those of earlier versions.
constexpr double THRESHOLD_MIN_VALUE = 0.000976563;

// The inclusive range check of every setter; a not-a-number passes, kept so on purpose.
template <typename T>
void Check(T value, T low, T high, const char* message)
{
    if (value < low || value > high) {
        ThrowEffect(message);
    }
}

} // namespace

const std::string SettingsAudioCompressor::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioCompressor";

const std::string& SettingsAudioCompressor::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioCompressor::Clone() const
{
    return std::make_unique<SettingsAudioCompressor>(*this);
}

void SettingsAudioCompressor::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // The key list is built afresh on each call; the keys are applied in another order.
    const auto map = GetOptionsMap(options, {"levelIn", "threshold", "ratio", "attack", "release", "makeup", "knee",
                                             "link", "detection", "intensity"});
    if (const auto value = MapForm::Find<float>(map, "levelIn")) {
        SetLevelIn(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "threshold")) {
        SetThreshold(static_cast<double>(*value));
    }
    if (const auto value = MapForm::Find<float>(map, "ratio")) {
        SetRatio(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "attack")) {
        SetAttack(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "release")) {
        SetRelease(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "makeup")) {
        SetMakeup(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "knee")) {
        SetKnee(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "intensity")) {
        SetIntensity(*value);
    }
    if (const auto value = MapForm::Find<int>(map, "detection")) {
        if (*value != 0 && *value != 1) {
            ThrowEffect("Unknown value of detection type");
        }
        detection = static_cast<DetectionType>(*value);
    }
    if (const auto value = MapForm::Find<int>(map, "link")) {
        if (*value != 0 && *value != 1) {
            ThrowEffect("Unknown value of link type");
        }
        link = static_cast<LinkType>(*value);
    }
}

void SettingsAudioCompressor::SetLevelIn(float value)
{
    Check(value, 0.0F, LEVELIN_MAX_VALUE, "Invalid levelIn!");
    levelIn = value < LEVELIN_MIN_VALUE ? LEVELIN_MIN_VALUE : value;
}

void SettingsAudioCompressor::SetThreshold(double value)
{
    Check(value, 0.0, 1.0, "Invalid threshold!");
    threshold = value < THRESHOLD_MIN_VALUE ? THRESHOLD_MIN_VALUE : value;
}

void SettingsAudioCompressor::SetRatio(float value)
{
    Check(value, 1.0F, 20.0F, "Invalid ratio!");
    ratio = value;
}

void SettingsAudioCompressor::SetAttack(float value)
{
    Check(value, 0.01F, 2000.0F, "Invalid attack!");
    attack = value;
}

void SettingsAudioCompressor::SetRelease(float value)
{
    Check(value, 0.01F, 9000.0F, "Invalid release!");
    release = value;
}

void SettingsAudioCompressor::SetMakeup(float value)
{
    Check(value, 1.0F, 64.0F, "Invalid makeup!");
    makeup = value;
}

void SettingsAudioCompressor::SetKnee(float value)
{
    Check(value, 1.0F, 8.0F, "Invalid knee!");
    knee = value;
}

void SettingsAudioCompressor::SetIntensity(float value)
{
    Check(value, 0.0F, 1.0F, "Invalid intensity!");
    intensity = value;
}

void SettingsAudioCompressor::SetLink(LinkType value)
{
    link = value;
}

void SettingsAudioCompressor::SetDetection(DetectionType value)
{
    detection = value;
}

float SettingsAudioCompressor::GetLevelIn() const
{
    return levelIn;
}

double SettingsAudioCompressor::GetThreshold() const
{
    return threshold;
}

float SettingsAudioCompressor::GetRatio() const
{
    return ratio;
}

float SettingsAudioCompressor::GetAttack() const
{
    return attack;
}

float SettingsAudioCompressor::GetRelease() const
{
    return release;
}

float SettingsAudioCompressor::GetMakeup() const
{
    return makeup;
}

float SettingsAudioCompressor::GetKnee() const
{
    return knee;
}

SettingsAudioCompressor::LinkType SettingsAudioCompressor::GetLink() const
{
    return link;
}

SettingsAudioCompressor::DetectionType SettingsAudioCompressor::GetDetection() const
{
    return detection;
}

float SettingsAudioCompressor::GetIntensity() const
{
    return intensity;
}

std::ostream& operator<<(std::ostream& stream, SettingsAudioCompressor::DetectionType value)
{
    switch (value) {
    case SettingsAudioCompressor::DetectionType::Rms:
        return stream << "rms";
    case SettingsAudioCompressor::DetectionType::Peak:
        return stream << "peak";
    }
    ThrowEffect("Unknown detection type");
}

std::ostream& operator<<(std::ostream& stream, SettingsAudioCompressor::LinkType value)
{
    switch (value) {
    case SettingsAudioCompressor::LinkType::Average:
        return stream << "average";
    case SettingsAudioCompressor::LinkType::Maximum:
        return stream << "maximum";
    }
    ThrowEffect("Unknown link type");
}

} // namespace Zorvan::Proc
