#include <gtest/gtest.h>

#include <boost/exception/exception.hpp>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <limits>
#include <regex>
#include <stdexcept>
#include <system_error>
#include <tuple>
#include <typeinfo>
#include <utility>

#include "Proc/Settings/Settings.h"
#include "TestSupport.h"

using Zorvan::Proc::Settings;
using ZorvanTest::ThrownType;

namespace {

constexpr std::string_view kNumeric = R"([0-9\.\,\-]+|"[^"]*")";
constexpr std::string_view kSize = R"(\d+x\d+)";
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

// The entries as "key=value" with the key spelt as in the option string, sorted, joined by '|'.
template <class Map>
std::string Entries(const Map& map)
{
    std::vector<std::string> entries;
    for (const auto& [key, value] : map) {
        entries.push_back(key + "=" + std::string(value));
    }
    std::sort(entries.begin(), entries.end());
    std::string text;
    for (const std::string& entry : entries) {
        text += (text.empty() ? "" : "|") + entry;
    }
    return text;
}

template <class T>
bool Same(T expected, T actual)
{
    if constexpr (std::is_floating_point_v<T>) {
        return std::isnan(expected) ? std::isnan(actual)
                                    : expected == actual && std::signbit(expected) == std::signbit(actual);
    }
    return expected == actual;
}

} // namespace

// Map-form options: unquoted values are digits, points, commas and hyphens only; quotes
// stay in the value; the first occurrence of a key wins whatever its letter case.
TEST(OptionStrings, GetOptionsMap)
{
    const std::tuple<std::string, std::vector<std::string>, std::string> rows[] = {
        // clang-format off
        {"",                     {"a"},          ""},         {"a=1",                  {},             ""},
        {"A=1:a=2",              {"a"},          "A=1"},      {"scale=7",              {"ScAlE"},      "scale=7"},
        {R"(a="")",              {"a"},          R"(a="")"},  {R"(a=":":b=3)",         {"a", "b"},     R"(a=":"|b=3)"},
        {R"(a="12)",             {"a"},          ""},         {"a=abc:b=2",            {"a", "b"},     "b=2"},
        {"a=:b=2",               {"a", "b"},     "b=2"},      {"a=1 b=2",              {"a", "b"},     "a=1|b=2"},
        {"a=1b=2",               {"a", "b"},     "a=1|b=2"},  {"a=12abc",              {"a"},          "a=12"},
        {"a=1e3",                {"a"},          "a=1"},      {"a=+5",                 {"a"},          ""},
        {"a=-1.2,3",             {"a"},          "a=-1.2,3"}, {"a=1=2",                {"a"},          "a=1"},
        {"a =1:b= 2",            {"a", "b"},     ""},         {"x-scale=1",            {"scale"},      "scale=1"},
        {"1scale=3:ab=1",        {"scale", "a"}, ""},         {"rescale=1:my_scale=2", {"scale"},      ""},
        {"ab=5",                 {"a", "ab"},    "ab=5"},     {"abc=1",                {"a.c"},        "abc=1"},
        {"::garbage==:a=4::",    {"a"},          "a=4"},      {"a=1:c=3:b=2:a=4:b=5",  {"a", "b"},     "a=1|b=2"},
        // clang-format on
    };
    for (const auto& [options, keys, expected] : rows) {
        EXPECT_EQ(Entries(Settings::GetOptionsMap(options, keys)), expected) << options;
    }
    EXPECT_EQ(Settings::GetOptionsMap("SCALE=2", {"scale"}).at("scale"), "2");
}

