#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Part 6.1: film strip, one field `type`. A hyphen row of Part 1.5: it keeps the base's
// IsEqualTo, IsEmpty and Deserialize.
class ZORVAN_SETTINGS_EXPORT SettingsEffectFilmStrip : public Settings {
public:
    static const std::string CLASS_ID;

    // Enumerator names are left open by Part 6.1; outside code uses the numbers.
    enum class Type : std::int32_t {
        Horizontal = 0,
        Vertical = 1,
    };

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    void SetType(Type type);
    Type GetType() const;

private:
    Type type = Type::Horizontal; // default left open by Part 6.1: the first enumerator
};

} // namespace Zorvan::Proc
