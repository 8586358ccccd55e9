#include "Proc/Settings/SettingsAudioNoiseGate.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAudioNoiseGate::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioNoiseGate";

const std::string& SettingsAudioNoiseGate::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioNoiseGate::Clone() const
{
    return std::make_unique<SettingsAudioNoiseGate>(*this);
}

} // namespace Zorvan::Proc
