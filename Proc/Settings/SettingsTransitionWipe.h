#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A wipe. Setters only: nothing reads the values back through this class. Keeps the
// base IsEqualTo (it throws) and IsEmpty (never empty).
class ZORVAN_SETTINGS_EXPORT SettingsTransitionWipe : public Settings {
public:
    // The renderer gives the numbers their meaning; any number is stored as given.
    enum class Directions : std::int32_t {};

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Keys "smooth_width", "direction", in this order, each a whole number stored unchecked.
    void Deserialize(const std::string& options) override;

    void SetSmoothWidth(int value) { smoothWidth = value; }
    void SetDirection(Directions value) { direction = value; }

private:
    std::int32_t smoothWidth = 0;
    Directions direction{3};
};

} // namespace Zorvan::Proc
