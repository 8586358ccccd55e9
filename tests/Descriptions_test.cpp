// Every description held to its class: driven by the descriptions alone, each key read by
// Deserialize into a default record must feed the described field with the described value, each
// bound must hold as described (refused with the exact text, clamped, ignored or stored as given),
// each spelling must give its number in any letter case, the keys must be read in the described
// order, and a default record must show the described defaults.
#include <gtest/gtest.h>

#include <cctype>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "catalog/Description.h"

using namespace Zorvan;
using Json = nlohmann::json;

namespace {

// Classes whose own Deserialize has no description yet, separated by spaces; a class leaves the
// list when its family's descriptions land.
const char* const kNotDescribedYet =
    "SettingsAnalyzerAudioDetectShift SettingsAnalyzerSilenceDetector SettingsAnalyzerSpeechToText "
    "SettingsAnalyzerVideoTrackObjectBase SettingsAnalyzerVideoTrackObjectOnnxRT "
    "SettingsAnalyzerVideoTrackObjectOpenCV SettingsAudioChorus SettingsAudioDistortion SettingsAudioEcho "
    "SettingsAudioEqualizer SettingsAudioFlanger SettingsAudioNoiseSuppress SettingsAudioPitch "
    "SettingsAudioRadio SettingsAudioReverb SettingsAudioReverberationImpulseResponse SettingsAudioRobot "
    "SettingsAudioSpeechDenoiser SettingsAudioVibrato SettingsEffectAim SettingsEffectAlphaChannelModifier "
    "SettingsEffectAudioStereo2DualMono SettingsEffectAutoContrast SettingsEffectAutoWhiteBalance "
    "SettingsEffectBalanceChroma SettingsEffectChannelMixer SettingsEffectChromakey "
    "SettingsEffectColorBalance SettingsEffectColorBlender SettingsEffectColorBrush "
    "SettingsEffectColorCurves SettingsEffectColorMixExchange SettingsEffectDisplacementMap "
    "SettingsEffectFillBlurredBackground SettingsEffectFlip SettingsEffectFlyingObjects "
    "SettingsEffectGIMPColorCorrection SettingsEffectGIMPColorTemperature SettingsEffectGIMPColorize "
    "SettingsEffectGIMPHueSaturation SettingsEffectGIMPShadowsHightlights SettingsEffectHumanMatting "
    "SettingsEffectImageBlender SettingsEffectLUT SettingsEffectMagicEnhance2 SettingsEffectMask "
    "SettingsEffectPad SettingsEffectRemoveGrain SettingsEffectTemplateZES SettingsEffectTiltShiftVEZ "
    "SettingsFilterFPSDoubler SettingsFilterSlowMotion SettingsFilterSpeedUpVideo SettingsTransitionCross "
    "SettingsTransitionGlitch SettingsTransitionKenBurns SettingsTransitionMatrix "
    "SettingsTransitionModifiedMotionSpin SettingsTransitionMotionSpin SettingsTransitionParallax "
    "SettingsTransitionRageZoom SettingsTransitionRipple SettingsTransitionSlice SettingsTransitionSmear "
    "SettingsTransitionSnake SettingsTransitionTemplateZES SettingsTransitionThroughColor "
    "SettingsTransitionWhipe SettingsTransitionWhoosh SettingsTransitionWipe SettingsTransitionWithEffects "
    "SettingsTransitionZoomBlur SettingsColorSpaceConverter SettingsDeinterlace SettingsVideoDecoder ";

bool NotDescribedYet(const std::string& className)
{
    return (" " + std::string(kNotDescribedYet)).find(" " + className + " ") != std::string::npos;
}

bool IsNumber(OptionValueType type)
{
    return type == OptionValueType::Integer || type == OptionValueType::Unsigned || type == OptionValueType::Float ||
           type == OptionValueType::Double || type == OptionValueType::ColorChannel;
}

std::string Unquoted(const std::string& text)
{
    return text.size() >= 2 && text.front() == '"' && text.back() == '"' ? text.substr(1, text.size() - 2) : text;
}

Json ConvertedAsRead(const OptionKey& key, const std::string& text);

// The value a key's text gives once the record has converted and stored it.
Json Converted(const OptionKey& key, const std::string& text)
{
    const Json value = ConvertedAsRead(key, text);
    return key.floor && value.get<double>() < *key.floor ? Json(*key.floor) : value;
}

Json ConvertedAsRead(const OptionKey& key, const std::string& text)
{
    switch (key.type) {
    case OptionValueType::Double:
        return std::stod(text);
    case OptionValueType::Float:
        return std::stof(text);
    case OptionValueType::Integer:
        return std::stoll(text);
    case OptionValueType::Unsigned:
    case OptionValueType::ColorChannel:
        return std::stoull(text);
    case OptionValueType::Boolean:
        return key.boolean == OptionBoolean::ExactlyOne ? std::stoi(text) == 1
                                                        : text == "true" || (text != "false" && std::stoi(text) != 0);
    case OptionValueType::Enumeration:
        for (const auto& spelling : key.spellings) {
            if (spelling.text.size() == text.size() &&
                std::equal(text.begin(), text.end(), spelling.text.begin(),
                           [](char a, char b) { return std::tolower(a) == std::tolower(b); })) {
                return spelling.number;
            }
        }
        return std::stoll(text);
    default:
        return Unquoted(text);
    }
}

// A value inside the key's range that differs from the default.
std::string ExampleText(const OptionKey& key)
{
    if (!key.example.empty()) {
        return key.example;
    }
    switch (key.type) {
    case OptionValueType::Boolean:
        return key.defaultValue == true ? "0" : "1";
    case OptionValueType::Text:
        return "\"sample\"";
    case OptionValueType::Enumeration:
        return key.spellings.empty() ? "1" : key.spellings.back().text;
    default:
        break;
    }
    const bool integral = key.cType != "double" && key.cType != "float";
    const double low = key.minimum.value_or(-1e9);
    const double high = key.maximum.value_or(1e9);
    const auto inside = [&](double value) {
        return (key.exclusiveMinimum ? value > low : value >= low) &&
               (key.exclusiveMaximum ? value < high : value <= high);
    };
    for (const double candidate : {integral ? 7.0 : 2.5, low + (high - low) / 2, high, low}) {
        const std::string text =
            SettingsDescriptions::NumberText(integral ? std::floor(candidate) : candidate, key.cType);
        if (inside(std::stod(text)) && Converted(key, text) != key.defaultValue) {
            return text;
        }
    }
    return "1";
}

struct Reader {
    const SettingsCatalogEntry& entry;
    const OptionDescription& description;

