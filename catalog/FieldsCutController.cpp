#include "Proc/Settings/SettingsFilterCutController.h"
#include "catalog/CatalogFields.h"
#include "catalog/JsonValues.h"

namespace Zorvan::CatalogDetail {

void AddFieldsCutController(FieldMap& fields)
{
    using Proc::SettingsFilterCutController;
    fields["SettingsFilterCutController"] = {
        FieldJson<SettingsFilterCutController>(
            "intervals",
            [](const SettingsFilterCutController& c) { return CatalogJson::FromIntervals(c.GetIntervals()); }),
    };
}

} // namespace Zorvan::CatalogDetail
