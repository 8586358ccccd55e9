#include "Proc/Settings/SettingsFilterFPSDoubler.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterFPSDoubler::CLASS_ID ZORVAN_INIT_STRINGS = "FilterFPSDoubler";

const std::string& SettingsFilterFPSDoubler::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterFPSDoubler::Clone() const
{
    return std::make_unique<SettingsFilterFPSDoubler>(*this);
}

bool SettingsFilterFPSDoubler::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsFilterFPSDoubler&>(other);
}

void SettingsFilterFPSDoubler::Deserialize(const std::string& options)
{
    DeserializeSettings(options);
}

bool SettingsFilterFPSDoubler::operator==(const SettingsFilterFPSDoubler& other) const
{
    return AIFrameGeneratorSettings::operator==(other);
}

} // namespace Zorvan::Proc
