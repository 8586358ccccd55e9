// describe: what a class reads from its option string; validate: how a class would read one.
#include <algorithm>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "catalog/Description.h"
#include "tools/Commands.h"
#include "tools/Failure.h"

namespace ZorvanTool {

namespace {

using Json = nlohmann::ordered_json;
using Zorvan::OptionDescription;
using Zorvan::OptionKey;
using Zorvan::SettingsCatalog;
using Zorvan::SettingsCatalogEntry;
using Zorvan::SettingsDescriptions;

const char* const schemaDialect = "https://json-schema.org/draft/2020-12/schema";

// The class of `id` and its description; prints why not and gives null when there is none.
const OptionDescription* Lookup(const std::string& id, const SettingsCatalogEntry*& entry)
{
    entry = SettingsCatalog::Find(id);
    if (entry == nullptr) {
        std::cerr << "error: unknown class identifier or class name: " << id << '\n';
        return nullptr;
    }
    const OptionDescription* description = SettingsDescriptions::Find(id);
    if (description == nullptr) {
        std::cerr << "error: the option string of " << entry->className << " is not described yet\n";
    }
    return description;
}

std::string Number(const Json& value)
{
    return value.is_string() ? value.get<std::string>() : value.dump();
}

std::string TypeCell(const OptionKey& key, const Json& item)
{
    std::string cell = item["type"].get<std::string>();
    if (key.type == Zorvan::OptionValueType::Boolean) {
        cell += " (" + item["boolean"].get<std::string>() + ")";
    } else if (key.type == Zorvan::OptionValueType::ColorChannel) {
        static const char* const bytes[] = {"red", "green", "blue", "alpha"};
        cell += std::string(" ") + bytes[key.channel & 3];
    } else if (key.type == Zorvan::OptionValueType::Nested) {
        cell += " " + key.nestedClass;
    } else if (!key.spellings.empty()) {
        cell += " (spelled)";
    } else if (key.type != Zorvan::OptionValueType::Text && key.cType != cell) {
        cell += " (" + key.cType + ")";
    }
    return cell;
}

std::string RangeCell(const OptionKey& key)
{
    if (!key.minimum && !key.maximum) {
        return "any";
    }
    const auto bound = [&key](double value) { return SettingsDescriptions::NumberText(value, key.cType); };
    return std::string(key.minimum && key.exclusiveMinimum ? "(" : "[") + (key.minimum ? bound(*key.minimum) : "") +
           " .. " + (key.maximum ? bound(*key.maximum) : "") + (key.maximum && key.exclusiveMaximum ? ")" : "]");
}

std::string OutsideCell(const OptionKey& key, const Json& item)
{
    std::string cell = item["outside"].get<std::string>();
    if (key.outside == Zorvan::OptionOutside::Throws) {
        cell += " " + key.failure.exception + ": " + key.failure.text;
    }
    return cell;
}

void PrintTable(const std::vector<std::vector<std::string>>& rows)
{
    std::vector<std::size_t> widths;
    for (const auto& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], row[i].size());
        }
    }
    for (const auto& row : rows) {
        std::string line = " ";
        for (std::size_t i = 0; i < row.size(); ++i) {
            line += " " + row[i] + (i + 1 < row.size() ? std::string(widths[i] - row[i].size() + 1, ' ') : "");
        }
        std::cout << line << '\n';
    }
}

