#include "catalog/DescribeKeys.h"

namespace Zorvan::DescribeDetail {

void DescribeColorBlending(DescriptionMap& descriptions)
{
    constexpr auto Map = OptionReader::Map;
    descriptions["SettingsEffectColorSelect"] =
        Described("SettingsEffectColorSelect", Map,
                  {MapChannel("r", "color", 0), MapChannel("g", "color", 1), MapChannel("b", "color", 2), Int("angle"),
                   Double("noise"), Double("harshness"), Double("transparency"), Float("intensity")},
                  {{OptionGroupKind::AllOrNothing,
                    {"r", "g", "b"},
                    "color",
                    0,
                    "the colour changes only when all three are given"}});
    descriptions["SettingsEffectColorFilter"] =
        Described("SettingsEffectColorFilter", Map,
                  {Int("preset"), Int("filter"), Float("r", "red"), Float("g", "green"), Float("b", "blue"),
                   Float("factor"), Float("intensity")});
    descriptions["SettingsEffectColorMixBurn"] = Described("SettingsEffectColorMixBurn", Map, {Double("strength")});
}

} // namespace Zorvan::DescribeDetail
