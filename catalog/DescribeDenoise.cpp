#include "catalog/DescribeKeys.h"

namespace Zorvan::DescribeDetail {

void DescribeDenoise(DescriptionMap& descriptions)
{
    descriptions["SettingsEffectSharpen"] = Described("SettingsEffectSharpen", OptionReader::Map, {Double("level")});
    descriptions["SettingsEffectAddNoize"] =
        Described("SettingsEffectAddNoize", OptionReader::Map, {Double("level"), Int("type")});
}

} // namespace Zorvan::DescribeDetail
