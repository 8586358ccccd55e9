#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A digital glitch between the pictures, in one of four looks.
class ZORVAN_SETTINGS_EXPORT SettingsTransitionGlitch : public Settings {
public:
    // Outside code and saved projects use the numbers 0 to 3; the look of each lies with the
    // renderer.
    enum class Type : std::int32_t { Type0 = 0, Type1 = 1, Type2 = 2, Type3 = 3 };

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // "type" (std::stoi): 4 or more throws SettingsException "Invalid type"; there is no lower
    // bound, so a negative number is stored.
    void Deserialize(const std::string& options) override;

    // Stored unchecked.
    void SetType(Type value);
    Type GetType() const;

private:
    Type type = Type::Type0;
};

} // namespace Zorvan::Proc
