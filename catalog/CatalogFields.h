#pragma once
// Internal to the catalogue: field lists, one registration function per Part.
// A family issue adds catalog/Fields_Part_<N>_<M>.cpp and one call in SettingsCatalog.cpp.
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

void AddFieldsPart_1(FieldMap& fields);
void AddFieldsPart_2_1(FieldMap& fields);
void AddFieldsPart_2_2(FieldMap& fields);
void AddFieldsPart_2_6(FieldMap& fields);
void AddFieldsPart_3_1(FieldMap& fields);
void AddFieldsPart_3_2(FieldMap& fields);
void AddFieldsPart_3_3(FieldMap& fields);
void AddFieldsPart_4_1(FieldMap& fields);
void AddFieldsPart_4_2(FieldMap& fields);
void AddFieldsPart_4_3(FieldMap& fields);
void AddFieldsPart_5_1(FieldMap& fields);
void AddFieldsPart_5_2(FieldMap& fields);
void AddFieldsPart_5_3(FieldMap& fields);
void AddFieldsPart_6_1(FieldMap& fields);
void AddFieldsPart_6_2(FieldMap& fields);
void AddFieldsPart_6_3(FieldMap& fields);
void AddFieldsPart_6_4(FieldMap& fields);

} // namespace Zorvan::CatalogDetail
