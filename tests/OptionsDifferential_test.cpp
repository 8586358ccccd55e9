// Generated option strings, key lists and patterns, read by the library and by the plain
// std::regex reading of OptionsReference.h: maps, views, values and exceptions must be the
// same, in the classic locale and in one that folds Latin-1 letters.
//
// CI runs 250 cases per locale. A long run, with any seed:
//   ZORVAN_OPTIONS_CASES=1000000 ZORVAN_OPTIONS_SEED=7 build/dev/tests/OptionsDifferential_test
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <locale>
#include <random>
#include <sstream>
#include <typeinfo>

#include "OptionsReference.h"

namespace {

using Zorvan::Proc::Settings;
namespace Reference = ZorvanTest::Reference;

std::uint64_t FromEnvironment(const char* name, std::uint64_t fallback)
{
    const char* text = std::getenv(name);
    return text != nullptr && *text != '\0' ? std::strtoull(text, nullptr, 10) : fallback;
}

// Latin-1 letters as a locale of that code page sees them: 0xC0-0xDE upper case, 0xDF-0xFE
// lower case, 0xC4 and 0xE4 the two cases of one letter.
class Latin1Ctype : public std::ctype<char> {
public:
    Latin1Ctype()
        : std::ctype<char>(Table().data())
    {
    }

private:
    static const std::array<mask, table_size>& Table()
    {
        static const auto table = [] {
            std::array<mask, table_size> masks{};
            std::copy_n(classic_table(), table_size, masks.begin());
            for (std::size_t c = 0xC0; c <= 0xFE; ++c) {
                if (c != 0xD7 && c != 0xF7) {
                    masks[c] = static_cast<mask>(alpha | print | graph | (c < 0xDF ? upper : lower));
                }
            }
            return masks;
        }();
        return table;
    }
    static bool Letter(unsigned char c) { return c >= 0xC0 && c != 0xD7 && c != 0xF7 && c != 0xDF && c != 0xFF; }
    char do_tolower(char c) const override
    {
        const auto u = static_cast<unsigned char>(c);
        return Letter(u) && u < 0xDF ? static_cast<char>(u + 0x20) : std::ctype<char>::do_tolower(c);
    }
    char do_toupper(char c) const override
    {
        const auto u = static_cast<unsigned char>(c);
        return Letter(u) && u > 0xDF ? static_cast<char>(u - 0x20) : std::ctype<char>::do_toupper(c);
    }
    const char* do_tolower(char* low, const char* high) const override
    {
        for (; low != high; ++low) {
            *low = do_tolower(*low);
        }
        return high;
    }
    const char* do_toupper(char* low, const char* high) const override
    {
        for (; low != high; ++low) {
            *low = do_toupper(*low);
        }
        return high;
    }
};

class Generator {
public:
    explicit Generator(std::uint64_t seed)
        : random_(seed)
    {
    }

    std::size_t Below(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(random_); }

    template <std::size_t N>
    std::string Pick(const std::array<const char*, N>& choices)
    {
        return choices[Below(N)];
    }

    // A key of the pool in a random mix of letter cases, now and then an expression.
    std::string Key()
    {
        // Keys of 62 and 66 bytes sit either side of the length up to which keys are indexed.
        std::string key =
            Below(16) == 0 ? std::string(Below(2) == 0 ? 62 : 66, 'k')
                           : Pick(std::array{"a", "ab", "b", "scale", "x-y", "level_in", "k_1", "\xC4", "q\xE4", ""});
        for (char& c : key) {
            const auto u = static_cast<unsigned char>(c);
            if (Below(2) == 0) {
                c = static_cast<char>(u >= 0xC0 ? u ^ 0x20U : (std::isalpha(u) ? u ^ 0x20U : u));
            }
        }
        return Below(8) == 0 ? Pick(std::array{"a.", "s(?:c)ale", "x*", "k|B", "[ab]+"}) : key;
    }

    std::string Options()
    {
        std::string options;
        for (std::size_t n = Below(7); n > 0; --n) {
            options += Pick(std::array{":", "", " ", "::", "\"", "=", "-", "x", "\xC4", "re", "_", ":\""});
            options += Key() + "=";
            options +=
                Pick(std::array{"1",       "-2.5", "1,5", "12abc", "abc",     "16x9", "4X3",   "1e3",      "+5",
                                "\"x y\"", "\"\"", "\"",  "\"1\"", "",        " 7",   "a=1",   "\xC4\xE4", "x\"y",
                                "true",    "255",  "-0",  "16x",   "\"a:b\"", "1=2",  "\xE4x1"});
        }
        return options;
    }

    std::string Pattern(int depth)
    {
        switch (depth <= 0 ? 0 : Below(6)) {
        case 0:
            return Pick(std::array{"a",       "b",      "x",        "1",           R"(\d)",     R"(\w)", R"(\s)",
                                   ".",       "[a-c]",  R"([^:"])", "[[:alpha:]]", "\"",        ":",     "=",
                                   R"(\xC4)", R"(\b)",  R"(\B)",    "^",           "$",         R"(\1)", R"(\2)",
                                   "[A-c]",   R"(\cA)", R"([\b-])", "-",           R"(\u0041)", "[]"});
        case 1:
            return Pattern(depth - 1) + Pattern(depth - 1);
        case 2:
            return Pattern(depth - 1) + "|" + Pattern(depth - 1);
        case 3:
            return Pick(std::array{"(", "(?:", "(?=", "(?!"}) + Pattern(depth - 1) + ")";
        case 4: {
            // Quantified pieces are never nested and never more than three, so that no
            // backtracking of std::regex runs for ever.
            const std::string piece = Below(2) == 0 ? Pattern(0) : "(" + Pattern(0) + Pattern(0) + ")";
            return ++quantified_ > 3 ? piece
                                     : piece + Pick(std::array{"*", "+", "?", "*?", "+?", "??", "{2}", "{1,2}", "{0,}",
                                                               "{1,2}?", "{,1}"});
        }
        default:
            return Pattern(depth - 1) + Pattern(depth - 1) + Pattern(depth - 1);
        }
    }

    std::string Expression(int depth)
    {
        quantified_ = 0;
        return Pattern(depth);
    }

    std::string ValuePattern()
    {
        return Below(3) == 0 ? Expression(3)
                             : Pick(std::array{"", "", "", R"([^":]+|"[^"]*")", R"([0-9\.\,\-]+|"[^"]*")", R"(\d+x\d+)",
                                               R"([^":]+|"[^"]*"|)"});
    }

