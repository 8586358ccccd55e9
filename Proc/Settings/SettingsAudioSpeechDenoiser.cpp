#include "Proc/Settings/SettingsAudioSpeechDenoiser.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAudioSpeechDenoiser::CLASS_ID ZORVAN_INIT_STRINGS = "SpeechDenoiser";

const std::string& SettingsAudioSpeechDenoiser::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioSpeechDenoiser::Clone() const
{
    return std::make_unique<SettingsAudioSpeechDenoiser>(*this);
}

} // namespace Zorvan::Proc
