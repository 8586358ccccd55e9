#include "Proc/Settings/SettingsAudioReverb.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAudioReverb::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioReverb";

const std::string& SettingsAudioReverb::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioReverb::Clone() const
{
    return std::make_unique<SettingsAudioReverb>(*this);
}

} // namespace Zorvan::Proc
