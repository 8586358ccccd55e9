#include "Proc/Settings/SettingsEffectChromakey.h"
#include "Proc/Settings/SettingsEffectColorBlender.h"
#include "Proc/Settings/SettingsEffectColorBrush.h"
#include "Proc/Settings/SettingsEffectColorFilter.h"
#include "Proc/Settings/SettingsEffectColorMixBurn.h"
#include "Proc/Settings/SettingsEffectColorMixExchange.h"
#include "Proc/Settings/SettingsEffectColorMixField.h"
#include "Proc/Settings/SettingsEffectColorSelect.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsColorBlending(FieldMap& fields)
{
    using Proc::SettingsEffectColorBlender;
    fields["SettingsEffectColorBlender"] = {
        Field<SettingsEffectColorBlender>("x", &SettingsEffectColorBlender::GetX),
        Field<SettingsEffectColorBlender>("y", &SettingsEffectColorBlender::GetY),
        Field<SettingsEffectColorBlender>("intensity", &SettingsEffectColorBlender::GetIntensity),
        Field<SettingsEffectColorBlender>("blendMode", &SettingsEffectColorBlender::GetBlendMode),
        // {red, green, blue, alpha}, or null when no base colour is set.
        FieldJson<SettingsEffectColorBlender>("baseColor",
                                              [](const SettingsEffectColorBlender& c) {
                                                  const auto& color = c.GetBaseColor();
                                                  if (!color) {
                                                      return nlohmann::json(nullptr);
                                                  }
                                                  return nlohmann::json{{"red", color->red},
                                                                        {"green", color->green},
                                                                        {"blue", color->blue},
                                                                        {"alpha", color->alpha}};
                                              }),
    };

    // Packed colours are shown as the number, red in the low byte.
    using Proc::SettingsEffectChromakey;
    fields["SettingsEffectChromakey"] = {
        Field<SettingsEffectChromakey>("angle", &SettingsEffectChromakey::GetAngle),
        Field<SettingsEffectChromakey>("noise", &SettingsEffectChromakey::GetNoise),
        Field<SettingsEffectChromakey>("harshness", &SettingsEffectChromakey::GetHarshness),
        Field<SettingsEffectChromakey>("transparency", &SettingsEffectChromakey::GetTransparency),
        Field<SettingsEffectChromakey>("keyColor", &SettingsEffectChromakey::GetKeyColor),
    };

    using Proc::SettingsEffectColorSelect;
    fields["SettingsEffectColorSelect"] = {
        Field<SettingsEffectColorSelect>("angle", &SettingsEffectColorSelect::GetAngle),
        Field<SettingsEffectColorSelect>("noise", &SettingsEffectColorSelect::GetNoise),
        Field<SettingsEffectColorSelect>("harshness", &SettingsEffectColorSelect::GetHarshness),
        Field<SettingsEffectColorSelect>("transparency", &SettingsEffectColorSelect::GetTransparency),
        Field<SettingsEffectColorSelect>("color", &SettingsEffectColorSelect::GetColor),
        Field<SettingsEffectColorSelect>("intensity", &SettingsEffectColorSelect::GetIntensity),
    };

    using Proc::SettingsEffectColorFilter;
    fields["SettingsEffectColorFilter"] = {
        Field<SettingsEffectColorFilter>("preset", &SettingsEffectColorFilter::GetPreset),
        Field<SettingsEffectColorFilter>("filter", &SettingsEffectColorFilter::GetFilter),
        Field<SettingsEffectColorFilter>("red", &SettingsEffectColorFilter::GetRed),
        Field<SettingsEffectColorFilter>("green", &SettingsEffectColorFilter::GetGreen),
        Field<SettingsEffectColorFilter>("blue", &SettingsEffectColorFilter::GetBlue),
        Field<SettingsEffectColorFilter>("factor", &SettingsEffectColorFilter::GetFactor),
        Field<SettingsEffectColorFilter>("intensity", &SettingsEffectColorFilter::GetIntensity),
    };

    using Proc::SettingsEffectColorBrush;
    fields["SettingsEffectColorBrush"] = {
        Field<SettingsEffectColorBrush>("angle", &SettingsEffectColorBrush::GetAngle),
        Field<SettingsEffectColorBrush>("size", &SettingsEffectColorBrush::GetSize),
        Field<SettingsEffectColorBrush>("rough", &SettingsEffectColorBrush::GetRough),
        Field<SettingsEffectColorBrush>("type", &SettingsEffectColorBrush::GetType),
        Field<SettingsEffectColorBrush>("intensity", &SettingsEffectColorBrush::GetIntensity),
    };

    using Proc::SettingsEffectColorMixBurn;
    fields["SettingsEffectColorMixBurn"] = {
        Field<SettingsEffectColorMixBurn>("strength", &SettingsEffectColorMixBurn::GetStrength),
    };

    // The stored colour; the exchange colour is computed from it and the intensity.
    using Proc::SettingsEffectColorMixExchange;
    fields["SettingsEffectColorMixExchange"] = {
        Field<SettingsEffectColorMixExchange>("color", &SettingsEffectColorMixExchange::GetColor),
        Field<SettingsEffectColorMixExchange>("intensity", &SettingsEffectColorMixExchange::GetIntensity),
    };

    using Proc::SettingsEffectColorMixField;
    fields["SettingsEffectColorMixField"] = {
        Field<SettingsEffectColorMixField>("threshold", &SettingsEffectColorMixField::GetThreshold),
        Field<SettingsEffectColorMixField>("contrast", &SettingsEffectColorMixField::GetContrast),
    };
}

} // namespace Zorvan::CatalogDetail
