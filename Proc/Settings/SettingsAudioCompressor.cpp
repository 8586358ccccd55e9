#include "Proc/Settings/SettingsAudioCompressor.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAudioCompressor::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioCompressor";

const std::string& SettingsAudioCompressor::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioCompressor::Clone() const
{
    return std::make_unique<SettingsAudioCompressor>(*this);
}

} // namespace Zorvan::Proc
