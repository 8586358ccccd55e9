#include "Proc/Settings/SettingsTransitionWhoosh.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionWhoosh::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionWhoosh";

const std::string& SettingsTransitionWhoosh::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionWhoosh::Clone() const
{
    return std::make_unique<SettingsTransitionWhoosh>(*this);
}

bool SettingsTransitionWhoosh::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsTransitionWhoosh&>(other);
}

void SettingsTransitionWhoosh::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"max_motion_blur", "direction"});
    if (const auto value = MapForm::Find<double>(map, "max_motion_blur")) {
        SetMaxMotionBlurScale(*value);
    }
    // Any number is stored: the renderer decides what a direction means.
    MapForm::Read(map, "direction", direction);
}

bool SettingsTransitionWhoosh::operator==(const SettingsTransitionWhoosh& other) const
{
    return maxMotionBlurScale == other.maxMotionBlurScale && direction == other.direction;
}

void SettingsTransitionWhoosh::SetMaxMotionBlurScale(double scale)
{
    if (scale < 0.0 || scale > 1.0) {
        ThrowSettings("Blur scale must be in [0.0, 1.0] range");
    }
    maxMotionBlurScale = scale;
}

double SettingsTransitionWhoosh::GetMaxMotionBlurScale() const
{
    return maxMotionBlurScale;
}

void SettingsTransitionWhoosh::SetDirection(Direction value)
{
    direction = value;
}

SettingsTransitionWhoosh::Direction SettingsTransitionWhoosh::GetDirection() const
{
    return direction;
}

} // namespace Zorvan::Proc
