#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The picture rushes out with motion blur and the next one rushes in.
class ZORVAN_SETTINGS_EXPORT SettingsTransitionWhoosh : public Settings {
public:
    // Outside code and saved projects use the numbers, not the enumerator names. Other numbers
    // are stored as given and left to the renderer.
    enum class Direction : std::int32_t { Forward = 0, Backward = 1 };

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // "max_motion_blur" (std::stod through SetMaxMotionBlurScale), then "direction" (std::stoi,
    // stored unchecked: unlike the motion spin, any number is taken).
    void Deserialize(const std::string& options) override;

    // Both fields exact.
    bool operator==(const SettingsTransitionWhoosh& other) const;

    // Refused outside 0.0..1.0 (both included) with SettingsException "Blur scale must be in
    // [0.0, 1.0] range", leaving the field; a not-a-number value is stored.
    void SetMaxMotionBlurScale(double scale);
    double GetMaxMotionBlurScale() const;
    // Stored unchecked.
    void SetDirection(Direction value);
    Direction GetDirection() const;

private:
    double maxMotionBlurScale = 0.0; // neutral default: no motion blur
    Direction direction = Direction::Forward;
};

} // namespace Zorvan::Proc
