// zorvan-settings frame WxH[:NUM/DEN] --matrix m0,...,m8 [--even]: the frame that
// EditorAlgorithms::TransformFrameInfo and BoundFrameInfo give for that frame under the
// transform, so that an engine developer can check a transform without writing code.
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "Proc/Settings/FrameGeometry.h"
#include "catalog/JsonValues.h"
#include "tools/Commands.h"
#include "tools/Failure.h"

namespace ZorvanTool {

namespace {

using Json = nlohmann::ordered_json;
using Zorvan::Conf::FrameInfo;
using Zorvan::Conf::Transform2D;
using Zorvan::Core::Utils::ToNumber;

// Reads one whole unsigned 32-bit part of the frame, or names it on standard error.
bool ReadPart(std::string_view text, const char* name, std::uint32_t& value)
{
    if (ToNumber<unsigned int>(text, value)) {
        return true;
    }
    std::cerr << "error: FRAME: " << name << " '" << text << "' is not a whole unsigned 32-bit number\n";
    return false;
}

// "WxH" or "WxH:NUM/DEN"; the pixel aspect defaults to 1/1.
std::optional<FrameInfo> ParseFrame(const std::string& text)
{
    const auto [size, aspect] = Zorvan::Core::Utils::CutString(text, ':');
    if (size.find('x') == std::string::npos ||
        (text.find(':') != std::string::npos && aspect.find('/') == std::string::npos)) {
        std::cerr << "error: FRAME: '" << text << "' is not WxH or WxH:NUM/DEN\n";
        return std::nullopt;
    }
    const auto [width, height] = Zorvan::Core::Utils::CutString(size, 'x');
    FrameInfo frame{0, 0, 1, 1};
    if (!ReadPart(width, "width", frame.width) || !ReadPart(height, "height", frame.height)) {
        return std::nullopt;
    }
    if (text.find(':') != std::string::npos) {
        const auto [numerator, denominator] = Zorvan::Core::Utils::CutString(aspect, '/');
        if (!ReadPart(numerator, "pixel-aspect numerator", frame.parNumerator) ||
            !ReadPart(denominator, "pixel-aspect denominator", frame.parDenominator)) {
            return std::nullopt;
        }
    }
    return frame;
}

// Nine finite numbers separated by commas, m0 to m8 in storage order.
std::optional<Transform2D> ParseMatrix(const std::string& text)
{
    std::vector<std::string_view> values;
    for (std::size_t begin = 0;;) {
        const std::size_t comma = text.find(',', begin);
        values.push_back(std::string_view(text).substr(begin, comma == std::string::npos ? comma : comma - begin));
        if (comma == std::string::npos) {
            break;
        }
        begin = comma + 1;
    }
    if (values.size() != 9) {
        std::cerr << "error: --matrix: " << values.size() << " values given, 9 needed (m0,...,m8)\n";
        return std::nullopt;
    }
    Transform2D transform;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::string_view value = values[i];
        const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), transform.m[i]);
        if (value.empty() || error != std::errc{} || end != value.data() + value.size()) {
            std::cerr << "error: --matrix: value " << i << " '" << value << "' is not a number\n";
            return std::nullopt;
        }
        if (!std::isfinite(transform.m[i])) {
            std::cerr << "error: --matrix: value " << i << " '" << value << "' is not a finite number\n";
            return std::nullopt;
        }
    }
    return transform;
}

struct Arguments {
    std::string frame;
    std::string matrix;
    bool even = false;
};

int Run(const Arguments& arguments)
{
    const std::optional<FrameInfo> frame = ParseFrame(arguments.frame);
    if (!frame) {
        return exitUsage;
    }
    const std::optional<Transform2D> transform = ParseMatrix(arguments.matrix);
    if (!transform) {
        return exitUsage;
    }
    Json matrix = Json::array();
    for (const double value : transform->m) {
        matrix.push_back(value);
    }
    using Zorvan::CatalogJson::FromFrame;
    const Json out{
        {"input", FromFrame<Json>(*frame)},
        {"matrix", matrix},
        {"even", arguments.even},
        {"transformFrameInfo",
         FromFrame<Json>(Zorvan::Proc::EditorAlgorithms::TransformFrameInfo(*frame, *transform, arguments.even))},
        {"boundFrameInfo", FromFrame<Json>(Zorvan::Proc::BoundFrameInfo(*frame, *transform, arguments.even))},
    };
    std::cout << out.dump(2) << '\n';
    return 0;
}

} // namespace

Subcommand AddFrameCommand(CLI::App& app)
{
    auto arguments = std::make_shared<Arguments>();
    CLI::App* command = app.add_subcommand(
        "frame", "Print as JSON {input, matrix, even, transformFrameInfo, boundFrameInfo}: the frame under a "
                 "2D transform as EditorAlgorithms::TransformFrameInfo sizes it (proportions kept under the "
                 "transform's scale and shear, at most 4096 a side) and as BoundFrameInfo bounds it (translation "
                 "m6, m7 in frame widths and heights). A point (x, y) maps to ((m6 + m0 x + m3 y) / w, "
                 "(m7 + m1 x + m4 y) / w) with w = m8 + m2 x + m5 y. An unreadable frame or matrix exits 2.");
    command->add_option("FRAME", arguments->frame, "The frame: WxH, or WxH:NUM/DEN with its pixel aspect")->required();
    command
        ->add_option("--matrix", arguments->matrix,
                     "Nine numbers m0,...,m8 separated by commas, in storage order; write --matrix=-1,... when the "
                     "first is negative")
        ->required();
    command->add_flag("--even", arguments->even, "Ask both calculations for even sides");
    return {command, [arguments] { return Run(*arguments); }};
}

} // namespace ZorvanTool
