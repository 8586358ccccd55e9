#include "Proc/Settings/SettingsAudioGenerator.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAudioGenerator::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioGenerator";

const std::string& SettingsAudioGenerator::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioGenerator::Clone() const
{
    return std::make_unique<SettingsAudioGenerator>(*this);
}

} // namespace Zorvan::Proc
