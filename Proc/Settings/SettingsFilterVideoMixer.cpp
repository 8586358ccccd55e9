#include "Proc/Settings/SettingsFilterVideoMixer.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterVideoMixer::CLASS_ID ZORVAN_INIT_STRINGS = "$$VIDEO_MIXER$$";

const std::string& SettingsFilterVideoMixer::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterVideoMixer::Clone() const
{
    return std::make_unique<SettingsFilterVideoMixer>(*this);
}

} // namespace Zorvan::Proc
