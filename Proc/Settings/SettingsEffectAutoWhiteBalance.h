#pragma once
#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc {

// Automatic white balance. Map form, keys "r", "g", "b" (int, low 8 bits of each, all three
// or none; packed red lowest, alpha byte 0) and "m" (int, mode). No setters and no getters on
// purpose: it is filled by Deserialize and read only through the comparison. Keeps the
// base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectAutoWhiteBalance : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    void Deserialize(const std::string& options) override;

    // Both fields, exact.
    bool operator==(const SettingsEffectAutoWhiteBalance& other) const;

private:
    // Defaults: value-initialised (colour 0, mode 0).
    Color referenceColor = 0;
    int mode = 0;
};

} // namespace Zorvan::Proc
