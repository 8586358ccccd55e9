#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <optional>
#include <regex>
#include <stdexcept>
#include <typeinfo>
#include <unordered_map>

#include <boost/exception/get_error_info.hpp>
#include <boost/rational.hpp>

#include "Proc/Settings/ProcException.h"
#include "catalog/DescribeKeys.h"

namespace Zorvan {

namespace {

using Json = nlohmann::ordered_json;

struct Registry {
    std::unordered_map<std::string, OptionDescription> byClass;
    std::vector<std::string> undescribed;
};

Registry BuildRegistry()
{
    DescribeDetail::DescriptionMap described;
    DescribeDetail::DescribeStylising(described);
    DescribeDetail::DescribeResizer(described);
    DescribeDetail::DescribeAudioDynamics(described);
    DescribeDetail::DescribeVignette(described);
    DescribeDetail::DescribeHalfTonePopArt(described);
    DescribeDetail::DescribeTimeFilters(described);
    DescribeDetail::DescribeCameraShakeGlitchTiltShift(described);
    DescribeDetail::DescribeChannelMixing(described);
    DescribeDetail::DescribeDenoise(described);
    DescribeDetail::DescribeTransitions(described);
    DescribeDetail::DescribeColorBlending(described);

    Registry registry;
    for (const auto& entry : SettingsCatalog::Entries()) {
        const auto found = described.find(entry.className);
        if (!entry.ownDeserialize) {
            if (found != described.end()) {
                throw std::logic_error("a description for a class that keeps the base's Deserialize: " +
                                       entry.className);
            }
            OptionDescription base;
            base.className = entry.className;
            base.kind = OptionStringKind::BaseFails;
            registry.byClass.emplace(entry.className, std::move(base));
        } else if (found != described.end()) {
            registry.byClass.emplace(entry.className, std::move(found->second));
            described.erase(found);
        } else {
            registry.undescribed.push_back(entry.className);
        }
    }
    if (!described.empty()) {
        throw std::logic_error("a description for an unknown class: " + described.begin()->first);
    }
    return registry;
}

const Registry& TheRegistry()
{
    static const Registry registry = BuildRegistry();
    return registry;
}

std::string Description(const Zorvan::Exception& e)
{
    const std::string* text = boost::get_error_info<Zorvan::ErrorInfoDescription>(e);
    return text != nullptr ? *text : std::string();
}

std::string FirstLine(const char* text)
{
    const std::string all(text);
    return all.substr(0, all.find('\n'));
}

const char* KindName(OptionStringKind kind)
{
    switch (kind) {
    case OptionStringKind::Keys:
        return "keys";
    case OptionStringKind::BaseFails:
        return "base fails";
    case OptionStringKind::Ignored:
        return "ignored";
    }
    return "";
}

const char* TypeName(OptionValueType type)
{
    switch (type) {
    case OptionValueType::Integer:
        return "integer";
    case OptionValueType::Unsigned:
        return "unsigned";
    case OptionValueType::Float:
        return "float";
    case OptionValueType::Double:
        return "double";
    case OptionValueType::Boolean:
        return "boolean";
    case OptionValueType::Text:
        return "text";
    case OptionValueType::Enumeration:
        return "enumeration";
    case OptionValueType::ColorChannel:
        return "colour channel";
    case OptionValueType::Nested:
        return "nested record";
    case OptionValueType::SizeHead:
        return "size head";
    }
    return "";
}

const char* BooleanName(OptionBoolean rule)
{
    switch (rule) {
    case OptionBoolean::NonZero:
        return "non-zero is true";
    case OptionBoolean::ExactlyOne:
        return "only 1 is true";
    case OptionBoolean::Word:
        return "1 or true, 0 or false";
    }
    return "";
}

const char* OutsideName(OptionOutside outside)
{
    switch (outside) {
    case OptionOutside::Unbounded:
        return "unbounded";
    case OptionOutside::Throws:
        return "throws";
    case OptionOutside::Clamps:
        return "clamps";
    case OptionOutside::Ignored:
        return "ignored";
    case OptionOutside::Unchecked:
        return "unchecked";
    }
    return "";
}

Json FailureJson(const OptionFailure& failure)
{
    return Json{{"exception", failure.exception}, {"text", failure.text}};
}

// The default as the option string spells it.
Json OptionDefault(const OptionKey& key)
{
    switch (key.type) {
    case OptionValueType::Boolean:
        if (key.boolean == OptionBoolean::Word) {
            return key.defaultValue == true ? "true" : "false";
        }
        return key.defaultValue == true ? 1 : 0;
    case OptionValueType::ColorChannel:
        return (key.defaultValue.get<std::uint32_t>() >> (8 * key.channel)) & 0xFFU;
    case OptionValueType::Enumeration:
        for (const auto& spelling : key.spellings) {
            if (key.defaultValue == spelling.number) {
                return spelling.text;
            }
        }
        return key.defaultValue;
    default:
        return key.defaultValue;
    }
}

Json KeySchema(const OptionKey& key)
{
    Json schema = Json::object();
    std::string about = "feeds " + key.fields.front();
    for (std::size_t i = 1; i < key.fields.size(); ++i) {
        about += ", " + key.fields[i];
    }
    switch (key.type) {
    case OptionValueType::Integer:
    case OptionValueType::Unsigned:
    case OptionValueType::ColorChannel:
        schema["type"] = "integer";
        break;
    case OptionValueType::Float:
    case OptionValueType::Double:
        schema["type"] = "number";
        break;
    case OptionValueType::Boolean:
        if (key.boolean == OptionBoolean::Word) {
            schema["enum"] = Json::array({"0", "1", "true", "false"});
        } else {
            schema["type"] = "integer";
        }
        about += std::string("; ") + BooleanName(key.boolean);
        break;
    case OptionValueType::Enumeration:
        if (key.spellings.empty()) {
            schema["type"] = "integer";
        } else {
            schema["type"] = "string";
            Json spellings = Json::array();
            for (const auto& spelling : key.spellings) {
                spellings.push_back(spelling.text);
            }
            schema["enum"] = spellings;
            about += "; spellings in any letter case";
        }
        break;
    case OptionValueType::Text:
    case OptionValueType::SizeHead:
        schema["type"] = "string";
        break;
    case OptionValueType::Nested:
        schema["type"] = "string";
        about += "; the option string of " + key.nestedClass;
        break;
    }
    if (key.minimum) {
        schema[key.exclusiveMinimum ? "exclusiveMinimum" : "minimum"] = *key.minimum;
    }
    if (key.maximum) {
        schema[key.exclusiveMaximum ? "exclusiveMaximum" : "maximum"] = *key.maximum;
    }
    if (key.outside != OptionOutside::Unbounded) {
        about += std::string("; outside the range: ") + OutsideName(key.outside);
    }
    if (!key.needs.empty()) {
        about += "; read only with " + key.needs;
    }
    if (key.alwaysRefused) {
        about += "; every value is refused";
        schema["not"] = Json::object();
    }
    if (key.floor) {
        about += "; a smaller accepted value is stored as " + SettingsDescriptions::NumberText(*key.floor, "double");
    }
    if (!key.note.empty()) {
        about += "; " + key.note;
    }
    schema["default"] = OptionDefault(key);
    schema["description"] = about;
    return schema;
}

// Optimal string alignment distance, letters compared without case.
std::size_t Distance(std::string_view a, std::string_view b)
{
    const auto lower = [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); };
    std::vector<std::vector<std::size_t>> d(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i) {
        d[i][0] = i;
    }
    for (std::size_t j = 0; j <= b.size(); ++j) {
        d[0][j] = j;
    }
    for (std::size_t i = 1; i <= a.size(); ++i) {
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t cost = lower(a[i - 1]) == lower(b[j - 1]) ? 0 : 1;
            d[i][j] = std::min({d[i - 1][j] + 1, d[i][j - 1] + 1, d[i - 1][j - 1] + cost});
            if (i > 1 && j > 1 && lower(a[i - 1]) == lower(b[j - 2]) && lower(a[i - 2]) == lower(b[j - 1])) {
                d[i][j] = std::min(d[i][j], d[i - 2][j - 2] + 1);
            }
        }
    }
    return d[a.size()][b.size()];
}

