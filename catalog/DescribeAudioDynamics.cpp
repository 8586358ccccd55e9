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
    descriptions["SettingsAudioNoiseGate"] =
        Described("SettingsAudioNoiseGate", Map,
                  {Double("threshold"), Double("attack"), Double("decay"), Double("soft_knee", "softKnee"),
                   checked(Float("intensity"), 0, 1, "Intensity should be in range from 0.f to 1.f")});
}

} // namespace Zorvan::DescribeDetail
