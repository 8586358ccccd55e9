// zorvan-settings resize OPTIONS --input WxH[:NUM/DEN]: applies the resizer's option string
// and prints, for that input frame, the output frame of GetOutputFrameSize, the
// source and target margins of GetROI and the 16 floats of CalculateCoordBuffer.
#include <charconv>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>

#include <nlohmann/json.hpp>

#include "Proc/Settings/SettingsResizer.h"
#include "catalog/JsonValues.h"
#include "catalog/SettingsCatalog.h"
#include "tools/Commands.h"
#include "tools/Failure.h"

namespace ZorvanTool {

namespace {

using Json = nlohmann::ordered_json;
using Zorvan::Conf::FrameInfo;
using Zorvan::Core::Utils::CutString;
using Zorvan::Core::Utils::ToNumber;

// "WxH" or "WxH:NUM/DEN", whole unsigned 32-bit numbers; the pixel aspect defaults to 1/1.
std::optional<FrameInfo> ParseInput(const std::string& text)
{
    const auto [size, aspect] = CutString(text, ':');
    const auto [width, height] = CutString(size, 'x');
    FrameInfo frame{0, 0, 1, 1};
    if (!ToNumber<unsigned int>(width, frame.width) || !ToNumber<unsigned int>(height, frame.height)) {
        return std::nullopt;
    }
    if (text.find(':') != std::string::npos) {
        const auto [numerator, denominator] = CutString(aspect, '/');
        if (!ToNumber<unsigned int>(numerator, frame.parNumerator) ||
            !ToNumber<unsigned int>(denominator, frame.parDenominator)) {
            return std::nullopt;
        }
    }
    return frame;
}

// A float as the shortest decimal that reads back to it (0.1F prints 0.1, not 0.10000000149011612).
double Shortest(float value)
{
    char text[32];
    const auto result = std::to_chars(text, text + sizeof(text) - 1, value);
    *result.ptr = '\0';
    return std::strtod(text, nullptr);
}

int Run(const std::string& options, const std::string& input)
{
    const std::optional<FrameInfo> frame = ParseInput(input);
    if (!frame) {
        std::cerr << "error: --input must be WxH or WxH:NUM/DEN with whole unsigned 32-bit numbers: " << input << '\n';
        return exitUsage;
    }
    const Zorvan::SettingsCatalogEntry& entry = *Zorvan::SettingsCatalog::Find(Zorvan::Proc::SettingsResizer::CLASS_ID);
    Zorvan::Proc::SettingsResizer resizer;
    Json out{{"id", entry.classId}, {"class", entry.className}};
    bool deserialized = false;
    try {
        resizer.Deserialize(options);
        deserialized = true;
        Zorvan::Proc::CropInfo source{};
        Zorvan::Proc::CropInfo target{};
        const FrameInfo output = resizer.GetROI(*frame, source, target);
        Json buffer = Json::array();
        for (const float value : resizer.CalculateCoordBuffer(*frame)) {
            buffer.push_back(Shortest(value));
        }
        out["fields"] = entry.FieldsToJson(resizer);
        out["input"] = Zorvan::CatalogJson::FromFrame<Json>(*frame);
        out["output"] = Zorvan::CatalogJson::FromFrame<Json>(output);
        out["source"] = Zorvan::CatalogJson::FromCrop<Json>(source);
        out["target"] = Zorvan::CatalogJson::FromCrop<Json>(target);
        out["coordBuffer"] = buffer;
        std::cout << out.dump(2) << '\n';
        return 0;
    } catch (...) {
        // The option string when Deserialize failed; null when the calculation did.
        out["error"] =
            ReportFailure(DescribeCurrentException(), {{"option", deserialized ? Json(nullptr) : Json(options)}});
        out["fields"] = entry.FieldsToJson(resizer);
        std::cout << out.dump(2) << '\n';
        return exitFailure;
    }
}

} // namespace

Subcommand AddResizeCommand(CLI::App& app)
{
    struct Arguments {
        std::string options;
        std::string input;
    };
    auto arguments = std::make_shared<Arguments>();
    CLI::App* command = app.add_subcommand(
        "resize", "Apply a resizer option string (e.g. '1920x1080:size_mode=Custom:custom_mode=LetterBox') "
                  "and print as JSON {id, class, fields, input, output, source, target, coordBuffer}: the output "
                  "frame of GetOutputFrameSize, the margins of GetROI and the 16 floats of CalculateCoordBuffer "
                  "(u, v, x, y of the top left, top right, bottom right and bottom left vertices). On a failure "
                  "print {id, class, error {exception, description, option}, fields} and exit 1.");
    command->add_option("OPTIONS", arguments->options, "The resizer's option string; its head is the target size")
        ->required();
    command->add_option("--input", arguments->input, "The input frame: WxH, or WxH:NUM/DEN with its pixel aspect")
        ->required();
    return {command, [arguments] { return Run(arguments->options, arguments->input); }};
}

} // namespace ZorvanTool
