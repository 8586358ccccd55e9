#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Colour saturation. Map form, keys "s" (the saturation, read as a float and widened) and "a"
// (the flag, read as a double, true when not 0.0). Never empty; only the saturation is compared.
class ZORVAN_SETTINGS_EXPORT SettingsEffectSaturation : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // Always false: the engine keeps the stage in the graph whatever its values.
    bool IsEmpty() const override;
    void Deserialize(const std::string& options) override;

    // The saturation, exact; the flag takes no part.
    bool operator==(const SettingsEffectSaturation& other) const;

    void SetSaturation(double saturation); // plain store
    void SetFlag(bool flag);               // plain store

    double GetSaturation() const;
    bool GetFlag() const;

private:
    double saturation = 1.0; // neutral default: the colours keep their saturation
    bool flag = false;
};

} // namespace Zorvan::Proc
