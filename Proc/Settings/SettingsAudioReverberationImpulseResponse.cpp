#include "Proc/Settings/SettingsAudioReverberationImpulseResponse.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAudioReverberationImpulseResponse::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioReverbIr";

const std::string& SettingsAudioReverberationImpulseResponse::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioReverberationImpulseResponse::Clone() const
{
    return std::make_unique<SettingsAudioReverberationImpulseResponse>(*this);
}

} // namespace Zorvan::Proc
