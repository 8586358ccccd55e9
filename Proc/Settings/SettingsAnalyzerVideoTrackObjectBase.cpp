#include "Proc/Settings/SettingsAnalyzerVideoTrackObjectBase.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAnalyzerVideoTrackObjectBase::CLASS_ID ZORVAN_INIT_STRINGS =
    "SettingsAnalyzerVideoTrackObject";

const std::string& SettingsAnalyzerVideoTrackObjectBase::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAnalyzerVideoTrackObjectBase::Clone() const
{
    return std::make_unique<SettingsAnalyzerVideoTrackObjectBase>(*this);
}

} // namespace Zorvan::Proc
