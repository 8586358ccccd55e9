#include "Proc/Settings/SettingsTransitionMotionSpin.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionMotionSpin::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionMotionSpin";

const std::string& SettingsTransitionMotionSpin::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionMotionSpin::Clone() const
{
    return std::make_unique<SettingsTransitionMotionSpin>(*this);
}

bool SettingsTransitionMotionSpin::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsTransitionMotionSpin&>(other);
}

void SettingsTransitionMotionSpin::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"max_motion_blur", "direction"});
    if (const auto value = MapForm::Find<double>(map, "max_motion_blur")) {
        SetMaxMotionBlurScale(*value);
    }
    // Read unsigned: a negative number wraps to a large one and is refused like any other.
    if (const auto value = MapForm::Find<unsigned long long>(map, "direction")) {
        if (*value > 1U) {
            ThrowSettings("Invalid direction");
        }
        direction = static_cast<Direction>(*value);
    }
}

bool SettingsTransitionMotionSpin::operator==(const SettingsTransitionMotionSpin& other) const
{
    return maxMotionBlurScale == other.maxMotionBlurScale && direction == other.direction;
}

void SettingsTransitionMotionSpin::SetMaxMotionBlurScale(double scale)
{
    if (scale < 0.0 || scale > 1.0) {
        ThrowSettings("Blur scale must be in [0.0, 1.0] range");
    }
    maxMotionBlurScale = scale;
}

double SettingsTransitionMotionSpin::GetMaxMotionBlurScale() const
{
    return maxMotionBlurScale;
}

void SettingsTransitionMotionSpin::SetDirection(Direction value)
{
    direction = value;
}

SettingsTransitionMotionSpin::Direction SettingsTransitionMotionSpin::GetDirection() const
{
    return direction;
}

} // namespace Zorvan::Proc
