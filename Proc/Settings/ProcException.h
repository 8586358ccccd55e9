#pragma once
// The library's exception classes, AddStack and the throwing forms A and B.
#include <source_location>
#include <stdexcept>
#include <string>
#include <type_traits>

#include "Proc/Settings/Export.h"
#include "imported/FndException.h"

namespace Zorvan::Proc {

class ZORVAN_SETTINGS_EXPORT ProcException : public Zorvan::Exception {};
class ZORVAN_SETTINGS_EXPORT SettingsException : public ProcException {};
class ZORVAN_SETTINGS_EXPORT EffectException : public ProcException {};
class ZORVAN_SETTINGS_EXPORT AnalyzerException : public ProcException {};

// Throwing form A: description, call stack, throw location, in this order.
[[noreturn]] ZORVAN_SETTINGS_EXPORT void
ThrowSettings(const std::string& message, const std::source_location& location = std::source_location::current());
[[noreturn]] ZORVAN_SETTINGS_EXPORT void
ThrowEffect(const std::string& message, const std::source_location& location = std::source_location::current());
[[noreturn]] ZORVAN_SETTINGS_EXPORT void
ThrowAnalyzer(const std::string& message, const std::source_location& location = std::source_location::current());

// Throwing form B: the message, a newline and the call stack in what().
[[noreturn]] ZORVAN_SETTINGS_EXPORT void
ThrowInvalidArgument(const std::string& message,
                     const std::source_location& location = std::source_location::current());
[[noreturn]] ZORVAN_SETTINGS_EXPORT void
ThrowLogicError(const std::string& message, const std::source_location& location = std::source_location::current());

} // namespace Zorvan::Proc

namespace Zorvan {

// AddStack for exceptions derived from Zorvan::Exception: attaches TagCallStack.
template <class E>
requires std::is_base_of_v<Zorvan::Exception, E>
const E& AddStack(const E& e)
{
    e << ErrorInfoCallStack(GetCallStack());
    return e;
}

// AddStack for std::logic_error and std::runtime_error children: a new E whose text
// is e.what(), a newline and the call stack.
template <class E>
requires(std::is_base_of_v<std::logic_error, E> || std::is_base_of_v<std::runtime_error, E>) E AddStack(const E& e)
{
    return E(std::string(e.what()) + "\n" + GetCallStack());
}

} // namespace Zorvan
