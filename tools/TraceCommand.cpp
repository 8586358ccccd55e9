// zorvan-settings trace FILE.json: reads a speech-to-text result
// (SettingsAnalyzerSpeechToText::Result) written as JSON and prints Result::Trace() of it on
// standard output, byte for byte. A file that cannot be read or does not have the shape below
// prints "error: <FILE>: <place>: <what>" on standard error and exits exitUsage (2).
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <system_error>
#include <utility>

#include <nlohmann/json.hpp>

#include "Proc/Settings/SettingsAnalyzerSpeechToText.h"
#include "tools/Commands.h"
#include "tools/Failure.h"

namespace ZorvanTool {

namespace {

using Json = nlohmann::json;
using Result = Zorvan::Proc::SettingsAnalyzerSpeechToText::Result;

// A malformed file: where (a JSON pointer, or the parse position) and what is wrong.
struct Malformed {
    std::string place;
    std::string what;
};

// The JSON pointer of the root is the empty text; it is printed as "(root)".
std::string PlaceOf(const std::string& pointer)
{
    return pointer.empty() ? std::string("(root)") : pointer;
}

const Json& Member(const Json& object, const std::string& pointer, const char* name)
{
    const auto found = object.find(name);
    if (found == object.end()) {
        throw Malformed{pointer + "/" + name, "missing member"};
    }
    return *found;
}

const Json& Object(const Json& value, const std::string& pointer)
{
    if (!value.is_object()) {
        throw Malformed{PlaceOf(pointer), "must be an object"};
    }
    return value;
}

const Json& Array(const Json& value, const std::string& pointer)
{
    if (!value.is_array()) {
        throw Malformed{PlaceOf(pointer), "must be an array"};
    }
    return value;
}

std::string String(const Json& object, const std::string& pointer, const char* name,
                   std::optional<std::string> fallback = std::nullopt)
{
    if (fallback && !object.contains(name)) {
        return *fallback;
    }
    const Json& value = Member(object, pointer, name);
    if (!value.is_string()) {
        throw Malformed{pointer + "/" + name, "must be a string"};
    }
    return value.get<std::string>();
}

bool Boolean(const Json& object, const std::string& pointer, const char* name, bool fallback)
{
    if (!object.contains(name)) {
        return fallback;
    }
    const Json& value = object.at(name);
    if (!value.is_boolean()) {
        throw Malformed{pointer + "/" + name, "must be a boolean"};
    }
    return value.get<bool>();
}

// A whole number of microseconds within the signed 64-bit range.
Zorvan::Proc::avTime Time(const Json& object, const std::string& pointer, const char* name)
{
    const Json& value = Member(object, pointer, name);
    if (value.is_number_unsigned()) {
        const auto number = value.get<std::uint64_t>();
        if (number > static_cast<std::uint64_t>(INT64_MAX)) {
            throw Malformed{pointer + "/" + name, "must be a signed 64-bit integer"};
        }
        return static_cast<Zorvan::Proc::avTime>(number);
    }
    if (!value.is_number_integer()) {
        throw Malformed{pointer + "/" + name, "must be an integer"};
    }
    return value.get<std::int64_t>();
}

// Fills the element part {t0, t1, text} of an object.
void ReadElement(const Json& object, const std::string& pointer, Result::SubtitleElement& element)
{
    element.t0 = Time(object, pointer, "t0");
    element.t1 = Time(object, pointer, "t1");
    element.text = String(object, pointer, "text");
}

Result ReadResult(const Json& document)
{
    Object(document, "");
    Result result;
    result.analyzedLanguage = String(document, "", "analyzedLanguage");
    result.analyzedLanguageName = String(document, "", "analyzedLanguageName");
    result.error = String(document, "", "error", std::string());
    const Json& subtitles = Array(Member(document, "", "subtitles"), "/subtitles");
    for (std::size_t i = 0; i < subtitles.size(); ++i) {
        const std::string subtitlePointer = "/subtitles/" + std::to_string(i);
        const Json& subtitleJson = Object(subtitles[i], subtitlePointer);
        Result::Subtitle subtitle;
        ReadElement(subtitleJson, subtitlePointer, subtitle);
        subtitle.newSpeaker = Boolean(subtitleJson, subtitlePointer, "newSpeaker", false);
        const std::string segmentsPointer = subtitlePointer + "/segments";
        const Json& segments = Array(Member(subtitleJson, subtitlePointer, "segments"), segmentsPointer);
        for (std::size_t j = 0; j < segments.size(); ++j) {
            const std::string segmentPointer = segmentsPointer + "/" + std::to_string(j);
            const Json& segmentJson = Object(segments[j], segmentPointer);
            Result::SubtitleSegment segment;
            ReadElement(segmentJson, segmentPointer, segment);
            const std::string wordsPointer = segmentPointer + "/words";
            const Json& words = Array(Member(segmentJson, segmentPointer, "words"), wordsPointer);
            for (std::size_t k = 0; k < words.size(); ++k) {
                const std::string wordPointer = wordsPointer + "/" + std::to_string(k);
                Result::SubtitleElement word;
                ReadElement(Object(words[k], wordPointer), wordPointer, word);
                segment.words.push_back(std::move(word));
            }
            subtitle.segments.push_back(std::move(segment));
        }
        result.subtitles.push_back(std::move(subtitle));
    }
    return result;
}

// nlohmann's parse error text: "[json.exception.parse_error.101] parse error at line 1, column 2: <what>".
Malformed FromParseError(const Json::parse_error& e)
{
    const std::string text = e.what();
    const std::string at = "parse error at ";
    const auto begin = text.find(at);
    const auto colon = text.find(": ", begin == std::string::npos ? 0 : begin);
    if (begin == std::string::npos || colon == std::string::npos) {
        return {"byte " + std::to_string(e.byte), text};
    }
    return {text.substr(begin + at.size(), colon - begin - at.size()), text.substr(colon + 2)};
}

int Run(const std::string& file)
{
    try {
        std::error_code ignored;
        if (std::filesystem::is_directory(file, ignored)) {
            throw Malformed{"cannot be read", std::strerror(EISDIR)};
        }
        std::ifstream stream(file, std::ios::binary);
        if (!stream) {
            throw Malformed{"cannot be read", std::strerror(errno)};
        }
        std::ostringstream content;
        content << stream.rdbuf();
        if (stream.bad()) {
            throw Malformed{"cannot be read", "read error"};
        }
        Json document;
        try {
            document = Json::parse(content.str());
        } catch (const Json::parse_error& e) {
            throw FromParseError(e);
        }
        const std::string trace = ReadResult(document).Trace();
        std::cout.write(trace.data(), static_cast<std::streamsize>(trace.size()));
        std::cout.flush();
        return 0;
    } catch (const Malformed& malformed) {
        std::cerr << "error: " << file << ": " << malformed.place << ": " << malformed.what << '\n';
        return exitUsage;
    }
}

} // namespace

Subcommand AddTraceCommand(CLI::App& app)
{
    auto file = std::make_shared<std::string>();
    CLI::App* command = app.add_subcommand(
        "trace",
        "Read a speech-to-text result (SettingsAnalyzerSpeechToText::Result) from a JSON file and print "
        "Result::Trace() of it exactly, with nothing added. The file holds {\"analyzedLanguage\": string, "
        "\"analyzedLanguageName\": string, \"error\": string (optional, default \"\"), \"subtitles\": [{\"t0\": int, "
        "\"t1\": int, \"text\": string, \"newSpeaker\": bool (optional, default false), \"segments\": [{\"t0\": int, "
        "\"t1\": int, \"text\": string, \"words\": [{\"t0\": int, \"t1\": int, \"text\": string}]}]}]}; times are "
        "signed 64-bit microseconds, other members are ignored. A file that cannot be read, is not JSON or lacks a "
        "member or has one of the wrong type prints \"error: FILE: PLACE: WHAT\" on standard error, PLACE being a "
        "JSON pointer such as /subtitles/0/segments/1/t0 ((root) for the document), the parse position (line L, "
        "column C) or 'cannot be read', prints nothing on standard output and exits 2.");
    command->add_option("FILE", *file, "The JSON file of the result")->required();
    return {command, [file] { return Run(*file); }};
}

} // namespace ZorvanTool
