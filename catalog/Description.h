#pragma once
// What each class reads from its option string, as data: the keys in the order Deserialize
// applies them, the catalogue fields they feed, their value types, ranges, failures and
// defaults. An editor builds its parameter panels from it, `zorvan-settings describe` prints it,
// `validate` checks a preset against it, and a test holds every description to its class.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "catalog/SettingsCatalog.h"

namespace Zorvan {

// How a class's Deserialize treats its string as a whole.
enum class OptionStringKind {
    Keys,      // reads the keys below
    BaseFails, // the base's Deserialize: every call throws, even with an empty string
    Ignored,   // has its own Deserialize, which reads nothing
};

// Which reader finds the keys. The two accept different text: the map form takes unquoted
// numbers only (digits, points, commas, hyphens) and needs quotes around text; the key-by-key
// form takes everything up to the next colon or double quote.
enum class OptionReader {
    Map,
    KeyByKey,
};

enum class OptionValueType {
    Integer,      // signed, read with std::stoi or GetOption<int>
    Unsigned,     // read with std::stoul or GetOption<unsigned ...>
    Float,        // std::stof, or GetOption<float>
    Double,       // std::stod, or GetOption<double>
    Boolean,      // a number: see OptionBoolean
    Text,         // quotes removed
    Enumeration,  // a spelling out of `spellings`, case-insensitive, or its number where there are none
    ColorChannel, // one byte of a packed colour: see the class's all-or-nothing group
    Nested,       // another record's own option string
    SizeHead,     // the resizer's keyless head "WxH" before the first colon
};

enum class OptionBoolean {
    NonZero,    // any non-zero number is true
    ExactlyOne, // only 1 is true; 2 is false
    Word,       // "1" or "true" true, "0" or "false" false, anything else refused
};

// What a value outside [minimum, maximum] does.
enum class OptionOutside {
    Unbounded, // no range: every value the conversion reads is stored
    Throws,    // the record raises `failure`
    Clamps,    // stored as the nearer bound
    Ignored,   // the field keeps its value
    Unchecked, // the range is the stage's, the string stores the value anyway
};

// An exception class as the tool names it ("SettingsException", "std::invalid_argument") and
// its exact text; "{value}" stands for the value text as given, "{key}" for the key.
struct OptionFailure {
    std::string exception;
    std::string text;
};

struct OptionSpelling {
    std::string text;
    std::int64_t number = 0;
};

struct OptionKey {
    std::string key;
    std::vector<std::string> fields; // catalogue field names; the first is the one checked
    OptionValueType type = OptionValueType::Double;
    std::string cType; // the C++ type the text is converted to: "double", "unsigned char", ...
    OptionBoolean boolean = OptionBoolean::NonZero;
    std::optional<double> minimum;
    std::optional<double> maximum;
    bool exclusiveMinimum = false;
    bool exclusiveMaximum = false;
    bool alwaysRefused = false; // every value the reader finds raises `failure`
    OptionOutside outside = OptionOutside::Unbounded;
    std::optional<double> floor;           // an accepted value below it is stored as it
    OptionFailure failure;                 // when outside is Throws
    std::vector<OptionSpelling> spellings; // of an enumeration, in number order
    OptionFailure unknownSpelling;         // a spelling not in the table
    int channel = -1;                      // ColorChannel: byte of the packed colour, 0 red .. 3 alpha
    std::string nestedClass;               // Nested: the class whose option string the value is
    nlohmann::json defaultValue;           // of the first field, in the catalogue's JSON
    std::string needs;                     // keys without which the key is not read, e.g. "size_mode=Custom"
    std::string with;                      // keys a value needs beside it to show, e.g. "intensity=1"
    std::string example;                   // a value inside the range, where the plain choice will not do
    nlohmann::json exampleResult;          // the first field after `example`, where not the converted value
    std::string note;
};

enum class OptionGroupKind {
    AllOrNothing, // e.g. a colour: read only when every key is present
    FirstWins,    // the first key present in this order is read, the others are not
};

struct OptionGroup {
    OptionGroupKind kind = OptionGroupKind::AllOrNothing;
    std::vector<std::string> keys;
    std::string field;       // AllOrNothing colours: the packed field
    std::uint32_t alpha = 0; // AllOrNothing colours: the alpha byte packed with them
    std::string note;
};

struct OptionDescription {
    std::string className;
    OptionStringKind kind = OptionStringKind::Keys;
    OptionReader reader = OptionReader::Map;
    std::vector<OptionKey> keys;
    std::vector<OptionGroup> groups;
    std::string head; // a keyless head's example ("1920x1080"); keys follow it after a colon
    std::string note;
};

// One key occurrence of an option string, as `validate` judges it.
struct OptionOutcome {
    std::string key;   // as written
    std::string value; // as written
    // applied, clamped, ignored, unchecked, out of range, refused, unreadable, unknown, repeated,
    // excluded, incomplete, not read
    std::string status;
    nlohmann::ordered_json result; // applied, clamped, ignored: the fields it feeds afterwards
    OptionFailure failure;         // out of range, refused: what the record raises
    std::string detail;            // unknown: the nearest known key; others: why
};

class SettingsDescriptions {
public:
    // The description of a class by class name or identifier; classes without their own
    // Deserialize are described by kind. nullptr for an unknown class or one not yet described.
    static const OptionDescription* Find(std::string_view idOrClassName);
    // The classes whose own Deserialize has no description yet, in catalogue order.
    static std::vector<std::string> Undescribed();

    static nlohmann::ordered_json ToJson(const SettingsCatalogEntry& entry, const OptionDescription& description);
    // A JSON Schema (draft 2020-12) of the option keys, to be embedded (no "$schema").
    static nlohmann::ordered_json Schema(const SettingsCatalogEntry& entry, const OptionDescription& description);

    // Reads `options` key by key the way the class does and judges every occurrence; does not stop
    // at the first problem.
    static std::vector<OptionOutcome> Validate(const SettingsCatalogEntry& entry, const OptionDescription& description,
                                               std::string_view options);

    // The exception in flight (call inside a catch block), named as the tool and the
    // descriptions name it: most derived class first, text without the call stack.
    static OptionFailure CurrentFailure();
    // `failure` with {value} and {key} filled in.
    static OptionFailure Expand(const OptionFailure& failure, std::string_view key, std::string_view value);
    // A number as the option string should spell it so that `cType` reads it back exactly, without
    // an exponent (the map form reads none).
    static std::string NumberText(double value, std::string_view cType);
};

} // namespace Zorvan
