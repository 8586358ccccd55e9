#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The first clip shatters. Keeps the base IsEqualTo (it throws) and IsEmpty (never empty).
class ZORVAN_SETTINGS_EXPORT SettingsTransitionShatter : public Settings {
public:
    // The renderer gives the numbers their meaning; any number is stored as given.
    enum class Direction : std::int32_t {};

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Keys "n", "direction", in this order, each a whole number stored unchecked.
    void Deserialize(const std::string& options) override;

    void SetNum(unsigned int value) { num = value; }
    void SetDir(Direction value) { dir = value; }
    unsigned int GetNum() const { return num; }
    Direction GetDir() const { return dir; }

private:
    // No defaults are fixed for this transition: 0 throughout.
    std::uint32_t num = 0U;
    Direction dir{};
};

} // namespace Zorvan::Proc
