#include "catalog/DescribeKeys.h"

namespace Zorvan::DescribeDetail {

void DescribeTimeFilters(DescriptionMap& descriptions)
{
    descriptions["SettingsFilterSpeedUp"] = Described(
        "SettingsFilterSpeedUp", OptionReader::Map,
        {Double("speed", "speedFactor", 1.0).Range(0, std::nullopt).Throws("SettingsException", "Invalid speed")});
}

} // namespace Zorvan::DescribeDetail
