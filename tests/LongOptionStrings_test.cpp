// Option strings of 16 MiB from a project file: one huge value, a huge quoted value, a quote
// that never closes, many keys, many separators. Each reads as a short one would or fails
// with the exception its record documents, and nothing overflows the stack.
#include <gtest/gtest.h>

#include <optional>
#include <regex>
#include <stdexcept>
#include <string>

#include "Proc/Settings/Settings.h"
#include "Proc/Settings/SettingsEffectBlurGaussian.h"
#include "Proc/Settings/SettingsResizer.h"
#include "TestSupport.h"

using Zorvan::Proc::Settings;

namespace {

constexpr std::size_t kSize = std::size_t{16} << 20;

std::string Repeat(const std::string& piece)
{
    std::string text = piece;
    text.reserve(kSize + piece.size());
    while (text.size() * 2 <= kSize) {
        text += text;
    }
    while (text.size() < kSize) {
        text += piece;
    }
    return text;
}

} // namespace

TEST(LongOptionStrings, LibraryPatterns)
{
    const std::string digits(kSize, '7');
    const auto map = Settings::GetOptionsMap("threshold=" + digits + ":ratio=4", {"ratio", "threshold"});
    EXPECT_EQ(map.at("threshold"), digits);
    EXPECT_EQ(map.at("ratio"), "4");

    const std::string quoted = "a=\"" + std::string(kSize, 'q') + "\":b=1";
    EXPECT_EQ(Settings::OptionRegexSearch(quoted, "a", "").size(), kSize);
    EXPECT_EQ(Settings::OptionsRegexSearch(quoted, "a|b", "").size(), 2U);
    // The quote never closes, so a holds nothing and x takes all the rest.
    EXPECT_EQ(Settings::OptionRegexSearch("a=\"" + Repeat("x=1 "), "a|x", "").size(), kSize - 2);
    EXPECT_EQ(Settings::GetOptionsMap("a=\"" + Repeat("a=1="), {"a"}).at("a"), "1");

    const auto many = Settings::OptionsRegexSearch(Repeat("k=1:level_in=2:"), "K|level_in|j", "");
    EXPECT_EQ(many.size(), 2U);
    EXPECT_EQ(Settings::GetOption<int>(Repeat(":") + "LEVEL_IN=-3", "level_in", ""), -3);
    EXPECT_EQ(Settings::GetOption<int>(Repeat("=") + "a=5", "a", ""), 5);
    EXPECT_EQ(Settings::OptionRegexSearch(Repeat("frameSize=1x:") + "frameSize=4x3", "frameSize", R"(\d+x\d+)"), "4x3");
    EXPECT_TRUE(Settings::GetOptionsMap(Repeat("a=b="), {"a", "b"}).empty());
}

TEST(LongOptionStrings, RecordsParseOrFailAsDocumented)
{
    Zorvan::Proc::SettingsEffectBlurGaussian blur;
    blur.Deserialize("scale=2." + std::string(kSize, '0'));
    EXPECT_EQ(blur.GetScale(), 2.0);
    EXPECT_THROW(blur.Deserialize("scale=" + std::string(kSize, '9')), std::out_of_range);

    Zorvan::Proc::SettingsResizer resizer;
    EXPECT_THROW(resizer.Deserialize("1920x1080:aspect=" + std::string(kSize, '9') + "x1"), std::bad_optional_access);
}

// A pattern of the caller's own: a run of one character set takes no memory per character;
// a search that would need too much raises error_stack, as std::regex_search may.
TEST(LongOptionStrings, CallersPatterns)
{
    const std::string value = "a=" + std::string(kSize, 'x');
    EXPECT_EQ(Settings::OptionRegexSearch(value, "a", "[a-z]+").size(), kSize);
    try {
        (void)Settings::OptionRegexSearch(value, "a", "(?:x|y)+");
        ADD_FAILURE() << "no exception";
    } catch (const std::regex_error& e) {
        EXPECT_EQ(e.code(), std::regex_constants::error_stack);
    }
}
