#include "Proc/Settings/SettingsAudioGate.h"

#include <ostream>
#include <vector>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

namespace {

// The inclusive range check of every setter; a not-a-number passes, kept so on purpose.
void Check(float value, float low, float high, const char* message)
{
    if (value < low || value > high) {
        ThrowEffect(message);
    }
}

} // namespace

const std::string SettingsAudioGate::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioGate";

const std::string& SettingsAudioGate::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioGate::Clone() const
{
    return std::make_unique<SettingsAudioGate>(*this);
}

bool SettingsAudioGate::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsAudioGate&>(other);
}

void SettingsAudioGate::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // Built once, on the first call, under the language's initialisation guard.
    static const std::vector<std::string> keys = {"level_in", "range",  "intensity", "threshold", "ratio", "attack",
                                                  "release",  "makeup", "knee",      "detection", "link"};
    const auto map = GetOptionsMap(options, keys);
    if (const auto value = MapForm::Find<float>(map, "level_in")) {
        SetLevelIn(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "range")) {
        SetRange(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "intensity")) {
        SetIntensity(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "threshold")) {
        SetThreshold(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "ratio")) {
        SetRatio(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "attack")) {
        SetAttackMs(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "release")) {
        SetReleaseMs(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "makeup")) {
        SetMakeup(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "knee")) {
        SetKnee(*value);
    }
    // The text exactly as GetOptionsMap holds it, quotes kept, case-sensitive. No
    // quote removal: a quoted word keeps its quotes and fails, an unquoted one is no option.
    if (const std::string* text = MapForm::FindText(map, "detection")) {
        if (*text == "rms") {
            detection = DetectionType::Rms;
        } else if (*text == "peak") {
            detection = DetectionType::Peak;
        } else {
            ThrowEffect("Unknown value of detection type");
        }
    }
    if (const std::string* text = MapForm::FindText(map, "link")) {
        if (*text == "average") {
            link = LinkType::Average;
        } else if (*text == "maximum") {
            link = LinkType::Maximum;
        } else {
            ThrowEffect("Unknown value of link type");
        }
    }
}

bool SettingsAudioGate::operator==(const SettingsAudioGate& other) const
{
    return levelIn == other.levelIn && rangeIntensity == other.rangeIntensity && threshold == other.threshold &&
           ratio == other.ratio && attackMs == other.attackMs && releaseMs == other.releaseMs &&
           makeup == other.makeup && knee == other.knee && detection == other.detection && link == other.link;
}

void SettingsAudioGate::SetLevelIn(float value)
{
    Check(value, 0.0F, 64.0F, "Level_in should be in range from 0.015625f to 64.f");
    levelIn = value < 0.015625F ? 0.015625F : value;
}

void SettingsAudioGate::SetRange(float value)
{
    Check(value, 0.0F, 1.0F, "Range should be in range from 0.f to 1.f");
    rangeIntensity = 1.0F - value;
}

void SettingsAudioGate::SetIntensity(float value)
{
    Check(value, 0.0F, 1.0F, "Intensity should be in range from 0.f to 1.f");
    rangeIntensity = value;
}

void SettingsAudioGate::SetThreshold(float value)
{
    Check(value, 0.0F, 1.0F, "Threshold should be in range from 0.f to 1.f");
    threshold = value;
}

void SettingsAudioGate::SetRatio(float value)
{
    Check(value, 1.0F, 9000.0F, "Ratio should be in range from 1.f to 9000.f");
    ratio = value;
}

void SettingsAudioGate::SetAttackMs(float value)
{
    Check(value, 0.01F, 9000.0F, "Attack should be in range from 0.01f to 1.f");
    attackMs = value;
}

void SettingsAudioGate::SetReleaseMs(float value)
{
    Check(value, 0.01F, 9000.0F, "Release should be in range from 0.01f to 9000.f");
    releaseMs = value;
}

void SettingsAudioGate::SetMakeup(float value)
{
    Check(value, 1.0F, 64.0F, "Makeup should be in range from 1.f to 64.f");
    makeup = value;
}

void SettingsAudioGate::SetKnee(float value)
{
    Check(value, 1.0F, 8.0F, "Knee should be in range from 1.f to 8.f");
    knee = value;
}

void SettingsAudioGate::SetDetection(DetectionType value)
{
    detection = value;
}

void SettingsAudioGate::SetLink(LinkType value)
{
    link = value;
}

float SettingsAudioGate::GetLevelIn() const
{
    return levelIn;
}

float SettingsAudioGate::GetRangeIntensity() const
{
    return rangeIntensity;
}

float SettingsAudioGate::GetThreshold() const
{
    return threshold;
}

float SettingsAudioGate::GetRatio() const
{
    return ratio;
}

float SettingsAudioGate::GetAttackMs() const
{
    return attackMs;
}

float SettingsAudioGate::GetReleaseMs() const
{
    return releaseMs;
}

float SettingsAudioGate::GetMakeup() const
{
    return makeup;
}

float SettingsAudioGate::GetKnee() const
{
    return knee;
}

SettingsAudioGate::DetectionType SettingsAudioGate::GetDetection() const
{
    return detection;
}

SettingsAudioGate::LinkType SettingsAudioGate::GetLink() const
{
    return link;
}

std::ostream& operator<<(std::ostream& stream, SettingsAudioGate::DetectionType value)
{
    switch (value) {
    case SettingsAudioGate::DetectionType::Rms:
        return stream << "rms";
    case SettingsAudioGate::DetectionType::Peak:
        return stream << "peak";
    }
    ThrowEffect("Unknown detection type");
}

std::ostream& operator<<(std::ostream& stream, SettingsAudioGate::LinkType value)
{
    switch (value) {
    case SettingsAudioGate::LinkType::Average:
        return stream << "average";
    case SettingsAudioGate::LinkType::Maximum:
        return stream << "maximum";
    }
    ThrowEffect("Unknown link type");
}

} // namespace Zorvan::Proc
