// Part 1.3: Failure reporting. Written from the spec: the exception classes, what a
// thrown exception carries (description, call stack, throw location), the throwing
// forms A, B and C, AddStack, and the base defaults of Part 1.1 that throw.
#include <cstring>
#include <exception>
#include <optional>
#include <regex>
#include <source_location>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <vector>

#include <gtest/gtest.h>

#include <boost/exception/exception.hpp>
#include <boost/exception/get_error_info.hpp>
#include <boost/exception/info.hpp>
#include <boost/exception_ptr.hpp>
#include <boost/throw_exception.hpp>

#include "Proc/Settings/ProcException.h"
#include "Proc/Settings/Settings.h"
#include "Proc/Settings/SettingsEffectBlur.h"
#include "Proc/Settings/SettingsEffectBlurGaussian.h"
#include "imported/FndException.h"

namespace {

using Zorvan::ErrorInfoCallStack;
using Zorvan::ErrorInfoDescription;
using Zorvan::Proc::AnalyzerException;
using Zorvan::Proc::EffectException;
using Zorvan::Proc::ProcException;
using Zorvan::Proc::SettingsException;

// The spec's name of the description record.
using DescriptionRecord = boost::error_info<Zorvan::TagDescription, std::string>;
static_assert(std::is_same_v<DescriptionRecord, ErrorInfoDescription>);

// Everything a caught exception carries, copied out of the catch block.
struct Caught {
    bool thrown = false;
    bool standard = false; // derived from std::exception
    const std::type_info* type = nullptr;
    std::string what;
    bool isBoostException = false;
    std::optional<std::string> description;
    std::optional<std::string> callStack;
    std::optional<std::string> file;
    std::optional<std::string> function;
    std::optional<int> line;
    bool isProc = false;
    bool isSettings = false;
    bool isEffect = false;
    bool isAnalyzer = false;
    bool isZorvan = false;
    std::exception_ptr pointer;
};

template <class Fn>
Caught Capture(Fn&& fn)
{
    Caught c;
    try {
        fn();
    } catch (const std::exception& e) {
        c.thrown = true;
        c.standard = true;
        c.type = &typeid(e);
        c.what = e.what();
        c.isBoostException = dynamic_cast<const boost::exception*>(&e) != nullptr;
        if (const std::string* d = boost::get_error_info<ErrorInfoDescription>(e)) {
            c.description = *d;
        }
        if (const std::string* s = boost::get_error_info<ErrorInfoCallStack>(e)) {
            c.callStack = *s;
        }
        if (const char* const* f = boost::get_error_info<boost::throw_file>(e)) {
            c.file = *f;
        }
        if (const char* const* f = boost::get_error_info<boost::throw_function>(e)) {
            c.function = *f;
        }
        if (const int* l = boost::get_error_info<boost::throw_line>(e)) {
            c.line = *l;
        }
        c.isZorvan = dynamic_cast<const Zorvan::Exception*>(&e) != nullptr;
        c.isProc = dynamic_cast<const ProcException*>(&e) != nullptr;
        c.isSettings = dynamic_cast<const SettingsException*>(&e) != nullptr;
        c.isEffect = dynamic_cast<const EffectException*>(&e) != nullptr;
        c.isAnalyzer = dynamic_cast<const AnalyzerException*>(&e) != nullptr;
        c.pointer = std::current_exception();
    } catch (...) {
        c.thrown = true;
        c.pointer = std::current_exception();
    }
    return c;
}

std::string FirstLine(const std::string& text)
{
    return text.substr(0, text.find('\n'));
}

const std::string kStdExceptionWhat = std::exception().what();

// ===================================================================================
// Class hierarchy (static facts of the data model).
// ===================================================================================

TEST(Part13Classes, ZorvanExceptionHasVirtualStdAndBoostBases)
{
    EXPECT_TRUE((std::is_base_of_v<std::exception, Zorvan::Exception>));
    EXPECT_TRUE((std::is_base_of_v<boost::exception, Zorvan::Exception>));
    // Virtual bases: a cast from the base to the derived class is not static.
    EXPECT_FALSE((std::is_convertible_v<std::exception*, Zorvan::Exception*>));
}

TEST(Part13Classes, ProcExceptionChildrenDeriveFromProcExceptionAndNotFromEachOther)
{
    EXPECT_TRUE((std::is_base_of_v<Zorvan::Exception, ProcException>));
    EXPECT_TRUE((std::is_base_of_v<ProcException, SettingsException>));
    EXPECT_TRUE((std::is_base_of_v<ProcException, EffectException>));
    EXPECT_TRUE((std::is_base_of_v<ProcException, AnalyzerException>));
    EXPECT_FALSE((std::is_base_of_v<SettingsException, EffectException>));
    EXPECT_FALSE((std::is_base_of_v<SettingsException, AnalyzerException>));
    EXPECT_FALSE((std::is_base_of_v<EffectException, SettingsException>));
    EXPECT_FALSE((std::is_base_of_v<EffectException, AnalyzerException>));
    EXPECT_FALSE((std::is_base_of_v<AnalyzerException, SettingsException>));
    EXPECT_FALSE((std::is_base_of_v<AnalyzerException, EffectException>));
}

TEST(Part13Classes, DefaultConstructedProcExceptionsHaveStdExceptionWhat)
{
    EXPECT_EQ(std::string(SettingsException().what()), kStdExceptionWhat);
    EXPECT_EQ(std::string(EffectException().what()), kStdExceptionWhat);
    EXPECT_EQ(std::string(AnalyzerException().what()), kStdExceptionWhat);
    EXPECT_EQ(std::string(ProcException().what()), kStdExceptionWhat);
}

// ===================================================================================
// Form A, one row per throw helper.
// ===================================================================================

using FormAThrower = void (*)(const std::string&, const std::source_location&);

enum class FormAClass { Settings, Effect, Analyzer };

struct FormARow {
    std::string name;
    FormAThrower thrower;
    FormAClass kind;
    const std::type_info* wrapped; // typeid of boost::wrapexcept<the class>
};

const std::vector<FormARow> kFormARows = {
    {"ThrowSettings", &Zorvan::Proc::ThrowSettings, FormAClass::Settings,
     &typeid(boost::wrapexcept<SettingsException>)},
    {"ThrowEffect", &Zorvan::Proc::ThrowEffect, FormAClass::Effect, &typeid(boost::wrapexcept<EffectException>)},
    {"ThrowAnalyzer", &Zorvan::Proc::ThrowAnalyzer, FormAClass::Analyzer,
     &typeid(boost::wrapexcept<AnalyzerException>)},
};

class FormATable : public ::testing::TestWithParam<FormARow> {};

TEST_P(FormATable, ThrowsWrapexceptOfExactlyItsClass)
{
    const FormARow& row = GetParam();
    const Caught c = Capture([&] { row.thrower("form A message", std::source_location::current()); });
    ASSERT_TRUE(c.standard);
    EXPECT_EQ(*c.type, *row.wrapped) << c.type->name();
    EXPECT_TRUE(c.isZorvan);
    EXPECT_TRUE(c.isProc);
    EXPECT_EQ(c.isSettings, row.kind == FormAClass::Settings);
    EXPECT_EQ(c.isEffect, row.kind == FormAClass::Effect);
    EXPECT_EQ(c.isAnalyzer, row.kind == FormAClass::Analyzer);
}

TEST_P(FormATable, DescriptionRecordHoldsTheMessageVerbatim)
{
    const FormARow& row = GetParam();
    const std::string message = "Value {} of 100% is 'bad'\nsecond line";
    const Caught c = Capture([&] { row.thrower(message, std::source_location::current()); });
    ASSERT_TRUE(c.description.has_value());
    EXPECT_EQ(*c.description, message);
}

TEST_P(FormATable, EmptyMessageGivesEmptyDescriptionRecord)
{
    const FormARow& row = GetParam();
    const Caught c = Capture([&] { row.thrower("", std::source_location::current()); });
    ASSERT_TRUE(c.description.has_value());
    EXPECT_EQ(*c.description, "");
}

TEST_P(FormATable, CallStackRecordIsAttached)
{
    const FormARow& row = GetParam();
    const Caught c = Capture([&] { row.thrower("m", std::source_location::current()); });
    EXPECT_TRUE(c.callStack.has_value());
}

TEST_P(FormATable, WhatIsThatOfStdException)
{
    const FormARow& row = GetParam();
    const Caught c = Capture([&] { row.thrower("some description", std::source_location::current()); });
    ASSERT_TRUE(c.standard);
    EXPECT_EQ(c.what, kStdExceptionWhat);
}

TEST_P(FormATable, ThrowLocationIsThePassedSourceLocation)
{
    const FormARow& row = GetParam();
    const std::source_location where = std::source_location::current();
    const Caught c = Capture([&] { row.thrower("m", where); });
    ASSERT_TRUE(c.file.has_value());
    ASSERT_TRUE(c.line.has_value());
    ASSERT_TRUE(c.function.has_value());
    EXPECT_EQ(*c.file, where.file_name());
    EXPECT_EQ(*c.line, static_cast<int>(where.line()));
    EXPECT_EQ(*c.function, where.function_name());
}

TEST_P(FormATable, CatchingProcExceptionCatchesIt)
{
    const FormARow& row = GetParam();
    bool caught = false;
    try {
        row.thrower("m", std::source_location::current());
    } catch (const ProcException& e) {
        caught = true;
        const std::string* description = boost::get_error_info<ErrorInfoDescription>(e);
        ASSERT_NE(description, nullptr);
        EXPECT_EQ(*description, "m");
    } catch (...) {
    }
    EXPECT_TRUE(caught);
}

TEST_P(FormATable, IsNotAStandardArgumentOrLogicError)
{
    const FormARow& row = GetParam();
    const Caught c = Capture([&] { row.thrower("m", std::source_location::current()); });
    ASSERT_TRUE(c.pointer);
    bool caughtAsLogic = false;
    try {
        std::rethrow_exception(c.pointer);
    } catch (const std::logic_error&) {
        caughtAsLogic = true;
    } catch (...) {
    }
    EXPECT_FALSE(caughtAsLogic);
}

TEST_P(FormATable, BoostCloneRethrowsSameClassWithRecords)
{
    const FormARow& row = GetParam();
    boost::exception_ptr cloned;
    try {
        row.thrower("cloned message", std::source_location::current());
    } catch (...) {
        cloned = boost::current_exception();
    }
    ASSERT_TRUE(cloned);
    const Caught c = Capture([&] { boost::rethrow_exception(cloned); });
    ASSERT_TRUE(c.standard);
    EXPECT_TRUE(c.isProc);
    EXPECT_EQ(c.isSettings, row.kind == FormAClass::Settings);
    EXPECT_EQ(c.isEffect, row.kind == FormAClass::Effect);
    EXPECT_EQ(c.isAnalyzer, row.kind == FormAClass::Analyzer);
    ASSERT_TRUE(c.description.has_value());
    EXPECT_EQ(*c.description, "cloned message");
    EXPECT_TRUE(c.callStack.has_value());
}

INSTANTIATE_TEST_SUITE_P(Part13, FormATable, ::testing::ValuesIn(kFormARows),
                         [](const auto& info) { return info.param.name; });

// ===================================================================================
// Form A: catching by the exact class through boost::wrapexcept; exclusivity.
// ===================================================================================

TEST(Part13FormA, SettingsExceptionIsCaughtBySettingsExceptionClause)
{
    bool caught = false;
    try {
        Zorvan::Proc::ThrowSettings("s");
    } catch (const EffectException&) {
    } catch (const AnalyzerException&) {
    } catch (const SettingsException& e) {
        caught = true;
        EXPECT_EQ(*boost::get_error_info<ErrorInfoDescription>(e), "s");
    }
    EXPECT_TRUE(caught);
}

TEST(Part13FormA, EffectExceptionIsNotASettingsException)
{
    bool caughtAsEffect = false;
    try {
        Zorvan::Proc::ThrowEffect("e");
    } catch (const SettingsException&) {
        ADD_FAILURE() << "EffectException caught as SettingsException";
    } catch (const AnalyzerException&) {
        ADD_FAILURE() << "EffectException caught as AnalyzerException";
    } catch (const EffectException& e) {
        caughtAsEffect = true;
        EXPECT_EQ(*boost::get_error_info<ErrorInfoDescription>(e), "e");
    }
    EXPECT_TRUE(caughtAsEffect);
}

TEST(Part13FormA, AnalyzerExceptionIsNeitherSettingsNorEffectException)
{
    bool caughtAsAnalyzer = false;
    try {
        Zorvan::Proc::ThrowAnalyzer("Backbone model already settled by binary data!");
    } catch (const SettingsException&) {
        ADD_FAILURE() << "AnalyzerException caught as SettingsException";
    } catch (const EffectException&) {
        ADD_FAILURE() << "AnalyzerException caught as EffectException";
    } catch (const AnalyzerException& e) {
        caughtAsAnalyzer = true;
        EXPECT_EQ(*boost::get_error_info<ErrorInfoDescription>(e), "Backbone model already settled by binary data!");
    }
    EXPECT_TRUE(caughtAsAnalyzer);
}

TEST(Part13FormA, CatchingProcExceptionCatchesAllThreeButNotInvalidArgument)
{
    int caughtAsProc = 0;
    const auto attempt = [&caughtAsProc](auto&& throwing) {
        try {
            throwing();
        } catch (const ProcException&) {
            ++caughtAsProc;
        } catch (...) {
        }
    };
    attempt([] { Zorvan::Proc::ThrowSettings("s"); });
    attempt([] { Zorvan::Proc::ThrowEffect("e"); });
    attempt([] { Zorvan::Proc::ThrowAnalyzer("a"); });
    EXPECT_EQ(caughtAsProc, 3);
    attempt([] { Zorvan::Proc::ThrowInvalidArgument("i"); });
    attempt([] { throw std::invalid_argument("plain"); });
    EXPECT_EQ(caughtAsProc, 3);
}

// The location stored by boost::throw_exception is that of the caller of the helper:
// this file, this function, the line of the call.

void ExpectLocation(const Caught& c, const std::source_location& here, int line)
{
    ASSERT_TRUE(c.file.has_value());
    ASSERT_TRUE(c.function.has_value());
    ASSERT_TRUE(c.line.has_value());
    EXPECT_EQ(*c.file, here.file_name());
    EXPECT_NE(c.file->find("Failures_test.cpp"), std::string::npos) << *c.file;
    EXPECT_EQ(*c.function, here.function_name());
    EXPECT_EQ(*c.line, line);
}

TEST(Part13Location, ThrowSettingsRecordsTheCallersFileFunctionAndLine)
{
    const std::source_location here = std::source_location::current();
    int line = 0;
    Caught c;
    try {
        line = __LINE__ + 1;
        Zorvan::Proc::ThrowSettings("located");
    } catch (...) {
        c = Capture([] { throw; });
    }
    ExpectLocation(c, here, line);
}

TEST(Part13Location, ThrowEffectRecordsTheCallersFileFunctionAndLine)
{
    const std::source_location here = std::source_location::current();
    int line = 0;
    Caught c;
    try {
        line = __LINE__ + 1;
        Zorvan::Proc::ThrowEffect("located");
    } catch (...) {
        c = Capture([] { throw; });
    }
    ExpectLocation(c, here, line);
}

TEST(Part13Location, ThrowAnalyzerRecordsTheCallersFileFunctionAndLine)
{
    const std::source_location here = std::source_location::current();
    int line = 0;
    Caught c;
    try {
        line = __LINE__ + 1;
        Zorvan::Proc::ThrowAnalyzer("located");
    } catch (...) {
        c = Capture([] { throw; });
    }
    ExpectLocation(c, here, line);
}

TEST(Part13Location, ThrowInvalidArgumentRecordsTheCallersFileFunctionAndLine)
{
    const std::source_location here = std::source_location::current();
    int line = 0;
    Caught c;
    try {
        line = __LINE__ + 1;
        Zorvan::Proc::ThrowInvalidArgument("located");
    } catch (...) {
        c = Capture([] { throw; });
    }
    ExpectLocation(c, here, line);
}

TEST(Part13Location, ThrowLogicErrorRecordsTheCallersFileFunctionAndLine)
{
    const std::source_location here = std::source_location::current();
    int line = 0;
    Caught c;
    try {
        line = __LINE__ + 1;
        Zorvan::Proc::ThrowLogicError("located");
    } catch (...) {
        c = Capture([] { throw; });
    }
    ExpectLocation(c, here, line);
}

// ===================================================================================
// Form B.
// ===================================================================================

using FormBThrower = void (*)(const std::string&, const std::source_location&);

struct FormBRow {
    std::string name;
    FormBThrower thrower;
    const std::type_info* wrapped;
    bool isInvalidArgument;
};

const std::vector<FormBRow> kFormBRows = {
    {"ThrowInvalidArgument", &Zorvan::Proc::ThrowInvalidArgument, &typeid(boost::wrapexcept<std::invalid_argument>),
     true},
    {"ThrowLogicError", &Zorvan::Proc::ThrowLogicError, &typeid(boost::wrapexcept<std::logic_error>), false},
};

class FormBTable : public ::testing::TestWithParam<FormBRow> {};

TEST_P(FormBTable, ThrowsWrapexceptOfExactlyItsStandardClass)
{
    const FormBRow& row = GetParam();
    const Caught c = Capture([&] { row.thrower("Invalid frame mode: x", std::source_location::current()); });
    ASSERT_TRUE(c.standard);
    EXPECT_EQ(*c.type, *row.wrapped) << c.type->name();
    EXPECT_FALSE(c.isZorvan);
    EXPECT_FALSE(c.isProc);
}

TEST_P(FormBTable, WhatBeginsWithMessageAndNewline)
{
    const FormBRow& row = GetParam();
    const std::string message = "Invalid frame mode: Sendfield";
    const Caught c = Capture([&] { row.thrower(message, std::source_location::current()); });
    ASSERT_TRUE(c.standard);
    EXPECT_EQ(c.what.substr(0, message.size() + 1), message + "\n") << c.what;
    EXPECT_EQ(FirstLine(c.what), message);
}

TEST_P(FormBTable, EmptyMessageGivesWhatStartingWithNewline)
{
    const FormBRow& row = GetParam();
    const Caught c = Capture([&] { row.thrower("", std::source_location::current()); });
    ASSERT_TRUE(c.standard);
    ASSERT_FALSE(c.what.empty());
    EXPECT_EQ(c.what[0], '\n');
}

TEST_P(FormBTable, CarriesNoDescriptionOrCallStackRecord)
{
    const FormBRow& row = GetParam();
    const Caught c = Capture([&] { row.thrower("m", std::source_location::current()); });
    ASSERT_TRUE(c.standard);
    EXPECT_FALSE(c.description.has_value());
    EXPECT_FALSE(c.callStack.has_value());
}

TEST_P(FormBTable, ThrowLocationIsThePassedSourceLocation)
{
    const FormBRow& row = GetParam();
    const std::source_location where = std::source_location::current();
    const Caught c = Capture([&] { row.thrower("m", where); });
    ASSERT_TRUE(c.isBoostException);
    ASSERT_TRUE(c.file.has_value());
    ASSERT_TRUE(c.line.has_value());
    ASSERT_TRUE(c.function.has_value());
    EXPECT_EQ(*c.file, where.file_name());
    EXPECT_EQ(*c.line, static_cast<int>(where.line()));
    EXPECT_EQ(*c.function, where.function_name());
}

TEST_P(FormBTable, IsCaughtByItsStandardClassAndNotByProcException)
{
    const FormBRow& row = GetParam();
    bool caughtAsProc = false;
    bool caughtAsInvalidArgument = false;
    bool caughtAsLogicError = false;
    try {
        row.thrower("m", std::source_location::current());
    } catch (const ProcException&) {
        caughtAsProc = true;
    } catch (const std::invalid_argument& e) {
        caughtAsInvalidArgument = true;
        EXPECT_EQ(FirstLine(e.what()), "m");
    } catch (const std::logic_error& e) {
        caughtAsLogicError = true;
        EXPECT_EQ(FirstLine(e.what()), "m");
    }
    EXPECT_FALSE(caughtAsProc);
    EXPECT_EQ(caughtAsInvalidArgument, row.isInvalidArgument);
    EXPECT_EQ(caughtAsLogicError, !row.isInvalidArgument);
}

TEST_P(FormBTable, BoostCloneRethrowsSameClassAndText)
{
    const FormBRow& row = GetParam();
    boost::exception_ptr cloned;
    std::string original;
    try {
        row.thrower("cloned", std::source_location::current());
    } catch (const std::exception& e) {
        original = e.what();
        cloned = boost::current_exception();
    }
    ASSERT_TRUE(cloned);
    const Caught c = Capture([&] { boost::rethrow_exception(cloned); });
    ASSERT_TRUE(c.standard);
    EXPECT_EQ(c.what, original);
    bool isInvalidArgument = false;
    try {
        std::rethrow_exception(c.pointer);
    } catch (const std::invalid_argument&) {
        isInvalidArgument = true;
    } catch (...) {
    }
    EXPECT_EQ(isInvalidArgument, row.isInvalidArgument);
}

INSTANTIATE_TEST_SUITE_P(Part13, FormBTable, ::testing::ValuesIn(kFormBRows),
                         [](const auto& info) { return info.param.name; });

// Form C (the failures of GetOption<T>) is tested in Part_1_2_OptionStrings_test.cpp, the
// Part that defines GetOption<T>.

// ===================================================================================
// AddStack.
// ===================================================================================

TEST(Part13AddStack, OnZorvanExceptionAttachesCallStackAndReturnsTheSameObject)
{
    SettingsException e;
    e << ErrorInfoDescription("described");
    EXPECT_EQ(boost::get_error_info<ErrorInfoCallStack>(e), nullptr);
    static_assert(std::is_same_v<decltype(Zorvan::AddStack(e)), const SettingsException&>);
    const SettingsException& result = Zorvan::AddStack(e);
    EXPECT_EQ(&result, &e);
    EXPECT_NE(boost::get_error_info<ErrorInfoCallStack>(e), nullptr);
    ASSERT_NE(boost::get_error_info<ErrorInfoDescription>(e), nullptr);
    EXPECT_EQ(*boost::get_error_info<ErrorInfoDescription>(e), "described");
    EXPECT_EQ(std::string(e.what()), kStdExceptionWhat);
}

TEST(Part13AddStack, OnEffectAndAnalyzerExceptionsAttachesCallStack)
{
    EffectException effect;
    AnalyzerException analyzer;
    Zorvan::AddStack(effect);
    Zorvan::AddStack(analyzer);
    EXPECT_NE(boost::get_error_info<ErrorInfoCallStack>(effect), nullptr);
    EXPECT_NE(boost::get_error_info<ErrorInfoCallStack>(analyzer), nullptr);
    EXPECT_EQ(boost::get_error_info<ErrorInfoDescription>(effect), nullptr);
}

template <class E>
class AddStackStandardTyped : public ::testing::Test {
};

using StandardChildren =
    ::testing::Types<std::invalid_argument, std::logic_error, std::out_of_range, std::domain_error, std::length_error,
                     std::runtime_error, std::range_error, std::overflow_error, std::underflow_error>;
TYPED_TEST_SUITE(AddStackStandardTyped, StandardChildren);

TYPED_TEST(AddStackStandardTyped, ReturnsNewExceptionOfSameTypeWithMessageNewlineThenStack)
{
    const TypeParam original("standard message");
    static_assert(std::is_same_v<decltype(Zorvan::AddStack(original)), TypeParam>);
    const TypeParam result = Zorvan::AddStack(original);
    const std::string what = result.what();
    EXPECT_EQ(what.substr(0, std::strlen("standard message\n")), "standard message\n") << what;
    EXPECT_EQ(FirstLine(what), "standard message");
    EXPECT_EQ(std::string(original.what()), "standard message");
    EXPECT_EQ(typeid(result), typeid(TypeParam));
}

// ===================================================================================
// Base defaults of Part 1.1, reported by form A.
// ===================================================================================

TEST(Part13BaseDefaults, DeserializeWithoutOverrideThrowsSettingsExceptionWithDescription)
{
    Zorvan::Proc::SettingsEffectBlur blur;
    const Caught c = Capture([&] { blur.Deserialize("scale=1"); });
    ASSERT_TRUE(c.standard);
    EXPECT_EQ(*c.type, typeid(boost::wrapexcept<SettingsException>)) << c.type->name();
    ASSERT_TRUE(c.description.has_value());
    EXPECT_EQ(*c.description, "Not implemented fill from string for settings CLASS_ID = EFFECT_BLUR");
    EXPECT_TRUE(c.callStack.has_value());
    EXPECT_TRUE(c.file.has_value());
    EXPECT_TRUE(c.line.has_value());
    EXPECT_EQ(c.what, kStdExceptionWhat);
}

TEST(Part13BaseDefaults, DeserializeOfEmptyStringWithoutOverrideThrowsToo)
{
    Zorvan::Proc::SettingsEffectBlur blur;
    const Caught c = Capture([&] { blur.Deserialize(""); });
    ASSERT_TRUE(c.standard);
    EXPECT_TRUE(c.isSettings);
    ASSERT_TRUE(c.description.has_value());
    EXPECT_EQ(*c.description, "Not implemented fill from string for settings CLASS_ID = EFFECT_BLUR");
}

TEST(Part13BaseDefaults, DeserializeDescriptionNamesTheClassIdOfTheRecord)
{
    Zorvan::Proc::SettingsEffectBlur blur;
    ASSERT_EQ(Zorvan::Proc::SettingsEffectBlur::CLASS_ID, "EFFECT_BLUR");
    Zorvan::Proc::Settings& base = blur;
    const Caught c = Capture([&] { base.Deserialize("x=1"); });
    ASSERT_TRUE(c.description.has_value());
    EXPECT_EQ(*c.description,
              "Not implemented fill from string for settings CLASS_ID = " + Zorvan::Proc::SettingsEffectBlur::CLASS_ID);
}

TEST(Part13BaseDefaults, IsEqualToWithoutOverrideThrowsSettingsExceptionWithDescription)
{
    // SettingsEffectBlurGaussian keeps the base's IsEqualTo (Parts 1.1 and 1.5).
    Zorvan::Proc::SettingsEffectBlurGaussian gaussian;
    const Caught c = Capture([&] { (void)gaussian.IsEqualTo(gaussian); });
    ASSERT_TRUE(c.standard);
    EXPECT_EQ(*c.type, typeid(boost::wrapexcept<SettingsException>)) << c.type->name();
    ASSERT_TRUE(c.description.has_value());
    EXPECT_EQ(*c.description, "Not implemented comparison for settings CLASS_ID = $$EffectBlurGaussian$$");
    EXPECT_TRUE(c.callStack.has_value());
    EXPECT_TRUE(c.file.has_value());
    EXPECT_EQ(c.what, kStdExceptionWhat);
}

TEST(Part13BaseDefaults, IsEqualToWithoutOverrideIgnoresTheOtherRecord)
{
    Zorvan::Proc::SettingsEffectBlurGaussian gaussian;
    const Zorvan::Proc::SettingsEffectBlur foreign;
    const Caught c = Capture([&] { (void)gaussian.IsEqualTo(foreign); });
    ASSERT_TRUE(c.standard);
    EXPECT_EQ(*c.type, typeid(boost::wrapexcept<SettingsException>)) << c.type->name();
    ASSERT_TRUE(c.description.has_value());
    EXPECT_EQ(*c.description, "Not implemented comparison for settings CLASS_ID = " +
                                  Zorvan::Proc::SettingsEffectBlurGaussian::CLASS_ID);
}

TEST(Part13BaseDefaults, FailedBaseCallsLeaveTheRecordUnchanged)
{
    Zorvan::Proc::SettingsEffectBlurGaussian gaussian;
    gaussian.SetScale(2.5);
    gaussian.SetFast(true);
    const Caught c = Capture([&] { (void)gaussian.IsEqualTo(gaussian); });
    EXPECT_TRUE(c.isSettings);
    EXPECT_EQ(gaussian.GetScale(), 2.5);
    EXPECT_TRUE(gaussian.GetFast());
}

// ===================================================================================
// Exceptions of the standard library pass through unchanged.
// ===================================================================================

TEST(Part13PassThrough, StodInvalidArgumentLeavesDeserializeUnwrapped)
{
    Zorvan::Proc::SettingsEffectBlurGaussian gaussian;
    const Caught c = Capture([&] { gaussian.Deserialize("scale=-"); });
    ASSERT_TRUE(c.standard);
    EXPECT_EQ(*c.type, typeid(std::invalid_argument)) << c.type->name();
    EXPECT_FALSE(c.isBoostException);
}

TEST(Part13PassThrough, StoiOutOfRangeLeavesDeserializeUnwrapped)
{
    Zorvan::Proc::SettingsEffectBlurGaussian gaussian;
    const Caught c = Capture([&] { gaussian.Deserialize("fast=99999999999"); });
    ASSERT_TRUE(c.standard);
    EXPECT_EQ(*c.type, typeid(std::out_of_range)) << c.type->name();
    EXPECT_FALSE(c.isBoostException);
}

TEST(Part13PassThrough, RegexErrorLeavesGetOptionsMapUnwrapped)
{
    const Caught c = Capture([] { (void)Zorvan::Proc::Settings::GetOptionsMap("a=1", {"(a"}); });
    ASSERT_TRUE(c.standard);
    EXPECT_EQ(*c.type, typeid(std::regex_error)) << c.type->name();
    EXPECT_FALSE(c.isBoostException);
}

} // namespace
