#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Noise suppression by a level of -60 to 0. A level outside that range is dropped without a
// word, by the setter and by the option string alike. Keeps the base IsEmpty (never empty).
class ZORVAN_SETTINGS_EXPORT SettingsAudioNoiseSuppress : public Settings {
public:
    static const std::string CLASS_ID;

    static const std::string s_level; // "level"
    // The one key, built at library load after the string.
    static const std::vector<std::string> s_params;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // The level exactly, after a checked cast: std::bad_cast for a foreign class.
    bool IsEqualTo(const Settings& other) const override;
    // Map form over s_params: "level" by std::stoi, stored when it lies in -60..0, else dropped.
    void Deserialize(const std::string& options) override;

    // Stores a value in -60..0 inclusive; any other changes nothing and raises nothing.
    void SetLevel(int value);

    int GetLevel() const;

private:
    std::int32_t level = 0; // neutral default: the top of the range
};

} // namespace Zorvan::Proc
