#include "Proc/Settings/SettingsEffectGIMPColorCorrection.h"
#include "Proc/Settings/SettingsEffectGIMPColorTemperature.h"
#include "Proc/Settings/SettingsEffectGIMPColorize.h"
#include "Proc/Settings/SettingsEffectGIMPHueSaturation.h"
#include "Proc/Settings/SettingsEffectGIMPShadowsHightlights.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsImageEditor(FieldMap& fields)
{
    using Proc::SettingsEffectGIMPColorCorrection;
    fields["SettingsEffectGIMPColorCorrection"] = {
        Field<SettingsEffectGIMPColorCorrection>("brightness", &SettingsEffectGIMPColorCorrection::GetBrightness),
        Field<SettingsEffectGIMPColorCorrection>("contrast", &SettingsEffectGIMPColorCorrection::GetContrast),
    };

    using Proc::SettingsEffectGIMPColorTemperature;
    fields["SettingsEffectGIMPColorTemperature"] = {
        Field<SettingsEffectGIMPColorTemperature>("originalTemperature",
                                                  &SettingsEffectGIMPColorTemperature::GetOriginalTemperature),
        Field<SettingsEffectGIMPColorTemperature>("intendedTemperature",
                                                  &SettingsEffectGIMPColorTemperature::GetIntendedTemperature),
        Field<SettingsEffectGIMPColorTemperature>("intensity", &SettingsEffectGIMPColorTemperature::GetIntensity),
    };

    using Proc::SettingsEffectGIMPColorize;
    fields["SettingsEffectGIMPColorize"] = {
        Field<SettingsEffectGIMPColorize>("hue", &SettingsEffectGIMPColorize::GetHue),
        Field<SettingsEffectGIMPColorize>("saturation", &SettingsEffectGIMPColorize::GetSaturation),
        Field<SettingsEffectGIMPColorize>("lightness", &SettingsEffectGIMPColorize::GetLightness),
        Field<SettingsEffectGIMPColorize>("red", &SettingsEffectGIMPColorize::GetRed),
        Field<SettingsEffectGIMPColorize>("green", &SettingsEffectGIMPColorize::GetGreen),
        Field<SettingsEffectGIMPColorize>("blue", &SettingsEffectGIMPColorize::GetBlue),
        Field<SettingsEffectGIMPColorize>("intensity", &SettingsEffectGIMPColorize::GetIntensity),
    };

    // The three arrays as JSON arrays in HueRange order: master, red, yellow, green, cyan, blue, magenta.
    using Proc::SettingsEffectGIMPHueSaturation;
    fields["SettingsEffectGIMPHueSaturation"] = {
        Field<SettingsEffectGIMPHueSaturation>("hue", &SettingsEffectGIMPHueSaturation::GetHue),
        Field<SettingsEffectGIMPHueSaturation>("lightness", &SettingsEffectGIMPHueSaturation::GetLightness),
        Field<SettingsEffectGIMPHueSaturation>("saturation", &SettingsEffectGIMPHueSaturation::GetSaturation),
        Field<SettingsEffectGIMPHueSaturation>("overlap", &SettingsEffectGIMPHueSaturation::GetOverlap),
        Field<SettingsEffectGIMPHueSaturation>("intensity", &SettingsEffectGIMPHueSaturation::GetIntensity),
    };

    using Proc::SettingsEffectGIMPShadowsHightlights;
    fields["SettingsEffectGIMPShadowsHightlights"] = {
        Field<SettingsEffectGIMPShadowsHightlights>("shadows", &SettingsEffectGIMPShadowsHightlights::GetShadows),
        Field<SettingsEffectGIMPShadowsHightlights>("shadowsColorCorrect",
                                                    &SettingsEffectGIMPShadowsHightlights::GetShadowsColorCorrect),
        Field<SettingsEffectGIMPShadowsHightlights>("highlights", &SettingsEffectGIMPShadowsHightlights::GetHighlights),
        Field<SettingsEffectGIMPShadowsHightlights>("highlightsColorCorrect",
                                                    &SettingsEffectGIMPShadowsHightlights::GetHighlightsColorCorrect),
        Field<SettingsEffectGIMPShadowsHightlights>("whitepoint", &SettingsEffectGIMPShadowsHightlights::GetWhitepoint),
        Field<SettingsEffectGIMPShadowsHightlights>("compress", &SettingsEffectGIMPShadowsHightlights::GetCompress),
        Field<SettingsEffectGIMPShadowsHightlights>("intensity", &SettingsEffectGIMPShadowsHightlights::GetIntensity),
    };
}

} // namespace Zorvan::CatalogDetail
