#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A page that turns. Keeps the base IsEqualTo (it throws) and IsEmpty (never empty).
class ZORVAN_SETTINGS_EXPORT SettingsTransitionPageturn : public Settings {
public:
    // The renderer gives the numbers their meaning; any number is stored as given.
    enum class Direction : std::int32_t {};
    enum class Type : std::int32_t {};

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Keys "type", then "direction", the reverse of the fields: a type that is no number leaves
    // the direction unread. Each a whole number stored unchecked.
    void Deserialize(const std::string& options) override;

    void SetDir(Direction value) { dir = value; }
    void SetType(Type value) { type = value; }
    Direction GetDir() const { return dir; }
    Type GetType() const { return type; }

private:
    // No defaults are fixed for this transition: 0 throughout.
    Direction dir{};
    Type type{};
};

} // namespace Zorvan::Proc
