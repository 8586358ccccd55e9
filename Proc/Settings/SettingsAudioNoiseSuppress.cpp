#include "Proc/Settings/SettingsAudioNoiseSuppress.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAudioNoiseSuppress::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioNoiseSuppress";

const std::string& SettingsAudioNoiseSuppress::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioNoiseSuppress::Clone() const
{
    return std::make_unique<SettingsAudioNoiseSuppress>(*this);
}

} // namespace Zorvan::Proc
