#include "Proc/Settings/SettingsAudioEqualizer.h"

#include <array>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsAudioEqualizer::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioEqualizer";

bool SettingsAudioEqualizer::BandEq::IsOK() const
{
    return frequency >= 0;
}

bool SettingsAudioEqualizer::BandEq::operator==(const BandEq& other) const
{
    return frequency == other.frequency && NearlyEqual(gain, other.gain);
}

const std::string& SettingsAudioEqualizer::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioEqualizer::Clone() const
{
    return std::make_unique<SettingsAudioEqualizer>(*this);
}

void SettingsAudioEqualizer::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"intensity", "freq0", "freq1", "freq2", "gain0", "gain1", "gain2"});
    if (const auto value = MapForm::Find<float>(map, "intensity")) {
        SetIntensity(*value);
    }
    // At most three bands, in index order whatever their frequencies; an option string always
    // replaces the whole list, so one without a complete pair empties it.
    constexpr std::array<const char*, 3> frequencyKeys = {"freq0", "freq1", "freq2"};
    constexpr std::array<const char*, 3> gainKeys = {"gain0", "gain1", "gain2"};
    Multiband bands;
    for (std::size_t i = 0; i < frequencyKeys.size(); ++i) {
        const std::string* frequency = MapForm::FindText(map, frequencyKeys[i]);
        const std::string* gain = MapForm::FindText(map, gainKeys[i]);
        if (frequency != nullptr && gain != nullptr) {
            bands.push_back({MapForm::Convert<int>(*frequency), MapForm::Convert<double>(*gain)});
        }
    }
    SetMultiband(bands);
}

void SettingsAudioEqualizer::SetMultiband(const Multiband& value)
{
    for (const BandEq& band : value) {
        if (!band.IsOK()) {
            // Says Echo although the list holds bands; kept, since the engine's callers match this text.
            ThrowSettings("Invalid Echo");
        }
    }
    multiband = value;
}

void SettingsAudioEqualizer::SetIntensity(float value)
{
    if (value < 0.0F || value > 1.0F) {
        ThrowEffect("Intensity should be in range from 0.f to 1.f");
    }
    intensity = value;
}

const SettingsAudioEqualizer::Multiband& SettingsAudioEqualizer::GetMultiband() const
{
    return multiband;
}

float SettingsAudioEqualizer::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc
