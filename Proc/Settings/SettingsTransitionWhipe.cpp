#include "Proc/Settings/SettingsTransitionWhipe.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

namespace {

bool IsStep(int value)
{
    return value >= -1 && value <= 1;
}

} // namespace

const std::string SettingsTransitionWhipe::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionWhipe";

const std::string& SettingsTransitionWhipe::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionWhipe::Clone() const
{
    return std::make_unique<SettingsTransitionWhipe>(*this);
}

bool SettingsTransitionWhipe::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsTransitionWhipe&>(other);
}

void SettingsTransitionWhipe::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(
        options, {"horizontal_direction", "vertical_direction", "max_blur", "motion_boost_power", "blur_boost_power"});
    if (const auto value = MapForm::Find<int>(map, "horizontal_direction")) {
        if (!IsStep(*value)) {
            ThrowSettings("Invalid horizontal direction");
        }
        horizontalDirection = static_cast<hDirection>(*value);
    }
    if (const auto value = MapForm::Find<int>(map, "vertical_direction")) {
        if (!IsStep(*value)) {
            ThrowSettings("Invalid vertical direction");
        }
        verticalDirection = static_cast<vDirection>(*value);
    }
    if (const auto value = MapForm::Find<double>(map, "max_blur")) {
        SetMaxBlurScale(*value);
    }
    MapForm::Read(map, "motion_boost_power", motionBoostPower);
    MapForm::Read(map, "blur_boost_power", blurBoostPower);
}

bool SettingsTransitionWhipe::operator==(const SettingsTransitionWhipe& other) const
{
    return maxBlurScale == other.maxBlurScale && motionBoostPower == other.motionBoostPower &&
           blurBoostPower == other.blurBoostPower && horizontalDirection == other.horizontalDirection &&
           verticalDirection == other.verticalDirection;
}

void SettingsTransitionWhipe::SetMaxBlurScale(double scale)
{
    if (scale < 0.0 || scale > 1.0) {
        ThrowSettings("Invalid max_blur parameter");
    }
    maxBlurScale = scale;
}

double SettingsTransitionWhipe::GetMaxBlurScale() const
{
    return maxBlurScale;
}

void SettingsTransitionWhipe::SetMotionBoostPower(double power)
{
    motionBoostPower = power;
}

double SettingsTransitionWhipe::GetMotionBoostPower() const
{
    return motionBoostPower;
}

void SettingsTransitionWhipe::SetBlurBoostPower(double power)
{
    blurBoostPower = power;
}

double SettingsTransitionWhipe::GetBlurBoostPower() const
{
    return blurBoostPower;
}

void SettingsTransitionWhipe::SetDirection(hDirection horizontal, vDirection vertical)
{
    horizontalDirection = horizontal;
    verticalDirection = vertical;
}

SettingsTransitionWhipe::hDirection SettingsTransitionWhipe::GetHDirection() const
{
    return horizontalDirection;
}

SettingsTransitionWhipe::vDirection SettingsTransitionWhipe::GetVDirection() const
{
    return verticalDirection;
}

} // namespace Zorvan::Proc
