#include "Proc/Settings/SettingsEffectSaturation.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectSaturation::CLASS_ID ZORVAN_INIT_STRINGS = "EffectSaturation";

const std::string& SettingsEffectSaturation::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectSaturation::Clone() const
{
    return std::make_unique<SettingsEffectSaturation>(*this);
}

bool SettingsEffectSaturation::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectSaturation&>(other);
}

bool SettingsEffectSaturation::IsEmpty() const
{
    return false;
}

void SettingsEffectSaturation::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"s", "a"});
    // The saturation passes through float precision, as saved presets were always read.
    if (const auto value = MapForm::Find<float>(map, "s")) {
        saturation = *value;
    }
    if (const auto value = MapForm::Find<double>(map, "a")) {
        flag = *value != 0.0;
    }
}

bool SettingsEffectSaturation::operator==(const SettingsEffectSaturation& other) const
{
    return saturation == other.saturation;
}

void SettingsEffectSaturation::SetSaturation(double value)
{
    saturation = value;
}

void SettingsEffectSaturation::SetFlag(bool value)
{
    flag = value;
}

double SettingsEffectSaturation::GetSaturation() const
{
    return saturation;
}

bool SettingsEffectSaturation::GetFlag() const
{
    return flag;
}

} // namespace Zorvan::Proc
