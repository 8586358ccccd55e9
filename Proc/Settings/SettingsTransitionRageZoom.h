#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A hard, shaking zoom between the pictures, in one of two looks.
class ZORVAN_SETTINGS_EXPORT SettingsTransitionRageZoom : public Settings {
public:
    // Outside code and saved projects use the numbers 0 and 1; the look of each lies with the
    // renderer.
    enum class Type : std::int32_t { Type0 = 0, Type1 = 1 };

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // "type" (std::stoi): 2 or more throws SettingsException "Invalid type"; there is no lower
    // bound, so a negative number is stored.
    void Deserialize(const std::string& options) override;

    // Stored unchecked.
    void SetType(Type value);
    Type GetType() const;

private:
    Type type = Type::Type0;
};

} // namespace Zorvan::Proc
