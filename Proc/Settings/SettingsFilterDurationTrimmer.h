#pragma once
#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc {

// Trims a stream to a duration. Overrides IsEqualTo only: no option string, and the
// base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsFilterDurationTrimmer : public Settings {
public:
    static const std::string CLASS_ID;

    SettingsFilterDurationTrimmer() = default;
    // The duration is taken as SetDuration takes it.
    SettingsFilterDurationTrimmer(avTime duration, bool value);

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;

    bool operator==(const SettingsFilterDurationTrimmer& other) const;

    // Takes a duration of 1 to 2592000000000 microseconds (thirty days), both included, and
    // silently ignores any other.
    void SetDuration(avTime duration);
    // A plain store.
    void SetBoolean(bool value);

    avTime GetDuration() const;
    bool GetBoolean() const;

private:
    avTime duration = 2592000000000; // thirty days: the open end of a source, nothing is cut
    bool boolean = false;            // the trimming stage gives it its meaning; kept and compared here
};

} // namespace Zorvan::Proc
