#include "catalog/DescribeKeys.h"

namespace Zorvan::DescribeDetail {

void DescribeVignette(DescriptionMap& descriptions)
{
    descriptions["SettingsEffectVignetteFilter"] =
        Described("SettingsEffectVignetteFilter", OptionReader::Map,
                  {Int("form"), Int("smooth"), Int("aspect"), Double("x0"), Double("y0"), Double("ri"), Double("re"),
                   MapChannel("r", "color", 0), MapChannel("g", "color", 1), MapChannel("b", "color", 2),
                   MapChannel("a", "color", 3), Float("intensity")},
                  {{OptionGroupKind::AllOrNothing,
                    {"r", "g", "b", "a"},
                    "color",
                    0,
                    "the colour changes only when all four are given; a gives its alpha"}});
}

} // namespace Zorvan::DescribeDetail