    std::string Options(const std::string& keys) const
    {
        return description.head.empty() ? keys : description.head + ":" + keys;
    }
    Json Field(const Proc::Settings& record, const std::string& name) const
    {
        for (const auto& field : entry.fields) {
            if (field.name == name) {
                return field.get(record);
            }
        }
        ADD_FAILURE() << "no catalogue field " << name;
        return nullptr;
    }
    // A field after reading the keys into a default record.
    Json Read(const std::string& keys, const std::string& field) const
    {
        const auto record = entry.create();
        try {
            record->Deserialize(Options(keys));
        } catch (...) {
            const OptionFailure failure = SettingsDescriptions::CurrentFailure();
            ADD_FAILURE() << keys << " refused: " << failure.exception << ": " << failure.text;
            return nullptr;
        }
        return Field(*record, field);
    }
    OptionFailure Failure(const std::string& keys, bool withHead = true) const
    {
        try {
            entry.create()->Deserialize(withHead ? Options(keys) : keys);
        } catch (...) {
            return SettingsDescriptions::CurrentFailure();
        }
        return {"nothing", ""};
    }
};

const OptionGroup* GroupOf(const OptionDescription& description, const std::string& key, OptionGroupKind kind)
{
    for (const auto& group : description.groups) {
        if (group.kind == kind && std::find(group.keys.begin(), group.keys.end(), key) != group.keys.end()) {
            return &group;
        }
    }
    return nullptr;
}

std::string MixedCase(std::string text)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        text[i] = static_cast<char>(i % 2 ? std::toupper(text[i]) : std::tolower(text[i]));
    }
    return text;
}

