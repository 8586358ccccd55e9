#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Part 6.1: lens distortion. Map form, keys "zoom", "distortion" (double), "member_count"
// (int), "intensity" (double). Compares zoom, distortion and intensity exactly (the member
// count takes no part); IsEmpty is overridden and always false.
class ZORVAN_SETTINGS_EXPORT SettingsEffectLensDistortion : public Settings {
public:
    static const std::string CLASS_ID;

    // Default constructor (ours, CONVENTIONS.md): zoom 0, distortion 0, member count 0
    // (left open by Part 6.1), intensity 1.0 as the constructor of Part 6.1 sets it.
    SettingsEffectLensDistortion();
    // Part 6.1: sets the intensity to 1.0.
    SettingsEffectLensDistortion(double zoom, double distortion, int memberCount);

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    bool IsEmpty() const override; // Part 6.1: always false, though overridden
    void Deserialize(const std::string& options) override;

    // Zoom, distortion and intensity, exact; the member count takes no part (Part 6.1).
    bool operator==(const SettingsEffectLensDistortion& other) const;

    void SetZoom(double zoom);
    void SetDistortion(double distortion);
    void SetMemberCount(int memberCount);
    void SetIntensity(double intensity);

    // Part 6.1, computed: the field multiplied by the intensity. These take the names of
    // the field getters, so zoom and distortion have no plain getter.
    double GetZoom() const;
    double GetDistortion() const;
    int GetMemberCount() const;
    double GetIntencity() const; // so spelled (Part 6.1): the intensity field

private:
    double zoom;
    double distortion;
    int memberCount;
    double intensity;
};

} // namespace Zorvan::Proc
