#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Erosion. Map form, keys "mode" (int into `Types`), "radius" (double); the fields are
// declared radius, then mode. Keeps the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectErosion : public Settings {
public:
    static const std::string CLASS_ID;

    // Outside code and saved projects use the numbers, not the enumerator names.
    enum class Types : std::int32_t {
        Erode = 0,
        Dilate = 1,
    };

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    void Deserialize(const std::string& options) override;

    // Radius first, then the mode.
    void SetParams(double radius, Types mode);

    double GetRadius() const;
    Types GetMode() const;

private:
    double radius = 0.0;       // neutral default: 0, the stage changes nothing
    Types mode = Types::Erode; // default: the first enumerator
};

} // namespace Zorvan::Proc
