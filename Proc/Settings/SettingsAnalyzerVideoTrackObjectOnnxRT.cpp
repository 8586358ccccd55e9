#include "Proc/Settings/SettingsAnalyzerVideoTrackObjectOnnxRT.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAnalyzerVideoTrackObjectOnnxRT::CLASS_ID ZORVAN_INIT_STRINGS =
    "SettingsAnalyzerVideoTrackObjectOnnxRT";

const std::string& SettingsAnalyzerVideoTrackObjectOnnxRT::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAnalyzerVideoTrackObjectOnnxRT::Clone() const
{
    return std::make_unique<SettingsAnalyzerVideoTrackObjectOnnxRT>(*this);
}

} // namespace Zorvan::Proc
