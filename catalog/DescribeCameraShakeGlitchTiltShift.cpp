#include "catalog/DescribeKeys.h"

namespace Zorvan::DescribeDetail {

void DescribeCameraShakeGlitchTiltShift(DescriptionMap& descriptions)
{
    constexpr auto Map = OptionReader::Map;
    descriptions["SettingsEffectCameraShake"] = Described("SettingsEffectCameraShake", Map,
                                                          {Double("shiftx"), Double("shifty"), Double("rotate"),
                                                           Double("freq"), Double("persistence"), Float("intensity")});
    descriptions["SettingsEffectBokehBlur"] =
        Described("SettingsEffectBokehBlur", Map,
                  {Double("size"), Double("exposure"), Double("hdrborder", "hdrBorder"), Float("intensity")});
    const auto intensity = [] {
        return Float("intensity")
            .Range(0, std::nullopt)
            .Throws("SettingsException", "Invalid intensity value. Must be greater or equal 0.0");
    };
    descriptions["SettingsEffectGlitchMpeg"] = Described("SettingsEffectGlitchMpeg", Map, {intensity()});
    descriptions["SettingsEffectGlitchSecurityCam"] = Described(
        "SettingsEffectGlitchSecurityCam", Map,
        {intensity(),
         Float("randDist", "randDistortion")
             .Range(0, 3)
             .Throws("SettingsException", "Invalid rand distortion value. Must be in the interval [0.0, 3.0]"),
         Float("constDist", "constDistortion")
             .Range(0, 0.5)
             .Throws("SettingsException", "Invalid const distortion value. Must be in the interval [0.0, 0.5]")});
}

} // namespace Zorvan::DescribeDetail
