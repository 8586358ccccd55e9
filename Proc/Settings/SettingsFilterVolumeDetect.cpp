#include "Proc/Settings/SettingsFilterVolumeDetect.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterVolumeDetect::CLASS_ID ZORVAN_INIT_STRINGS = "$$VOLUME_DETECT$$";

const std::string& SettingsFilterVolumeDetect::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterVolumeDetect::Clone() const
{
    return std::make_unique<SettingsFilterVolumeDetect>(*this);
}

} // namespace Zorvan::Proc
