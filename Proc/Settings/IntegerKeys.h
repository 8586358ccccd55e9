#pragma once
// Deserialize of the records whose keys are all whole numbers (most transitions): each key
// read with std::stoi and stored in its field as it stands. Internal to the library's sources:
// not installed with the public headers (see CMakeLists.txt). Each class still names its own
// keys in its own order.
#include <string>
#include <type_traits>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// An option key and the field its number goes into: a 32-bit integer, signed or unsigned, or an
// enumeration stored in one.
template <class T>
struct IntegerKey {
    static_assert((std::is_integral_v<T> || std::is_enum_v<T>)&&sizeof(T) == sizeof(int));

    IntegerKey(const char* name, T& target)
        : key(name)
        , field(target)
    {
    }

    const char* key;
    T& field;
};

// Reads the keys in the order given. A present key goes through std::stoi in base 10 and the
// result is stored without a check: a negative number in an unsigned field keeps its bit
// pattern, a number outside int throws std::out_of_range, a value that is no number
// std::invalid_argument, and keys read before the failing one stay read. An empty string and
// absent keys change nothing.
template <class... T>
void ReadIntegerKeys(const std::string& options, IntegerKey<T>... keys)
{
    if (options.empty()) {
        return;
    }
    const Settings::OptionsMap map = Settings::GetOptionsMap(options, {keys.key...});
    const auto read = [&map](const auto& key) {
        if (const auto found = map.find(key.key); found != map.end()) {
            key.field =
                static_cast<std::remove_reference_t<decltype(key.field)>>(std::stoi(found->second, nullptr, 10));
        }
    };
    (read(keys), ...);
}

} // namespace Zorvan::Proc