// Just outside a bound, as the key's type spells it: one step for integers, the next
// representable value for floats and doubles (the smallest normal one beside 0, which the
// conversions read without a range error); the bound itself where it is exclusive.
std::string Outside(const OptionKey& key, double bound, bool exclusive, double direction)
{
    if (exclusive) {
        return SettingsDescriptions::NumberText(bound, key.cType);
    }
    if (key.cType == "float") {
        const float step = bound == 0 ? std::copysign(std::numeric_limits<float>::min(), static_cast<float>(direction))
                                      : std::nextafter(static_cast<float>(bound), static_cast<float>(direction));
        return SettingsDescriptions::NumberText(step, key.cType);
    }
    if (key.cType == "double") {
        const double step = bound == 0 ? std::copysign(std::numeric_limits<double>::min(), direction)
                                       : std::nextafter(bound, direction);
        return SettingsDescriptions::NumberText(step, key.cType);
    }
    return SettingsDescriptions::NumberText(bound + (direction > 0 ? 1 : -1), key.cType);
}

// The keys a key needs beside it to be read and to show.
std::string Context(const OptionKey& key)
{
    std::string context;
    for (const std::string* part : {&key.needs, &key.with}) {
        context += part->empty() ? "" : *part + ":";
    }
    return context;
}

void CheckBound(const Reader& reader, const OptionKey& key, double bound, bool exclusive, double direction)
{
    const std::string prefix = Context(key);
    const std::string bad = Outside(key, bound, exclusive, direction);
    SCOPED_TRACE("value " + bad);
    if (!exclusive && key.exampleResult.is_null()) {
        const std::string edge = SettingsDescriptions::NumberText(bound, key.cType);
        EXPECT_EQ(reader.Read(prefix + key.key + "=" + edge, key.fields.front()), Converted(key, edge));
    }
    switch (key.outside) {
    case OptionOutside::Throws: {
        const OptionFailure expected = SettingsDescriptions::Expand(key.failure, key.key, bad);
        const OptionFailure actual = reader.Failure(prefix + key.key + "=" + bad);
        EXPECT_EQ(actual.exception, expected.exception);
        EXPECT_EQ(actual.text, expected.text);
        break;
    }
    case OptionOutside::Clamps:
        EXPECT_EQ(reader.Read(prefix + key.key + "=" + bad, key.fields.front()),
                  Converted(key, SettingsDescriptions::NumberText(bound, key.cType)));
        break;
    case OptionOutside::Ignored:
        EXPECT_EQ(reader.Read(prefix + key.key + "=" + bad, key.fields.front()), key.defaultValue);
        break;
    case OptionOutside::Unchecked:
        EXPECT_EQ(reader.Read(prefix + key.key + "=" + bad, key.fields.front()), Converted(key, bad));
        break;
    case OptionOutside::Unbounded:
        ADD_FAILURE() << "a range without what happens outside it";
        break;
    }
}

