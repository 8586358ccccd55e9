#include "Proc/Settings/SettingsEffectBalanceChroma.h"
#include "Proc/Settings/SettingsEffectColorBalance.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsColorBalance(FieldMap& fields)
{
    // Saturation and gamma are shown as stored: the filter factors, not the sliders.
    using Proc::SettingsEffectColorBalance;
    fields["SettingsEffectColorBalance"] = {
        Field<SettingsEffectColorBalance>("brightness", &SettingsEffectColorBalance::GetBrightness),
        Field<SettingsEffectColorBalance>("contrast", &SettingsEffectColorBalance::GetContrast),
        Field<SettingsEffectColorBalance>("saturation", &SettingsEffectColorBalance::GetFFSaturation),
        Field<SettingsEffectColorBalance>("hue", &SettingsEffectColorBalance::GetHue),
        Field<SettingsEffectColorBalance>("gamma", &SettingsEffectColorBalance::GetFFGamma),
        Field<SettingsEffectColorBalance>("redGamma", &SettingsEffectColorBalance::GetRedGamma),
        Field<SettingsEffectColorBalance>("greenGamma", &SettingsEffectColorBalance::GetGreenGamma),
        Field<SettingsEffectColorBalance>("blueGamma", &SettingsEffectColorBalance::GetBlueGamma),
        Field<SettingsEffectColorBalance>("weight", &SettingsEffectColorBalance::GetWeight),
    };

    using Proc::SettingsEffectBalanceChroma;
    fields["SettingsEffectBalanceChroma"] = {
        Field<SettingsEffectBalanceChroma>("shadowsRed", &SettingsEffectBalanceChroma::GetShadowsRed),
        Field<SettingsEffectBalanceChroma>("shadowsGreen", &SettingsEffectBalanceChroma::GetShadowsGreen),
        Field<SettingsEffectBalanceChroma>("shadowsBlue", &SettingsEffectBalanceChroma::GetShadowsBlue),
        Field<SettingsEffectBalanceChroma>("midtonesRed", &SettingsEffectBalanceChroma::GetMidtonesRed),
        Field<SettingsEffectBalanceChroma>("midtonesGreen", &SettingsEffectBalanceChroma::GetMidtonesGreen),
        Field<SettingsEffectBalanceChroma>("midtonesBlue", &SettingsEffectBalanceChroma::GetMidtonesBlue),
        Field<SettingsEffectBalanceChroma>("highlightsRed", &SettingsEffectBalanceChroma::GetHighlightsRed),
        Field<SettingsEffectBalanceChroma>("highlightsGreen", &SettingsEffectBalanceChroma::GetHighlightsGreen),
        Field<SettingsEffectBalanceChroma>("highlightsBlue", &SettingsEffectBalanceChroma::GetHighlightsBlue),
        Field<SettingsEffectBalanceChroma>("preserveLuminosity", &SettingsEffectBalanceChroma::GetPreserveLuminosity),
    };
}

} // namespace Zorvan::CatalogDetail