void PrintDescription(const SettingsCatalogEntry& entry, const OptionDescription& description)
{
    const Json json = SettingsDescriptions::ToJson(entry, description);
    std::cout << entry.className << " (" << entry.classId << ")\n";
    if (description.kind == Zorvan::OptionStringKind::BaseFails) {
        std::cout << "  No option string: Deserialize throws " << json["failure"]["exception"].get<std::string>()
                  << ": " << json["failure"]["text"].get<std::string>() << '\n';
        return;
    }
    if (description.kind == Zorvan::OptionStringKind::Ignored) {
        std::cout << "  Reads nothing from its option string.\n";
        return;
    }
    std::cout << (description.reader == Zorvan::OptionReader::Map
                      ? "  Map form: numbers unquoted, text in double quotes.\n"
                      : "  Key by key: a value runs up to the next colon or double quote.\n");
    if (!description.head.empty()) {
        std::cout << "  Begins with the size WxH before the first colon, e.g. " << description.head << ".\n";
    }
    std::cout << "\n  Keys, in the order Deserialize applies them:\n";
    std::vector<std::vector<std::string>> rows{{"KEY", "TYPE", "RANGE", "DEFAULT", "FIELDS", "OUTSIDE THE RANGE"}};
    for (std::size_t i = 0; i < description.keys.size(); ++i) {
        const OptionKey& key = description.keys[i];
        const Json& item = json["keys"][i];
        std::string fields;
        for (const auto& field : key.fields) {
            fields += (fields.empty() ? "" : ", ") + field;
        }
        rows.push_back({key.key.empty() ? "(head)" : key.key, TypeCell(key, item), RangeCell(key),
                        Number(item["default"]), fields, key.minimum || key.maximum ? OutsideCell(key, item) : "-"});
    }
    PrintTable(rows);
    bool notes = false;
    for (const auto& group : json["groups"]) {
        std::string keys;
        for (const auto& key : group["keys"]) {
            keys += (keys.empty() ? "" : ", ") + key.get<std::string>();
        }
        std::cout << (notes ? "" : "\n") << "  " << group["kind"].get<std::string>() << ": " << keys
                  << (group.contains("field")
                          ? " into " + group["field"].get<std::string>() + " with alpha " + group["alpha"].dump()
                          : "")
                  << (group.contains("note") ? "; " + group["note"].get<std::string>() : "") << '\n';
        notes = true;
    }
    for (const auto& key : description.keys) {
        std::vector<std::string> parts;
        if (!key.spellings.empty()) {
            std::string spellings;
            for (const auto& spelling : key.spellings) {
                spellings += (spellings.empty() ? "" : ", ") + spelling.text + " " + std::to_string(spelling.number);
            }
            parts.push_back("spellings in any letter case, or their numbers: " + spellings);
        }
        if (!key.needs.empty()) {
            parts.push_back("read only with " + key.needs);
        }
        if (key.floor) {
            parts.push_back("a smaller accepted value is stored as " +
                            SettingsDescriptions::NumberText(*key.floor, "double"));
        }
        if (!key.note.empty()) {
            parts.push_back(key.note);
        }
        if (!key.with.empty()) {
            parts.push_back("shows with " + key.with);
        }
        for (const auto& part : parts) {
            std::cout << (notes ? "" : "\n") << "  " << (key.key.empty() ? "(head)" : key.key) << ": " << part << '\n';
            notes = true;
        }
    }
    if (!description.note.empty()) {
        std::cout << (notes ? "" : "\n") << "  " << description.note << '\n';
    }
}

int Describe(const std::string& id, bool all, bool asJson, bool schema)
{
    if (all || (schema && id.empty())) {
        Json classes = Json::array();
        Json defs = Json::object();
        for (const auto& entry : SettingsCatalog::Entries()) {
            const OptionDescription* description = SettingsDescriptions::Find(entry.className);
            if (schema) {
                if (description != nullptr) {
                    defs[entry.className] = SettingsDescriptions::Schema(entry, *description);
                }
            } else if (description == nullptr) {
                classes.push_back({{"id", entry.classId}, {"class", entry.className}, {"kind", "not described yet"}});
            } else if (asJson) {
                classes.push_back(SettingsDescriptions::ToJson(entry, *description));
            } else {
                PrintDescription(entry, *description);
                std::cout << '\n';
            }
        }
        if (schema) {
            std::cout << Json{{"$schema", schemaDialect},
                              {"title", "Option strings of the zorvan-settings classes"},
                              {"$defs", defs}}
                             .dump(2)
                      << '\n';
        } else if (asJson) {
            std::cout << classes.dump(2) << '\n';
        }
        return 0;
    }
    if (id.empty()) {
        std::cerr << "error: describe needs a class, --all or --schema\n";
        return exitUsage;
    }
    const SettingsCatalogEntry* entry = nullptr;
    const OptionDescription* description = Lookup(id, entry);
    if (description == nullptr) {
        return exitUsage;
    }
    if (schema) {
        Json document{{"$schema", schemaDialect}};
        document.update(SettingsDescriptions::Schema(*entry, *description));
        std::cout << document.dump(2) << '\n';
    } else if (asJson) {
        std::cout << SettingsDescriptions::ToJson(*entry, *description).dump(2) << '\n';
    } else {
        PrintDescription(*entry, *description);
    }
    return 0;
}

