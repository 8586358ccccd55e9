#include "Proc/Settings/SettingsEffectAutoContrast.h"
#include "Proc/Settings/SettingsEffectMagicEnhance.h"
#include "Proc/Settings/SettingsEffectMagicEnhance2.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsAutoEnhancement(FieldMap& fields)
{
    using Proc::SettingsEffectMagicEnhance;
    fields["SettingsEffectMagicEnhance"] = {
        Field<SettingsEffectMagicEnhance>("contrastForce", &SettingsEffectMagicEnhance::GetContrastForce),
        Field<SettingsEffectMagicEnhance>("brightness", &SettingsEffectMagicEnhance::GetBrightness),
        Field<SettingsEffectMagicEnhance>("contrast", &SettingsEffectMagicEnhance::GetContrast),
        Field<SettingsEffectMagicEnhance>("furtherInt1", &SettingsEffectMagicEnhance::GetFurtherInt1),
        Field<SettingsEffectMagicEnhance>("furtherInt2", &SettingsEffectMagicEnhance::GetFurtherInt2),
        Field<SettingsEffectMagicEnhance>("gamma", &SettingsEffectMagicEnhance::GetGamma),
        Field<SettingsEffectMagicEnhance>("whiteBalanceForce", &SettingsEffectMagicEnhance::GetWhiteBalanceForce),
        Field<SettingsEffectMagicEnhance>("temperature", &SettingsEffectMagicEnhance::GetTemperature),
        Field<SettingsEffectMagicEnhance>("tint", &SettingsEffectMagicEnhance::GetTint),
        Field<SettingsEffectMagicEnhance>("saturationForce", &SettingsEffectMagicEnhance::GetSaturationForce),
        Field<SettingsEffectMagicEnhance>("saturation", &SettingsEffectMagicEnhance::GetSaturation),
        Field<SettingsEffectMagicEnhance>("lastInt", &SettingsEffectMagicEnhance::GetLastInt),
    };

    using Proc::SettingsEffectAutoContrast;
    fields["SettingsEffectAutoContrast"] = {
        Field<SettingsEffectAutoContrast>("whiteSaturatedPixels", &SettingsEffectAutoContrast::GetWhiteSaturatedPixels),
        Field<SettingsEffectAutoContrast>("blackSaturatedPixels", &SettingsEffectAutoContrast::GetBlackSaturatedPixels),
        Field<SettingsEffectAutoContrast>("alphaIsDisabled", &SettingsEffectAutoContrast::GetAlphaIsDisabled),
    };

    using Proc::SettingsEffectMagicEnhance2;
    fields["SettingsEffectMagicEnhance2"] = {
        Field<SettingsEffectMagicEnhance2>("whiteSaturatedPixels",
                                           &SettingsEffectMagicEnhance2::GetWhiteSaturatedPixels),
        Field<SettingsEffectMagicEnhance2>("blackSaturatedPixels",
                                           &SettingsEffectMagicEnhance2::GetBlackSaturatedPixels),
    };

    // SettingsEffectAutoWhiteBalance offers no getters: the renderer reads it only through
    // its option string, so the catalogue lists no fields for it.
}

} // namespace Zorvan::CatalogDetail
