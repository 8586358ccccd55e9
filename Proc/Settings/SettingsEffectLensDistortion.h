#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Lens distortion. Map form, keys "zoom", "distortion" (double), "member_count" (int),
// "intensity" (double). Compares zoom, distortion and intensity exactly (not the member
// count); IsEmpty is overridden and always false.
class ZORVAN_SETTINGS_EXPORT SettingsEffectLensDistortion : public Settings {
public:
    static const std::string CLASS_ID;

    // Default constructor: zoom 0, distortion 0, member count 0, and intensity 1.0 as the
    // other constructor sets it.
    SettingsEffectLensDistortion();
    // Sets the intensity to 1.0.
    SettingsEffectLensDistortion(double zoom, double distortion, int memberCount);

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    bool IsEmpty() const override; // always false, though overridden; kept so on purpose
    void Deserialize(const std::string& options) override;

    // Zoom, distortion and intensity, exact; the member count is not compared.
    bool operator==(const SettingsEffectLensDistortion& other) const;

    void SetZoom(double zoom);
    void SetDistortion(double distortion);
    void SetMemberCount(int memberCount);
    void SetIntensity(double intensity);

    // Computed: the field multiplied by the intensity. These take the names of the field
    // getters, so zoom and distortion have no plain getter.
    double GetZoom() const;
    double GetDistortion() const;
    int GetMemberCount() const;
    double GetIntencity() const; // so spelled on purpose, callers use this name: the intensity field

private:
    double zoom;
    double distortion;
    int memberCount;
    double intensity;
};

} // namespace Zorvan::Proc
