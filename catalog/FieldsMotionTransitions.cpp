#include "Proc/Settings/SettingsTransitionGlitch.h"
#include "Proc/Settings/SettingsTransitionModifiedMotionSpin.h"
#include "Proc/Settings/SettingsTransitionMotionSpin.h"
#include "Proc/Settings/SettingsTransitionParallax.h"
#include "Proc/Settings/SettingsTransitionRageZoom.h"
#include "Proc/Settings/SettingsTransitionThroughColor.h"
#include "Proc/Settings/SettingsTransitionWhipe.h"
#include "Proc/Settings/SettingsTransitionWhoosh.h"
#include "Proc/Settings/SettingsTransitionWithEffects.h"
#include "Proc/Settings/SettingsTransitionZoomBlur.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

namespace {

// A nested record as its class identifier and the fields the catalogue lists for its class, so
// that records without fields (a flash, a wipe) still tell which transition they are; null for none.
nlohmann::json NestedRecord(const std::shared_ptr<Proc::Settings>& record)
{
    if (!record) {
        return nullptr;
    }
    const SettingsCatalogEntry* entry = SettingsCatalog::Find(record->GetClassId());
    return {{"id", record->GetClassId()},
            {"fields", entry != nullptr ? nlohmann::json(entry->FieldsToJson(*record)) : nlohmann::json()}};
}

} // namespace

