#include "Proc/Settings/SettingsTransitionSlice.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsSlice(FieldMap& fields)
{
    using Proc::SettingsTransitionSlice;
    fields["SettingsTransitionSlice"] = {
        Field<SettingsTransitionSlice>("maxBlurScale", &SettingsTransitionSlice::GetMaxBlurScale),
        Field<SettingsTransitionSlice>("motionBoostPower", &SettingsTransitionSlice::GetMotionBoostPower),
        Field<SettingsTransitionSlice>("blurBoostPower", &SettingsTransitionSlice::GetBlurBoostPower),
        Field<SettingsTransitionSlice>("percentOfSlicesTimeShift",
                                       &SettingsTransitionSlice::GetPercentOfSlicesTimeShift),
        Field<SettingsTransitionSlice>("slicesType", &SettingsTransitionSlice::GetSlicesType),
        Field<SettingsTransitionSlice>("slicesCount", &SettingsTransitionSlice::GetSlicesCount),
        Field<SettingsTransitionSlice>("slicesNumberingRule", &SettingsTransitionSlice::GetSlicesNumberingRule),
        Field<SettingsTransitionSlice>("slicesDirectionRule", &SettingsTransitionSlice::GetSlicesDirectionRule),
        Field<SettingsTransitionSlice>("baseTransitionType", &SettingsTransitionSlice::GetBaseTransitionType),
    };
}

} // namespace Zorvan::CatalogDetail
