#include "Proc/Settings/SettingsEffectFlyingObjects.h"
#include "Proc/Settings/SettingsEffectImageBlender.h"
#include "Proc/Settings/SettingsEffectMask.h"
#include "Proc/Settings/SettingsEffectWatermark.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsOverlays(FieldMap& fields)
{
    // The mask sources are functions: shown by their number. Packed colours are numbers with
    // red in the low byte.
    using Proc::SettingsEffectMask;
    fields["SettingsEffectMask"] = {
        FieldJson<SettingsEffectMask>("frameFunctors",
                                      [](const SettingsEffectMask& c) { return c.GetFrameFunctors().size(); }),
        Field<SettingsEffectMask>("type", &SettingsEffectMask::GetType),
        Field<SettingsEffectMask>("fixedParam1", &SettingsEffectMask::GetFixedParam1),
        Field<SettingsEffectMask>("fixedParam2", &SettingsEffectMask::GetFixedParam2),
        Field<SettingsEffectMask>("fixedParam3", &SettingsEffectMask::GetFixedParam3),
        Field<SettingsEffectMask>("fixedParam4", &SettingsEffectMask::GetFixedParam4),
        Field<SettingsEffectMask>("method", &SettingsEffectMask::GetMethod),
        Field<SettingsEffectMask>("backGColor", &SettingsEffectMask::GetBackGColor),
        Field<SettingsEffectMask>("frameColor", &SettingsEffectMask::GetFrameColor),
    };

    using Proc::SettingsEffectFlyingObjects;
    fields["SettingsEffectFlyingObjects"] = {
        FieldJson<SettingsEffectFlyingObjects>("image",
                                               [](const SettingsEffectFlyingObjects& c) {
                                                   const auto& image = c.GetImage();
                                                   return image ? nlohmann::json{{"width", image->GetWidth()},
                                                                                 {"height", image->GetHeight()}}
                                                                : nlohmann::json(nullptr);
                                               }),
        Field<SettingsEffectFlyingObjects>("frameWidth", &SettingsEffectFlyingObjects::GetFrameWidth),
        Field<SettingsEffectFlyingObjects>("frameHeight", &SettingsEffectFlyingObjects::GetFrameHeight),
        Field<SettingsEffectFlyingObjects>("aspectNum", &SettingsEffectFlyingObjects::GetAspectNum),
        Field<SettingsEffectFlyingObjects>("aspectDen", &SettingsEffectFlyingObjects::GetAspectDen),
        Field<SettingsEffectFlyingObjects>("objectsCount", &SettingsEffectFlyingObjects::GetObjectsCount),
        Field<SettingsEffectFlyingObjects>("scale", &SettingsEffectFlyingObjects::GetScale),
        Field<SettingsEffectFlyingObjects>("moveDirection", &SettingsEffectFlyingObjects::GetMoveDirection),
        Field<SettingsEffectFlyingObjects>("moveCos", &SettingsEffectFlyingObjects::GetMoveCos),
        Field<SettingsEffectFlyingObjects>("moveSin", &SettingsEffectFlyingObjects::GetMoveSin),
        Field<SettingsEffectFlyingObjects>("moveSpeed", &SettingsEffectFlyingObjects::GetMoveSpeed),
        Field<SettingsEffectFlyingObjects>("startAngle", &SettingsEffectFlyingObjects::GetStartAngle),
        Field<SettingsEffectFlyingObjects>("startAngleSpread", &SettingsEffectFlyingObjects::GetStartAngleSpread),
        Field<SettingsEffectFlyingObjects>("rotationSpeed", &SettingsEffectFlyingObjects::GetRotationSpeed),
        Field<SettingsEffectFlyingObjects>("swingAmplitude", &SettingsEffectFlyingObjects::GetSwingAmplitude),
        Field<SettingsEffectFlyingObjects>("swingRotationSpeed", &SettingsEffectFlyingObjects::GetSwingRotationSpeed),
        Field<SettingsEffectFlyingObjects>("intensity", &SettingsEffectFlyingObjects::GetIntensity),
    };

    // Times not set show as the smallest 64-bit value.
    using Proc::SettingsEffectWatermark;
    fields["SettingsEffectWatermark"] = {
        Field<SettingsEffectWatermark>("opacity", &SettingsEffectWatermark::GetOpacity),
        Field<SettingsEffectWatermark>("blinkOn", &SettingsEffectWatermark::GetBlinkOn),
        Field<SettingsEffectWatermark>("blinkOff", &SettingsEffectWatermark::GetBlinkOff),
        Field<SettingsEffectWatermark>("showBegin", &SettingsEffectWatermark::GetShowBegin),
        Field<SettingsEffectWatermark>("showEnd", &SettingsEffectWatermark::GetShowEnd),
        Field<SettingsEffectWatermark>("positionX", &SettingsEffectWatermark::GetPositionX),
        Field<SettingsEffectWatermark>("positionY", &SettingsEffectWatermark::GetPositionY),
    };

    // The image blender adds no field: the colour blender's fields read it (registered earlier).
    fields["SettingsEffectImageBlender"] = fields.at("SettingsEffectColorBlender");
}

} // namespace Zorvan::CatalogDetail