// The view map: with an empty value pattern a value runs to the next colon or quote and
// loses its enclosing quotes, and an empty value is no occurrence at all.
TEST(OptionStrings, OptionsRegexSearch)
{
    const std::tuple<std::string, std::string, std::string_view, std::string> rows[] = {
        // clang-format off
        {"a=1",             "",       "",       ""},            {"a=1 b=2:b=3",     "a|b",    "",       "a=1 b=2|b=3"},
        {R"(a="x:y")",      "a",      "",       "a=x:y"},       {R"(a="":a=5)",     "a",      "",       "a=5"},
        {R"(a=x"y)",        "a",      "",       "a=x"},         {"A=1:a=abc",       "a",      "",       "A=1"},
        {R"(a="")",         "a",      kNumeric, R"(a="")"},     {"a=abc:b=2",       "a|b",    kNumeric, "b=2"},
        {"aspect=16X9",     "aspect", kSize,    "aspect=16X9"}, {R"(aspect="4x3")", "aspect", kSize,    ""},
        // clang-format on
    };
    for (const auto& [options, keys, pattern, expected] : rows) {
        const Settings::OptionsViewMap map = Settings::OptionsRegexSearch(options, keys, pattern);
        EXPECT_EQ(Entries(map), expected) << options;
        for (const auto& entry : map) {
            EXPECT_TRUE(entry.second.data() >= options.data() &&
                        entry.second.data() + entry.second.size() <= options.data() + options.size());
        }
    }
}

// A single search: only the first occurrence is ever looked at.
TEST(OptionStrings, OptionRegexSearch)
{
    const std::tuple<std::string, std::string, std::string_view, std::string> rows[] = {
        // clang-format off
        {"",                  "a",         "",       ""},        {"a=1",               "",          "",       ""},
        {"a=1:a=2",           "a",         "",       "1"},       {R"(a=x"y)",          "a",         "",       "x"},
        {"a=1 b=2=3:c",       "a",         "",       "1 b=2=3"}, {R"(a=" 1")",         "a",         "",       " 1"},
        {R"(a="":a=5)",       "a",         "",       ""},        {R"(a="x)",           "a",         "",       ""},
        {"rescale=1:SCALE=2", "scale",     "",       "2"},       {"foo=1",             R"(\w+)",    "",       "1"},
        {R"(a="1")",          "a",         kNumeric, R"("1")"},  {"aspect=16x",        "aspect",    kSize,    ""},
        {"FRAMESIZE=4X3px",   "frameSize", kSize,    "4X3"},
        // clang-format on
    };
    for (const auto& [options, key, pattern, expected] : rows) {
        EXPECT_EQ(std::string(Settings::OptionRegexSearch(options, key, pattern)), expected) << options;
    }
}

// Keys are expression fragments: a bad one raises regex_error as it is, unless the search
// returns before compiling.
TEST(OptionStrings, BadExpressionsRaiseRegexError)
{
    const std::string regexError = typeid(std::regex_error).name();
    EXPECT_EQ(ThrownType([] { (void)Settings::GetOptionsMap("a=1", {"("}); }), regexError);
    EXPECT_EQ(ThrownType([] { (void)Settings::OptionsRegexSearch("a=1", "a", "("); }), regexError);
    EXPECT_EQ(ThrownType([] { (void)Settings::OptionRegexSearch("a=1", "a", "[1"); }), regexError);
    EXPECT_EQ(ThrownType([] { (void)Settings::GetOption<int>("a=1", "a)", ""); }), regexError);
    EXPECT_TRUE(Settings::GetOptionsMap("", {"("}).empty());
    EXPECT_TRUE(Settings::OptionRegexSearch("", "(", "").empty());
}

namespace {

// A refusal is a plain std::invalid_argument whose what() is the message alone: no stack,
// no boost records, so the engine can show it as it stands.
template <class T>
void ExpectRefused(const std::string& options, const std::string& value, const std::string& key = "a",
                   std::string_view pattern = "")
{
    SCOPED_TRACE(options);
    const std::string noun = std::is_same_v<T, bool> ? "boolean" : "number";
    try {
        (void)Settings::GetOption<T>(options, key, pattern);
        ADD_FAILURE() << "no exception";
    } catch (const std::exception& e) {
        EXPECT_EQ(typeid(e), typeid(std::invalid_argument)) << typeid(e).name();
        EXPECT_EQ(dynamic_cast<const boost::exception*>(&e), nullptr);
        EXPECT_EQ(std::string(e.what()), "The '" + value + "' value of the '" + key + "' option is not a " + noun);
    }
}

// Each text is tried as the option a=<text>; a refusal quotes the text without its
// enclosing quotes. An absent key and an empty quoted value give no value and no error.
template <class T>
void ExpectOption(const std::vector<std::pair<std::string, T>>& accepted, const std::vector<std::string>& refused)
{
    for (const auto& [text, value] : accepted) {
        std::optional<T> actual;
        ASSERT_NO_THROW(actual = Settings::GetOption<T>("a=" + text, "a", "")) << text;
        ASSERT_TRUE(actual.has_value()) << text;
        EXPECT_TRUE(Same(value, *actual)) << text << " gave " << +*actual;
    }
    for (const std::string& text : refused) {
        const bool quoted = text.size() > 1 && text.front() == '"';
        ExpectRefused<T>("a=" + text, quoted ? text.substr(1, text.size() - 2) : text);
    }
    for (const char* absent : {"b=1", R"(a="")", "a=", ""}) {
        EXPECT_FALSE(Settings::GetOption<T>(absent, "a", "").has_value()) << absent;
    }
}

} // namespace

