#include "Proc/Settings/Settings.h"

#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <regex>
#include <sstream>
#include <stdexcept>
#include <system_error>
#include <type_traits>

#include <fmt/format.h>

#include "Proc/Settings/ProcException.h"

namespace Zorvan {

std::size_t CaseInsensitiveHash::operator()(std::string_view text) const
{
    std::string lowered(text);
    for (char& c : lowered) {
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return std::hash<std::string>{}(lowered);
}

bool CaseInsensitiveEqual::operator()(std::string_view left, std::string_view right) const
{
    if (left.size() != right.size()) {
        return false;
    }
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (std::tolower(static_cast<unsigned char>(left[i])) != std::tolower(static_cast<unsigned char>(right[i]))) {
            return false;
        }
    }
    return true;
}

namespace {

template <typename T, typename Convert>
std::from_chars_result FromCharsWith(const char* first, const char* last, T& value, Convert convert)
{
    const std::string text(first, last);
    char* end = nullptr;
    errno = 0;
    value = convert(text.c_str(), &end);
    const int error = errno;
    return {first + (end - text.c_str()), static_cast<std::errc>(error)};
}

} // namespace

std::from_chars_result FromChars(const char* first, const char* last, float& value, std::chars_format)
{
    return FromCharsWith(first, last, value, [](const char* s, char** e) { return std::strtof(s, e); });
}

std::from_chars_result FromChars(const char* first, const char* last, double& value, std::chars_format)
{
    return FromCharsWith(first, last, value, [](const char* s, char** e) { return std::strtod(s, e); });
}

} // namespace Zorvan

namespace Zorvan::Core::Utils {

namespace {

// Decimal digits only, all of the text, no sign, leading zeros allowed, within T.
template <typename T>
bool ConvertUnsigned(std::string_view text, T& result)
{
    if (text.empty()) {
        return false;
    }
    unsigned long long value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') {
            return false;
        }
        const unsigned digit = static_cast<unsigned>(c - '0');
        if (value > (std::numeric_limits<T>::max() - digit) / 10) {
            return false;
        }
        value = value * 10 + digit;
    }
    result = static_cast<T>(value);
    return true;
}

} // namespace

std::string ToString(const std::vector<std::string>& values, const std::string& separator,
                     const std::function<std::string(const std::string&)>& convert)
{
    std::ostringstream stream;
    for (const auto& value : values) {
        stream << (convert ? convert(value) : value) << separator;
    }
    std::string text = stream.str();
    if (!values.empty()) {
        text.erase(text.size() - separator.size());
    }
    return text;
}

template <>
bool ToNumber<int>(std::string_view text, int& value)
{
    std::size_t pos = 0;
    const bool negative = !text.empty() && text.front() == '-';
    if (negative) {
        pos = 1;
    }
    if (pos == text.size()) {
        return false;
    }
    // The magnitude in 64 bits; leading zeros keep it at 0.
    constexpr std::int64_t limit = static_cast<std::int64_t>(std::numeric_limits<int>::max()) + 1;
    std::int64_t magnitude = 0;
    for (; pos < text.size(); ++pos) {
        const char c = text[pos];
        if (c < '0' || c > '9') {
            return false;
        }
        magnitude = magnitude * 10 + (c - '0');
        if (magnitude > limit) {
            return false;
        }
    }
    const std::int64_t signedValue = negative ? -magnitude : magnitude;
    if (signedValue > std::numeric_limits<int>::max()) {
        return false;
    }
    value = static_cast<int>(signedValue);
    return true;
}

template <>
bool ToNumber<unsigned int>(std::string_view text, unsigned int& value)
{
    return ConvertUnsigned(text, value);
}

void SplitString(std::vector<std::string>& pieces, const std::string& text, char delimiter)
{
    std::istringstream stream(text);
    std::string piece;
    while (std::getline(stream, piece, delimiter)) {
        pieces.push_back(piece);
    }
}

} // namespace Zorvan::Core::Utils

namespace Zorvan::Proc {

namespace {

constexpr std::string_view kDefaultValuePattern = R"([^":]+|"[^"]*")";
constexpr std::string_view kNumericValuePattern = R"([0-9\.\,\-]+|"[^"]*")";

// "\b({})=({})", ECMAScript, case-insensitive; an empty value pattern selects the default.
std::regex GetOptionRegex(std::string_view keyPattern, std::string_view valuePattern)
{
    const std::string_view value = valuePattern.empty() ? kDefaultValuePattern : valuePattern;
    return std::regex(fmt::format("\\b({})=({})", keyPattern, value),
                      std::regex_constants::ECMAScript | std::regex_constants::icase);
}

std::string_view ViewOf(std::string_view options, const std::csub_match& group)
{
    return options.substr(static_cast<std::size_t>(group.first - options.data()),
                          static_cast<std::size_t>(group.length()));
}

// With the default value pattern a value that begins with a quote loses its first and last character.
std::string_view StripQuotesIfDefault(std::string_view value, std::string_view valuePattern)
{
    if (valuePattern.empty() && !value.empty() && value.front() == '"') {
        return value.size() >= 2 ? value.substr(1, value.size() - 2) : std::string_view{};
    }
    return value;
}