void CheckKey(const Reader& reader, const OptionKey& key)
{
    const auto record = reader.entry.create();
    EXPECT_EQ(reader.Field(*record, key.fields.front()), key.defaultValue) << "default";
    if (key.type == OptionValueType::SizeHead) {
        const OptionFailure expected = SettingsDescriptions::Expand(key.failure, "", "640");
        const OptionFailure actual = reader.Failure("640", false);
        EXPECT_EQ(actual.exception, expected.exception) << "head 640";
        EXPECT_EQ(actual.text, expected.text) << "head 640";
    }
    if (key.type == OptionValueType::ColorChannel || key.type == OptionValueType::SizeHead) {
        return; // read as a group, or before any key
    }
    if (key.alwaysRefused) {
        for (const std::string& value : std::vector<std::string>{"1", "\"sample\"", "\"" + key.key + "\""}) {
            const OptionFailure actual = reader.Failure(Context(key) + key.key + "=" + value);
            EXPECT_EQ(actual.exception, key.failure.exception) << "value " << value;
            EXPECT_EQ(actual.text, SettingsDescriptions::Expand(key.failure, key.key, value).text) << "value " << value;
        }
        return;
    }
    const std::string prefix = Context(key);
    const std::string example = ExampleText(key);
    const Json expected = key.exampleResult.is_null() ? Converted(key, example) : key.exampleResult;
    EXPECT_NE(expected, key.defaultValue) << "the example " << example << " does not change the field";
    EXPECT_EQ(reader.Read(prefix + key.key + "=" + example, key.fields.front()), expected) << "value " << example;
    if (key.type == OptionValueType::Boolean && key.boolean != OptionBoolean::Word) {
        EXPECT_EQ(reader.Read(prefix + key.key + "=2", key.fields.front()), key.boolean == OptionBoolean::NonZero)
            << "value 2";
    }
    for (const auto& spelling : key.spellings) {
        EXPECT_EQ(reader.Read(prefix + key.key + "=" + MixedCase(spelling.text), key.fields.front()), spelling.number)
            << "spelling " << spelling.text;
    }
    if (key.type == OptionValueType::Enumeration && !key.spellings.empty()) {
        const OptionFailure expectedFailure = SettingsDescriptions::Expand(key.unknownSpelling, key.key, "NoSuch");
        const OptionFailure actual = reader.Failure(prefix + key.key + "=NoSuch");
        EXPECT_EQ(actual.exception, expectedFailure.exception);
        EXPECT_EQ(actual.text, expectedFailure.text);
    }
    if (key.minimum) {
        CheckBound(reader, key, *key.minimum, key.exclusiveMinimum, -std::numeric_limits<double>::infinity());
    }
    if (key.maximum) {
        CheckBound(reader, key, *key.maximum, key.exclusiveMaximum, std::numeric_limits<double>::infinity());
    }
}

void CheckGroups(const Reader& reader)
{
    for (const auto& group : reader.description.groups) {
        SCOPED_TRACE("group of " + group.keys.front());
        std::vector<const OptionKey*> keys;
        for (const auto& name : group.keys) {
            for (const auto& key : reader.description.keys) {
                if (key.key == name) {
                    keys.push_back(&key);
                }
            }
        }
        ASSERT_EQ(keys.size(), group.keys.size()) << "a group names a key the class does not have";
        if (group.kind == OptionGroupKind::FirstWins) {
            std::string all;
            for (const OptionKey* key : keys) {
                all += (all.empty() ? "" : ":") + key->key + "=" + ExampleText(*key);
            }
            for (std::size_t i = 1; i < keys.size(); ++i) {
                EXPECT_EQ(reader.Read(all, keys[i]->fields.front()), keys[i]->defaultValue) << keys[i]->key;
            }
            continue;
        }
        // A colour: channel i gets the value i + 1; it shows only when every key is given.
        std::uint32_t packed = group.alpha << 24;
        for (std::size_t i = 0; i < keys.size(); ++i) {
            packed |= static_cast<std::uint32_t>(i + 1) << (8 * keys[i]->channel);
        }
        for (std::size_t left = 0; left <= keys.size(); ++left) {
            std::string some;
            for (std::size_t i = 0; i < keys.size(); ++i) {
                if (i != left) {
                    some += (some.empty() ? "" : ":") + keys[i]->key + "=" + std::to_string(i + 1);
                }
            }
            EXPECT_EQ(reader.Read(some, group.field), left == keys.size() ? Json(packed) : keys.front()->defaultValue)
                << some;
        }
    }
}

