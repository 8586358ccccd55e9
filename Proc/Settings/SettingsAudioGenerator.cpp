#include "Proc/Settings/SettingsAudioGenerator.h"

#include <cmath>

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

double SettingsAudioGenerator::Sinusoid(int sample)
{
    // 3.14, not pi: the generated tone must stay the one existing projects were mixed with.
    return std::sin(static_cast<double>(sample) * 3.14 * 0.0009765625);
}

} // namespace Zorvan::Proc
