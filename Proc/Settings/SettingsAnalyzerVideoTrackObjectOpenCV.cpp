#include "Proc/Settings/SettingsAnalyzerVideoTrackObjectOpenCV.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAnalyzerVideoTrackObjectOpenCV::CLASS_ID ZORVAN_INIT_STRINGS =
    "SettingsAnalyzerVideoTrackObjectOpenCV";

const std::string& SettingsAnalyzerVideoTrackObjectOpenCV::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAnalyzerVideoTrackObjectOpenCV::Clone() const
{
    return std::make_unique<SettingsAnalyzerVideoTrackObjectOpenCV>(*this);
}

} // namespace Zorvan::Proc
