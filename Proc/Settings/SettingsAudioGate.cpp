#include "Proc/Settings/SettingsAudioGate.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAudioGate::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioGate";

const std::string& SettingsAudioGate::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioGate::Clone() const
{
    return std::make_unique<SettingsAudioGate>(*this);
}

} // namespace Zorvan::Proc