template <typename T>
bool ConvertValue(std::string_view text, T& result)
{
    if constexpr (std::is_same_v<T, bool>) {
        if (text == "1" || text == "true") {
            result = true;
            return true;
        }
        if (text == "0" || text == "false") {
            result = false;
            return true;
        }
        return false;
    } else if constexpr (std::is_floating_point_v<T>) {
        const auto [end, error] = FromChars(text.data(), text.data() + text.size(), result);
        return error == std::errc{} && end == text.data() + text.size();
    } else if constexpr (std::is_same_v<T, int>) {
        return Core::Utils::ToNumber<int>(text, result);
    } else {
        return Core::Utils::ConvertUnsigned(text, result);
    }
}

template <typename T>
bool NearlyEqualImpl(T a, T b)
{
    const T difference = std::fabs(a - b);
    return difference <= std::fabs(a + b) * std::numeric_limits<T>::epsilon() ||
           difference < std::numeric_limits<T>::min();
}

} // namespace

Settings::~Settings() = default;

bool Settings::IsEqualTo(const Settings&) const
{
    ThrowSettings("Not implemented comparison for settings CLASS_ID = " + GetClassId());
}

bool Settings::IsEmpty() const
{
    return false;
}

void Settings::Deserialize(const std::string&)
{
    ThrowSettings("Not implemented fill from string for settings CLASS_ID = " + GetClassId());
}

Settings::OptionsMap Settings::GetOptionsMap(std::string_view options, const std::vector<std::string>& keys)
{
    OptionsMap result;
    if (keys.empty()) {
        return result;
    }
    const std::string keyPattern = Core::Utils::ToString(keys, "|");
    for (const auto& [key, value] : OptionsRegexSearch(options, keyPattern, kNumericValuePattern)) {
        result.emplace(key, std::string(value));
    }
    return result;
}

Settings::OptionsViewMap Settings::OptionsRegexSearch(std::string_view options, std::string_view keys,
                                                      std::string_view valuePattern)
{
    OptionsViewMap result;
    if (options.empty() || keys.empty()) {
        return result;
    }
    const std::regex expression = GetOptionRegex(keys, valuePattern);
    const char* position = options.data();
    const char* const end = options.data() + options.size();
    std::cmatch match;
    while (position != end && std::regex_search(position, end, match, expression)) {
        const std::string_view value = StripQuotesIfDefault(ViewOf(options, match[2]), valuePattern);
        if (!value.empty()) {
            // emplace keeps the first occurrence; keys differing in case are one key.
            result.emplace(std::string(ViewOf(options, match[1])), value);
        }
        // Each search begins afresh behind the match.
        position = match[0].second;
    }
    return result;
}

std::string_view Settings::OptionRegexSearch(std::string_view options, std::string_view key,
                                             std::string_view valuePattern)
{
    if (options.empty() || key.empty()) {
        return {};
    }
    const std::regex expression = GetOptionRegex(key, valuePattern);
    std::cmatch match;
    if (!std::regex_search(options.data(), options.data() + options.size(), match, expression)) {
        return {};
    }
    return StripQuotesIfDefault(ViewOf(options, match[2]), valuePattern);
}

template <typename T>
std::optional<T> Settings::GetOption(std::string_view options, std::string_view key, std::string_view valuePattern)
{
    const std::string_view value = OptionRegexSearch(options, key, valuePattern);
    if (value.empty()) {
        return std::nullopt;
    }
    T result{};
    if (!ConvertValue(value, result)) {
        // Thrown directly, with no stack and no location, unlike ThrowInvalidArgument.
        throw std::invalid_argument(fmt::format("The '{}' value of the '{}' option is not {}", value, key,
                                                std::is_same_v<T, bool> ? "a boolean" : "a number"));
    }
    return result;
}

template std::optional<float> Settings::GetOption<float>(std::string_view, std::string_view, std::string_view);
template std::optional<double> Settings::GetOption<double>(std::string_view, std::string_view, std::string_view);
template std::optional<int> Settings::GetOption<int>(std::string_view, std::string_view, std::string_view);
template std::optional<unsigned char> Settings::GetOption<unsigned char>(std::string_view, std::string_view,
                                                                         std::string_view);
template std::optional<unsigned short> Settings::GetOption<unsigned short>(std::string_view, std::string_view,
                                                                           std::string_view);
template std::optional<unsigned int> Settings::GetOption<unsigned int>(std::string_view, std::string_view,
                                                                       std::string_view);
template std::optional<unsigned long> Settings::GetOption<unsigned long>(std::string_view, std::string_view,
                                                                         std::string_view);
template std::optional<bool> Settings::GetOption<bool>(std::string_view, std::string_view, std::string_view);

bool NearlyEqual(double a, double b)
{
    return NearlyEqualImpl(a, b);
}

bool NearlyEqual(float a, float b)
{
    return NearlyEqualImpl(a, b);
}

bool NearZero(double value)
{
    return NearlyEqual(value, 0.0);
}

bool NearZero(float value)
{
    return NearlyEqual(value, 0.0f);
}

} // namespace Zorvan::Proc
