#pragma once
// Part 1.1 (the base of every record) and Part 1.2 (option strings).
// Kept light on purpose: no <regex>, no glog, no {fmt} here.
#include <charconv>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Proc/Settings/Export.h"

namespace Zorvan {

// Part 1.2: hashes the text lowered byte by byte with the C tolower.
struct ZORVAN_SETTINGS_EXPORT CaseInsensitiveHash {
    std::size_t operator()(std::string_view text) const;
};

// Part 1.2: equal lengths and equal tolower of every byte.
struct ZORVAN_SETTINGS_EXPORT CaseInsensitiveEqual {
    bool operator()(std::string_view left, std::string_view right) const;
};

// Part 1.2: strtof/strtod behind a std::from_chars_result-shaped result; the format is ignored.
ZORVAN_SETTINGS_EXPORT std::from_chars_result FromChars(const char* first, const char* last, float& value,
                                                        std::chars_format format = std::chars_format::general);
ZORVAN_SETTINGS_EXPORT std::from_chars_result FromChars(const char* first, const char* last, double& value,
                                                        std::chars_format format = std::chars_format::general);

} // namespace Zorvan

namespace Zorvan::Core::Utils {

// Part 1.2: each converted element followed by the separator, the last separator removed.
ZORVAN_SETTINGS_EXPORT std::string ToString(const std::vector<std::string>& values, const std::string& separator,
                                            const std::function<std::string(const std::string&)>& convert = {});

// Part 1.2: ToNumber<int>: an optional '-', then decimal digits, within int.
// ToNumber<unsigned int> (ours, for the whole unsigned 32-bit numbers of Part 2.1): decimal
// digits only, no sign, leading zeros allowed, within unsigned int; the rule of GetOption<unsigned int>.
template <typename T>
bool ToNumber(std::string_view text, T& value);
template <>
ZORVAN_SETTINGS_EXPORT bool ToNumber<int>(std::string_view text, int& value);
template <>
ZORVAN_SETTINGS_EXPORT bool ToNumber<unsigned int>(std::string_view text, unsigned int& value);

// Part 1.2: pieces of the text up to each delimiter, read through a string stream.
ZORVAN_SETTINGS_EXPORT void SplitString(std::vector<std::string>& pieces, const std::string& text, char delimiter);

} // namespace Zorvan::Core::Utils

namespace Zorvan::Proc {

class ZORVAN_SETTINGS_EXPORT Settings {
public:
    // The string map of GetOptionsMap and the view map of OptionsRegexSearch (Part 1.2).
    using OptionsMap = std::unordered_map<std::string, std::string, CaseInsensitiveHash, CaseInsensitiveEqual>;
    using OptionsViewMap = std::unordered_map<std::string, std::string_view, CaseInsensitiveHash, CaseInsensitiveEqual>;

    // Part 1.1: the virtual operations in their declared order.
    virtual ~Settings();
    virtual const std::string& GetClassId() const = 0;
    virtual std::unique_ptr<Settings> Clone() const = 0;
    virtual bool IsEqualTo(const Settings& other) const;
    virtual bool IsEmpty() const;
    virtual void Deserialize(const std::string& options);

    // Part 1.2: the static option functions.
    static OptionsMap GetOptionsMap(std::string_view options, const std::vector<std::string>& keys);
    static OptionsViewMap OptionsRegexSearch(std::string_view options, std::string_view keys,
                                             std::string_view valuePattern);
    static std::string_view OptionRegexSearch(std::string_view options, std::string_view key,
                                              std::string_view valuePattern);
    // Defined for float, double, int, unsigned char, unsigned short, unsigned int,
    // unsigned long and bool.
    template <typename T>
    static std::optional<T> GetOption(std::string_view options, std::string_view key, std::string_view valuePattern);

protected:
    Settings() = default;
    Settings(const Settings&) = default;
    Settings& operator=(const Settings&) = default;
};

// Part 1.1: `nearly equal` (relative to the sum) and `near zero`, for double and float.
ZORVAN_SETTINGS_EXPORT bool NearlyEqual(double a, double b);
ZORVAN_SETTINGS_EXPORT bool NearlyEqual(float a, float b);
ZORVAN_SETTINGS_EXPORT bool NearZero(double value);
ZORVAN_SETTINGS_EXPORT bool NearZero(float value);

} // namespace Zorvan::Proc