void AddFieldsMotionTransitions(FieldMap& fields)
{
    using Proc::SettingsTransitionGlitch;
    using Proc::SettingsTransitionModifiedMotionSpin;
    using Proc::SettingsTransitionMotionSpin;
    using Proc::SettingsTransitionParallax;
    using Proc::SettingsTransitionRageZoom;
    using Proc::SettingsTransitionThroughColor;
    using Proc::SettingsTransitionWhipe;
    using Proc::SettingsTransitionWhoosh;
    using Proc::SettingsTransitionWithEffects;
    using Proc::SettingsTransitionZoomBlur;
    using ModifiedSpin = SettingsTransitionModifiedMotionSpin;
    fields["SettingsTransitionWhipe"] = {
        Field<SettingsTransitionWhipe>("maxBlurScale", &SettingsTransitionWhipe::GetMaxBlurScale),
        Field<SettingsTransitionWhipe>("motionBoostPower", &SettingsTransitionWhipe::GetMotionBoostPower),
        Field<SettingsTransitionWhipe>("blurBoostPower", &SettingsTransitionWhipe::GetBlurBoostPower),
        Field<SettingsTransitionWhipe>("hDirection", &SettingsTransitionWhipe::GetHDirection),
        Field<SettingsTransitionWhipe>("vDirection", &SettingsTransitionWhipe::GetVDirection),
    };
    fields["SettingsTransitionMotionSpin"] = {
        Field<SettingsTransitionMotionSpin>("maxMotionBlurScale", &SettingsTransitionMotionSpin::GetMaxMotionBlurScale),
        Field<SettingsTransitionMotionSpin>("direction", &SettingsTransitionMotionSpin::GetDirection),
    };
    fields["SettingsTransitionWhoosh"] = {
        Field<SettingsTransitionWhoosh>("maxMotionBlurScale", &SettingsTransitionWhoosh::GetMaxMotionBlurScale),
        Field<SettingsTransitionWhoosh>("direction", &SettingsTransitionWhoosh::GetDirection),
    };
    fields["SettingsTransitionModifiedMotionSpin"] = {
        Field<ModifiedSpin>("maxBlurScale", &ModifiedSpin::GetMaxBlurScale),
        Field<ModifiedSpin>("direction", &ModifiedSpin::GetDirection),
        Field<ModifiedSpin>("additionalSourceFrameRotateAngle", &ModifiedSpin::GetAdditionalSourceFrameRotateAngle),
        Field<ModifiedSpin>("motionBoostPower", &ModifiedSpin::GetMotionBoostPower),
        Field<ModifiedSpin>("blurBoostPower", &ModifiedSpin::GetBlurBoostPower),
    };
    fields["SettingsTransitionParallax"] = {
        FieldJson<SettingsTransitionParallax>("speedUp",
                                              [](const SettingsTransitionParallax& c) { return c.GetSpeed()[0]; }),
        FieldJson<SettingsTransitionParallax>("speedMid",
                                              [](const SettingsTransitionParallax& c) { return c.GetSpeed()[1]; }),
        FieldJson<SettingsTransitionParallax>("speedDown",
                                              [](const SettingsTransitionParallax& c) { return c.GetSpeed()[2]; }),
        FieldJson<SettingsTransitionParallax>("cropUp",
                                              [](const SettingsTransitionParallax& c) { return c.GetCrop().first; }),
        FieldJson<SettingsTransitionParallax>("cropDown",
                                              [](const SettingsTransitionParallax& c) { return c.GetCrop().second; }),
        Field<SettingsTransitionParallax>("maxMotionBlurScale", &SettingsTransitionParallax::GetMaxMotionBlurScale),
        Field<SettingsTransitionParallax>("maxLensZoom", &SettingsTransitionParallax::GetMaxLensZoom),
        Field<SettingsTransitionParallax>("maxLensDistortion", &SettingsTransitionParallax::GetMaxLensDistortion),
    };
    fields["SettingsTransitionZoomBlur"] = {
        Field<SettingsTransitionZoomBlur>("type", &SettingsTransitionZoomBlur::GetType),
        Field<SettingsTransitionZoomBlur>("maxZoom", &SettingsTransitionZoomBlur::GetMaxZoom),
        Field<SettingsTransitionZoomBlur>("maxBlur", &SettingsTransitionZoomBlur::GetMaxBlur),
        Field<SettingsTransitionZoomBlur>("boostPower", &SettingsTransitionZoomBlur::GetBoostPower),
        Field<SettingsTransitionZoomBlur>("mixDuration", &SettingsTransitionZoomBlur::GetMixDuration),
    };
    fields["SettingsTransitionGlitch"] = {
        Field<SettingsTransitionGlitch>("type", &SettingsTransitionGlitch::GetType),
    };
    fields["SettingsTransitionRageZoom"] = {
        Field<SettingsTransitionRageZoom>("type", &SettingsTransitionRageZoom::GetType),
    };
    fields["SettingsTransitionThroughColor"] = {
        Field<SettingsTransitionThroughColor>("keyColorR", &SettingsTransitionThroughColor::GetKeyColorR),
        Field<SettingsTransitionThroughColor>("keyColorG", &SettingsTransitionThroughColor::GetKeyColorG),
        Field<SettingsTransitionThroughColor>("keyColorB", &SettingsTransitionThroughColor::GetKeyColorB),
        Field<SettingsTransitionThroughColor>("keyColorA", &SettingsTransitionThroughColor::GetKeyColorA),
    };
    fields["SettingsTransitionWithEffects"] = {
        Field<SettingsTransitionWithEffects>("name", &SettingsTransitionWithEffects::GetName),
        FieldJson<SettingsTransitionWithEffects>("effects",
                                                 [](const SettingsTransitionWithEffects& c) {
                                                     nlohmann::json list = nlohmann::json::array();
                                                     for (const auto& effect : c.GetEffects()) {
                                                         list.push_back(NestedRecord(effect));
                                                     }
                                                     return list;
                                                 }),
        FieldJson<SettingsTransitionWithEffects>(
            "transition", [](const SettingsTransitionWithEffects& c) { return NestedRecord(c.GetTransition()); }),
        Field<SettingsTransitionWithEffects>("transitionFilling", &SettingsTransitionWithEffects::GetTransitionFilling),
        Field<SettingsTransitionWithEffects>("powerScale", &SettingsTransitionWithEffects::GetPowerScale),
        Field<SettingsTransitionWithEffects>("intensityMultiplier",
                                             &SettingsTransitionWithEffects::GetIntensityMultiplier),
    };
}

} // namespace Zorvan::CatalogDetail
