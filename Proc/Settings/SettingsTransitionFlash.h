#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A flash of light between the clips, with nothing to set. Keeps the base IsEqualTo (it throws) and IsEmpty (never
// empty).
class ZORVAN_SETTINGS_EXPORT SettingsTransitionFlash : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // There are no options: any string is accepted and ignored.
    void Deserialize(const std::string& options) override;
};

} // namespace Zorvan::Proc
