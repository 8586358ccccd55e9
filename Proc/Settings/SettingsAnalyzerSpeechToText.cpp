#include "Proc/Settings/SettingsAnalyzerSpeechToText.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAnalyzerSpeechToText::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAnalyzerSpeechToText";

const std::string& SettingsAnalyzerSpeechToText::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAnalyzerSpeechToText::Clone() const
{
    return std::make_unique<SettingsAnalyzerSpeechToText>(*this);
}

} // namespace Zorvan::Proc
