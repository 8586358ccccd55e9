#pragma once
#include <array>
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Ken Burns: a slow pan and zoom over the frame, with a fade. Keeps the base IsEqualTo (it
// throws) and IsEmpty (never empty).
class ZORVAN_SETTINGS_EXPORT SettingsTransitionKenBurns : public Settings {
public:
    // Where the pan goes, named by how GetDirection shifts the square of side 2 round the
    // origin along x and y.
    enum class Direction : std::int32_t {
        Center = 0,
        PlusX = 1,
        MinusX = 2,
        PlusY = 3,
        MinusY = 4,
        PlusXPlusY = 5,
        PlusXMinusY = 6,
        MinusXPlusY = 7,
        MinusXMinusY = 8,
    };

    // Four corners as x, y pairs, in the order the renderer draws them.
    using DirMat = std::array<float, 8>;

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Keys "direction" (stored unchecked), then "fade" and "zoom", whole percentages that go
    // through the checks of the setters, compared as unsigned numbers, so -1 fails.
    void Deserialize(const std::string& options) override;

    // Any number is stored; GetDirection refuses one above 8.
    void SetDirection(Direction value) { direction = value; }
    // 0 to 50 percent, stored as a share; else std::logic_error "Incorrect value passed".
    void SetZoom(unsigned int percent);
    // 0 to 100 percent, stored as a share; else std::logic_error "Incorrect value passed".
    void SetFade(unsigned int percent);

    // The corners of the stored direction; above 8 std::logic_error "Incorrect value passed, use
    // enumerated value".
    DirMat GetDirection() const;
    float GetFade() const { return fade; }
    float GetZoom() const { return zoom; }

private:
    // No defaults are fixed for this transition: the centred square, no fade and no zoom.
    Direction direction = Direction::Center;
    float fade = 0.0F;
    float zoom = 0.0F;
};

} // namespace Zorvan::Proc
