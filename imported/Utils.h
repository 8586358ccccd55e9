#pragma once
// Stand-in for the sibling library Utils: string helpers and frame-geometry matrices.
#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "imported/Export.h"

namespace Zorvan::Core::Utils {

// Removes one enclosing pair of double quotes: "\"a b\"" gives "a b", "\"\"" gives "".
// Text that does not both begin and end with a quote (unbalanced quotes included, such
// as "\"a" or "a\"", and a lone "\"") comes back unchanged.
ZORVAN_IMPORTED_EXPORT std::string RemoveQuotes(const std::string& text);

// Cuts the text at the first occurrence of the separator: the text before it and the
// text behind it. Without the separator: the whole text and an empty second part.
// "1920x1080" at 'x' gives ("1920", "1080"); "1x2x3" gives ("1", "2x3").
ZORVAN_IMPORTED_EXPORT std::pair<std::string, std::string> CutString(std::string_view text, char separator);

} // namespace Zorvan::Core::Utils

namespace Zorvan::Core {

// A 3 by 3 matrix of doubles in storage order m[0]..m[8], row by row. Points are row
// vectors multiplied from the left, so m[6] and m[7] are the translation.
struct ZORVAN_IMPORTED_EXPORT Matrix3x3 {
    std::array<double, 9> m{1.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 1.0};

    // The nine values compared exactly.
    bool operator==(const Matrix3x3& other) const;
};

} // namespace Zorvan::Core
