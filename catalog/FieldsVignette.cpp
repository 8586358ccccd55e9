#include "Proc/Settings/SettingsEffectVignetteFilter.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsVignette(FieldMap& fields)
{
    using Proc::SettingsEffectVignetteFilter;
    fields["SettingsEffectVignetteFilter"] = {
        Field<SettingsEffectVignetteFilter>("form", &SettingsEffectVignetteFilter::GetForm),
        Field<SettingsEffectVignetteFilter>("smooth", &SettingsEffectVignetteFilter::GetSmooth),
        Field<SettingsEffectVignetteFilter>("aspect", &SettingsEffectVignetteFilter::GetAspect),
        Field<SettingsEffectVignetteFilter>("color", &SettingsEffectVignetteFilter::GetColor),
        Field<SettingsEffectVignetteFilter>("x0", &SettingsEffectVignetteFilter::GetX0),
        Field<SettingsEffectVignetteFilter>("y0", &SettingsEffectVignetteFilter::GetY0),
        Field<SettingsEffectVignetteFilter>("ri", &SettingsEffectVignetteFilter::GetRi),
        Field<SettingsEffectVignetteFilter>("re", &SettingsEffectVignetteFilter::GetRe),
        Field<SettingsEffectVignetteFilter>("intensity", &SettingsEffectVignetteFilter::GetIntensity),
    };
}

} // namespace Zorvan::CatalogDetail
