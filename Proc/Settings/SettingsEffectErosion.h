#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Part 6.1: erosion. Map form, keys "mode" (int into `Types`), "radius" (double); the fields
// are declared radius, then mode. Keeps the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectErosion : public Settings {
public:
    static const std::string CLASS_ID;

    // Enumerator names are left open by Part 6.1; outside code uses the numbers.
    enum class Types : std::int32_t {
        Erode = 0,
        Dilate = 1,
    };

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    void Deserialize(const std::string& options) override;

    // Part 6.1: radius first, then the mode.
    void SetParams(double radius, Types mode);

    double GetRadius() const;
    Types GetMode() const;

private:
    double radius = 0.0;       // default left open by Part 6.1: 0, the stage changes nothing
    Types mode = Types::Erode; // default left open by Part 6.1: the first enumerator
};

} // namespace Zorvan::Proc
