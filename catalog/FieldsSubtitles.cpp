#include "Proc/Settings/SettingsSubtitleDrawer.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsSubtitles(FieldMap& fields)
{
    using Proc::SettingsSubtitleDrawer;
    fields["SettingsSubtitleDrawer"] = {
        Field<SettingsSubtitleDrawer>("mode", &SettingsSubtitleDrawer::GetMode),
        Field<SettingsSubtitleDrawer>("offsetY", &SettingsSubtitleDrawer::GetOffsetY),
        Field<SettingsSubtitleDrawer>("offsetX", &SettingsSubtitleDrawer::GetOffsetX),
        Field<SettingsSubtitleDrawer>("percentX", &SettingsSubtitleDrawer::GetPercentX),
        Field<SettingsSubtitleDrawer>("percentY", &SettingsSubtitleDrawer::GetPercentY),
        Field<SettingsSubtitleDrawer>("subtitleId", &SettingsSubtitleDrawer::GetSubtitleId),
        Field<SettingsSubtitleDrawer>("horizontalAlignment", &SettingsSubtitleDrawer::GetHorizontalAlignment),
        Field<SettingsSubtitleDrawer>("verticalAlignment", &SettingsSubtitleDrawer::GetVerticalAlignment),
    };
}

} // namespace Zorvan::CatalogDetail