std::string Unquoted(const std::string& text)
{
    return text.size() >= 2 && text.front() == '"' && text.back() == '"' ? text.substr(1, text.size() - 2) : text;
}

bool SameKey(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && Distance(a, b) == 0;
}

} // namespace

const OptionDescription* SettingsDescriptions::Find(std::string_view idOrClassName)
{
    const SettingsCatalogEntry* entry = SettingsCatalog::Find(idOrClassName);
    if (entry == nullptr) {
        return nullptr;
    }
    const auto& byClass = TheRegistry().byClass;
    const auto found = byClass.find(entry->className);
    return found != byClass.end() ? &found->second : nullptr;
}

std::vector<std::string> SettingsDescriptions::Undescribed()
{
    return TheRegistry().undescribed;
}

Json SettingsDescriptions::ToJson(const SettingsCatalogEntry& entry, const OptionDescription& description)
{
    Json out{{"id", entry.classId}, {"class", entry.className}, {"kind", KindName(description.kind)}};
    if (description.kind == OptionStringKind::BaseFails) {
        out["failure"] = FailureJson(
            {"SettingsException", "Not implemented fill from string for settings CLASS_ID = " + entry.classId});
    }
    if (description.kind != OptionStringKind::Keys) {
        if (!description.note.empty()) {
            out["note"] = description.note;
        }
        return out;
    }
    out["reader"] = description.reader == OptionReader::Map ? "map" : "key by key";
    if (!description.head.empty()) {
        out["head"] = description.head;
    }
    Json keys = Json::array();
    for (const auto& key : description.keys) {
        Json item{{"key", key.key}, {"fields", key.fields}, {"type", TypeName(key.type)}, {"cType", key.cType}};
        if (key.type == OptionValueType::Boolean) {
            item["boolean"] = BooleanName(key.boolean);
        }
        if (key.minimum) {
            item[key.exclusiveMinimum ? "exclusiveMinimum" : "minimum"] = *key.minimum;
        }
        if (key.maximum) {
            item[key.exclusiveMaximum ? "exclusiveMaximum" : "maximum"] = *key.maximum;
        }
        item["outside"] = OutsideName(key.outside);
        if (key.alwaysRefused) {
            item["alwaysRefused"] = FailureJson(key.failure);
        }
        if (key.floor) {
            item["floor"] = *key.floor;
        }
        if (key.outside == OptionOutside::Throws) {
            item["failure"] = FailureJson(key.failure);
        }
        if (!key.spellings.empty()) {
            Json spellings = Json::array();
            for (const auto& spelling : key.spellings) {
                spellings.push_back({{"text", spelling.text}, {"number", spelling.number}});
            }
            item["spellings"] = spellings;
        }
        if (key.type == OptionValueType::Enumeration) {
            item["unknownSpelling"] = FailureJson(key.unknownSpelling);
        }
        if (key.channel >= 0) {
            item["channel"] = key.channel;
        }
        if (!key.nestedClass.empty()) {
            item["nested"] = key.nestedClass;
        }
        item["default"] = key.defaultValue;
        if (!key.needs.empty()) {
            item["needs"] = key.needs;
        }
        if (!key.with.empty()) {
            item["with"] = key.with;
        }
        if (!key.note.empty()) {
            item["note"] = key.note;
        }
        keys.push_back(item);
    }
    out["keys"] = keys;
    Json groups = Json::array();
    for (const auto& group : description.groups) {
        Json item{{"kind", group.kind == OptionGroupKind::AllOrNothing ? "all or nothing" : "first wins"},
                  {"keys", group.keys}};
        if (!group.field.empty()) {
            item["field"] = group.field;
            item["alpha"] = group.alpha;
        }
        if (!group.note.empty()) {
            item["note"] = group.note;
        }
        groups.push_back(item);
    }
    out["groups"] = groups;
    if (!description.note.empty()) {
        out["note"] = description.note;
    }
    return out;
}

