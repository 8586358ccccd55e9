// zorvan-settings: the command-line face of Zorvan::SettingsCatalog.
//   list [--json]            the catalogue, one line (or JSON object) per class
//   show ID [OPTIONS...]     a default record, filled by Deserialize with each option string in turn
//   docs [--output FILE]     the Markdown reference docs/catalogue.md
//   resize OPTIONS --input WxH[:NUM/DEN]       the resizer's geometry for one input frame
//   cut --interval B,E,deleted|kept ... [--source-duration D] [--map T ...]   a cut list
//   trace FILE.json          a speech-to-text result read from JSON, printed by Result::Trace
//   frame WxH[:NUM/DEN] --matrix m0,...,m8 [--even]   a frame's size under a 2D transform
//   describe CLASS | --all [--json] | --schema [CLASS]   what a class reads from its option string
//   validate CLASS OPTIONS [--json]   how the class would read an option string, key by key
#include <algorithm>
#include <array>
#include <cstddef>
#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "catalog/SettingsCatalog.h"
#include "tools/Commands.h"
#include "tools/Failure.h"

namespace {

using Zorvan::SettingsCatalog;
using Zorvan::SettingsCatalogEntry;
using ZorvanTool::DescribeCurrentException;
using ZorvanTool::exitFailure;
using ZorvanTool::FirstLine;
using ZorvanTool::ReportFailure;
using Json = nlohmann::ordered_json;

constexpr int exitUnknownClass = 2;

int List(bool asJson)
{
    const auto& entries = SettingsCatalog::Entries();
    if (asJson) {
        Json array = Json::array();
        for (const auto& entry : entries) {
            Json fieldNames = Json::array();
            for (const auto& field : entry.fields) {
                fieldNames.push_back(field.name);
            }
            array.push_back({{"id", entry.classId},
                             {"class", entry.className},
                             {"base", entry.base},
                             {"group", entry.group},
                             {"own", entry.Own()},
                             {"fields", fieldNames}});
        }
        std::cout << array.dump(2) << '\n';
        return 0;
    }
    std::array<std::size_t, 3> widths{};
    for (const auto& entry : entries) {
        widths[0] = std::max(widths[0], entry.classId.size());
        widths[1] = std::max(widths[1], entry.className.size());
        widths[2] = std::max(widths[2], entry.base.size());
    }
    for (const auto& entry : entries) {
        const std::array<const std::string*, 3> columns{&entry.classId, &entry.className, &entry.base};
        for (std::size_t i = 0; i < columns.size(); ++i) {
            std::cout << *columns[i] << std::string(widths[i] - columns[i]->size() + 2, ' ');
        }
        std::cout << entry.Own() << '\n';
    }
    return 0;
}

int Show(const std::string& id, const std::vector<std::string>& options)
{
    const SettingsCatalogEntry* entry = SettingsCatalog::Find(id);
    if (entry == nullptr) {
        std::cerr << "error: unknown class identifier or class name: " << id << '\n';
        return exitUnknownClass;
    }
    Json out{{"id", entry->classId}, {"class", entry->className}};
    const auto record = entry->create();
    const std::string* current = nullptr; // the option string being applied; null while asking IsEmpty
    try {
        for (const auto& option : options) {
            current = &option;
            record->Deserialize(option);
        }
        current = nullptr;
        const bool isEmpty = record->IsEmpty();
        out["fields"] = entry->FieldsToJson(*record);
        out["isEmpty"] = isEmpty;
        std::cout << out.dump(2) << '\n';
        return 0;
    } catch (...) {
        out["error"] = ReportFailure(DescribeCurrentException(),
                                     {{"option", current != nullptr ? Json(*current) : Json(nullptr)}});
        out["fields"] = entry->FieldsToJson(*record);
        std::cout << out.dump(2) << '\n';
        return exitFailure;
    }
}

std::string EscapeCell(const std::string& text)
{
    std::string escaped;
    for (const char c : text) {
        escaped += c == '|' ? std::string("\\|") : std::string(1, c);
    }
    return escaped;
}

std::string FieldsCell(const SettingsCatalogEntry& entry)
{
    if (entry.fields.empty()) {
        return "—";
    }
    const auto record = entry.create();
    std::string cell;
    for (const auto& field : entry.fields) {
        cell += (cell.empty() ? "`" : ", `") + field.name + " = " + field.get(*record).dump() + "`";
    }
    return EscapeCell(cell);
}

void WriteDocs(std::ostream& out)
{
    out << "# Settings catalogue\n\n"
        << "The classes of zorvan-settings: class identifier, class name, direct base, the\n"
        << "operations the class overrides itself (E `IsEqualTo`, M `IsEmpty`, D `Deserialize`; \"none\": all\n"
        << "three are the base's; \"-\": no virtual table) and the catalogued fields with the values of a\n"
        << "default record.\n\n"
        << "This file is generated by `zorvan-settings docs --output docs/catalogue.md`; do not edit it by hand.\n";
    for (const char* group : {"Analyzers", "Audio", "Effects", "Filters", "Transitions", "Others"}) {
        out << "\n## " << group << "\n\n"
            << "| Identifier | Class | Base | Own | Fields (default values) |\n"
            << "|---|---|---|---|---|\n";
        for (const auto& entry : SettingsCatalog::Entries()) {
            if (entry.group == group) {
                out << "| `" << EscapeCell(entry.classId) << "` | `" << EscapeCell(entry.className) << "` | "
                    << EscapeCell(entry.base) << " | " << entry.Own() << " | " << FieldsCell(entry) << " |\n";
            }
        }
    }
}

int Docs(const std::string& outputPath)
{
    if (outputPath.empty()) {
        WriteDocs(std::cout);
        return std::cout ? 0 : exitFailure;
    }
    std::ofstream file(outputPath, std::ios::binary | std::ios::trunc);
    if (file) {
        WriteDocs(file);
        file.close();
    }
    if (!file) {
        std::cerr << "error: cannot write " << outputPath << '\n';
        return exitFailure;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App app{"zorvan-settings: inspect the settings classes of the Zorvan media engine"};
    app.require_subcommand(1);
    app.footer("Examples:\n"
               "  zorvan-settings list\n"
               "  zorvan-settings show '$$EffectBlurGaussian$$' 'scale=2.5'\n"
               "  zorvan-settings show SettingsFilterSpeedUp 'speed=2' 'useSeek=1'\n"
               "  zorvan-settings docs --output docs/catalogue.md\n"
               "  zorvan-settings resize '1920x1080:size_mode=Custom:custom_mode=LetterBox' --input 1440x1080\n"
               "  zorvan-settings cut --interval 1000000,2000000,kept --source-duration 5000000 --map 1500000\n"
               "  zorvan-settings trace result.json\n"
               "  zorvan-settings frame 1920x1080 --matrix 2,0,0,0,1,0,0,0,1 --even\n"
               "  zorvan-settings describe SettingsEffectBlurGaussian\n"
               "  zorvan-settings validate SettingsEffectBlurGaussian 'sacle=2.5'");

    bool listJson = false;
    CLI::App* list = app.add_subcommand(
        "list", "Print the catalogue, one line per class: identifier, class name, base, own operations "
                "(E IsEqualTo, M IsEmpty, D Deserialize; 'none': all three are the base's; '-': no virtual table).");
    list->add_flag("--json", listJson, "Print a JSON array of {id, class, base, group, own, fields} instead");

    std::string showId;
    std::vector<std::string> showOptions;
    CLI::App* show = app.add_subcommand(
        "show", "Create a default record of a class, apply each option string with Deserialize in turn and print "
                "it as JSON {id, class, fields, isEmpty}. On a failure print {id, class, error {exception, "
                "description, option}, fields} and exit 1; an unknown class exits 2. Put '--' before option "
                "strings that begin with '-'.");
    show->add_option("ID", showId, "Class identifier (e.g. '$$EffectBlurGaussian$$') or class name")->required();
    show->add_option("OPTIONS", showOptions, "Option strings such as 'scale=2.5:fast=1', applied in order");

    std::string docsOutput;
    CLI::App* docs = app.add_subcommand("docs", "Write the Markdown reference of every class (docs/catalogue.md)");
    docs->add_option("-o,--output", docsOutput, "File to write instead of standard output");

    const ZorvanTool::Subcommand resize = ZorvanTool::AddResizeCommand(app);
    const ZorvanTool::Subcommand cut = ZorvanTool::AddCutCommand(app);
    const ZorvanTool::Subcommand trace = ZorvanTool::AddTraceCommand(app);
    const ZorvanTool::Subcommand frame = ZorvanTool::AddFrameCommand(app);
    const ZorvanTool::Subcommand describe = ZorvanTool::AddDescribeCommand(app);
    const ZorvanTool::Subcommand validate = ZorvanTool::AddValidateCommand(app);

    CLI11_PARSE(app, argc, argv);

    try {
        if (*list) {
            return List(listJson);
        }
        if (*show) {
            return Show(showId, showOptions);
        }
        for (const auto* command : {&resize, &cut, &trace, &frame, &describe, &validate}) {
            if (command->command->parsed()) {
                return command->run();
            }
        }
        return Docs(docsOutput);
    } catch (const std::exception& e) {
        std::cerr << "error: " << FirstLine(e.what()) << '\n';
        return exitFailure;
    }
}
