#include "Proc/Settings/SettingsEffectAddNoize.h"
#include "Proc/Settings/SettingsEffectDenoiseChromaLuma.h"
#include "Proc/Settings/SettingsEffectDenoiseDCT.h"
#include "Proc/Settings/SettingsEffectDenoiseOvercompleteWavelet.h"
#include "Proc/Settings/SettingsEffectNoiseVideo.h"
#include "Proc/Settings/SettingsEffectRemoveGrain.h"
#include "Proc/Settings/SettingsEffectSharpen.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsDenoise(FieldMap& fields)
{
    using Proc::SettingsEffectDenoiseChromaLuma;
    fields["SettingsEffectDenoiseChromaLuma"] = {
        Field<SettingsEffectDenoiseChromaLuma>("lumaSpatial", &SettingsEffectDenoiseChromaLuma::GetLumaSpatial),
        Field<SettingsEffectDenoiseChromaLuma>("chromaSpatial", &SettingsEffectDenoiseChromaLuma::GetChromaSpatial),
        Field<SettingsEffectDenoiseChromaLuma>("lumaTemporal", &SettingsEffectDenoiseChromaLuma::GetLumaTemporal),
        Field<SettingsEffectDenoiseChromaLuma>("chromaTemporal", &SettingsEffectDenoiseChromaLuma::GetChromaTemporal),
    };

    using Proc::SettingsEffectDenoiseDCT;
    fields["SettingsEffectDenoiseDCT"] = {
        Field<SettingsEffectDenoiseDCT>("sigma", &SettingsEffectDenoiseDCT::GetSigma),
        Field<SettingsEffectDenoiseDCT>("overlap", &SettingsEffectDenoiseDCT::GetOverlap),
        Field<SettingsEffectDenoiseDCT>("blockSizeBits", &SettingsEffectDenoiseDCT::GetBlockSizeBits),
    };

    using Proc::SettingsEffectDenoiseOvercompleteWavelet;
    using Wavelet = SettingsEffectDenoiseOvercompleteWavelet;
    fields["SettingsEffectDenoiseOvercompleteWavelet"] = {
        Field<Wavelet>("depth", &Wavelet::GetDepth),
        Field<Wavelet>("lumaStrength", &Wavelet::GetLumaStrength),
        Field<Wavelet>("chromaStrength", &Wavelet::GetChromaStrength),
    };

    using Proc::SettingsEffectRemoveGrain;
    fields["SettingsEffectRemoveGrain"] = {
        FieldJson<SettingsEffectRemoveGrain>(
            "modes",
            [](const SettingsEffectRemoveGrain& c) {
                return nlohmann::json::array({c.GetMode(0), c.GetMode(1), c.GetMode(2), c.GetMode(3)});
            }),
    };

    using Proc::SettingsEffectSharpen;
    fields["SettingsEffectSharpen"] = {
        Field<SettingsEffectSharpen>("level", &SettingsEffectSharpen::GetLevel),
    };

    using Proc::SettingsEffectAddNoize;
    fields["SettingsEffectAddNoize"] = {
        Field<SettingsEffectAddNoize>("level", &SettingsEffectAddNoize::GetLevel),
        Field<SettingsEffectAddNoize>("type", &SettingsEffectAddNoize::GetType),
    };

    using Proc::SettingsEffectNoiseVideo;
    fields["SettingsEffectNoiseVideo"] = {
        Field<SettingsEffectNoiseVideo>("method", &SettingsEffectNoiseVideo::GetMethod),
        Field<SettingsEffectNoiseVideo>("seed", &SettingsEffectNoiseVideo::GetSeed),
        Field<SettingsEffectNoiseVideo>("strength", &SettingsEffectNoiseVideo::GetStrength),
    };
}

} // namespace Zorvan::CatalogDetail
