#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Puzzle pieces. Keeps the base IsEqualTo (it throws) and IsEmpty (never empty).
class ZORVAN_SETTINGS_EXPORT SettingsTransitionPuzzle : public Settings {
public:
    // The renderer gives the numbers their meaning; any number is stored as given.
    enum class Type : std::int32_t {};

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Key "type", a whole number stored unchecked.
    void Deserialize(const std::string& options) override;

    void SetType(Type value) { type = value; }
    Type GetType() const { return type; }

private:
    // No defaults are fixed for this transition: 0 throughout.
    Type type{};
};

} // namespace Zorvan::Proc
