#include "Proc/Settings/SettingsTransitionParallax.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionParallax::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionParallax";

const std::string& SettingsTransitionParallax::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionParallax::Clone() const
{
    return std::make_unique<SettingsTransitionParallax>(*this);
}

bool SettingsTransitionParallax::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsTransitionParallax&>(other);
}

void SettingsTransitionParallax::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"speed_up", "speed_mid", "speed_down", "crop_up", "crop_down",
                                             "max_motion_blur", "max_zoom", "max_distortion"});
    MapForm::Read(map, "speed_up", speedUp);
    MapForm::Read(map, "speed_mid", speedMid);
    MapForm::Read(map, "speed_down", speedDown);
    MapForm::Read(map, "crop_up", cropUp);
    MapForm::Read(map, "crop_down", cropDown);
    if (const auto value = MapForm::Find<double>(map, "max_motion_blur")) {
        SetMaxMotionBlurScale(*value);
    }
    MapForm::Read(map, "max_zoom", maxLensZoom);
    MapForm::Read(map, "max_distortion", maxLensDistortion);
}

bool SettingsTransitionParallax::operator==(const SettingsTransitionParallax& other) const
{
    return speedUp == other.speedUp && speedMid == other.speedMid && speedDown == other.speedDown &&
           cropUp == other.cropUp && cropDown == other.cropDown && maxMotionBlurScale == other.maxMotionBlurScale;
}

void SettingsTransitionParallax::SetSpeed(double up, double mid, double down)
{
    speedUp = up;
    speedMid = mid;
    speedDown = down;
}

std::array<double, 3> SettingsTransitionParallax::GetSpeed() const
{
    return {speedUp, speedMid, speedDown};
}

void SettingsTransitionParallax::SetCrop(bool up, bool down)
{
    cropUp = up;
    cropDown = down;
}

std::pair<bool, bool> SettingsTransitionParallax::GetCrop() const
{
    return {cropUp, cropDown};
}

void SettingsTransitionParallax::SetMaxMotionBlurScale(double scale)
{
    if (scale < 0.0 || scale > 1.0) {
        ThrowSettings("Blur scale must be in [0.0, 1.0] range");
    }
    maxMotionBlurScale = scale;
}

double SettingsTransitionParallax::GetMaxMotionBlurScale() const
{
    return maxMotionBlurScale;
}

void SettingsTransitionParallax::SetMaxLensZoom(double zoom)
{
    maxLensZoom = zoom;
}

double SettingsTransitionParallax::GetMaxLensZoom() const
{
    return maxLensZoom;
}

void SettingsTransitionParallax::SetMaxLensDistortion(double distortion)
{
    maxLensDistortion = distortion;
}

double SettingsTransitionParallax::GetMaxLensDistortion() const
{
    return maxLensDistortion;
}

} // namespace Zorvan::Proc
