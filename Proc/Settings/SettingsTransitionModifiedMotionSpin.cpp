#include "Proc/Settings/SettingsTransitionModifiedMotionSpin.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionModifiedMotionSpin::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionModifiedMotionSpin";

const std::string& SettingsTransitionModifiedMotionSpin::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionModifiedMotionSpin::Clone() const
{
    return std::make_unique<SettingsTransitionModifiedMotionSpin>(*this);
}

void SettingsTransitionModifiedMotionSpin::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(
        options, {"max_blur", "direction", "additional_source_frame_rotate_angle", "blur_power", "motion_power"});
    // The doubles are stored before they are checked, so a refused value stays in the record;
    // saved projects have been read this way.
    if (const auto value = MapForm::Find<double>(map, "max_blur")) {
        maxBlurScale = *value;
        if (*value < 0.0 || *value > 1.0) {
            ThrowSettings("Blur scale must be in [0.0, 1.0] range");
        }
    }
    if (const auto value = MapForm::Find<unsigned long long>(map, "direction")) {
        if (*value > 1U) {
            ThrowSettings("Invalid direction");
        }
        direction = static_cast<Direction>(*value);
    }
    MapForm::Read(map, "additional_source_frame_rotate_angle", additionalSourceFrameRotateAngle);
    if (const auto value = MapForm::Find<double>(map, "blur_power")) {
        blurBoostPower = *value;
        if (*value < 0.0) {
            ThrowSettings("Blur power must be greater or equal to 0.");
        }
    }
    if (const auto value = MapForm::Find<double>(map, "motion_power")) {
        motionBoostPower = *value;
        if (*value <= 0.0) {
            ThrowSettings("Motion power must be greater than 0.");
        }
    }
}

void SettingsTransitionModifiedMotionSpin::SetMaxBlurScale(double scale)
{
    maxBlurScale = scale;
}

double SettingsTransitionModifiedMotionSpin::GetMaxBlurScale() const
{
    return maxBlurScale;
}

void SettingsTransitionModifiedMotionSpin::SetDirection(Direction value)
{
    direction = value;
}

SettingsTransitionModifiedMotionSpin::Direction SettingsTransitionModifiedMotionSpin::GetDirection() const
{
    return direction;
}

void SettingsTransitionModifiedMotionSpin::SetAdditionalSourceFrameRotateAngle(double angle)
{
    additionalSourceFrameRotateAngle = angle;
}

double SettingsTransitionModifiedMotionSpin::GetAdditionalSourceFrameRotateAngle() const
{
    return additionalSourceFrameRotateAngle;
}

void SettingsTransitionModifiedMotionSpin::SetMotionBoostPower(double power)
{
    motionBoostPower = power;
}

double SettingsTransitionModifiedMotionSpin::GetMotionBoostPower() const
{
    return motionBoostPower;
}

void SettingsTransitionModifiedMotionSpin::SetBlurBoostPower(double power)
{
    blurBoostPower = power;
}

double SettingsTransitionModifiedMotionSpin::GetBlurBoostPower() const
{
    return blurBoostPower;
}

} // namespace Zorvan::Proc
