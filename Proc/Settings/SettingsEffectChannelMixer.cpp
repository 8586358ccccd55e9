#include "Proc/Settings/SettingsEffectChannelMixer.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/Saturate.h"
#include "imported/Utils.h"

namespace Zorvan::Proc {

namespace {

float ClampWeight(float value)
{
    return Saturate(value, -3.0F, 3.0F);
}

void SetWeight(SettingsEffectChannelMixer::Row& row, SettingsEffectChannelMixer::SourceChannel source, float value)
{
    const auto index = static_cast<std::int32_t>(source);
    if (index >= 0 && index < static_cast<std::int32_t>(row.size())) {
        row[static_cast<std::size_t>(index)] = ClampWeight(value);
    }
}

void SetRow(SettingsEffectChannelMixer::Row& row, const SettingsEffectChannelMixer::Row& values)
{
    for (std::size_t i = 0; i < row.size(); ++i) {
        row[i] = ClampWeight(values[i]);
    }
}

} // namespace

const std::string SettingsEffectChannelMixer::CLASS_ID ZORVAN_INIT_STRINGS = "EffectChannelMixer";

const std::string SettingsEffectChannelMixer::s_redChannel ZORVAN_INIT_STRINGS = "red-channel";
const std::string SettingsEffectChannelMixer::s_greenChannel ZORVAN_INIT_STRINGS = "green-channel";
const std::string SettingsEffectChannelMixer::s_blueChannel ZORVAN_INIT_STRINGS = "blue-channel";

const std::vector<std::string> SettingsEffectChannelMixer::s_params ZORVAN_INIT_PARAMS = {
    s_redChannel,
    s_greenChannel,
    s_blueChannel,
};

const std::string& SettingsEffectChannelMixer::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectChannelMixer::Clone() const
{
    return std::make_unique<SettingsEffectChannelMixer>(*this);
}

bool SettingsEffectChannelMixer::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectChannelMixer&>(other);
}

bool SettingsEffectChannelMixer::IsEmpty() const
{
    return *this == SettingsEffectChannelMixer();
}

void SettingsEffectChannelMixer::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, s_params);
    if (const auto row = DeserializeChannel(map, s_redChannel)) {
        SetRedChannel(*row);
    }
    if (const auto row = DeserializeChannel(map, s_greenChannel)) {
        SetGreenChannel(*row);
    }
    if (const auto row = DeserializeChannel(map, s_blueChannel)) {
        SetBlueChannel(*row);
    }
}

std::optional<SettingsEffectChannelMixer::Row> SettingsEffectChannelMixer::DeserializeChannel(const OptionsMap& map,
                                                                                              const std::string& key)
{
    const std::string* text = MapForm::FindText(map, key);
    if (text == nullptr) {
        return std::nullopt;
    }
    std::vector<std::string> pieces;
    Core::Utils::SplitString(pieces, Core::Utils::RemoveQuotes(*text), ',');
    // Every piece is converted before the count is looked at, so a bad piece fails even in a
    // row of the wrong length.
    std::vector<float> numbers;
    numbers.reserve(pieces.size());
    for (const std::string& piece : pieces) {
        numbers.push_back(std::stof(piece));
    }
    if (numbers.size() != 3) {
        return std::nullopt;
    }
    return Row{numbers[0], numbers[1], numbers[2]};
}

bool SettingsEffectChannelMixer::operator==(const SettingsEffectChannelMixer& other) const
{
    return redChannel == other.redChannel && greenChannel == other.greenChannel && blueChannel == other.blueChannel;
}

void SettingsEffectChannelMixer::SetToRedChannel(SourceChannel source, float value)
{
    SetWeight(redChannel, source, value);
}

void SettingsEffectChannelMixer::SetToGreenChannel(SourceChannel source, float value)
{
    SetWeight(greenChannel, source, value);
}

void SettingsEffectChannelMixer::SetToBlueChannel(SourceChannel source, float value)
{
    SetWeight(blueChannel, source, value);
}

void SettingsEffectChannelMixer::SetRedChannel(const Row& row)
{
    SetRow(redChannel, row);
}

void SettingsEffectChannelMixer::SetGreenChannel(const Row& row)
{
    SetRow(greenChannel, row);
}

void SettingsEffectChannelMixer::SetBlueChannel(const Row& row)
{
    SetRow(blueChannel, row);
}

const SettingsEffectChannelMixer::Row& SettingsEffectChannelMixer::GetRedChannel() const
{
    return redChannel;
}

const SettingsEffectChannelMixer::Row& SettingsEffectChannelMixer::GetGreenChannel() const
{
    return greenChannel;
}

const SettingsEffectChannelMixer::Row& SettingsEffectChannelMixer::GetBlueChannel() const
{
    return blueChannel;
}

} // namespace Zorvan::Proc
