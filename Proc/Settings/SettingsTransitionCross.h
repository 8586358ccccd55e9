#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A cross between the clips, plain or crossed. Keeps the base IsEqualTo (it throws) and IsEmpty
// (never empty).
class ZORVAN_SETTINGS_EXPORT SettingsTransitionCross : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Key "cross", a whole number: true when greater than 0, so -1 gives false.
    void Deserialize(const std::string& options) override;

    void SetParams(bool value) { cross = value; }
    bool GetCross2() const { return cross; }

private:
    bool cross = false; // no default is fixed: the plain variant
};

} // namespace Zorvan::Proc