int Validate(const std::string& id, const std::string& options, bool asJson)
{
    const SettingsCatalogEntry* entry = nullptr;
    const OptionDescription* description = Lookup(id, entry);
    if (description == nullptr) {
        return exitUsage;
    }
    const auto outcomes = SettingsDescriptions::Validate(*entry, *description, options);
    bool valid = true;
    Json list = Json::array();
    std::vector<std::vector<std::string>> rows;
    for (const auto& outcome : outcomes) {
        valid = valid && outcome.status == "applied";
        Json item{{"key", outcome.key}, {"value", outcome.value}, {"status", outcome.status}};
        std::string detail;
        if (!outcome.result.is_null()) {
            item["result"] = outcome.result;
            for (const auto& [field, value] : outcome.result.items()) {
                detail += (detail.empty() ? "" : ", ") + field + " = " + value.dump();
            }
        }
        if (!outcome.failure.exception.empty()) {
            item["exception"] = outcome.failure.exception;
            item["description"] = outcome.failure.text;
            detail = outcome.failure.exception + ": " + outcome.failure.text;
        }
        if (outcome.status == "unknown") {
            item["suggestion"] = outcome.detail.empty() ? Json(nullptr) : Json(outcome.detail);
            detail = outcome.detail.empty() ? "no known key is close" : "did you mean '" + outcome.detail + "'?";
        } else if (!outcome.detail.empty()) {
            item["detail"] = outcome.detail;
            if (outcome.failure.exception.empty()) {
                detail += (detail.empty() ? "" : "; ") + outcome.detail;
            }
        }
        list.push_back(item);
        rows.push_back(
            {outcome.key.empty() ? outcome.value : outcome.key + "=" + outcome.value, outcome.status, detail});
    }
    if (asJson) {
        std::cout << Json{{"id", entry->classId},
                          {"class", entry->className},
                          {"options", options},
                          {"outcomes", list},
                          {"valid", valid}}
                         .dump(2)
                  << '\n';
    } else {
        std::cout << entry->className << ": " << (valid ? "every key applies" : "not every key applies") << '\n';
        PrintTable(rows);
    }
    return valid ? 0 : exitFailure;
}

} // namespace

Subcommand AddDescribeCommand(CLI::App& app)
{
    struct State {
        std::string id;
        bool all = false;
        bool json = false;
        bool schema = false;
    };
    auto state = std::make_shared<State>();
    CLI::App* command = app.add_subcommand(
        "describe", "Print what a class reads from its option string: each key in the order Deserialize applies "
                    "it, its type, range, default, the fields it feeds and what a value outside the range does. "
                    "An unknown class, or one not described yet, exits 2.");
    command->add_option("CLASS", state->id, "Class identifier or class name");
    command->add_flag("--all", state->all, "Every class of the catalogue");
    command->add_flag("--json", state->json, "JSON for programs");
    command->add_flag("--schema", state->schema,
                      "A JSON Schema (draft 2020-12) of the option keys: of CLASS, or of every class under $defs");
    return {command, [state] { return Describe(state->id, state->all, state->json, state->schema); }};
}

Subcommand AddValidateCommand(CLI::App& app)
{
    struct State {
        std::string id;
        std::string options;
        bool json = false;
    };
    auto state = std::make_shared<State>();
    CLI::App* command = app.add_subcommand(
        "validate",
        "Read an option string the way the class does and judge every key: applied, clamped, ignored, "
        "out of range, refused, unreadable, unknown (with the nearest known key), repeated (only the "
        "first counts), excluded, incomplete, not read. Exit 0 when every key applies, 1 otherwise, 2 for an "
        "unknown class or one not described yet.");
    command->add_option("CLASS", state->id, "Class identifier or class name")->required();
    command->add_option("OPTIONS", state->options, "The option string, e.g. 'scale=2.5'")->required();
    command->add_flag("--json", state->json, "JSON for programs");
    return {command, [state] { return Validate(state->id, state->options, state->json); }};
}

} // namespace ZorvanTool
