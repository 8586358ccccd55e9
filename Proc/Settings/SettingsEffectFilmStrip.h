#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Film strip, one field `type`. It keeps the base's IsEqualTo, IsEmpty and Deserialize.
class ZORVAN_SETTINGS_EXPORT SettingsEffectFilmStrip : public Settings {
public:
    static const std::string CLASS_ID;

    // Outside code and saved projects use the numbers, not the enumerator names.
    enum class Type : std::int32_t {
        Horizontal = 0,
        Vertical = 1,
    };

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    void SetType(Type type);
    Type GetType() const;

private:
    Type type = Type::Horizontal; // default: the first enumerator
};

} // namespace Zorvan::Proc
