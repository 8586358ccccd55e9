#include "Proc/Settings/SettingsFilterSlowMotion.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterSlowMotion::CLASS_ID ZORVAN_INIT_STRINGS = "FilterSlowMotion";

const std::string& SettingsFilterSlowMotion::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterSlowMotion::Clone() const
{
    return std::make_unique<SettingsFilterSlowMotion>(*this);
}

bool SettingsFilterSlowMotion::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsFilterSlowMotion&>(other);
}

void SettingsFilterSlowMotion::Deserialize(const std::string& options)
{
    DeserializeSettings(options);
}

bool SettingsFilterSlowMotion::operator==(const SettingsFilterSlowMotion& other) const
{
    return AIFrameGeneratorSettings::operator==(other);
}

} // namespace Zorvan::Proc
