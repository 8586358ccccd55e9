#pragma once
// Internal to the catalogue: field lists, one registration function per family of classes.
// A new family adds catalog/Fields<Family>.cpp and one call in SettingsCatalog.cpp.
#include <functional>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <vector>

#include "catalog/SettingsCatalog.h"

namespace Zorvan::CatalogDetail {

using FieldMap = std::unordered_map<std::string, std::vector<SettingsCatalogField>>; // class name -> fields

template <typename T>
nlohmann::json ToJsonValue(const T& value)
{
    if constexpr (std::is_enum_v<T>) {
        return static_cast<std::underlying_type_t<T>>(value);
    } else {
        return value;
    }
}

// A field read through a getter of class C: Field<SettingsEffectBlurGaussian>("scale", &C::GetScale).
template <class C, class Getter>
SettingsCatalogField Field(std::string name, Getter getter)
{
    return {std::move(name), [getter](const Proc::Settings& record) {
                return ToJsonValue(std::invoke(getter, dynamic_cast<const C&>(record)));
            }};
}

// A field with its own conversion to JSON: FieldJson<C>("intervals", [](const C& c) { ... }).
template <class C, class Convert>
SettingsCatalogField FieldJson(std::string name, Convert convert)
{
    return {std::move(name), [convert](const Proc::Settings& record) {
                return nlohmann::json(convert(dynamic_cast<const C&>(record)));
            }};
}

void AddFieldsCore(FieldMap& fields);
void AddFieldsResizer(FieldMap& fields);
void AddFieldsCutController(FieldMap& fields);
void AddFieldsTimeFilters(FieldMap& fields);
void AddFieldsSubtitles(FieldMap& fields);
void AddFieldsSpeechToText(FieldMap& fields);
void AddFieldsVideoTracking(FieldMap& fields);
void AddFieldsAudioAnalyzers(FieldMap& fields);
void AddFieldsAudioDynamics(FieldMap& fields);
void AddFieldsAudioDelayModulation(FieldMap& fields);
void AddFieldsAudioReverberation(FieldMap& fields);
void AddFieldsAutoEnhancement(FieldMap& fields);
void AddFieldsColorBalance(FieldMap& fields);
void AddFieldsCurves(FieldMap& fields);
void AddFieldsStylising(FieldMap& fields);
void AddFieldsVignette(FieldMap& fields);
void AddFieldsHalfTonePopArt(FieldMap& fields);
void AddFieldsCameraShakeGlitchTiltShift(FieldMap& fields);
void AddFieldsStreamPipeline(FieldMap& fields);
void AddFieldsAudioEqualizer(FieldMap& fields);
void AddFieldsAudioVoice(FieldMap& fields);
void AddFieldsDenoise(FieldMap& fields);
void AddFieldsColorBlending(FieldMap& fields);
void AddFieldsChannelMixing(FieldMap& fields);
void AddFieldsImageEditor(FieldMap& fields);
void AddFieldsGeometryEffects(FieldMap& fields);
void AddFieldsTemplates(FieldMap& fields);
void AddFieldsSlice(FieldMap& fields);
void AddFieldsMotionTransitions(FieldMap& fields);
void AddFieldsOverlays(FieldMap& fields);
void AddFieldsTransitions(FieldMap& fields);

} // namespace Zorvan::CatalogDetail
