#include "Proc/Settings/SettingsEffectHalfTone.h"
#include "Proc/Settings/SettingsEffectPopArt.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsHalfTonePopArt(FieldMap& fields)
{
    using Proc::SettingsEffectHalfTone;
    fields["SettingsEffectHalfTone"] = {
        Field<SettingsEffectHalfTone>("backgroundColor", &SettingsEffectHalfTone::GetBackgroundColor),
        Field<SettingsEffectHalfTone>("dotColor", &SettingsEffectHalfTone::GetDotColor),
        Field<SettingsEffectHalfTone>("colorSize", &SettingsEffectHalfTone::GetColorSize),
        Field<SettingsEffectHalfTone>("threshold", &SettingsEffectHalfTone::GetThreshold),
        Field<SettingsEffectHalfTone>("dotSize", &SettingsEffectHalfTone::GetDotSize),
        Field<SettingsEffectHalfTone>("angle", &SettingsEffectHalfTone::GetAngle),
    };

    using Proc::SettingsEffectPopArt;
    fields["SettingsEffectPopArt"] = {
        Field<SettingsEffectPopArt>("saturation", &SettingsEffectPopArt::GetSaturation),
        Field<SettingsEffectPopArt>("hue", &SettingsEffectPopArt::GetHue),
        Field<SettingsEffectPopArt>("offset", &SettingsEffectPopArt::GetOffset),
        Field<SettingsEffectPopArt>("scale", &SettingsEffectPopArt::GetScale),
        // The stored field; GetLevels() is the level count the renderer uses.
        Field<SettingsEffectPopArt>("levels", &SettingsEffectPopArt::GetStoredLevels),
        Field<SettingsEffectPopArt>("amountVertical", &SettingsEffectPopArt::GetAmountVertical),
        Field<SettingsEffectPopArt>("amountHorizontal", &SettingsEffectPopArt::GetAmountHorizontal),
        Field<SettingsEffectPopArt>("invert", &SettingsEffectPopArt::GetInvert),
        Field<SettingsEffectPopArt>("intensity", &SettingsEffectPopArt::GetIntensity),
        Field<SettingsEffectPopArt>("resize", &SettingsEffectPopArt::GetResize),
    };
}

} // namespace Zorvan::CatalogDetail
