#include "Proc/Settings/SettingsAudioReverberationImpulseResponse.h"

#include <ostream>
#include <string_view>
#include <unordered_map>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

namespace {

using ChangeFunction = SettingsAudioReverberationImpulseResponse::ChangeFunction;
using NoiseColor = SettingsAudioReverberationImpulseResponse::NoiseColor;

// These spellings are case-sensitive, as saved presets write them, so the tables use the
// standard hash and equality rather than the case-insensitive ones of option keys.
template <typename E>
using SpellingTable = std::unordered_map<std::string_view, E>;

// Exactly three characters, one of "tri", "exp", "qua", "cub", "sin".
ChangeFunction DeserializeChangeFunc(const std::string& text)
{
    static const SpellingTable<ChangeFunction> table{
        {"tri", ChangeFunction::Tri}, {"exp", ChangeFunction::Exp}, {"qua", ChangeFunction::Qua},
        {"cub", ChangeFunction::Cub}, {"sin", ChangeFunction::Sin},
    };
    if (text.size() == 3) {
        if (const auto found = table.find(text); found != table.end()) {
            return found->second;
        }
    }
    ThrowEffect("Unknown value of change function");
}

// The colour table, six spellings, case-sensitive.
NoiseColor DeserializeNoiseColor(const std::string& text)
{
    static const SpellingTable<NoiseColor> table{
        {"white", NoiseColor::White}, {"w", NoiseColor::White},     {"pink", NoiseColor::Pink},
        {"p", NoiseColor::Pink},      {"brown", NoiseColor::Brown}, {"b", NoiseColor::Brown},
    };
    if (const auto found = table.find(text); found != table.end()) {
        return found->second;
    }
    ThrowEffect("Unknown value of noise color");
}

} // namespace

const std::string SettingsAudioReverberationImpulseResponse::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioReverbIr";

const std::string& SettingsAudioReverberationImpulseResponse::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioReverberationImpulseResponse::Clone() const
{
    return std::make_unique<SettingsAudioReverberationImpulseResponse>(*this);
}

bool SettingsAudioReverberationImpulseResponse::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsAudioReverberationImpulseResponse&>(other);
}

void SettingsAudioReverberationImpulseResponse::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    if (const auto value = GetOption<double>(options, "reverb_time", "")) {
        SetReverberationTime(*value);
    }
    if (const auto value = GetOption<double>(options, "dry_gain", "")) {
        SetDryGain(*value);
    }
    if (const auto value = GetOption<double>(options, "wet_gain", "")) {
        SetWetGain(*value);
    }
    if (const auto value = GetOption<int>(options, "delay", "")) {
        SetDelay(*value);
    }
    if (const auto value = GetOption<int>(options, "slpf_freq", "")) {
        SetSlpfFrequency(*value);
    }
    if (const auto text = OptionRegexSearch(options, "fade_func", ""); !text.empty()) {
        fadeFunction = DeserializeChangeFunc(std::string(text));
    }
    // "slpf_func" stores into fadeFunction as well, so slpfFunction is not reachable; kept so on
    // purpose, saved presets were written for this reading.
    if (const auto text = OptionRegexSearch(options, "slpf_func", ""); !text.empty()) {
        fadeFunction = DeserializeChangeFunc(std::string(text));
    }
    if (const auto text = OptionRegexSearch(options, "noise_color", ""); !text.empty()) {
        noiseColor = DeserializeNoiseColor(std::string(text));
    }
}

bool SettingsAudioReverberationImpulseResponse::operator==(const SettingsAudioReverberationImpulseResponse& other) const
{
    return reverberationTime == other.reverberationTime && dryGain == other.dryGain && wetGain == other.wetGain &&
           delay == other.delay && noiseColor == other.noiseColor && slpfFrequency == other.slpfFrequency &&
           fadeFunction == other.fadeFunction && slpfFunction == other.slpfFunction;
}

bool SettingsAudioReverberationImpulseResponse::operator!=(const SettingsAudioReverberationImpulseResponse& other) const
{
    return !(*this == other);
}

void SettingsAudioReverberationImpulseResponse::SetReverberationTime(double value)
{
    if (value < 0.0001 || value > 30.0) {
        ThrowEffect("Reverberation time should be in range from 0.0001 to 30.0.");
    }
    reverberationTime = value;
}

void SettingsAudioReverberationImpulseResponse::SetDryGain(double value)
{
    if (value < 0.0 || value > 10.0) {
        ThrowEffect("Dry gain should be in range from 0.0 to 10.0.");
    }
    dryGain = value;
}

void SettingsAudioReverberationImpulseResponse::SetWetGain(double value)
{
    if (value < 0.0 || value > 10.0) {
        ThrowEffect("Wet gain should be in range from 0.0 to 10.0.");
    }
    wetGain = value;
}

void SettingsAudioReverberationImpulseResponse::SetDelay(int value)
{
    if (value < 0 || value > 200) {
        ThrowEffect("Dry-wet balance should be in range from 0 to 200.");
    }
    delay = value;
}

void SettingsAudioReverberationImpulseResponse::SetSlpfFrequency(int value)
{
    if (value <= 0) {
        ThrowEffect("Sliding LPF frequency should be greater than 0.");
    }
    slpfFrequency = value;
}

void SettingsAudioReverberationImpulseResponse::SetNoiseColor(NoiseColor value)
{
    noiseColor = value;
}

void SettingsAudioReverberationImpulseResponse::SetFadeFunction(ChangeFunction value)
{
    fadeFunction = value;
}

void SettingsAudioReverberationImpulseResponse::SetSlpfFunction(ChangeFunction value)
{
    slpfFunction = value;
}

double SettingsAudioReverberationImpulseResponse::GetReverberationTime() const
{
    return reverberationTime;
}

double SettingsAudioReverberationImpulseResponse::GetDryGain() const
{
    return dryGain;
}

double SettingsAudioReverberationImpulseResponse::GetWetGain() const
{
    return wetGain;
}

int SettingsAudioReverberationImpulseResponse::GetDelay() const
{
    return delay;
}

SettingsAudioReverberationImpulseResponse::NoiseColor SettingsAudioReverberationImpulseResponse::GetNoiseColor() const
{
    return noiseColor;
}

int SettingsAudioReverberationImpulseResponse::GetSlpfFrequency() const
{
    return slpfFrequency;
}

SettingsAudioReverberationImpulseResponse::ChangeFunction
SettingsAudioReverberationImpulseResponse::GetFadeFunction() const
{
    return fadeFunction;
}

SettingsAudioReverberationImpulseResponse::ChangeFunction
SettingsAudioReverberationImpulseResponse::GetSlpfFunction() const
{
    return slpfFunction;
}

std::ostream& operator<<(std::ostream& stream, SettingsAudioReverberationImpulseResponse::ChangeFunction value)
{
    switch (value) {
    case ChangeFunction::Tri:
        return stream << "tri";
    case ChangeFunction::Exp:
        return stream << "exp";
    case ChangeFunction::Qua:
        return stream << "qua";
    case ChangeFunction::Cub:
        return stream << "cub";
    case ChangeFunction::Sin:
        return stream << "hsin";
    }
    return stream; // any other value writes nothing and raises nothing
}

std::ostream& operator<<(std::ostream& stream, SettingsAudioReverberationImpulseResponse::NoiseColor value)
{
    switch (value) {
    case NoiseColor::White:
        return stream << "white";
    case NoiseColor::Pink:
        return stream << "pink";
    case NoiseColor::Brown:
        return stream << "brown";
    }
    return stream; // any other value writes nothing and raises nothing
}

} // namespace Zorvan::Proc
