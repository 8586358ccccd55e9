#pragma once
// The words of option strings turned into values: enumeration spellings, in tables built
// once, on first use, inside the function that owns them and looked up without regard to
// letter case, as presets are typed by hand; and colour space names. Only for the
// library's own sources: not installed.
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include <fmt/format.h>

#include "Proc/Settings/ProcException.h"
#include "Proc/Settings/Settings.h"
#include "imported/ConfInt.h"

namespace Zorvan::Proc {

template <typename E>
using SpellingTable = std::unordered_map<std::string, E, CaseInsensitiveHash, CaseInsensitiveEqual>;

template <typename E>
std::optional<E> FindSpelling(const SpellingTable<E>& table, std::string_view text)
{
    if (const auto found = table.find(std::string(text)); found != table.end()) {
        return found->second;
    }
    return std::nullopt;
}

// A colour space by name; a name the colour library does not know, or one that gives a
// reserved code point, throws EffectException naming it.
inline Conf::ColorSpace ColorSpaceFromName(std::string_view name)
{
    const Conf::ColorSpace colorSpace = Conf::ColorSpace::FromString(name);
    if (!Conf::IsValidColorPrimaries(colorSpace.primaries) || !Conf::IsValidTransferFunction(colorSpace.transfer) ||
        !Conf::IsValidYCbCrMatrix(colorSpace.matrix)) {
        ThrowEffect(fmt::format("Unknown color space name: {}", name));
    }
    return colorSpace;
}

} // namespace Zorvan::Proc
