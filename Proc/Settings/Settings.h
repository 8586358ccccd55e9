#pragma once
// The base of every record and the reading of option strings.
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

// Hashes the text lowered byte by byte with the C tolower, so option keys match in any case.
struct ZORVAN_SETTINGS_EXPORT CaseInsensitiveHash {
    std::size_t operator()(std::string_view text) const;
};

// Equal lengths and equal tolower of every byte.
struct ZORVAN_SETTINGS_EXPORT CaseInsensitiveEqual {
    bool operator()(std::string_view left, std::string_view right) const;
};

// strtof/strtod behind a std::from_chars_result-shaped result; the format is ignored.
ZORVAN_SETTINGS_EXPORT std::from_chars_result FromChars(const char* first, const char* last, float& value,
                                                        std::chars_format format = std::chars_format::general);
ZORVAN_SETTINGS_EXPORT std::from_chars_result FromChars(const char* first, const char* last, double& value,
                                                        std::chars_format format = std::chars_format::general);

} // namespace Zorvan

namespace Zorvan::Core::Utils {

// Each converted element followed by the separator, the last separator removed.
ZORVAN_SETTINGS_EXPORT std::string ToString(const std::vector<std::string>& values, const std::string& separator,
                                            const std::function<std::string(const std::string&)>& convert = {});

// ToNumber<int>: an optional '-', then decimal digits, within int.
// ToNumber<unsigned int> (for the whole unsigned 32-bit sizes the resizer reads): decimal
// digits only, no sign, leading zeros allowed, within unsigned int; the rule of GetOption<unsigned int>.
template <typename T>
bool ToNumber(std::string_view text, T& value);
template <>
ZORVAN_SETTINGS_EXPORT bool ToNumber<int>(std::string_view text, int& value);
template <>
ZORVAN_SETTINGS_EXPORT bool ToNumber<unsigned int>(std::string_view text, unsigned int& value);

// Pieces of the text up to each delimiter, read through a string stream.
ZORVAN_SETTINGS_EXPORT void SplitString(std::vector<std::string>& pieces, const std::string& text, char delimiter);

} // namespace Zorvan::Core::Utils

namespace Zorvan::Proc {

class ZORVAN_SETTINGS_EXPORT Settings {
public:
    // The string map of GetOptionsMap and the view map of OptionsRegexSearch; keys match in any case.
    using OptionsMap = std::unordered_map<std::string, std::string, CaseInsensitiveHash, CaseInsensitiveEqual>;
    using OptionsViewMap = std::unordered_map<std::string, std::string_view, CaseInsensitiveHash, CaseInsensitiveEqual>;

    // The virtual operations in their declared order: the engine is built against this vtable.
    virtual ~Settings();
    virtual const std::string& GetClassId() const = 0;
    virtual std::unique_ptr<Settings> Clone() const = 0;
    virtual bool IsEqualTo(const Settings& other) const;
    virtual bool IsEmpty() const;
    virtual void Deserialize(const std::string& options);

    // The static option functions.
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

// `nearly equal` (relative to the sum) and `near zero`, for double and float.
ZORVAN_SETTINGS_EXPORT bool NearlyEqual(double a, double b);
ZORVAN_SETTINGS_EXPORT bool NearlyEqual(float a, float b);
ZORVAN_SETTINGS_EXPORT bool NearZero(double value);
ZORVAN_SETTINGS_EXPORT bool NearZero(float value);

} // namespace Zorvan::Proc
