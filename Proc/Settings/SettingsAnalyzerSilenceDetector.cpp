#include "Proc/Settings/SettingsAnalyzerSilenceDetector.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAnalyzerSilenceDetector::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAnalyzerSilenceDetector";

const std::string& SettingsAnalyzerSilenceDetector::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAnalyzerSilenceDetector::Clone() const
{
    return std::make_unique<SettingsAnalyzerSilenceDetector>(*this);
}

} // namespace Zorvan::Proc
