#pragma once
// The catalogue of every settings class: identifier, class name, base, the
// overridden operations (E IsEqualTo, M IsEmpty, D Deserialize), a factory for a
// default record and the readable fields as JSON values.
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "Proc/Settings/Settings.h"

namespace Zorvan {

struct SettingsCatalogField {
    std::string name;
    std::function<nlohmann::json(const Proc::Settings&)> get;
};

struct SettingsCatalogEntry {
    std::string classId;
    std::string className;
    std::string base;            // "Settings", "-" (no base), "SettingsFilterSpeedUp", ...
    std::string group;           // Analyzers, Audio, Effects, Filters, Transitions, Others
    bool hasVirtualTable = true; // false for the plain value records
    bool ownIsEqualTo = false;   // E
    bool ownIsEmpty = false;     // M
    bool ownDeserialize = false; // D
    std::function<std::unique_ptr<Proc::Settings>()> create;
    std::vector<SettingsCatalogField> fields;

    // "-" (no virtual table), "none" or the letters of E, M, D.
    std::string Own() const;
    // The fields of a record of this class as a JSON object, in field order.
    nlohmann::ordered_json FieldsToJson(const Proc::Settings& record) const;
};

class SettingsCatalog {
public:
    // All 220 classes, grouped as the engine groups its stages.
    static const std::vector<SettingsCatalogEntry>& Entries();
    // By class identifier or by class name; nullptr when unknown.
    static const SettingsCatalogEntry* Find(std::string_view idOrClassName);
};

} // namespace Zorvan
