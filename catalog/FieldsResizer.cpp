#include "Proc/Settings/SettingsResizer.h"
#include "catalog/CatalogFields.h"
#include "catalog/JsonValues.h"

namespace Zorvan::CatalogDetail {

void AddFieldsResizer(FieldMap& fields)
{
    using Proc::SettingsResizer;
    fields["SettingsResizer"] = {
        Field<SettingsResizer>("implName", &SettingsResizer::GetImplName),
        FieldJson<SettingsResizer>("crop", [](const SettingsResizer& c) { return CatalogJson::FromCrop(c.GetCrop()); }),
        Field<SettingsResizer>("reservedInteger", &SettingsResizer::GetReservedInteger),
        Field<SettingsResizer>("maxWidth", &SettingsResizer::GetMaxWidth),
        Field<SettingsResizer>("maxHeight", &SettingsResizer::GetMaxHeight),
        Field<SettingsResizer>("reservedInteger2", &SettingsResizer::GetReservedInteger2),
        Field<SettingsResizer>("reservedInteger3", &SettingsResizer::GetReservedInteger3),
        Field<SettingsResizer>("sizeMode", &SettingsResizer::GetSizeMode),
        Field<SettingsResizer>("customMode", &SettingsResizer::GetCustomMode),
        FieldJson<SettingsResizer>("customFrame",
                                   [](const SettingsResizer& c) { return CatalogJson::FromFrame(c.GetFrameInfo()); }),
        Field<SettingsResizer>("scaleFactor", &SettingsResizer::GetScaleFactor),
        Field<SettingsResizer>("oddWidthAllowed", &SettingsResizer::GetOddWidthAllowed),
        Field<SettingsResizer>("oddHeightAllowed", &SettingsResizer::GetOddHeightAllowed),
        Field<SettingsResizer>("premultiplied", &SettingsResizer::GetPremultiplied),
        Field<SettingsResizer>("resizeMethod", &SettingsResizer::GetResizeMethod),
        FieldJson<SettingsResizer>("model",
                                   [](const SettingsResizer& c) { return CatalogJson::FromModel(c.GetModel()); }),
        Field<SettingsResizer>("modelChannels", &SettingsResizer::GetModelChannels),
    };
}

} // namespace Zorvan::CatalogDetail
