#include "Proc/Settings/ProcException.h"

#include <boost/throw_exception.hpp>

namespace Zorvan::Proc {

namespace {

boost::source_location ToBoost(const std::source_location& location)
{
    return boost::source_location(location);
}

// Form A: construct, stream the description, AddStack, boost::throw_exception.
template <class E>
[[noreturn]] void ThrowFormA(const std::string& message, const std::source_location& location)
{
    E exception;
    exception << ErrorInfoDescription(message);
    boost::throw_exception(AddStack(exception), ToBoost(location));
}

// Form B: construct with the message, AddStack (stack into the text), boost::throw_exception.
template <class E>
[[noreturn]] void ThrowFormB(const std::string& message, const std::source_location& location)
{
    boost::throw_exception(AddStack(E(message)), ToBoost(location));
}

} // namespace

void ThrowSettings(const std::string& message, const std::source_location& location)
{
    ThrowFormA<SettingsException>(message, location);
}

void ThrowEffect(const std::string& message, const std::source_location& location)
{
    ThrowFormA<EffectException>(message, location);
}

void ThrowAnalyzer(const std::string& message, const std::source_location& location)
{
    ThrowFormA<AnalyzerException>(message, location);
}

void ThrowInvalidArgument(const std::string& message, const std::source_location& location)
{
    ThrowFormB<std::invalid_argument>(message, location);
}

void ThrowLogicError(const std::string& message, const std::source_location& location)
{
    ThrowFormB<std::logic_error>(message, location);
}

} // namespace Zorvan::Proc
