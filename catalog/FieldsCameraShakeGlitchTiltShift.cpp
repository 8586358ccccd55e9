#include "Proc/Settings/SettingsEffectBokehBlur.h"
#include "Proc/Settings/SettingsEffectCameraShake.h"
#include "Proc/Settings/SettingsEffectGlitchMpeg.h"
#include "Proc/Settings/SettingsEffectGlitchSecurityCam.h"
#include "Proc/Settings/SettingsEffectTiltShiftVEZ.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsCameraShakeGlitchTiltShift(FieldMap& fields)
{
    using Proc::SettingsEffectBokehBlur;
    fields["SettingsEffectBokehBlur"] = {
        Field<SettingsEffectBokehBlur>("size", &SettingsEffectBokehBlur::GetSize),
        Field<SettingsEffectBokehBlur>("exposure", &SettingsEffectBokehBlur::GetExposure),
        Field<SettingsEffectBokehBlur>("hdrBorder", &SettingsEffectBokehBlur::GetHdrBorder),
        FieldJson<SettingsEffectBokehBlur>("image",
                                           [](const SettingsEffectBokehBlur& c) {
                                               const auto& image = c.GetImage();
                                               return image ? nlohmann::json{{"width", image->GetWidth()},
                                                                             {"height", image->GetHeight()}}
                                                            : nlohmann::json(nullptr);
                                           }),
        Field<SettingsEffectBokehBlur>("intensity", &SettingsEffectBokehBlur::GetIntensity),
    };

    using Proc::SettingsEffectCameraShake;
    fields["SettingsEffectCameraShake"] = {
        Field<SettingsEffectCameraShake>("shiftx", &SettingsEffectCameraShake::GetShiftx),
        Field<SettingsEffectCameraShake>("shifty", &SettingsEffectCameraShake::GetShifty),
        Field<SettingsEffectCameraShake>("rotate", &SettingsEffectCameraShake::GetRotate),
        Field<SettingsEffectCameraShake>("freq", &SettingsEffectCameraShake::GetFreq),
        Field<SettingsEffectCameraShake>("persistence", &SettingsEffectCameraShake::GetPersistence),
        Field<SettingsEffectCameraShake>("intensity", &SettingsEffectCameraShake::GetIntensity),
    };

    using Proc::SettingsEffectGlitchMpeg;
    fields["SettingsEffectGlitchMpeg"] = {
        Field<SettingsEffectGlitchMpeg>("intensity", &SettingsEffectGlitchMpeg::GetIntensity),
        Field<SettingsEffectGlitchMpeg>("privateParameters", &SettingsEffectGlitchMpeg::GetPrivateParameters),
    };

    using Proc::SettingsEffectGlitchSecurityCam;
    fields["SettingsEffectGlitchSecurityCam"] = {
        Field<SettingsEffectGlitchSecurityCam>("intensity", &SettingsEffectGlitchSecurityCam::GetIntensity),
        Field<SettingsEffectGlitchSecurityCam>("randDistortion", &SettingsEffectGlitchSecurityCam::GetRandDistortion),
        Field<SettingsEffectGlitchSecurityCam>("constDistortion", &SettingsEffectGlitchSecurityCam::GetConstDistortion),
    };

    using Proc::SettingsEffectTiltShiftVEZ;
    fields["SettingsEffectTiltShiftVEZ"] = {
        Field<SettingsEffectTiltShiftVEZ>("upperLine", &SettingsEffectTiltShiftVEZ::GetUpperLine),
        Field<SettingsEffectTiltShiftVEZ>("lowerLine", &SettingsEffectTiltShiftVEZ::GetLowerLine),
        Field<SettingsEffectTiltShiftVEZ>("smoothness", &SettingsEffectTiltShiftVEZ::GetSmoothness),
        Field<SettingsEffectTiltShiftVEZ>("blurness", &SettingsEffectTiltShiftVEZ::GetBlurness),
    };
}

} // namespace Zorvan::CatalogDetail
