#pragma once
// Internal to the library's sources: not installed with the public headers (see CMakeLists.txt).
//
// The reading behind Settings' option functions. The library's own patterns (keys that are
// literal words joined by '|', with the default, the numeric or the size value pattern) go
// through a matcher made for them: no expression is compiled, nothing recurses, and the time
// is linear in the length of the option string. Any other pattern goes through
// RegexMachine. Both give exactly what std::regex gives with ECMAScript and icase.
#include <string>
#include <string_view>
#include <vector>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc::OptionMatcher {

Settings::OptionsMap GetOptionsMap(std::string_view options, const std::vector<std::string>& keys);
Settings::OptionsViewMap OptionsRegexSearch(std::string_view options, std::string_view keys,
                                            std::string_view valuePattern);
std::string_view OptionRegexSearch(std::string_view options, std::string_view key, std::string_view valuePattern);

// Stand-ins for the three functions above. Only the benchmarks install one, to time whole
// records on the plain std::regex reading next to the library's own.
struct Replacement {
    Settings::OptionsMap (*getOptionsMap)(std::string_view, const std::vector<std::string>&);
    Settings::OptionsViewMap (*optionsRegexSearch)(std::string_view, std::string_view, std::string_view);
    std::string_view (*optionRegexSearch)(std::string_view, std::string_view, std::string_view);
};

// nullptr puts the library's own reading back.
void Replace(const Replacement* replacement);
const Replacement* CurrentReplacement();

} // namespace Zorvan::Proc::OptionMatcher
