#pragma once
// Stand-in for the sibling library LUTInt: a three-dimensional colour
// lookup table.
#include <array>
#include <cstddef>
#include <vector>

#include "imported/Export.h"

namespace Zorvan::Proc::LUT {

// A cube of size^3 RGB entries, red index fastest: the entry (r, g, b) is
// values[r + size * (g + size * b)]. The table checks nothing on construction.
class ZORVAN_IMPORTED_EXPORT LUTTable {
public:
    LUTTable() = default;
    LUTTable(std::size_t size, std::vector<std::array<float, 3>> values);

    // The entry at (r, g, b); std::out_of_range when an index is not below the size or
    // the table holds fewer values than the index needs.
    std::array<float, 3> GetValue(unsigned long r, unsigned long g, unsigned long b) const;
    // True when the size is at least 2 and there are exactly size^3 values.
    bool IsValid() const;
    std::size_t GetSize() const;
    const std::vector<std::array<float, 3>>& GetValues() const;

    // Size and values compared exactly.
    bool operator==(const LUTTable& other) const;
    bool operator!=(const LUTTable& other) const;

private:
    std::size_t size = 0;
    std::vector<std::array<float, 3>> values;
};

} // namespace Zorvan::Proc::LUT
