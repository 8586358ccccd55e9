#include "imported/ColorUtils.h"

#include <algorithm>
#include <cctype>

namespace Zorvan::Conf {

namespace {

struct NamedColorSpace {
    std::string_view name;
    ColorSpace space;
};

// The table of imported/ColorUtils.h.
constexpr NamedColorSpace kNames[] = {
    {"unspecified", {2, 2, 2}}, {"unknown", {2, 2, 2}},       {"bt709", {1, 1, 1}},      {"rec709", {1, 1, 1}},
    {"bt601", {6, 6, 6}},       {"bt601-525", {6, 6, 6}},     {"smpte170m", {6, 6, 6}},  {"ntsc", {6, 6, 6}},
    {"bt601-625", {5, 6, 5}},   {"bt470bg", {5, 6, 5}},       {"pal", {5, 6, 5}},        {"smpte240m", {7, 7, 7}},
    {"bt2020", {9, 14, 9}},     {"bt2020nc", {9, 14, 9}},     {"rec2020", {9, 14, 9}},   {"bt2020c", {9, 14, 10}},
    {"bt2020-pq", {9, 16, 9}},  {"hdr10", {9, 16, 9}},        {"smpte2084", {9, 16, 9}}, {"bt2020-hlg", {9, 18, 9}},
    {"hlg", {9, 18, 9}},        {"arib-std-b67", {9, 18, 9}}, {"srgb", {1, 13, 0}},      {"display-p3", {12, 13, 0}},
    {"p3", {12, 13, 0}},
};

bool SameIgnoringCase(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return std::tolower(static_cast<unsigned char>(x)) == std::tolower(static_cast<unsigned char>(y));
           });
}

} // namespace

ColorSpace ColorSpace::FromString(std::string_view name)
{
    for (const auto& entry : kNames) {
        if (SameIgnoringCase(entry.name, name)) {
            return entry.space;
        }
    }
    return ColorSpace{3, 3, 3};
}

} // namespace Zorvan::Conf
