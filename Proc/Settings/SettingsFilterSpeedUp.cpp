#include "Proc/Settings/SettingsFilterSpeedUp.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsFilterSpeedUp::CLASS_ID ZORVAN_INIT_STRINGS = "$$FILTER_SPEED$$";

const std::string& SettingsFilterSpeedUp::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterSpeedUp::Clone() const
{
    return std::make_unique<SettingsFilterSpeedUp>(*this);
}

bool SettingsFilterSpeedUp::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsFilterSpeedUp&>(other);
}

bool SettingsFilterSpeedUp::IsEmpty() const
{
    return NearlyEqual(speedFactor, 1.0);
}

void SettingsFilterSpeedUp::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"speed"});
    if (const auto found = map.find("speed"); found != map.end()) {
        SetSpeedUp(std::stod(found->second));
    }
}

bool SettingsFilterSpeedUp::operator==(const SettingsFilterSpeedUp& other) const
{
    return NearlyEqual(speedFactor, other.speedFactor);
}

void SettingsFilterSpeedUp::SetSpeedUp(double speed)
{
    if (speed < 0) {
        ThrowSettings("Invalid speed");
    }
    speedFactor = speed;
}

double SettingsFilterSpeedUp::GetSpeedFactor() const
{
    return speedFactor;
}

} // namespace Zorvan::Proc
