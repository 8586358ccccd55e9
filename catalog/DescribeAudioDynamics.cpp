#include "catalog/DescribeKeys.h"

namespace Zorvan::DescribeDetail {

// The dynamics effects read through their setters, which refuse a value outside the range with
// EffectException; the noise gate stores all but its intensity straight.
void DescribeAudioDynamics(DescriptionMap& descriptions)
{
    constexpr auto Map = OptionReader::Map;
    const auto checked = [](Key key, double low, double high, std::string text) {
        return key.Range(low, high).Throws("EffectException", std::move(text));
    };
    Key threshold = checked(Float("threshold", "threshold", 1.0), 0, 1, "Invalid threshold!").Floor(0.000976563);
    threshold.Note("read as a float, stored as a double");
    descriptions["SettingsAudioCompressor"] =
        Described("SettingsAudioCompressor", Map,
                  {checked(Float("levelIn", "levelIn", 1.0), 0, 64, "Invalid levelIn!").Floor(0.015625), threshold,
                   checked(Float("ratio", "ratio", 1.0), 1, 20, "Invalid ratio!"),
                   checked(Float("attack", "attack", 20.0), 0.01F, 2000, "Invalid attack!"),
                   checked(Float("release", "release", 250.0), 0.01F, 9000, "Invalid release!"),
                   checked(Float("makeup", "makeup", 1.0), 1, 64, "Invalid makeup!"),
                   checked(Float("knee", "knee", 1.0), 1, 8, "Invalid knee!"),
                   checked(Float("intensity"), 0, 1, "Invalid intensity!"),
                   checked(Int("detection"), 0, 1, "Unknown value of detection type").Note("0 rms, 1 peak"),
                   checked(Int("link"), 0, 1, "Unknown value of link type").Note("0 average, 1 maximum")});
    // "rms", "peak", "average" and "maximum" are compared with the text as the map holds it, quotes
    // included; an unquoted word is no value there, so every value found is refused.
    const auto word = [](std::string key, std::string words, std::string text) {
        return Key(std::move(key), OptionValueType::Text, "string", "", 0)
            .AlwaysRefused("EffectException", std::move(text))
            .Note("accepts only " + words + ", which the map form cannot deliver");
    };
    Key range = checked(Float("range", "rangeIntensity"), 0, 1, "Range should be in range from 0.f to 1.f");
    range.Example("0.25", 0.75).Note("stored as 1 - value");
    descriptions["SettingsAudioGate"] = Described(
        "SettingsAudioGate", Map,
        {checked(Float("level_in", "levelIn", 1.0), 0, 64, "Level_in should be in range from 0.015625f to 64.f")
             .Floor(0.015625),
         range,
         checked(Float("intensity", "rangeIntensity"), 0, 1, "Intensity should be in range from 0.f to 1.f")
             .Note("read after range, so it wins"),
         checked(Float("threshold"), 0, 1, "Threshold should be in range from 0.f to 1.f"),
         checked(Float("ratio", "ratio", 1.0), 1, 9000, "Ratio should be in range from 1.f to 9000.f"),
         checked(Float("attack", "attackMs", 20.0), 0.01F, 9000, "Attack should be in range from 0.01f to 1.f"),
         checked(Float("release", "releaseMs", 250.0), 0.01F, 9000, "Release should be in range from 0.01f to 9000.f"),
         checked(Float("makeup", "makeup", 1.0), 1, 64, "Makeup should be in range from 1.f to 64.f"),
         checked(Float("knee", "knee", 1.0), 1, 8, "Knee should be in range from 1.f to 8.f"),
         word("detection", "rms or peak", "Unknown value of detection type"),
         word("link", "average or maximum", "Unknown value of link type")});
    descriptions["SettingsAudioNoiseGate"] =
        Described("SettingsAudioNoiseGate", Map,
                  {Double("threshold"), Double("attack"), Double("decay"), Double("soft_knee", "softKnee"),
                   checked(Float("intensity"), 0, 1, "Intensity should be in range from 0.f to 1.f")});
}

} // namespace Zorvan::DescribeDetail
