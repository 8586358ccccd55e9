#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The motion spin with an extra turn of the source frame and boosted motion and blur. Its
// setters take any value; only option strings are checked.
class ZORVAN_SETTINGS_EXPORT SettingsTransitionModifiedMotionSpin : public Settings {
public:
    // Outside code and saved projects use the numbers, not the enumerator names.
    enum class Direction : std::int32_t { Forward = 0, Backward = 1 };

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Keys in this order, each refusal a SettingsException:
    // "max_blur" (std::stod, stored, then refused outside 0.0..1.0 with "Blur scale must be in
    // [0.0, 1.0] range"), "direction" (std::stoull, refused unless 0 or 1 with "Invalid
    // direction", then stored), "additional_source_frame_rotate_angle" (std::stod, stored),
    // "blur_power" (std::stod, stored, then refused below 0.0 with "Blur power must be greater or
    // equal to 0."), "motion_power" (std::stod, stored, then refused at or below 0.0 with "Motion
    // power must be greater than 0."). A refused double stays in the record.
    void Deserialize(const std::string& options) override;

    // All setters store unchecked.
    void SetMaxBlurScale(double scale);
    double GetMaxBlurScale() const;
    void SetDirection(Direction value);
    Direction GetDirection() const;
    void SetAdditionalSourceFrameRotateAngle(double angle);
    double GetAdditionalSourceFrameRotateAngle() const;
    void SetMotionBoostPower(double power);
    double GetMotionBoostPower() const;
    void SetBlurBoostPower(double power);
    double GetBlurBoostPower() const;

private:
    double maxBlurScale = 0.0; // neutral default: no blur
    Direction direction = Direction::Forward;
    double additionalSourceFrameRotateAngle = 0.0; // neutral default: no extra turn
    double motionBoostPower = 1.0;                 // neutral default: motion not boosted
    double blurBoostPower = 1.0;                   // neutral default: blur not boosted
};

} // namespace Zorvan::Proc
