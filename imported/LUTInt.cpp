#include "imported/LUTInt.h"

#include <stdexcept>
#include <string>
#include <utility>

namespace Zorvan::Proc::LUT {

LUTTable::LUTTable(std::size_t newSize, std::vector<std::array<float, 3>> newValues)
    : size(newSize)
    , values(std::move(newValues))
{
}

std::array<float, 3> LUTTable::GetValue(unsigned long r, unsigned long g, unsigned long b) const
{
    if (r >= size || g >= size || b >= size) {
        throw std::out_of_range("LUT index out of range: (" + std::to_string(r) + ", " + std::to_string(g) + ", " +
                                std::to_string(b) + ") in a table of size " + std::to_string(size));
    }
    const std::size_t index = r + size * (g + size * b);
    if (index >= values.size()) {
        throw std::out_of_range("LUT holds " + std::to_string(values.size()) + " values, entry " +
                                std::to_string(index) + " was asked for");
    }
    return values[index];
}

bool LUTTable::IsValid() const
{
    return size >= 2 && values.size() == size * size * size;
}

std::size_t LUTTable::GetSize() const
{
    return size;
}

const std::vector<std::array<float, 3>>& LUTTable::GetValues() const
{
    return values;
}

bool LUTTable::operator==(const LUTTable& other) const
{
    return size == other.size && values == other.values;
}

bool LUTTable::operator!=(const LUTTable& other) const
{
    return !(*this == other);
}

} // namespace Zorvan::Proc::LUT
