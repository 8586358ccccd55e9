#include "tools/Failure.h"

#include <iostream>

#include "catalog/Description.h"

namespace ZorvanTool {

std::string FirstLine(const char* text)
{
    const std::string all(text);
    return all.substr(0, all.find('\n'));
}

nlohmann::ordered_json ReportFailure(const Failure& failure, const nlohmann::ordered_json& where)
{
    nlohmann::ordered_json error{{"exception", failure.exception}, {"description", failure.description}};
    for (const auto& [key, value] : where.items()) {
        error[key] = value;
    }
    std::cerr << "error: " << failure.exception << ": " << failure.description << '\n';
    return error;
}

// Names the exception in flight as the catalogue's descriptions name their failures.
Failure DescribeCurrentException()
{
    const Zorvan::OptionFailure failure = Zorvan::SettingsDescriptions::CurrentFailure();
    return {failure.exception, failure.text};
}

} // namespace ZorvanTool
