#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A smear from one clip into the next along one of eight directions. Keeps the base IsEqualTo
// (it throws) and IsEmpty (never empty).
class ZORVAN_SETTINGS_EXPORT SettingsTransitionSmear : public Settings {
public:
    // 0 to 7: 0, 1, 3 and 5 run along an axis, 2, 4, 6 and 7 diagonally. Any number is stored;
    // GetMatrices refuses one above 7.
    enum class Direction : std::int32_t {};

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Key "direction", a whole number stored unchecked.
    void Deserialize(const std::string& options) override;

    void SetDirection(Direction value) { direction = value; }

    // Fills the two 3 by 3 matrices (nine floats each, row by row) of the stored direction at
    // `progress`: `first` grows with 2 * progress up to 1, `second` falls from 1 to 0 in the
    // second half. Above 7 std::logic_error "Incorrect value passed, use enumerated value", and
    // neither array is written.
    void GetMatrices(float* first, float* second, float progress) const;

private:
    Direction direction{}; // no default is fixed: 0
};

} // namespace Zorvan::Proc