Json SettingsDescriptions::Schema(const SettingsCatalogEntry& entry, const OptionDescription& description)
{
    Json schema{{"title", entry.className}};
    if (description.kind == OptionStringKind::BaseFails) {
        schema["description"] = "Cannot be filled from an option string: Deserialize throws SettingsException.";
        schema["not"] = Json::object();
        return schema;
    }
    schema["type"] = "object";
    if (description.kind == OptionStringKind::Ignored) {
        schema["description"] = "Reads nothing from its option string.";
        return schema;
    }
    schema["description"] =
        std::string("Option keys of ") + entry.classId +
        (description.reader == OptionReader::Map ? "; numbers unquoted, text in double quotes"
                                                 : "; each value runs up to the next colon or double quote") +
        (description.head.empty() ? "" : "; the string begins with the size WxH");
    Json properties = Json::object();
    for (const auto& key : description.keys) {
        properties[key.key] = KeySchema(key);
    }
    schema["properties"] = properties;
    Json dependent = Json::object();
    for (const auto& group : description.groups) {
        if (group.kind != OptionGroupKind::AllOrNothing) {
            continue;
        }
        for (const auto& key : group.keys) {
            Json others = Json::array();
            for (const auto& other : group.keys) {
                if (other != key) {
                    others.push_back(other);
                }
            }
            dependent[key] = others;
        }
    }
    if (!dependent.empty()) {
        schema["dependentRequired"] = dependent;
    }
    // Unknown keys are ignored, so that presets written by newer versions still load.
    schema["additionalProperties"] = true;
    return schema;
}

