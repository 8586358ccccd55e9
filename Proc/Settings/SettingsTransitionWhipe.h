#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A whip pan: the picture is thrown out along a horizontal and a vertical direction with motion
// blur, both boosted towards the middle of the transition.
class ZORVAN_SETTINGS_EXPORT SettingsTransitionWhipe : public Settings {
public:
    // Outside code and saved projects use the numbers -1, 0 and 1, not the enumerator names.
    enum class hDirection : std::int32_t { Left = -1, None = 0, Right = 1 };
    enum class vDirection : std::int32_t { Up = -1, None = 0, Down = 1 };

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // Keys in this order: "horizontal_direction" and "vertical_direction" (std::stoi, each -1, 0 or
    // 1, else SettingsException "Invalid horizontal direction" or "Invalid vertical direction"),
    // "max_blur" (std::stod through SetMaxBlurScale), "motion_boost_power" and "blur_boost_power"
    // (std::stod, stored unchecked).
    void Deserialize(const std::string& options) override;

    // All five fields exact.
    bool operator==(const SettingsTransitionWhipe& other) const;

    // Refused outside 0.0..1.0 (both included) with SettingsException "Invalid max_blur
    // parameter", leaving the field; a not-a-number value is stored.
    void SetMaxBlurScale(double scale);
    double GetMaxBlurScale() const;
    // The remaining setters store unchecked.
    void SetMotionBoostPower(double power);
    double GetMotionBoostPower() const;
    void SetBlurBoostPower(double power);
    double GetBlurBoostPower() const;
    void SetDirection(hDirection horizontal, vDirection vertical);
    hDirection GetHDirection() const;
    vDirection GetVDirection() const;

private:
    double maxBlurScale = 0.3;
    double motionBoostPower = 3.0;
    double blurBoostPower = 3.0;
    hDirection horizontalDirection = hDirection::Right;
    vDirection verticalDirection = vDirection::None;
};

} // namespace Zorvan::Proc
