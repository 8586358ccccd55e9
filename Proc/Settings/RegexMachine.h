#pragma once
// Internal to the library's sources: not installed with the public headers (see CMakeLists.txt).
//
// The engine behind option patterns that callers write themselves. It reads an expression
// exactly as std::regex does with ECMAScript and icase in the global locale (it lets
// std::regex compile the expression first, so a bad one raises the same std::regex_error,
// and builds the same automaton from it), and searches with the same backtracking order,
// so every answer is std::regex's. Its backtracking stack lives on the heap: a long option
// value cannot overflow the thread's stack. A search that would need more than a bounded
// amount of that memory raises std::regex_error with error_stack instead.
#include <array>
#include <memory>
#include <string>
#include <string_view>

namespace Zorvan::Proc::RegexMachine {

class Program;

// The whole match and the first two groups; a group that took part in no match is empty
// at the end of the searched text, as in std::match_results.
struct Groups {
    const char* first[3];
    const char* second[3];
};

// The compiled expression, shared between calls of this thread while the global locale stays.
std::shared_ptr<const Program> Compile(const std::string& pattern);

// The bytes that a one-character expression (a character, an escape, '.', a bracket
// expression) matches, as std::regex decides with ECMAScript and icase in the global locale.
std::array<bool, 256> CharacterSet(std::string_view expression);

// std::regex_search(first, last, match, expression) with no match flags.
bool Search(const Program& program, const char* first, const char* last, Groups& groups);

} // namespace Zorvan::Proc::RegexMachine
