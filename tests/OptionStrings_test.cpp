// Part 1.2: Option strings. Written from the spec: the grammar of the static option
// functions of Zorvan::Proc::Settings, the number parsers behind GetOption<T>, the
// helpers ToString, ToNumber<int>, SplitString, FromChars, the case-insensitive map,
// and SettingsEffectBlurGaussian::Deserialize (Part 1.1) through the grammar.
#include <cerrno>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <optional>
#include <regex>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <tuple>
#include <typeinfo>
#include <vector>

#include <gtest/gtest.h>

#include <boost/exception/exception.hpp>

#include "Proc/Settings/ProcException.h"
#include "Proc/Settings/Settings.h"
#include "Proc/Settings/SettingsEffectBlurGaussian.h"

namespace {

using Zorvan::Proc::Settings;

// The value patterns of Part 1.2, character for character.
constexpr std::string_view kNumericPattern = R"([0-9\.\,\-]+|"[^"]*")";
constexpr std::string_view kSizePattern = R"(\d+x\d+)";

std::string NotNumber(const std::string& value, const std::string& key)
{
    return "The '" + value + "' value of the '" + key + "' option is not a number";
}

std::string NotBoolean(const std::string& value, const std::string& key)
{
    return "The '" + value + "' value of the '" + key + "' option is not a boolean";
}

// Runs fn and checks that it throws an exception whose dynamic type is exactly Expected
// (not a child, not a boost::wrapexcept); with checkWhat, what() must equal expectedWhat.
template <class Expected, class Fn>
::testing::AssertionResult ThrowsExactly(Fn&& fn, const std::string& expectedWhat = {}, bool checkWhat = false)
{
    try {
        fn();
    } catch (const std::exception& e) {
        if (typeid(e) != typeid(Expected)) {
            return ::testing::AssertionFailure() << "threw " << typeid(e).name() << " instead of "
                                                 << typeid(Expected).name() << ", what() = \"" << e.what() << "\"";
        }
        if (checkWhat && expectedWhat != e.what()) {
            return ::testing::AssertionFailure()
                   << "what() is \"" << e.what() << "\" instead of \"" << expectedWhat << "\"";
        }
        return ::testing::AssertionSuccess();
    } catch (...) {
        return ::testing::AssertionFailure() << "threw something that is not a std::exception";
    }
    return ::testing::AssertionFailure() << "threw nothing";
}

auto RowName = [](const auto& info) { return info.param.name; };

// One expected map entry: the text used for the lookup, the key text the map must hold
// (the spelling of the option string) and the value.
struct Entry {
    std::string lookup;
    std::string key;
    std::string value;
};

template <class Map>
void ExpectMap(const Map& actual, const std::vector<Entry>& expected)
{
    EXPECT_EQ(actual.size(), expected.size());
    for (const Entry& entry : expected) {
        const auto it = actual.find(entry.lookup);
        ASSERT_NE(it, actual.end()) << "no entry for " << entry.lookup;
        EXPECT_EQ(it->first, entry.key) << "key spelling for " << entry.lookup;
        EXPECT_EQ(std::string(it->second), entry.value) << "value for " << entry.lookup;
    }
}

// ===================================================================================
// GetOptionsMap: always the numeric value pattern; quotes stay in the value.
// ===================================================================================

struct OptionsMapRow {
    std::string name;
    std::string options;
    std::vector<std::string> keys;
    std::vector<Entry> expected;
};

const std::vector<OptionsMapRow> kOptionsMapRows = {
    // Edge cases of Part 1.2.
    {"EmptyOptionStringGivesEmptyMap", "", {"a", "b"}, {}},
    {"EmptyKeyVectorGivesEmptyMap", "a=1:b=2", {}, {}},
    {"UpperCaseKeyFoundByLowerCaseLookupKeepsItsSpelling", "SCALE=2", {"scale"}, {{"scale", "SCALE", "2"}}},
    {"UpperCaseKeyFoundByUpperCaseLookup", "SCALE=2", {"scale"}, {{"SCALE", "SCALE", "2"}}},
    {"RepeatedKeyDifferingInCaseFirstWins", "a=1:A=2", {"a"}, {{"a", "a", "1"}}},
    {"RepeatedKeyDifferingInCaseFirstWinsWithItsSpelling", "A=1:a=2", {"a"}, {{"a", "A", "1"}}},
    {"EmptyQuotedValueKeepsTwoQuotes", R"(a="")", {"a"}, {{"a", "a", R"("")"}}},
    {"QuotedValueKeepsItsQuotes", R"(a="x y")", {"a"}, {{"a", "a", R"("x y")"}}},
    {"UnquotedWordIsNoOption", "a=abc:b=2", {"a", "b"}, {{"b", "b", "2"}}},
    // The numeric value pattern.
    {"SpaceSeparatesTwoOptions", "a=1 b=2", {"a", "b"}, {{"a", "a", "1"}, {"b", "b", "2"}}},
    {"DigitsBeforeLettersAreTheValue", "a=12abc", {"a"}, {{"a", "a", "12"}}},
    {"ExponentLetterEndsTheValue", "a=1e3", {"a"}, {{"a", "a", "1"}}},
    {"PlusSignIsNoValue", "a=+5", {"a"}, {}},
    {"HyphenPointAndCommaBelongToTheValue", "a=-1.2,3", {"a"}, {{"a", "a", "-1.2,3"}}},
    {"LoneHyphenIsAValue", "a=-", {"a"}, {{"a", "a", "-"}}},
    {"SeveralPointsAreKept", "a=1.2.3", {"a"}, {{"a", "a", "1.2.3"}}},
    {"LeadingPointIsKept", "a=.5", {"a"}, {{"a", "a", ".5"}}},
    {"QuotedNumberKeepsItsQuotes", R"(a="1")", {"a"}, {{"a", "a", R"("1")"}}},
    {"QuotedValueMayHoldAColon", R"(a="x:y":b=3)", {"a", "b"}, {{"a", "a", R"("x:y")"}, {"b", "b", "3"}}},
    {"UnterminatedQuoteIsNoValue", R"(a="12)", {"a"}, {}},
    {"EmptyUnquotedValueIsNoOption", "a=:b=2", {"a", "b"}, {{"b", "b", "2"}}},
    {"SecondEqualsSignEndsTheValue", "a=1=2", {"a"}, {{"a", "a", "1"}}},
    {"DoubleEqualsSignIsNoOption", "a==1", {"a"}, {}},
    {"InfIsNoNumericValue", "a=inf", {"a"}, {}},
    {"HexPrefixStopsAtTheLetter", "a=0x1p3", {"a"}, {{"a", "a", "0"}}},
    // Spaces around the equals sign.
    {"SpaceBeforeEqualsIsNoOption", "a =1", {"a"}, {}},
    {"SpaceAfterEqualsIsNoOption", "a= 1", {"a"}, {}},
    {"SpacesAroundEqualsAreNoOption", "a = 1", {"a"}, {}},
    // Word boundaries.
    {"HyphenBeforeKeyIsAWordBoundary", "x-scale=1", {"scale"}, {{"scale", "scale", "1"}}},
    {"LetterBeforeKeyIsNoWordBoundary", "rescale=1", {"scale"}, {}},
    {"UnderscoreBeforeKeyIsNoWordBoundary", "my_scale=1", {"scale"}, {}},
    {"DigitBeforeKeyIsNoWordBoundary", "1scale=1", {"scale"}, {}},
    {"ColonBeforeKeyIsAWordBoundary", "x=1:scale=4", {"scale"}, {{"scale", "scale", "4"}}},
    {"KeyIsNotAPrefixMatch", "ab=1", {"a"}, {}},
    {"SearchBehindAMatchStartsAfreshForWordBoundary", "a=1b=2", {"a", "b"}, {{"a", "a", "1"}, {"b", "b", "2"}}},
    // Keys.
    {"UnknownKeysAreIgnored", "a=1:c=3:b=2", {"a", "b"}, {{"a", "a", "1"}, {"b", "b", "2"}}},
    {"MixedCaseKeyOfOptionStringIsKept", "Scale=1:sCaLe=2", {"scale"}, {{"SCALE", "Scale", "1"}}},
    {"MixedCaseKeyInKeyVectorMatchesAnyCase", "scale=7", {"ScAlE"}, {{"scale", "scale", "7"}}},
    {"KeysAreRegexFragmentsNotEscaped", "abc=1", {"a.c"}, {{"abc", "abc", "1"}}},
    {"LaterKeyAlternativeMatchesWhenEarlierFails", "ab=5", {"a", "ab"}, {{"ab", "ab", "5"}}},
    {"SingleEmptyKeyGivesEmptyMap", "a=1", {""}, {}},
    {"RepeatedKeyLaterOccurrencesIgnored", "a=1:b=2:a=3:b=4", {"a", "b"}, {{"a", "a", "1"}, {"b", "b", "2"}}},
    {"RepeatedEmptyQuotedValueStillCountsFirst", R"(a="":a=5)", {"a"}, {{"a", "a", R"("")"}}},
    {"MalformedStretchesAreSkipped", "::garbage==:a=4::", {"a"}, {{"a", "a", "4"}}},
};

class GetOptionsMapTable : public ::testing::TestWithParam<OptionsMapRow> {};

TEST_P(GetOptionsMapTable, YieldsExactEntriesWithKeySpellingOfOptionString)
{
    const OptionsMapRow& row = GetParam();
    ExpectMap(Settings::GetOptionsMap(row.options, row.keys), row.expected);
}

INSTANTIATE_TEST_SUITE_P(Part12, GetOptionsMapTable, ::testing::ValuesIn(kOptionsMapRows), RowName);

TEST(Part12GetOptionsMap, LookupIgnoresLetterCaseOfTheLookupKey)
{
    const Settings::OptionsMap map = Settings::GetOptionsMap("Fast=1", {"fast"});
    EXPECT_EQ(map.count("fast"), 1U);
    EXPECT_EQ(map.count("FAST"), 1U);
    EXPECT_EQ(map.count("fAsT"), 1U);
    EXPECT_EQ(map.count("fas"), 0U);
}

// ===================================================================================
// OptionsRegexSearch: the view map; quotes dropped only with an empty value pattern.
// ===================================================================================

struct ViewMapRow {
    std::string name;
    std::string options;
    std::string keys;
    std::string pattern;
    std::vector<Entry> expected;
};

const std::vector<ViewMapRow> kViewMapRows = {
    {"EmptyOptionStringGivesEmptyMap", "", "a|b", "", {}},
    {"EmptyKeyPatternGivesEmptyMap", "a=1", "", "", {}},
    {"DefaultPatternReadsUpToColon", "a=1:b=2", "a|b", "", {{"a", "a", "1"}, {"b", "b", "2"}}},
    {"DefaultPatternKeepsSpacesAndEqualsSigns", "a=1 b=2", "a|b", "", {{"a", "a", "1 b=2"}}},
    {"DefaultPatternContinuesBehindTheMatch", "a=1 b=2:b=3", "a|b", "", {{"a", "a", "1 b=2"}, {"b", "b", "3"}}},
    {"DefaultPatternDropsEnclosingQuotes", R"(a="x y")", "a", "", {{"a", "a", "x y"}}},
    {"DefaultPatternQuotedColonKept", R"(a="x:y")", "a", "", {{"a", "a", "x:y"}}},
    {"DefaultPatternEmptyQuotedValueIsDropped", R"(a="")", "a", "", {}},
    {"DroppedEmptyOccurrenceDoesNotBlockALaterOne", R"(a="":a=5)", "a", "", {{"a", "a", "5"}}},
    {"DefaultPatternValueStopsAtQuote", R"(a=x"y)", "a", "", {{"a", "a", "x"}}},
    {"DefaultPatternEmptyUnquotedValueIsNoOption", "a=:b=2", "a|b", "", {{"b", "b", "2"}}},
    {"DefaultPatternReadsLetters", "a=abc", "a", "", {{"a", "a", "abc"}}},
    {"FirstOccurrenceWinsAcrossLetterCase", "A=1:a=2", "a", "", {{"a", "A", "1"}}},
    {"NumericPatternKeepsQuotes", R"(a="x y")", "a", std::string(kNumericPattern), {{"a", "a", R"("x y")"}}},
    {"NumericPatternKeepsEmptyQuotes", R"(a="")", "a", std::string(kNumericPattern), {{"a", "a", R"("")"}}},
    {"NumericPatternSkipsWords", "a=abc:b=2", "a|b", std::string(kNumericPattern), {{"b", "b", "2"}}},
    {"SizePatternMatchesUpperCaseX",
     "aspect=16X9",
     "aspect",
     std::string(kSizePattern),
     {{"aspect", "aspect", "16X9"}}},
    {"SizePatternRejectsQuotedSize", R"(aspect="16x9")", "aspect", std::string(kSizePattern), {}},
    {"WordBoundaryAfterHyphen", "x-scale=1", "scale", "", {{"scale", "scale", "1"}}},
    {"NoWordBoundaryInsideWord", "rescale=1", "scale", "", {}},
};

class OptionsRegexSearchTable : public ::testing::TestWithParam<ViewMapRow> {};

TEST_P(OptionsRegexSearchTable, YieldsExactEntriesPointingIntoTheOptionString)
{
    const ViewMapRow& row = GetParam();
    const Settings::OptionsViewMap map = Settings::OptionsRegexSearch(row.options, row.keys, row.pattern);
    ExpectMap(map, row.expected);
    for (const auto& [key, value] : map) {
        EXPECT_GE(value.data(), row.options.data()) << key;
        EXPECT_LE(value.data() + value.size(), row.options.data() + row.options.size()) << key;
    }
}

INSTANTIATE_TEST_SUITE_P(Part12, OptionsRegexSearchTable, ::testing::ValuesIn(kViewMapRows), RowName);

// ===================================================================================
// OptionRegexSearch: the first match only.
// ===================================================================================

struct SearchRow {
    std::string name;
    std::string options;
    std::string key;
    std::string pattern;
    std::string expected; // empty: absent
};

const std::vector<SearchRow> kSearchRows = {
    {"EmptyOptionStringGivesEmptyView", "", "a", "", ""},
    {"EmptyKeyGivesEmptyView", "a=1", "", "", ""},
    {"AbsentKeyGivesEmptyView", "b=1", "a", "", ""},
    {"FirstOccurrenceWins", "a=1:a=2", "a", "", "1"},
    {"ValueStopsAtQuote", R"(a=x"y)", "a", "", "x"},
    {"ValueStopsAtColon", "a=x:y", "a", "", "x"},
    {"ValueKeepsSpacesAndEqualsSigns", "a=1 b=2", "a", "", "1 b=2"},
    {"ValueKeepsSecondEqualsSign", "a=1=2", "a", "", "1=2"},
    {"QuotedValueLosesItsQuotes", R"(a="x y")", "a", "", "x y"},
    {"QuotedValueKeepsInnerSpaces", R"(a=" 1")", "a", "", " 1"},
    {"EmptyQuotedValueReadsAsAbsent", R"(a="")", "a", "", ""},
    {"EmptyQuotedFirstOccurrenceHidesLaterOnes", R"(a="":a=5)", "a", "", ""},
    {"UnterminatedQuoteIsNoValue", R"(a="x)", "a", "", ""},
    {"KeyMatchesInAnyLetterCase", "SCALE=3", "scale", "", "3"},
    {"KeyIsFoundAfterHyphen", "x-scale=1", "scale", "", "1"},
    {"KeyIsNotFoundInsideAWord", "rescale=1", "scale", "", ""},
    {"KeyFoundAfterRejectedInnerOccurrence", "rescale=1:scale=2", "scale", "", "2"},
    {"SpaceBeforeEqualsIsNoOption", "a =1", "a", "", ""},
    {"KeyIsARegexFragment", "foo=1", R"(\w+)", "", "1"},
    {"NumericPatternKeepsQuotes", R"(a="1")", "a", std::string(kNumericPattern), R"("1")"},
    {"NumericPatternKeepsEmptyQuotes", R"(a="")", "a", std::string(kNumericPattern), R"("")"},
    {"NumericPatternStopsAtLetter", "a=12abc", "a", std::string(kNumericPattern), "12"},
    {"SizePatternLowerCaseX", "aspect=16x9", "aspect", std::string(kSizePattern), "16x9"},
    {"SizePatternUpperCaseX", "aspect=16X9", "aspect", std::string(kSizePattern), "16X9"},
    {"SizePatternStopsAfterDigits", "frameSize=1920x1080px", "frameSize", std::string(kSizePattern), "1920x1080"},
    {"SizePatternKeyInAnyCase", "FRAMESIZE=4x3", "frameSize", std::string(kSizePattern), "4x3"},
    {"SizePatternNeedsBothNumbers", "aspect=16x", "aspect", std::string(kSizePattern), ""},
};

class OptionRegexSearchTable : public ::testing::TestWithParam<SearchRow> {};

TEST_P(OptionRegexSearchTable, ReturnsFirstValueAsViewIntoOptionString)
{
    const SearchRow& row = GetParam();
    const std::string_view value = Settings::OptionRegexSearch(row.options, row.key, row.pattern);
    EXPECT_EQ(std::string(value), row.expected);
    if (!row.expected.empty()) {
        EXPECT_GE(value.data(), row.options.data());
        EXPECT_LE(value.data() + value.size(), row.options.data() + row.options.size());
    }
}

INSTANTIATE_TEST_SUITE_P(Part12, OptionRegexSearchTable, ::testing::ValuesIn(kSearchRows), RowName);

// ===================================================================================
// Bad regular expressions: std::regex_error leaves the call, unless the search returns
// before compiling (empty option string or empty key pattern).
// ===================================================================================

TEST(Part12RegexError, BadKeyInGetOptionsMapPropagatesRegexError)
{
    EXPECT_TRUE(ThrowsExactly<std::regex_error>([] { (void)Settings::GetOptionsMap("a=1", {"("}); }));
}

TEST(Part12RegexError, BadKeyPatternInOptionsRegexSearchPropagatesRegexError)
{
    EXPECT_TRUE(ThrowsExactly<std::regex_error>([] { (void)Settings::OptionsRegexSearch("a=1", "a)", ""); }));
}

TEST(Part12RegexError, BadValuePatternInOptionsRegexSearchPropagatesRegexError)
{
    EXPECT_TRUE(ThrowsExactly<std::regex_error>([] { (void)Settings::OptionsRegexSearch("a=1", "a", "("); }));
}

TEST(Part12RegexError, BadValuePatternInOptionRegexSearchPropagatesRegexError)
{
    EXPECT_TRUE(ThrowsExactly<std::regex_error>([] { (void)Settings::OptionRegexSearch("a=1", "a", "[1"); }));
}

TEST(Part12RegexError, BadKeyInGetOptionPropagatesRegexErrorNotInvalidArgument)
{
    EXPECT_TRUE(ThrowsExactly<std::regex_error>([] { (void)Settings::GetOption<int>("a=1", "a)", ""); }));
}

TEST(Part12RegexError, EmptyOptionStringReturnsBeforeCompilingABadKey)
{
    Settings::OptionsMap map;
    EXPECT_NO_THROW(map = Settings::GetOptionsMap("", {"("}));
    EXPECT_TRUE(map.empty());
    std::string_view value = "x";
    EXPECT_NO_THROW(value = Settings::OptionRegexSearch("", "(", ""));
    EXPECT_TRUE(value.empty());
}

TEST(Part12RegexError, EmptyKeyPatternReturnsBeforeCompilingABadValuePattern)
{
    Settings::OptionsViewMap map;
    EXPECT_NO_THROW(map = Settings::OptionsRegexSearch("a=1", "", "("));
    EXPECT_TRUE(map.empty());
}

// ===================================================================================
// GetOption<T>: one table per type. A row expects a value, an empty optional, or
// std::invalid_argument (form C: exactly that class, what() exactly the message).
// ===================================================================================

template <class T>
struct GetOptionRow {
    std::string name;
    std::string options;
    std::string key;
    std::optional<T> expected; // used when error is empty
    std::string error;         // the exact what() of the std::invalid_argument
    std::string pattern = "";  // the value pattern passed
};

template <class T>
void ExpectSameValue(T expected, T actual)
{
    if constexpr (std::is_floating_point_v<T>) {
        if (std::isnan(expected)) {
            EXPECT_TRUE(std::isnan(actual)) << actual;
            return;
        }
        EXPECT_EQ(std::signbit(expected), std::signbit(actual)) << actual;
    }
    EXPECT_EQ(expected, actual);
}

template <class T>
void CheckGetOptionRow(const GetOptionRow<T>& row)
{
    if (!row.error.empty()) {
        EXPECT_TRUE(ThrowsExactly<std::invalid_argument>(
            [&] { (void)Settings::GetOption<T>(row.options, row.key, row.pattern); }, row.error, true));
        return;
    }
    std::optional<T> actual;
    ASSERT_NO_THROW(actual = Settings::GetOption<T>(row.options, row.key, row.pattern));
    ASSERT_EQ(actual.has_value(), row.expected.has_value());
    if (row.expected) {
        ExpectSameValue(*row.expected, *actual);
    }
}

#define ZORVAN_GET_OPTION_SUITE(Suite, Type, Rows)                                                                     \
    class Suite : public ::testing::TestWithParam<GetOptionRow<Type>> {};                                              \
    TEST_P(Suite, GivesExactValueOrEmptyOrExactNotANumberText)                                                         \
    {                                                                                                                  \
        CheckGetOptionRow<Type>(GetParam());                                                                           \
    }                                                                                                                  \
    INSTANTIATE_TEST_SUITE_P(Part12, Suite, ::testing::ValuesIn(Rows), RowName)

constexpr float kFloatInf = std::numeric_limits<float>::infinity();
constexpr float kFloatNan = std::numeric_limits<float>::quiet_NaN();
constexpr double kDoubleInf = std::numeric_limits<double>::infinity();
constexpr double kDoubleNan = std::numeric_limits<double>::quiet_NaN();

const std::vector<GetOptionRow<float>> kFloatRows = {
    {"PlainDecimal", "a=1.5", "a", 1.5F, ""},
    {"NegativeDecimal", "a=-2.25", "a", -2.25F, ""},
    {"ExplicitPlusSign", "a=+5", "a", 5.0F, ""},
    {"ExponentIsRead", "a=1e3", "a", 1000.0F, ""},
    {"LeadingPoint", "a=.5", "a", 0.5F, ""},
    {"TrailingPoint", "a=5.", "a", 5.0F, ""},
    {"NegativeZero", "a=-0", "a", -0.0F, ""},
    {"HexInteger0x10", "a=0x10", "a", 16.0F, ""},
    {"HexFloat0x1p3", "a=0x1p3", "a", 8.0F, ""},
    {"Inf", "a=inf", "a", kFloatInf, ""},
    {"MinusInfinityAnyCase", "a=-INFINITY", "a", -kFloatInf, ""},
    {"Nan", "a=nan", "a", kFloatNan, ""},
    {"NanWithPayload", "a=nan(123)", "a", kFloatNan, ""},
    {"LeadingSpacesInsideQuotes", R"(a="  2.5")", "a", 2.5F, ""},
    {"LeadingTabInsideQuotes", "a=\"\t2.5\"", "a", 2.5F, ""},
    {"QuotedNumber", R"(a="-3")", "a", -3.0F, ""},
    {"KeyInOtherCase", "A=4", "a", 4.0F, ""},
    {"FirstOccurrenceOnly", "a=1:a=x", "a", 1.0F, ""},
    {"LargestFloat", "a=3.4028235e38", "a", std::numeric_limits<float>::max(), ""},
    {"SmallestNormalFloat", "a=1.17549435e-38", "a", std::numeric_limits<float>::min(), ""},
    {"RoundsOnceAsStrtofNotThroughDouble", "a=1.00000017881393432617187499", "a", 1.00000011920928955078125F, ""},
    {"AbsentKeyGivesEmpty", "b=1", "a", std::nullopt, ""},
    {"EmptyQuotedValueGivesEmpty", R"(a="")", "a", std::nullopt, ""},
    {"MissingValueGivesEmpty", "a=", "a", std::nullopt, ""},
    {"Overflow1e40Throws", "a=1e40", "a", std::nullopt, NotNumber("1e40", "a")},
    {"Overflow3_5e38Throws", "a=3.5e38", "a", std::nullopt, NotNumber("3.5e38", "a")},
    {"SubnormalUnderflowThrows", "a=1e-40", "a", std::nullopt, NotNumber("1e-40", "a")},
    {"UnderflowToZeroThrows", "a=1e-50", "a", std::nullopt, NotNumber("1e-50", "a")},
    {"WordThrows", "a=abc", "a", std::nullopt, NotNumber("abc", "a")},
    {"LoneHyphenThrows", "a=-", "a", std::nullopt, NotNumber("-", "a")},
    {"CommaThrows", "a=1,5", "a", std::nullopt, NotNumber("1,5", "a")},
    {"TwoPointsThrow", "a=1.2.3", "a", std::nullopt, NotNumber("1.2.3", "a")},
    {"DanglingExponentThrows", "a=1e", "a", std::nullopt, NotNumber("1e", "a")},
    {"TrailingSpaceThrows", "a=1.5 ", "a", std::nullopt, NotNumber("1.5 ", "a")},
    {"TrailingSpaceInsideQuotesThrows", R"(a="1.5 ")", "a", std::nullopt, NotNumber("1.5 ", "a")},
    {"QuotedTextMessageHasNoQuotes", R"(a="x y")", "a", std::nullopt, NotNumber("x y", "a")},
    {"MessageNamesKeyAsPassed", "Scale=x", "scale", std::nullopt, NotNumber("x", "scale")},
    {"QuotesKeptWhenPatternPassed", R"(a="1")", "a", std::nullopt, NotNumber(R"("1")", "a"),
     std::string(kNumericPattern)},
};
ZORVAN_GET_OPTION_SUITE(GetOptionFloatTable, float, kFloatRows);

const std::vector<GetOptionRow<double>> kDoubleRows = {
    {"PlainDecimal", "a=2.5", "a", 2.5, ""},
    {"Exponent", "a=1e3", "a", 1000.0, ""},
    {"Value1e40FitsDouble", "a=1e40", "a", 1e40, ""},
    {"LargeButFinite", "a=1e308", "a", 1e308, ""},
    {"SmallestNormalDouble", "a=2.2250738585072014e-308", "a", std::numeric_limits<double>::min(), ""},
    {"HexFloat", "a=0x1p3", "a", 8.0, ""},
    {"NegativeHexFloatUpperCase", "a=-0X1P-2", "a", -0.25, ""},
    {"HexInteger", "a=0x10", "a", 16.0, ""},
    {"Infinity", "a=infinity", "a", kDoubleInf, ""},
    {"MinusInf", "a=-inf", "a", -kDoubleInf, ""},
    {"NanUpperCase", "a=NAN", "a", kDoubleNan, ""},
    {"NanWithPayload", "a=nan(0x7)", "a", kDoubleNan, ""},
    {"LeadingSpacesInsideQuotes", R"(a="   7")", "a", 7.0, ""},
    {"PlusSign", "a=+1.5", "a", 1.5, ""},
    {"ValueWithColonAfter", "a=0.125:b=1", "a", 0.125, ""},
    {"AbsentGivesEmpty", "", "a", std::nullopt, ""},
    {"EmptyQuotesGiveEmpty", R"(a="")", "a", std::nullopt, ""},
    {"OverflowThrows", "a=1e309", "a", std::nullopt, NotNumber("1e309", "a")},
    {"SubnormalUnderflowThrows", "a=1e-310", "a", std::nullopt, NotNumber("1e-310", "a")},
    {"UnderflowToZeroThrows", "a=1e-400", "a", std::nullopt, NotNumber("1e-400", "a")},
    {"HexPrefixOnlyThrows", "a=0x", "a", std::nullopt, NotNumber("0x", "a")},
    {"UnderscoreThrows", "a=1_000", "a", std::nullopt, NotNumber("1_000", "a")},
    {"LoneHyphenThrows", "a=-", "a", std::nullopt, NotNumber("-", "a")},
    {"SpaceSeparatedRestThrows", "a=1 b=2", "a", std::nullopt, NotNumber("1 b=2", "a")},
    {"QuotedNumberWithPatternThrows", R"(a="2")", "a", std::nullopt, NotNumber(R"("2")", "a"),
     std::string(kNumericPattern)},
};
ZORVAN_GET_OPTION_SUITE(GetOptionDoubleTable, double, kDoubleRows);

const std::vector<GetOptionRow<int>> kIntRows = {
    {"Positive", "a=42", "a", 42, ""},
    {"Negative", "a=-42", "a", -42, ""},
    {"LeadingZeros", "a=007", "a", 7, ""},
    {"NegativeLeadingZeros", "a=-007", "a", -7, ""},
    {"MinusZero", "a=-0", "a", 0, ""},
    {"Minimum", "a=-2147483648", "a", std::numeric_limits<int>::min(), ""},
    {"Maximum", "a=2147483647", "a", std::numeric_limits<int>::max(), ""},
    {"MaximumWithManyLeadingZeros", "a=00000000002147483647", "a", std::numeric_limits<int>::max(), ""},
    {"QuotedNumber", R"(a="-5")", "a", -5, ""},
    {"AbsentGivesEmpty", "b=1", "a", std::nullopt, ""},
    {"EmptyQuotesGiveEmpty", R"(a="")", "a", std::nullopt, ""},
    {"LoneHyphenThrows", "a=-", "a", std::nullopt, NotNumber("-", "a")},
    {"DigitsThenLettersThrow", "a=12abc", "a", std::nullopt, NotNumber("12abc", "a")},
    {"PlusSignThrows", "a=+1", "a", std::nullopt, NotNumber("+1", "a")},
    {"AboveMaximumThrows", "a=2147483648", "a", std::nullopt, NotNumber("2147483648", "a")},
    {"BelowMinimumThrows", "a=-2147483649", "a", std::nullopt, NotNumber("-2147483649", "a")},
    {"HugeThrows", "a=99999999999999999999", "a", std::nullopt, NotNumber("99999999999999999999", "a")},
    {"DecimalPointThrows", "a=1.0", "a", std::nullopt, NotNumber("1.0", "a")},
    {"HexThrows", "a=0x10", "a", std::nullopt, NotNumber("0x10", "a")},
    {"DoubleHyphenThrows", "a=--1", "a", std::nullopt, NotNumber("--1", "a")},
    {"LeadingSpaceInQuotesThrows", R"(a=" 12")", "a", std::nullopt, NotNumber(" 12", "a")},
    {"TrailingSpaceThrows", "a=12 ", "a", std::nullopt, NotNumber("12 ", "a")},
    {"MessageNamesKeyAsPassedNotAsWritten", "A=x", "a", std::nullopt, NotNumber("x", "a")},
    {"MessageNamesRegexKeyAsPassed", "ab=x", "a.", std::nullopt, NotNumber("x", "a.")},
};
ZORVAN_GET_OPTION_SUITE(GetOptionIntTable, int, kIntRows);

const std::vector<GetOptionRow<unsigned char>> kUnsignedCharRows = {
    {"Zero", "a=0", "a", static_cast<unsigned char>(0), ""},
    {"LeadingZerosTo255", "a=000255", "a", static_cast<unsigned char>(255), ""},
    {"ManyLeadingZerosTo255", "a=0000000000000000000000255", "a", static_cast<unsigned char>(255), ""},
    {"QuotedValue", R"(a="17")", "a", static_cast<unsigned char>(17), ""},
    {"EmptyQuotesGiveEmpty", R"(a="")", "a", std::nullopt, ""},
    {"Value256Throws", "a=256", "a", std::nullopt, NotNumber("256", "a")},
    {"MinusOneThrows", "a=-1", "a", std::nullopt, NotNumber("-1", "a")},
    {"MinusZeroThrows", "a=-0", "a", std::nullopt, NotNumber("-0", "a")},
    {"PlusSignThrows", "a=+1", "a", std::nullopt, NotNumber("+1", "a")},
    {"DigitsThenLetterThrow", "a=1a", "a", std::nullopt, NotNumber("1a", "a")},
    {"WrapAroundValueThrows", "a=4294967297", "a", std::nullopt, NotNumber("4294967297", "a")},
    {"HugeThrows", "a=18446744073709551617", "a", std::nullopt, NotNumber("18446744073709551617", "a")},
};
ZORVAN_GET_OPTION_SUITE(GetOptionUnsignedCharTable, unsigned char, kUnsignedCharRows);

const std::vector<GetOptionRow<unsigned short>> kUnsignedShortRows = {
    {"Maximum", "a=65535", "a", static_cast<unsigned short>(65535), ""},
    {"MaximumWithLeadingZeros", "a=00065535", "a", static_cast<unsigned short>(65535), ""},
    {"Zero", "a=0", "a", static_cast<unsigned short>(0), ""},
    {"AboveMaximumThrows", "a=65536", "a", std::nullopt, NotNumber("65536", "a")},
    {"NegativeThrows", "a=-5", "a", std::nullopt, NotNumber("-5", "a")},
    {"DecimalThrows", "a=1.5", "a", std::nullopt, NotNumber("1.5", "a")},
    {"LeadingSpaceThrows", R"(a=" 1")", "a", std::nullopt, NotNumber(" 1", "a")},
};
ZORVAN_GET_OPTION_SUITE(GetOptionUnsignedShortTable, unsigned short, kUnsignedShortRows);

const std::vector<GetOptionRow<unsigned int>> kUnsignedIntRows = {
    {"Maximum", "a=4294967295", "a", 4294967295U, ""},
    {"Zero", "a=0000", "a", 0U, ""},
    {"AboveMaximumThrows", "a=4294967296", "a", std::nullopt, NotNumber("4294967296", "a")},
    {"NegativeThrows", "a=-1", "a", std::nullopt, NotNumber("-1", "a")},
    {"PlusThrows", "a=+7", "a", std::nullopt, NotNumber("+7", "a")},
    {"WordThrows", "a=ten", "a", std::nullopt, NotNumber("ten", "a")},
    {"AbsentGivesEmpty", "b=3", "a", std::nullopt, ""},
};
ZORVAN_GET_OPTION_SUITE(GetOptionUnsignedIntTable, unsigned int, kUnsignedIntRows);

const std::vector<GetOptionRow<unsigned long>> kUnsignedLongRows = {
    {"Maximum", "a=18446744073709551615", "a", 18446744073709551615UL, ""},
    {"MaximumWithLeadingZeros", "a=00018446744073709551615", "a", 18446744073709551615UL, ""},
    {"Small", "a=12", "a", 12UL, ""},
    {"AboveMaximumThrows", "a=18446744073709551616", "a", std::nullopt, NotNumber("18446744073709551616", "a")},
    {"FarAboveMaximumThrows", "a=99999999999999999999999", "a", std::nullopt,
     NotNumber("99999999999999999999999", "a")},
    {"NegativeThrows", "a=-1", "a", std::nullopt, NotNumber("-1", "a")},
    {"HexThrows", "a=0x1", "a", std::nullopt, NotNumber("0x1", "a")},
    {"EmptyQuotesGiveEmpty", R"(a="")", "a", std::nullopt, ""},
};
ZORVAN_GET_OPTION_SUITE(GetOptionUnsignedLongTable, unsigned long, kUnsignedLongRows);

const std::vector<GetOptionRow<bool>> kBoolRows = {
    {"OneIsTrue", "a=1", "a", true, ""},
    {"ZeroIsFalse", "a=0", "a", false, ""},
    {"TrueIsTrue", "a=true", "a", true, ""},
    {"FalseIsFalse", "a=false", "a", false, ""},
    {"QuotedTrueIsTrue", R"(a="true")", "a", true, ""},
    {"EmptyQuotesGiveEmpty", R"(a="")", "a", std::nullopt, ""},
    {"AbsentGivesEmpty", "b=1", "a", std::nullopt, ""},
    {"TwoThrows", "a=2", "a", std::nullopt, NotBoolean("2", "a")},
    {"YesThrows", "a=yes", "a", std::nullopt, NotBoolean("yes", "a")},
    {"UpperCaseTrueThrows", "a=TRUE", "a", std::nullopt, NotBoolean("TRUE", "a")},
    {"CapitalisedTrueThrows", "a=True", "a", std::nullopt, NotBoolean("True", "a")},
    {"CapitalisedFalseThrows", "a=False", "a", std::nullopt, NotBoolean("False", "a")},
    {"LeadingZeroThrows", "a=01", "a", std::nullopt, NotBoolean("01", "a")},
    {"MinusOneThrows", "a=-1", "a", std::nullopt, NotBoolean("-1", "a")},
    {"LeadingSpaceThrows", R"(a=" true")", "a", std::nullopt, NotBoolean(" true", "a")},
    {"QuotedYesMessageHasNoQuotes", R"(a="yes")", "a", std::nullopt, NotBoolean("yes", "a")},
};
ZORVAN_GET_OPTION_SUITE(GetOptionBoolTable, bool, kBoolRows);

TEST(Part12GetOptionFormC, FailureIsPlainInvalidArgumentWithoutStackOrLocation)
{
    try {
        (void)Settings::GetOption<unsigned char>("a=256", "a", "");
        FAIL() << "no exception";
    } catch (const std::exception& e) {
        EXPECT_EQ(typeid(e), typeid(std::invalid_argument));
        EXPECT_STREQ(e.what(), "The '256' value of the 'a' option is not a number");
        EXPECT_EQ(std::strchr(e.what(), '\n'), nullptr);
        EXPECT_EQ(dynamic_cast<const boost::exception*>(&e), nullptr);
    }
}

TEST(Part12GetOptionFormC, BoolFailureIsPlainInvalidArgumentWithMessageOnly)
{
    try {
        (void)Settings::GetOption<bool>("flag=yes", "flag", "");
        FAIL() << "no exception";
    } catch (const std::exception& e) {
        EXPECT_EQ(typeid(e), typeid(std::invalid_argument));
        EXPECT_STREQ(e.what(), "The 'yes' value of the 'flag' option is not a boolean");
        EXPECT_EQ(dynamic_cast<const boost::exception*>(&e), nullptr);
    }
}

TEST(Part12GetOptionFormC, FailureCarriesNoBoostRecordsAndIsNotAProcException)
{
    bool caughtAsProc = false;
    bool caughtAsInvalidArgument = false;
    try {
        (void)Settings::GetOption<double>("a=x", "a", "");
    } catch (const Zorvan::Proc::ProcException&) {
        caughtAsProc = true;
    } catch (const std::invalid_argument& e) {
        caughtAsInvalidArgument = true;
        EXPECT_EQ(dynamic_cast<const boost::exception*>(&e), nullptr);
    }
    EXPECT_FALSE(caughtAsProc);
    EXPECT_TRUE(caughtAsInvalidArgument);
}

// ===================================================================================
// FromChars: strtof/strtod semantics behind a std::from_chars_result.
// ===================================================================================

struct FromCharsRow {
    std::string name;
    std::string text;
    std::size_t length; // bytes of text passed as [first, last)
    double expected;
    std::size_t consumed;
    std::errc ec;
    std::chars_format format = std::chars_format::general;
};

const std::vector<FromCharsRow> kFromCharsDoubleRows = {
    {"PlainDecimal", "1.5", 3, 1.5, 3, std::errc{}},
    {"LeadingWhiteSpaceConsumed", " 7", 2, 7.0, 2, std::errc{}},
    {"StopsBeforeTrailingText", "1e3x", 4, 1000.0, 3, std::errc{}},
    {"NoNumberConsumesNothing", "abc", 3, 0.0, 0, std::errc{}},
    {"EmptyRange", "", 0, 0.0, 0, std::errc{}},
    {"RangeEndIsRespected", "12345", 2, 12.0, 2, std::errc{}},
    {"RangeEndCutsFraction", "1.55", 3, 1.5, 3, std::errc{}},
    {"HexFloat", "0x1p3", 5, 8.0, 5, std::errc{}},
    {"Inf", "inf", 3, kDoubleInf, 3, std::errc{}},
    {"Nan", "nan", 3, kDoubleNan, 3, std::errc{}},
    {"NegativeZero", "-0", 2, -0.0, 2, std::errc{}},
    {"OverflowStoresHugeValAndReportsRange", "1e309", 5, kDoubleInf, 5, std::errc::result_out_of_range},
    {"NegativeOverflow", "-1e309", 6, -kDoubleInf, 6, std::errc::result_out_of_range},
    {"UnderflowStoresZeroAndReportsRange", "1e-400", 6, 0.0, 6, std::errc::result_out_of_range},
    {"SubnormalStoredAndReportsRange", "1e-310", 6, 1e-310, 6, std::errc::result_out_of_range},
    {"FixedFormatIsIgnored", "1e3", 3, 1000.0, 3, std::errc{}, std::chars_format::fixed},
    {"HexFormatIsIgnored", "10", 2, 10.0, 2, std::errc{}, std::chars_format::hex},
};

class FromCharsDoubleTable : public ::testing::TestWithParam<FromCharsRow> {};

TEST_P(FromCharsDoubleTable, ReturnsEndPointerErrcAndStoresValue)
{
    const FromCharsRow& row = GetParam();
    double value = 42.0;
    const char* first = row.text.data();
    const std::from_chars_result result = Zorvan::FromChars(first, first + row.length, value, row.format);
    EXPECT_EQ(result.ptr, first + row.consumed);
    EXPECT_EQ(result.ec, row.ec);
    ExpectSameValue(row.expected, value);
}

INSTANTIATE_TEST_SUITE_P(Part12, FromCharsDoubleTable, ::testing::ValuesIn(kFromCharsDoubleRows), RowName);

struct FromCharsFloatRow {
    std::string name;
    std::string text;
    float expected;
    std::size_t consumed;
    std::errc ec;
};

const std::vector<FromCharsFloatRow> kFromCharsFloatRows = {
    {"PlainDecimal", "0.25", 0.25F, 4, std::errc{}},
    {"OverflowStoresInfinityAndReportsRange", "1e40", kFloatInf, 4, std::errc::result_out_of_range},
    {"SubnormalUnderflowStoredAndReportsRange", "1e-40", 1e-40F, 5, std::errc::result_out_of_range},
    {"UnderflowToZeroReportsRange", "1e-50", 0.0F, 5, std::errc::result_out_of_range},
    {"HexInteger", "0x10", 16.0F, 4, std::errc{}},
    {"RoundsDirectlyToFloat", "1.00000017881393432617187499", 1.00000011920928955078125F, 28, std::errc{}},
    {"StopsAtComma", "1,5", 1.0F, 1, std::errc{}},
};

class FromCharsFloatTable : public ::testing::TestWithParam<FromCharsFloatRow> {};

TEST_P(FromCharsFloatTable, ReturnsEndPointerErrcAndStoresValue)
{
    const FromCharsFloatRow& row = GetParam();
    float value = 42.0F;
    const char* first = row.text.data();
    const std::from_chars_result result = Zorvan::FromChars(first, first + row.text.size(), value);
    EXPECT_EQ(result.ptr, first + row.consumed);
    EXPECT_EQ(result.ec, row.ec);
    ExpectSameValue(row.expected, value);
}

INSTANTIATE_TEST_SUITE_P(Part12, FromCharsFloatTable, ::testing::ValuesIn(kFromCharsFloatRows), RowName);

TEST(Part12FromChars, ResetsErrnoSoAStaleRangeErrorIsNotReported)
{
    const std::string text = "2";
    double value = 0.0;
    errno = ERANGE;
    const std::from_chars_result result = Zorvan::FromChars(text.data(), text.data() + text.size(), value);
    EXPECT_EQ(result.ec, std::errc{});
    EXPECT_EQ(value, 2.0);
    float small = 0.0F;
    errno = ERANGE;
    const std::from_chars_result floatResult = Zorvan::FromChars(text.data(), text.data() + text.size(), small);
    EXPECT_EQ(floatResult.ec, std::errc{});
    EXPECT_EQ(small, 2.0F);
}

TEST(Part12FromChars, DoesNotReadBeyondLastEvenWhenDigitsFollow)
{
    const char buffer[] = {'3', '.', '5', '9', '9'};
    double value = 0.0;
    const std::from_chars_result result = Zorvan::FromChars(buffer, buffer + 1, value);
    EXPECT_EQ(result.ptr, buffer + 1);
    EXPECT_EQ(value, 3.0);
}

// ===================================================================================
// ToNumber<int>
// ===================================================================================

struct ToNumberRow {
    std::string name;
    std::string text;
    bool ok;
    int value; // checked only when ok
};

const std::vector<ToNumberRow> kToNumberRows = {
    {"Zero", "0", true, 0},
    {"MinusZero", "-0", true, 0},
    {"LeadingZeros", "007", true, 7},
    {"Negative", "-15", true, -15},
    {"Minimum", "-2147483648", true, std::numeric_limits<int>::min()},
    {"Maximum", "2147483647", true, std::numeric_limits<int>::max()},
    {"MaximumAfterManyZeros", "000000000000002147483647", true, std::numeric_limits<int>::max()},
    {"AboveMaximum", "2147483648", false, 0},
    {"BelowMinimum", "-2147483649", false, 0},
    {"Huge", "99999999999999999999", false, 0},
    {"PlusSign", "+1", false, 0},
    {"LoneHyphen", "-", false, 0},
    {"Empty", "", false, 0},
    {"DigitsThenLetters", "12abc", false, 0},
    {"LeadingSpace", " 1", false, 0},
    {"TrailingSpace", "1 ", false, 0},
    {"DoubleHyphen", "--1", false, 0},
    {"DecimalPoint", "1.0", false, 0},
    {"HyphenInside", "1-2", false, 0},
};

class ToNumberIntTable : public ::testing::TestWithParam<ToNumberRow> {};

TEST_P(ToNumberIntTable, AcceptsOnlyOptionalHyphenAndDigitsWithinInt)
{
    const ToNumberRow& row = GetParam();
    int value = 12345;
    EXPECT_EQ(Zorvan::Core::Utils::ToNumber<int>(row.text, value), row.ok);
    if (row.ok) {
        EXPECT_EQ(value, row.value);
    }
}

INSTANTIATE_TEST_SUITE_P(Part12, ToNumberIntTable, ::testing::ValuesIn(kToNumberRows), RowName);

TEST(Part12ToNumber, ReadsOnlyTheViewNotTheTextBehindIt)
{
    const std::string text = "12345";
    int value = 0;
    EXPECT_TRUE(Zorvan::Core::Utils::ToNumber<int>(std::string_view(text).substr(0, 2), value));
    EXPECT_EQ(value, 12);
}

// ToNumber<unsigned int> (ours, Part 2.1's whole unsigned 32-bit numbers): the rule of
// GetOption<unsigned int>, and a failure leaves the value alone.
TEST(Part12ToNumber, UnsignedIntAcceptsDigitsOnlyWithinUnsignedInt)
{
    unsigned int value = 7;
    EXPECT_TRUE(Zorvan::Core::Utils::ToNumber<unsigned int>("0004294967295", value));
    EXPECT_EQ(value, 4294967295U);
    EXPECT_TRUE(Zorvan::Core::Utils::ToNumber<unsigned int>("0", value));
    EXPECT_EQ(value, 0U);
    value = 7;
    for (const char* bad : {"", "4294967296", "-1", "+1", " 1", "1 ", "1x", "0x10"}) {
        EXPECT_FALSE(Zorvan::Core::Utils::ToNumber<unsigned int>(bad, value)) << bad;
        EXPECT_EQ(value, 7U) << bad;
    }
}

// ===================================================================================
// ToString
// ===================================================================================

struct ToStringRow {
    std::string name;
    std::vector<std::string> values;
    std::string separator;
    bool bracket; // convert each element to "<element>"
    std::string expected;
};

const std::vector<ToStringRow> kToStringRows = {
    {"EmptyVectorGivesEmptyString", {}, "|", false, ""},
    {"EmptyVectorWithConversionGivesEmptyString", {}, "|", true, ""},
    {"SingleElementHasNoSeparator", {"a"}, "|", false, "a"},
    {"ElementsJoinedInOrder", {"a", "b", "c"}, "|", false, "a|b|c"},
    {"MultiCharacterSeparator", {"a", "b"}, ", ", false, "a, b"},
    {"EmptySeparator", {"a", "b", "c"}, "", false, "abc"},
    {"EmptyElementsKept", {"", ""}, "|", false, "|"},
    {"EmptyLastElementKeepsSeparatorBeforeIt", {"a", ""}, "|", false, "a|"},
    {"ConversionAppliedToEachElement", {"a", "b"}, "|", true, "<a>|<b>"},
    {"ConversionWithMultiCharacterSeparator", {"x"}, "::", true, "<x>"},
};

class ToStringTable : public ::testing::TestWithParam<ToStringRow> {};

TEST_P(ToStringTable, JoinsConvertedElementsWithoutTrailingSeparator)
{
    const ToStringRow& row = GetParam();
    if (row.bracket) {
        int calls = 0;
        const auto convert = [&calls](const std::string& text) {
            ++calls;
            return "<" + text + ">";
        };
        EXPECT_EQ(Zorvan::Core::Utils::ToString(row.values, row.separator, convert), row.expected);
        EXPECT_EQ(calls, static_cast<int>(row.values.size()));
    } else {
        EXPECT_EQ(Zorvan::Core::Utils::ToString(row.values, row.separator), row.expected);
    }
}

INSTANTIATE_TEST_SUITE_P(Part12, ToStringTable, ::testing::ValuesIn(kToStringRows), RowName);

// ===================================================================================
// SplitString
// ===================================================================================

struct SplitRow {
    std::string name;
    std::vector<std::string> initial;
    std::string text;
    char delimiter;
    std::vector<std::string> expected;
};

const std::vector<SplitRow> kSplitRows = {
    {"ThreePieces", {}, "a,b,c", ',', {"a", "b", "c"}},
    {"TrailingDelimiterGivesNoEmptyLastPiece", {}, "a,b,", ',', {"a", "b"}},
    {"DoubleDelimiterGivesEmptyPiece", {}, "a,,b", ',', {"a", "", "b"}},
    {"EmptyTextGivesNoPiece", {}, "", ',', {}},
    {"LoneDelimiterGivesOneEmptyPiece", {}, ",", ',', {""}},
    {"TwoDelimitersGiveTwoEmptyPieces", {}, ",,", ',', {"", ""}},
    {"LeadingDelimiterGivesEmptyFirstPiece", {}, ",a", ',', {"", "a"}},
    {"NoDelimiterGivesWholeText", {}, "abc", ',', {"abc"}},
    {"OtherDelimiter", {}, "1:2", ':', {"1", "2"}},
    {"SpacesKept", {}, " a , b ", ',', {" a ", " b "}},
    {"AppendsToExistingPieces", {"x"}, "a,b", ',', {"x", "a", "b"}},
    {"EmptyTextLeavesExistingPieces", {"x"}, "", ',', {"x"}},
};

class SplitStringTable : public ::testing::TestWithParam<SplitRow> {};

TEST_P(SplitStringTable, AppendsPiecesUpToEachDelimiter)
{
    const SplitRow& row = GetParam();
    std::vector<std::string> pieces = row.initial;
    Zorvan::Core::Utils::SplitString(pieces, row.text, row.delimiter);
    EXPECT_EQ(pieces, row.expected);
}

INSTANTIATE_TEST_SUITE_P(Part12, SplitStringTable, ::testing::ValuesIn(kSplitRows), RowName);

// ===================================================================================
// CaseInsensitiveHash and CaseInsensitiveEqual: single bytes, ASCII folding only.
// ===================================================================================

struct CaseRow {
    std::string name;
    std::string left;
    std::string right;
    bool equal;
    std::string leftLowered; // the text whose std::hash the hash of left must be
};

const std::vector<CaseRow> kCaseRows = {
    {"SameText", "abc", "abc", true, "abc"},
    {"UpperAndLower", "ABC", "abc", true, "abc"},
    {"MixedCase", "MiXeD_1-2", "mixed_1-2", true, "mixed_1-2"},
    {"BothEmpty", "", "", true, ""},
    {"DifferentLetter", "abc", "abd", false, "abc"},
    {"PrefixIsNotEqual", "abc", "abcd", false, "abc"},
    {"EmptyAndNonEmpty", "", "a", false, ""},
    {"Latin1UpperAndLowerNotFolded", "\xC4", "\xE4", false, "\xC4"},
    {"Utf8UpperAndLowerNotFolded", "\xC3\x89t\xC3\xA9", "\xC3\xA9T\xC3\xA9", false, "\xC3\x89t\xC3\xA9"},
    {"SameNonAsciiBytesEqual", "\xC3\x89X", "\xC3\x89x", true, "\xC3\x89x"},
    {"BracketAndBraceDiffer", "[", "{", false, "["},
    {"EmbeddedNulCounts", std::string("a\0b", 3), std::string("A\0B", 3), true, std::string("a\0b", 3)},
};

class CaseInsensitiveTable : public ::testing::TestWithParam<CaseRow> {};

TEST_P(CaseInsensitiveTable, EqualFoldsAsciiOnlyAndHashIsStdHashOfLoweredText)
{
    const CaseRow& row = GetParam();
    const Zorvan::CaseInsensitiveEqual equal;
    const Zorvan::CaseInsensitiveHash hash;
    EXPECT_EQ(equal(row.left, row.right), row.equal);
    EXPECT_EQ(equal(row.right, row.left), row.equal);
    EXPECT_EQ(hash(row.left), std::hash<std::string>{}(row.leftLowered));
    if (row.equal) {
        EXPECT_EQ(hash(row.left), hash(row.right));
    }
}

INSTANTIATE_TEST_SUITE_P(Part12, CaseInsensitiveTable, ::testing::ValuesIn(kCaseRows), RowName);

// ===================================================================================
// SettingsEffectBlurGaussian::Deserialize through the grammar (Parts 1.1 and 1.2).
// ===================================================================================

enum class Failure { None, InvalidArgument, OutOfRange };

struct BlurRow {
    std::string name;
    double initialScale;
    bool initialFast;
    std::string options;
    double scale;
    bool fast;
    Failure failure = Failure::None;
};

const std::string kManyDigits = "1" + std::string(400, '0');
const std::string kTinyFraction = "0." + std::string(400, '0') + "1";

const std::vector<BlurRow> kBlurRows = {
    {"EmptyStringChangesNothing", 3.0, true, "", 3.0, true},
    {"ScaleAndFastReadsOnlyScale", 0.0, false, "scale=2.5:fast=1", 2.5, false},
    {"FastAloneSetsFlag", 0.0, false, "fast=1", 0.0, true},
    {"FastZeroBeforeScaleIsIgnored", 0.0, true, "fast=0:scale=1", 1.0, true},
    {"ScaleWordChangesNothing", 3.0, true, "scale=abc", 3.0, true},
    {"ScaleWordLetsFastBeRead", 3.0, false, "fast=1:scale=abc", 3.0, true},
    {"QuotedScaleThrowsFromStod", 3.0, true, R"(scale="2")", 3.0, true, Failure::InvalidArgument},
    {"EmptyQuotedScaleThrowsFromStod", 3.0, true, R"(scale="")", 3.0, true, Failure::InvalidArgument},
    {"LoneHyphenScaleThrows", 3.0, true, "scale=-", 3.0, true, Failure::InvalidArgument},
    {"CommaLeadingScaleThrows", 3.0, true, "scale=,5", 3.0, true, Failure::InvalidArgument},
    {"ScaleOutsideDoubleThrowsOutOfRange", 3.0, true, "scale=" + kManyDigits, 3.0, true, Failure::OutOfRange},
    {"ScaleUnderflowThrowsOutOfRange", 3.0, true, "scale=" + kTinyFraction, 3.0, true, Failure::OutOfRange},
    {"CommaDecimalReadsIntegerPart", 0.0, false, "scale=1,5", 1.0, false},
    {"TwoPointsReadLongestPrefix", 0.0, false, "scale=1.2.3", 1.2, false},
    {"ExponentIsCutByPattern", 0.0, false, "scale=1e3", 1.0, false},
    {"PlusSignIsNoOption", 3.0, false, "scale=+5", 3.0, false},
    {"NegativeScaleStoredUnchecked", 0.0, false, "scale=-1.5", -1.5, false},
    {"UpperCaseKey", 0.0, false, "SCALE=4", 4.0, false},
    {"KeyAfterHyphenFound", 0.0, false, "x-scale=4", 4.0, false},
    {"KeyInsideWordNotFound", 7.0, false, "rescale=4", 7.0, false},
    {"RepeatedScaleFirstWins", 0.0, false, "scale=4:scale=5", 4.0, false},
    {"SpacesAroundEqualsNoOption", 7.0, false, "scale = 4", 7.0, false},
    {"UnknownKeyIgnored", 7.0, false, "radius=4", 7.0, false},
    {"FastTwoIsTrue", 0.0, false, "fast=2", 0.0, true},
    {"FastMinusOneIsTrue", 0.0, false, "fast=-1", 0.0, true},
    {"FastZeroClearsFlag", 0.0, true, "fast=0", 0.0, false},
    {"FastMinusZeroClearsFlag", 0.0, true, "fast=-0", 0.0, false},
    {"FastDecimalReadsIntegerPartTrue", 0.0, false, "fast=1.9", 0.0, true},
    {"FastDecimalReadsIntegerPartFalse", 0.0, true, "fast=0.9", 0.0, false},
    {"FastWordChangesNothing", 0.0, true, "fast=yes", 0.0, true},
    {"FastQuotedThrowsFromStoi", 0.0, false, R"(fast="1")", 0.0, false, Failure::InvalidArgument},
    {"FastOutsideIntThrowsOutOfRange", 0.0, false, "fast=99999999999", 0.0, false, Failure::OutOfRange},
    {"MissingScaleValueLetsFastBeRead", 2.0, false, "fast=1:scale=", 2.0, true},
};

class BlurGaussianDeserializeTable : public ::testing::TestWithParam<BlurRow> {};

TEST_P(BlurGaussianDeserializeTable, AppliesTheGrammarAndChainsScaleBeforeFast)
{
    const BlurRow& row = GetParam();
    Zorvan::Proc::SettingsEffectBlurGaussian blur;
    blur.SetScale(row.initialScale);
    blur.SetFast(row.initialFast);
    switch (row.failure) {
    case Failure::None:
        EXPECT_NO_THROW(blur.Deserialize(row.options));
        break;
    case Failure::InvalidArgument:
        EXPECT_TRUE(ThrowsExactly<std::invalid_argument>([&] { blur.Deserialize(row.options); }));
        break;
    case Failure::OutOfRange:
        EXPECT_TRUE(ThrowsExactly<std::out_of_range>([&] { blur.Deserialize(row.options); }));
        break;
    }
    EXPECT_EQ(blur.GetScale(), row.scale);
    EXPECT_EQ(blur.GetFast(), row.fast);
}

INSTANTIATE_TEST_SUITE_P(Part12, BlurGaussianDeserializeTable, ::testing::ValuesIn(kBlurRows), RowName);

TEST(Part12BlurGaussianDeserialize, SuccessiveCallsUpdateWithoutReset)
{
    Zorvan::Proc::SettingsEffectBlurGaussian blur;
    blur.Deserialize("scale=2");
    blur.Deserialize("fast=1");
    EXPECT_EQ(blur.GetScale(), 2.0);
    EXPECT_TRUE(blur.GetFast());
    blur.Deserialize("unknown=5");
    EXPECT_EQ(blur.GetScale(), 2.0);
    EXPECT_TRUE(blur.GetFast());
}

} // namespace
