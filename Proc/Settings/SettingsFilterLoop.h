#pragma once
#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc {

// Loops a source to fill a duration. Compared only through operator==: IsEqualTo, IsEmpty
// and Deserialize stay the base's.
class ZORVAN_SETTINGS_EXPORT SettingsFilterLoop : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    bool operator==(const SettingsFilterLoop& other) const;

    // A plain store, unchecked.
    void SetDuration(avTime value);
    avTime GetDuration() const;

private:
    avTime duration = 0; // neutral default: nothing to fill
};

} // namespace Zorvan::Proc
