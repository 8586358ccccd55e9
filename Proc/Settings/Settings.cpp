#include "Proc/Settings/Settings.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <sstream>
#include <stdexcept>
#include <system_error>
#include <type_traits>

#include <fmt/format.h>

#include "Proc/Settings/OptionMatcher.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan {

namespace {

// The C tolower of the process's C locale, fetched once per call: option maps hash and
// compare every key byte by byte, and the engine looks keys up by the thousand.
class CLower {
public:
#ifdef __GLIBC__
    CLower()
        : table_(*__ctype_tolower_loc())
    {
    }
    char operator()(char c) const
    {
        return static_cast<char>(table_[static_cast<unsigned char>(c)]);
    }

private:
    const std::int32_t* table_;
#else
    char operator()(char c) const
    {
        return static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
#endif
};

} // namespace

std::size_t CaseInsensitiveHash::operator()(std::string_view text) const
{
    const CLower lower;
    char buffer[64];
    std::string longer;
    char* lowered = buffer;
    if (text.size() > sizeof buffer) {
        longer.resize(text.size());
        lowered = longer.data();
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        lowered[i] = lower(text[i]);
    }
    // The same value as std::hash<std::string> of the lowered text.
    return std::hash<std::string_view>{}(std::string_view(lowered, text.size()));
}

bool CaseInsensitiveEqual::operator()(std::string_view left, std::string_view right) const
{
    if (left.size() != right.size()) {
        return false;
    }
    const CLower lower;
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (left[i] != right[i] && lower(left[i]) != lower(right[i])) {
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
    // What std::getline on a string stream gives, without the stream: every piece up to a
    // delimiter, and the rest only when it is not empty.
    pieces.reserve(pieces.size() + static_cast<std::size_t>(std::count(text.begin(), text.end(), delimiter)) + 1);
    std::size_t start = 0;
    for (std::size_t end = text.find(delimiter); end != std::string::npos; end = text.find(delimiter, start)) {
        pieces.emplace_back(text, start, end - start);
        start = end + 1;
    }
    if (start < text.size()) {
        pieces.emplace_back(text, start);
    }
}

} // namespace Zorvan::Core::Utils

namespace Zorvan::Proc {

namespace {

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
    if (const auto* replacement = OptionMatcher::CurrentReplacement()) {
        return replacement->getOptionsMap(options, keys);
    }
    return OptionMatcher::GetOptionsMap(options, keys);
}

Settings::OptionsViewMap Settings::OptionsRegexSearch(std::string_view options, std::string_view keys,
                                                      std::string_view valuePattern)
{
    if (const auto* replacement = OptionMatcher::CurrentReplacement()) {
        return replacement->optionsRegexSearch(options, keys, valuePattern);
    }
    return OptionMatcher::OptionsRegexSearch(options, keys, valuePattern);
}

std::string_view Settings::OptionRegexSearch(std::string_view options, std::string_view key,
                                             std::string_view valuePattern)
{
    if (const auto* replacement = OptionMatcher::CurrentReplacement()) {
        return replacement->optionRegexSearch(options, key, valuePattern);
    }
    return OptionMatcher::OptionRegexSearch(options, key, valuePattern);
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
