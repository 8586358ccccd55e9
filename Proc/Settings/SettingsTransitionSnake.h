#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A snake crossing the frame. Setters only: nothing reads the values back through this class. Keeps the
// base IsEqualTo (it throws) and IsEmpty (never empty).
class ZORVAN_SETTINGS_EXPORT SettingsTransitionSnake : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Keys "thickness", "smoothness", in this order, each a whole number stored unchecked.
    void Deserialize(const std::string& options) override;

    void SetThickness(unsigned int value) { thickness = value; }
    void SetSmoothness(unsigned int value) { smoothness = value; }

private:
    // No defaults are fixed for this transition: 0 throughout.
    std::uint32_t thickness = 0U;
    std::uint32_t smoothness = 0U;
};

} // namespace Zorvan::Proc
