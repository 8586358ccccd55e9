#pragma once
#include <cstdint>
#include <string>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Video stabilisation from a motion file written by an analysis pass. It keeps the base's
// IsEqualTo, IsEmpty and Deserialize.
class ZORVAN_SETTINGS_EXPORT SettingsEffectStabilizer : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    // The two flags, the motion file's path, then smoothing and zoom (exactly), in that order.
    bool operator==(const SettingsEffectStabilizer& other) const;

    // Plain setters, unchecked.
    void SetTripod(bool value);
    void SetRelative(bool value);
    void SetTransformsPath(const std::string& value);
    void SetSmoothing(std::int32_t value);
    void SetZoom(double value);

    bool GetTripod() const;
    bool GetRelative() const;
    const std::string& GetTransformsPath() const;
    std::int32_t GetSmoothing() const;
    double GetZoom() const;

private:
    bool tripod = false;
    bool relative = false;
    std::string transformsPath; // none: no motion to correct
    std::int32_t smoothing = 0;
    double zoom = 0.0; // percent; none
};

} // namespace Zorvan::Proc
