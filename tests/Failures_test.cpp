#include <gtest/gtest.h>

#include <boost/exception/get_error_info.hpp>
#include <boost/exception/info.hpp>
#include <boost/exception_ptr.hpp>
#include <boost/throw_exception.hpp>

#include <functional>
#include <typeinfo>
#include <utility>

#include "Proc/Settings/ProcException.h"

using namespace Zorvan::Proc;
using Zorvan::ErrorInfoCallStack;
using Zorvan::ErrorInfoDescription;

namespace {

using Thrower = void (*)(const std::string&, const std::source_location&);

const std::string kStdWhat = std::exception().what();

static_assert(std::is_base_of_v<Zorvan::Exception, ProcException> &&
              std::is_base_of_v<ProcException, SettingsException> &&
              std::is_base_of_v<ProcException, EffectException> && std::is_base_of_v<ProcException, AnalyzerException>);
static_assert(!std::is_base_of_v<SettingsException, EffectException> &&
              !std::is_base_of_v<EffectException, AnalyzerException> &&
              !std::is_base_of_v<AnalyzerException, SettingsException>);

// The throw location boost stored, as "file:line function".
std::string Location(const std::exception& e)
{
    const char* const* file = boost::get_error_info<boost::throw_file>(e);
    const int* line = boost::get_error_info<boost::throw_line>(e);
    const char* const* function = boost::get_error_info<boost::throw_function>(e);
    return file && line && function ? std::string(*file) + ":" + std::to_string(*line) + " " + *function : "none";
}

} // namespace

// Form A carries the description verbatim in a boost record, keeps std::exception's
// what() and adds a call stack; form B puts the message, a newline and the stack in
// what(). Both record the location given and are thrown as exactly their own class.
TEST(Failures, FormsAAndB)
{
    const std::pair<Thrower, const std::type_info&> rows[] = {
        {&ThrowSettings, typeid(boost::wrapexcept<SettingsException>)},
        {&ThrowEffect, typeid(boost::wrapexcept<EffectException>)},
        {&ThrowAnalyzer, typeid(boost::wrapexcept<AnalyzerException>)},
        {&ThrowInvalidArgument, typeid(boost::wrapexcept<std::invalid_argument>)},
        {&ThrowLogicError, typeid(boost::wrapexcept<std::logic_error>)}};
    const std::string message = "Value {} of 100% is 'bad'";
    const std::source_location where = std::source_location::current();
    for (const auto& [thrower, type] : rows) {
        SCOPED_TRACE(type.name());
        boost::exception_ptr cloned;
        try {
            thrower(message, where);
        } catch (const std::exception& e) {
            cloned = boost::current_exception();
            const bool formA = dynamic_cast<const ProcException*>(&e) != nullptr;
            const std::string what = e.what();
            const std::string* description = boost::get_error_info<ErrorInfoDescription>(e);
            EXPECT_EQ(typeid(e), type) << typeid(e).name();
            EXPECT_EQ(Location(e), std::string(where.file_name()) + ":" + std::to_string(where.line()) + " " +
                                       where.function_name());
            EXPECT_EQ(description ? *description : "none", formA ? message : "none");
            EXPECT_EQ(boost::get_error_info<ErrorInfoCallStack>(e) != nullptr, formA);
            EXPECT_EQ(formA ? what : what.substr(0, message.size() + 1), formA ? kStdWhat : message + "\n");
        }
        // boost can carry it to another thread with its class.
        try {
            boost::rethrow_exception(cloned);
        } catch (const std::exception& e) {
            EXPECT_EQ(typeid(e), type) << typeid(e).name();
        }
    }
}

// Called without a location, every helper records its caller's, not its own.
TEST(Failures, DefaultLocationIsTheCaller)
{
    const struct {
        std::function<void()> call;
        int line;
    } rows[] = {{[] { ThrowSettings("m"); }, __LINE__},
                {[] { ThrowEffect("m"); }, __LINE__},
                {[] { ThrowAnalyzer("m"); }, __LINE__},
                {[] { ThrowInvalidArgument("m"); }, __LINE__},
                {[] { ThrowLogicError("m"); }, __LINE__}};
    for (const auto& row : rows) {
        std::string location = "nothing thrown";
        try {
            row.call();
        } catch (const std::exception& e) {
            location = Location(e);
        }
        EXPECT_NE(location.find("Failures_test.cpp:" + std::to_string(row.line) + " "), std::string::npos) << location;
    }
}

template <class E>
void ExpectStandardAddStack()
{
    const E original("standard message");
    static_assert(std::is_same_v<decltype(Zorvan::AddStack(original)), E>);
    const E result = Zorvan::AddStack(original);
    EXPECT_EQ(typeid(result), typeid(E));
    EXPECT_EQ(std::string(result.what()).substr(0, 17), "standard message\n");
    EXPECT_EQ(std::string(original.what()), "standard message");
}

TEST(Failures, AddStack)
{
    SettingsException e;
    e << ErrorInfoDescription("described");
    static_assert(std::is_same_v<decltype(Zorvan::AddStack(e)), const SettingsException&>);
    EXPECT_EQ(&Zorvan::AddStack(e), &e);
    EXPECT_NE(boost::get_error_info<ErrorInfoCallStack>(e), nullptr);
    EXPECT_EQ(*boost::get_error_info<ErrorInfoDescription>(e), "described");
    EXPECT_EQ(std::string(e.what()), kStdWhat);

    ExpectStandardAddStack<std::invalid_argument>();
    ExpectStandardAddStack<std::logic_error>();
    ExpectStandardAddStack<std::runtime_error>();
}
