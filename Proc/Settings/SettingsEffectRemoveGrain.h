#pragma once
#include <array>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Grain removal with one mode, 0 to 24, per plane 0 to 3. Map form, keys "m0" to "m3", each
// an int passed through SetMode for its plane. Empty when all four modes are 0; compares all
// four exactly.
class ZORVAN_SETTINGS_EXPORT SettingsEffectRemoveGrain : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    bool IsEmpty() const override;
    void Deserialize(const std::string& options) override;

    // All four modes, exact.
    bool operator==(const SettingsEffectRemoveGrain& other) const;

    // The mode of plane 0 to 3; any other plane throws EffectException "Invalid plane index!".
    int GetMode(int plane) const;
    // The mode is checked before the plane: a mode outside 0..24 throws EffectException
    // "Invalid mode value", then a bad plane "Invalid plane index!". A failure stores nothing.
    void SetMode(int plane, int mode);

private:
    // Neutral defaults: mode 0 passes every plane through (and the record is empty).
    std::array<int, 4> modes{};
};

} // namespace Zorvan::Proc
