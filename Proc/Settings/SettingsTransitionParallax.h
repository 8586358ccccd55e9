#pragma once
#include <array>
#include <utility>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The picture leaves in three horizontal bands (up, middle, down) moving at their own speeds,
// with motion blur and a lens zoom and distortion.
class ZORVAN_SETTINGS_EXPORT SettingsTransitionParallax : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Compares the speeds, the crops and the motion blur; the lens zoom and distortion are left
    // out on purpose, so a change of lens alone keeps the running stage.
    bool IsEqualTo(const Settings& other) const override;
    // Keys in this order: "speed_up", "speed_mid", "speed_down" (std::stod, stored), "crop_up",
    // "crop_down" (std::stoi, true for any number but 0), "max_motion_blur" (std::stod through
    // SetMaxMotionBlurScale), "max_zoom", "max_distortion" (std::stod, stored).
    void Deserialize(const std::string& options) override;

    // Speeds, crops and motion blur exact; lens zoom and distortion not compared.
    bool operator==(const SettingsTransitionParallax& other) const;

    // The three speeds together: up, middle, down. Stored unchecked.
    void SetSpeed(double up, double mid, double down);
    std::array<double, 3> GetSpeed() const;
    // The two crops together: up, down.
    void SetCrop(bool up, bool down);
    std::pair<bool, bool> GetCrop() const;
    // Refused outside 0.0..1.0 (both included) with SettingsException "Blur scale must be in
    // [0.0, 1.0] range", leaving the field; a not-a-number value is stored.
    void SetMaxMotionBlurScale(double scale);
    double GetMaxMotionBlurScale() const;
    // Stored unchecked.
    void SetMaxLensZoom(double zoom);
    double GetMaxLensZoom() const;
    void SetMaxLensDistortion(double distortion);
    double GetMaxLensDistortion() const;

private:
    // Neutral defaults: the bands move together, nothing cropped, no blur, no lens.
    double speedUp = 1.0;
    double speedMid = 1.0;
    double speedDown = 1.0;
    bool cropUp = false;
    bool cropDown = false;
    double maxMotionBlurScale = 0.0;
    double maxLensZoom = 0.0;
    double maxLensDistortion = 0.0;
};

} // namespace Zorvan::Proc
