#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Barn doors that open or close. Keeps the base IsEqualTo (it throws) and IsEmpty (never empty).
class ZORVAN_SETTINGS_EXPORT SettingsTransitionBarnDoor : public Settings {
public:
    // The renderer gives the numbers their meaning; any number is stored as given.
    enum class Directions : std::int32_t {};

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Key "direction", a whole number stored unchecked.
    void Deserialize(const std::string& options) override;

    void SetDirection(Directions value) { direction = value; }
    Directions GetDirection() const { return direction; }

private:
    // No defaults are fixed for this transition: 0 throughout.
    Directions direction{};
};

} // namespace Zorvan::Proc
