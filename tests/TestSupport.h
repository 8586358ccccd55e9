#pragma once
// Shared test helpers: run a call, require one exact exception class, and hand back
// its description as CONVENTIONS.md defines it (TagDescription for form A, what() up
// to its first newline for form B and C).
#include <gtest/gtest.h>

#include <boost/exception/get_error_info.hpp>
#include <boost/throw_exception.hpp>

#include <optional>
#include <string>
#include <typeinfo>

#include "Proc/Settings/ProcException.h"

namespace ZorvanTest {

// Calls f, which must throw exactly E (thrown by boost::throw_exception, so wrapped in
// boost::wrapexcept<E>); returns the TagDescription text.
template <class E, class F>
std::string FormADescription(F&& f)
{
    try {
        f();
    } catch (const E& e) {
        EXPECT_EQ(typeid(e), typeid(boost::wrapexcept<E>)) << "thrown: " << typeid(e).name();
        const std::string* description = boost::get_error_info<Zorvan::ErrorInfoDescription>(e);
        EXPECT_NE(description, nullptr);
        return description ? *description : std::string("<no description>");
    } catch (const std::exception& e) {
        ADD_FAILURE() << "unexpected exception " << typeid(e).name() << ": " << e.what();
        return "<wrong exception>";
    }
    ADD_FAILURE() << "no exception";
    return "<no exception>";
}

// Calls f, which must throw exactly E in form B (through boost::throw_exception) or
// form C (plain throw, wrapped == false); returns what() up to its first newline.
template <class E, class F>
std::string FormBDescription(F&& f, bool wrapped = true)
{
    try {
        f();
    } catch (const E& e) {
        if (wrapped) {
            EXPECT_EQ(typeid(e), typeid(boost::wrapexcept<E>)) << "thrown: " << typeid(e).name();
        } else {
            EXPECT_EQ(typeid(e), typeid(E)) << "thrown: " << typeid(e).name();
        }
        const std::string text = e.what();
        return text.substr(0, text.find('\n'));
    } catch (const std::exception& e) {
        ADD_FAILURE() << "unexpected exception " << typeid(e).name() << ": " << e.what();
        return "<wrong exception>";
    }
    ADD_FAILURE() << "no exception";
    return "<no exception>";
}

// The dynamic class of whatever f throws, compared by typeid name: "nothing" when f returns.
template <class F>
std::string ThrownType(F&& f)
{
    try {
        f();
    } catch (const std::exception& e) {
        return typeid(e).name();
    }
    return "nothing";
}

} // namespace ZorvanTest