OptionFailure SettingsDescriptions::CurrentFailure()
{
    using namespace Zorvan::Proc;
    try {
        throw;
    } catch (const SettingsException& e) {
        return {"SettingsException", Description(e)};
    } catch (const EffectException& e) {
        return {"EffectException", Description(e)};
    } catch (const AnalyzerException& e) {
        return {"AnalyzerException", Description(e)};
    } catch (const ProcException& e) {
        return {"ProcException", Description(e)};
    } catch (const std::invalid_argument& e) {
        return {"std::invalid_argument", FirstLine(e.what())};
    } catch (const std::out_of_range& e) {
        return {"std::out_of_range", FirstLine(e.what())};
    } catch (const boost::bad_rational& e) { // a std::domain_error, hence before std::logic_error
        return {"boost::bad_rational", FirstLine(e.what())};
    } catch (const std::logic_error& e) {
        return {"std::logic_error", FirstLine(e.what())};
    } catch (const std::bad_optional_access& e) {
        return {"std::bad_optional_access", FirstLine(e.what())};
    } catch (const std::bad_cast& e) {
        return {"std::bad_cast", FirstLine(e.what())};
    } catch (const std::regex_error& e) {
        return {"std::regex_error", FirstLine(e.what())};
    } catch (const std::exception& e) {
        return {"std::exception", FirstLine(e.what())};
    } catch (...) {
        return {"unknown", ""};
    }
}

OptionFailure SettingsDescriptions::Expand(const OptionFailure& failure, std::string_view key, std::string_view value)
{
    OptionFailure expanded{failure.exception, ""};
    const std::string& text = failure.text;
    for (std::size_t i = 0; i < text.size();) {
        if (text.compare(i, 7, "{value}") == 0) {
            expanded.text += value;
            i += 7;
        } else if (text.compare(i, 5, "{key}") == 0) {
            expanded.text += key;
            i += 5;
        } else {
            expanded.text += text[i++];
        }
    }
    return expanded;
}

