#include "Proc/Settings/SettingsFilterSpeedUp.h"
#include "Proc/Settings/SettingsFilterSpeedUpVideo.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

namespace {

nlohmann::json RateToJson(const std::optional<Proc::SettingsFilterSpeedUpVideo::Rational>& rate)
{
    if (!rate) {
        return nullptr;
    }
    return nlohmann::json{{"numerator", rate->numerator()}, {"denominator", rate->denominator()}};
}

} // namespace

void AddFieldsTimeFilters(FieldMap& fields)
{
    using Proc::SettingsFilterSpeedUp;
    using Proc::SettingsFilterSpeedUpVideo;
    fields["SettingsFilterSpeedUp"] = {
        Field<SettingsFilterSpeedUp>("speedFactor", &SettingsFilterSpeedUp::GetSpeedFactor),
    };
    fields["SettingsFilterSpeedUpVideo"] = {
        Field<SettingsFilterSpeedUpVideo>("speedFactor", &SettingsFilterSpeedUpVideo::GetSpeedFactor),
        FieldJson<SettingsFilterSpeedUpVideo>(
            "constantFPS", [](const SettingsFilterSpeedUpVideo& c) { return RateToJson(c.GetConstantFPS()); }),
        Field<SettingsFilterSpeedUpVideo>("useSeek", &SettingsFilterSpeedUpVideo::IsUseSeek),
    };
}

} // namespace Zorvan::CatalogDetail