private:
    std::mt19937_64 random_;
    int quantified_ = 0;
};

std::string Escaped(std::string_view text)
{
    std::ostringstream out;
    for (const char c : text) {
        const auto u = static_cast<unsigned char>(c);
        if (u < 0x20 || u >= 0x7F) {
            out << "\\x" << std::hex << static_cast<unsigned>(u) << std::dec;
        } else {
            out << c;
        }
    }
    return out.str();
}

// A result as text: entries sorted, views with their offset in the option string.
template <class Map>
std::string Describe(std::string_view options, const Map& map)
{
    std::vector<std::string> entries;
    for (const auto& [key, value] : map) {
        entries.push_back(Escaped(key) + "=" + Escaped(value));
        if constexpr (std::is_same_v<Map, Settings::OptionsViewMap>) {
            entries.back() += "@" + std::to_string(value.data() - options.data());
        }
    }
    std::sort(entries.begin(), entries.end());
    std::string text;
    for (const std::string& entry : entries) {
        text += entry + "\n";
    }
    return text;
}

std::string Describe(std::string_view options, std::string_view value)
{
    return value.empty() ? "(empty)" : Escaped(value) + "@" + std::to_string(value.data() - options.data());
}

template <class T>
std::string Describe(std::string_view, const std::optional<T>& value)
{
    std::ostringstream out;
    if (value) {
        out << std::hexfloat << +*value;
    }
    return value ? out.str() : "(none)";
}

template <class F>
std::string Outcome(std::string_view options, F&& read)
{
    try {
        return Describe(options, read());
    } catch (const std::regex_error& e) {
        return "regex_error " + std::to_string(e.code());
    } catch (const std::exception& e) {
        return std::string(typeid(e).name()) + ": " + e.what();
    }
}

template <class T>
void CompareGetOption(const std::string& options, const std::string& key, const std::string& valuePattern)
{
    EXPECT_EQ(Outcome(options, [&] { return Settings::GetOption<T>(options, key, valuePattern); }),
              Outcome(options, [&] { return Reference::GetOption<T>(options, key, valuePattern); }))
        << "GetOption<" << typeid(T).name() << ">";
}

void RunCases(std::uint64_t seed)
{
    const std::uint64_t count = FromEnvironment("ZORVAN_OPTIONS_CASES", 250);
    Generator generate(seed);
    for (std::uint64_t i = 0; i < count; ++i) {
        const std::string options = generate.Options();
        std::vector<std::string> keys(generate.Below(4));
        std::generate(keys.begin(), keys.end(), [&] { return generate.Key(); });
        const std::string keyPattern =
            generate.Below(4) == 0 ? generate.Expression(2) : Zorvan::Core::Utils::ToString(keys, "|");
        const std::string key = keys.empty() ? generate.Key() : keys.front();
        const std::string valuePattern = generate.ValuePattern();
        SCOPED_TRACE("seed " + std::to_string(seed) + " case " + std::to_string(i) + ": options '" + Escaped(options) +
                     "' keys '" + Escaped(keyPattern) + "' value '" + Escaped(valuePattern) + "'");
        EXPECT_EQ(Outcome(options, [&] { return Settings::GetOptionsMap(options, keys); }),
                  Outcome(options, [&] { return Reference::GetOptionsMap(options, keys); }));
        EXPECT_EQ(Outcome(options, [&] { return Settings::OptionsRegexSearch(options, keyPattern, valuePattern); }),
                  Outcome(options, [&] { return Reference::OptionsRegexSearch(options, keyPattern, valuePattern); }));
        EXPECT_EQ(Outcome(options, [&] { return Settings::OptionRegexSearch(options, key, valuePattern); }),
                  Outcome(options, [&] { return Reference::OptionRegexSearch(options, key, valuePattern); }));
        switch (i % 4) {
        case 0:
            CompareGetOption<double>(options, key, valuePattern);
            break;
        case 1:
            CompareGetOption<int>(options, key, "");
            break;
        case 2:
            CompareGetOption<bool>(options, key, "");
            break;
        default:
            CompareGetOption<unsigned char>(options, key, "");
        }
        if (::testing::Test::HasFailure()) {
            return;
        }
    }
}

} // namespace

TEST(OptionsDifferential, ClassicLocale)
{
    RunCases(FromEnvironment("ZORVAN_OPTIONS_SEED", 1));
}

TEST(OptionsDifferential, LocaleFoldingLatin1Letters)
{
    const std::locale previous = std::locale::global(std::locale(std::locale::classic(), new Latin1Ctype));
    RunCases(FromEnvironment("ZORVAN_OPTIONS_SEED", 1) + 1);
    std::locale::global(previous);
}
