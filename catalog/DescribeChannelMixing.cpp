#include "catalog/DescribeKeys.h"

namespace Zorvan::DescribeDetail {

void DescribeChannelMixing(DescriptionMap& descriptions)
{
    constexpr auto Map = OptionReader::Map;
    Key flag = Bool("a", OptionBoolean::NonZero, "flag");
    flag.cType = "double";
    flag.Note("read as a double, so 0.5 is true");
    descriptions["SettingsEffectSaturation"] = Described(
        "SettingsEffectSaturation", Map,
        {Float("s", "saturation", 1.0).Note("passes through float precision, as saved presets were read"), flag});
    descriptions["SettingsEffectShiftLuma"] =
        Described("SettingsEffectShiftLuma", Map, {Float("shadows"), Float("highlights")});
    descriptions["SettingsEffectShiftUV"] =
        Described("SettingsEffectShiftUV", Map, {Float("shiftBR", "blueRed"), Float("shiftMG", "magentaGreen")});
    descriptions["SettingsEffectInvert"] = Described("SettingsEffectInvert", Map, {Float("intensity")});
    descriptions["SettingsEffectPosterize"] =
        Described("SettingsEffectPosterize", Map,
                  {Int("colorsNumber")
                       .Range(0, std::nullopt)
                       .Throws("SettingsException", "'colorsNumber' must be equal or greater then 0"),
                   Float("intensity")
                       .Range(0, 1)
                       .Throws("SettingsException", "'intensity' must be corespondent [ 0.0 <= intensivity <= 1.0 ]"),
                   Bool("is_pal", OptionBoolean::NonZero, "isPal"), Int("seed")});
    descriptions["SettingsEffectRetroColors"] =
        Described("SettingsEffectRetroColors", Map, {Int("type"), Float("intensity")});
}

} // namespace Zorvan::DescribeDetail