// A value that cannot be converted stops Deserialize: the keys read before it keep their new
// values, those after it keep their defaults. Only the first key of a first-wins group is read.
void CheckOrder(const Reader& reader)
{
    std::vector<const OptionKey*> keys;
    for (const auto& key : reader.description.keys) {
        const OptionGroup* group = GroupOf(reader.description, key.key, OptionGroupKind::FirstWins);
        if ((group == nullptr || group->keys.front() == key.key) && key.type != OptionValueType::SizeHead &&
            !key.alwaysRefused) {
            keys.push_back(&key);
        }
    }
    for (std::size_t broken = 0; broken < keys.size(); ++broken) {
        const OptionValueType type = keys[broken]->type;
        if (!Context(*keys[broken]).empty() ||
            (!IsNumber(type) && type != OptionValueType::Boolean && type != OptionValueType::Enumeration)) {
            continue;
        }
        std::string all;
        for (std::size_t i = 0; i < keys.size(); ++i) {
            const std::string value = i == broken                                      ? "-"
                                      : keys[i]->type == OptionValueType::ColorChannel ? std::to_string(i + 1)
                                                                                       : ExampleText(*keys[i]);
            all += (all.empty() ? "" : ":") + keys[i]->key + "=" + value;
        }
        SCOPED_TRACE("unreadable " + keys[broken]->key + " in " + all);
        const auto record = reader.entry.create();
        EXPECT_ANY_THROW(record->Deserialize(reader.Options(all)));
        // A key counts as read when a key read before the broken one feeds the same field; a colour
        // shows once its last key has been read.
        const auto shows = [&](std::size_t i) {
            const OptionGroup* colour = GroupOf(reader.description, keys[i]->key, OptionGroupKind::AllOrNothing);
            return Context(*keys[i]).empty() && (colour == nullptr || colour->keys.back() == keys[i]->key);
        };
        for (std::size_t i = 0; i < keys.size(); ++i) {
            if (!shows(i)) {
                continue;
            }
            bool read = false;
            for (std::size_t j = 0; j < broken; ++j) {
                read = read || (shows(j) && keys[j]->fields.front() == keys[i]->fields.front());
            }
            EXPECT_EQ(reader.Field(*record, keys[i]->fields.front()) != keys[i]->defaultValue, read) << keys[i]->key;
        }
    }
}

class Described : public testing::TestWithParam<std::string> {};

TEST_P(Described, ReadsItsOptionStringAsDescribed)
{
    const SettingsCatalogEntry& entry = *SettingsCatalog::Find(GetParam());
    const OptionDescription* description = SettingsDescriptions::Find(entry.className);
    if (NotDescribedYet(entry.className)) {
        ASSERT_EQ(description, nullptr) << "described: take it off the not-described list";
        GTEST_SKIP() << "not described yet";
    }
    ASSERT_NE(description, nullptr) << "no description, and not on the not-described list";
    const auto record = entry.create();
    const std::string before = entry.FieldsToJson(*record).dump();
    switch (description->kind) {
    case OptionStringKind::BaseFails:
        for (const std::string options : {"", "a=1"}) {
            const OptionFailure failure = Reader{entry, *description}.Failure(options);
            EXPECT_EQ(failure.exception, "SettingsException");
            EXPECT_EQ(failure.text, "Not implemented fill from string for settings CLASS_ID = " + entry.classId);
        }
        return;
    case OptionStringKind::Ignored:
        for (const auto& field : entry.fields) {
            record->Deserialize(field.name + "=1:" + field.name + "=\"1\"");
        }
        EXPECT_EQ(entry.FieldsToJson(*record).dump(), before);
        return;
    case OptionStringKind::Keys:
        break;
    }
    const Reader reader{entry, *description};
    for (const auto& key : description->keys) {
        SCOPED_TRACE(entry.className + " key " + key.key);
        CheckKey(reader, key);
    }
    SCOPED_TRACE(entry.className);
    CheckGroups(reader);
    CheckOrder(reader);
}

std::vector<std::string> AllClasses()
{
    std::vector<std::string> names;
    for (const auto& entry : SettingsCatalog::Entries()) {
        names.push_back(entry.className);
    }
    return names;
}

INSTANTIATE_TEST_SUITE_P(EveryClass, Described, testing::ValuesIn(AllClasses()),
                         [](const testing::TestParamInfo<std::string>& info) { return info.param; });

} // namespace
