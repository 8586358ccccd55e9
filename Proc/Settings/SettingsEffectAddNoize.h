#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Added noise. Map form, keys "level" (double) and "type" (int), both stored straight into
// their fields, so an option string may hold a level outside the setter's 0..1.
class ZORVAN_SETTINGS_EXPORT SettingsEffectAddNoize : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    void Deserialize(const std::string& options) override;

    void SetLevel(double level); // clamps to 0..1; negative zero is stored as 0
    void SetType(int type);      // plain store

    double GetLevel() const;
    int GetType() const;

private:
    // Neutral defaults: no noise of the first type.
    double level = 0.0;
    int type = 0;
};

} // namespace Zorvan::Proc