std::string SettingsDescriptions::NumberText(double value, std::string_view cType)
{
    char buffer[512];
    std::to_chars_result written{};
    if (cType == "float") {
        written = std::to_chars(buffer, buffer + sizeof buffer, static_cast<float>(value), std::chars_format::fixed);
    } else if (cType == "double") {
        written = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed);
    } else if (value < 0) {
        written = std::to_chars(buffer, buffer + sizeof buffer, static_cast<long long>(value));
    } else {
        written = std::to_chars(buffer, buffer + sizeof buffer, static_cast<unsigned long long>(value));
    }
    return std::string(buffer, written.ptr);
}

std::vector<OptionOutcome> SettingsDescriptions::Validate(const SettingsCatalogEntry& entry,
                                                          const OptionDescription& description,
                                                          std::string_view options)
{
    std::vector<OptionOutcome> outcomes;
    const auto apply = [&entry](const std::string& text, OptionOutcome& outcome,
                                const std::vector<std::string>& fields) {
        const auto record = entry.create();
        try {
            record->Deserialize(text);
        } catch (...) {
            outcome.failure = CurrentFailure();
            return false;
        }
        const Json all = entry.FieldsToJson(*record);
        outcome.result = Json::object();
        for (const auto& field : fields) {
            if (all.contains(field)) {
                outcome.result[field] = all[field];
            }
        }
        return true;
    };
    if (description.kind == OptionStringKind::BaseFails) {
        OptionOutcome outcome{"", std::string(options), "refused", nullptr, {}, "the class has no option string"};
        apply(std::string(options), outcome, {});
        outcomes.push_back(outcome);
        return outcomes;
    }

    std::string_view rest = options;
    std::string prefix;
    if (!description.head.empty()) {
        const std::string_view head = options.substr(0, options.find(':'));
        rest = head.size() < options.size() ? options.substr(head.size() + 1) : std::string_view{};
        OptionOutcome outcome{"", std::string(head), "applied", nullptr, {}, "the size head"};
        std::vector<std::string> headFields;
        for (const auto& key : description.keys) {
            if (key.type == OptionValueType::SizeHead) {
                headFields = key.fields;
            }
        }
        if (apply(std::string(head), outcome, headFields)) {
            prefix = std::string(head) + ":";
        } else {
            outcome.status = "refused";
            prefix = description.head + ":";
        }
        outcomes.push_back(outcome);
    }

    struct Occurrence {
        std::string key;
        std::string value;
        const OptionKey* described = nullptr;
    };
    std::vector<Occurrence> occurrences;
    static const std::regex pattern(R"(([A-Za-z_][A-Za-z0-9_\-]*)=("[^"]*"|[^":]*))");
    const std::string text(rest);
    for (auto it = std::sregex_iterator(text.begin(), text.end(), pattern); it != std::sregex_iterator(); ++it) {
        Occurrence occurrence{(*it)[1].str(), (*it)[2].str(), nullptr};
        for (const auto& key : description.keys) {
            if (key.type != OptionValueType::SizeHead && SameKey(key.key, occurrence.key)) {
                occurrence.described = &key;
            }
        }
        occurrences.push_back(occurrence);
    }
    // The first occurrence of each described key, as the record reads it.
    const auto firstOf = [&occurrences](std::string_view key) -> const Occurrence* {
        for (const auto& occurrence : occurrences) {
            if (occurrence.described != nullptr && SameKey(occurrence.described->key, key)) {
                return &occurrence;
            }
        }
        return nullptr;
    };

    for (const auto& occurrence : occurrences) {
        OptionOutcome outcome{occurrence.key, occurrence.value, "applied", nullptr, {}, ""};
        const OptionKey* key = occurrence.described;
        if (description.kind == OptionStringKind::Ignored) {
            outcome.status = "ignored";
            outcome.detail = "the class reads nothing from its option string";
        } else if (key == nullptr) {
            outcome.status = "unknown";
            std::size_t best = 3;
            for (const auto& candidate : description.keys) {
                const std::size_t distance = Distance(candidate.key, occurrence.key);
                if (candidate.type != OptionValueType::SizeHead && distance < best &&
                    distance * 2 <= candidate.key.size()) {
                    best = distance;
                    outcome.detail = candidate.key;
                }
            }
        } else if (firstOf(key->key) != &occurrence) {
            outcome.status = "repeated";
            outcome.detail = "only the first occurrence counts";
        }
        if (outcome.status != "applied") {
            outcomes.push_back(outcome);
            continue;
        }
        std::string toApply = occurrence.key + "=" + occurrence.value;
        std::vector<std::string> fields = key->fields;
        for (const auto& group : description.groups) {
            const bool member = std::find(group.keys.begin(), group.keys.end(), key->key) != group.keys.end();
            if (!member) {
                continue;
            }
            if (group.kind == OptionGroupKind::FirstWins) {
                for (const auto& other : group.keys) {
                    if (other == key->key) {
                        break;
                    }
                    if (firstOf(other) != nullptr) {
                        outcome.status = "excluded";
                        outcome.detail = "not read when '" + other + "' is given";
                    }
                }
            } else {
                std::string missing;
                toApply.clear();
                for (const auto& other : group.keys) {
                    if (const Occurrence* found = firstOf(other)) {
                        toApply += (toApply.empty() ? "" : ":") + found->key + "=" + found->value;
                    } else {
                        missing += (missing.empty() ? "" : ", ") + other;
                    }
                }
                if (!missing.empty()) {
                    outcome.status = "incomplete";
                    outcome.detail = "read only together with " + missing;
                }
                if (!group.field.empty()) {
                    fields = {group.field};
                }
            }
        }
        if (outcome.status == "applied" && !key->needs.empty()) {
            static const std::regex pair(R"(([^=:]+)=([^:]*))");
            for (auto it = std::sregex_iterator(key->needs.begin(), key->needs.end(), pair);
                 it != std::sregex_iterator(); ++it) {
                const Occurrence* found = firstOf((*it)[1].str());
                if (found == nullptr || !SameKey(Unquoted(found->value), (*it)[2].str())) {
                    outcome.status = "not read";
                    outcome.detail = "read only with " + key->needs;
                }
            }
            toApply = key->needs + ":" + toApply;
        }
        if (outcome.status != "applied") {
            outcomes.push_back(outcome);
            continue;
        }
        if (description.reader == OptionReader::Map && key->type != OptionValueType::Text &&
            !std::regex_search(occurrence.value, std::regex(R"(^([0-9.,\-]|"))"))) {
            outcome.status = "unreadable";
            outcome.detail = "unquoted values hold only digits, points, commas and hyphens here";
            outcomes.push_back(outcome);
            continue;
        }
        const bool applied = apply(prefix + toApply, outcome, fields);
        char* end = nullptr;
        const double number = std::strtod(occurrence.value.c_str(), &end);
        const bool numeric = end != occurrence.value.c_str();
        const bool below =
            numeric && key->minimum && (key->exclusiveMinimum ? number <= *key->minimum : number < *key->minimum);
        const bool above =
            numeric && key->maximum && (key->exclusiveMaximum ? number >= *key->maximum : number > *key->maximum);
        if (!applied) {
            outcome.status = below || above ? "out of range" : "refused";
        } else if (below || above) {
            switch (key->outside) {
            case OptionOutside::Clamps:
                outcome.status = "clamped";
                break;
            case OptionOutside::Ignored:
                outcome.status = "ignored";
                outcome.detail = "outside the range, the field keeps its value";
                break;
            case OptionOutside::Unchecked:
                outcome.status = "unchecked";
                outcome.detail = "outside the stage's range, stored as given";
                break;
            default:
                break;
            }
        }
        outcomes.push_back(outcome);
    }
    return outcomes;
}

} // namespace Zorvan
