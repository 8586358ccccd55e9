#include "Proc/Settings/SettingsEffectAim.h"
#include "Proc/Settings/SettingsEffectDisplacementMap.h"
#include "Proc/Settings/SettingsEffectHumanMatting.h"
#include "Proc/Settings/SettingsEffectTemplateZES.h"
#include "Proc/Settings/SettingsTransitionTemplateZES.h"
#include "catalog/CatalogFields.h"
#include "catalog/JsonValues.h"

namespace Zorvan::CatalogDetail {

namespace {

// {width, height} of the image, null when there is none.
nlohmann::json ImageToJson(const std::shared_ptr<const Proc::ImageHandler>& image)
{
    return image ? nlohmann::json{{"width", image->GetWidth()}, {"height", image->GetHeight()}}
                 : nlohmann::json(nullptr);
}

// [{value0, value1, rect: {left, top, width, height}}, ...] in the tracker's order, null when
// there is no result.
nlohmann::json BoxesToJson(const std::shared_ptr<const Proc::SettingsEffectAim::Result>& result)
{
    if (!result) {
        return nullptr;
    }
    nlohmann::json boxes = nlohmann::json::array();
    for (const auto& info : result->GetResult()) {
        boxes.push_back({{"value0", info.value0},
                         {"value1", info.value1},
                         {"rect",
                          {{"left", info.rect.left},
                           {"top", info.rect.top},
                           {"width", info.rect.width},
                           {"height", info.rect.height}}}});
    }
    return boxes;
}

// The twins list the same fields.
template <class C>
std::vector<SettingsCatalogField> TemplateFields()
{
    return {
        Field<C>("version", &C::GetVersion),
        Field<C>("shader", &C::GetShader),
        FieldJson<C>("image", [](const C& c) { return ImageToJson(c.GetImage()); }),
        Field<C>("intensity", &C::GetIntensity),
    };
}

} // namespace

void AddFieldsTemplates(FieldMap& fields)
{
    using Proc::SettingsEffectAim;
    using Proc::SettingsEffectDisplacementMap;
    using Proc::SettingsEffectHumanMatting;
    fields["SettingsEffectTemplateZES"] = TemplateFields<Proc::SettingsEffectTemplateZES>();
    fields["SettingsTransitionTemplateZES"] = TemplateFields<Proc::SettingsTransitionTemplateZES>();
    fields["SettingsEffectHumanMatting"] = {
        FieldJson<SettingsEffectHumanMatting>(
            "modelInfo", [](const SettingsEffectHumanMatting& c) { return CatalogJson::FromModel(c.GetModelInfo()); }),
        Field<SettingsEffectHumanMatting>("downscalingFrameSize", &SettingsEffectHumanMatting::GetDownscalingFrameSize),
    };
    fields["SettingsEffectDisplacementMap"] = {
        Field<SettingsEffectDisplacementMap>("xShift", &SettingsEffectDisplacementMap::GetXShift),
        Field<SettingsEffectDisplacementMap>("yShift", &SettingsEffectDisplacementMap::GetYShift),
        Field<SettingsEffectDisplacementMap>("intensity", &SettingsEffectDisplacementMap::GetIntensity),
    };
    fields["SettingsEffectAim"] = {
        FieldJson<SettingsEffectAim>("bboxStream",
                                     [](const SettingsEffectAim& c) { return BoxesToJson(c.GetBBoxStream()); }),
        Field<SettingsEffectAim>("type", &SettingsEffectAim::GetType),
        Field<SettingsEffectAim>("thickness", &SettingsEffectAim::GetThickness),
        Field<SettingsEffectAim>("crossLen", &SettingsEffectAim::GetCrossLen),
        Field<SettingsEffectAim>("radius", &SettingsEffectAim::GetRadius),
    };
}

} // namespace Zorvan::CatalogDetail
