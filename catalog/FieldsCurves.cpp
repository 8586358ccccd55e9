#include <cstdint>
#include <string>

#include "Proc/Settings/SettingsEffectColorCurves.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsCurves(FieldMap& fields)
{
    // The curves keyed by the number of their type, {"0": {"domain": [low, high], "points":
    // [...]}, ...}: an object of nlohmann::json keeps its keys sorted, so the output does not
    // depend on the iteration order of the record's unordered map.
    using Proc::SettingsEffectColorCurves;
    fields["SettingsEffectColorCurves"] = {
        FieldJson<SettingsEffectColorCurves>("curves",
                                             [](const SettingsEffectColorCurves& c) {
                                                 nlohmann::json curves = nlohmann::json::object();
                                                 for (const auto& [type, curve] : c.GetCurves()) {
                                                     const auto number = static_cast<std::int32_t>(type);
                                                     curves[std::to_string(number)] = nlohmann::json{
                                                         {"domain", {curve->GetDomainLow(), curve->GetDomainHigh()}},
                                                         {"points", curve->GetPoints()},
                                                     };
                                                 }
                                                 return curves;
                                             }),
    };
}

} // namespace Zorvan::CatalogDetail
