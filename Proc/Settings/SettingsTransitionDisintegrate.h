#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The first clip falls apart into pieces. Keeps the base IsEqualTo (it throws) and IsEmpty (never empty).
class ZORVAN_SETTINGS_EXPORT SettingsTransitionDisintegrate : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Key "n", a whole number stored unchecked.
    void Deserialize(const std::string& options) override;

    void SetNum(unsigned int value) { num = value; }
    unsigned int GetNum() const { return num; }

private:
    // No defaults are fixed for this transition: 0 throughout.
    std::uint32_t num = 0U;
};

} // namespace Zorvan::Proc
