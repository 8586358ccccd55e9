#include "Proc/Settings/SettingsEffectBlur.h"
#include "Proc/Settings/SettingsEffectChromaticAberration.h"
#include "Proc/Settings/SettingsEffectDiffuse.h"
#include "Proc/Settings/SettingsEffectEdgeDetect.h"
#include "Proc/Settings/SettingsEffectEmboss.h"
#include "Proc/Settings/SettingsEffectErosion.h"
#include "Proc/Settings/SettingsEffectFilmStrip.h"
#include "Proc/Settings/SettingsEffectFindEdges.h"
#include "Proc/Settings/SettingsEffectFishEye.h"
#include "Proc/Settings/SettingsEffectGlassMosaic.h"
#include "Proc/Settings/SettingsEffectJalousie.h"
#include "Proc/Settings/SettingsEffectLensDistortion.h"
#include "Proc/Settings/SettingsEffectLensFlare.h"
#include "Proc/Settings/SettingsEffectLightLeaks.h"
#include "Proc/Settings/SettingsEffectMosaic.h"
#include "Proc/Settings/SettingsEffectMotionBlur.h"
#include "Proc/Settings/SettingsEffectNeonLamp.h"
#include "Proc/Settings/SettingsEffectOilPaint.h"
#include "Proc/Settings/SettingsEffectRetroArtefacts.h"
#include "Proc/Settings/SettingsEffectSmartBlur.h"
#include "Proc/Settings/SettingsEffectStripes.h"
#include "Proc/Settings/SettingsEffectTelevision70s.h"
#include "Proc/Settings/SettingsEffectTwirl.h"
#include "Proc/Settings/SettingsEffectVHS.h"
#include "Proc/Settings/SettingsEffectVertigo.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

