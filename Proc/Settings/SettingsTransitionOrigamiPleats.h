#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Pleats folding the frame. Keeps the base IsEqualTo (it throws) and IsEmpty (never empty).
class ZORVAN_SETTINGS_EXPORT SettingsTransitionOrigamiPleats : public Settings {
public:
    // The fold runs one way or the other; GetDir gives it as a step of -1 or 1.
    enum class Direction : std::int32_t {
        Negative = 0,
        Positive = 1,
    };

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Keys "n", "direction", in this order, each a whole number stored unchecked.
    void Deserialize(const std::string& options) override;

    void SetNum(unsigned int value) { num = value; }
    // Any number is stored; only GetDir refuses one outside the two directions.
    void SetDir(Direction value) { dir = value; }
    unsigned int GetNum() const { return num; }
    // -1 for Negative, 1 for Positive; any other stored number raises std::logic_error "Incorrect
    // value passed, use enumerated value".
    int GetDir() const;

private:
    // No defaults are fixed for this transition: 0 throughout.
    std::uint32_t num = 0U;
    Direction dir{};
};

} // namespace Zorvan::Proc
