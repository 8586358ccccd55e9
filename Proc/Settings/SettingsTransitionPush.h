#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The next clip pushes the first out of the frame. Keeps the base IsEqualTo (it throws) and IsEmpty (never empty).
class ZORVAN_SETTINGS_EXPORT SettingsTransitionPush : public Settings {
public:
    // The renderer gives the numbers their meaning; any number is stored as given.
    enum class Direction : std::int32_t {};

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Key "direction", a whole number stored unchecked.
    void Deserialize(const std::string& options) override;

    void SetDir(Direction value) { dir = value; }
    Direction GetDir() const { return dir; }

private:
    // No defaults are fixed for this transition: 0 throughout.
    Direction dir{};
};

} // namespace Zorvan::Proc
