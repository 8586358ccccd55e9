// zorvan-settings cut --interval BEGIN,END,deleted|kept ... [--source-duration D] [--map T ...]:
// builds a cut list with AddInterval in the order given and prints the optimised
// intervals, the overall duration and, for each --map, Source2Result and Result2Source.
#include <charconv>
#include <cstdint>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "Proc/Settings/SettingsFilterCutController.h"
#include "catalog/JsonValues.h"
#include "catalog/SettingsCatalog.h"
#include "tools/Commands.h"
#include "tools/Failure.h"

namespace ZorvanTool {

namespace {

using Json = nlohmann::ordered_json;
using Zorvan::Proc::avTime;
using Zorvan::Proc::SettingsFilterCutController;

struct IntervalArgument {
    avTime begin = 0;
    avTime end = 0;
    bool deleted = false;
};

std::optional<avTime> ParseTime(std::string_view text)
{
    avTime value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc{} || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

// "BEGIN,END,deleted" or "BEGIN,END,kept", times in microseconds.
std::optional<IntervalArgument> ParseInterval(const std::string& text)
{
    std::vector<std::string> pieces;
    Zorvan::Core::Utils::SplitString(pieces, text, ',');
    if (pieces.size() != 3 || (pieces[2] != "deleted" && pieces[2] != "kept")) {
        return std::nullopt;
    }
    const auto begin = ParseTime(pieces[0]);
    const auto end = ParseTime(pieces[1]);
    if (!begin || !end) {
        return std::nullopt;
    }
    return IntervalArgument{*begin, *end, pieces[2] == "deleted"};
}

struct Arguments {
    std::vector<std::string> intervals;
    avTime sourceDuration = SettingsFilterCutController::OPEN_END;
    std::vector<avTime> maps;
};

int Run(const Arguments& arguments)
{
    SettingsFilterCutController cut;
    for (const auto& text : arguments.intervals) {
        const auto interval = ParseInterval(text);
        if (!interval) {
            std::cerr << "error: --interval must be BEGIN,END,deleted or BEGIN,END,kept (microseconds): " << text
                      << '\n';
            return exitUsage;
        }
        cut.AddInterval(interval->begin, interval->end, 0, interval->deleted);
    }
    const Zorvan::SettingsCatalogEntry& entry = *Zorvan::SettingsCatalog::Find(SettingsFilterCutController::CLASS_ID);
    Json out{{"id", entry.classId}, {"class", entry.className}};
    Json maps = Json::array();
    for (const avTime time : arguments.maps) {
        try {
            maps.push_back({{"time", time},
                            {"source2Result", cut.Source2Result(time)},
                            {"result2Source", cut.Result2Source(time)}});
        } catch (...) {
            out["error"] = ReportFailure(DescribeCurrentException(), {{"map", time}});
            out["intervals"] = Zorvan::CatalogJson::FromIntervals<Json>(cut.GetIntervals());
            std::cout << out.dump(2) << '\n';
            return exitFailure;
        }
    }
    out["intervals"] = Zorvan::CatalogJson::FromIntervals<Json>(cut.GetIntervals());
    out["sourceDuration"] = arguments.sourceDuration;
    out["overallDuration"] = cut.GetOverallDuration(arguments.sourceDuration);
    out["maps"] = maps;
    std::cout << out.dump(2) << '\n';
    return 0;
}

} // namespace

Subcommand AddCutCommand(CLI::App& app)
{
    auto arguments = std::make_shared<Arguments>();
    CLI::App* command = app.add_subcommand(
        "cut", "Build a cut list with AddInterval in the order given and print as JSON {id, class, "
               "intervals, sourceDuration, overallDuration, maps}: the optimised intervals {begin, end, "
               "deletedBefore, deleted}, GetOverallDuration of the source duration and, for each --map T, "
               "{time, source2Result, result2Source}. Times are microseconds. When Source2Result fails print "
               "{id, class, error {exception, description, map}, intervals} and exit 1.");
    command->add_option("--interval", arguments->intervals,
                        "BEGIN,END,deleted or BEGIN,END,kept; repeat for more (none: the default state)");
    command->add_option("--source-duration", arguments->sourceDuration,
                        "The source duration for GetOverallDuration (default 2592000000000, the open end)");
    command->add_option("--map", arguments->maps, "A time to map both ways; repeat for more");
    return {command, [arguments] { return Run(*arguments); }};
}

} // namespace ZorvanTool
