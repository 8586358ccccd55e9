#include "Proc/Settings/SettingsEffectAlphaChannelModifier.h"
#include "Proc/Settings/SettingsEffectChannelMixer.h"
#include "Proc/Settings/SettingsEffectColorChannelMixer.h"
#include "Proc/Settings/SettingsEffectInvert.h"
#include "Proc/Settings/SettingsEffectLUT.h"
#include "Proc/Settings/SettingsEffectNegateVideo.h"
#include "Proc/Settings/SettingsEffectPosterize.h"
#include "Proc/Settings/SettingsEffectRetroColors.h"
#include "Proc/Settings/SettingsEffectSaturation.h"
#include "Proc/Settings/SettingsEffectShiftLuma.h"
#include "Proc/Settings/SettingsEffectShiftUV.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsChannelMixing(FieldMap& fields)
{
    using Proc::SettingsEffectChannelMixer;
    fields["SettingsEffectChannelMixer"] = {
        Field<SettingsEffectChannelMixer>("redChannel", &SettingsEffectChannelMixer::GetRedChannel),
        Field<SettingsEffectChannelMixer>("greenChannel", &SettingsEffectChannelMixer::GetGreenChannel),
        Field<SettingsEffectChannelMixer>("blueChannel", &SettingsEffectChannelMixer::GetBlueChannel),
    };

    using Proc::SettingsEffectColorChannelMixer;
    fields["SettingsEffectColorChannelMixer"] = {
        Field<SettingsEffectColorChannelMixer>("matrix", &SettingsEffectColorChannelMixer::GetMatrix),
    };

    // The table by its size and validity (null when there is none): its entries are too many to list.
    using Proc::SettingsEffectLUT;
    fields["SettingsEffectLUT"] = {
        FieldJson<SettingsEffectLUT>("table",
                                     [](const SettingsEffectLUT& c) {
                                         const auto& table = c.GetTable();
                                         return table ? nlohmann::json{{"size", table->GetSize()},
                                                                       {"valid", table->IsValid()}}
                                                      : nlohmann::json(nullptr);
                                     }),
        Field<SettingsEffectLUT>("mode", &SettingsEffectLUT::GetMode),
    };

    using Proc::SettingsEffectAlphaChannelModifier;
    fields["SettingsEffectAlphaChannelModifier"] = {
        Field<SettingsEffectAlphaChannelModifier>("powerScale", &SettingsEffectAlphaChannelModifier::GetPowerScale),
        Field<SettingsEffectAlphaChannelModifier>("additionalMultiplier",
                                                  &SettingsEffectAlphaChannelModifier::GetAdditionalMultiplier),
    };

    using Proc::SettingsEffectSaturation;
    fields["SettingsEffectSaturation"] = {
        Field<SettingsEffectSaturation>("saturation", &SettingsEffectSaturation::GetSaturation),
        Field<SettingsEffectSaturation>("flag", &SettingsEffectSaturation::GetFlag),
    };

    using Proc::SettingsEffectShiftLuma;
    fields["SettingsEffectShiftLuma"] = {
        Field<SettingsEffectShiftLuma>("shadows", &SettingsEffectShiftLuma::GetShadows),
        Field<SettingsEffectShiftLuma>("highlights", &SettingsEffectShiftLuma::GetHighlights),
    };

    using Proc::SettingsEffectShiftUV;
    fields["SettingsEffectShiftUV"] = {
        Field<SettingsEffectShiftUV>("blueRed", &SettingsEffectShiftUV::GetBlueRed),
        Field<SettingsEffectShiftUV>("magentaGreen", &SettingsEffectShiftUV::GetMagentaGreen),
    };

    using Proc::SettingsEffectInvert;
    fields["SettingsEffectInvert"] = {
        Field<SettingsEffectInvert>("intensity", &SettingsEffectInvert::GetIntensity),
    };

    using Proc::SettingsEffectNegateVideo;
    fields["SettingsEffectNegateVideo"] = {
        Field<SettingsEffectNegateVideo>("mode", &SettingsEffectNegateVideo::GetMode),
    };

    using Proc::SettingsEffectPosterize;
    fields["SettingsEffectPosterize"] = {
        Field<SettingsEffectPosterize>("colorsNumber", &SettingsEffectPosterize::GetColorsNumber),
        Field<SettingsEffectPosterize>("isPal", &SettingsEffectPosterize::GetIsPal),
        Field<SettingsEffectPosterize>("seed", &SettingsEffectPosterize::GetSeed),
        Field<SettingsEffectPosterize>("intensity", &SettingsEffectPosterize::GetIntensity),
    };

    using Proc::SettingsEffectRetroColors;
    fields["SettingsEffectRetroColors"] = {
        Field<SettingsEffectRetroColors>("type", &SettingsEffectRetroColors::GetType),
        Field<SettingsEffectRetroColors>("intensity", &SettingsEffectRetroColors::GetIntensity),
    };
}

} // namespace Zorvan::CatalogDetail
