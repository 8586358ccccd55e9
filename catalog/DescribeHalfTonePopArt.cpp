#include "catalog/DescribeKeys.h"

namespace Zorvan::DescribeDetail {

void DescribeHalfTonePopArt(DescriptionMap& descriptions)
{
    constexpr auto Map = OptionReader::Map;
    descriptions["SettingsEffectHalfTone"] =
        Described("SettingsEffectHalfTone", Map,
                  {MapChannel("rbg", "backgroundColor", 0), MapChannel("gbg", "backgroundColor", 1),
                   MapChannel("bbg", "backgroundColor", 2), MapChannel("rdot", "dotColor", 0),
                   MapChannel("gdot", "dotColor", 1), MapChannel("bdot", "dotColor", 2),
                   Double("colorsize", "colorSize"), Double("threshold"), Double("dotsize", "dotSize"), Int("angle")},
                  {{OptionGroupKind::AllOrNothing,
                    {"rbg", "gbg", "bbg"},
                    "backgroundColor",
                    0,
                    "the background changes only when all three are given"},
                   {OptionGroupKind::AllOrNothing,
                    {"rdot", "gdot", "bdot"},
                    "dotColor",
                    0,
                    "the dots' colour changes only when all three are given"}});
    descriptions["SettingsEffectPopArt"] =
        Described("SettingsEffectPopArt", Map,
                  {Double("saturation"), Double("hue"), Double("offset"), Double("scale", "scale", 1.0), Int("levels"),
                   Int("nv", "amountVertical", 1), Int("nh", "amountHorizontal", 1),
                   Bool("invert", OptionBoolean::ExactlyOne), Int("resize"), Float("intensity")});
}

} // namespace Zorvan::DescribeDetail
