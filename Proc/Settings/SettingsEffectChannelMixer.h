#pragma once
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A 3 by 3 colour matrix: each output channel (a row) is a weighted sum of the red, green and
// blue sources. Every weight lies in -3..3. The option keys are the static s_<role> strings;
// each holds a row as three comma-separated numbers, "red-channel=1,0,0".
class ZORVAN_SETTINGS_EXPORT SettingsEffectChannelMixer : public Settings {
public:
    // Indexes a row: the source channel a weight applies to.
    enum class SourceChannel : std::int32_t {
        Red = 0,
        Green = 1,
        Blue = 2,
    };
    using Row = std::array<float, 3>;

    static const std::string CLASS_ID;

    static const std::string s_redChannel;   // "red-channel"
    static const std::string s_greenChannel; // "green-channel"
    static const std::string s_blueChannel;  // "blue-channel"
    // The three keys in the order above, built at library load after the strings.
    static const std::vector<std::string> s_params;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // The identity matrix, exact.
    bool IsEmpty() const override;
    // Map form over s_params: each row present with exactly three numbers is clamped and
    // stored; a row of another length is skipped without an error.
    void Deserialize(const std::string& options) override;

    // The row under `key` when the map holds it: quotes removed, split at commas, each piece
    // read with std::stof. Only exactly three numbers make a row.
    static std::optional<Row> DeserializeChannel(const OptionsMap& map, const std::string& key);

    // All nine weights, exact.
    bool operator==(const SettingsEffectChannelMixer& other) const;

    // One weight of a row, clamped to -3..3. A source outside the enumeration writes nothing.
    void SetToRedChannel(SourceChannel source, float value);
    void SetToGreenChannel(SourceChannel source, float value);
    void SetToBlueChannel(SourceChannel source, float value);
    // A whole row, each weight clamped to -3..3.
    void SetRedChannel(const Row& row);
    void SetGreenChannel(const Row& row);
    void SetBlueChannel(const Row& row);

    const Row& GetRedChannel() const;
    const Row& GetGreenChannel() const;
    const Row& GetBlueChannel() const;

private:
    // The identity: each channel keeps itself.
    Row redChannel{1.0F, 0.0F, 0.0F};
    Row greenChannel{0.0F, 1.0F, 0.0F};
    Row blueChannel{0.0F, 0.0F, 1.0F};
};

} // namespace Zorvan::Proc
