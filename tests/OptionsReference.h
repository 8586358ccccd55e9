#pragma once
// The plain reading of option strings: every call compiles "\b(keys)=(value)" with std::regex
// (ECMAScript, icase) and runs std::regex_search from the start and again behind each match.
// The library's option functions must answer exactly as these do; the differential test and
// the benchmarks hold them side by side.
#include <limits>
#include <optional>
#include <regex>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <type_traits>
#include <vector>

#include "Proc/Settings/Settings.h"

namespace ZorvanTest::Reference {

using Zorvan::Proc::Settings;

inline constexpr std::string_view kDefaultValue = R"([^":]+|"[^"]*")";
inline constexpr std::string_view kNumericValue = R"([0-9\.\,\-]+|"[^"]*")";

inline std::regex Expression(std::string_view keys, std::string_view valuePattern)
{
    const std::string value(valuePattern.empty() ? kDefaultValue : valuePattern);
    return std::regex("\\b(" + std::string(keys) + ")=(" + value + ")",
                      std::regex_constants::ECMAScript | std::regex_constants::icase);
}

inline std::string_view Group(std::string_view options, const std::csub_match& group)
{
    return options.substr(static_cast<std::size_t>(group.first - options.data()),
                          static_cast<std::size_t>(group.length()));
}

inline std::string_view StripQuotes(std::string_view value, std::string_view valuePattern)
{
    if (valuePattern.empty() && !value.empty() && value.front() == '"') {
        return value.size() >= 2 ? value.substr(1, value.size() - 2) : std::string_view{};
    }
    return value;
}

inline Settings::OptionsViewMap OptionsRegexSearch(std::string_view options, std::string_view keys,
                                                   std::string_view valuePattern)
{
    Settings::OptionsViewMap result;
    if (options.empty() || keys.empty()) {
        return result;
    }
    const std::regex expression = Expression(keys, valuePattern);
    const char* position = options.data();
    const char* const end = options.data() + options.size();
    std::cmatch match;
    while (position != end && std::regex_search(position, end, match, expression)) {
        const std::string_view value = StripQuotes(Group(options, match[2]), valuePattern);
        if (!value.empty()) {
            result.emplace(std::string(Group(options, match[1])), value);
        }
        position = match[0].second;
    }
    return result;
}

inline std::string_view OptionRegexSearch(std::string_view options, std::string_view key, std::string_view valuePattern)
{
    if (options.empty() || key.empty()) {
        return {};
    }
    std::cmatch match;
    if (!std::regex_search(options.data(), options.data() + options.size(), match, Expression(key, valuePattern))) {
        return {};
    }
    return StripQuotes(Group(options, match[2]), valuePattern);
}

inline Settings::OptionsMap GetOptionsMap(std::string_view options, const std::vector<std::string>& keys)
{
    Settings::OptionsMap result;
    if (keys.empty()) {
        return result;
    }
    for (const auto& [key, value] :
         OptionsRegexSearch(options, Zorvan::Core::Utils::ToString(keys, "|"), kNumericValue)) {
        result.emplace(key, std::string(value));
    }
    return result;
}

template <class T>
std::optional<T> GetOption(std::string_view options, std::string_view key, std::string_view valuePattern)
{
    const std::string_view value = OptionRegexSearch(options, key, valuePattern);
    if (value.empty()) {
        return std::nullopt;
    }
    T result{};
    bool converted = false;
    if constexpr (std::is_same_v<T, bool>) {
        converted = value == "1" || value == "true" || value == "0" || value == "false";
        result = value == "1" || value == "true";
    } else if constexpr (std::is_floating_point_v<T>) {
        const auto [end, error] = Zorvan::FromChars(value.data(), value.data() + value.size(), result);
        converted = error == std::errc{} && end == value.data() + value.size();
    } else if constexpr (std::is_same_v<T, int>) {
        converted = Zorvan::Core::Utils::ToNumber<int>(value, result);
    } else {
        unsigned long long number = 0;
        converted = true;
        for (const char c : value) {
            const unsigned long long digit = static_cast<unsigned char>(c - '0');
            converted = converted && c >= '0' && c <= '9' && number <= (std::numeric_limits<T>::max() - digit) / 10;
            number = number * 10 + digit;
        }
        result = static_cast<T>(number);
    }
    if (!converted) {
        throw std::invalid_argument("The '" + std::string(value) + "' value of the '" + std::string(key) +
                                    "' option is not " + (std::is_same_v<T, bool> ? "a boolean" : "a number"));
    }
    return result;
}

} // namespace ZorvanTest::Reference
