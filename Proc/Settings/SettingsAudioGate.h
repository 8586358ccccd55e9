#pragma once
#include <cstdint>
#include <iosfwd>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The noise gate with the compressor's parameters, following its own conventions on
// purpose: keys with underscores ("level_in"), long messages, one field for "range" and
// "intensity", and detection and link compared as text (which no option string can satisfy).
class ZORVAN_SETTINGS_EXPORT SettingsAudioGate : public Settings {
public:
    // Written by operator<< as "rms" and "peak".
    enum class DetectionType : std::int32_t { Rms = 0, Peak = 1 };
    // Written by operator<< as "average" and "maximum".
    enum class LinkType : std::int32_t { Average = 0, Maximum = 1 };

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // `*this == other` after a checked cast: std::bad_cast for a foreign class.
    bool IsEqualTo(const Settings& other) const override;
    // Keys "level_in", "range", "intensity", "threshold", "ratio", "attack", "release",
    // "makeup", "knee" (std::stof, through the setters), then "detection" and "link", compared
    // as the map holds them (quotes kept) with "rms"/"peak" and "average"/"maximum", else
    // EffectException "Unknown value of detection type" / "Unknown value of link type". The key
    // list is a function-local static, built on the first call.
    void Deserialize(const std::string& options) override;

    // Every field exactly, in declared order.
    bool operator==(const SettingsAudioGate& other) const;

    // Every check below is inclusive and fails with EffectException; a not-a-number passes and
    // is stored. The bounds are float constants.
    // 0 to 64, "Level_in should be in range from 0.015625f to 64.f"; an accepted value below
    // 0.015625 is raised to it.
    void SetLevelIn(float value);
    // 0 to 1, "Range should be in range from 0.f to 1.f"; stores 1 - value in rangeIntensity.
    void SetRange(float value);
    // 0 to 1, "Intensity should be in range from 0.f to 1.f"; stores value in rangeIntensity.
    void SetIntensity(float value);
    // 0 to 1, "Threshold should be in range from 0.f to 1.f".
    void SetThreshold(float value);
    // 1 to 9000, "Ratio should be in range from 1.f to 9000.f".
    void SetRatio(float value);
    // 0.01 to 9000, "Attack should be in range from 0.01f to 1.f" (the message's bound is wrong;
    // kept so on purpose for callers that match the message).
    void SetAttackMs(float value);
    // 0.01 to 9000, "Release should be in range from 0.01f to 9000.f".
    void SetReleaseMs(float value);
    // 1 to 64, "Makeup should be in range from 1.f to 64.f".
    void SetMakeup(float value);
    // 1 to 8, "Knee should be in range from 1.f to 8.f".
    void SetKnee(float value);
    // Stored as given, unchecked, unlike the setters above.
    void SetDetection(DetectionType value);
    void SetLink(LinkType value);

    float GetLevelIn() const;
    float GetRangeIntensity() const;
    float GetThreshold() const;
    float GetRatio() const;
    float GetAttackMs() const;
    float GetReleaseMs() const;
    float GetMakeup() const;
    float GetKnee() const;
    DetectionType GetDetection() const;
    LinkType GetLink() const;

private:
    // Neutral defaults: a record that changes nothing (unity gains, threshold 0,
    // ratio 1, intensity 0), with valid values elsewhere.
    float levelIn = 1.0F;                         // unity input gain
    float rangeIntensity = 0.0F;                  // intensity 0: no effect
    float threshold = 0.0F;                       // nothing lies below it: the gate stays open
    float ratio = 1.0F;                           // 1:1, no attenuation
    float attackMs = 20.0F;                       // valid, no effect at ratio 1
    float releaseMs = 250.0F;                     // valid, no effect at ratio 1
    float makeup = 1.0F;                          // unity make-up gain
    float knee = 1.0F;                            // hard knee, the lower bound
    DetectionType detection = DetectionType::Rms; // value 0
    LinkType link = LinkType::Average;            // value 0
};

// The text given at each enumerator, without a line end; any other value raises EffectException
// "Unknown detection type" / "Unknown link type". Returns the stream.
ZORVAN_SETTINGS_EXPORT std::ostream& operator<<(std::ostream& stream, SettingsAudioGate::DetectionType value);
ZORVAN_SETTINGS_EXPORT std::ostream& operator<<(std::ostream& stream, SettingsAudioGate::LinkType value);

} // namespace Zorvan::Proc
