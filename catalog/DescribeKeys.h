#pragma once
// Internal to the catalogue: the shorthand in which catalog/Describe<Family>.cpp writes its
// descriptions, and one registration function per family. A new family adds its file and one
// call in catalog/Describe.cpp.
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "catalog/Description.h"

namespace Zorvan::DescribeDetail {

using DescriptionMap = std::unordered_map<std::string, OptionDescription>; // class name -> description

// A key under construction: Double("scale").Range(0, 1).Clamps().
struct Key : OptionKey {
    Key(std::string name, OptionValueType valueType, std::string cppType, std::string field, nlohmann::json byDefault)
    {
        key = std::move(name);
        type = valueType;
        cType = std::move(cppType);
        fields.push_back(field.empty() ? key : std::move(field));
        defaultValue = std::move(byDefault);
    }
    Key& Fields(std::vector<std::string> names)
    {
        fields = std::move(names);
        return *this;
    }
    Key& Range(std::optional<double> low, std::optional<double> high)
    {
        minimum = low;
        maximum = high;
        return *this;
    }
    Key& Exclusive(bool low, bool high)
    {
        exclusiveMinimum = low;
        exclusiveMaximum = high;
        return *this;
    }
    Key& Throws(std::string exceptionClass, std::string text)
    {
        outside = OptionOutside::Throws;
        failure = {std::move(exceptionClass), std::move(text)};
        return *this;
    }
    Key& Floor(double lowest)
    {
        floor = lowest;
        return *this;
    }
    // No value the reader can deliver is accepted, e.g. a word the map form cannot read unquoted.
    Key& AlwaysRefused(std::string exceptionClass, std::string text)
    {
        alwaysRefused = true;
        failure = {std::move(exceptionClass), std::move(text)};
        return *this;
    }
    Key& Clamps()
    {
        outside = OptionOutside::Clamps;
        return *this;
    }
    Key& Ignores()
    {
        outside = OptionOutside::Ignored;
        return *this;
    }
    Key& Unchecked()
    {
        outside = OptionOutside::Unchecked;
        return *this;
    }
    Key& Needs(std::string keys)
    {
        needs = std::move(keys);
        return *this;
    }
    Key& With(std::string keys)
    {
        with = std::move(keys);
        return *this;
    }
    Key& Example(std::string value, nlohmann::json result = nullptr)
    {
        example = std::move(value);
        exampleResult = std::move(result);
        return *this;
    }
    Key& Note(std::string text)
    {
        note = std::move(text);
        return *this;
    }
};

inline Key Double(std::string key, std::string field = "", double byDefault = 0.0)
{
    return Key(std::move(key), OptionValueType::Double, "double", std::move(field), byDefault);
}
inline Key Float(std::string key, std::string field = "", double byDefault = 0.0)
{
    return Key(std::move(key), OptionValueType::Float, "float", std::move(field), byDefault);
}
inline Key Int(std::string key, std::string field = "", long long byDefault = 0)
{
    return Key(std::move(key), OptionValueType::Integer, "int", std::move(field), byDefault);
}
inline Key Unsigned(std::string key, std::string cType, std::string field = "", unsigned long long byDefault = 0)
{
    return Key(std::move(key), OptionValueType::Unsigned, std::move(cType), std::move(field), byDefault);
}
inline Key Bool(std::string key, OptionBoolean rule, std::string field = "", bool byDefault = false)
{
    Key made(std::move(key), OptionValueType::Boolean, rule == OptionBoolean::Word ? "bool" : "int", std::move(field),
             byDefault);
    made.boolean = rule;
    return made;
}
inline Key Text(std::string key, std::string field = "", std::string byDefault = "")
{
    return Key(std::move(key), OptionValueType::Text, "string", std::move(field), std::move(byDefault));
}
inline Key Enumeration(std::string key, std::string field, long long byDefault, std::vector<OptionSpelling> spellings,
                       std::string exceptionClass, std::string text)
{
    Key made(std::move(key), OptionValueType::Enumeration, "spelling", std::move(field), byDefault);
    made.spellings = std::move(spellings);
    made.unknownSpelling = {std::move(exceptionClass), std::move(text)};
    return made;
}

// A key read by GetOption<T> for an unsigned T: beyond the type's range the text is not a number.
inline Key TypedUnsigned(std::string key, std::string cType, double largest, std::string field = "",
                         unsigned long long byDefault = 0)
{
    return Unsigned(std::move(key), std::move(cType), std::move(field), byDefault)
        .Range(0, largest)
        .Throws("std::invalid_argument", "The '{value}' value of the '{key}' option is not a number");
}

// One byte of a packed colour read by GetOption<unsigned char>.
inline Key Channel(std::string key, std::string field, int channel, std::uint32_t packedDefault)
{
    Key made = TypedUnsigned(std::move(key), "unsigned char", 255, std::move(field));
    made.type = OptionValueType::ColorChannel;
    made.channel = channel;
    made.defaultValue = packedDefault;
    return made;
}

// One byte of a packed colour read by the map form: any int, of which the low byte is kept.
inline Key MapChannel(std::string key, std::string field, int channel, std::uint32_t packedDefault = 0)
{
    Key made = Int(std::move(key), std::move(field));
    made.type = OptionValueType::ColorChannel;
    made.channel = channel;
    made.defaultValue = packedDefault;
    made.note = "the low byte of the number";
    return made;
}

inline OptionDescription Described(std::string className, OptionReader reader, std::vector<OptionKey> keys,
                                   std::vector<OptionGroup> groups = {}, std::string note = "")
{
    OptionDescription description;
    description.className = std::move(className);
    description.reader = reader;
    description.keys = std::move(keys);
    description.groups = std::move(groups);
    description.note = std::move(note);
    return description;
}

// A class with its own Deserialize that reads nothing from the string.
inline OptionDescription IgnoresItsString(std::string className, std::string note = "")
{
    OptionDescription description;
    description.className = std::move(className);
    description.kind = OptionStringKind::Ignored;
    description.note = std::move(note);
    return description;
}

void DescribeStylising(DescriptionMap& descriptions);
void DescribeResizer(DescriptionMap& descriptions);
void DescribeAudioDynamics(DescriptionMap& descriptions);
void DescribeVignette(DescriptionMap& descriptions);
void DescribeHalfTonePopArt(DescriptionMap& descriptions);
void DescribeTimeFilters(DescriptionMap& descriptions);
void DescribeCameraShakeGlitchTiltShift(DescriptionMap& descriptions);
void DescribeChannelMixing(DescriptionMap& descriptions);
void DescribeDenoise(DescriptionMap& descriptions);
void DescribeTransitions(DescriptionMap& descriptions);
void DescribeColorBlending(DescriptionMap& descriptions);

} // namespace Zorvan::DescribeDetail