// Accepted texts with their values, then refused texts, type by type.
TEST(GetOption, AcceptsAndRefusesTypeByType)
{
    using F = std::numeric_limits<float>;
    using D = std::numeric_limits<double>;
    using I = std::numeric_limits<int>;
    // clang-format off
    ExpectOption<float>({{"+5", 5.0F}, {"1e3", 1000.0F}, {".5", 0.5F}, {"-0", -0.0F}, {"0x10", 16.0F},
                         {"-INFINITY", -F::infinity()}, {"nan(123)", F::quiet_NaN()}, {"\"\t 2.5\"", 2.5F},
                         {"3.4028235e38", F::max()}, {"1.17549435e-38", F::min()},
                         {"1.00000017881393432617187499", 1.00000011920928955078125F}}, // rounded once, by strtof
                        {"1e40", "1e-40", "1e-50", "-", "1,5", "1e", R"("1.5 ")", R"("x y")", "1 b=2"});
    ExpectOption<double>({{"1e40", 1e40}, {"2.2250738585072014e-308", D::min()}, {"-0X1P-2", -0.25},
                          {"infinity", kInf}, {"NAN", kNan}, {R"("   7")", 7.0}},
                         {"1e309", "1e-310", "1e-400", "0x", "1_000"});
    ExpectOption<int>({{"-2147483648", I::min()}, {"00000000002147483647", I::max()}, {"-007", -7}, {"12:b=3", 12}},
                      {"2147483648", "-2147483649", "-", "12abc", "+1", "1.0", "--1", R"(" 12")", "0x10"});
    ExpectOption<unsigned char>({{"000255", 255}, {"0", 0}}, {"256", "-1", "-0", "+1", "4294967297", "1a"});
    ExpectOption<unsigned short>({{"00065535", 65535}}, {"65536", "-5", "1.5", R"(" 1")"});
    ExpectOption<unsigned int>({{"4294967295", 4294967295U}}, {"4294967296", "-1", "+7", "ten"});
    ExpectOption<unsigned long>({{"00018446744073709551615", 18446744073709551615UL}},
                                {"18446744073709551616", "-1", "0x1"});
    // Only the four exact spellings, compared case-sensitively.
    ExpectOption<bool>({{"1", true}, {"0", false}, {R"("true")", true}, {"false", false}},
                       {"2", "yes", "TRUE", "True", "False", "01", "-1", R"(" true")"});
    // clang-format on
}

// The first occurrence counts; the message names the key as passed and the value as read.
TEST(GetOption, KeyAndPatternAsPassed)
{
    EXPECT_EQ(Settings::GetOption<float>("A=4:a=x", "a", ""), 4.0F);
    EXPECT_EQ(Settings::GetOption<double>("a=0.125:b=1", "a", ""), 0.125);
    ExpectRefused<float>("Scale=x", "x", "scale");
    ExpectRefused<int>("ab=x", "x", "a.");
    ExpectRefused<float>(R"(a="1")", R"("1")", "a", kNumeric);
}

