#pragma once
#include <cstdint>
#include <iosfwd>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The dynamic-range compressor. Its keys are spelled in camel case ("levelIn"), its
// messages are short ("Invalid ratio!") and its detector and link are written as the numbers 0
// and 1 in an option string. It does not follow the gate's conventions, on purpose.
// Keeps the base IsEqualTo (it throws) and IsEmpty (never empty) and has no operator==.
class ZORVAN_SETTINGS_EXPORT SettingsAudioCompressor : public Settings {
public:
    // Written by operator<< as "rms" and "peak".
    enum class DetectionType : std::int32_t { Rms = 0, Peak = 1 };
    // Written by operator<< as "average" and "maximum".
    enum class LinkType : std::int32_t { Average = 0, Maximum = 1 };

    static const std::string CLASS_ID;
    // SetLevelIn raises an accepted value below the minimum to the minimum; the maximum is the
    // upper bound of its check.
    static constexpr float LEVELIN_MIN_VALUE = 0.015625F;
    static constexpr float LEVELIN_MAX_VALUE = 64.0F;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Keys "levelIn", "threshold", "ratio", "attack", "release", "makeup", "knee", "link",
    // "detection", "intensity" (a list built on each call). Applied in the order levelIn,
    // threshold, ratio, attack, release, makeup, knee, intensity (std::stof, through the
    // setters; threshold widened to double), then detection and link (std::stoi, 0 or 1, else
    // EffectException "Unknown value of detection type" / "Unknown value of link type").
    void Deserialize(const std::string& options) override;

    // Every check below is inclusive and fails with EffectException; a not-a-number passes and
    // is stored. The bounds of the float setters are float constants.
    // 0 to 64, "Invalid levelIn!"; an accepted value below LEVELIN_MIN_VALUE is raised to it.
    void SetLevelIn(float value);
    // 0 to 1, "Invalid threshold!"; an accepted value below 0.000976563 is raised to it.
    void SetThreshold(double value);
    // 1 to 20, "Invalid ratio!".
    void SetRatio(float value);
    // 0.01 to 2000, "Invalid attack!".
    void SetAttack(float value);
    // 0.01 to 9000, "Invalid release!".
    void SetRelease(float value);
    // 1 to 64, "Invalid makeup!".
    void SetMakeup(float value);
    // 1 to 8, "Invalid knee!".
    void SetKnee(float value);
    // 0 to 1, "Invalid intensity!".
    void SetIntensity(float value);
    // Stored as given, unchecked, unlike the setters above.
    void SetLink(LinkType value);
    void SetDetection(DetectionType value);

    float GetLevelIn() const;
    double GetThreshold() const;
    float GetRatio() const;
    float GetAttack() const;
    float GetRelease() const;
    float GetMakeup() const;
    float GetKnee() const;
    LinkType GetLink() const;
    DetectionType GetDetection() const;
    float GetIntensity() const;

private:
    // Neutral defaults: a record that changes nothing (unity gains, ratio 1,
    // intensity 0), with valid values elsewhere.
    float levelIn = 1.0F;                         // unity input gain
    double threshold = 1.0;                       // full scale: nothing lies above it
    float ratio = 1.0F;                           // 1:1, no compression
    float attack = 20.0F;                         // valid, no effect at ratio 1
    float release = 250.0F;                       // valid, no effect at ratio 1
    float makeup = 1.0F;                          // unity make-up gain
    float knee = 1.0F;                            // hard knee, the lower bound
    LinkType link = LinkType::Average;            // value 0
    DetectionType detection = DetectionType::Rms; // value 0
    float intensity = 0.0F;                       // no effect
};

// The text given at each enumerator, without a line end; any other value raises EffectException
// "Unknown detection type" / "Unknown link type". Returns the stream.
ZORVAN_SETTINGS_EXPORT std::ostream& operator<<(std::ostream& stream, SettingsAudioCompressor::DetectionType value);
ZORVAN_SETTINGS_EXPORT std::ostream& operator<<(std::ostream& stream, SettingsAudioCompressor::LinkType value);

} // namespace Zorvan::Proc
