#pragma once
// The subcommands beside the catalogue commands of zorvan-settings.cpp: each source adds its
// own subcommand to the application and hands back what runs it when it was chosen.
#include <functional>

#include <CLI/CLI.hpp>

namespace ZorvanTool {

struct Subcommand {
    CLI::App* command = nullptr;
    std::function<int()> run;
};

// resize OPTIONS --input WxH[:NUM/DEN] (ResizeCommand.cpp)
Subcommand AddResizeCommand(CLI::App& app);
// cut --interval BEGIN,END,deleted|kept ... [--source-duration D] [--map T ...] (CutCommand.cpp)
Subcommand AddCutCommand(CLI::App& app);
// trace FILE.json (TraceCommand.cpp)
Subcommand AddTraceCommand(CLI::App& app);
// frame WxH[:NUM/DEN] --matrix m0,...,m8 [--even] (FrameCommand.cpp)
Subcommand AddFrameCommand(CLI::App& app);
// describe CLASS | --all [--json] | --schema [CLASS]; validate CLASS OPTIONS [--json] (DescribeCommand.cpp)
Subcommand AddDescribeCommand(CLI::App& app);
Subcommand AddValidateCommand(CLI::App& app);

} // namespace ZorvanTool