// strtof/strtod behind a from_chars result: the format is ignored, a range error is
// reported although the value has been stored, and nothing past `last` is read.
TEST(OptionStrings, FromChars)
{
    constexpr auto G = std::chars_format::general;
    constexpr auto fixed = std::chars_format::fixed;
    constexpr auto hex = std::chars_format::hex;
    constexpr auto range = std::errc::result_out_of_range;
    // The text, the length passed, the value stored, the length consumed, the error, the format.
    const std::tuple<std::string, std::size_t, double, std::size_t, std::errc, std::chars_format> rows[] = {
        // clang-format off
        {" 7",     2, 7.0,    2, {},    G},     {"1e3x",   4, 1000.0, 3, {},    G},
        {"abc",    3, 0.0,    0, {},    G},     {"12345",  2, 12.0,   2, {},    G},
        {"nan",    3, kNan,   3, {},    G},     {"-1e309", 6, -kInf,  6, range, G},
        {"1e-310", 6, 1e-310, 6, range, G},     {"1e3",    3, 1000.0, 3, {},    fixed},
        {"10",     2, 10.0,   2, {},    hex},
        // clang-format on
    };
    for (const auto& [text, length, expected, consumed, ec, format] : rows) {
        double value = 42.0;
        errno = ERANGE; // a stale error must not be reported
        const auto result = Zorvan::FromChars(text.data(), text.data() + length, value, format);
        EXPECT_EQ(result.ptr, text.data() + consumed) << text;
        EXPECT_EQ(result.ec, ec) << text;
        EXPECT_TRUE(Same(expected, value)) << text << " gave " << value;
    }
    const std::string huge = "1e40";
    float value = 0.0F;
    EXPECT_EQ(Zorvan::FromChars(huge.data(), huge.data() + huge.size(), value).ec, range);
    EXPECT_EQ(value, std::numeric_limits<float>::infinity());
}

// The whole unsigned numbers of the resizer: a failure leaves the number alone.
TEST(OptionStrings, ToNumberUnsigned)
{
    unsigned int number = 7;
    EXPECT_TRUE(Zorvan::Core::Utils::ToNumber<unsigned int>("0004294967295", number));
    EXPECT_EQ(number, 4294967295U);
    for (const char* bad : {"", "4294967296", "-1", "+1", " 1", "1x"}) {
        number = 7;
        EXPECT_FALSE(Zorvan::Core::Utils::ToNumber<unsigned int>(bad, number)) << bad;
        EXPECT_EQ(number, 7U) << bad;
    }
}

TEST(OptionStrings, ToStringAndSplitString)
{
    using Zorvan::Core::Utils::ToString;
    const auto bracket = [](const std::string& text) { return "<" + text + ">"; };
    EXPECT_EQ(ToString({}, "|", bracket), "");
    EXPECT_EQ(ToString({"a", ""}, ", "), "a, ");
    EXPECT_EQ(ToString({"a", "b"}, "::", bracket), "<a>::<b>");

    const std::pair<std::string, std::vector<std::string>> rows[] = {
        {"", {"x"}}, {"a,b,", {"x", "a", "b"}}, {"a,,b", {"x", "a", "", "b"}}, {",", {"x", ""}}, {" a ", {"x", " a "}}};
    for (const auto& [text, expected] : rows) {
        std::vector<std::string> pieces = {"x"};
        Zorvan::Core::Utils::SplitString(pieces, text, ',');
        EXPECT_EQ(pieces, expected) << text;
    }
}

// Single bytes, ASCII folding only; the hash is the standard hash of the lowered text.
TEST(OptionStrings, CaseInsensitiveHashAndEqual)
{
    const std::tuple<std::string, std::string, bool, std::string> rows[] = {
        // clang-format off
        {"MiXeD_1-2", "mixed_1-2", true,  "mixed_1-2"}, {"",          "",          true,  ""},
        {"abc",       "abcd",      false, "abc"},       {"\xC4",      "\xE4",      false, "\xC4"},
        {"[",         "{",         false, "["},         {"\xC3\x89X", "\xC3\x89x", true,  "\xC3\x89x"},
        {{"a\0b", 3}, {"A\0B", 3}, true,  {"a\0b", 3}},
        // clang-format on
    };
    for (const auto& [left, right, equal, lowered] : rows) {
        EXPECT_EQ(Zorvan::CaseInsensitiveEqual{}(left, right), equal) << lowered;
        EXPECT_EQ(Zorvan::CaseInsensitiveEqual{}(right, left), equal) << lowered;
        EXPECT_EQ(Zorvan::CaseInsensitiveHash{}(left), std::hash<std::string>{}(lowered)) << lowered;
    }
}
