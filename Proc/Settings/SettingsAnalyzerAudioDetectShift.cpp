#include "Proc/Settings/SettingsAnalyzerAudioDetectShift.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAnalyzerAudioDetectShift::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAnalyzerAudioDetectShift";

const std::string& SettingsAnalyzerAudioDetectShift::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAnalyzerAudioDetectShift::Clone() const
{
    return std::make_unique<SettingsAnalyzerAudioDetectShift>(*this);
}

} // namespace Zorvan::Proc
