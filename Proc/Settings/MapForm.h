#pragma once
// The map form of Deserialize (the options read into a map of keys, then key by key). Internal
// to the library's sources: not installed with the public headers (see CMakeLists.txt).
// Each class still builds its own key list and reads its own keys in its own order; these
// helpers only spell out the lookup and the standard conversion of one key.
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>

#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc::MapForm {

// The standard conversion of T: std::stod, std::stof, std::stoi in base 10 (int and
// enumerations), std::stoll, std::stoul, std::stoull; a bool is std::stoi compared with 0.
// Each reads the longest valid prefix and throws std::invalid_argument or std::out_of_range.
template <typename T>
T Convert(const std::string& text)
{
    if constexpr (std::is_same_v<T, bool>) {
        return std::stoi(text, nullptr, 10) != 0;
    } else if constexpr (std::is_enum_v<T>) {
        return static_cast<T>(std::stoi(text, nullptr, 10));
    } else if constexpr (std::is_same_v<T, double>) {
        return std::stod(text);
    } else if constexpr (std::is_same_v<T, float>) {
        return std::stof(text);
    } else if constexpr (std::is_same_v<T, int>) {
        return std::stoi(text, nullptr, 10);
    } else if constexpr (std::is_same_v<T, long long> || std::is_same_v<T, long>) {
        return static_cast<T>(std::stoll(text, nullptr, 10));
    } else if constexpr (std::is_same_v<T, unsigned long long> || std::is_same_v<T, unsigned long>) {
        return static_cast<T>(std::stoull(text, nullptr, 10));
    } else {
        static_assert(std::is_same_v<T, unsigned int>, "no standard conversion for this type");
        return static_cast<T>(std::stoul(text, nullptr, 10));
    }
}

// The text of `key` when the map holds it.
inline const std::string* FindText(const Settings::OptionsMap& map, const std::string& key)
{
    const auto found = map.find(key);
    return found != map.end() ? &found->second : nullptr;
}

// The converted value of `key` when the map holds it (for values that go through a setter).
template <typename T>
std::optional<T> Find(const Settings::OptionsMap& map, const std::string& key)
{
    if (const std::string* text = FindText(map, key)) {
        return Convert<T>(*text);
    }
    return std::nullopt;
}

// Stores the converted value of `key` straight into `field` when the map holds it; an
// absent key leaves the field as it is.
template <typename T>
void Read(const Settings::OptionsMap& map, const std::string& key, T& field)
{
    if (const std::string* text = FindText(map, key)) {
        field = Convert<T>(*text);
    }
}

// True only when exactly 1: std::stoi of the text equals 1, so 2 is false. Kept so for the
// effects whose saved presets were read this way.
inline void ReadExactlyOne(const Settings::OptionsMap& map, const std::string& key, bool& field)
{
    if (const std::string* text = FindText(map, key)) {
        field = std::stoi(*text, nullptr, 10) == 1;
    }
}

// A group of keys that are all or nothing (colours, lines): the texts in the order of
// `keys` when every key is present, else nothing, and then no key of the group is read.
template <std::size_t N>
std::optional<std::array<std::string, N>> FindAll(const Settings::OptionsMap& map,
                                                  const std::array<const char*, N>& keys)
{
    std::array<std::string, N> texts;
    for (std::size_t i = 0; i < N; ++i) {
        const std::string* text = FindText(map, keys[i]);
        if (text == nullptr) {
            return std::nullopt;
        }
        texts[i] = *text;
    }
    return texts;
}

// Four bytes, red lowest, alpha highest; each argument is cut to its low 8 bits.
constexpr Color PackColor(std::uint32_t red, std::uint32_t green, std::uint32_t blue, std::uint32_t alpha)
{
    return (red & 0xFFU) | ((green & 0xFFU) << 8U) | ((blue & 0xFFU) << 16U) | ((alpha & 0xFFU) << 24U);
}

} // namespace Zorvan::Proc::MapForm
