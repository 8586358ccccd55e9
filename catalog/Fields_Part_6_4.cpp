#include "Proc/Settings/SettingsEffectBokehBlur.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsPart_6_4(FieldMap& fields)
{
    using Proc::SettingsEffectBokehBlur;
    fields["SettingsEffectBokehBlur"] = {
        Field<SettingsEffectBokehBlur>("size", &SettingsEffectBokehBlur::GetSize),
        Field<SettingsEffectBokehBlur>("exposure", &SettingsEffectBokehBlur::GetExposure),
        Field<SettingsEffectBokehBlur>("hdrBorder", &SettingsEffectBokehBlur::GetHdrBorder),
        FieldJson<SettingsEffectBokehBlur>("image",
                                           [](const SettingsEffectBokehBlur& c) {
                                               const auto& image = c.GetImage();
                                               return image ? nlohmann::json{{"width", image->GetWidth()},
                                                                             {"height", image->GetHeight()}}
                                                            : nlohmann::json(nullptr);
                                           }),
        Field<SettingsEffectBokehBlur>("intensity", &SettingsEffectBokehBlur::GetIntensity),
    };
}

} // namespace Zorvan::CatalogDetail