// Where a computed getter takes the name of a field getter (GlassMosaic's curve,
// LensDistortion's zoom and distortion), the field is listed with that computed value.
void AddFieldsStylising(FieldMap& fields)
{
    using Proc::SettingsEffectMotionBlur;
    fields["SettingsEffectMotionBlur"] = {
        Field<SettingsEffectMotionBlur>("scale", &SettingsEffectMotionBlur::GetScale),
    };

    using Proc::SettingsEffectDiffuse;
    fields["SettingsEffectDiffuse"] = {
        Field<SettingsEffectDiffuse>("level", &SettingsEffectDiffuse::GetLevel),
        Field<SettingsEffectDiffuse>("probability", &SettingsEffectDiffuse::GetProbability),
        Field<SettingsEffectDiffuse>("intensity", &SettingsEffectDiffuse::GetIntensity),
    };

    using Proc::SettingsEffectErosion;
    fields["SettingsEffectErosion"] = {
        Field<SettingsEffectErosion>("radius", &SettingsEffectErosion::GetRadius),
        Field<SettingsEffectErosion>("mode", &SettingsEffectErosion::GetMode),
    };

    using Proc::SettingsEffectFindEdges;
    fields["SettingsEffectFindEdges"] = {
        Field<SettingsEffectFindEdges>("type", &SettingsEffectFindEdges::GetType),
        Field<SettingsEffectFindEdges>("blend", &SettingsEffectFindEdges::GetBlend),
        Field<SettingsEffectFindEdges>("sensibility", &SettingsEffectFindEdges::GetSensibility),
    };

    using Proc::SettingsEffectFishEye;
    fields["SettingsEffectFishEye"] = {
        Field<SettingsEffectFishEye>("deviation", &SettingsEffectFishEye::GetDeviation),
        Field<SettingsEffectFishEye>("intensity", &SettingsEffectFishEye::GetIntensity),
    };

    using Proc::SettingsEffectMosaic;
    fields["SettingsEffectMosaic"] = {
        Field<SettingsEffectMosaic>("type", &SettingsEffectMosaic::GetType),
        FieldJson<SettingsEffectMosaic>("amountVer", [](const SettingsEffectMosaic& c) { return c.GetAmountVer(); }),
        FieldJson<SettingsEffectMosaic>("amountHor", [](const SettingsEffectMosaic& c) { return c.GetAmountHor(); }),
        Field<SettingsEffectMosaic>("intensity", &SettingsEffectMosaic::GetIntensity),
    };

    using Proc::SettingsEffectGlassMosaic;
    fields["SettingsEffectGlassMosaic"] = {
        Field<SettingsEffectGlassMosaic>("angle", &SettingsEffectGlassMosaic::GetAngle),
        Field<SettingsEffectGlassMosaic>("curve", &SettingsEffectGlassMosaic::GetCurve),
        Field<SettingsEffectGlassMosaic>("repeatsh", &SettingsEffectGlassMosaic::GetRepeatsh),
        Field<SettingsEffectGlassMosaic>("repeatsv", &SettingsEffectGlassMosaic::GetRepeatsv),
        Field<SettingsEffectGlassMosaic>("intensity", &SettingsEffectGlassMosaic::GetIntensity),
    };

    using Proc::SettingsEffectOilPaint;
    fields["SettingsEffectOilPaint"] = {
        Field<SettingsEffectOilPaint>("radius", &SettingsEffectOilPaint::GetRadius),
        Field<SettingsEffectOilPaint>("intensity", &SettingsEffectOilPaint::GetIntensity),
    };

    using Proc::SettingsEffectStripes;
    fields["SettingsEffectStripes"] = {
        Field<SettingsEffectStripes>("count", &SettingsEffectStripes::GetCount),
        Field<SettingsEffectStripes>("deep", &SettingsEffectStripes::GetDeep),
        Field<SettingsEffectStripes>("intensity", &SettingsEffectStripes::GetIntensity),
    };

    using Proc::SettingsEffectTelevision70s;
    fields["SettingsEffectTelevision70s"] = {
        Field<SettingsEffectTelevision70s>("intensity", &SettingsEffectTelevision70s::GetIntensity),
        Field<SettingsEffectTelevision70s>("stripesWidth", &SettingsEffectTelevision70s::GetStripesWidth),
    };

    using Proc::SettingsEffectTwirl;
    fields["SettingsEffectTwirl"] = {
        Field<SettingsEffectTwirl>("rt0", &SettingsEffectTwirl::GetRt0),
        Field<SettingsEffectTwirl>("vr", &SettingsEffectTwirl::GetVr),
        Field<SettingsEffectTwirl>("tt0", &SettingsEffectTwirl::GetTt0),
        Field<SettingsEffectTwirl>("vt", &SettingsEffectTwirl::GetVt),
        Field<SettingsEffectTwirl>("intensity", &SettingsEffectTwirl::GetIntensity),
    };

    using Proc::SettingsEffectVertigo;
    fields["SettingsEffectVertigo"] = {
        Field<SettingsEffectVertigo>("scale", &SettingsEffectVertigo::GetScale),
        Field<SettingsEffectVertigo>("speed", &SettingsEffectVertigo::GetSpeed),
        Field<SettingsEffectVertigo>("intensity", &SettingsEffectVertigo::GetIntensity),
    };

    using Proc::SettingsEffectVHS;
    fields["SettingsEffectVHS"] = {
        Field<SettingsEffectVHS>("speed", &SettingsEffectVHS::GetSpeed),
        Field<SettingsEffectVHS>("shift", &SettingsEffectVHS::GetShift),
        Field<SettingsEffectVHS>("smoothness", &SettingsEffectVHS::GetSmoothness),
        Field<SettingsEffectVHS>("relief", &SettingsEffectVHS::GetRelief),
        Field<SettingsEffectVHS>("drawBorder", &SettingsEffectVHS::GetDrawBorder),
        Field<SettingsEffectVHS>("intensity", &SettingsEffectVHS::GetIntensity),
    };

    using Proc::SettingsEffectLightLeaks;
    fields["SettingsEffectLightLeaks"] = {
        Field<SettingsEffectLightLeaks>("preset", &SettingsEffectLightLeaks::GetPreset),
        Field<SettingsEffectLightLeaks>("intensity", &SettingsEffectLightLeaks::GetIntensity),
    };

    using Proc::SettingsEffectLensFlare;
    fields["SettingsEffectLensFlare"] = {
        Field<SettingsEffectLensFlare>("preset", &SettingsEffectLensFlare::GetPreset),
        Field<SettingsEffectLensFlare>("intensity", &SettingsEffectLensFlare::GetIntensity),
    };

    using Proc::SettingsEffectLensDistortion;
    fields["SettingsEffectLensDistortion"] = {
        Field<SettingsEffectLensDistortion>("zoom", &SettingsEffectLensDistortion::GetZoom),
        Field<SettingsEffectLensDistortion>("distortion", &SettingsEffectLensDistortion::GetDistortion),
        Field<SettingsEffectLensDistortion>("memberCount", &SettingsEffectLensDistortion::GetMemberCount),
        Field<SettingsEffectLensDistortion>("intensity", &SettingsEffectLensDistortion::GetIntencity),
    };

    using Proc::SettingsEffectChromaticAberration;
    fields["SettingsEffectChromaticAberration"] = {
        Field<SettingsEffectChromaticAberration>("intensity", &SettingsEffectChromaticAberration::GetIntensity),
    };

    using Proc::SettingsEffectNeonLamp;
    fields["SettingsEffectNeonLamp"] = {
        Field<SettingsEffectNeonLamp>("intensity", &SettingsEffectNeonLamp::GetIntensity),
        Field<SettingsEffectNeonLamp>("color", &SettingsEffectNeonLamp::GetColor),
    };

    using Proc::SettingsEffectRetroArtefacts;
    fields["SettingsEffectRetroArtefacts"] = {
        Field<SettingsEffectRetroArtefacts>("shake", &SettingsEffectRetroArtefacts::GetShake),
        Field<SettingsEffectRetroArtefacts>("vignetting", &SettingsEffectRetroArtefacts::GetVignetting),
        Field<SettingsEffectRetroArtefacts>("grain", &SettingsEffectRetroArtefacts::GetGrain),
        Field<SettingsEffectRetroArtefacts>("scratches", &SettingsEffectRetroArtefacts::GetScratches),
        Field<SettingsEffectRetroArtefacts>("rollerTrack", &SettingsEffectRetroArtefacts::GetRollerTrack),
        Field<SettingsEffectRetroArtefacts>("intensity", &SettingsEffectRetroArtefacts::GetIntensity),
    };

    using Proc::SettingsEffectBlur;
    fields["SettingsEffectBlur"] = {
        Field<SettingsEffectBlur>("algorithm", &SettingsEffectBlur::GetAlgorithm),
        Field<SettingsEffectBlur>("kernelSize", &SettingsEffectBlur::GetKernelSize),
        Field<SettingsEffectBlur>("sigmaX", &SettingsEffectBlur::GetSigmaX),
        Field<SettingsEffectBlur>("sigmaY", &SettingsEffectBlur::GetSigmaY),
        Field<SettingsEffectBlur>("radius", &SettingsEffectBlur::GetRadius),
        Field<SettingsEffectBlur>("maxRadius", &SettingsEffectBlur::GetMaxRadius),
        Field<SettingsEffectBlur>("anchor", &SettingsEffectBlur::GetAnchor),
        Field<SettingsEffectBlur>("borderMode", &SettingsEffectBlur::GetBorderMode),
        Field<SettingsEffectBlur>("toleranceX", &SettingsEffectBlur::GetToleranceX),
        Field<SettingsEffectBlur>("toleranceY", &SettingsEffectBlur::GetToleranceY),
    };

    using Proc::SettingsEffectEmboss;
    fields["SettingsEffectEmboss"] = {
        Field<SettingsEffectEmboss>("angle", &SettingsEffectEmboss::GetAngle),
        Field<SettingsEffectEmboss>("depth", &SettingsEffectEmboss::GetDepth),
        Field<SettingsEffectEmboss>("grayscale", &SettingsEffectEmboss::GetGrayscale),
    };

    using Proc::SettingsEffectEdgeDetect;
    fields["SettingsEffectEdgeDetect"] = {
        Field<SettingsEffectEdgeDetect>("lowThreshold", &SettingsEffectEdgeDetect::GetLowThreshold),
        Field<SettingsEffectEdgeDetect>("highThreshold", &SettingsEffectEdgeDetect::GetHighThreshold),
        Field<SettingsEffectEdgeDetect>("invert", &SettingsEffectEdgeDetect::GetInvert),
    };

    using Proc::SettingsEffectSmartBlur;
    fields["SettingsEffectSmartBlur"] = {
        Field<SettingsEffectSmartBlur>("radius", &SettingsEffectSmartBlur::GetRadius),
        Field<SettingsEffectSmartBlur>("threshold", &SettingsEffectSmartBlur::GetThreshold),
        Field<SettingsEffectSmartBlur>("right", &SettingsEffectSmartBlur::GetRight),
        Field<SettingsEffectSmartBlur>("bottom", &SettingsEffectSmartBlur::GetBottom),
        Field<SettingsEffectSmartBlur>("left", &SettingsEffectSmartBlur::GetLeft),
        Field<SettingsEffectSmartBlur>("top", &SettingsEffectSmartBlur::GetTop),
        Field<SettingsEffectSmartBlur>("quality", &SettingsEffectSmartBlur::GetQuality),
        Field<SettingsEffectSmartBlur>("mode", &SettingsEffectSmartBlur::GetMode),
    };

    using Proc::SettingsEffectFilmStrip;
    fields["SettingsEffectFilmStrip"] = {
        Field<SettingsEffectFilmStrip>("type", &SettingsEffectFilmStrip::GetType),
    };

    using Proc::SettingsEffectJalousie;
    fields["SettingsEffectJalousie"] = {
        Field<SettingsEffectJalousie>("thickness", &SettingsEffectJalousie::GetThickness),
    };
}

} // namespace Zorvan::CatalogDetail
